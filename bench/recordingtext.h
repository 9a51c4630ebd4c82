// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

class CFGProperties;
class QIODevice;

// A recording as text: 16 analog channels of 50 Hz with noise, signed and of up to six digits, and
// 32 digital channels that change now and then. The same in every run.
struct RecordingText {
    static constexpr int analogCount = 16;
    static constexpr int digitalCount = 32;

    int samples;
    int samplesPerCycle;

    QByteArray configuration() const;
    void writeData(QIODevice &device) const;
    QByteArray data() const;
};

// Reads the configuration into an empty recording.
void configure(CFGProperties &recording, const RecordingText &text);

// Gives the memory of the series back: the channel records themselves outlive the recording.
void discardSeries(CFGProperties &recording);
