// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sampleblock.h"
#include "textoutput.h"

#include <cstddef>

namespace convert {

// Writes samples as lines of text.
class RowText {
public:
    RowText() = default;
    virtual ~RowText() = default;
    RowText(const RowText &) = delete;
    RowText &operator=(const RowText &) = delete;

    // Writes the rows of a block from one up to another.
    virtual void write(
        TextOutput &output, const SampleBlock &block, std::size_t begin, std::size_t end)
        = 0;
};

// Bytes that the states of a sample take at most, with what writeStates() writes too much.
constexpr std::size_t stateBytes(std::size_t states)
{
    return 2 * (states + statesPerWord);
}

// Writes so many states, each with a comma behind it.
char *writeStates(char *at, const std::uint16_t *words, std::size_t states);

// Puts the end of the line in place of the last comma.
inline char *endRow(char *at)
{
    at[-1] = '\r';
    *at = '\n';
    return at + 1;
}

} // namespace convert
