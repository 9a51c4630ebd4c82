// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace convert {

// Text that is written piece by piece into a buffer, and handed on in large parts.
class TextOutput {
public:
    TextOutput() = default;
    virtual ~TextOutput() = default;
    TextOutput(const TextOutput &) = delete;
    TextOutput &operator=(const TextOutput &) = delete;

    // Room for so many bytes; what was written there ends where used() is told.
    char *room(std::size_t bytes)
    {
        if (m_buffer.size() - m_size < bytes)
            makeRoom(bytes);
        return m_buffer.data() + m_size;
    }
    void used(const char *end) { m_size = static_cast<std::size_t>(end - m_buffer.data()); }

    void append(std::string_view text);
    void flush();

protected:
    virtual void take(std::string_view text) = 0;

private:
    void makeRoom(std::size_t bytes);

    std::vector<char> m_buffer;
    std::size_t m_size = 0;
};

} // namespace convert
