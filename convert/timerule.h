// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace convert {

// The times of samples: their stamps times the multiplier, or, for those without a stamp, a period
// of their rate after another. A sample takes one period of its rate.
class TimeRule {
public:
    explicit TimeRule(const Configuration &configuration);

    // The time of the next sample in nanoseconds, by its stamp, which is NaN where it is missing.
    // Nothing where there is neither a stamp nor a rate, or the time is beyond 145 years.
    std::optional<std::int64_t> next(double stamp);

private:
    struct Stretch { // of samples of one rate
        std::int64_t first; // index
        double start; // in nanoseconds
        double period;
    };

    std::optional<std::int64_t> byRate(std::int64_t index) const;
    double elapsed(std::int64_t index) const;

    const double m_unit; // nanoseconds of a stamp
    const std::int64_t m_grid; // to which times by rates are rounded
    std::vector<Stretch> m_stretches;
    std::int64_t m_index = 0;
    std::int64_t m_stampedIndex = 0; // of the last sample that had a stamp
    std::int64_t m_stampedTime = 0;
};

} // namespace convert
