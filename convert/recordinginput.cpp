// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordinginput.h"

#include "asciisource.h"
#include "binarysource.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <string_view>

namespace convert {

namespace {

bool hasEnding(const QString &path, const char *ending)
{
    return path.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
}

// The file of that name, or else one whose name differs from it in the case of letters.
QString existing(const QString &path)
{
    const QFileInfo wanted(path);
    if (wanted.exists())
        return path;
    const QStringList names = wanted.dir().entryList(QDir::Files, QDir::Name);
    const auto found = std::find_if(names.begin(), names.end(), [&](const QString &name) {
        return name.compare(wanted.fileName(), Qt::CaseInsensitive) == 0;
    });
    return found == names.end() ? path : wanted.dir().filePath(*found);
}

} // namespace

RecordingInput::RecordingInput(const QString &path, const Warn &warn)
{
    if (!hasEnding(path, ".cfg") && !hasEnding(path, ".cff"))
        throw Failure(Failure::Cause::Input,
            path.toStdString() + ": a recording is named by its .cfg or .cff file");
    m_file = std::make_unique<InputFile>(path);
    if (hasEnding(path, ".cff"))
        readSingleFile(warn);
    else
        readPair(filesOf(path).constLast(), warn);
}

RecordingInput::RecordingInput(std::unique_ptr<InputFile> file, const Warn &warn)
    : m_file(std::move(file))
{
    readSingleFile(warn);
}

RecordingInput::~RecordingInput() = default;

QStringList RecordingInput::filesOf(const QString &path)
{
    if (!hasEnding(path, ".cfg"))
        return {path};
    return {path, existing(path.chopped(3) + QLatin1String("dat"))};
}

void RecordingInput::readPair(const QString &dataPath, const Warn &warn)
{
    SectionReader lines(*m_file, SectionReader::Layout::WholeFile);
    m_configuration = ConfigurationParser(lines, warn).parse();
    m_dataFile = std::make_unique<InputFile>(dataPath);
    if (m_configuration.form == DataForm::Ascii) {
        m_lines = std::make_unique<SectionReader>(*m_dataFile, SectionReader::Layout::WholeFile);
        m_samples = std::make_unique<AsciiSource>(*m_lines, m_configuration);
    } else {
        m_samples = std::make_unique<BinarySource>(*m_dataFile, m_configuration);
    }
}

void RecordingInput::readSingleFile(const Warn &warn)
{
    m_lines = std::make_unique<SectionReader>(*m_file, SectionReader::Layout::Sections);
    std::optional<Heading> section;
    if (std::string_view line; !m_lines->nextLine(line)) // nothing stands before the heading
        section = m_lines->nextSection();
    if (!section || section->section != "CFG")
        throw m_file->failureOfLine("the file does not begin with the section CFG");
    m_configuration = ConfigurationParser(*m_lines, warn).parse();
    do {
        section = m_lines->nextSection();
        if (!section)
            throw m_file->failureOfFile("there is no section DAT");
    } while (section->section != "DAT");
    const bool isAscii = m_configuration.form == DataForm::Ascii;
    if ((section->form == "ASCII") != isAscii)
        throw m_file->failureOfLine("the data have another form than the configuration says");
    if (isAscii)
        m_samples = std::make_unique<AsciiSource>(*m_lines, m_configuration);
    else
        m_samples = std::make_unique<BinarySource>(*m_file, m_configuration, section->bytes);
}

} // namespace convert
