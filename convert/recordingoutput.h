// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"
#include "csvtext.h"
#include "outputfile.h"
#include "pairtext.h"
#include "writtenrates.h"

#include <QStringList>

namespace convert {

// The files to which a recording is written.
class RecordingOutput {
public:
    RecordingOutput() = default;
    virtual ~RecordingOutput() = default;
    RecordingOutput(const RecordingOutput &) = delete;
    RecordingOutput &operator=(const RecordingOutput &) = delete;

    // Writes the samples of a block from one up to another.
    virtual void write(const SampleBlock &block, std::size_t begin, std::size_t end) = 0;
    // Puts the files in place.
    virtual void finish() = 0;
};

// A configuration and an ASCII data file of the 1999 layout.
class PairOutput : public RecordingOutput {
public:
    // The paths of the configuration and of the data.
    PairOutput(const QStringList &paths, OutputFile::Existing existing,
        const Configuration &configuration, PairRows::Origin origin);

    void write(const SampleBlock &block, std::size_t begin, std::size_t end) override;
    void finish() override;

private:
    const Configuration &m_configuration;
    OutputFile m_configurationFile;
    OutputFile m_dataFile;
    PairRows m_rows;
    WrittenRates m_rates;
};

// A table of values separated by commas.
class CsvOutput : public RecordingOutput {
public:
    CsvOutput(
        const QString &path, OutputFile::Existing existing, const Configuration &configuration);

    void write(const SampleBlock &block, std::size_t begin, std::size_t end) override;
    void finish() override;

private:
    OutputFile m_file;
    CsvRows m_rows;
};

} // namespace convert
