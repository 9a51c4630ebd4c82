#include "recordingwriter.h"

#include "cfgproperties.h"
#include "numbers.h"

#include <QSaveFile>
#include <QTime>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

const QLatin1String extension(".cfg");
const QString timeFormat = QStringLiteral("hh:mm:ss.zzz");
constexpr int blockSize = 1 << 20; // bytes written at once

QString general(double value)
{
    return QString::number(value, 'g', 6);
}

QString sixDecimals(double value)
{
    return QString::number(value, 'f', 6);
}

// A value without decimals, as the toolkit writes it. Whole numbers, which nearly all are, need no
// rounding and no string.
void appendWhole(QByteArray &line, double value)
{
    constexpr double exact = 1e15;
    if (value != std::trunc(value) || std::abs(value) > exact) {
        line.append(QByteArray::number(value, 'f', 0));
        return;
    }
    char digits[24];
    const std::to_chars_result result
        = std::to_chars(std::begin(digits), std::end(digits), static_cast<qint64>(value));
    line.append(digits, static_cast<int>(result.ptr - digits));
}

void appendWhole(QByteArray &line, int value)
{
    char digits[12];
    const std::to_chars_result result = std::to_chars(std::begin(digits), std::end(digits), value);
    line.append(digits, static_cast<int>(result.ptr - digits));
}

// The bytes that were read where they were Latin-1.
QByteArray encoded(const QString &text)
{
    const bool isLatin1 = std::all_of(
        text.cbegin(), text.cend(), [](QChar letter) { return letter.unicode() <= 0xff; });
    return isLatin1 ? text.toLatin1() : text.toUtf8();
}

// A time of day moved by milliseconds, truncated to whole ones, round the clock.
QTime moved(const QTime &time, double milliseconds)
{
    constexpr qint64 day = 24 * 60 * 60 * 1000;
    return time.addMSecs(static_cast<int>(truncatedToInt64(milliseconds) % day));
}

RecordingWriter::Outcome failure(const QSaveFile &file)
{
    return {file.fileName(), file.errorString()};
}

// Puts the complete file in its place. The flush stands apart because a commit does not notice
// that its own last bytes could not be written.
RecordingWriter::Outcome finish(QSaveFile &file)
{
    if (!file.flush()) {
        const RecordingWriter::Outcome outcome = failure(file);
        file.cancelWriting();
        return outcome;
    }
    return file.commit() ? RecordingWriter::Outcome() : failure(file);
}

} // namespace

RecordingWriter::RecordingWriter(
    const CFGProperties &recording, const QStringList &primaries, const QStringList &secondaries)
    : m_recording(recording), m_primaries(primaries), m_secondaries(secondaries)
{
}

RecordingWriter::Outcome RecordingWriter::write(const QString &path, double start, double end) const
{
    return writePair(path, start, end, Side::AsRead);
}

RecordingWriter::Outcome RecordingWriter::writeAsPrimary(const QString &path) const
{
    constexpr double everything = std::numeric_limits<double>::infinity();
    return writePair(path, -everything, everything, Side::Primary);
}

template <typename Visitor>
void RecordingWriter::visitSamples(double start, double end, const Visitor &visit) const
{
    const QVector<double> &times = m_recording.sampleTimes;
    const int count = std::min(m_recording.sampleCount, times.size());
    for (int sample = 0; sample < count; ++sample) {
        if (start > times.at(sample))
            continue;
        if (times.at(sample) > end)
            return;
        visit(sample, times.at(sample));
    }
}

RecordingWriter::Outcome RecordingWriter::writePair(
    const QString &path, double start, double end, Side side) const
{
    Span span;
    visitSamples(start, end, [&](int /*sample*/, double time) {
        if (span.count++ == 0)
            span.start = time;
        span.elapsed = time - span.start;
    });

    const QString stem = path.endsWith(extension) ? path.chopped(extension.size()) : path;
    Outcome outcome;
    QSaveFile configurationFile(stem + extension);
    if (configurationFile.open(QIODevice::WriteOnly)) {
        configurationFile.write(encoded(configuration(span, side)));
        outcome = finish(configurationFile);
    }

    QSaveFile dataFile(stem + QLatin1String(".dat"));
    if (dataFile.open(QIODevice::WriteOnly)) {
        QByteArray text;
        bool isFirst = true;
        visitSamples(start, end, [&](int sample, double /*time*/) {
            if (!isFirst)
                text.append('\n');
            isFirst = false;
            appendDataLine(text, sample, span.start);
            if (text.size() >= blockSize) {
                dataFile.write(text);
                text.resize(0);
            }
        });
        dataFile.write(text);
        const Outcome dataOutcome = finish(dataFile);
        if (!outcome.hasFailed())
            outcome = dataOutcome;
    }
    return outcome;
}

QString RecordingWriter::configuration(const Span &span, Side side) const
{
    QStringList lines;
    lines.append(QStringList(
        {m_recording.stationName, m_recording.recordingDeviceId, m_recording.revisionYear})
                     .join(QLatin1Char(',')));
    lines.append(QStringLiteral("%1,%2A,%3D")
                     .arg(m_recording.totalChannelCount)
                     .arg(m_recording.analogChannelCount)
                     .arg(m_recording.digitalChannelCount));
    // A record without a definition has a line too: its samples are in the data lines.
    const int analogLines
        = std::max(m_recording.analogIndexes.size(), m_recording.analogChannels.size());
    for (int row = 0; row < analogLines; ++row)
        lines.append(analogLine(row, side));
    const int digitalLines
        = std::max(m_recording.digitalIndexes.size(), m_recording.digitalChannels.size());
    for (int row = 0; row < digitalLines; ++row)
        lines.append(digitalLine(row));
    lines.append(sixDecimals(m_recording.lineFrequency));
    lines.append(QString::number(m_recording.rateCount));
    // No more rate lines than the file that was read can have had.
    const int rates = std::min(m_recording.rateCount, std::max(1, m_recording.cfgLineNumber));
    for (int i = 0; i < rates; ++i)
        lines.append(
            sixDecimals(m_recording.sampleRate) + QLatin1Char(',') + QString::number(span.count));
    lines.append(timeStampLines(span));
    lines.append(m_recording.fileType);
    lines.append(general(m_recording.timeMultiplier));
    return lines.join(QLatin1Char('\n'));
}

QString RecordingWriter::analogLine(int row, Side side) const
{
    const auto rating = [row](const QStringList &texts, const QList<double> &read) {
        return sixDecimals(row < texts.size() ? texts.at(row).toDouble() : read.value(row, 1));
    };
    auto a = static_cast<double>(m_recording.analogA.value(row, 1));
    auto b = static_cast<double>(m_recording.analogB.value(row));
    QString flag = m_recording.psFlags.value(row);
    if (side == Side::Primary) {
        const AnalogChannel *channel = m_recording.analogChannels.value(row);
        if (flag == QLatin1String("S") && channel && std::isfinite(channel->toPrimary)) {
            a *= channel->toPrimary;
            b *= channel->toPrimary;
        }
        flag = QStringLiteral("P");
    }
    return QStringList(
        {QString::number(m_recording.analogIndexes.value(row)), m_recording.analogIds.value(row),
            m_recording.analogPhases.value(row), m_recording.analogCircuits.value(row),
            m_recording.analogUnits.value(row), general(a), general(b),
            general(m_recording.analogSkews.value(row)),
            QString::number(m_recording.analogMins.value(row)),
            QString::number(m_recording.analogMaxs.value(row)),
            rating(m_primaries, m_recording.primaryValues),
            rating(m_secondaries, m_recording.secondaryValues), flag})
        .join(QLatin1Char(','));
}

QString RecordingWriter::digitalLine(int row) const
{
    return QStringList(
        {QString::number(m_recording.digitalIndexes.value(row)), m_recording.digitalIds.value(row),
            m_recording.digitalPhases.value(row), m_recording.digitalCircuits.value(row),
            m_recording.digitalNormalStates.value(row)})
        .join(QLatin1Char(','));
}

// The trigger moves to the new start when it does not lie between the new start and the new end.
// The dates stay, also when the range crosses midnight.
QStringList RecordingWriter::timeStampLines(const Span &span) const
{
    const QTime start = moved(QTime::fromString(m_recording.startTime, timeFormat), span.start);
    const QTime end = moved(start, span.elapsed);
    QTime trigger = QTime::fromString(m_recording.triggerTime, timeFormat);
    if (!(start <= trigger && trigger <= end))
        trigger = start;
    return {m_recording.startDate + QLatin1Char(',') + start.toString(timeFormat),
        m_recording.triggerDate + QLatin1Char(',') + trigger.toString(timeFormat)};
}

void RecordingWriter::appendDataLine(QByteArray &text, int sample, double firstTime) const
{
    appendWhole(text, sample + 1);
    text.append(',');
    appendWhole(text, m_recording.sampleTimes.at(sample) * 1000 - firstTime * 1000);
    text.append(',');
    for (const AnalogChannel *channel : m_recording.analogChannels) {
        appendWhole(text, static_cast<double>(channel->rawValues.at(sample)));
        text.append(',');
    }
    for (const DigitalChannel *channel : m_recording.digitalChannels) {
        appendWhole(text, channel->values.at(sample));
        text.append(',');
    }
    if (!m_recording.digitalChannels.isEmpty())
        text.chop(1);
}
