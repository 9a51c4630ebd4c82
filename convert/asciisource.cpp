// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "asciisource.h"

#include "fields.h"

#include <algorithm>

namespace convert {

namespace {

// Walks over the fields of a line, whose number the caller knows.
class FieldCursor {
public:
    explicit FieldCursor(std::string_view line) : m_rest(line) { }

    bool isAtEnd() const { return m_isAtEnd; }
    std::string_view rest() const { return m_rest; }

    std::string_view next()
    {
        const size_t comma = m_rest.find(',');
        const std::string_view field = m_rest.substr(0, comma);
        m_isAtEnd = comma == std::string_view::npos;
        m_rest.remove_prefix(m_isAtEnd ? m_rest.size() : comma + 1);
        return field;
    }

private:
    std::string_view m_rest;
    bool m_isAtEnd = false;
};

std::optional<double> toValue(std::string_view field)
{
    // Nearly all are short whole numbers.
    constexpr size_t mostLetters = 16;
    const size_t end = std::min(field.size(), mostLetters);
    const bool isNegative = !field.empty() && field.front() == '-';
    std::int64_t whole = 0;
    size_t at = isNegative ? 1 : 0;
    const size_t first = at;
    for (; at < end && field[at] >= '0' && field[at] <= '9'; ++at)
        whole = whole * 10 + (field[at] - '0');
    if (at == field.size() && at != first)
        return static_cast<double>(isNegative ? -whole : whole);
    return toNumber(field);
}

constexpr size_t blockValues = 1 << 14;

} // namespace

AsciiSource::AsciiSource(SectionReader &lines, const Configuration &configuration)
    : m_lines(lines),
      m_times(configuration),
      m_states(configuration.states.size()),
      m_blockRows(std::clamp<size_t>(
          blockValues / (configuration.analogs.size() + m_states), 1, blockValues))
{
    const double mark = missingMark(configuration.revision);
    for (const AnalogDefinition &channel : configuration.analogs)
        m_marks.push_back(isBeyondRange(channel, mark) ? mark : missing<double>);
}

bool AsciiSource::read(SampleBlock &block)
{
    block.firstIndex = m_read;
    block.times.clear();
    block.words.clear();
    block.values = std::vector<double>();
    for (std::string_view line; block.times.size() < m_blockRows && nextSampleLine(line); ++m_read)
        readLine(line, block);
    return !block.times.empty();
}

bool AsciiSource::nextSampleLine(std::string_view &line)
{
    if (!m_lines.nextLine(line))
        return false;
    if (!trimmed(line).empty())
        return true;
    while (m_lines.nextLine(line)) {
        if (!trimmed(line).empty())
            throw m_lines.file().failureOfLine("an empty line stands before this sample");
    }
    return false;
}

void AsciiSource::readLine(std::string_view line, SampleBlock &block)
{
    const InputFile &file = m_lines.file();
    FieldCursor fields(line);
    if (const std::string_view field = fields.next(); !toInteger(field))
        throw file.failureOfLine("the sample number is no whole number: " + std::string(field));
    if (fields.isAtEnd())
        throw wrongFieldCount(line);
    const std::optional<std::int64_t> time = m_times.next(stamp(fields.next()));
    if (!time)
        throw file.failureOfLine("the sample has no time: there is no stamp and no rate");
    block.times.push_back(*time);
    auto &values = std::get<std::vector<double>>(block.values);
    for (const double mark : m_marks) {
        if (fields.isAtEnd())
            throw wrongFieldCount(line);
        const std::string_view field = fields.next();
        const std::optional<double> value = toValue(field);
        if (!value && !trimmed(field).empty())
            throw file.failureOfLine("the value is no number: " + std::string(field));
        values.push_back(!value || *value == mark ? missing<double> : *value);
    }
    for (size_t j = 0; j < m_states; ++j) {
        if (fields.isAtEnd())
            throw wrongFieldCount(line);
        const std::string_view field = trimmed(fields.next());
        if (field != "0" && field != "1")
            throw file.failureOfLine("the state is neither 0 nor 1: " + std::string(field));
        if (j % statesPerWord == 0)
            block.words.push_back(0);
        const int state = field == "1" ? 1 : 0;
        block.words.back()
            = static_cast<std::uint16_t>(block.words.back() | state << j % statesPerWord);
    }
    // Some writers end a sample with a comma.
    if (!fields.isAtEnd() && !trimmed(fields.rest()).empty())
        throw wrongFieldCount(line);
}

double AsciiSource::stamp(std::string_view field) const
{
    const std::optional<double> value = toValue(field);
    if (!value && !trimmed(field).empty())
        throw m_lines.file().failureOfLine("the time stamp is no number: " + std::string(field));
    return value.value_or(missing<double>);
}

Failure AsciiSource::wrongFieldCount(std::string_view line) const
{
    const auto count = std::count(line.begin(), line.end(), ',') + 1;
    return m_lines.file().failureOfLine("the sample has " + std::to_string(count)
        + " fields instead of " + std::to_string(2 + m_marks.size() + m_states));
}

} // namespace convert
