// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

// A breach of the layout, with the line of the configuration or of the data, counted from 1.
struct LayoutFault {
    enum class File { Configuration, Data };
    File file;
    int line;
    std::string what;
};

// What in a pair breaks the ASCII layout of IEEE C37.111-1999, clauses 5 and 6; nothing for a good
// one. Written from the layout alone: it shares nothing with the readers and the writer. Beyond the
// letter of the layout it takes LF for CR LF, a last line without an end, seconds with three to six
// decimals, samples whose numbers do not begin at 1, and a comma behind the last analog value of a
// recording without digital channels. Faults that leave the rest of a file without meaning end the
// list.
std::vector<LayoutFault> faultsOfPair(const std::string &configuration, const std::string &data);
