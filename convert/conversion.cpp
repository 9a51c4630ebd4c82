// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conversion.h"

#include "outputpaths.h"
#include "recordinginput.h"
#include "scaling.h"
#include "textencoding.h"

#include <QFileInfo>

namespace convert {

namespace {

Failure inputFailure(const QString &path, const std::string &what)
{
    return {Failure::Cause::Input, path.toStdString() + ": " + what};
}

// One text for all the paths that lead to a file, whether it is there or not.
QString identity(const QString &path)
{
    const QFileInfo file(path);
    QString name = file.canonicalFilePath();
    if (name.isEmpty())
        name = QFileInfo(file.path()).canonicalFilePath() + QLatin1Char('/') + file.fileName();
#ifdef Q_OS_WIN
    name = name.toLower(); // the case of letters makes no difference there
#endif
    return name;
}

} // namespace

Conversion::Conversion(const Options &options, Warn warn)
    : m_options(options), m_warn(std::move(warn))
{
    for (const QString &input : options.inputs) {
        for (const QString &file : RecordingInput::filesOf(input))
            m_taken.insert(identity(file));
    }
}

void Conversion::convert(const QString &input)
{
    RecordingInput recording(input, m_warn);
    const QStringList paths = outputPaths(input, m_options);
    requireFreePaths(paths);
    const Configuration configuration = prepared(recording.configuration(), input);
    const std::unique_ptr<RecordingOutput> files = output(paths, configuration);
    SampleBlock block;
    std::int64_t read = 0;
    std::int64_t written = 0;
    while (recording.samples().read(block)) {
        read += static_cast<std::int64_t>(block.times.size());
        written += write(block, *files);
    }
    if (written == 0)
        throw inputFailure(input, read == 0 ? "there are no samples" : "no sample is in the range");
    if (read != configuration.promisedSamples)
        m_warn(input.toStdString() + ": warning: there are " + std::to_string(read)
            + " samples instead of " + std::to_string(configuration.promisedSamples));
    files->finish();
    for (const QString &path : paths)
        m_taken.insert(identity(path));
}

void Conversion::requireFreePaths(const QStringList &paths) const
{
    for (const QString &path : paths) {
        if (m_taken.contains(identity(path)))
            throw Failure(Failure::Cause::Output,
                path.toStdString() + ": this would replace an input or another output, see -o");
    }
}

Configuration Conversion::prepared(const Configuration &read, const QString &input) const
{
    Configuration configuration = read;
    if (m_options.side) {
        const std::string fault = referTo(*m_options.side, configuration);
        if (!fault.empty())
            throw inputFailure(input, fault);
    }
    const bool isTable = m_options.format == Format::Csv;
    if ((isTable || m_options.encoding) && !decodeTexts(configuration, m_options.encoding))
        throw inputFailure(input, "the texts are not in the encoding that is named");
    if (!isTable && m_options.encoding)
        encodeTexts(configuration);
    return configuration;
}

std::unique_ptr<RecordingOutput> Conversion::output(
    const QStringList &paths, const Configuration &configuration) const
{
    using Existing = OutputFile::Existing;
    const Existing existing = m_options.mayReplace ? Existing::Replace : Existing::Keep;
    if (m_options.format == Format::Csv)
        return std::make_unique<CsvOutput>(paths.first(), existing, configuration);
    const bool isPart = m_options.from || m_options.to;
    return std::make_unique<PairOutput>(paths, existing, configuration,
        isPart ? PairRows::Origin::FirstSample : PairRows::Origin::AsRead);
}

bool Conversion::isWanted(std::int64_t time) const
{
    return !(m_options.from && time < *m_options.from) && !(m_options.to && time > *m_options.to);
}

std::int64_t Conversion::write(const SampleBlock &block, RecordingOutput &output) const
{
    const std::size_t rows = block.times.size();
    std::int64_t written = 0;
    for (std::size_t begin = 0; begin < rows;) {
        const bool areWanted = isWanted(block.times[begin]);
        std::size_t end = begin + 1;
        while (end < rows && isWanted(block.times[end]) == areWanted)
            ++end;
        if (areWanted) {
            output.write(block, begin, end);
            written += static_cast<std::int64_t>(end - begin);
        }
        begin = end;
    }
    return written;
}

} // namespace convert
