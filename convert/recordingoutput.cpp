// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordingoutput.h"

namespace convert {

PairOutput::PairOutput(const QStringList &paths, OutputFile::Existing existing,
    const Configuration &configuration, PairRows::Origin origin)
    : m_configuration(configuration),
      m_configurationFile(paths.first(), existing),
      m_dataFile(paths.last(), existing),
      m_rows(configuration, origin),
      m_rates(configuration)
{
}

void PairOutput::write(const SampleBlock &block, std::size_t begin, std::size_t end)
{
    m_rates.add(block, begin, end);
    m_rows.write(m_dataFile, block, begin, end);
}

void PairOutput::finish()
{
    m_configurationFile.append(pairConfiguration(m_configuration, m_rates.rates(), m_rows));
    putInPlace(m_dataFile, m_configurationFile);
}

CsvOutput::CsvOutput(
    const QString &path, OutputFile::Existing existing, const Configuration &configuration)
    : m_file(path, existing), m_rows(configuration)
{
    m_file.append(csvHeader(configuration));
}

void CsvOutput::write(const SampleBlock &block, std::size_t begin, std::size_t end)
{
    m_rows.write(m_file, block, begin, end);
}

void CsvOutput::finish()
{
    m_file.complete();
    m_file.putInPlace();
}

} // namespace convert
