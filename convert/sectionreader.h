// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "inputfile.h"

#include <cstdint>
#include <optional>
#include <string>

namespace convert {

// A line of a single file that begins a section: "--- file type: DAT BINARY: 4400 ---".
struct Heading {
    std::string section; // CFG, INF, HDR or DAT, in capitals
    std::string form; // of the data: ASCII, BINARY, BINARY32, FLOAT32; else empty
    std::optional<std::int64_t> bytes; // of binary data
};

// The lines of a section: of a file that has no sections all, else those up to the next heading.
class SectionReader {
public:
    enum class Layout { WholeFile, Sections };

    SectionReader(InputFile &file, Layout layout) : m_file(file), m_layout(layout) { }

    InputFile &file() { return m_file; }
    // False where the section ends: at the end of the file, a heading, or the mark 1A.
    bool nextLine(std::string_view &line);
    // Goes on to the next section, over what is left of this one; nothing where there is none.
    std::optional<Heading> nextSection();

private:
    InputFile &m_file;
    const Layout m_layout;
    std::optional<Heading> m_next; // that has ended the section
    bool m_isAtEnd = false;
};

} // namespace convert
