// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rowtext.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace convert {

namespace {

constexpr std::size_t statesPerText = 8;
using StatesText = std::array<char, 2 * statesPerText>;

constexpr std::array<StatesText, 256> makeTexts()
{
    std::array<StatesText, 256> texts{};
    for (std::size_t byte = 0; byte < texts.size(); ++byte) {
        for (std::size_t k = 0; k < statesPerText; ++k) {
            texts[byte][2 * k] = (byte >> k & 1U) != 0 ? '1' : '0';
            texts[byte][2 * k + 1] = ',';
        }
    }
    return texts;
}

constexpr std::array<StatesText, 256> texts = makeTexts();

} // namespace

char *writeStates(char *at, const std::uint16_t *words, std::size_t states)
{
    for (std::size_t j = 0; j < states; j += statesPerText) {
        const unsigned word = words[j / statesPerWord];
        const StatesText &text = texts[word >> j % statesPerWord & 0xffU];
        std::memcpy(at, text.data(), text.size());
        at += 2 * std::min(statesPerText, states - j);
    }
    return at;
}

} // namespace convert
