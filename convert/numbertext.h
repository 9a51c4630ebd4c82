// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace convert {

// Bytes that are enough for any number below.
constexpr std::size_t mostNumberBytes = 32;

// Writes a number at a place; the end of what was written. Of numbers with a point, the fewest
// digits that read back as the same number.
char *writeNumber(char *at, std::int64_t value);
char *writeNumber(char *at, std::int32_t value);
char *writeNumber(char *at, float value);
char *writeNumber(char *at, double value);

// Writes a number of nanoseconds in microseconds, or in milliseconds, without zeros at the end.
char *writeMicroseconds(char *at, std::int64_t nanoseconds);
char *writeMilliseconds(char *at, std::int64_t nanoseconds);

std::string numberText(double value);

// The text of a 16-bit number and a comma, from a table.
class CountTexts {
public:
    static constexpr std::int32_t least = -32768;
    static constexpr std::int32_t most = 32767;

    static const CountTexts &instance();
    static bool has(std::int32_t value) { return value >= least && value <= most; }
    // Writes 8 bytes, of which those up to the end count.
    char *write(char *at, std::int32_t value) const
    {
        const Text &text = m_texts[static_cast<std::size_t>(value - least)];
        std::memcpy(at, text.letters, sizeof text.letters);
        return at + text.letters[sizeof text.letters - 1];
    }

private:
    struct Text {
        char letters[8]; // the last one is the size of the others
    };

    CountTexts();

    Text m_texts[most - least + 1] = {};
};

} // namespace convert
