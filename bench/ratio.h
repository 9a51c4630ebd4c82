// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <ctime>
#include <vector>

// Two amounts of the same unit, of which the ratio is of interest.
struct Ratio {
    double numerator;
    double denominator;
    const char *unit;

    double value() const { return numerator / denominator; }
};

// The processor time of the work, so that other programs and the disk are not measured.
template <typename Work> double milliseconds(Work &&work)
{
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
}

// The time of the quickest of some rounds, in which other programs hindered the work least.
template <typename Work> double shortestTime(int rounds, Work &&work)
{
    double shortest = milliseconds(work);
    for (int round = 1; round < rounds; ++round)
        shortest = std::min(shortest, milliseconds(work));
    return shortest;
}

// The time of one piece of work against that of another, in the round of the middle ratio. The two
// take turns, so that whatever else the machine does meets both. What prepares a round is not
// timed.
template <typename Numerator, typename Denominator, typename Preparation>
Ratio timesInTurn(
    int rounds, Numerator &&numerator, Denominator &&denominator, Preparation &&prepare)
{
    std::vector<Ratio> ratios;
    ratios.reserve(static_cast<size_t>(rounds));
    for (int round = 0; round < rounds; ++round) {
        prepare();
        ratios.push_back({milliseconds(numerator), milliseconds(denominator), "ms"});
    }
    const auto middle = ratios.begin() + rounds / 2;
    std::nth_element(ratios.begin(), middle, ratios.end(),
        [](const Ratio &left, const Ratio &right) { return left.value() < right.value(); });
    return *middle;
}

template <typename Numerator, typename Denominator>
Ratio timesInTurn(int rounds, Numerator &&numerator, Denominator &&denominator)
{
    return timesInTurn(rounds, numerator, denominator, [] {});
}
