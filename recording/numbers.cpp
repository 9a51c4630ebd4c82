// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr std::array<double, 19> powersOfTen{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10,
    1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};
// A whole number up to here is an exact double, and so is its quotient by an exact power of ten
// correctly rounded, as the toolkit's conversion is.
constexpr int mostDigits = 15;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Digits with at most one point between them, with an optional sign; false for anything else.
bool plainDecimal(const char *at, const char *end, double &value)
{
    if (end - at > mostDigits + 2)
        return false;
    const bool isNegative = at != end && *at == '-';
    if (isNegative || (at != end && *at == '+'))
        ++at;
    const char *const first = at;
    qint64 digits = 0;
    for (; at != end && isDigit(*at); ++at)
        digits = digits * 10 + (*at - '0');
    std::ptrdiff_t count = at - first;
    std::ptrdiff_t decimals = 0;
    if (count == 0)
        return false;
    if (at != end && *at == '.') {
        const char *const point = ++at;
        for (; at != end && isDigit(*at); ++at)
            digits = digits * 10 + (*at - '0');
        decimals = at - point;
        count += decimals;
        if (decimals == 0)
            return false;
    }
    if (at != end || count > mostDigits)
        return false;
    value = static_cast<double>(digits);
    if (decimals != 0)
        value /= powersOfTen[static_cast<size_t>(decimals)];
    if (isNegative)
        value = -value;
    return true;
}

QString text(const char *begin, const char *end)
{
    return QString::fromLatin1(begin, static_cast<int>(end - begin));
}

} // namespace

double fieldToDouble(const char *begin, const char *end)
{
    double value = 0;
    return plainDecimal(begin, end, value) ? value : text(begin, end).toDouble();
}

float fieldToFloat(const char *begin, const char *end)
{
    double value = 0;
    return plainDecimal(begin, end, value) ? static_cast<float>(value) : text(begin, end).toFloat();
}

int fieldToInt(const char *begin, const char *end)
{
    if (end - begin == 1 && isDigit(*begin))
        return *begin - '0';
    return text(begin, end).toInt();
}

QString generalText(double value)
{
    return QString::number(value, 'g', 6);
}

QString briefText(double value)
{
    const double size = std::abs(value);
    const bool isWritten = size >= 1000 && size < 999999.5; // beyond that with an exponent
    return isWritten ? fixedText(value, 0) : QString::number(value, 'g', 4);
}

QString fixedText(double value, int decimals)
{
    const QString text = QString::number(value, 'f', decimals);
    const bool isZero = text.startsWith(QLatin1Char('-')) && text.toDouble() == 0;
    return isZero ? text.mid(1) : text;
}

QString sixDecimals(double value)
{
    return fixedText(value, 6);
}

char *writeWhole(char *at, double value)
{
    // Nearly all are small enough to need no string.
    constexpr double exact = 1e15;
    if (std::abs(value) <= exact) {
        const auto truncated = static_cast<qint64>(value);
        const double rest = value - static_cast<double>(truncated);
        const qint64 whole = truncated + (rest >= 0.5 ? 1 : 0) - (rest <= -0.5 ? 1 : 0);
        return writeWhole(at, whole);
    }
    const QByteArray digits = QByteArray::number(value, 'f', 0);
    return std::copy(digits.cbegin(), digits.cend(), at);
}

char *writeWhole(char *at, qint64 value)
{
    if (value < 0 || value > 9)
        return std::to_chars(at, at + std::numeric_limits<qint64>::digits10 + 2, value).ptr;
    *at = static_cast<char>('0' + value);
    return at + 1;
}

int roundedToInt(double value)
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(value))
        return 0;
    if (value >= Limits::max())
        return Limits::max();
    if (value <= Limits::min())
        return Limits::min();
    return qRound(value);
}

qint64 truncatedToInt64(double value)
{
    using Limits = std::numeric_limits<qint64>;
    if (std::isnan(value))
        return 0;
    if (value >= static_cast<double>(Limits::max()))
        return Limits::max();
    if (value <= static_cast<double>(Limits::min()))
        return Limits::min();
    return static_cast<qint64>(value);
}
