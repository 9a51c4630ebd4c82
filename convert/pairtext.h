// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"
#include "numbertext.h"
#include "rowtext.h"

#include <optional>
#include <string>
#include <vector>

namespace convert {

// The lines of an ASCII data file of the 1999 layout. Samples are numbered from 1 on.
class PairRows : public RowText {
public:
    // Where the first sample is to have the time 0, later ones count from it.
    enum class Origin { AsRead, FirstSample };

    PairRows(const Configuration &configuration, Origin origin);

    void write(
        TextOutput &output, const SampleBlock &block, std::size_t begin, std::size_t end) override;

    // What was taken off the times, in nanoseconds.
    std::int64_t origin() const { return m_zero.value_or(0); }
    // Whether a channel had the value that is the mark of a missing one in this layout.
    bool hadMark(std::size_t channel) const { return m_channels[channel].hadMark; }

private:
    struct Channel {
        bool marksMissing; // with the number of the layout; otherwise the field stays empty
        bool hadMark = false;
    };

    template <typename Value> char *writeValues(char *at, const Value *values);
    template <typename Value> char *writeValue(char *at, Channel &channel, Value value);

    std::vector<Channel> m_channels;
    const std::size_t m_states;
    const Origin m_origin;
    const CountTexts &m_counts;
    std::optional<std::int64_t> m_zero;
    std::int64_t m_written = 0;
};

// A rate of the pair that is written.
struct WrittenRate {
    std::string perSecond;
    std::int64_t lastSample;
};

// The configuration that belongs to the lines that were written.
std::string pairConfiguration(const Configuration &configuration,
    const std::vector<WrittenRate> &rates, const PairRows &rows);

} // namespace convert
