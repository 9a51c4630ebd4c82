// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configurationparser.h"
#include "options.h"
#include "recordingoutput.h"

#include <QSet>
#include <QStringList>

#include <memory>

namespace convert {

// Converts recordings one after the other, as the options say. No output takes the place of an
// input, or of another output of the same run.
class Conversion {
public:
    Conversion(const Options &options, Warn warn);

    // Throws a Failure; then nothing has been written.
    void convert(const QString &input);

private:
    void requireFreePaths(const QStringList &paths) const;
    Configuration prepared(const Configuration &read, const QString &input) const;
    std::unique_ptr<RecordingOutput> output(
        const QStringList &paths, const Configuration &configuration) const;
    bool isWanted(std::int64_t time) const;
    // Writes what is wanted of a block; the number of its samples.
    std::int64_t write(const SampleBlock &block, RecordingOutput &output) const;

    const Options m_options;
    const Warn m_warn;
    QSet<QString> m_taken; // files whose places no output may take
};

} // namespace convert
