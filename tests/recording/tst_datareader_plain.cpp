// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configuredrecording.h"
#include "oddfields.h"

#include <QtTest>

#include <algorithm>
#include <random>

namespace {

// A device that hands out a few bytes at a time, so that lines are cut anywhere.
class TricklingBuffer : public QBuffer {
public:
    using QBuffer::QBuffer;

protected:
    qint64 readData(char *data, qint64 size) override
    {
        m_step = m_step % 7 + 1;
        return QBuffer::readData(data, std::min(size, m_step));
    }

private:
    qint64 m_step = 0;
};

// The rules in their plainest form, as the expectation: whole lines, splits, the toolkit's own
// conversions, one append for every value.
void readPlainly(CFGProperties &recording, const QByteArray &data)
{
    recording.sampleCount = 0;
    for (int begin = 0; begin < data.size();) {
        const int feed = data.indexOf('\n', begin);
        QByteArray line = data.mid(begin, feed < 0 ? -1 : feed - begin);
        begin = feed < 0 ? data.size() : feed + 1;
        if (line.endsWith('\r'))
            line.chop(1);
        const QStringList fields
            = QString::fromLatin1(line.constData()).split(QLatin1Char(',')); // up to the NUL
        if (fields.size() < 2)
            return;
        ++recording.sampleCount;
        const double time = fields.at(1).toDouble() / 1000;
        recording.sampleTimes.append(time);
        for (int k = 0; k < recording.analogChannelCount; ++k) {
            if (k == recording.analogChannels.size())
                recording.analogChannels.append(new AnalogChannel);
            AnalogChannel *channel = recording.analogChannels.at(k);
            const float x = fields.value(k + 2).toFloat();
            const double value
                = static_cast<double>(recording.analogA.at(k)) * static_cast<double>(x)
                + static_cast<double>(recording.analogB.at(k));
            channel->values.append(static_cast<float>(value));
            channel->rawValues.append(x);
            if (value > static_cast<double>(channel->maxValue))
                channel->maxValue = static_cast<float>(value);
            if (value < static_cast<double>(channel->minValue))
                channel->minValue = static_cast<float>(value);
        }
        for (int c = recording.analogChannelCount + 2; c <= recording.totalChannelCount + 1; ++c) {
            const int j = c - recording.analogChannelCount - 2;
            if (j == recording.digitalChannels.size())
                recording.digitalChannels.append(new DigitalChannel);
            DigitalChannel *channel = recording.digitalChannels.at(j);
            const int state = fields.value(c).toInt();
            channel->values.append(state);
            if (state != 0)
                channel->allZero = false;
        }
    }
}

template <typename Number>
QByteArray firstDifference(const QVector<Number> &left, const QVector<Number> &right)
{
    if (left.size() != right.size())
        return "sizes " + QByteArray::number(left.size()) + ' ' + QByteArray::number(right.size());
    for (int i = 0; i < left.size(); ++i) {
        if (!sameBits(left.at(i), right.at(i)))
            return "element " + QByteArray::number(i);
    }
    return QByteArray();
}

// Empty where two recordings have the same samples bit for bit.
QByteArray difference(const CFGProperties &left, const CFGProperties &right)
{
    if (left.sampleCount != right.sampleCount
        || left.analogChannels.size() != right.analogChannels.size()
        || left.digitalChannels.size() != right.digitalChannels.size())
        return "counts";
    QByteArray found = firstDifference(left.sampleTimes, right.sampleTimes);
    if (!found.isEmpty())
        return "times: " + found;
    for (int k = 0; k < left.analogChannels.size(); ++k) {
        const AnalogChannel &one = *left.analogChannels.at(k);
        const AnalogChannel &other = *right.analogChannels.at(k);
        found = firstDifference(one.rawValues, other.rawValues)
            + firstDifference(one.values, other.values);
        if (!sameBits(one.minValue, other.minValue) || !sameBits(one.maxValue, other.maxValue))
            found += "extremes";
        if (!found.isEmpty())
            return "analog " + QByteArray::number(k) + ": " + found;
    }
    for (int j = 0; j < left.digitalChannels.size(); ++j) {
        const DigitalChannel &one = *left.digitalChannels.at(j);
        const DigitalChannel &other = *right.digitalChannels.at(j);
        if (one.values != other.values || one.allZero != other.allZero)
            return "digital " + QByteArray::number(j);
    }
    return QByteArray();
}

QByteArray anyField(std::mt19937 &random)
{
    switch (random() % 8) {
    case 0:
        return oddField(random);
    case 1:
        return plainField(random);
    case 2:
        return QByteArray::number(static_cast<qint64>(random()) - 2147483648LL);
    case 3:
        return "-0";
    case 4:
        return QByteArray();
    default:
        return QByteArray::number(static_cast<int>(random() % 65536) - 32768);
    }
}

QByteArray anyFile(std::mt19937 &random, unsigned fields)
{
    QByteArray text;
    const auto lines = random() % 60;
    for (unsigned i = 0; i < lines; ++i) {
        const auto count = random() % 6 == 0 ? 2 + random() % (fields + 3) : fields;
        for (unsigned k = 0; k < count; ++k) {
            if (k > 0)
                text += ',';
            text += anyField(random);
        }
        if (random() % 40 == 0)
            text.insert(text.size() - static_cast<int>(random() % 9) % (text.size() + 1), '\0');
        if (random() % 3 == 0)
            text += '\r';
        if (random() % 100 == 0)
            text += '\n';
        if (i + 1 < lines || random() % 2 == 0)
            text += '\n';
    }
    return text;
}

} // namespace

// The data reader against one that is obvious, on files of any contents.
class TestDataReaderPlain : public QObject {
    Q_OBJECT

private slots:
    void anyFileReadsAsThePlainReaderReadsIt_data();
    void anyFileReadsAsThePlainReaderReadsIt();
    void linesAcrossBlocksReadAsThePlainReaderReadsThem();
};

void TestDataReaderPlain::anyFileReadsAsThePlainReaderReadsIt_data()
{
    QTest::addColumn<int>("analog");
    QTest::addColumn<int>("digital");
    QTest::newRow("no channels") << 0 << 0;
    QTest::newRow("one analog channel") << 1 << 0;
    QTest::newRow("one digital channel") << 0 << 1;
    QTest::newRow("some of both") << 4 << 3;
    QTest::newRow("many") << 9 << 20;
}

void TestDataReaderPlain::anyFileReadsAsThePlainReaderReadsIt()
{
    QFETCH(int, analog);
    QFETCH(int, digital);
    std::mt19937 random(static_cast<unsigned>(19990501 + analog));
    for (int i = 0; i < 400; ++i) {
        QByteArray data = anyFile(random, static_cast<unsigned>(analog + digital + 2));
        CFGProperties expected;
        configure(expected, analog, digital);
        readPlainly(expected, data);
        for (const bool trickling : {false, true}) {
            CFGProperties recording;
            configure(recording, analog, digital);
            TricklingBuffer slow(&data);
            QBuffer whole(&data);
            QBuffer &buffer = trickling ? slow : whole;
            buffer.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
            readData(buffer, recording);
            const QByteArray found = difference(recording, expected);
            QVERIFY2(
                found.isEmpty(), (found + "\n" + data.toPercentEncoding(",\n .+")).constData());
        }
        qDeleteAll(expected.analogChannels);
        qDeleteAll(expected.digitalChannels);
    }
}

void TestDataReaderPlain::linesAcrossBlocksReadAsThePlainReaderReadsThem()
{
    // Five million bytes, with single lines of more than a million among them.
    std::mt19937 random(7);
    QByteArray data;
    int longLines = 0;
    while (data.size() < 5000000) {
        data += "1," + anyField(random) + ',' + anyField(random) + ',';
        if (random() % 20000 == 0) {
            data += QByteArray(1500000, ' ');
            ++longLines;
        }
        data += anyField(random) + ",1\n";
    }
    CFGProperties expected;
    configure(expected, 2, 1);
    readPlainly(expected, data);
    CFGProperties recording;
    configure(recording, 2, 1);
    read(recording, data);
    QVERIFY(recording.sampleCount > 10000);
    QVERIFY(longLines > 0);
    const QByteArray found = difference(recording, expected);
    QVERIFY2(found.isEmpty(), found.constData());
    qDeleteAll(expected.analogChannels);
    qDeleteAll(expected.digitalChannels);
}

QTEST_GUILESS_MAIN(TestDataReaderPlain)
#include "tst_datareader_plain.moc"
