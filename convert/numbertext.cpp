// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "numbertext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>

namespace convert {

namespace {

template <typename Number> char *write(char *at, Number value)
{
    return std::to_chars(at, at + mostNumberBytes, value).ptr;
}

// Of a power of ten, which the compiler divides by faster than by any number.
template <std::int64_t divisor> char *writeQuotient(char *at, std::int64_t value)
{
    if (value < 0)
        *at++ = '-';
    at = write(at, std::abs(value / divisor));
    std::int64_t rest = std::abs(value % divisor);
    if (rest == 0)
        return at;
    *at++ = '.';
    while (rest > 0) {
        rest *= 10;
        *at++ = static_cast<char>('0' + rest / divisor);
        rest %= divisor;
    }
    return at;
}

} // namespace

char *writeNumber(char *at, std::int64_t value)
{
    return write(at, value);
}

char *writeNumber(char *at, std::int32_t value)
{
    return write(at, value);
}

char *writeNumber(char *at, float value)
{
    // The fewest digits of the greatest number are those of a greater double, which readers that
    // convert by way of one take for infinite. As many others read back as well.
    constexpr float greatest = std::numeric_limits<float>::max();
    constexpr double belowGreatest = 3.4028234e38;
    if (std::abs(value) == greatest)
        return write(at, std::copysign(belowGreatest, static_cast<double>(value)));
    return write(at, value == 0 ? 0.0F : value);
}

char *writeNumber(char *at, double value)
{
    // Most are counts, which are quicker to write as what they are.
    constexpr double mostCount = 1e9;
    if (std::abs(value) < mostCount && value == std::trunc(value))
        return write(at, static_cast<std::int64_t>(value));
    return write(at, value);
}

char *writeMicroseconds(char *at, std::int64_t nanoseconds)
{
    return writeQuotient<1000>(at, nanoseconds);
}

char *writeMilliseconds(char *at, std::int64_t nanoseconds)
{
    return writeQuotient<1000000>(at, nanoseconds);
}

std::string numberText(double value)
{
    std::array<char, mostNumberBytes> letters{};
    return {letters.data(), writeNumber(letters.data(), value)};
}

const CountTexts &CountTexts::instance()
{
    static const std::unique_ptr<const CountTexts> texts(new CountTexts);
    return *texts;
}

CountTexts::CountTexts()
{
    for (std::int32_t value = least; value <= most; ++value) {
        char *const begin = m_texts[value - least].letters;
        char *const end = writeNumber(begin, value);
        *end = ',';
        begin[sizeof(Text) - 1] = static_cast<char>(end - begin + 1);
    }
}

} // namespace convert
