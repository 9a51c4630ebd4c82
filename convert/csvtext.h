// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"
#include "rowtext.h"

#include <string>
#include <vector>

namespace convert {

// Lines of a table: milliseconds from the start, values a x + b, states. Missing values are empty.
class CsvRows : public RowText {
public:
    explicit CsvRows(const Configuration &configuration);

    void write(
        TextOutput &output, const SampleBlock &block, std::size_t begin, std::size_t end) override;

private:
    struct Scale {
        double a;
        double b;
        bool isNone; // the samples are the values
    };

    template <typename Value> char *writeValues(char *at, const Value *values) const;

    std::vector<Scale> m_scales;
    const std::size_t m_states;
};

// The first line: the name of each column, with the unit of an analog channel in parentheses. A
// channel without a name has its number.
std::string csvHeader(const Configuration &configuration);

} // namespace convert
