// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timeaxis.h"

#include "phasorlookup.h"

#include <algorithm>
#include <cmath>
#include <limits>

TimeAxis::TimeAxis(const QVector<double> &times) : m_times(times)
{
    double smallest = std::numeric_limits<double>::infinity();
    double largest = -smallest;
    double previous = largest;
    for (const double time : times) {
        m_ascending = m_ascending && time >= previous;
        previous = time;
        if (std::isfinite(time)) {
            smallest = std::min(smallest, time);
            largest = std::max(largest, time);
        }
    }
    if (smallest <= largest) {
        m_smallest = smallest;
        m_largest = largest;
    }
}

int TimeAxis::firstAtOrAfter(double time) const
{
    return static_cast<int>(
        std::lower_bound(m_times.cbegin(), m_times.cend(), time) - m_times.cbegin());
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
    const PlotGeometry &geometry, double ratio, int x, int first, int expected) const
{
    const int count = m_times.size();
    const auto isInside = [&](int sample) { return columnOf(geometry, ratio, sample) <= x; };
    int inside = first;
    int outside = count;
    const int guess = first + std::clamp(expected, 1, count - first);
    if (guess < count && isInside(guess)) {
        inside = guess;
        for (int step = 1; step < count - inside; step *= 2) {
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
    for (int first = firstAtOrAfter(geometry.view().minX); first < m_times.size();) {
        const int x = columnOf(geometry, ratio, first);
        if (x >= right) {
            result.append({x, first, first + 1});
            break;
        }
        const int last = columnEnd(geometry, ratio, x, first, expected);
        result.append({x, first, last});
        expected = last - first;
        first = last;
    }
    return result;
}
