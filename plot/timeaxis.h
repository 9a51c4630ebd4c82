// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotgeometry.h"

#include <QVector>

// The sample times of a recording (ms), prepared for drawing: whether they ascend, their extremes,
// and which samples fall on which column of device pixels of a view.
class TimeAxis {
public:
    // The samples first to last - 1 stand on column x of the device pixels.
    struct Column {
        int x;
        int first;
        int last;
    };

    TimeAxis() = default;
    explicit TimeAxis(const QVector<double> &times);

    const QVector<double> &times() const { return m_times; }
    // True when no time is smaller than the one before it. Only then may the searches be used.
    bool isAscending() const { return m_ascending; }
    // The smallest and largest finite time, 0 and 0 where there is none.
    double smallest() const { return m_smallest; }
    double largest() const { return m_largest; }

    // The first sample at or after a time; the sample count where there is none.
    int firstAtOrAfter(double time) const;

    // From which sample on the phasor lookup may search for a time: 0 where times run back.
    int searchStart(double time) const { return m_ascending ? firstAtOrAfter(time) : 0; }

    // The sample nearest to a time, by the rule of the phasor lookup; -1 outside the recorded span.
    int sampleAt(double sampleRate, double time) const;

    // The columns of the samples from the left edge of the view on, and as the last one the first
    // sample right of the plot area, where the line leaves it. The ratio is that of device pixels
    // to widget pixels.
    QVector<Column> columns(const PlotGeometry &geometry, double ratio) const;

private:
    int columnOf(const PlotGeometry &geometry, double ratio, int sample) const;
    int columnEnd(const PlotGeometry &geometry, double ratio, int x, int first, int expected) const;

    QVector<double> m_times;
    bool m_ascending = true;
    double m_smallest = 0;
    double m_largest = 0;
};
