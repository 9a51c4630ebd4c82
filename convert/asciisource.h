// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"
#include "samplesource.h"
#include "sectionreader.h"
#include "timerule.h"

#include <string_view>
#include <vector>

namespace convert {

// Samples of an ASCII data file: number, stamp, values, states.
class AsciiSource : public SampleSource {
public:
    AsciiSource(SectionReader &lines, const Configuration &configuration);

    bool read(SampleBlock &block) override;

private:
    bool nextSampleLine(std::string_view &line);
    void readLine(std::string_view line, SampleBlock &block);
    double stamp(std::string_view field) const;
    Failure wrongFieldCount(std::string_view line) const;

    SectionReader &m_lines;
    TimeRule m_times;
    std::vector<double> m_marks; // of missing values; NaN where a channel has none
    const size_t m_states;
    const size_t m_blockRows;
    std::int64_t m_read = 0; // samples
};

} // namespace convert
