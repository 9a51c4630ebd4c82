// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVector>

class AnalogChannel;

// The fundamental of a channel at one sample.
struct Phasor {
    float angle = 0; // radians
    float magnitude = 0; // RMS in the channel's scaled unit
};

// Finds the sample nearest to a time (ms), ties going to the later one; -1 for a time before the
// first or after the last sample. sampleRate (Hz) only serves the first guess. A search goes
// forward from searchFrom, at least 1, and leaves there where it ended, so that it can be resumed.
int sampleAt(const QVector<double> &times, double sampleRate, double time, int &searchFrom);

// The phasor of a sample; zeros where there is none.
Phasor phasorOf(const AnalogChannel &channel, int sample);
