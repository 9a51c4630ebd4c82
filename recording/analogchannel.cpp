// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analogchannel.h"

#include "numbers.h"

#include <algorithm>
#include <numeric>

void AnalogChannel::appendValue(float x, float multiplier, float offset)
{
    appendValues(&x, 1, multiplier, offset);
}

void AnalogChannel::appendValues(const float *x, int count, float multiplier, float offset)
{
    const auto slope = static_cast<double>(multiplier);
    const auto shift = static_cast<double>(offset);
    values.resize(values.size() + count);
    float *const scaled = values.end() - count;
    float largest = maxValue;
    float smallest = minValue;
    for (int i = 0; i < count; ++i) {
        scaled[i] = narrowed(slope * static_cast<double>(x[i]) + shift);
        largest = std::max(largest, scaled[i]);
        smallest = std::min(smallest, scaled[i]);
    }
    maxValue = largest;
    minValue = smallest;
}

void AnalogChannel::appendTime(double time)
{
    times.append(time);
}

float AnalogChannel::peakValue() const
{
    return std::accumulate(values.cbegin(), values.cend(), 0.0F,
        [](float peak, float value) { return std::max(peak, value); });
}
