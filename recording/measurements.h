// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVector>

#include <array>
#include <complex>
#include <optional>

class AnalogChannel;
struct Phasor;

// What is worked out at a sample beyond its value and its phasor. Samples count from 0; N is the
// number of samples in a cycle. Results are in the unit of the values, and there is none where the
// cycle is not wholly within the series.

// The true RMS over the cycle that ends with a sample, with harmonics and DC: the square root of
// the mean of the N squares.
std::optional<double> trueRms(const QVector<float> &values, int sample, int samplesPerCycle);

// The largest absolute value in that cycle.
std::optional<double> cyclePeak(const QVector<float> &values, int sample, int samplesPerCycle);

// A phasor as a complex RMS value, multiplied by a factor, which may be negative.
std::complex<double> complexRms(const Phasor &phasor, double factor);

// An angle in degrees as that of the same direction above -180 and up to 180.
double wrappedDegrees(double degrees);

// By how many degrees a phasor leads a reference, above -180 and up to 180; nothing where one of
// them is 0 or not finite, which has no direction.
std::optional<double> leadDegrees(std::complex<double> phasor, std::complex<double> reference);

// The symmetrical components of the phasors of three phases, by the turn a of 120 degrees:
// positive (p1 + a p2 + a^2 p3) / 3, negative (p1 + a^2 p2 + a p3) / 3, zero (p1 + p2 + p3) / 3.
// Positive and negative stand at the first phase.
struct SequenceComponents {
    std::complex<double> positive;
    std::complex<double> negative;
    std::complex<double> zero;
};
SequenceComponents sequenceComponents(const std::array<std::complex<double>, 3> &phases);

// The RMS of the harmonics 1 to 15, the first one at 0.
constexpr int harmonicCount = 15;
using Harmonics = std::array<std::optional<double>, harmonicCount>;

// Those of the cycle around a sample. It begins N / 2 - 1 samples (whole number division) before
// the sample, as that of the phasor does. The first one is the magnitude of the channel's phasor.
// Harmonic k of the others is sqrt(2) / N times the magnitude of the sum of x(i) exp(-j 2 pi k i /
// N) over the samples i of the cycle; 0 where the samples are not precise enough to show it. There
// is none from N / 2 on, which sampling cannot tell from lower ones.
Harmonics harmonicsAround(const AnalogChannel &channel, int sample, int samplesPerCycle);

// A time (ms) in cycles of the line frequency (Hz); nothing where that is not positive.
std::optional<double> inCycles(double time, double lineFrequency);
