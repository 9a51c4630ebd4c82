// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordingtext.h"

#include "cfgproperties.h"
#include "configurationreader.h"

#include <QBuffer>

#include <cmath>
#include <random>

QByteArray RecordingText::configuration() const
{
    const QByteArray rate = QByteArray::number(50 * samplesPerCycle);
    QByteArray text("Substation,Recorder,1999\n48,16A,32D\n");
    for (int k = 1; k <= analogCount; ++k) {
        const QByteArray number = QByteArray::number(k);
        text += number + ",I" + number + ",A,,A,0.01,0,0,-999999,999999,400,1,S\n";
    }
    for (int j = 1; j <= digitalCount; ++j)
        text += QByteArray::number(j) + ",Trip " + QByteArray::number(j) + ",,,0\n";
    text += "50\n1\n" + rate + ',' + QByteArray::number(samples) + '\n';
    text += "15/03/2024,10:00:00.000000\n15/03/2024,10:00:00.100000\nASCII\n1\n";
    return text;
}

void RecordingText::writeData(QIODevice &device) const
{
    constexpr int blockSize = 1 << 20;
    constexpr double turn = 6.283185307179586;
    std::minstd_rand random;
    QByteArray block;
    block.reserve(blockSize + 1000);
    for (int i = 0; i < samples; ++i) {
        block += QByteArray::number(i + 1) + ','
            + QByteArray::number(qint64(i) * 20000 / samplesPerCycle);
        for (int k = 0; k < analogCount; ++k) {
            const double peak = 2000 * std::pow(1.4, k); // up to 311,000
            const double noise = peak * 0.01 * (static_cast<double>(random() % 2001) / 1000 - 1);
            const double wave = peak * std::sin(turn * i / samplesPerCycle + k);
            block += ',' + QByteArray::number(qRound(wave + noise));
        }
        for (int j = 0; j < digitalCount; ++j)
            block += i % (1000 * (j + 1)) < 500 ? ",0" : ",1";
        block += '\n';
        if (block.size() >= blockSize) {
            device.write(block);
            block.resize(0);
        }
    }
    device.write(block);
}

QByteArray RecordingText::data() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    writeData(buffer);
    return buffer.data();
}

void configure(CFGProperties &recording, const RecordingText &text)
{
    QBuffer buffer;
    buffer.setData(text.configuration());
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    readConfiguration(buffer, recording);
}

void discardSeries(CFGProperties &recording)
{
    for (AnalogChannel *channel : qAsConst(recording.analogChannels))
        *channel = AnalogChannel();
    for (DigitalChannel *channel : qAsConst(recording.digitalChannels))
        *channel = DigitalChannel();
    recording.clearConfig();
}
