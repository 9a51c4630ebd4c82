// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "writtenrates.h"

#include "numbertext.h"

#include <algorithm>

namespace convert {

WrittenRates::WrittenRates(const Configuration &configuration)
    : m_read(configuration.rates), m_counts(configuration.rates.size())
{
}

void WrittenRates::add(const SampleBlock &block, std::size_t begin, std::size_t end)
{
    if (m_read.empty())
        addSteps(block, begin, end);
    m_samples += static_cast<std::int64_t>(end - begin);
    auto first = block.firstIndex + static_cast<std::int64_t>(begin);
    const auto last = block.firstIndex + static_cast<std::int64_t>(end);
    for (std::size_t k = 0; k < m_read.size() && first < last; ++k) {
        const bool isLastRate = k + 1 == m_read.size(); // which all later samples have
        const std::int64_t rateEnd = isLastRate ? last : std::min(m_read[k].lastSample, last);
        m_counts[k] += std::max<std::int64_t>(rateEnd - first, 0);
        first = std::max(first, rateEnd);
    }
}

void WrittenRates::addSteps(const SampleBlock &block, std::size_t begin, std::size_t end)
{
    for (std::size_t row = begin; row < end; ++row) {
        const std::int64_t time = block.times[row];
        const bool isFirst = m_samples == 0 && row == begin;
        const bool isSecond = m_samples + static_cast<std::int64_t>(row - begin) == 1;
        const std::int64_t step = time - m_lastTime;
        if (isFirst)
            m_firstTime = time;
        else if (isSecond)
            m_leastStep = m_mostStep = step;
        m_leastStep = isFirst ? 0 : std::min(m_leastStep, step);
        m_mostStep = isFirst ? 0 : std::max(m_mostStep, step);
        m_lastTime = time;
    }
}

std::vector<WrittenRate> WrittenRates::rates() const
{
    if (m_read.empty())
        return {{rateOfStamps(), m_samples}};
    std::vector<WrittenRate> written;
    std::int64_t last = 0;
    for (std::size_t k = 0; k < m_read.size(); ++k) {
        last += m_counts[k];
        if (m_counts[k] > 0)
            written.push_back({m_read[k].perSecond.text, last});
    }
    return written;
}

std::string WrittenRates::rateOfStamps() const
{
    constexpr std::int64_t evenness = 2000; // stamps of even steps are rounded to microseconds
    if (m_leastStep <= 0 || m_mostStep - m_leastStep > evenness)
        return "0";
    constexpr double second = 1e9;
    return numberText(static_cast<double>(m_samples - 1) * second
        / static_cast<double>(m_lastTime - m_firstTime));
}

} // namespace convert
