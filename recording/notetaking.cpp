// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "notetaking.h"

#include "analogchannel.h"
#include "letters.h"
#include "recordingcontents.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int smallestMark = 99999;

} // namespace

void Occurrences::add(qint64 line, double amount)
{
    if (!std::isfinite(amount))
        return;
    if (m_note.count++ == 0) {
        m_note.line = line;
        m_note.amount = amount;
    }
    m_note.largest = std::max(m_note.largest, amount);
}

void Occurrences::noteIn(RecordingContents &recording) const
{
    if (m_note.count > 0)
        recording.notes.append(m_note);
}

// What was scaled may have been rounded otherwise than here.
bool MissingValues::mayBeAmong(const AnalogChannel &channel, float offset)
{
    constexpr double rounding = 1e-6;
    const double slope = std::abs(static_cast<double>(channel.a));
    const auto shift = static_cast<double>(offset);
    const double reached = channel.a < 0 ? shift - static_cast<double>(channel.minValue)
                                         : static_cast<double>(channel.maxValue) - shift;
    return !(reached < slope * smallestMark - rounding * (slope * smallestMark + std::abs(shift)));
}

void MissingValues::add(qint64 line, qint64 count)
{
    m_line = m_count == 0 ? line : std::min(m_line, line);
    m_count += count;
}

void MissingValues::addMarks(const float *values, int count, qint64 firstLine)
{
    const auto marks = std::count_if(values, values + count, isMark);
    if (marks > 0)
        add(firstLine + (std::find_if(values, values + count, isMark) - values), marks);
}

void MissingValues::noteIn(RecordingContents &recording, int channel) const
{
    if (m_count > 0)
        recording.notes.append(
            {ReadingNote::Kind::MissingValues, ReadingNote::File::Data, m_line, m_count, channel});
}

void NameLines::add(qint64 line, const QString &text)
{
    constexpr int mostTexts = 1000;
    if (isPlain(text))
        return;
    if (m_count++ == 0)
        m_line = line;
    if (m_texts.size() < mostTexts)
        m_texts.append(text);
}

void NameLines::noteIn(RecordingContents &recording, ReadingNote::File file) const
{
    const QString letters = lettersName(likelyLetters(m_texts));
    if (!letters.isEmpty())
        recording.notes.append(
            {ReadingNote::Kind::OtherLetters, file, m_line, m_count, -1, 0, 0, letters});
}

void noteTimes(RecordingContents &recording, int firstSample, qint64 firstLine)
{
    const int count = recording.sampleTimes.size() - firstSample;
    if (count < 2)
        return;
    const double *const times = recording.sampleTimes.constData() + firstSample;
    if (std::all_of(times + 1, times + count, [=](double time) { return time == times[0]; })) {
        recording.notes.append({ReadingNote::Kind::EqualTimes, ReadingNote::File::Data, firstLine,
            count, -1, times[0]});
        return;
    }
    Occurrences jumps(ReadingNote::Kind::TimeJumps);
    Occurrences stepsBack(ReadingNote::Kind::TimeSteppedBack);
    // Stamps of few digits make equal steps look like one and two; from one rate to the next the
    // steps stay what they became.
    constexpr double farther = 2.01;
    double before = 0; // the last step forward that was no jump
    for (int i = 1; i < count; ++i) {
        const double step = times[i] - times[i - 1];
        if (step > farther * before) {
            const double after = i + 1 < count ? times[i + 1] - times[i] : 0;
            if (step > farther * after && (before > 0 || after > 0)) {
                jumps.add(firstLine + i, step);
                continue;
            }
        }
        if (step < 0)
            stepsBack.add(firstLine + i, -step);
        else if (step > 0)
            before = step;
    }
    jumps.noteIn(recording);
    stepsBack.noteIn(recording);
}

void noteSampleCount(RecordingContents &recording)
{
    using Kind = ReadingNote::Kind;
    const int promised = recording.lastSampleNumber;
    if (promised <= 0 || recording.sampleCount == promised)
        return;
    const Kind kind = recording.sampleCount < promised ? Kind::FewerSamples : Kind::MoreSamples;
    const qint64 lastRateLine = qint64(recording.totalChannelCount) + recording.rateCount + 4;
    recording.notes.append({kind, ReadingNote::File::Configuration,
        std::min<qint64>(lastRateLine, recording.cfgLineNumber), recording.sampleCount, -1,
        static_cast<double>(promised)});
}
