// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading the data lines of 200,000 samples.

#include "datareader.h"

#include "cfgproperties.h"
#include "figures.h"
#include "recordingtext.h"

#include <QBuffer>

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstring>
#include <deque>

namespace {

constexpr int rounds = 7;
constexpr int plainRounds = 3;
constexpr RecordingText text{200000, 20};

const QByteArray &dataText()
{
    static const QByteArray data = text.data();
    return data;
}

// Recordings read with a function that takes a device and a recording. What they hold is given back
// at the end, which is no part of reading.
class Readings {
public:
    Readings() { dataText(); }
    ~Readings()
    {
        for (CFGProperties &recording : m_recordings)
            discardSeries(recording);
    }
    Readings(const Readings &) = delete;
    Readings &operator=(const Readings &) = delete;

    template <typename Reader> void readWith(Reader &&reader)
    {
        QBuffer buffer;
        buffer.setData(dataText());
        buffer.open(QIODevice::ReadOnly);
        CFGProperties &recording = m_recordings.emplace_back();
        configure(recording, text);
        reader(buffer, recording);
        if (recording.sampleCount != text.samples)
            qFatal("read %d of %d samples", recording.sampleCount, text.samples);
    }

private:
    std::deque<CFGProperties> m_recordings;
};

// The reader that suggests itself: a line is cut into strings, each string is converted, and each
// sample appended.
void readPlainly(QIODevice &device, CFGProperties &recording)
{
    AnalogChannel analog[RecordingText::analogCount];
    DigitalChannel digital[RecordingText::digitalCount];
    while (!device.atEnd()) {
        const QStringList fields = QString::fromLatin1(device.readLine()).split(QLatin1Char(','));
        if (fields.size() < 2)
            break;
        const double time = fields.at(1).toDouble() / 1000;
        recording.sampleTimes.append(time);
        int field = 2;
        for (int k = 0; k < RecordingText::analogCount; ++k) {
            const float x = fields.at(field++).toFloat();
            analog[k].appendValue(x, recording.analogA.at(k), recording.analogB.at(k));
            analog[k].appendTime(time);
            analog[k].rawValues.append(x);
        }
        for (DigitalChannel &channel : digital) {
            channel.appendValue(fields.at(field++).toInt());
            channel.appendTime(time);
        }
        ++recording.sampleCount;
    }
}

template <typename Number> const char *converted(const char *at, const char *end, double &sum)
{
    Number number = 0;
    at = std::from_chars(at, end, number).ptr + 1;
    sum += static_cast<double>(number);
    return at;
}

// Converts every field and keeps nothing.
void convert()
{
    const char *at = dataText().constData();
    const char *const end = at + dataText().size();
    double sum = 0;
    while (at < end) {
        at = static_cast<const char *>(std::memchr(at, ',', static_cast<size_t>(end - at))) + 1;
        at = converted<double>(at, end, sum);
        for (int k = 0; k < RecordingText::analogCount; ++k)
            at = converted<float>(at, end, sum);
        for (int j = 0; j < RecordingText::digitalCount; ++j)
            at = converted<int>(at, end, sum);
    }
    benchmark::DoNotOptimize(sum);
}

} // namespace

Ratio readingPlainlyAgainstReading()
{
    Readings readings;
    return timesInTurn(
        plainRounds, [&] { readings.readWith(readPlainly); }, [&] { readings.readWith(readData); });
}

Ratio readingAgainstConverting()
{
    Readings readings;
    return timesInTurn(
        rounds, [&] { readings.readWith(readData); }, convert);
}
