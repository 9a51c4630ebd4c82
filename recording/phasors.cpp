// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "phasors.h"

#include "analogchannel.h"
#include "numbers.h"

#include <QThread>

#include <fftw3.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace {

constexpr int samplesBetweenLooks = 256; // whether the program ends
constexpr int largestCycle = 1 << 20; // samples
// A longer cycle than this, of which the recording does not hold one, has no fundamental to speak
// of, and a transform for every sample of it would cost out of all proportion.
constexpr int largestUnfilledCycle = 1 << 12;

bool isMeaningful(int samplesPerCycle, int samples)
{
    return samplesPerCycle >= 2 && samplesPerCycle <= largestCycle
        && samplesPerCycle <= std::max(samples, largestUnfilledCycle);
}

struct FreeComplex {
    void operator()(fftw_complex *array) const { fftw_free(array); }
};
using ComplexArray = std::unique_ptr<fftw_complex, FreeComplex>;

ComplexArray complexArray(int size)
{
    return ComplexArray(
        static_cast<fftw_complex *>(fftw_malloc(sizeof(fftw_complex) * static_cast<size_t>(size))));
}

class Plan {
public:
    Plan(int size, fftw_complex *in, fftw_complex *out)
        : m_plan(fftw_plan_dft_1d(size, in, out, FFTW_FORWARD, FFTW_ESTIMATE))
    {
    }
    ~Plan() { fftw_destroy_plan(m_plan); }
    Plan(const Plan &) = delete;
    Plan &operator=(const Plan &) = delete;
    void execute() const { fftw_execute(m_plan); }

private:
    fftw_plan m_plan;
};

// The scaled samples without the offset, between the zeros that stand in beyond both ends: the
// window of a sample, 2 * half values, begins at the sample's own index.
std::vector<double> paddedWave(const AnalogChannel &channel, int half)
{
    const auto before = static_cast<size_t>(half - 1);
    const auto after = static_cast<size_t>(half);
    std::vector<double> wave(before + static_cast<size_t>(channel.rawValues.size()) + after);
    std::transform(channel.rawValues.cbegin(), channel.rawValues.cend(), wave.begin() + half - 1,
        [a = static_cast<double>(channel.a)](float x) { return static_cast<double>(x) * a; });
    return wave;
}

} // namespace

void computePhasors(AnalogChannel &channel, int samplesPerCycle)
{
    const int samples = channel.rawValues.size();
    const int size = samplesPerCycle;
    channel.fftAngles.reserve(channel.fftAngles.size() + samples);
    channel.fftMagnitudes.reserve(channel.fftMagnitudes.size() + samples);
    const auto append = [&](double angle, double magnitude) {
        channel.fftAngles.append(narrowed(angle));
        channel.fftMagnitudes.append(narrowed(magnitude));
    };
    const auto isZero = [](float value) { return value == 0.0F; };
    if (!isMeaningful(size, samples)
        || std::all_of(channel.rawValues.cbegin(), channel.rawValues.cend(), isZero)) {
        for (int i = 0; i < samples; ++i)
            append(0, 0);
        return;
    }

    // While a plan of this size lives, the library keeps its tables for all others.
    const ComplexArray keptIn = complexArray(size);
    const ComplexArray keptOut = complexArray(size);
    const Plan kept(size, keptIn.get(), keptOut.get());
    const int half = size / 2;
    const std::vector<double> wave = paddedWave(channel, half);
    for (int sample = 0; sample < samples; ++sample) {
        if (sample % samplesBetweenLooks == 0
            && QThread::currentThread()->isInterruptionRequested())
            return;
        const ComplexArray in = complexArray(size);
        const ComplexArray out = complexArray(size);
        const Plan plan(size, in.get(), out.get());
        const double *const window = wave.data() + sample;
        for (int i = 0; i < size; ++i) {
            const bool isInside = i < 2 * half; // not the last value of an odd cycle
            in.get()[i][0] = isInside ? window[i] : 0;
            in.get()[i][1] = 0;
        }
        plan.execute();
        const double real = out.get()[1][0];
        const double imaginary = out.get()[1][1];
        const double magnitude
            = std::sqrt(real * real + imaginary * imaginary) / half / 1.4142135623730951;
        const double angle = std::atan2(imaginary, real);
        channel.maxMagnitude = std::max(channel.maxMagnitude, narrowed(magnitude));
        channel.maxReal
            = std::max(channel.maxReal, std::abs(narrowed(magnitude * std::cos(angle))));
        channel.maxImaginary
            = std::max(channel.maxImaginary, std::abs(narrowed(magnitude * std::sin(angle))));
        append(angle, magnitude);
    }
}
