// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "measurements.h"

#include "analogchannel.h"
#include "phasorlookup.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

using Complex = std::complex<double>;

constexpr double turn = 6.283185307179586; // radians
constexpr double fullTurn = 360; // degrees
const double rootOfTwo = std::sqrt(2.0);
constexpr double precision = 0x1p-24; // of the samples, relative

bool isWithin(const QVector<float> &values, qint64 first, int count)
{
    return count > 0 && first >= 0 && first + count <= values.size();
}

qint64 cycleBefore(int sample, int samplesPerCycle)
{
    return static_cast<qint64>(sample) - samplesPerCycle + 1;
}

} // namespace

std::optional<double> trueRms(const QVector<float> &values, int sample, int samplesPerCycle)
{
    const qint64 first = cycleBefore(sample, samplesPerCycle);
    if (!isWithin(values, first, samplesPerCycle))
        return std::nullopt;
    const auto begin = values.cbegin() + first;
    const double squares
        = std::accumulate(begin, begin + samplesPerCycle, 0.0, [](double sum, float value) {
              return sum + static_cast<double>(value) * static_cast<double>(value);
          });
    return std::sqrt(squares / samplesPerCycle);
}

std::optional<double> cyclePeak(const QVector<float> &values, int sample, int samplesPerCycle)
{
    const qint64 first = cycleBefore(sample, samplesPerCycle);
    if (!isWithin(values, first, samplesPerCycle))
        return std::nullopt;
    const auto begin = values.cbegin() + first;
    return static_cast<double>(std::accumulate(begin, begin + samplesPerCycle, 0.0F,
        [](float peak, float value) { return std::max(peak, std::abs(value)); }));
}

Complex complexRms(const Phasor &phasor, double factor)
{
    const double magnitude = static_cast<double>(phasor.magnitude) * factor;
    const auto angle = static_cast<double>(phasor.angle);
    return {magnitude * std::cos(angle), magnitude * std::sin(angle)};
}

double wrappedDegrees(double degrees)
{
    const double rest = std::remainder(degrees, fullTurn);
    return rest <= -fullTurn / 2 ? fullTurn / 2 : rest;
}

std::optional<double> leadDegrees(Complex phasor, Complex reference)
{
    const auto hasDirection
        = [](Complex one) { return one != 0.0 && std::isfinite(std::abs(one)); };
    if (!hasDirection(phasor) || !hasDirection(reference))
        return std::nullopt;
    return wrappedDegrees((std::arg(phasor) - std::arg(reference)) * fullTurn / turn);
}

SequenceComponents sequenceComponents(const std::array<Complex, 3> &phases)
{
    const Complex third(-0.5, std::sqrt(0.75)); // of a turn
    const Complex twoThirds = std::conj(third);
    const auto &[first, second, last] = phases;
    return {(first + third * second + twoThirds * last) / 3.0,
        (first + twoThirds * second + third * last) / 3.0, (first + second + last) / 3.0};
}

Harmonics harmonicsAround(const AnalogChannel &channel, int sample, int samplesPerCycle)
{
    Harmonics harmonics;
    const int count = samplesPerCycle;
    const qint64 first = static_cast<qint64>(sample) - count / 2 + 1;
    if (sample >= channel.fftMagnitudes.size() || !isWithin(channel.values, first, count))
        return harmonics;
    std::array<Complex, harmonicCount> sums;
    double largest = 0;
    for (int i = 0; i < count; ++i) {
        const auto value = static_cast<double>(channel.values.at(static_cast<int>(first) + i));
        largest = std::max(largest, std::abs(value));
        const Complex step = std::polar(1.0, -turn * i / count);
        Complex turned = value;
        for (Complex &sum : sums)
            sum += turned *= step;
    }
    harmonics[0] = static_cast<double>(phasorOf(channel, sample).magnitude);
    for (int order = 2; order <= harmonicCount && 2 * order < count; ++order) {
        const auto place = static_cast<size_t>(order - 1);
        const double rms = std::abs(sums[place]) * rootOfTwo / count;
        harmonics[place] = rms < largest * precision ? 0 : rms;
    }
    return harmonics;
}

std::optional<double> inCycles(double time, double lineFrequency)
{
    if (!(lineFrequency > 0))
        return std::nullopt;
    return time * lineFrequency / 1000;
}
