// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVector>

#include <algorithm>
#include <cmath>
#include <limits>

// The smallest and largest of a run of samples, and whether some of them are not finite numbers.
struct TraceExtent {
    float min = std::numeric_limits<float>::infinity();
    float max = -std::numeric_limits<float>::infinity();
    bool broken = false;

    bool isEmpty() const { return min > max; } // no finite sample
    void add(float value)
    {
        if (std::isfinite(value)) {
            min = std::min(min, value);
            max = std::max(max, value);
        } else {
            broken = true;
        }
    }
    void add(const TraceExtent &other)
    {
        min = std::min(min, other.min);
        max = std::max(max, other.max);
        broken = broken || other.broken;
    }
};

// A series of samples with the extents of ever larger blocks of it, made once, so that the extent
// of any run of samples is found in logarithmic time.
class TraceSummary {
public:
    TraceSummary() = default;
    explicit TraceSummary(const QVector<float> &values);

    const QVector<float> &values() const { return m_values; }
    // The extent of the samples first to last - 1.
    TraceExtent extent(int first, int last) const;

private:
    QVector<float> m_values;
    QVector<QVector<TraceExtent>> m_levels; // level k holds blocks of 16 to the power k + 1 samples
};
