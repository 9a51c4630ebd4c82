// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timeaxis.h"

#include "phasorlookup.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int shortestRun = 16; // on average, in samples

} // namespace

TimeAxis::TimeAxis(const QVector<double> &times) : m_times(times)
{
    double smallest = std::numeric_limits<double>::infinity();
    double largest = -smallest;
    const int mostRuns = 1 + times.size() / shortestRun;
    int begins = 0;
    for (int i = 0; i < times.size(); ++i) {
        const double time = times.at(i);
        if (std::isfinite(time)) {
            smallest = std::min(smallest, time);
            largest = std::max(largest, time);
        }
        const bool isLast = i + 1 == times.size();
        if (!isLast && times.at(i + 1) >= time)
            continue;
        m_ascending = m_ascending && isLast && !std::isnan(time);
        if (m_runs.size() <= mostRuns)
            m_runs.append({begins, i + 1});
        begins = i + 1;
    }
    if (m_runs.size() > mostRuns)
        m_runs = {};
    if (smallest <= largest) {
        m_smallest = smallest;
        m_largest = largest;
    }
}

int TimeAxis::firstAtOrAfter(double time, const Run &run) const
{
    const auto from = m_times.cbegin();
    return static_cast<int>(std::lower_bound(from + run.first, from + run.last, time) - from);
}

// The lookup ends at the first time that is the searched one or the first to pass it, and no run
// begins with one that passes it.
int TimeAxis::searchStart(double time) const
{
    for (const Run &run : m_runs) {
        const int sample = firstAtOrAfter(time, run);
        if (sample < run.last && (sample > run.first || m_times.at(sample) == time))
            return sample;
    }
    return m_runs.isEmpty() ? 0 : m_times.size();
}

std::optional<double> TimeAxis::timeAfter(double time) const
{
    std::optional<double> nearest;
    for (const double other : m_times) {
        if (other > time && !(nearest && *nearest <= other))
            nearest = other;
    }
    return nearest;
}

std::optional<double> TimeAxis::timeBefore(double time) const
{
    std::optional<double> nearest;
    for (const double other : m_times) {
        if (other < time && !(nearest && *nearest >= other))
            nearest = other;
    }
    return nearest;
}

QVector<TimeAxis::Run> TimeAxis::around(double from, double to) const
{
    if (m_runs.isEmpty())
        return {{0, m_times.size()}};
    QVector<Run> parts;
    for (const Run &run : m_runs) {
        const int first = std::max(run.first, firstAtOrAfter(from, run) - 1);
        const int last = std::min(run.last, firstAtOrAfter(to, run) + 1);
        if (first < last)
            parts.append({first, last});
    }
    return parts;
}

int TimeAxis::sampleAt(double sampleRate, double time) const
{
    int searchFrom = searchStart(time);
    return ::sampleAt(m_times, sampleRate, time, searchFrom);
}

int TimeAxis::columnOf(const PlotGeometry &geometry, double ratio, int sample) const
{
    return PlotGeometry::pixel(geometry.traceX(m_times[sample]) * ratio);
}

// Columns of a steadily sampled recording are nearly equally full, so the search starts where the
// column would end if it were as full as the one before it, and widens from there.
int TimeAxis::columnEnd(
    const PlotGeometry &geometry, double ratio, int x, const Run &rest, int expected) const
{
    const auto isInside = [&](int sample) { return columnOf(geometry, ratio, sample) <= x; };
    int inside = rest.first;
    int outside = rest.last;
    const int guess = rest.first + std::clamp(expected, 1, rest.last - rest.first);
    if (guess < rest.last && isInside(guess)) {
        inside = guess;
        for (int step = 1; step < rest.last - inside; step *= 2) {
            if (!isInside(inside + step)) {
                outside = inside + step;
                break;
            }
            inside += step;
        }
    } else {
        outside = guess;
        for (int step = 1; step < outside - inside; step *= 2) {
            if (isInside(outside - step)) {
                inside = outside - step;
                break;
            }
            outside -= step;
        }
    }
    while (outside - inside > 1) {
        const int middle = inside + (outside - inside) / 2;
        (isInside(middle) ? inside : outside) = middle;
    }
    return outside;
}

QVector<TimeAxis::Column> TimeAxis::columns(const PlotGeometry &geometry, double ratio) const
{
    QVector<Column> result;
    const double right = (geometry.area().right() + 1) * ratio;
    result.reserve(static_cast<int>(geometry.plotWidth() * ratio) + 2);
    int expected = 1;
    const auto columnAt = [&](int sample) { return columnOf(geometry, ratio, sample); };
    for (const Run &run : m_runs) {
        int first = firstAtOrAfter(geometry.view().minX, run);
        if (first == run.last || std::isnan(m_times.at(first)))
            continue;
        int x = columnAt(first);
        while (x < right && first < run.last) {
            const int last = columnEnd(geometry, ratio, x, {first, run.last}, expected);
            result.append({x, first, last});
            expected = last - first;
            first = last;
            x = first < run.last ? columnAt(first) : x;
        }
        if (first < run.last)
            result.append({x, first, first + 1});
        if (first + 1 < run.last && run.last < m_times.size())
            result.append({columnAt(run.last - 1), run.last - 1, run.last});
    }
    return result;
}
