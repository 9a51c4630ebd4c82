// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <variant>
#include <vector>

namespace convert {

// Samples as they stand in the data, of one row after the other: whole numbers of the binary forms,
// single precision of FLOAT32, and what an ASCII file has. One of these values means a missing one.
using Values = std::variant<std::vector<std::int32_t>, std::vector<float>, std::vector<double>>;

template <typename Number>
inline constexpr Number missing = std::numeric_limits<Number>::quiet_NaN();
template <>
inline constexpr std::int32_t missing<std::int32_t> = std::numeric_limits<std::int32_t>::min();

inline bool isMissing(std::int32_t value)
{
    return value == missing<std::int32_t>;
}
inline bool isMissing(float value)
{
    return std::isnan(value);
}
inline bool isMissing(double value)
{
    return std::isnan(value);
}

constexpr std::size_t statesPerWord = 16;
constexpr std::size_t wordsOf(std::size_t states)
{
    return (states + statesPerWord - 1) / statesPerWord;
}

// Some samples in a row, as many as there are times.
struct SampleBlock {
    std::int64_t firstIndex = 0; // of the recording, from 0 on
    std::vector<std::int64_t> times; // in nanoseconds from the start
    Values values;
    std::vector<std::uint16_t> words; // of states, the first one in the lowest bit
};

} // namespace convert
