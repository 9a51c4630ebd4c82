// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordingpair.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <fstream>
#include <vector>

namespace {

constexpr std::int64_t longest = 9999; // seconds, which ten digits of microseconds hold
constexpr std::size_t blockSize = 1 << 20; // bytes written at once
constexpr int largestCount = 32767;
constexpr char lineEnd[] = "\r\n";

constexpr std::array<const char *, FeederFault::channelCount> analogNames
    = {"IL1", "IL2", "IL3", "I0", "UL1", "UL2", "UL3", "U0"};
constexpr std::array<const char *, 4> phaseNames = {"L1", "L2", "L3", "N"};

std::int64_t faultTime(const RecordingOptions &options) // ms
{
    const std::int64_t eighth = options.samples * 125 / options.rate;
    return options.faultAt.value_or(std::min<std::int64_t>(200, eighth));
}

// The first sample that is not before a time in ms.
std::int64_t sampleAt(std::int64_t time, const RecordingOptions &options)
{
    return (time * options.rate + 999) / 1000;
}

// Equally distributed from -limit to limit.
class Noise {
public:
    Noise(std::int64_t seed, std::int64_t limit)
        : m_state(static_cast<std::uint64_t>(seed) + 0x9E3779B97F4A7C15U), m_limit(limit)
    {
    }

    int next()
    {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 7;
        m_state ^= m_state << 17;
        const auto width = static_cast<std::uint64_t>(2 * m_limit + 1);
        return static_cast<int>(static_cast<std::int64_t>((m_state >> 32) * width >> 32) - m_limit);
    }

private:
    std::uint64_t m_state; // never 0
    std::int64_t m_limit;
};

// The digital channels at a sample: the relay's signals, then square waves, each slower than the
// one before.
class Digitals {
public:
    explicit Digitals(const RecordingOptions &options) : m_halfPeriod(sampleAt(10, options))
    {
        const std::int64_t fault = faultTime(options);
        for (const RelaySignal &signal : relaySignals)
            m_changes.push_back({sampleAt(fault + signal.from, options),
                options.fault.pattern == 0 ? 0 : sampleAt(fault + signal.to, options)});
    }

    bool state(std::size_t channel, std::int64_t sample) const
    {
        if (channel >= m_changes.size())
            return sample / (m_halfPeriod * static_cast<std::int64_t>(channel + 1)) % 2 == 1;
        const Change &change = m_changes[channel];
        return relaySignals[channel].normal != (sample >= change.from && sample < change.to);
    }

private:
    struct Change { // sample numbers
        std::int64_t from;
        std::int64_t to;
    };

    std::vector<Change> m_changes;
    std::int64_t m_halfPeriod;
};

std::string timeStamp(std::int64_t afterStart) // ms
{
    const std::int64_t time = ((9 * 60 + 26) * 60 + 53) * 1000 + 500 + afterStart;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "14/03/2024,%02d:%02d:%02d.%03d000",
        static_cast<int>(time / 3600000), static_cast<int>(time / 60000 % 60),
        static_cast<int>(time / 1000 % 60), static_cast<int>(time % 1000));
    return text.data();
}

// Clause 5: station, counts, channels, frequency, rate, first sample, trigger, form, multiplier.
void writeConfiguration(std::ostream &file, const RecordingOptions &options)
{
    file << options.station << ',' << options.device << ",1999" << lineEnd;
    file << options.analogs + options.digitals << ',' << options.analogs << "A," << options.digitals
         << 'D' << lineEnd;
    for (std::int64_t k = 0; k < options.analogs; ++k) {
        const auto quantity = static_cast<std::size_t>(k % FeederFault::channelCount);
        const std::int64_t core = k / FeederFault::channelCount + 1;
        const bool isCurrent = quantity < phaseNames.size();
        file << k + 1 << ',' << analogNames[quantity];
        if (core > 1)
            file << ' ' << core;
        file << ',' << phaseNames[quantity % phaseNames.size()] << ','
             << (isCurrent ? "CT core " : "VT winding ") << core
             << (isCurrent ? ",A,0.0025,0,0," : ",V,0.005,0,0,") << -largestCount << ','
             << largestCount << (isCurrent ? ",400,5,S" : ",20000,100,S") << lineEnd;
    }
    for (std::int64_t k = 0; k < options.digitals; ++k) {
        const auto channel = static_cast<std::size_t>(k);
        file << k + 1 << ',';
        if (channel < relaySignals.size())
            file << relaySignals[channel].name << ",,," << relaySignals[channel].normal;
        else
            file << "Input " << k + 1 << ",,,0";
        file << lineEnd;
    }
    file << options.frequency << lineEnd << 1 << lineEnd;
    file << options.rate << ',' << options.samples << lineEnd;
    file << timeStamp(0) << lineEnd << timeStamp(faultTime(options)) << lineEnd;
    file << "ASCII" << lineEnd << 1 << lineEnd;
}

void append(std::string &block, std::int64_t number)
{
    std::array<char, 20> digits{};
    block.append(digits.data(), std::to_chars(digits.begin(), digits.end(), number).ptr);
}

// Clause 6.4: number, microseconds, analog values, digital states.
void writeData(std::ostream &file, const RecordingOptions &options)
{
    FeederFault feeder(
        options.fault, options.rate, options.frequency, sampleAt(faultTime(options), options));
    const Digitals digitals(options);
    Noise noise(options.seed, options.noise);
    std::string block;
    for (std::int64_t n = 0; n < options.samples && file; ++n) {
        append(block, n + 1);
        block += ',';
        append(block, (n * 1000000 + options.rate / 2) / options.rate);
        const FeederFault::Sample sample = feeder.next();
        for (std::int64_t k = 0; k < options.analogs; ++k) {
            const int value = sample[static_cast<std::size_t>(k) % sample.size()] + noise.next();
            block += ',';
            append(block, std::clamp(value, -largestCount, largestCount));
        }
        for (std::int64_t k = 0; k < options.digitals; ++k)
            block += digitals.state(static_cast<std::size_t>(k), n) ? ",1" : ",0";
        block += lineEnd;
        if (block.size() >= blockSize) {
            file << block;
            block.clear();
        }
    }
    file << block;
}

using Writer = void (*)(std::ostream &, const RecordingOptions &);

std::string writeFile(
    std::filesystem::path path, const char *ending, const RecordingOptions &options, Writer write)
{
    path += ending;
    std::ofstream file(path, std::ios::binary);
    write(file, options);
    file.close();
    return file ? std::string() : "cannot write " + path.string();
}

} // namespace

std::string writeRecordingPair(const RecordingOptions &options, const std::filesystem::path &base)
{
    if (options.analogs + options.digitals == 0)
        return "a recording needs a channel";
    if (options.samples > longest * options.rate)
        return "a recording lasts 9999 s at the most";
    if (sampleAt(faultTime(options), options) >= options.samples)
        return "the fault lies behind the end of the recording";
    const std::string error = writeFile(base, ".cfg", options, writeConfiguration);
    return error.empty() ? writeFile(base, ".dat", options, writeData) : error;
}
