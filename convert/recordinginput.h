// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"
#include "configurationparser.h"
#include "samplesource.h"
#include "sectionreader.h"

#include <QStringList>

#include <memory>

namespace convert {

// A recording that is being read: its configuration at once, its samples by and by.
class RecordingInput {
public:
    // A single file (.cff), or a configuration (.cfg) with its data (.dat) beside it.
    RecordingInput(const QString &path, const Warn &warn);
    // A single file that is open already.
    RecordingInput(std::unique_ptr<InputFile> file, const Warn &warn);
    ~RecordingInput();

    const Configuration &configuration() const { return m_configuration; }
    SampleSource &samples() { return *m_samples; }

    // The files that a recording is read from, without opening them. The name of the data may have
    // other cases of letters; of a path that names no recording, the path alone.
    static QStringList filesOf(const QString &path);

private:
    void readPair(const QString &dataPath, const Warn &warn);
    void readSingleFile(const Warn &warn);

    std::unique_ptr<InputFile> m_file; // of the configuration
    std::unique_ptr<InputFile> m_dataFile;
    std::unique_ptr<SectionReader> m_lines; // of ASCII data, or of the single file
    Configuration m_configuration;
    std::unique_ptr<SampleSource> m_samples;
};

} // namespace convert
