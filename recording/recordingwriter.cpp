// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordingwriter.h"

#include "cfgproperties.h"
#include "filepair.h"
#include "numbers.h"
#include "timeofday.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr int blockSize = 1 << 18; // bytes written at once

// The bytes that were read where they were Latin-1.
QByteArray encoded(const QString &text)
{
    const bool isLatin1 = std::all_of(
        text.cbegin(), text.cend(), [](QChar letter) { return letter.unicode() <= 0xff; });
    return isLatin1 ? text.toLatin1() : text.toUtf8();
}

// A time of day moved by milliseconds, truncated to whole ones, round the clock.
QTime moved(const QTime &time, double milliseconds)
{
    constexpr qint64 day = 86400000;
    return time.addMSecs(static_cast<int>(truncatedToInt64(milliseconds) % day));
}

} // namespace

RecordingWriter::RecordingWriter(
    const CFGProperties &recording, const QStringList &primaries, const QStringList &secondaries)
    : m_recording(recording), m_primaries(primaries), m_secondaries(secondaries)
{
}

QStringList RecordingWriter::filesFor(const QString &path)
{
    const QLatin1String extension(".cfg");
    const QString stem = path.endsWith(extension) ? path.chopped(extension.size()) : path;
    return {stem + extension, stem + QLatin1String(".dat")};
}

RecordingWriter::Outcome RecordingWriter::write(const QString &path, double start, double end) const
{
    return writePair(path, start, end, Side::AsRead);
}

RecordingWriter::Outcome RecordingWriter::writeAsPrimary(const QString &path) const
{
    constexpr double everything = std::numeric_limits<double>::infinity();
    return writePair(path, -everything, everything, Side::Primary);
}

template <typename Visitor>
void RecordingWriter::visitSamples(double start, double end, const Visitor &visit) const
{
    const QVector<double> &times = m_recording.sampleTimes;
    const int count = std::min(m_recording.sampleCount, times.size());
    for (int sample = 0; sample < count; ++sample) {
        if (start > times.at(sample))
            continue;
        if (times.at(sample) > end)
            return;
        visit(sample, times.at(sample));
    }
}

RecordingWriter::Outcome RecordingWriter::writePair(
    const QString &path, double start, double end, Side side) const
{
    Span span;
    visitSamples(start, end, [&](int /*sample*/, double time) {
        if (span.count++ == 0)
            span.start = time;
        span.elapsed = time - span.start;
    });

    const auto writeConfiguration = [&](QFileDevice &file) {
        const QByteArray text = encoded(configuration(span, side));
        writeAll(file, text.constData(), text.size());
    };
    const auto writeData = [&](QFileDevice &file) {
        const int lineRoom = 2 * mostDigitsOfDouble
            + (mostDigitsOfFloat + 1)
                * (m_recording.analogChannels.size() + m_recording.digitalChannels.size());
        std::vector<char> text(static_cast<size_t>(blockSize + lineRoom));
        char *at = text.data();
        bool isFirst = true;
        visitSamples(start, end, [&](int sample, double /*time*/) {
            if (!isFirst)
                *at++ = '\n';
            isFirst = false;
            at = writeDataLine(at, sample, span.start);
            if (at - text.data() >= blockSize) {
                writeAll(file, text.data(), at - text.data());
                at = text.data();
            }
        });
        writeAll(file, text.data(), at - text.data());
    };
    const QStringList files = filesFor(path);
    return ::writePair({files.first(), writeConfiguration}, {files.last(), writeData});
}

QString RecordingWriter::configuration(const Span &span, Side side) const
{
    QStringList lines;
    lines.append(QStringList(
        {m_recording.stationName, m_recording.recordingDeviceId, m_recording.revisionYear})
                     .join(QLatin1Char(',')));
    lines.append(QStringLiteral("%1,%2A,%3D")
                     .arg(m_recording.totalChannelCount)
                     .arg(m_recording.analogChannelCount)
                     .arg(m_recording.digitalChannelCount));
    // A record without a definition has a line too, where it is counted: its samples are in the
    // data lines, and one that is not counted would stand in the place of the frequency.
    const int analogLines
        = std::max(m_recording.analogIndexes.size(), m_recording.analogChannels.size());
    for (int row = 0; row < analogLines; ++row)
        lines.append(analogLine(row, side));
    const int digitalLines = std::max(m_recording.digitalIndexes.size(),
        std::min(m_recording.digitalChannels.size(), m_recording.digitalChannelCount));
    for (int row = 0; row < digitalLines; ++row)
        lines.append(digitalLine(row));
    lines.append(sixDecimals(m_recording.lineFrequency));
    lines.append(QString::number(m_recording.rateCount));
    // No more rate lines than the standard allows or the file that was read can have had.
    constexpr int mostRates = 999;
    const int rates
        = std::min(m_recording.rateCount, std::max(mostRates, m_recording.cfgLineNumber));
    for (int i = 0; i < rates; ++i)
        lines.append(
            sixDecimals(m_recording.sampleRate) + QLatin1Char(',') + QString::number(span.count));
    lines.append(timeStampLines(span));
    lines.append(m_recording.fileType);
    lines.append(generalText(m_recording.timeMultiplier));
    // The last text of a short line was kept with its line end, which would start a line here. What
    // stands behind a NUL, or a carriage return at the very end, would not be read.
    for (QString &line : lines) {
        line.remove(QLatin1Char('\n'));
        line.remove(QChar::Null);
        while (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
    }
    return lines.join(QLatin1Char('\n'));
}

QString RecordingWriter::analogLine(int row, Side side) const
{
    const auto rating = [row](const QStringList &texts, const QList<double> &read) {
        return sixDecimals(row < texts.size() ? texts.at(row).toDouble() : read.value(row, 1));
    };
    auto a = static_cast<double>(m_recording.analogA.value(row, 1));
    auto b = static_cast<double>(m_recording.analogB.value(row));
    QString flag = m_recording.psFlags.value(row);
    if (side == Side::Primary) {
        const AnalogChannel *channel = m_recording.analogChannels.value(row);
        const double factor = channel ? channel->toPrimary : 1;
        // By a factor of nothing, or without end, the values would be lost.
        if (flag == QLatin1String("S") && factor != 0 && std::isfinite(factor)) {
            a *= factor;
            b *= factor;
        }
        flag = QStringLiteral("P");
    }
    return QStringList(
        {QString::number(m_recording.analogIndexes.value(row)), m_recording.analogIds.value(row),
            m_recording.analogPhases.value(row), m_recording.analogCircuits.value(row),
            m_recording.analogUnits.value(row), generalText(a), generalText(b),
            generalText(m_recording.analogSkews.value(row)),
            QString::number(m_recording.analogMins.value(row)),
            QString::number(m_recording.analogMaxs.value(row)),
            rating(m_primaries, m_recording.primaryValues),
            rating(m_secondaries, m_recording.secondaryValues), flag})
        .join(QLatin1Char(','));
}

QString RecordingWriter::digitalLine(int row) const
{
    return QStringList(
        {QString::number(m_recording.digitalIndexes.value(row)), m_recording.digitalIds.value(row),
            m_recording.digitalPhases.value(row), m_recording.digitalCircuits.value(row),
            m_recording.digitalNormalStates.value(row)})
        .join(QLatin1Char(','));
}

// The trigger moves to the new start when it does not lie between the new start and the new end.
// The dates stay, also when the range crosses midnight.
QStringList RecordingWriter::timeStampLines(const Span &span) const
{
    const QTime start
        = moved(QTime::fromString(m_recording.startTime, timeOfDayFormat), span.start);
    const QTime end = moved(start, span.elapsed);
    QTime trigger = QTime::fromString(m_recording.triggerTime, timeOfDayFormat);
    if (!(start <= trigger && trigger <= end))
        trigger = start;
    return {m_recording.startDate + QLatin1Char(',') + start.toString(timeOfDayFormat),
        m_recording.triggerDate + QLatin1Char(',') + trigger.toString(timeOfDayFormat)};
}

char *RecordingWriter::writeDataLine(char *at, int sample, double firstTime) const
{
    at = writeWhole(at, qint64(sample) + 1);
    *at++ = ',';
    at = writeWhole(at, m_recording.sampleTimes.at(sample) * 1000 - firstTime * 1000);
    *at++ = ',';
    for (const AnalogChannel *channel : m_recording.analogChannels) {
        at = writeWhole(at, static_cast<double>(channel->rawValues.at(sample)));
        *at++ = ',';
    }
    for (const DigitalChannel *channel : m_recording.digitalChannels) {
        at = writeWhole(at, qint64(channel->values.at(sample)));
        *at++ = ',';
    }
    return m_recording.digitalChannels.isEmpty() ? at : at - 1;
}
