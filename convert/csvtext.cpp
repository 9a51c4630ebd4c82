// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csvtext.h"

#include "fields.h"
#include "numbertext.h"

#include <cmath>

namespace convert {

namespace {

std::string cell(std::string_view text)
{
    if (text.find_first_of("\",\r\n") == std::string_view::npos)
        return std::string(text);
    std::string quoted = "\"";
    for (const char letter : text)
        quoted.append(letter == '"' ? 2 : 1, letter);
    return quoted += '"';
}

std::string column(const std::string &name, const std::string &number, const std::string &unit)
{
    const std::string_view shownName = trimmed(name).empty() ? number : trimmed(name);
    const std::string_view shownUnit = trimmed(unit);
    if (shownUnit.empty())
        return ',' + cell(shownName);
    return ',' + cell(std::string(shownName) + " (" + std::string(shownUnit) + ')');
}

} // namespace

CsvRows::CsvRows(const Configuration &configuration) : m_states(configuration.states.size())
{
    for (const AnalogDefinition &channel : configuration.analogs) {
        const bool isNone = channel.a.value == 1 && channel.b.value == 0;
        m_scales.push_back({channel.a.value, channel.b.value, isNone});
    }
}

void CsvRows::write(
    TextOutput &output, const SampleBlock &block, std::size_t begin, std::size_t end)
{
    const std::size_t rowBytes = (1 + m_scales.size()) * mostNumberBytes + stateBytes(m_states);
    const std::size_t words = wordsOf(m_states);
    std::visit(
        [&](const auto &values) {
            for (std::size_t row = begin; row < end; ++row) {
                char *at = output.room(rowBytes);
                at = writeMilliseconds(at, block.times[row]);
                *at++ = ',';
                at = writeValues(at, values.data() + row * m_scales.size());
                at = writeStates(at, block.words.data() + row * words, m_states);
                output.used(endRow(at));
            }
        },
        block.values);
}

template <typename Value> char *CsvRows::writeValues(char *at, const Value *values) const
{
    for (std::size_t k = 0; k < m_scales.size(); ++k) {
        const Scale &scale = m_scales[k];
        const Value x = values[k];
        const double scaled = scale.a * static_cast<double>(x) + scale.b;
        if (!isMissing(x) && std::isfinite(scaled))
            at = scale.isNone ? writeNumber(at, x) : writeNumber(at, scaled);
        *at++ = ',';
    }
    return at;
}

std::string csvHeader(const Configuration &configuration)
{
    std::string text = "Time (ms)";
    for (const AnalogDefinition &channel : configuration.analogs)
        text += column(channel.name, channel.number, channel.unit);
    for (const StatusDefinition &channel : configuration.states)
        text += column(channel.name, channel.number, {});
    return text += "\r\n";
}

} // namespace convert
