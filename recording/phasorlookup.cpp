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
    int i = std::max(firstSearched, searchFrom);
    while (
        i < times.size() && times.at(i) != time && !(times.at(i - 1) < time && time < times.at(i)))
        ++i;
    searchFrom = i;
    if (i >= times.size())
        return -1;
    const bool isEarlierNearer = times.at(i) != time && time - times.at(i - 1) < times.at(i) - time;
    return isEarlierNearer ? i - 1 : i;
}

int sampleAt(const QVector<double> &times, double sampleRate, double time)
{
    int searchFrom = firstSearched;
    return sampleAt(times, sampleRate, time, searchFrom);
}

Phasor phasorAt(const AnalogChannel &channel, double time, int &searchFrom)
{
    const int sample = sampleAt(channel.times, channel.sampleRate, time, searchFrom);
    if (sample < 0 || sample >= channel.fftAngles.size() || sample >= channel.fftMagnitudes.size())
        return {};
    return {channel.fftAngles.at(sample), channel.fftMagnitudes.at(sample)};
}

Phasor phasorAt(const AnalogChannel &channel, double time)
{
    int searchFrom = firstSearched;
    return phasorAt(channel, time, searchFrom);
}
