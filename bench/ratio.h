#pragma once

#include <algorithm>
#include <chrono>
#include <limits>

// Two amounts of the same unit, of which the ratio is of interest.
struct Ratio {
    double numerator;
    double denominator;
    const char *unit;

    double value() const { return numerator / denominator; }
};

template <typename Work> double milliseconds(Work &&work)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// The time of one piece of work against that of another, each the shortest of all rounds. The two
// take turns, so that whatever else the machine does meets both.
template <typename Numerator, typename Denominator>
Ratio timesInTurn(int rounds, Numerator &&numerator, Denominator &&denominator)
{
    Ratio ratio{std::numeric_limits<double>::max(), std::numeric_limits<double>::max(), "ms"};
    for (int round = 0; round < rounds; ++round) {
        ratio.numerator = std::min(ratio.numerator, milliseconds(numerator));
        ratio.denominator = std::min(ratio.denominator, milliseconds(denominator));
    }
    return ratio;
}
