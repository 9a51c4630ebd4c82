// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVector>

// One analog channel of a recording with all its samples. The series are parallel: element i of
// each belongs to sample i. Scaled values are a * x + b in the unit of the file; a primary value is
// a scaled value times toPrimary, a secondary value one times toSecondary.
class AnalogChannel {
public:
    QString id;
    float maxValue = 0; // largest scaled value, never below 0
    float minValue = 0; // smallest scaled value, never above 0
    float a = 0; // multiplier of the channel
    QVector<float> rawValues; // as written in the file
    QVector<float> fftAngles; // angle of the fundamental, radians; empty without phasors
    QVector<float> fftMagnitudes; // RMS of the fundamental, scaled unit; empty without phasors
    float maxReal = 0; // largest absolute real part of the phasors
    float maxImaginary = 0; // largest absolute imaginary part of the phasors
    float maxMagnitude = 0.000001F; // largest magnitude; never 0, so that it can be divided by
    double sampleRate = 0; // samples per second
    double toPrimary = 0;
    double toSecondary = 0;
    double primary = 0; // primary rating of the transformer
    double secondary = 0; // secondary rating
    QString ps; // "P": file values are primary; "S": secondary; other texts occur
    QVector<double> times; // ms; shared with the recording's sampleTimes
    QVector<float> values; // scaled values

    // Appends multiplier * x + offset, computed in double and stored as float, to values, and
    // widens minValue and maxValue by it.
    void appendValue(float x, float multiplier, float offset);
    // The same of many numbers.
    void appendValues(const float *x, int count, float multiplier, float offset);

    // Filled or offered for completeness; the program reads and calls none of these.
    int index = 0; // channel number An of the file
    double frequency = 0; // nominal line frequency, Hz
    void appendTime(double time);
    float peakValue() const; // the largest element of values, not below 0
};
