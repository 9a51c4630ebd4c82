// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "textoutput.h"

#include <algorithm>

namespace convert {

void TextOutput::append(std::string_view text)
{
    used(std::copy(text.begin(), text.end(), room(text.size())));
}

void TextOutput::flush()
{
    if (m_size > 0)
        take(std::string_view(m_buffer.data(), m_size));
    m_size = 0;
}

void TextOutput::makeRoom(std::size_t bytes)
{
    constexpr std::size_t usual = 1 << 18;
    flush();
    m_buffer.resize(std::max({usual, bytes, m_buffer.size()}));
}

} // namespace convert
