#include "datareader.h"

#include "cfgproperties.h"
#include "numbers.h"
#include "recordregistry.h"
#include "samplebudget.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

constexpr int blockSize = 1 << 20; // bytes read at once
constexpr int smallestCapacity = 16; // samples made room for, in each of perhaps very many channels
constexpr int largestLine = 1 << 30; // bytes; a file with a longer one holds no data lines

// The end of the field that begins at a place: its comma, or the end of the line.
const char *fieldEnd(const char *begin, const char *end)
{
    const void *comma = std::memchr(begin, ',', static_cast<size_t>(end - begin));
    return comma ? static_cast<const char *>(comma) : end;
}

// Walks over the fields of one line. Beyond the last one every field is empty.
class LineFields {
public:
    LineFields(const char *begin, const char *end) : m_at(begin), m_end(end) { }

    void skip() { next(); }

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
};

class DataReader {
public:
    DataReader(QIODevice &device, CFGProperties &recording)
        : m_device(device), m_recording(recording), m_rowsBefore(recording.sampleTimes.size())
    {
    }

    void read()
    {
        QByteArray buffer;
        bool goesOn = true;
        int kept = 0; // bytes of a line begun in the block before
        while (goesOn) {
            if (kept > largestLine)
                break;
            buffer.resize(kept + blockSize);
            const qint64 count = m_device.read(buffer.data() + kept, blockSize);
            if (count <= 0) {
                if (kept > 0)
                    readLine(buffer.constData(), buffer.constData() + kept);
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
                goesOn = readLine(line, lineEnd);
                line = lineEnd + 1;
                search = line;
            }
            kept = static_cast<int>(end - line);
            std::memmove(buffer.data(), line, static_cast<size_t>(kept));
        }
        finish();
    }

private:
    // False where the line ends the data.
    bool readLine(const char *begin, const char *end)
    {
        if (end != begin && end[-1] == '\r')
            --end;
        if (const void *nul = std::memchr(begin, '\0', static_cast<size_t>(end - begin)))
            end = static_cast<const char *>(nul);
        if (fieldEnd(begin, end) == end)
            return false;
        if (m_row == 0)
            makeRecords(begin, end);
        m_bytes += end - begin;
        const auto columns = static_cast<qint64>(m_analog.size() + m_digital.size());
        if (!isWithinBudget(qint64(m_rowsBefore) + m_row + 1, columns, m_bytes))
            return false;
        if (m_row == m_capacity)
            grow();
        LineFields fields(begin, end);
        fields.skip();
        m_times[m_row] = fields.toDouble() / 1000;
        for (AnalogColumn &column : m_analog)
            column.set(m_row, fields.toFloat());
        for (DigitalColumn &column : m_digital) {
            const int state = fields.toInt();
            column.states[m_row] = state;
            column.anyState |= state;
        }
        ++m_row;
        return true;
    }

    // The promised counts are believed as far as definition lines or fields stand behind them.
    void makeRecords(const char *begin, const char *end)
    {
        const qint64 fields = std::count(begin, end, ',') + 1 - 2;
        const qint64 promised = std::max(m_recording.analogChannelCount, 0);
        const qint64 analog
            = std::min(promised, std::max<qint64>(fields, m_recording.analogIndexes.size()));
        const qint64 digital = std::min(m_recording.totalChannelCount - promised,
            std::max<qint64>(fields - promised, m_recording.digitalIndexes.size()));
        for (int k = m_recording.analogChannels.size(); k < analog; ++k)
            m_recording.analogChannels.append(newAnalogChannel(m_recording, k));
        for (int j = m_recording.digitalChannels.size(); j < digital; ++j)
            m_recording.digitalChannels.append(newDigitalChannel(m_recording, j));
        for (int k = 0; k < analog; ++k) {
            AnalogChannel *channel = m_recording.analogChannels.at(k);
            m_analog.push_back({channel, channel->values.size(), channel->a,
                m_recording.analogB.value(k, 0.0F), channel->minValue, channel->maxValue});
        }
        for (int j = 0; j < digital; ++j) {
            DigitalChannel *channel = m_recording.digitalChannels.at(j);
            m_digital.push_back({channel, channel->values.size()});
        }
    }

    void grow() { setCapacity(std::max(smallestCapacity, m_capacity + m_capacity / 2)); }

    void setCapacity(int rows)
    {
        m_capacity = rows;
        m_recording.sampleTimes.resize(m_rowsBefore + rows);
        m_times = m_recording.sampleTimes.data() + m_rowsBefore;
        for (AnalogColumn &column : m_analog) {
            column.channel->values.resize(column.rowsBefore + rows);
            column.channel->rawValues.resize(column.rowsBefore + rows);
            column.values = column.channel->values.data() + column.rowsBefore;
            column.rawValues = column.channel->rawValues.data() + column.rowsBefore;
        }
        for (DigitalColumn &column : m_digital) {
            column.channel->values.resize(column.rowsBefore + rows);
            column.states = column.channel->values.data() + column.rowsBefore;
        }
    }

    void finish()
    {
        const QVector<double> timesBefore = m_recording.sampleTimes.mid(0, m_rowsBefore);
        setCapacity(m_row);
        m_recording.sampleTimes.squeeze();
        const QVector<double> newTimes = m_recording.sampleTimes.mid(m_rowsBefore);
        const auto extend = [&](QVector<double> &times) {
            if (times == timesBefore)
                times = m_recording.sampleTimes;
            else
                times += newTimes;
        };
        for (AnalogColumn &column : m_analog) {
            column.channel->values.squeeze();
            column.channel->rawValues.squeeze();
            column.channel->minValue = column.min;
            column.channel->maxValue = column.max;
            extend(column.channel->times);
        }
        for (DigitalColumn &column : m_digital) {
            column.channel->values.squeeze();
            column.channel->allZero = column.channel->allZero && column.anyState == 0;
            extend(column.channel->times);
        }
        m_recording.sampleCount = m_row;
    }

    struct AnalogColumn {
        AnalogChannel *channel;
        int rowsBefore;
        float a;
        float b;
        float min;
        float max;
        float *values = nullptr;
        float *rawValues = nullptr;

        void set(int row, float x)
        {
            const double value
                = static_cast<double>(a) * static_cast<double>(x) + static_cast<double>(b);
            const float scaled = narrowed(value);
            rawValues[row] = x;
            values[row] = scaled;
            if (value > static_cast<double>(max))
                max = scaled;
            if (value < static_cast<double>(min))
                min = scaled;
        }
    };
    struct DigitalColumn {
        DigitalChannel *channel;
        int rowsBefore;
        int *states = nullptr;
        int anyState = 0;
    };

    QIODevice &m_device;
    CFGProperties &m_recording;
    const int m_rowsBefore;
    int m_row = 0;
    int m_capacity = 0;
    qint64 m_bytes = 0; // of the lines read
    double *m_times = nullptr;
    std::vector<AnalogColumn> m_analog;
    std::vector<DigitalColumn> m_digital;
};

} // namespace

void readData(QIODevice &device, CFGProperties &recording)
{
    DataReader(device, recording).read();
}
