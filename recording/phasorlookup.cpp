// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "phasorlookup.h"

#include "analogchannel.h"
#include "numbers.h"

#include <algorithm>

namespace {

constexpr int firstSearched = 1;

} // namespace

int sampleAt(const QVector<double> &times, double sampleRate, double time, int &searchFrom)
{
    if (times.isEmpty() || time < times.constFirst() || time > times.constLast())
        return -1;
    const int guess = roundedToInt(sampleRate * time / 1000);
    if (guess >= 0 && guess < times.size() && times.at(guess) == time)
        return guess;
    if (times.constFirst() == time)
        return 0;
    // The first place counts, and times that run back have several: no halving.
    const double *const first = times.constData();
    const double *const last = first + times.size();
    const auto reached = [time, last](const double *from) {
        return std::find_if(from, last, [time](double other) { return other >= time; });
    };
    const double *at = reached(first + std::clamp(searchFrom, firstSearched, times.size()));
    while (at != last && *at != time && !(at[-1] < time))
        at = reached(at + 1);
    const int i = static_cast<int>(at - first);
    searchFrom = i;
    if (i >= times.size())
        return -1;
    const bool isEarlierNearer = times.at(i) != time && time - times.at(i - 1) < times.at(i) - time;
    return isEarlierNearer ? i - 1 : i;
}

Phasor phasorOf(const AnalogChannel &channel, int sample)
{
    if (sample < 0 || sample >= channel.fftAngles.size() || sample >= channel.fftMagnitudes.size())
        return {};
    return {channel.fftAngles.at(sample), channel.fftMagnitudes.at(sample)};
}
