// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The phasors of 40,000 samples of eight channels.

#include "phasors.h"

#include "analogchannel.h"
#include "figures.h"

#include <fftw3.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int channels = 8; // one a round
constexpr int samples = 40000;

void computeChannel(const QVector<float> &wave, int samplesPerCycle)
{
    AnalogChannel channel;
    channel.a = 0.5F;
    channel.rawValues = wave;
    computePhasors(channel, samplesPerCycle);
}

// What the library takes for as many transforms, each with arrays and a plan of its own, of the
// same input every time.
void transformChannel(int samplesPerCycle)
{
    const size_t size = sizeof(fftw_complex) * static_cast<size_t>(samplesPerCycle);
    for (int i = 0; i < samples; ++i) {
        auto *in = static_cast<fftw_complex *>(fftw_malloc(size));
        auto *out = static_cast<fftw_complex *>(fftw_malloc(size));
        const fftw_plan plan
            = fftw_plan_dft_1d(samplesPerCycle, in, out, FFTW_FORWARD, FFTW_ESTIMATE);
        // What lies in fresh memory may be denormal, which would hold the processor up.
        std::fill(in[0], in[samplesPerCycle], 1.0);
        fftw_execute(plan);
        fftw_destroy_plan(plan);
        fftw_free(in);
        fftw_free(out);
    }
}

} // namespace

Ratio phasorsAgainstTransforms(int samplesPerCycle)
{
    constexpr double turn = 6.283185307179586;
    QVector<float> wave(samples);
    for (int i = 0; i < samples; ++i)
        wave[i] = std::round(30000 * std::sin(static_cast<float>(turn * i / samplesPerCycle)));
    return timesInTurn(
        channels, [&] { computeChannel(wave, samplesPerCycle); },
        [&] { transformChannel(samplesPerCycle); });
}
