// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string_view>

// The phases are A, B, C (IL1, IL2, IL3); G stands for earth.
struct Fault {
    std::string_view name;
    int pattern; // row of the table of phasors
    int turn; // phases by which that row is turned on, 0 to 2
};

extern const std::array<Fault, 12> faults; // the first is none

// A state of the relay or the breaker; times in ms from the fault.
struct RelaySignal {
    std::string_view name;
    bool normal; // before from and after to
    int from;
    int to;
};

extern const std::array<RelaySignal, 8> relaySignals;

// A feeder of a 20 kV network carries load, is struck by a fault, tripped and reclosed: the
// currents and voltages that its relay samples. In integers throughout, so that every machine makes
// the same.
class FeederFault {
public:
    static constexpr int channelCount = 8;
    using Sample = std::array<int, channelCount>; // IL1, IL2, IL3, I0, UL1, UL2, UL3, U0

    // Counts of the samples per primary A and V.
    static constexpr int countsPerAmpere = 5;
    static constexpr int countsPerVolt = 1;

    // Rate and frequency in Hz, 1 to 1,000,000. Sample numbers begin at 0.
    FeederFault(
        const Fault &fault, std::int64_t rate, std::int64_t frequency, std::int64_t faultSample);

    // The next sample: I0 is the sum of the phase currents, U0 a third of that of the voltages.
    Sample next();

private:
    struct Phasor {
        int rms; // primary A or V
        int angle; // hundredths of a degree, against UL1 under load
    };
    using State = std::array<Phasor, 6>; // IL1, IL2, IL3, UL1, UL2, UL3

    // A cosine and what is left of the jump that its last change would have been. 65536 a count.
    struct Wave {
        std::int64_t peak = 0;
        std::uint32_t angle = 0; // 2^32 is a turn
        std::int64_t offset = 0;
        std::int64_t decay = 0; // of the offset, each sample; 2^24 is all of it

        std::int64_t steady(std::uint32_t now) const;
    };

    static const std::array<State, 5> states;

    void enter(const Fault &fault, std::size_t begin, std::size_t end, std::uint32_t now);
    void interrupt(std::size_t phase, std::uint32_t now);

    Fault m_fault;
    std::int64_t m_rate;
    std::int64_t m_frequency;
    std::int64_t m_strikes; // sample numbers
    std::int64_t m_opens;
    std::int64_t m_closes;
    std::int64_t m_sample = 0;
    std::int64_t m_phase = 0; // m_rate is a turn
    int m_conducting = 3; // phases that the breaker has not interrupted
    std::array<Wave, 6> m_waves;
    std::array<std::int64_t, 6> m_values{}; // the latest, 65536 a count
};
