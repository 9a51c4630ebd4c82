// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "datareader.h"

#include "cfgproperties.h"
#include "interruption.h"
#include "memoryneed.h"
#include "notetaking.h"
#include "numbers.h"
#include "readerror.h"
#include "recordregistry.h"
#include "samplebudget.h"

#include <QIODevice>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace {

constexpr int mostBlockBytes = 1 << 18; // read at once
// Lines gathered before they go to their channels. Blocks of a power of two would contend for the
// same few lines of the processor's cache.
constexpr size_t mostBlockRows = 240;
constexpr size_t mostGathered = 1 << 20; // samples gathered, in perhaps very many channels

// The end of the field that begins at a place: its comma, or the end of the line.
const char *fieldEnd(const char *begin, const char *end)
{
    const void *comma = std::memchr(begin, ',', static_cast<size_t>(end - begin));
    return comma ? static_cast<const char *>(comma) : end;
}

// Whether nothing is left but line ends, and perhaps the mark that ends files of old.
bool isBlank(const char *begin, const char *end)
{
    constexpr char endOfFile = 0x1a;
    return std::all_of(begin, end,
        [](char c) { return c == '\n' || c == '\r' || c == ' ' || c == '\0' || c == endOfFile; });
}

// Walks over the fields of one line. Beyond the last one every field is empty. A line with a field
// that is empty or missing is told as odd.
class LineFields {
public:
    // What tells of it stands elsewhere, so that it takes no register of the loops over the fields.
    LineFields(const char *begin, const char *end, bool &isOdd)
        : m_at(begin), m_end(end), m_isOdd(isOdd)
    {
    }

    bool isAtEnd() const { return m_at == m_end; }

    double toDouble()
    {
        const Field field = next();
        return fieldToDouble(field.begin, field.end);
    }

    float toFloat() { return takeFloat(m_at, m_end); }

    int toInt()
    {
        // Nearly all states are one digit.
        if (m_end - m_at >= 2 && m_at[1] == ',' && m_at[0] >= '0' && m_at[0] <= '9') {
            m_at += 2;
            return m_at[-2] - '0';
        }
        const Field field = next();
        return fieldToInt(field.begin, field.end);
    }

private:
    struct Field {
        const char *begin;
        const char *end;
    };

    Field next()
    {
        const char *const begin = m_at;
        const char *const end = fieldEnd(begin, m_end);
        m_at = end == m_end ? m_end : end + 1;
        if (begin == end)
            m_isOdd = true;
        return {begin, end};
    }

    float takeFloat(const char *&at, const char *end)
    {
        // A short whole number, in one pass over its digits.
        const char *digit = at;
        const bool isNegative = digit != end && *digit == '-';
        if (isNegative)
            ++digit;
        const char *const first = digit;
        int number = 0;
        while (digit != end && *digit >= '0' && *digit <= '9' && digit - first < 9)
            number = number * 10 + (*digit++ - '0');
        if (digit != end && *digit == ',' && digit != first && number != 0) {
            at = digit + 1;
            return static_cast<float>(isNegative ? -number : number);
        }
        const Field field = next();
        return fieldToFloat(field.begin, field.end);
    }

    const char *m_at;
    const char *m_end;
    bool &m_isOdd;
};

class DataReader {
public:
    DataReader(QIODevice &device, CFGProperties &recording)
        : m_device(device), m_recording(recording), m_rowsBefore(recording.sampleTimes.size())
    {
    }

    void read()
    {
        // A small file needs no large buffer; what tells no size, or grows, is read all the same.
        const int blockSize = static_cast<int>(
            std::clamp<qint64>(m_device.size() + 1, mostBlockBytes / 64, mostBlockBytes));
        QByteArray buffer;
        bool goesOn = true;
        int kept = 0; // bytes of a line begun in the block before
        while (goesOn) {
            if (kept > mostLineBytes) {
                endAt(Kind::LimitReached);
                break;
            }
            buffer.resize(kept + blockSize);
            const qint64 count = m_device.read(buffer.data() + kept, blockSize);
            if (count < 0)
                throw ReadError();
            if (count == 0) {
                if (kept > 0)
                    readLine(buffer.constData(), buffer.constData() + kept, 0);
                break;
            }
            const char *const end = buffer.constData() + kept + count;
            const char *line = buffer.constData();
            // The kept part has no line end.
            const char *search = line + kept;
            while (goesOn) {
                const void *feed = std::memchr(search, '\n', static_cast<size_t>(end - search));
                if (!feed)
                    break;
                const char *const lineEnd = static_cast<const char *>(feed);
                goesOn = lineEnd - line < mostLineBytes ? readLine(line, lineEnd, end - lineEnd)
                                                        : endAt(Kind::LimitReached);
                line = lineEnd + 1;
                search = line;
            }
            kept = static_cast<int>(end - line);
            if (line != buffer.constData())
                std::memmove(buffer.data(), line, static_cast<size_t>(kept));
        }
        finish();
    }

private:
    using Kind = ReadingNote::Kind;

    struct AnalogColumn {
        AnalogChannel *channel;
        float b;
        float *block;
    };
    struct DigitalColumn {
        DigitalChannel *channel;
        int *block;
    };

    // False where the line ends the data. So many bytes behind its end have been read.
    bool readLine(const char *begin, const char *end, std::ptrdiff_t bytesBehind)
    {
        const char *const readEnd = end + bytesBehind;
        const qint64 length = end - begin + 1; // with the line end
        if (end != begin && end[-1] == '\r')
            --end;
        if (const void *nul = std::memchr(begin, '\0', static_cast<size_t>(end - begin)))
            end = static_cast<const char *>(nul);
        const char *const numberEnd = fieldEnd(begin, end);
        if (numberEnd == end)
            return !isBlankToTheEnd(begin, readEnd) && endAt(Kind::EndedAtLine);
        if (m_rows == 0)
            makeRecords(length);
        m_bytes += length;
        countWork(length + 2 * columns());
        if (m_rowsBefore + m_rows == mostRows || !isWithinBudget(m_rows + 1, columns(), m_bytes))
            return endAt(Kind::LimitReached);
        m_isOddLine = false;
        LineFields fields(numberEnd + 1, end, m_isOddLine);
        m_times[m_gathered] = fields.toDouble() / 1000;
        for (AnalogColumn &column : m_analog)
            column.block[m_gathered] = fields.toFloat();
        for (DigitalColumn &column : m_digital)
            column.block[m_gathered] = fields.toInt();
        if (m_isOddLine || !fields.isAtEnd())
            noteOddLine(begin, end);
        ++m_rows;
        if (++m_gathered == m_blockRows)
            deliver();
        return true;
    }

    // Of a place in the block that was read. A little that is blank may follow in the next one.
    bool isBlankToTheEnd(const char *begin, const char *readEnd)
    {
        if (!isBlank(begin, readEnd))
            return false;
        const QByteArray behind = m_device.peek(mostBlockBytes);
        return behind.size() < mostBlockBytes && isBlank(behind.cbegin(), behind.cend());
    }

    // Counted from 1.
    qint64 nextLine() const { return qint64(m_rows) + 1; }

    // Notes why the next line is not read.
    bool endAt(Kind kind)
    {
        m_recording.notes.append({kind, ReadingNote::File::Data, nextLine()});
        return false;
    }

    // Of a line whose fields were just taken. A comma at its end makes no field more.
    void noteOddLine(const char *begin, const char *end)
    {
        const qint64 surplus = std::count(begin, end, ',') - 1 - columns();
        if (surplus < 0 || surplus > (end[-1] == ',' ? 1 : 0))
            m_oddLines.add(nextLine(), static_cast<double>(surplus));
        const char *at = fieldEnd(fieldEnd(begin, end) + 1, end); // behind the time stamp
        for (size_t k = 0; k < m_analog.size() && at != end; ++k) {
            const char *const field = at + 1;
            at = fieldEnd(field, end);
            if (at == field)
                m_missing[k].add(nextLine());
        }
    }

    // Of the values gathered. Those of most channels never come near a mark and need not be looked
    // through.
    void noteMarks()
    {
        const qint64 firstLine = nextLine() - static_cast<qint64>(m_gathered);
        for (size_t k = 0; k < m_analog.size(); ++k) {
            const AnalogColumn &column = m_analog[k];
            if (MissingValues::mayBeAmong(*column.channel, column.b))
                m_missing[k].addMarks(column.block, static_cast<int>(m_gathered), firstLine);
        }
    }

    qint64 columns() const
    {
        return static_cast<qint64>(m_analog.size()) + static_cast<qint64>(m_digital.size());
    }

    // Every promised column gets a record, whether a line has it or not, that has a definition or
    // that a line of this file could have.
    void makeRecords(qint64 firstLineBytes)
    {
        const qint64 reached = mostBackedColumns(firstLineBytes, m_device.size());
        const qint64 promised = std::max(m_recording.analogChannelCount, 0);
        const qint64 analog = std::min<qint64>(
            {promised, mostChannels, std::max<qint64>(reached, m_recording.analogIndexes.size())});
        const qint64 digital
            = std::min<qint64>({m_recording.totalChannelCount - promised, mostChannels - analog,
                std::max<qint64>(reached - analog, m_recording.digitalIndexes.size())});
        for (int k = m_recording.analogChannels.size(); k < analog; ++k)
            m_recording.analogChannels.append(newAnalogChannel(m_recording, k));
        for (int j = m_recording.digitalChannels.size(); j < digital; ++j)
            m_recording.digitalChannels.append(newDigitalChannel(m_recording, j));
        makeColumns(static_cast<size_t>(std::max<qint64>(analog, 0)),
            static_cast<size_t>(std::max<qint64>(digital, 0)));
    }

    void makeColumns(size_t analog, size_t digital)
    {
        m_blockRows = std::clamp<size_t>(
            mostGathered / std::max<size_t>(analog + digital, 1), 1, mostBlockRows);
        m_missing.resize(analog);
        m_analogBlocks.resize(analog * m_blockRows);
        m_digitalBlocks.resize(digital * m_blockRows);
        for (size_t k = 0; k < analog; ++k) {
            const int row = static_cast<int>(k);
            m_analog.push_back({m_recording.analogChannels.at(row),
                m_recording.analogB.value(row, 0.0F), &m_analogBlocks[k * m_blockRows]});
        }
        for (size_t j = 0; j < digital; ++j)
            m_digital.push_back({m_recording.digitalChannels.at(static_cast<int>(j)),
                &m_digitalBlocks[j * m_blockRows]});
    }

    // Makes room for as many lines as the device holds when the rest are as long as those that
    // were read, within bounds: they may be longer.
    void reserve()
    {
        constexpr double mostForEachRead = 16;
        const double expected = static_cast<double>(m_rows) / static_cast<double>(m_bytes)
            * static_cast<double>(m_device.size());
        const double wanted = std::clamp(expected, m_rows * 1.125, m_rows * mostForEachRead);
        const int delivered = m_rows - static_cast<int>(m_gathered);
        m_rowsWithRoom = static_cast<int>(std::min<double>(wanted, mostRows - m_rowsBefore));
        const int additional = m_rowsWithRoom - delivered;
        const std::size_t bytesOfRow
            = sizeof(double) + 2 * sizeof(float) * m_analog.size() + sizeof(int) * m_digital.size();
        const auto row = static_cast<qint64>(bytesOfRow);
        // While a list moves, it stands in two places.
        requireMemory(additional * row + m_rowsWithRoom * static_cast<qint64>(sizeof(double)));
        const auto extend
            = [additional](auto &series) { series.reserve(series.size() + additional); };
        extend(m_recording.sampleTimes);
        for (const AnalogColumn &column : m_analog) {
            extend(column.channel->values);
            extend(column.channel->rawValues);
        }
        for (const DigitalColumn &column : m_digital)
            extend(column.channel->values);
    }

    void deliver()
    {
        if (m_rows > m_rowsWithRoom)
            reserve();
        const int count = static_cast<int>(m_gathered);
        constexpr qint64 stepsOfASeries = 20;
        countWork(columns() * (count + stepsOfASeries));
        append(m_recording.sampleTimes, m_times.data());
        for (const AnalogColumn &column : m_analog) {
            append(column.channel->rawValues, column.block);
            column.channel->appendValues(column.block, count, column.channel->a, column.b);
        }
        noteMarks();
        for (const DigitalColumn &column : m_digital)
            column.channel->appendValues(column.block, count);
        m_gathered = 0;
    }

    template <typename Number> void append(QVector<Number> &series, const Number *block) const
    {
        const int count = series.size();
        series.resize(count + static_cast<int>(m_gathered));
        std::copy_n(block, m_gathered, series.begin() + count);
    }

    void finish()
    {
        deliver();
        m_recording.sampleTimes.squeeze();
        // Lists that were empty share these times instead of copying them.
        const QVector<double> times = m_recording.sampleTimes.mid(m_rowsBefore);
        for (const AnalogColumn &column : m_analog) {
            countWork(qint64(2) * m_rows);
            column.channel->values.squeeze();
            column.channel->rawValues.squeeze();
            column.channel->times += times;
        }
        for (const DigitalColumn &column : m_digital) {
            countWork(m_rows);
            column.channel->values.squeeze();
            column.channel->times += times;
        }
        m_recording.sampleCount = m_rows;
        takeNotes();
    }

    void takeNotes()
    {
        noteSampleCount(m_recording);
        m_oddLines.noteIn(m_recording);
        noteTimes(m_recording, m_rowsBefore, 1);
        for (size_t k = 0; k < m_missing.size(); ++k)
            m_missing[k].noteIn(m_recording, static_cast<int>(k));
    }

    QIODevice &m_device;
    CFGProperties &m_recording;
    const int m_rowsBefore; // of earlier readings
    int m_rows = 0;
    int m_rowsWithRoom = 0; // in the series
    size_t m_gathered = 0; // rows in the blocks
    qint64 m_bytes = 0; // of the lines read
    size_t m_blockRows = mostBlockRows;
    std::array<double, mostBlockRows> m_times;
    std::vector<float> m_analogBlocks;
    std::vector<int> m_digitalBlocks;
    std::vector<AnalogColumn> m_analog;
    std::vector<DigitalColumn> m_digital;
    bool m_isOddLine = false;
    Occurrences m_oddLines{Kind::FieldCounts};
    std::vector<MissingValues> m_missing; // by channel
};

} // namespace

void readData(QIODevice &device, CFGProperties &recording)
{
    DataReader(device, recording).read();
}
