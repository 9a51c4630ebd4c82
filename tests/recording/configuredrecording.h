// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cfgproperties.h"
#include "datareader.h"

#include <QBuffer>

// A configuration as it stands after its file was read: channel k has a = k + 1, b = k / 4.
inline void configure(CFGProperties &recording, int analog, int digital)
{
    recording.clearConfig();
    recording.analogChannelCount = analog;
    recording.digitalChannelCount = digital;
    recording.totalChannelCount = analog + digital;
    recording.lineFrequency = 50;
    recording.sampleRate = 1000;
    for (int k = 0; k < analog; ++k) {
        recording.analogIndexes.append(k + 1);
        recording.analogIds.append(QStringLiteral("A%1").arg(k + 1));
        recording.analogA.append(static_cast<float>(k + 1));
        recording.analogB.append(static_cast<float>(k) / 4);
        recording.primaryValues.append(400);
        recording.secondaryValues.append(1);
        recording.toPrimary.append(400);
        recording.toSecondary.append(1);
        recording.psFlags.append(QStringLiteral("S"));
    }
    for (int j = 0; j < digital; ++j) {
        recording.digitalIndexes.append(j + 1);
        recording.digitalIds.append(QStringLiteral("D%1").arg(j + 1));
    }
}

inline void read(CFGProperties &recording, QByteArray data)
{
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    readData(buffer, recording);
}
