// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QVector>

#include <cstdint>
#include <cstring>

// A recording in every form of the format, written from the published layouts alone: it shares
// nothing with the readers.
struct PublishedRecording {
    // A form of the layout, as the configuration names it.
    struct Form {
        int revision; // 1991 or, in its place, 0 for none; 1999; 2013
        QByteArray type; // ASCII, BINARY, BINARY32, FLOAT32
        QByteArray lineEnd = "\r\n";
    };
    struct Sample {
        qint64 stamp; // -1 where it is missing
        QVector<double> values;
        QByteArray states; // of zeros and ones
    };

    QByteArrayList analog{"1,IL1,A,Bay,A,0.5,0.25,0,-32767,32767"}; // the ten fields of 1991
    QByteArray ratio = "400,1,S"; // what follows them since
    QByteArrayList digital{"Trip"}; // names
    QByteArrayList rates{"1200,5"};
    QByteArray startTime = "10:00:00.000000"; // of 15 March 2024
    QByteArray multiplier = "1";
    QVector<Sample> samples;

    QByteArray configuration(const Form &form) const
    {
        const bool is1991 = form.revision <= 1991;
        const QByteArray date = is1991 ? "03/15/2024," : "15/03/2024,";
        QByteArrayList lines{"Harju,Feeder J07"};
        if (form.revision != 0)
            lines.last() += ',' + QByteArray::number(form.revision);
        lines += QByteArray::number(analog.size() + digital.size()) + ','
            + QByteArray::number(analog.size()) + "A," + QByteArray::number(digital.size()) + 'D';
        for (const QByteArray &channel : analog)
            lines += is1991 ? channel : channel + ',' + ratio;
        for (int j = 0; j < digital.size(); ++j)
            lines += QByteArray::number(j + 1) + ',' + digital.at(j) + (is1991 ? ",0" : ",,,0");
        lines += "50";
        const bool hasRates = rates.size() > 1 || !rates.constFirst().startsWith("0,");
        lines += QByteArray::number(hasRates ? rates.size() : 0);
        lines += rates;
        lines += date + startTime;
        lines += date + "10:00:00.001000";
        lines += form.type;
        if (!is1991)
            lines += multiplier;
        if (form.revision == 2013)
            lines += QByteArrayList{"+2h30,x", "4,0"};
        return lines.join(form.lineEnd) + form.lineEnd;
    }

    QByteArray data(const Form &form) const
    {
        QByteArray bytes;
        for (int i = 0; i < samples.size(); ++i)
            bytes += form.type == "ASCII" ? line(i, form) : record(i, form);
        return bytes;
    }

    QByteArray singleFile(const Form &form) const
    {
        const QByteArray bytes = data(form);
        const QByteArray count
            = form.type == "ASCII" ? QByteArray() : ": " + QByteArray::number(bytes.size());
        return "--- file type: CFG ---" + form.lineEnd + configuration(form)
            + "--- file type: INF ---" + form.lineEnd + "[Public]" + form.lineEnd
            + "--- file type: HDR ---" + form.lineEnd + "A short circuit." + form.lineEnd
            + "--- file type: DAT " + form.type + count + " ---" + form.lineEnd + bytes;
    }

private:
    QByteArray line(int i, const Form &form) const
    {
        const Sample &sample = samples.at(i);
        QByteArrayList fields{QByteArray::number(i + 1)};
        fields += sample.stamp < 0 ? QByteArray() : QByteArray::number(sample.stamp);
        for (const double value : sample.values)
            fields += QByteArray::number(value, 'g', 9);
        for (const char state : sample.states)
            fields += QByteArray(1, state);
        return fields.join(',') + form.lineEnd;
    }

    QByteArray record(int i, const Form &form) const
    {
        const Sample &sample = samples.at(i);
        QByteArray bytes = little(static_cast<std::uint32_t>(i + 1), 4)
            + little(static_cast<std::uint32_t>(sample.stamp), 4);
        for (const double value : sample.values) {
            if (form.type == "FLOAT32") {
                const auto number = static_cast<float>(value);
                std::uint32_t bits = 0;
                std::memcpy(&bits, &number, sizeof bits);
                bytes += little(bits, 4);
            } else {
                const auto whole = static_cast<std::uint32_t>(static_cast<std::int32_t>(value));
                bytes += little(whole, form.type == "BINARY32" ? 4 : 2);
            }
        }
        for (int j = 0; j < sample.states.size(); j += 16) {
            std::uint32_t word = 0;
            for (int k = 0; k < 16 && j + k < sample.states.size(); ++k)
                word |= (sample.states.at(j + k) == '1' ? 1U : 0U) << k;
            bytes += little(word, 2);
        }
        return bytes;
    }

    static QByteArray little(std::uint32_t number, int count)
    {
        QByteArray bytes;
        for (int k = 0; k < count; ++k, number >>= 8U)
            bytes += static_cast<char>(number & 0xffU);
        return bytes;
    }
};
