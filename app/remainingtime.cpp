// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remainingtime.h"

#include <algorithm>
#include <cmath>

namespace {

// Rounded up, so that the work seldom takes longer than is said.
int rounded(double seconds)
{
    constexpr double most = 359940; // 99 hours and 59 minutes
    const int step = seconds <= 10 ? 1 : seconds <= 60 ? 5 : 60;
    return std::max(step * static_cast<int>(std::ceil(std::min(seconds, most) / step)), 1);
}

// Whether the work so far tells of the rest: it is a part worth mentioning, or took long.
bool canBeTold(qint64 elapsed, double done)
{
    constexpr qint64 aMoment = 1000;
    constexpr qint64 aWhile = 5000;
    return (elapsed >= aMoment && done >= 0.05) || (elapsed >= aWhile && done >= 0.01);
}

} // namespace

void RemainingTime::update(qint64 elapsed, double done)
{
    constexpr double mostTooLittle = 1.5; // before more is said than was
    if (!canBeTold(elapsed, done))
        return;
    const double left = static_cast<double>(elapsed) / 1000 * (1 - done) / done;
    const int seconds = rounded(left);
    if (m_seconds == 0 || seconds < m_seconds || left > mostTooLittle * m_seconds)
        m_seconds = seconds;
}
