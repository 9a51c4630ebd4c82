// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVector>

// One digital (status) channel of a recording. times and values are parallel.
class DigitalChannel {
public:
    QString id;
    QVector<double> times; // ms; shared with the recording's sampleTimes
    QVector<int> values; // states as read, 0 or 1 in a sound file
    bool allZero = true; // cleared for good by the first state that is not 0

    void appendValues(const int *states, int count);

    // Filled or offered for completeness; the program reads and calls none of these.
    int index = 0; // channel number Dn of the file
    void appendValue(int state);
    void appendTime(double time);
};
