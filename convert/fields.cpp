// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fields.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace convert {

namespace {

constexpr std::string_view blanks = " \t";

// Without its sign where that is a plus, which the conversions do not take.
std::string_view numeral(std::string_view text)
{
    text = trimmed(text);
    const bool hasPlus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return hasPlus ? text.substr(1) : text;
}

template <typename Number> std::optional<Number> converted(std::string_view text)
{
    text = numeral(text);
    Number number = 0;
    const char *const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return number;
}

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    const size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::string_view withoutByteOrderMark(std::string_view text)
{
    constexpr std::string_view mark = "\xef\xbb\xbf";
    return text.substr(0, mark.size()) == mark ? text.substr(mark.size()) : text;
}

std::vector<std::string_view> split(std::string_view line)
{
    std::vector<std::string_view> fields;
    for (size_t comma = 0; (comma = line.find(',')) != std::string_view::npos;) {
        fields.push_back(line.substr(0, comma));
        line.remove_prefix(comma + 1);
    }
    fields.push_back(line);
    return fields;
}

std::optional<double> toNumber(std::string_view text)
{
    const std::optional<double> number = converted<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::int64_t> toInteger(std::string_view text)
{
    return converted<std::int64_t>(text);
}

bool areSameWords(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](char one, char other) { return lower(one) == lower(other); });
}

} // namespace convert
