// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerule.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace convert {

namespace {

constexpr double mostNanoseconds = 4.6e18; // two of these lie apart by what a time may be

std::optional<std::int64_t> rounded(double time)
{
    if (!(std::abs(time) <= mostNanoseconds))
        return std::nullopt;
    // Most are whole numbers, for which no call is needed.
    const auto whole = static_cast<std::int64_t>(time);
    return static_cast<double>(whole) == time ? whole : std::llround(time);
}

} // namespace

TimeRule::TimeRule(const Configuration &configuration)
    : m_unit(static_cast<double>(configuration.stampUnit()) * configuration.timeMultiplier),
      m_grid(configuration.stampUnit())
{
    constexpr double second = 1e9;
    std::int64_t first = 0;
    double start = 0;
    for (const Rate &rate : configuration.rates) {
        const double period = second / rate.perSecond.value; // infinite without a rate
        if (rate.lastSample > first || m_stretches.empty())
            m_stretches.push_back({first, start, period});
        if (rate.lastSample > first)
            start += static_cast<double>(rate.lastSample - first) * period;
        first = rate.lastSample;
    }
}

std::optional<std::int64_t> TimeRule::next(double stamp)
{
    const std::int64_t index = m_index++;
    if (std::isnan(stamp))
        return byRate(index);
    const std::optional<std::int64_t> time = rounded(stamp * m_unit);
    if (time) {
        m_stampedIndex = index;
        m_stampedTime = *time;
    }
    return time;
}

std::optional<std::int64_t> TimeRule::byRate(std::int64_t index) const
{
    if (m_stretches.empty())
        return std::nullopt;
    const double since = elapsed(index) - elapsed(m_stampedIndex);
    const auto grid = static_cast<double>(m_grid);
    return rounded(static_cast<double>(m_stampedTime) + std::round(since / grid) * grid);
}

// From the first sample of the recording, in nanoseconds.
double TimeRule::elapsed(std::int64_t index) const
{
    const auto later = std::upper_bound(m_stretches.begin(), m_stretches.end(), index,
        [](std::int64_t wanted, const Stretch &stretch) { return wanted < stretch.first; });
    const Stretch &stretch = *std::prev(later);
    if (index == stretch.first)
        return stretch.start;
    return stretch.start + static_cast<double>(index - stretch.first) * stretch.period;
}

} // namespace convert
