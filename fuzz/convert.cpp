// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// A single file is converted to a pair and to a table. The pair, read again, means the same and is
// one that the viewer reads. A pair of the pair gives the same bytes from then on.

#include "csvtext.h"
#include "failure.h"
#include "fuzzing.h"
#include "pairtext.h"
#include "recordinginput.h"
#include "recordsofrun.h"
#include "textencoding.h"
#include "texts.h"
#include "writtenrates.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace {

class MemoryOutput : public convert::TextOutput {
public:
    QByteArray text()
    {
        flush();
        return m_text;
    }

protected:
    void take(std::string_view text) override
    {
        m_text.append(text.data(), static_cast<int>(text.size()));
    }

private:
    QByteArray m_text;
};

struct Converted {
    std::vector<std::int64_t> times;
    std::vector<double> values; // NaN where missing
    QByteArray configuration; // of the pair
    QByteArray data;
    int tableLines = 0;
    bool isSingle = false; // precision of the values
};

void keepValues(const convert::SampleBlock &block, Converted &converted)
{
    converted.times.insert(converted.times.end(), block.times.begin(), block.times.end());
    std::visit(
        [&](const auto &values) {
            for (const auto value : values)
                converted.values.push_back(
                    convert::isMissing(value) ? std::nan("") : static_cast<double>(value));
        },
        block.values);
}

// Nothing where the file breaks the standard or has no samples.
std::optional<Converted> converted(const QByteArray &singleFile)
{
    try {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(singleFile);
        buffer->open(QIODevice::ReadOnly);
        convert::RecordingInput input(
            std::make_unique<convert::InputFile>(std::move(buffer), QStringLiteral("r.cff")),
            [](const std::string & /*warning*/) {});
        const convert::Configuration &configuration = input.configuration();
        convert::PairRows pair(configuration, convert::PairRows::Origin::AsRead);
        convert::CsvRows table(configuration);
        convert::WrittenRates rates(configuration);
        MemoryOutput data;
        MemoryOutput tableText;
        Converted made;
        made.isSingle = configuration.form == convert::DataForm::Float32;
        for (convert::SampleBlock block; input.samples().read(block);) {
            const size_t rows = block.times.size();
            keepValues(block, made);
            pair.write(data, block, 0, rows);
            table.write(tableText, block, 0, rows);
            rates.add(block, 0, rows);
        }
        if (made.times.empty())
            return std::nullopt;
        made.configuration = QByteArray::fromStdString(
            convert::pairConfiguration(configuration, rates.rates(), pair));
        made.data = data.text();
        convert::Configuration texts = configuration;
        require(convert::decodeTexts(texts, nullptr), "texts that are not even Latin-1");
        tableText.append(convert::csvHeader(texts));
        made.tableLines = tableText.text().count('\n');
        return made;
    } catch (const convert::Failure &) {
        return std::nullopt;
    }
}

bool isSame(double copied, double value, bool isSingle)
{
    if (std::isnan(value))
        return std::isnan(copied);
    return isSingle ? static_cast<float>(copied) == static_cast<float>(value) : copied == value;
}

// Stamps of a copy are microseconds with a point, which a double has exactly for some weeks.
bool hasExactTimes(const Converted &recording)
{
    constexpr std::int64_t exact = std::int64_t(1) << 52;
    return std::all_of(recording.times.begin(), recording.times.end(),
        [](std::int64_t time) { return time > -exact && time < exact; });
}

std::optional<Converted> convertedPair(const Converted &pair)
{
    std::optional<Converted> copy = converted("--- file type: CFG ---\r\n" + pair.configuration
        + "--- file type: DAT ASCII ---\r\n" + pair.data);
    require(copy.has_value(), "a pair that breaks the standard");
    return copy;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const std::optional<Converted> first = converted(inputOf(bytes, size));
    if (!first)
        return 0;
    const auto samples = static_cast<int>(first->times.size());
    require(first->tableLines == samples + 1, "a table of another length");
    const std::optional<Converted> second = convertedPair(*first);
    require(
        std::equal(first->values.begin(), first->values.end(), second->values.begin(),
            second->values.end(),
            [&](double value, double copied) { return isSame(copied, value, first->isSingle); }),
        "a pair of other values");
    const std::optional<Converted> third = convertedPair(*second);
    require(third->configuration == second->configuration, "a pair of a pair that differs");
    if (hasExactTimes(*first)) {
        require(second->times == first->times, "a pair of other times");
        require(third->data == second->data, "a pair of a pair with other data");
    }
    const RecordsOfRun records;
    CFGProperties recording;
    require(load({first->configuration, first->data}, recording), "a pair that is not read");
    require(recording.sampleCount == samples, "a pair that is not read to its end");
    return 0;
}
