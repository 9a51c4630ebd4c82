// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "textreader.h"

#include "cfgproperties.h"
#include "configurationreader.h"
#include "interruption.h"
#include "memoryneed.h"
#include "notetaking.h"
#include "numbers.h"
#include "recordregistry.h"
#include "samplebudget.h"
#include "textlines.h"
#include "timeofday.h"

#include <QDateTime>
#include <QIODevice>
#include <QTextCodec>
#include <QTextStream>

#include <array>
#include <optional>
#include <vector>

namespace {

// The bytes as UTF-8 where they are that, else as Latin-1; a NUL is a letter like others in both.
QString decoded(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    const QString text
        = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars > 0 || state.remainingChars > 0
        ? QString::fromLatin1(bytes.constData(), bytes.size())
        : text;
}

void readHeader(CFGProperties &recording, QString line)
{
    if (line.startsWith(QLatin1Char('#')))
        line.remove(0, 1);
    const QVector<QStringRef> names = firstFields(line, mostChannels);
    const int count = names.size();
    for (int k = 0; k < count; ++k) {
        constexpr qint64 stepsOfAName = 500;
        countWork(stepsOfAName);
        const QString field = names.at(k).toString();
        const int bracket = field.lastIndexOf(QLatin1Char('['));
        const QString unit
            = bracket < 0 ? field : field.mid(bracket + 1).section(QLatin1Char(']'), 0, 0);
        recording.analogIndexes.append(k);
        recording.analogIds.append(field.section(QLatin1Char('['), 0, 0));
        recording.analogPhases.append(QString());
        recording.analogCircuits.append(QString());
        recording.analogUnits.append(unit);
        recording.analogA.append(1);
        recording.analogB.append(0);
        recording.analogSkews.append(0);
        recording.analogMins.append(-99999);
        recording.analogMaxs.append(99999);
        recording.primaryValues.append(1);
        recording.secondaryValues.append(1);
        recording.toPrimary.append(1);
        recording.toSecondary.append(1);
        recording.psFlags.append(QStringLiteral("P"));
    }
    recording.totalChannelCount = count;
    recording.analogChannelCount = count;
    recording.rateCount = 1;
    recording.lineFrequency = 1;
    recording.sampleRate = 1;
    recording.samplesPerCycle = 1;
    recording.timeMultiplier = 1;
}

// A stamp dd/MM/yyyy-hh:mm:ss:zzz, invalid where the text is none. In UTC no hour is missing or
// doubled, which a single conversion, going by the local time, would not grant.
QDateTime parsedStamp(const QStringRef &text)
{
    const QLatin1String pattern("00/00/0000-00:00:00:000");
    if (text.size() != pattern.size())
        return {};
    std::array<int, 7> numbers{};
    auto number = numbers.begin();
    for (int i = 0; i < pattern.size(); ++i) {
        const ushort letter = text.at(i).unicode();
        const bool isDigit = letter >= '0' && letter <= '9';
        if (pattern.at(i) == QLatin1Char('0') ? !isDigit : text.at(i) != pattern.at(i))
            return {};
        if (isDigit)
            *number = *number * 10 + (letter - '0');
        else
            ++number;
    }
    const auto [day, month, year, hour, minute, second, millisecond] = numbers;
    const QDate date(year, month, day);
    const QTime time(hour, minute, second, millisecond);
    return date.isValid() && time.isValid() ? QDateTime(date, time, Qt::UTC) : QDateTime();
}

// The lines of an export without their ends. Of UTF-16, which its byte order mark tells, a line
// cannot be found by its bytes.
class TextLines {
public:
    explicit TextLines(QIODevice &device)
        : m_device(device), m_mark(device.peek(2)), m_wideText(&device)
    {
    }

    // None at the end and where the line is too long. Throws where the device fails.
    std::optional<QString> next()
    {
        QString line;
        if (m_mark == "\xff\xfe" || m_mark == "\xfe\xff") {
            if (!m_wideText.readLineInto(&line, mostLineBytes)) {
                requireEnd(m_device);
                return {};
            }
            m_isTooLong = line.size() == mostLineBytes;
            if (m_isTooLong)
                return {};
        } else {
            QByteArray bytes = nextLine(m_device, m_isTooLong);
            if (bytes.isEmpty())
                return {};
            if (bytes.endsWith('\n'))
                bytes.chop(1);
            line = decoded(bytes);
        }
        while (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        return line;
    }

    bool isTooLong() const { return m_isTooLong; } // the line that there was not

private:
    QIODevice &m_device;
    const QByteArray m_mark;
    QTextStream m_wideText;
    bool m_isTooLong = false;
};

class TextReader {
    static constexpr int rowsBetweenLooks = 1024; // at the memory that is left

public:
    TextReader(CFGProperties &recording, qint64 lettersOfHeader)
        : m_recording(recording), m_letters(lettersOfHeader)
    {
    }

    // False, with nothing read, where the lines so far are not worth another row of samples.
    bool readLine(const QString &line)
    {
        m_letters += line.size() + 1; // with the line end
        constexpr qint64 stepsOfAValue = 20;
        countWork(stepsOfAValue * (m_recording.analogChannelCount + 1));
        if (m_recording.sampleTimes.size() == mostRows
            || !isWithinBudget(m_rows + 1, m_recording.analogChannelCount, m_letters)) {
            noteLimit();
            return false;
        }
        if (m_rows % rowsBetweenLooks == 0)
            requireMemory(0);
        const QVector<QStringRef> fields = firstFields(line, m_recording.analogChannelCount + 1);
        noteFieldCount(line, fields);
        const QDateTime stamp = parsedStamp(fields.constFirst());
        if (m_recording.startDate.isEmpty())
            m_recording.startDate = stamp.toString(dateFormat);
        if (m_recording.startTime.isEmpty())
            m_recording.startTime = stamp.toString(exportedTimeFormat);
        const qint64 moment = stamp.isValid() ? stamp.toMSecsSinceEpoch() : 0;
        if (m_reference == 0)
            m_reference = moment;
        const qint64 elapsed = stamp.isValid() ? moment - m_reference : 0;
        m_recording.durationMs = elapsed;
        m_recording.lastSampleNumber = ++m_rows;
        ++m_recording.sampleCount;
        const auto time = static_cast<double>(elapsed);
        m_recording.sampleTimes.append(time);
        for (int k = 0; k < m_recording.analogChannelCount; ++k) {
            if (k == m_recording.analogChannels.size())
                m_recording.analogChannels.append(newAnalogChannel(m_recording, k));
            AnalogChannel *channel = m_recording.analogChannels.at(k);
            const bool isThere = k + 1 < fields.size();
            const float x = isThere ? fields.at(k + 1).toFloat() : 0;
            if (MissingValues::isMark(x) || (isThere && fields.at(k + 1).isEmpty()))
                noteMissing(k);
            channel->appendValue(x, 1, 0);
            channel->rawValues.append(x);
        }
        return true;
    }

    void finish()
    {
        m_recording.sampleTimes.squeeze();
        for (AnalogChannel *channel : qAsConst(m_recording.analogChannels)) {
            countWork(qint64(2) * m_rows);
            channel->times = m_recording.sampleTimes;
            channel->values.squeeze();
            channel->rawValues.squeeze();
        }
        m_oddLines.noteIn(m_recording);
        noteTimes(m_recording, 0, lineOf(0));
        for (size_t k = 0; k < m_missing.size(); ++k)
            m_missing[k].noteIn(m_recording, static_cast<int>(k));
    }

    // At the line that was not read, so many lines after the last one that was.
    void noteLimit(qint64 linesSkipped = 0)
    {
        m_recording.notes.append({ReadingNote::Kind::LimitReached, ReadingNote::File::Data,
            lineOf(m_rows) + linesSkipped});
    }

private:
    // Of a row of samples, counted from 0: the header is line 1.
    static qint64 lineOf(int row) { return qint64(row) + 2; }

    // A comma at the end of the line makes no field more.
    void noteFieldCount(const QString &line, const QVector<QStringRef> &fields)
    {
        const int expected = m_recording.analogChannelCount + 1;
        const QStringRef &last = fields.constLast();
        if (fields.size() < expected || last.position() + last.size() + 1 < line.size())
            m_oddLines.add(lineOf(m_rows), line.count(QLatin1Char(',')) + 1 - expected);
    }

    void noteMissing(int channel)
    {
        if (m_missing.empty())
            m_missing.resize(static_cast<size_t>(m_recording.analogChannelCount));
        m_missing[static_cast<size_t>(channel)].add(lineOf(m_rows - 1));
    }

    CFGProperties &m_recording;
    Occurrences m_oddLines{ReadingNote::Kind::FieldCounts};
    std::vector<MissingValues> m_missing; // by channel; empty while there are none
    qint64 m_letters; // of the lines read, the header among them
    int m_rows = 0;
    qint64 m_reference = 0; // ms since the epoch
};

} // namespace

void readTextExport(QIODevice &device, CFGProperties &recording)
{
    TextLines lines(device);
    const std::optional<QString> header = lines.next();
    if (!header) {
        if (lines.isTooLong())
            recording.notes.append({ReadingNote::Kind::LimitReached, ReadingNote::File::Data, 1});
        return;
    }
    readHeader(recording, *header);
    NameLines names;
    names.add(1, *header);
    names.noteIn(recording, ReadingNote::File::Data);
    readTimeStamps(recording);
    TextReader reader(recording, header->size());
    qint64 blankLines = 0; // at the very end of the file they are no samples
    bool goesOn = true;
    for (std::optional<QString> line; goesOn && (line = lines.next());) {
        if (line->isEmpty()) {
            ++blankLines;
            continue;
        }
        for (; goesOn && blankLines > 0; --blankLines)
            goesOn = reader.readLine(QString());
        goesOn = goesOn && reader.readLine(*line);
    }
    if (lines.isTooLong())
        reader.noteLimit(blankLines);
    reader.finish();
}
