// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"
#include "pairtext.h"
#include "sampleblock.h"

#include <cstdint>
#include <vector>

namespace convert {

// Counts the samples that are written of each rate, for the rates of the copy.
class WrittenRates {
public:
    explicit WrittenRates(const Configuration &configuration);

    void add(const SampleBlock &block, std::size_t begin, std::size_t end);

    // One rate at least, since readers that go by the number of the line expect one. Of a recording
    // without rates it is that of its stamps where these lie evenly, and else 0.
    std::vector<WrittenRate> rates() const;

private:
    void addSteps(const SampleBlock &block, std::size_t begin, std::size_t end);
    std::string rateOfStamps() const;

    const std::vector<Rate> m_read;
    std::vector<std::int64_t> m_counts; // of samples, one for each rate that was read
    std::int64_t m_samples = 0;
    std::int64_t m_firstTime = 0; // in nanoseconds, as all below
    std::int64_t m_lastTime = 0;
    std::int64_t m_leastStep = 0;
    std::int64_t m_mostStep = 0;
};

} // namespace convert
