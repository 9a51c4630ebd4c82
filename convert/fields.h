// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace convert {

// The text without blanks and tabs at its ends.
std::string_view trimmed(std::string_view text);

// The text without a byte order mark of UTF-8 at its beginning.
std::string_view withoutByteOrderMark(std::string_view text);

// The fields of a line, which commas separate; one at least.
std::vector<std::string_view> split(std::string_view line);

// Numbers as the standard writes them, blanks around them allowed; nothing where a text is none,
// or none that is finite.
std::optional<double> toNumber(std::string_view text);
std::optional<std::int64_t> toInteger(std::string_view text);

// Whether two texts agree but for the case of ASCII letters.
bool areSameWords(std::string_view left, std::string_view right);

} // namespace convert
