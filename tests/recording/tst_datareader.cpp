// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configuredrecording.h"
#include "oddfields.h"
#include "recordingbuilder.h"

#include <QBuffer>
#include <QtTest>

#include <limits>

namespace {

// A device that does not know how much it holds.
class UnmeasuredBuffer : public QBuffer {
public:
    using QBuffer::QBuffer;
    qint64 size() const override { return 0; }
};

} // namespace

class TestDataReader : public QObject {
    Q_OBJECT

private slots:
    void aLineBecomesASample();
    void timesOfSamples_data();
    void timesOfSamples();
    void whereReadingEnds_data();
    void whereReadingEnds();
    void valuesOfALine_data();
    void valuesOfALine();
    void statesOfALine_data();
    void statesOfALine();
    void recordsCarryTheirDefinitions();
    void missingFactorsAreOne();
    void countsThatDisagree_data();
    void countsThatDisagree();
    void veryManyChannelsAreRead();
    void noMoreChannelsThanTheStandardAllows();
    void allChannelsShareOneTimeList();
    void shortLinesAreReadInFull_data();
    void shortLinesAreReadInFull();
    void aColumnMayBeginBehindTheFirstLine();
    void aSecondReadingAppends();
    void aShortReadingAppendsToALongOne();
    void aDeviceWithoutASizeIsReadToItsEnd();
    void hundredsOfThousandsOfLinesLoad();
    void aFileWithoutSamplesClearsTheRecording_data();
    void aFileWithoutSamplesClearsTheRecording();
};

void TestDataReader::aLineBecomesASample()
{
    CFGProperties recording;
    configure(recording, 1, 0);
    recording.analogA[0] = 2;
    recording.analogB[0] = 1;
    read(recording, "1,1500,10\n");
    QCOMPARE(recording.sampleCount, 1);
    QCOMPARE(recording.sampleTimes, QVector<double>({1.5}));
    const AnalogChannel &channel = *recording.analogChannels.at(0);
    QCOMPARE(channel.rawValues, QVector<float>({10.0F}));
    QCOMPARE(channel.values, QVector<float>({21.0F}));
    QCOMPARE(channel.times, QVector<double>({1.5}));
    QCOMPARE(channel.maxValue, 21.0F);
    QCOMPARE(channel.minValue, 0.0F);
}

void TestDataReader::timesOfSamples_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QVector<double>>("times");
    using Times = QVector<double>;
    QTest::newRow("microseconds become milliseconds")
        << QByteArray("1,0,5\n2,833,5\n3,1667,5\n") << Times{0, 0.833, 1.667};
    QTest::newRow("stamps before the trigger") << QByteArray("1,-77500,5\n") << Times{-77.5};
    QTest::newRow("stamps that run back") << QByteArray("1,5000,5\n2,4000,5\n") << Times{5, 4};
    QTest::newRow("no stamps: all at 0") << QByteArray("1,,5\n2,,5\n") << Times{0, 0};
    QTest::newRow("stamps that do not convert") << QByteArray("1,x,5\n2,1 0,5\n") << Times{0, 0};
    QTest::newRow("blanks around") << QByteArray("   1,  1000  ,5\n") << Times{1};
    QTest::newRow("decimals") << QByteArray("1,250.5,5\n") << Times{0.2505};
    QTest::newRow("a stamp without end")
        << QByteArray("1,inf,5\n") << Times{std::numeric_limits<double>::infinity()};
}

void TestDataReader::timesOfSamples()
{
    QFETCH(QByteArray, data);
    QFETCH(QVector<double>, times);
    CFGProperties recording;
    configure(recording, 1, 0);
    recording.timeMultiplier = 1000; // is not applied
    read(recording, data);
    QVERIFY(recording.sampleTimes == times);
    QVERIFY(recording.analogChannels.at(0)->times == times);
}

void TestDataReader::whereReadingEnds_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("samples");
    const QByteArray hundred = dataLines(100, 1000, [](int) { return QByteArrayList{"7", "1"}; });

    QTest::newRow("with the file") << hundred << 100;
    QTest::newRow("with a last line without line end") << hundred.chopped(1) << 100;
    QTest::newRow("with CR LF lines") << QByteArray(hundred).replace("\n", "\r\n") << 100;
    QTest::newRow("with a last CR and no LF") << QByteArray("1,0,7,1\n2,0,7,1\r") << 2;
    QTest::newRow("at a blank line, data behind it") << hundred + '\n' + hundred << 100;
    QTest::newRow("at a blank CR LF line") << hundred + "\r\n" + hundred << 100;
    QTest::newRow("at a line of blanks") << hundred + "   \n" + hundred << 100;
    QTest::newRow("at a line of one field") << hundred + "101\n" + hundred << 100;
    QTest::newRow("at an end-of-file mark") << hundred + "\x1a" << 100;
    QTest::newRow("at a line that begins with a NUL")
        << hundred + QByteArray("\0,0,1,1\n", 8) + hundred << 100;
    QTest::newRow("at a line whose NUL stands before its first comma")
        << hundred + QByteArray("9\0,0,1,1\n", 9) + hundred << 100;
    QTest::newRow("not at a line of two empty fields") << hundred + ",\n" + hundred << 201;
    QTest::newRow("not at a line of commas") << hundred + ",,,,,\n" + hundred << 201;
    QTest::newRow("not at a line that does not convert") << hundred + "a,b,c,d\n" + hundred << 201;
    QTest::newRow("at once: an empty file") << QByteArray() << 0;
    QTest::newRow("at once: a blank first line") << '\n' + hundred << 0;
    QTest::newRow("at once: lines separated by semicolons") << QByteArray("1;0;7;1\n") << 0;
    QTest::newRow("a lone CR ends no line") << QByteArray("1,0,7,1\r2,1,7,1\r") << 1;
}

void TestDataReader::whereReadingEnds()
{
    QFETCH(QByteArray, data);
    QFETCH(int, samples);
    CFGProperties recording;
    configure(recording, 1, 1);
    read(recording, data);
    QCOMPARE(recording.sampleCount, samples);
    QCOMPARE(recording.sampleTimes.size(), samples);
    QCOMPARE(recording.analogChannels.size(), samples > 0 ? 1 : 0);
    if (samples == 0)
        return;
    QCOMPARE(recording.analogChannels.at(0)->values.size(), samples);
    QCOMPARE(recording.analogChannels.at(0)->rawValues.size(), samples);
    QCOMPARE(recording.analogChannels.at(0)->times.size(), samples);
    QCOMPARE(recording.digitalChannels.at(0)->values.size(), samples);
    QCOMPARE(recording.digitalChannels.at(0)->times.size(), samples);
}

void TestDataReader::valuesOfALine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QVector<float>>("raw"); // of three channels
    using Values = QVector<float>;
    const float infiniteFloat = std::numeric_limits<float>::infinity();
    QTest::newRow("whole numbers") << QByteArray("1,0,1,-2,32767") << Values{1, -2, 32767};
    QTest::newRow("decimals") << QByteArray("1,0,0.5,-2.25,.125") << Values{0.5, -2.25, 0.125};
    QTest::newRow("exponents") << QByteArray("1,0,1e3,-2E-1,3.5e+2") << Values{1000, -0.2F, 350};
    QTest::newRow("signs and leading zeros")
        << QByteArray("1,0,+000025,-000005,+0") << Values{25, -5, 0};
    QTest::newRow("blanks before and behind") << QByteArray("1,0,  1,2  , 3 ") << Values{1, 2, 3};
    QTest::newRow("a carriage return behind the last")
        << QByteArray("1,0,1,2,3\r\r") << Values{1, 2, 3};
    QTest::newRow("a carriage return inside is no number")
        << QByteArray("1,0,1\r1,2,3") << Values{0, 2, 3};
    QTest::newRow("empty fields are 0") << QByteArray("1,0,,2,") << Values{0, 2, 0};
    QTest::newRow("missing fields are 0") << QByteArray("1,0,1") << Values{1, 0, 0};
    QTest::newRow("all fields missing") << QByteArray("1,0") << Values{0, 0, 0};
    QTest::newRow("fields too many are left") << QByteArray("1,0,1,2,3,4,5,6") << Values{1, 2, 3};
    QTest::newRow("the marks of missing values are numbers")
        << QByteArray("1,0,99999,999999,-99999") << Values{99999, 999999, -99999};
    QTest::newRow("words are 0") << QByteArray("1,0,a,0x1F,1,5") << Values{0, 0, 1};
    QTest::newRow("a NUL cuts the line") << QByteArray("1,0,1,2\0,3", 10) << Values{1, 2, 0};
    QTest::newRow("more digits than an int holds") << QByteArray(
        "1,0,9999999999,999999999,-1234567890123") << Values{1e10F, 1e9F, -1.2345679e12F};
    QTest::newRow("beyond a float")
        << QByteArray("1,0,1e39,-1e39,inf") << Values{infiniteFloat, -infiniteFloat, infiniteFloat};
}

void TestDataReader::valuesOfALine()
{
    QFETCH(QByteArray, line);
    QFETCH(QVector<float>, raw);
    CFGProperties recording;
    configure(recording, 3, 0);
    read(recording, line + "\n1,0,7,8,9\n");
    QCOMPARE(recording.sampleCount, 2);
    for (int k = 0; k < 3; ++k) {
        const AnalogChannel &channel = *recording.analogChannels.at(k);
        QVERIFY2(sameBits(channel.rawValues.at(0), raw.at(k)),
            qPrintable(QString::number(static_cast<double>(channel.rawValues.at(0)), 'g', 9)));
        QCOMPARE(channel.rawValues.at(1), static_cast<float>(7 + k));
    }
}

void TestDataReader::statesOfALine_data()
{
    QTest::addColumn<QByteArray>("states");
    QTest::addColumn<QVector<int>>("expected"); // of three channels
    QTest::addColumn<QVector<int>>("allZero");
    using States = QVector<int>;
    QTest::newRow("all 0") << QByteArray("0,0,0") << States{0, 0, 0} << States{1, 1, 1};
    QTest::newRow("some 1") << QByteArray("1,0,1") << States{1, 0, 1} << States{0, 1, 0};
    QTest::newRow("any other whole number")
        << QByteArray("2,-1,10") << States{2, -1, 10} << States{0, 0, 0};
    QTest::newRow("blanks and zeros before")
        << QByteArray(" 1,01, 0 ") << States{1, 1, 0} << States{0, 0, 1};
    QTest::newRow("no whole numbers are 0")
        << QByteArray("1.0,x,1e0") << States{0, 0, 0} << States{1, 1, 1};
    QTest::newRow("empty and missing are 0")
        << QByteArray(",1") << States{0, 1, 0} << States{1, 0, 1};
    QTest::newRow("fields too many are left")
        << QByteArray("0,0,0,1,1") << States{0, 0, 0} << States{1, 1, 1};
}

void TestDataReader::statesOfALine()
{
    QFETCH(QByteArray, states);
    QFETCH(QVector<int>, expected);
    QFETCH(QVector<int>, allZero);
    CFGProperties recording;
    configure(recording, 1, 3);
    read(recording, "1,0,5," + states + "\n2,1000,5,0,0,0\n");
    QCOMPARE(recording.digitalChannels.size(), 3);
    for (int j = 0; j < 3; ++j) {
        const DigitalChannel &channel = *recording.digitalChannels.at(j);
        QCOMPARE(channel.values, QVector<int>({expected.at(j), 0}));
        QCOMPARE(channel.allZero, allZero.at(j) == 1);
    }
}

void TestDataReader::recordsCarryTheirDefinitions()
{
    const RecordingFolder folder;
    ConfigurationText text;
    text.analog
        = QByteArrayList{"3,IL1,A,,A,0.5,1,0,-1,1,400,5,S", "7,UL1,A,,V,2,0,0,-1,1,200,100,P"};
    text.digital = QByteArrayList{"9,TRIP,,,0"};
    CFGProperties recording;
    folder.load(recording, text.text(), "1,0,1,2,0\n");
    QCOMPARE(recording.loaded, 1);
    const AnalogChannel &current = *recording.analogChannels.at(0);
    QCOMPARE(current.index, 3);
    QCOMPARE(current.id, QStringLiteral("IL1"));
    QCOMPARE(current.sampleRate, 1000.0);
    QCOMPARE(current.frequency, 50.0);
    QCOMPARE(current.a, 0.5F);
    QCOMPARE(current.toPrimary, 80.0);
    QCOMPARE(current.toSecondary, 1.0);
    QCOMPARE(current.primary, 400.0);
    QCOMPARE(current.secondary, 5.0);
    QCOMPARE(current.ps, QStringLiteral("S"));
    const AnalogChannel &voltage = *recording.analogChannels.at(1);
    QCOMPARE(voltage.index, 7);
    QCOMPARE(voltage.toPrimary, 1.0);
    QCOMPARE(voltage.toSecondary, 0.5);
    QCOMPARE(voltage.ps, QStringLiteral("P"));
    QCOMPARE(recording.digitalChannels.at(0)->index, 9);
    QCOMPARE(recording.digitalChannels.at(0)->id, QStringLiteral("TRIP"));
}

void TestDataReader::missingFactorsAreOne()
{
    const RecordingFolder folder;
    ConfigurationText text;
    text.analog = QByteArrayList{analogLine(1, "1", "0", "400,1,S"),
        analogLine(2, "1", "0", "500,1,s"), analogLine(3, "1", "0", "600,1,S")};
    CFGProperties recording;
    folder.load(recording, text.text(), "1,0,1,2,3\n");
    // The factors of the third channel stand at the place of the second.
    QCOMPARE(recording.analogChannels.at(0)->toPrimary, 400.0);
    QCOMPARE(recording.analogChannels.at(1)->toPrimary, 600.0);
    QCOMPARE(recording.analogChannels.at(2)->toPrimary, 1.0);
    QCOMPARE(recording.analogChannels.at(2)->toSecondary, 1.0);
    QCOMPARE(recording.analogChannels.at(1)->ps, QStringLiteral("s"));
    QCOMPARE(recording.analogChannels.at(2)->primary, 600.0);
}

void TestDataReader::countsThatDisagree_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("analog");
    QTest::addColumn<int>("analogRecords");
    QTest::addColumn<int>("digitalRecords");
    // Two analog and two digital channels are defined, six values follow the stamp.
    QTest::newRow("as defined") << 4 << 2 << 2 << 2;
    QTest::newRow("a total above the sum makes digital channels") << 6 << 2 << 2 << 4;
    QTest::newRow("a total below the sum leaves some out") << 3 << 2 << 2 << 1;
    QTest::newRow("a total below the analog count leaves all out") << 1 << 2 << 2 << 0;
    QTest::newRow("a total of 0") << 0 << 2 << 2 << 0;
    QTest::newRow("a negative total") << -7 << 2 << 2 << 0;
    QTest::newRow("more analog channels than defined") << 6 << 5 << 5 << 1;
    QTest::newRow("a total above the fields of a line") << 12 << 2 << 2 << 10;
    QTest::newRow("an analog count above the fields of a line") << 9 << 9 << 9 << 0;
    // The two lines are 47 bytes.
    QTest::newRow("a total without end, as far as bytes go") << 2000000000 << 2 << 2 << 45;
    QTest::newRow("counts without end, as far as bytes go") << 2000000000 << 2000000000 << 47 << 0;
    QTest::newRow("a negative analog count") << 4 << -2000000000 << 0 << 4;
    QTest::newRow("a negative analog count and a total without end")
        << 2000000000 << -2000000000 << 0 << 47;
    QTest::newRow("no analog channels") << 4 << 0 << 0 << 4;
}

void TestDataReader::countsThatDisagree()
{
    QFETCH(int, total);
    QFETCH(int, analog);
    QFETCH(int, analogRecords);
    QFETCH(int, digitalRecords);
    CFGProperties recording;
    configure(recording, 2, 2);
    recording.totalChannelCount = total;
    recording.analogChannelCount = analog;
    read(recording, "1,0,11,12,13,14,15,16\n2,1000,21,22,23,24,25,26\n");
    QCOMPARE(recording.sampleCount, 2);
    QCOMPARE(recording.analogChannels.size(), analogRecords);
    QCOMPARE(recording.digitalChannels.size(), digitalRecords);
    const auto values = [](int column) { // missing ones are 0
        return column < 6 ? QVector<int>{11 + column, 21 + column} : QVector<int>{0, 0};
    };
    for (int k = 0; k < analogRecords; ++k) {
        const QVector<int> expected = values(k);
        QCOMPARE(recording.analogChannels.at(k)->rawValues,
            QVector<float>(expected.cbegin(), expected.cend()));
    }
    for (int j = 0; j < digitalRecords; ++j)
        QCOMPARE(recording.digitalChannels.at(j)->values, values(analogRecords + j));
    if (analogRecords <= 2)
        return;
    const AnalogChannel &undefined = *recording.analogChannels.at(2);
    QCOMPARE(undefined.index, 0);
    QCOMPARE(undefined.id, QString());
    QCOMPARE(undefined.a, 1.0F);
    QCOMPARE(undefined.values, undefined.rawValues);
    QCOMPARE(undefined.toPrimary, 1.0);
    QCOMPARE(undefined.toSecondary, 1.0);
}

void TestDataReader::veryManyChannelsAreRead()
{
    // So many that fewer lines are gathered at once than there are.
    constexpr int analog = 15000;
    constexpr int digital = 5000;
    constexpr int lines = 120;
    CFGProperties recording;
    recording.totalChannelCount = analog + digital;
    recording.analogChannelCount = analog;
    QByteArray data;
    for (int i = 0; i < lines; ++i) {
        data += "1,0";
        for (int k = 0; k < analog + digital; ++k)
            data += ',' + QByteArray::number(k % 100 - i);
        data += '\n';
    }
    read(recording, data);
    QCOMPARE(recording.sampleCount, lines);
    QCOMPARE(recording.analogChannels.size(), analog);
    QCOMPARE(recording.digitalChannels.size(), digital);
    for (int k : {0, 1, analog - 1}) {
        const QVector<float> &values = recording.analogChannels.at(k)->values;
        QCOMPARE(values.size(), lines);
        for (int i = 0; i < lines; ++i)
            QCOMPARE(values.at(i), static_cast<float>(k % 100 - i));
    }
    const QVector<int> &states = recording.digitalChannels.constLast()->values;
    QCOMPARE(states.size(), lines);
    for (int i = 0; i < lines; ++i)
        QCOMPARE(states.at(i), 99 - i);
}

void TestDataReader::noMoreChannelsThanTheStandardAllows()
{
    CFGProperties recording;
    recording.totalChannelCount = 2000000000;
    recording.analogChannelCount = 2000000000;
    read(recording, QByteArray(1000100, ','));
    QCOMPARE(recording.sampleCount, 1);
    QCOMPARE(recording.analogChannels.size(), 999999);
    QCOMPARE(recording.digitalChannels.size(), 0);
}

void TestDataReader::allChannelsShareOneTimeList()
{
    CFGProperties recording;
    configure(recording, 3, 2);
    QByteArray data;
    for (int i = 0; i < 1000; ++i)
        data += "1," + QByteArray::number(i) + ",1,2,3,0,1\n";
    read(recording, data);
    const double *const times = recording.sampleTimes.constData();
    QCOMPARE(recording.sampleTimes.size(), 1000);
    for (const AnalogChannel *channel : qAsConst(recording.analogChannels))
        QCOMPARE(channel->times.constData(), times);
    for (const DigitalChannel *channel : qAsConst(recording.digitalChannels))
        QCOMPARE(channel->times.constData(), times);
    // A change of one does not reach the others.
    recording.analogChannels.at(0)->appendTime(5);
    QCOMPARE(recording.sampleTimes.size(), 1000);
}

void TestDataReader::shortLinesAreReadInFull_data()
{
    QTest::addColumn<int>("analog");
    QTest::addColumn<int>("digital");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("16 values, none of 512 states")
        << 16 << 512 << QByteArray("1,0").append(QByteArray(",5").repeated(16));
    QTest::newRow("none of 300 values") << 300 << 0 << QByteArray("1,1000");
}

void TestDataReader::shortLinesAreReadInFull()
{
    QFETCH(int, analog);
    QFETCH(int, digital);
    QFETCH(QByteArray, line);
    constexpr int lines = 2000;
    CFGProperties recording;
    configure(recording, analog, digital);
    read(recording, (line + '\n').repeated(lines));
    QCOMPARE(recording.sampleCount, lines);
    QCOMPARE(recording.analogChannels.size(), analog);
    QCOMPARE(recording.digitalChannels.size(), digital);
    const float value = line.endsWith('5') ? 5 : 0;
    QCOMPARE(recording.analogChannels.constLast()->rawValues, QVector<float>(lines, value));
    if (digital > 0)
        QCOMPARE(recording.digitalChannels.constLast()->values, QVector<int>(lines, 0));
}

void TestDataReader::aColumnMayBeginBehindTheFirstLine()
{
    CFGProperties recording; // without definitions
    recording.analogChannelCount = 2;
    recording.totalChannelCount = 4;
    read(recording, "1,0,5\n2,1000,6,7,1,1\n");
    QCOMPARE(recording.sampleCount, 2);
    QCOMPARE(recording.analogChannels.size(), 2);
    QCOMPARE(recording.analogChannels.at(1)->values, QVector<float>({0.0F, 7.0F}));
    QCOMPARE(recording.digitalChannels.size(), 2);
    QCOMPARE(recording.digitalChannels.at(1)->values, QVector<int>({0, 1}));
}

void TestDataReader::aSecondReadingAppends()
{
    CFGProperties recording;
    configure(recording, 1, 1);
    read(recording, "1,0,5,0\n2,1000,-6,0\n");
    AnalogChannel *const analog = recording.analogChannels.at(0);
    DigitalChannel *const digital = recording.digitalChannels.at(0);
    read(recording, "1,2000,7,1\n");
    QCOMPARE(recording.sampleCount, 1);
    QCOMPARE(recording.analogChannels, QList<AnalogChannel *>({analog}));
    QCOMPARE(recording.digitalChannels, QList<DigitalChannel *>({digital}));
    const QVector<double> times{0, 1, 2};
    QCOMPARE(recording.sampleTimes, times);
    QCOMPARE(analog->times, times);
    QCOMPARE(digital->times, times);
    QCOMPARE(analog->values, QVector<float>({5.0F, -6.0F, 7.0F}));
    QCOMPARE(analog->rawValues, QVector<float>({5.0F, -6.0F, 7.0F}));
    QCOMPARE(analog->minValue, -6.0F);
    QCOMPARE(analog->maxValue, 7.0F);
    QCOMPARE(digital->values, QVector<int>({0, 0, 1}));
    QVERIFY(!digital->allZero);
}

void TestDataReader::aShortReadingAppendsToALongOne()
{
    constexpr int channels = 200;
    constexpr int lines = 2000;
    const QByteArray line = "1,0" + QByteArray(",5").repeated(channels) + '\n';
    CFGProperties recording;
    configure(recording, channels, 0);
    read(recording, line.repeated(lines));
    QCOMPARE(recording.sampleCount, lines);
    read(recording, "1,7000\n2,8000,6\n");
    QCOMPARE(recording.sampleCount, 2);
    QCOMPARE(recording.sampleTimes.size(), lines + 2);
    QCOMPARE(recording.sampleTimes.constLast(), 8.0);
    const AnalogChannel &first = *recording.analogChannels.constFirst();
    QCOMPARE(first.times, recording.sampleTimes);
    QCOMPARE(first.rawValues.mid(lines - 1), QVector<float>({5.0F, 0.0F, 6.0F}));
    const AnalogChannel &last = *recording.analogChannels.constLast();
    QCOMPARE(last.times, recording.sampleTimes);
    QCOMPARE(last.rawValues.mid(lines - 1), QVector<float>({5.0F, 0.0F, 0.0F}));
}

void TestDataReader::aDeviceWithoutASizeIsReadToItsEnd()
{
    // Lines of ten bytes, so that no power of two ends with one of them.
    QByteArray data;
    for (int i = 0; i < 2000; ++i)
        data += "1," + QByteArray::number(1000 + i) + ",5,\n";
    UnmeasuredBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    CFGProperties recording;
    configure(recording, 1, 0);
    readData(buffer, recording);
    QCOMPARE(recording.sampleCount, 2000);
    QCOMPARE(recording.sampleTimes.constFirst(), 1.0);
    QCOMPARE(recording.sampleTimes.constLast(), 2.999);
    QCOMPARE(recording.analogChannels.constFirst()->rawValues.count(5.0F), 2000);
}

void TestDataReader::hundredsOfThousandsOfLinesLoad()
{
    constexpr int lines = 500000;
    QByteArray data;
    for (int i = 0; i < lines; ++i)
        data += QByteArray::number(i + 1) + ',' + QByteArray::number(i * 50) + ",1,2,3,4,0,1\n";
    CFGProperties recording;
    configure(recording, 4, 2);
    QElapsedTimer timer;
    timer.start();
    read(recording, data);
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(recording.sampleCount, lines);
    QCOMPARE(recording.sampleTimes.constLast(), 24999.95);
    QCOMPARE(recording.analogChannels.at(3)->rawValues.count(4.0F), lines);
    QCOMPARE(recording.digitalChannels.at(1)->values.count(1), lines);
    // Nothing is kept in reserve once the file is read.
    QCOMPARE(recording.sampleTimes.capacity(), lines);
    QCOMPARE(recording.analogChannels.at(3)->values.capacity(), lines);
    QCOMPARE(recording.digitalChannels.at(1)->values.capacity(), lines);
}

void TestDataReader::aFileWithoutSamplesClearsTheRecording_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such file") << QStringLiteral("missing");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("an empty file") << QStringLiteral("empty");
    QTest::newRow("a file without a comma") << QStringLiteral("prose");
    QTest::newRow("a file without read permission") << QStringLiteral("locked");
}

void TestDataReader::aFileWithoutSamplesClearsTheRecording()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.dat")));
    QVERIFY(writeTextFile(folder.filePath(QStringLiteral("empty.dat")), QByteArray()));
    QVERIFY(writeTextFile(folder.filePath(QStringLiteral("prose.dat")), "a line\nand 1,0,5\n"));
    const QString locked = folder.filePath(QStringLiteral("locked.dat"));
    QVERIFY(writeTextFile(locked, "1,0,5\n"));
    QVERIFY(QFile::setPermissions(locked, QFile::WriteOwner));
    if (name == QLatin1String("locked") && QFileInfo(locked).isReadable())
        QSKIP("This user may read every file.");
    CFGProperties recording;
    configure(recording, 1, 0);
    recording.filePath = folder.filePath(name + QLatin1String(".cfg"));
    QVERIFY(!recording.readDatFile());
    QCOMPARE(recording.filePath, folder.filePath(name + QLatin1String(".dat")));
    QCOMPARE(recording.sampleCount, 0);
    QCOMPARE(recording.analogChannelCount, 0);
    QVERIFY(recording.analogIds.isEmpty());
    QVERIFY(recording.analogChannels.isEmpty());
}

QTEST_GUILESS_MAIN(TestDataReader)
#include "tst_datareader.moc"
