// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configurationreader.h"

#include "cfgproperties.h"
#include "notetaking.h"
#include "numbers.h"
#include "textlines.h"
#include "timeofday.h"

#include <QIODevice>

#include <algorithm>

namespace {

using Kind = ReadingNote::Kind;

QString withoutLast(const QString &text, int count = 1)
{
    return text.chopped(std::min(count, text.size()));
}

// The factors are written as a reciprocal and a product, which rounds twice.
void appendFactors(CFGProperties &recording, const QString &flag, double primary, double secondary)
{
    if (flag == QLatin1String("S")) {
        recording.toPrimary.append((1 / secondary) * primary);
        recording.toSecondary.append(1);
    } else if (flag == QLatin1String("P")) {
        recording.toPrimary.append(1);
        recording.toSecondary.append((1 / primary) * secondary);
    }
}

void readAnalogLine(CFGProperties &recording, const QStringList &fields)
{
    recording.analogIndexes.append(fields.value(0).toInt());
    recording.analogIds.append(fields.value(1));
    recording.analogPhases.append(fields.value(2));
    recording.analogCircuits.append(fields.value(3));
    recording.analogUnits.append(fields.value(4));
    recording.analogA.append(narrowed(fields.value(5).toDouble()));
    recording.analogB.append(narrowed(fields.value(6).toDouble()));
    recording.analogSkews.append(fields.value(7).toDouble());
    recording.analogMins.append(fields.value(8).toInt());
    recording.analogMaxs.append(fields.value(9).toInt());
    recording.primaryValues.append(fields.value(10).toDouble());
    recording.secondaryValues.append(fields.value(11).toDouble());
    recording.psFlags.append(fields.value(12).left(1));
    appendFactors(recording, recording.psFlags.constLast(), recording.primaryValues.constLast(),
        recording.secondaryValues.constLast());
}

void readDigitalLine(CFGProperties &recording, const QStringList &fields)
{
    recording.digitalIndexes.append(fields.value(0).toInt());
    if (fields.size() >= 2)
        recording.digitalIds.append(fields.at(1));
    if (fields.size() >= 3)
        recording.digitalPhases.append(fields.at(2));
    if (fields.size() >= 4)
        recording.digitalCircuits.append(fields.at(3));
    if (fields.size() >= 5) {
        QString state = fields.at(4);
        state.remove(QLatin1Char('\n'));
        state.remove(QLatin1String("\r\n"));
        recording.digitalNormalStates.append(state);
    }
}

void note(
    CFGProperties &recording, Kind kind, qint64 count, double amount, const QString &word = {})
{
    recording.notes.append({kind, ReadingNote::File::Configuration, recording.cfgLineNumber, count,
        -1, amount, amount, word});
}

void noteRevision(CFGProperties &recording)
{
    constexpr int known = 1999;
    const int year = recording.revisionYear.toInt();
    if (year > known)
        note(recording, Kind::LaterRevision, 1, year);
}

void noteChannelCounts(CFGProperties &recording)
{
    const qint64 sum = qint64(recording.analogChannelCount) + recording.digitalChannelCount;
    if (recording.totalChannelCount != sum)
        note(recording, Kind::ChannelCounts, recording.totalChannelCount, static_cast<double>(sum));
}

// Its three numbers; none where the text is no date, which is short.
QVector<int> numbersOfDate(const QString &date)
{
    constexpr int count = 3;
    constexpr int mostLetters = 100;
    if (date.size() > mostLetters)
        return {};
    const QStringList fields = date.split(QLatin1Char('/'));
    QVector<int> numbers;
    for (int i = 0; i < count; ++i) {
        bool isNumber = false;
        numbers.append(fields.value(i).toInt(&isNumber));
        if (!isNumber)
            return {};
    }
    return numbers;
}

// Where the dates are equal by mistake, midnight shows in the times of day.
void noteDays(CFGProperties &recording)
{
    constexpr int halfADay = 12 * 3600 * 1000; // ms
    const QVector<int> start = numbersOfDate(recording.startDate);
    const QVector<int> trigger = numbersOfDate(recording.triggerDate);
    if ((!start.isEmpty() && !trigger.isEmpty() && start != trigger)
        || recording.triggerOffsetMs < -halfADay)
        note(recording, Kind::TriggerOnOtherDay, 1, recording.triggerOffsetMs);
}

// By its line: where that has no end to be cut, a letter of the type is missing in the recording.
// Numbers and stamps, which are read as one where lines are missing, are none.
void noteType(CFGProperties &recording, const QString &line)
{
    const QString type = line.trimmed();
    const bool isWord
        = !type.isEmpty() && type.at(0).isLetter() && !type.contains(QLatin1Char(','));
    if (isWord && type.compare(QLatin1String("ascii"), Qt::CaseInsensitive) != 0)
        note(recording, Kind::NotAscii, 1, 0, type);
}

void readLine(CFGProperties &recording, const QString &line)
{
    const qint64 number = recording.cfgLineNumber;
    const qint64 analog = recording.analogChannelCount;
    const qint64 channels = analog + recording.digitalChannelCount;
    // From the rate lines on, the places follow the total count, which may differ.
    const qint64 total = recording.totalChannelCount;
    const qint64 rates = recording.rateCount;
    constexpr int mostFields = 13; // that a line has any use for
    QStringList fields;
    for (const QStringRef &field : firstFields(line, mostFields))
        fields += field.toString();

    if (number == 1) {
        recording.stationName = fields.value(0);
        recording.recordingDeviceId = fields.value(1);
        recording.revisionYear = withoutLast(fields.value(2));
        noteRevision(recording);
    } else if (number == 2) {
        recording.totalChannelCount = fields.value(0).toInt();
        recording.analogChannelCount = withoutLast(fields.value(1)).toInt();
        recording.digitalChannelCount = withoutLast(fields.value(2), 2).toInt();
        noteChannelCounts(recording);
    } else if (number >= 3 && number <= analog + 2) {
        readAnalogLine(recording, fields);
    } else if (number >= analog + 3 && number <= channels + 2) {
        readDigitalLine(recording, fields);
    } else if (number == channels + 3) {
        recording.lineFrequency = withoutLast(line).toDouble();
    } else if (number == channels + 4) {
        recording.rateCount = withoutLast(line).toInt();
        if (recording.rateCount <= 0)
            note(recording, Kind::NoRates, 1, 0);
    } else if (number >= total + 5 && number <= total + 4 + rates) {
        recording.sampleRate = fields.value(0).toDouble();
        recording.lastSampleNumber = withoutLast(fields.value(1)).toInt();
        recording.durationMs
            = truncatedToInt64(recording.lastSampleNumber / recording.sampleRate * 1000);
        if (rates > 1 && number == total + 4 + rates)
            note(recording, Kind::SeveralRates, rates, recording.sampleRate);
    } else if (number == total + rates + 5) {
        recording.startDate = fields.value(0);
        recording.startTime = withoutLast(fields.value(1));
    } else if (number == total + rates + 6) {
        recording.triggerDate = fields.value(0);
        recording.triggerTime = withoutLast(fields.value(1));
        readTimeStamps(recording);
        noteDays(recording);
    } else if (number == total + rates + 7) {
        recording.fileType = withoutLast(line);
        noteType(recording, line);
    } else if (number == total + rates + 8) {
        recording.timeMultiplier = line.toDouble();
    }
}

} // namespace

void readTimeStamps(CFGProperties &recording)
{
    recording.triggerTime.truncate(timeOfDayFormat.size());
    recording.startTime.truncate(timeOfDayFormat.size());
    const QTime start = QTime::fromString(recording.startTime, timeOfDayFormat);
    const QTime trigger = QTime::fromString(recording.triggerTime, timeOfDayFormat);
    recording.triggerOffsetMs = start.msecsTo(trigger); // 0 where one of them is no time
}

void readConfiguration(QIODevice &device, CFGProperties &recording)
{
    constexpr int fewestFields = 10; // of an analog channel; 1991 has no more
    bool isTooLong = false;
    NameLines names;
    Occurrences shortLines(Kind::FieldCounts, ReadingNote::File::Configuration);
    for (QByteArray line; !(line = nextLine(device, isTooLong)).isEmpty();) {
        // A text-mode device would drop other carriage returns too, by the state of its buffer.
        if (line.endsWith("\r\n"))
            line.remove(line.size() - 2, 1);
        ++recording.cfgLineNumber;
        // The text of a line ends at its first NUL.
        const QString text = QString::fromLatin1(line.constData());
        readLine(recording, text);
        const qint64 number = recording.cfgLineNumber;
        const qint64 analog = recording.analogChannelCount;
        if (number <= analog + recording.digitalChannelCount + 2)
            names.add(number, text);
        const bool isAnalog = number >= 3 && number <= analog + 2;
        const int missing = isAnalog ? fewestFields - 1 - text.count(QLatin1Char(',')) : 0;
        if (missing > 0)
            shortLines.add(number, -missing);
        recording.samplesPerCycle = roundedToInt(recording.sampleRate / recording.lineFrequency);
    }
    shortLines.noteIn(recording);
    names.noteIn(recording, ReadingNote::File::Configuration);
    if (isTooLong)
        recording.notes.append({Kind::LimitReached, ReadingNote::File::Configuration,
            qint64(recording.cfgLineNumber) + 1});
}
