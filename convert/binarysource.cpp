// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "binarysource.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace convert {

namespace {

constexpr size_t headBytes = 8; // number and stamp
constexpr size_t blockBytes = 1 << 16; // read at once, if a record is no longer

std::uint16_t word(const char *at)
{
    const auto byte = [at](int k) { return static_cast<unsigned char>(at[k]); };
    return static_cast<std::uint16_t>(byte(0) | byte(1) << 8);
}

std::uint32_t doubleWord(const char *at)
{
    return static_cast<std::uint32_t>(word(at)) | static_cast<std::uint32_t>(word(at + 2)) << 16;
}

// What stands in a record, and what stands for it in a block.
struct Binary {
    using Value = std::int32_t;
    static constexpr size_t bytes = 2;
    static Value value(const char *at)
    {
        const auto value = static_cast<std::int16_t>(word(at));
        return value == std::numeric_limits<std::int16_t>::min() ? missing<Value> : value;
    }
};

struct Binary32 {
    using Value = std::int32_t;
    static constexpr size_t bytes = 4;
    static Value value(const char *at) { return static_cast<std::int32_t>(doubleWord(at)); }
};

struct Float32 {
    using Value = float;
    static constexpr size_t bytes = 4;
    static Value value(const char *at)
    {
        const std::uint32_t bits = doubleWord(at);
        float value = 0;
        std::memcpy(&value, &bits, sizeof value);
        return std::isfinite(value) ? value : missing<Value>;
    }
};

size_t valueBytes(DataForm form)
{
    return form == DataForm::Binary ? Binary::bytes : Binary32::bytes;
}

} // namespace

BinarySource::BinarySource(
    InputFile &file, const Configuration &configuration, std::optional<std::int64_t> bytes)
    : m_file(file),
      m_times(configuration),
      m_form(configuration.form),
      m_analogs(configuration.analogs.size()),
      m_words(wordsOf(configuration.states.size())),
      m_recordBytes(headBytes + m_analogs * valueBytes(m_form) + m_words * sizeof(std::uint16_t)),
      m_left(bytes)
{
}

bool BinarySource::read(SampleBlock &block)
{
    const std::string_view records = nextRecords();
    const size_t rows = records.size() / m_recordBytes;
    block.firstIndex = m_read;
    readTimes(records.data(), rows, block);
    if (m_form == DataForm::Binary)
        readValues<Binary>(records.data(), rows, block);
    else if (m_form == DataForm::Binary32)
        readValues<Binary32>(records.data(), rows, block);
    else
        readValues<Float32>(records.data(), rows, block);
    readWords(records.data(), rows, block);
    m_read += static_cast<std::int64_t>(rows);
    return rows > 0;
}

// Some whole records, none at the end.
std::string_view BinarySource::nextRecords()
{
    size_t wanted = std::max<size_t>(blockBytes / m_recordBytes, 1) * m_recordBytes;
    if (m_left && *m_left < static_cast<std::int64_t>(wanted))
        wanted = static_cast<size_t>(*m_left);
    const std::string_view bytes = m_file.nextBytes(wanted);
    if (bytes.size() % m_recordBytes != 0) {
        const auto record = static_cast<size_t>(m_read) + bytes.size() / m_recordBytes + 1;
        throw m_file.failureOfFile("sample " + std::to_string(record) + " has "
            + std::to_string(bytes.size() % m_recordBytes) + " of its "
            + std::to_string(m_recordBytes) + " bytes");
    }
    if (m_left) {
        if (bytes.size() < wanted)
            throw m_file.failureOfFile("the data end "
                + std::to_string(*m_left - static_cast<std::int64_t>(bytes.size()))
                + " bytes before what their heading says");
        *m_left -= static_cast<std::int64_t>(bytes.size());
    }
    return bytes;
}

void BinarySource::readTimes(const char *record, size_t rows, SampleBlock &block)
{
    constexpr std::uint32_t noStamp = 0xffffffff;
    block.times.resize(rows);
    for (size_t row = 0; row < rows; ++row, record += m_recordBytes) {
        const std::uint32_t stamp = doubleWord(record + headBytes / 2);
        const std::optional<std::int64_t> time
            = m_times.next(stamp == noStamp ? missing<double> : stamp);
        if (!time)
            throw m_file.failureOfFile("sample "
                + std::to_string(block.firstIndex + static_cast<std::int64_t>(row) + 1)
                + " has no time: there is no stamp and no rate");
        block.times[row] = *time;
    }
}

template <typename Kind>
void BinarySource::readValues(const char *record, size_t rows, SampleBlock &block)
{
    using Series = std::vector<typename Kind::Value>;
    if (!std::holds_alternative<Series>(block.values))
        block.values = Series();
    auto &values = std::get<Series>(block.values);
    values.resize(rows * m_analogs);
    typename Kind::Value *value = values.data();
    for (size_t row = 0; row < rows; ++row, record += m_recordBytes) {
        const char *at = record + headBytes;
        for (size_t k = 0; k < m_analogs; ++k, at += Kind::bytes)
            *value++ = Kind::value(at);
    }
}

void BinarySource::readWords(const char *record, size_t rows, SampleBlock &block) const
{
    block.words.resize(rows * m_words);
    std::uint16_t *states = block.words.data();
    record += m_recordBytes - m_words * sizeof(std::uint16_t);
    for (size_t row = 0; row < rows; ++row, record += m_recordBytes) {
        for (size_t k = 0; k < m_words; ++k)
            *states++ = word(record + k * sizeof(std::uint16_t));
    }
}

} // namespace convert
