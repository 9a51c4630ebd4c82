// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <cmath>
#include <limits>

// Conversions of a field of a text file, [begin, end) in Latin-1. The results are those of the
// toolkit's string class in the C locale, 0 where a field does not convert; plain decimals, which
// nearly all fields are, take a way that makes no string.
double fieldToDouble(const char *begin, const char *end);
float fieldToFloat(const char *begin, const char *end);
int fieldToInt(const char *begin, const char *end);

// Texts of numbers. A value that rounds to zero has no sign: read again, "-0" would be written as
// "0".
QString generalText(double value); // six digits, with an exponent where that is shorter
QString briefText(double value); // four digits; all those of a whole part of five or six
QString fixedText(double value, int decimals);
QString sixDecimals(double value);

// Write a number without decimals, rounded as the toolkit does, and give the end of it.
constexpr int mostDigitsOfDouble = 320; // with a sign
constexpr int mostDigitsOfFloat = 40; // or of an int
char *writeWhole(char *at, double value);
char *writeWhole(char *at, qint64 value);

// The nearest float, as IEEE 754 rounds: beyond the largest one by half a step an infinity.
inline float narrowed(double value)
{
    using Limits = std::numeric_limits<float>;
    constexpr double infinite = 0x1.ffffffp127;
    if (const double size = std::abs(value); size > static_cast<double>(Limits::max())) {
        const float nearest = size < infinite ? Limits::max() : Limits::infinity();
        return value > 0 ? nearest : -nearest;
    }
    return static_cast<float>(value);
}

// The nearest whole number, halves upwards as qRound takes them, kept within the range of an int; 0
// for NaN.
int roundedToInt(double value);

// The part before the decimal point, kept within the range of 64 bits; 0 for NaN.
qint64 truncatedToInt64(double value);
