// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "feederfault.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr std::int64_t one = 65536; // a count
constexpr std::size_t phases = 3;

// Of the offsets: the loop of source, line and fault, and the voltage transformers.
constexpr std::int64_t currentTimeConstant = 8000; // microseconds
constexpr std::int64_t voltageTimeConstant = 1000;
constexpr std::int64_t wholeDecay = 1 << 24;

constexpr int contactsPart = 205; // ms after the fault
constexpr int contactsMeet = 750;

// The sine of an angle, 2^32 being a turn, times 2^30: Taylor's series in the first quarter.
std::int64_t sine(std::uint32_t angle)
{
    constexpr std::uint32_t quarter = 1U << 30;
    constexpr std::array<std::uint64_t, 5> coefficients // (pi / 2)^n / n! times 2^30
        = {172272, 5026995, 85569306, 693598668, 1686629713};

    const std::uint32_t quadrant = angle / quarter;
    const std::uint32_t within = angle % quarter;
    const std::uint64_t x = quadrant % 2 == 0 ? within : quarter - within;
    const std::uint64_t square = x * x >> 30;
    std::uint64_t sum = 3864;
    for (const std::uint64_t coefficient : coefficients)
        sum = coefficient - (square * sum >> 30);
    const auto value = static_cast<std::int64_t>(x * sum >> 30);
    return quadrant < 2 ? value : -value;
}

std::uint32_t fractionOfTurn(std::int64_t part, std::int64_t turn)
{
    return static_cast<std::uint32_t>((part << 32) / turn);
}

int counts(std::int64_t value)
{
    return static_cast<int>((value + (value < 0 ? -one / 2 : one / 2)) / one);
}

} // namespace

const std::array<Fault, 12> faults
    = {{{"none", 0, 0}, {"AG", 1, 0}, {"BG", 1, 1}, {"CG", 1, 2}, {"AB", 2, 2}, {"BC", 2, 0},
        {"CA", 2, 1}, {"ABG", 3, 2}, {"BCG", 3, 0}, {"CAG", 3, 1}, {"ABC", 4, 0}, {"ABCG", 4, 0}}};

const std::array<RelaySignal, 8> relaySignals
    = {{{"Pick-up", false, 22, 232}, {"Trip", false, 150, 250}, {"CB open", false, 215, 760},
        {"CB closed", true, contactsPart, contactsMeet}, {"Reclose start", false, 152, 252},
        {"Reclosing", false, 152, 850}, {"Close pulse", false, 700, 800},
        {"Reclosed", false, 850, 1150}}};

// The symmetrical components of a 20 kV network at the busbar of a feeder. Source 0.2 + j2 ohm and
// 11 ohm between neutral and earth; fault at the end of a line of 1.5 + j1.75 ohm, zero sequence
// 2.25 + j7.5 ohm; load 150 A lagging 18 degrees, which flows on through the fault.
const std::array<FeederFault::State, 5> FeederFault::states = {{
    {{{150, -1800}, {150, -13800}, {150, 10200}, {11547, 0}, {11547, -12000}, {11547, 12000}}},
    {{{949, -2361}, {150, -13800}, {150, 10200}, {3591, 3902}, {15118, -15515}, {19350, 13515}}},
    {{{150, -1800}, {2510, -15544}, {2401, 2698}, {11547, 0}, {9061, -14287}, {6971, 12832}}},
    {{{150, -1800}, {2677, -15870}, {2250, 3102}, {16247, -544}, {7028, -11010}, {4366, 8359}}},
    {{{2835, -6426}, {2835, 17574}, {2835, 5574}, {6534, -1486}, {6534, -13486}, {6534, 10514}}},
}};

std::int64_t FeederFault::Wave::steady(std::uint32_t now) const
{
    constexpr std::uint32_t quarter = 1U << 30;
    return peak * sine(now + angle + quarter) / quarter;
}

FeederFault::FeederFault(
    const Fault &fault, std::int64_t rate, std::int64_t frequency, std::int64_t faultSample)
    : m_fault(fault),
      m_rate(rate),
      m_frequency(frequency),
      m_strikes(faultSample),
      m_opens(faultSample + contactsPart * rate / 1000),
      m_closes(faultSample + contactsMeet * rate / 1000)
{
    if (fault.pattern == 0)
        m_strikes = m_opens = m_closes = std::numeric_limits<std::int64_t>::max();
    enter(faults.front(), 0, m_waves.size(), 0);
    for (std::size_t k = 0; k < m_waves.size(); ++k) {
        const std::int64_t timeConstant = k < phases ? currentTimeConstant : voltageTimeConstant;
        m_waves[k].decay = std::min(wholeDecay, wholeDecay * 1000000 / (timeConstant * rate));
        m_waves[k].offset = 0;
    }
}

// Gives waves the phasors of a fault. An offset takes up the difference, so that nothing jumps.
void FeederFault::enter(const Fault &fault, std::size_t begin, std::size_t end, std::uint32_t now)
{
    constexpr std::int64_t rootOfTwo = 92682; // times 65536
    for (std::size_t k = begin; k < end; ++k) {
        const auto turn = static_cast<std::size_t>(fault.turn);
        const std::size_t first = k - k % phases;
        const State &state = states[static_cast<std::size_t>(fault.pattern)];
        const Phasor &phasor = state[first + (k + phases - turn) % phases];
        const int angle = (phasor.angle + 72000 - 12000 * fault.turn) % 36000;
        Wave &wave = m_waves[k];
        wave.offset += wave.steady(now);
        wave.peak = phasor.rms * rootOfTwo * (k < phases ? countsPerAmpere : countsPerVolt);
        wave.angle = fractionOfTurn(angle, 36000);
        wave.offset -= wave.steady(now);
    }
}

// The current of a phase ends where it passes through zero; the last one takes the fault with it.
void FeederFault::interrupt(std::size_t phase, std::uint32_t now)
{
    m_waves[phase].peak = 0;
    m_waves[phase].offset = 0;
    m_values[phase] = 0;
    if (--m_conducting == 0)
        enter(faults.front(), phases, m_waves.size(), now);
}

FeederFault::Sample FeederFault::next()
{
    const std::uint32_t now = fractionOfTurn(m_phase, m_rate);
    if (m_sample == m_strikes)
        enter(m_fault, 0, m_waves.size(), now);
    if (m_sample == m_closes)
        enter(faults.front(), 0, m_waves.size(), now);

    const bool opening = m_sample >= m_opens && m_sample < m_closes;
    for (std::size_t k = 0; k < m_waves.size(); ++k) {
        Wave &wave = m_waves[k];
        const std::int64_t before = std::exchange(m_values[k], wave.steady(now) + wave.offset);
        if (opening && k < phases && wave.peak > 0 && (before < 0) != (m_values[k] < 0))
            interrupt(k, now);
        wave.offset -= wave.offset * wave.decay / wholeDecay;
    }
    m_phase = (m_phase + m_frequency) % m_rate;
    ++m_sample;

    const std::int64_t current = m_values[0] + m_values[1] + m_values[2];
    const std::int64_t voltage = m_values[3] + m_values[4] + m_values[5];
    return {counts(m_values[0]), counts(m_values[1]), counts(m_values[2]), counts(current),
        counts(m_values[3]), counts(m_values[4]), counts(m_values[5]), counts(voltage / 3)};
}
