#include "phasors.h"

#include "analogchannel.h"
#include "numbers.h"

#include <fftw3.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

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
    const double a = static_cast<double>(channel.a);
    for (int sample = 0; sample < samples; ++sample) {
        const ComplexArray in = complexArray(size);
        const ComplexArray out = complexArray(size);
        const Plan plan(size, in.get(), out.get());
        const int first = sample - half + 1;
        for (int i = 0; i < size; ++i) {
            const int j = first + i;
            const bool isInside = j >= 0 && j < samples && i < 2 * half;
            in.get()[i][0] = isInside ? static_cast<double>(channel.rawValues.at(j)) * a : 0;
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
