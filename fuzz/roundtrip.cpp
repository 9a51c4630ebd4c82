// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// A recording is read, saved, read again and saved again; as primary values where there is a third
// text.

#include "checks.h"
#include "recordingwriter.h"
#include "recordsofrun.h"
#include "texts.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <limits>

namespace {

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "a file that was not saved");
    return file.readAll();
}

QByteArrayList saved(const CFGProperties &recording, bool asPrimary)
{
    static const QTemporaryDir folder;
    constexpr double everything = std::numeric_limits<double>::infinity();
    const QString path = folder.filePath(QStringLiteral("copy.cfg"));
    const RecordingWriter writer(recording, {}, {});
    const RecordingWriter::Outcome outcome
        = asPrimary ? writer.writeAsPrimary(path) : writer.write(path, -everything, everything);
    require(!outcome.hasFailed(), "a recording that cannot be saved");
    const QStringList files = RecordingWriter::filesFor(path);
    return {contentsOf(files.first()), contentsOf(files.last())};
}

// A copy has its lines where the counts tell, and microseconds that a double has exactly. A file
// that breaks its own counts is read at places that are shifted, and so is its copy.
bool isSound(const CFGProperties &recording)
{
    constexpr int mostRates = 999;
    constexpr double mostTime = 1e12; // ms
    const auto isOrdinary = [](double time) { return std::abs(time) < mostTime; };
    return recording.totalChannelCount
        == qint64(recording.analogChannelCount) + recording.digitalChannelCount
        && recording.analogChannels.size() == recording.analogChannelCount
        && recording.digitalChannels.size() == recording.digitalChannelCount
        && recording.analogIndexes.size() <= recording.analogChannelCount
        && recording.digitalIndexes.size() <= recording.digitalChannelCount
        && recording.rateCount >= 0 && recording.rateCount <= mostRates
        && std::all_of(recording.sampleTimes.cbegin(), recording.sampleTimes.cend(), isOrdinary);
}

// Whether the multipliers and offsets of primary values are numbers that a copy reads as they
// stand: the ratings may carry them beyond what a float holds with all its digits.
bool hasOrdinaryPrimaries(const CFGProperties &recording)
{
    using Float = std::numeric_limits<float>;
    const auto isOrdinary = [](double value) {
        return value == 0 || (std::abs(value) >= Float::min() && std::abs(value) <= Float::max());
    };
    for (int k = 0; k < recording.analogChannels.size(); ++k) {
        const double factor = recording.analogChannels.at(k)->toPrimary;
        if (!isOrdinary(static_cast<double>(recording.analogA.value(k)) * factor)
            || !isOrdinary(static_cast<double>(recording.analogB.value(k)) * factor))
            return false;
    }
    return true;
}

bool isSame(float copied, float value)
{
    if (std::isnan(value) || std::isinf(value))
        return std::isnan(value) ? std::isnan(copied) : copied == value;
    return std::abs(static_cast<double>(copied) - static_cast<double>(value)) <= 0.5;
}

void requireSameSamples(const CFGProperties &copy, const CFGProperties &recording)
{
    require(copy.sampleCount == recording.sampleCount, "a copy of another length");
    require(copy.analogChannels.size() == recording.analogChannels.size()
            && copy.digitalChannels.size() == recording.digitalChannels.size(),
        "a copy of other channels");
    for (int i = 0; i < recording.sampleCount; ++i) {
        const double time = recording.sampleTimes.at(i) - recording.sampleTimes.first();
        require(std::abs(copy.sampleTimes.at(i) - time) < 0.00051 + 1e-12 * std::abs(time),
            "a copy of other times");
    }
    for (int k = 0; k < recording.analogChannels.size(); ++k) {
        const QVector<float> &values = recording.analogChannels.at(k)->rawValues;
        require(std::equal(values.cbegin(), values.cend(),
                    copy.analogChannels.at(k)->rawValues.cbegin(),
                    [](float value, float copied) { return isSame(copied, value); }),
            "a copy of other values");
    }
    for (int j = 0; j < recording.digitalChannels.size(); ++j) {
        require(copy.digitalChannels.at(j)->values == recording.digitalChannels.at(j)->values,
            "a copy of other states");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QByteArrayList texts = textsOf(inputOf(bytes, size));
    const bool asPrimary = texts.size() > 2;
    const RecordsOfRun records;
    CFGProperties recording;
    if (!load(texts, recording))
        return 0;
    const QByteArrayList first = saved(recording, asPrimary);
    if (!isSound(recording) || (asPrimary && !hasOrdinaryPrimaries(recording)))
        return 0;
    CFGProperties copy;
    require(load(first, copy), "a copy that cannot be read");
    requireSameSamples(copy, recording);
    const QByteArrayList second = saved(copy, asPrimary);
    require(second.first() == first.first(), "a copy of the copy with another configuration");
    require(second.last() == first.last(), "a copy of the copy with other data");
    return 0;
}
