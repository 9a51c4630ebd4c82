// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotgeometry.h"

#include <QVector>

#include <optional>

// The sample times of a recording (ms), prepared for drawing: where they ascend, their extremes,
// and which samples fall on which column of device pixels of a view.
class TimeAxis {
public:
    // The samples first to last - 1, of which no time is smaller than the one before it.
    struct Run {
        int first;
        int last;
    };

    // The samples first to last - 1 stand on column x of the device pixels.
    struct Column {
        int x;
        int first;
        int last;
    };

    TimeAxis() = default;
    explicit TimeAxis(const QVector<double> &times);

    const QVector<double> &times() const { return m_times; }
    // True when no time is smaller than the one before it.
    bool isAscending() const { return m_ascending; }
    // The longest runs of ascending times, in order; together they hold all samples. None where
    // they would be too short on average for a search in each to be worth while.
    const QVector<Run> &runs() const { return m_runs; }
    // The smallest and largest finite time, 0 and 0 where there is none.
    double smallest() const { return m_smallest; }
    double largest() const { return m_largest; }

    // The first sample of a run at or after a time; the run's end where there is none.
    int firstAtOrAfter(double time, const Run &run) const;

    // From which sample on the phasor lookup may search for a time.
    int searchStart(double time) const;

    // The nearest time of a sample that is later, or earlier, than a time.
    std::optional<double> timeAfter(double time) const;
    std::optional<double> timeBefore(double time) const;
    // All samples from one time to another, with those next to them on both sides; others may be
    // among them where the times do not ascend.
    QVector<Run> around(double from, double to) const;

    // The sample nearest to a time, by the rule of the phasor lookup; -1 outside the recorded span.
    int sampleAt(double sampleRate, double time) const;

    // The columns of the samples from the left edge of the view on, run by run; and of a run that
    // goes on to the right, the first sample beyond the plot area, where the line leaves it, and
    // the last one, from where it comes back. The ratio is that of device pixels to widget pixels.
    QVector<Column> columns(const PlotGeometry &geometry, double ratio) const;

private:
    int columnOf(const PlotGeometry &geometry, double ratio, int sample) const;
    // Where the column x ends, on which the first sample of the rest of a run stands.
    int columnEnd(
        const PlotGeometry &geometry, double ratio, int x, const Run &rest, int expected) const;

    QVector<double> m_times;
    QVector<Run> m_runs;
    bool m_ascending = true;
    double m_smallest = 0;
    double m_largest = 0;
};
