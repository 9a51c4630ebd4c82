// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <cmath>
#include <random>

// Equal numbers, the sign of a zero included; any NaN equals any other.
template <typename Number> bool sameBits(Number left, Number right)
{
    const bool areNumbers = !std::isnan(left) && !std::isnan(right);
    return areNumbers ? left == right && std::signbit(left) == std::signbit(right)
                      : std::isnan(left) && std::isnan(right);
}

// A field of letters that numbers are made of, and a few that they are not.
inline QByteArray oddField(std::mt19937 &random)
{
    static const QByteArray letters = "0123456789012345678901234567890000..--++eE \t\rxainf\xa0";
    QByteArray field;
    for (auto left = random() % 22; left > 0; --left)
        field += letters.at(static_cast<int>(random() % static_cast<unsigned>(letters.size())));
    return field;
}

// Digits with a point and a sign in their places, as nearly all fields are.
inline QByteArray plainField(std::mt19937 &random)
{
    static const QByteArrayList signs{"", "", "-", "+"};
    QByteArray field = signs.at(static_cast<int>(random() % 4));
    const auto digits = 1 + random() % 18;
    const auto point = random() % 24;
    for (unsigned i = 0; i < digits; ++i) {
        if (i == point)
            field += '.';
        field += static_cast<char>('0' + random() % 10);
    }
    return field;
}
