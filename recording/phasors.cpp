// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "phasors.h"

#include "analogchannel.h"
#include "interruption.h"
#include "numbers.h"

#include <fftw3.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <memory>
#include <new>
#include <optional>
#include <vector>

namespace {

using Complex = std::complex<double>;

constexpr int largestCycle = 1 << 20; // samples
constexpr int largestOrdinaryCycle = 128; // samples
// Values that transforms may take up for each value that is not 0.
constexpr qint64 transformedPerValue = 512;
// Of work, see interruption.h.
constexpr int stepsOfASample = 64;
constexpr int stepsOfATransformedValue = 32; // with the making of the plan

struct FreeComplex {
    void operator()(fftw_complex *array) const { fftw_free(array); }
};
using ComplexArray = std::unique_ptr<fftw_complex, FreeComplex>;

ComplexArray complexArray(int size)
{
    ComplexArray array(
        static_cast<fftw_complex *>(fftw_malloc(sizeof(fftw_complex) * static_cast<size_t>(size))));
    if (!array)
        throw std::bad_alloc();
    return array;
}

// The library ends the program where it finds no memory for a plan. So much it may need.
void requireMemoryForPlan(int size)
{
    complexArray(8 * size + (1 << 16));
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

// Transforms of the cycle around a sample, of which they give the fundamental.
class Transforms {
public:
    Transforms(const AnalogChannel &channel, int size)
        : m_size(size), m_wave(paddedWave(channel, size / 2))
    {
        requireMemoryForPlan(size);
        m_keptIn = complexArray(size);
        m_keptOut = complexArray(size);
        m_kept.emplace(size, m_keptIn.get(), m_keptOut.get());
    }

    Complex around(int sample) const
    {
        const ComplexArray in = complexArray(m_size);
        const ComplexArray out = complexArray(m_size);
        const Plan plan(m_size, in.get(), out.get());
        const double *const window = m_wave.data() + sample;
        const int values = m_size / 2 * 2; // not the last one of an odd cycle
        for (int i = 0; i < m_size; ++i) {
            in.get()[i][0] = i < values ? window[i] : 0;
            in.get()[i][1] = 0;
        }
        plan.execute();
        return {out.get()[1][0], out.get()[1][1]};
    }

private:
    // The scaled samples without the offset, between the zeros that stand in beyond both ends: the
    // window of a sample, 2 * half values, begins at the sample's own index.
    static std::vector<double> paddedWave(const AnalogChannel &channel, int half)
    {
        const auto before = static_cast<size_t>(half - 1);
        const auto after = static_cast<size_t>(half);
        std::vector<double> wave(before + static_cast<size_t>(channel.rawValues.size()) + after);
        std::transform(channel.rawValues.cbegin(), channel.rawValues.cend(),
            wave.begin() + half - 1,
            [a = static_cast<double>(channel.a)](float x) { return static_cast<double>(x) * a; });
        return wave;
    }

    const int m_size;
    const std::vector<double> m_wave;
    // While a plan of this size lives, the library keeps its tables for all others.
    ComplexArray m_keptIn;
    ComplexArray m_keptOut;
    std::optional<Plan> m_kept;
};

// Sums of the cycle around a sample, from its values that are not 0 alone: the fundamental as a
// transform gives it.
class Sums {
public:
    Sums(const AnalogChannel &channel, int size)
        : m_channel(channel),
          m_size(size),
          m_half(size / 2),
          m_firstTurn(std::max(m_half - channel.rawValues.size(), 0))
    {
        const QVector<float> &values = channel.rawValues;
        m_places.reserve(static_cast<size_t>(values.size() - values.count(0.0F)));
        for (int i = 0; i < values.size(); ++i) {
            if (values.at(i) != 0.0F)
                m_places.push_back(i);
        }
    }

    // Of the channel, those that are not 0.
    qint64 valueCount() const { return static_cast<qint64>(m_places.size()); }

    // Goes on to the cycle of a later sample and gives the number of its values that are not 0.
    int moveTo(int sample)
    {
        m_begin = sample - m_half + 1;
        while (m_first < m_places.size() && m_places[m_first] < m_begin)
            ++m_first;
        while (m_last < m_places.size() && m_places[m_last] < m_begin + 2 * m_half)
            ++m_last;
        return static_cast<int>(m_last - m_first);
    }

    // Of the cycle that it moved to.
    Complex sum()
    {
        if (m_turns.empty())
            makeTurns();
        const auto a = static_cast<double>(m_channel.a);
        Complex sum;
        for (size_t k = m_first; k < m_last; ++k) {
            const double x = static_cast<double>(m_channel.rawValues.at(m_places[k])) * a;
            sum += x * m_turns[static_cast<size_t>(m_places[k] - m_begin - m_firstTurn)];
        }
        return sum;
    }

private:
    // For the places that a sample of the recording can have in a cycle around another one.
    void makeTurns()
    {
        constexpr double turn = 6.283185307179586;
        constexpr qint64 stepsOfATurn = 4;
        const int end = std::min(2 * m_half, m_half + m_channel.rawValues.size());
        countWork(stepsOfATurn * (end - m_firstTurn));
        m_turns.reserve(static_cast<size_t>(end - m_firstTurn));
        for (int i = m_firstTurn; i < end; ++i)
            m_turns.push_back(std::polar(1.0, -turn * i / m_size));
    }

    const AnalogChannel &m_channel;
    const int m_size;
    const int m_half;
    const int m_firstTurn;
    int m_begin = 0; // place of the first value of the cycle
    std::vector<int> m_places; // of the values that are not 0
    size_t m_first = 0; // of these the ones in the cycle
    size_t m_last = 0; // behind them
    std::vector<Complex> m_turns;
};

// Whether a cycle is worth a transform, as an ordinary one always is. The cost goes by the size:
// for a long cycle beyond the recording, or of zeros mostly, it would be out of all proportion to
// what was read.
bool isWorthTransform(int size, int samples, int valuesInCycle)
{
    return size <= largestOrdinaryCycle || (samples >= size && valuesInCycle > size / 2);
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
    countWork(samples);
    if (size < 2 || size > largestCycle) {
        for (int i = 0; i < samples; ++i)
            append(0, 0);
        return;
    }

    const int half = size / 2;
    Sums sums(channel, size);
    std::optional<Transforms> transforms;
    qint64 transformable = transformedPerValue * sums.valueCount();
    for (int sample = 0; sample < samples; ++sample) {
        const int values = sums.moveTo(sample);
        if (values == 0) {
            append(0, 0);
            continue;
        }
        const bool isTransformed = size <= transformable && isWorthTransform(size, samples, values);
        if (isTransformed)
            transformable -= size;
        countWork(stepsOfASample + (isTransformed ? stepsOfATransformedValue * size : values));
        if (isTransformed && !transforms)
            transforms.emplace(channel, size);
        const Complex fundamental = isTransformed ? transforms->around(sample) : sums.sum();
        const double real = fundamental.real();
        const double imaginary = fundamental.imag();
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
