// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pairtext.h"

#include <initializer_list>
#include <string_view>

namespace convert {

namespace {

constexpr double mark = missingMark(Revision::Of1999);
constexpr std::string_view markField = "99999,";

// Whether no value of a channel can be taken for the mark of a missing one.
bool canMark(const Configuration &configuration, const AnalogDefinition &channel)
{
    const bool wasMark
        = configuration.form == DataForm::Ascii && missingMark(configuration.revision) == mark;
    return (configuration.form == DataForm::Binary || wasMark) && isBeyondRange(channel, mark);
}

std::string line(std::initializer_list<std::string_view> fields)
{
    std::string text;
    for (const std::string_view &field : fields) {
        if (&field != fields.begin())
            text += ',';
        text += field;
    }
    return text += "\r\n";
}

std::string analogLine(const AnalogDefinition &channel, bool hadMark)
{
    // The range says then that this value is one.
    const bool isBelow = hadMark && mark < channel.least.value;
    const bool isAbove = hadMark && mark > channel.most.value;
    const std::string least = isBelow ? numberText(mark) : channel.least.text;
    const std::string most = isAbove ? numberText(mark) : channel.most.text;
    return line({channel.number, channel.name, channel.phase, channel.circuit, channel.unit,
        channel.a.text, channel.b.text, channel.skew, least, most, channel.primary.text,
        channel.secondary.text, channel.side == Side::Secondary ? "S" : "P"});
}

} // namespace

PairRows::PairRows(const Configuration &configuration, Origin origin)
    : m_states(configuration.states.size()), m_origin(origin), m_counts(CountTexts::instance())
{
    for (const AnalogDefinition &channel : configuration.analogs)
        m_channels.push_back({canMark(configuration, channel)});
}

void PairRows::write(
    TextOutput &output, const SampleBlock &block, std::size_t begin, std::size_t end)
{
    const std::size_t rowBytes = (2 + m_channels.size()) * mostNumberBytes + stateBytes(m_states);
    const std::size_t words = wordsOf(m_states);
    if (m_origin == Origin::FirstSample && !m_zero)
        m_zero = block.times[begin];
    const std::int64_t zero = origin();
    std::visit(
        [&](const auto &values) {
            for (std::size_t row = begin; row < end; ++row) {
                char *at = output.room(rowBytes);
                at = writeNumber(at, ++m_written);
                *at++ = ',';
                at = writeMicroseconds(at, block.times[row] - zero);
                *at++ = ',';
                at = writeValues(at, values.data() + row * m_channels.size());
                at = writeStates(at, block.words.data() + row * words, m_states);
                output.used(endRow(at));
            }
        },
        block.values);
}

template <typename Value> char *PairRows::writeValues(char *at, const Value *values)
{
    for (std::size_t k = 0; k < m_channels.size(); ++k) {
        if constexpr (std::is_same_v<Value, std::int32_t>) {
            if (CountTexts::has(values[k])) {
                at = m_counts.write(at, values[k]);
                continue;
            }
        }
        at = writeValue(at, m_channels[k], values[k]);
    }
    return at;
}

template <typename Value> char *PairRows::writeValue(char *at, Channel &channel, Value value)
{
    if (isMissing(value)) {
        const std::string_view field = channel.marksMissing ? markField : ",";
        return at + field.copy(at, field.size());
    }
    channel.hadMark = channel.hadMark || value == static_cast<Value>(mark);
    at = writeNumber(at, value);
    *at = ',';
    return at + 1;
}

std::string pairConfiguration(
    const Configuration &configuration, const std::vector<WrittenRate> &rates, const PairRows &rows)
{
    const std::size_t analogs = configuration.analogs.size();
    const std::size_t states = configuration.states.size();
    std::string text = line({configuration.station, configuration.device, "1999"});
    text += line({std::to_string(analogs + states), std::to_string(analogs) + 'A',
        std::to_string(states) + 'D'});
    for (std::size_t k = 0; k < analogs; ++k)
        text += analogLine(configuration.analogs[k], rows.hadMark(k));
    for (const StatusDefinition &channel : configuration.states)
        text += line(
            {channel.number, channel.name, channel.phase, channel.circuit, channel.normalState});
    text += line({configuration.frequency});
    text += line({std::to_string(rates.size())});
    for (const WrittenRate &rate : rates)
        text += line({rate.perSecond, std::to_string(rate.lastSample)});
    text += line({configuration.start.plus(rows.origin()).text()});
    text += line({configuration.trigger.text()});
    text += line({"ASCII"});
    text += line({"1"});
    return text;
}

} // namespace convert
