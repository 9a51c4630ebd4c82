// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"
#include "inputfile.h"
#include "samplesource.h"
#include "timerule.h"

#include <optional>

namespace convert {

// Samples of the forms BINARY, BINARY32 and FLOAT32: records of number, stamp, values and words of
// 16 states, the lowest byte first.
class BinarySource : public SampleSource {
public:
    // The data are so many bytes, or all that are left of the file.
    BinarySource(InputFile &file, const Configuration &configuration,
        std::optional<std::int64_t> bytes = std::nullopt);

    bool read(SampleBlock &block) override;

private:
    template <typename Kind> void readValues(const char *record, size_t rows, SampleBlock &block);
    void readTimes(const char *record, size_t rows, SampleBlock &block);
    void readWords(const char *record, size_t rows, SampleBlock &block) const;
    std::string_view nextRecords();

    InputFile &m_file;
    TimeRule m_times;
    const DataForm m_form;
    const size_t m_analogs;
    const size_t m_words;
    const size_t m_recordBytes;
    std::optional<std::int64_t> m_left; // bytes
    std::int64_t m_read = 0; // samples
};

} // namespace convert
