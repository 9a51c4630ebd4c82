// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sectionreader.h"

#include "fields.h"

#include <algorithm>
#include <utility>

namespace convert {

namespace {

constexpr std::string_view opening = "--- file type:";
constexpr std::string_view closing = "---";

// Takes the first word off a text.
std::string takeWord(std::string_view &text)
{
    const std::string_view word = text.substr(0, std::min(text.find_first_of(" \t:"), text.size()));
    text = trimmed(text.substr(word.size()));
    std::string capitals(word);
    for (char &letter : capitals) {
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    }
    return capitals;
}

// Whether a line is meant to begin a section.
bool isHeading(std::string_view line)
{
    return areSameWords(trimmed(line).substr(0, opening.size()), opening);
}

std::optional<Heading> heading(std::string_view line)
{
    line = trimmed(line).substr(opening.size());
    if (line.size() < closing.size() || line.substr(line.size() - closing.size()) != closing)
        return std::nullopt;
    line = trimmed(line.substr(0, line.size() - closing.size()));
    Heading found;
    found.section = takeWord(line);
    found.form = takeWord(line);
    if (!line.empty()) {
        if (line.front() != ':')
            return std::nullopt;
        found.bytes = toInteger(line.substr(1));
        if (!found.bytes || *found.bytes < 0)
            return std::nullopt;
    }
    return found;
}

} // namespace

bool SectionReader::nextLine(std::string_view &line)
{
    if (m_next || m_isAtEnd)
        return false;
    if (!m_file.nextLine(line)) {
        m_isAtEnd = true;
        return false;
    }
    const std::string_view text = withoutByteOrderMark(line); // as files that were joined have them
    if (m_layout == Layout::Sections && isHeading(text)) {
        m_next = heading(text);
        if (!m_next)
            throw m_file.failureOfLine("this is no heading of a section");
        return false;
    }
    constexpr char endMark = 0x1a;
    if (!line.empty() && line.front() == endMark) {
        m_isAtEnd = true;
        return false;
    }
    return true;
}

std::optional<Heading> SectionReader::nextSection()
{
    for (std::string_view line; nextLine(line);) { }
    return std::exchange(m_next, std::nullopt);
}

} // namespace convert
