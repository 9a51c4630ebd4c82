// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "recordingwriter.h"

#include "writtenpair.h"

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

const double infinite = std::numeric_limits<double>::infinity();

} // namespace

class TestRecordingWriter : public QObject {
    Q_OBJECT

private slots:
    void aWholeRecordingIsWrittenLineByLine();
    void aRangeOfALongRecording();
    void samplesOfARange_data();
    void samplesOfARange();
    void noMoreSamplesThanAreCounted();
    void anEmptyRangeIsCountedFromBeforeTheStart();
    void timesOfARange_data();
    void timesOfARange();
    void generalNumbers_data();
    void generalNumbers();
    void ratings_data();
    void ratings();
    void valuesOfData_data();
    void valuesOfData();
    void stampsOfData_data();
    void stampsOfData();
    void channelsOfOneKind_data();
    void channelsOfOneKind();
    void longLinesOverManyBlocks();
    void rateLines_data();
    void rateLines();
    void rateLinesThatWereMissing_data();
    void rateLinesThatWereMissing();
    void aRateLineWhereNoneIsCountedStandsForTheStart();
    void shortDefinitionsAreFilledWithEmptyTexts();
    void fieldsBehindAShortDigitalLineMoveUpToIt();
    void recordsWithoutDefinitionsHaveLines();
    void recordsThatAreNotCountedHaveNone();
    void lettersGoOutAsTheyCameIn();
    void lettersBeyondLatin1GoOutAsUtf8_data();
    void lettersBeyondLatin1GoOutAsUtf8();
    void carriageReturnsBehindALineAreLost();
    void asPrimaryTurnsSecondaryChannels();
    void asPrimaryMultipliesByTheRatio_data();
    void asPrimaryMultipliesByTheRatio();
    void asPrimaryWritesEverySample();
    void asPrimaryShowsTheSameValuesWhenOpened();
    void aTextExportCanBeWritten();
};

void TestRecordingWriter::aWholeRecordingIsWrittenLineByLine()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, configurationText().text(), dataUpTo(3));
    const Written copy = written(recording, -1000, 1000);
    QVERIFY(!copy.outcome.hasFailed());
    QCOMPARE(copy.configuration,
        QByteArray("Harju,Feeder J07,1999\n"
                   "3,2A,1D\n"
                   "1,IL1,A,Bay,A,0.5,-1,3.25,-32767,32767,400.000000,1.000000,S\n"
                   "2,UL1,B,,V,2,0,0,-100,100,20000.000000,100.000000,P\n"
                   "1,TRIP,x,y,0\n"
                   "50.000000\n"
                   "1\n"
                   "1000.000000,4\n"
                   "15/03/2024,10:00:00.000\n"
                   "15/03/2024,10:00:00.000\n" // the trigger lies behind the end
                   "ASCII\n"
                   "1"));
    QCOMPARE(copy.data,
        QByteArray("1,0,0,0,0\n"
                   "2,1000,1,-1,1\n"
                   "3,2000,2,-2,0\n"
                   "4,3000,3,-3,1"));
}

void TestRecordingWriter::aRangeOfALongRecording()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, configurationText().text(), dataUpTo(300));
    const Written copy = written(recording, 100, 200);
    const QByteArrayList lines = copy.data.split('\n');
    QCOMPARE(lines.size(), 101);
    QVERIFY2(lines.constFirst().startsWith("101,0,"), lines.constFirst().constData());
    QVERIFY2(lines.constLast().startsWith("201,100000,"), lines.constLast().constData());
    QCOMPARE(copy.line(8), QByteArray("1000.000000,101"));
    QCOMPARE(copy.line(9), QByteArray("15/03/2024,10:00:00.100"));
    QCOMPARE(copy.line(10), QByteArray("15/03/2024,10:00:00.100"));
}

void TestRecordingWriter::samplesOfARange_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<QByteArray>("data"); // of samples at 0, 1, 2 and 3 ms
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("both ends belong to it")
        << 1.0 << 2.0 << QByteArray("2,0,1,-1,1\n3,1000,2,-2,0");
    QTest::newRow("between samples") << 0.5 << 2.5 << QByteArray("2,0,1,-1,1\n3,1000,2,-2,0");
    QTest::newRow("one sample") << 3.0 << 3.0 << QByteArray("4,0,3,-3,1");
    QTest::newRow("up to the first") << -5.0 << 0.0 << QByteArray("1,0,0,0,0");
    QTest::newRow("between two samples: none") << 1.2 << 1.8 << QByteArray();
    QTest::newRow("behind the last: none") << 3.5 << 9.0 << QByteArray();
    QTest::newRow("before the first: none") << -9.0 << -1.0 << QByteArray();
    QTest::newRow("start behind the end: none") << 2.0 << 1.0 << QByteArray();
    QTest::newRow("an end that is no number ends nowhere")
        << 2.0 << notANumber << QByteArray("3,0,2,-2,0\n4,1000,3,-3,1");
    QTest::newRow("a start that is no number is before everything")
        << notANumber << 0.0 << QByteArray("1,0,0,0,0");
}

void TestRecordingWriter::samplesOfARange()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(QByteArray, data);
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, configurationText().text(), dataUpTo(3));
    const Written copy = written(recording, start, end);
    QCOMPARE(copy.data, data);
    const int count = data.isEmpty() ? 0 : data.count('\n') + 1;
    QCOMPARE(copy.line(8), "1000.000000," + QByteArray::number(count));
}

void TestRecordingWriter::noMoreSamplesThanAreCounted()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, configurationText().text(), dataUpTo(3));
    recording.sampleCount = 2;
    const Written copy = written(recording, 0, 3);
    QCOMPARE(copy.data, QByteArray("1,0,0,0,0\n2,1000,1,-1,1"));
    QCOMPARE(copy.line(8), QByteArray("1000.000000,2"));
}

void TestRecordingWriter::anEmptyRangeIsCountedFromBeforeTheStart()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, configurationText().text(), dataUpTo(3));
    const Written copy = written(recording, 50, 60);
    QVERIFY(!copy.outcome.hasFailed());
    QCOMPARE(copy.data, QByteArray());
    QCOMPARE(copy.line(8), QByteArray("1000.000000,0"));
    QCOMPARE(copy.line(9), QByteArray("15/03/2024,09:59:59.999"));
    QCOMPARE(copy.line(10), QByteArray("15/03/2024,09:59:59.999"));
}

void TestRecordingWriter::timesOfARange_data()
{
    QTest::addColumn<QByteArray>("startTime");
    QTest::addColumn<QByteArray>("triggerTime");
    QTest::addColumn<QByteArray>("stamps"); // of the first and the last sample, microseconds
    QTest::addColumn<QByteArray>("newStart");
    QTest::addColumn<QByteArray>("newTrigger");
    const auto row = [](const char *name, const char *start, const char *trigger,
                         const char *stamps, const char *newStart, const char *newTrigger) {
        QTest::newRow(name) << QByteArray(start) << QByteArray(trigger) << QByteArray(stamps)
                            << QByteArray(newStart) << QByteArray(newTrigger);
    };
    row("a trigger inside stays", "10:00:00.000000", "10:00:00.020000", "0 50000", "10:00:00.000",
        "10:00:00.020");
    row("a trigger at the start stays", "10:00:00.000", "10:00:00.000", "0 50000", "10:00:00.000",
        "10:00:00.000");
    row("a trigger at the end stays", "10:00:00.000", "10:00:00.050", "0 50000", "10:00:00.000",
        "10:00:00.050");
    row("a trigger before moves to the start", "10:00:00.000", "10:00:00.020", "30000 50000",
        "10:00:00.030", "10:00:00.030");
    row("a trigger behind moves to the start", "10:00:00.000", "10:00:00.051", "0 50000",
        "10:00:00.000", "10:00:00.000");
    row("parts of milliseconds are cut", "10:00:00.000", "10:00:00.051", "999 50999",
        "10:00:00.000", "10:00:00.000");
    row("the length is cut by itself", "10:00:00.000", "10:00:00.051", "1900 52800", "10:00:00.001",
        "10:00:00.051");
    row("a first stamp before 0", "10:00:00.000", "10:00:00.000", "-77500 50000", "09:59:59.923",
        "10:00:00.000");
    row("stamps that run back end before the trigger", "10:00:00.000", "10:00:00.060", "50000 0",
        "10:00:00.050", "10:00:00.050");
    row("over midnight no trigger lies inside", "23:59:59.990", "23:59:59.995", "0 50000",
        "23:59:59.990", "23:59:59.990");
    row("a start over midnight", "23:59:59.990", "23:59:59.995", "20000 50000", "00:00:00.010",
        "00:00:00.010");
    row("thirty days round the clock", "10:00:00.000", "11:00:00.000",
        "2595600000000 2595600000000", "11:00:00.000", "11:00:00.000");
    row("a first stamp without end", "10:00:00.000", "10:00:00.000", "inf inf", "17:12:55.807",
        "17:12:55.807");
    row("a start that is no time", "9:00:00.000000", "10:00:00.000", "0 50000", "", "");
    row("a trigger that is no time", "10:00:00.000", "never", "0 50000", "10:00:00.000",
        "10:00:00.000");
    row("neither is a time", "", "", "0 50000", "", "");
}

void TestRecordingWriter::timesOfARange()
{
    QFETCH(QByteArray, startTime);
    QFETCH(QByteArray, triggerTime);
    QFETCH(QByteArray, stamps);
    QFETCH(QByteArray, newStart);
    QFETCH(QByteArray, newTrigger);
    ConfigurationText text = configurationText();
    text.start = "15/03/2024," + startTime;
    text.trigger = "16/03/2024," + triggerTime;
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(),
        "1," + stamps.split(' ').at(0) + ",1,2,0\n2," + stamps.split(' ').at(1) + ",1,2,0\n");
    const Written copy = written(recording, -infinite, infinite);
    // The dates are those that were read.
    QCOMPARE(copy.line(9), "15/03/2024," + newStart);
    QCOMPARE(copy.line(10), "16/03/2024," + newTrigger);
}

void TestRecordingWriter::generalNumbers_data()
{
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char *name, const char *read, const char *written) {
        QTest::newRow(name) << QByteArray(read) << QByteArray(written);
    };
    row("a whole number", "2", "2");
    row("zeros at the end go", "0.5000", "0.5");
    row("six digits", "0.0012345678", "0.00123457");
    row("six digits before the point", "123456.4", "123456");
    row("a tenth of a thousandth is fixed", "0.0001", "0.0001");
    row("a hundredth of a thousandth has an exponent", "0.00001", "1e-05");
    row("digits before an exponent", "0.000012345678", "1.23457e-05");
    row("rounded up to a million", "999999.5", "1e+06");
    row("just below that", "999999.4", "999999");
    row("a million", "1000000", "1e+06");
    row("an exponent of two digits", "1.5e12", "1.5e+12");
    row("an exponent of three digits", "1e-120", "1e-120");
    row("negative", "-3.75", "-3.75");
    row("nothing", "0", "0");
    row("minus nothing", "-0", "0");
    row("infinite", "inf", "inf");
    row("no number at all", "x", "0");
}

void TestRecordingWriter::generalNumbers()
{
    QFETCH(QByteArray, read);
    QFETCH(QByteArray, written);
    ConfigurationText text = configurationText();
    text.analog[0] = "1,IL1,A,Bay,A,1,0," + read + ",0,0,1,1,S";
    text.timeMultiplier = read;
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), dataUpTo(3));
    const Written copy = ::written(recording, 0, 3);
    QCOMPARE(copy.line(3), "1,IL1,A,Bay,A,1,0," + written + ",0,0,1.000000,1.000000,S");
    QCOMPARE(copy.line(12), written);

    // The multiplier and the offset are floats, of which six digits show the same.
    if (read == "1e-120")
        return;
    text.analog[0] = "1,IL1,A,Bay,A," + read + ',' + read + ",0,0,0,1,1,S";
    folder.load(recording, text.text(), dataUpTo(3));
    QCOMPARE(::written(recording, 0, 3).line(3),
        "1,IL1,A,Bay,A," + written + ',' + written + ",0,0,0,1.000000,1.000000,S");
}

void TestRecordingWriter::ratings_data()
{
    QTest::addColumn<QStringList>("primaries");
    QTest::addColumn<QStringList>("secondaries");
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    const auto list
        = [](const char *texts) { return QString::fromLatin1(texts).split(QLatin1Char('|')); };
    QTest::newRow("of the dialog")
        << list("600|33000") << list("5|110") << QByteArray("600.000000,5.000000")
        << QByteArray("33000.000000,110.000000");
    QTest::newRow("with decimals")
        << list("0.12345678|1e3") << list("1.5|-2") << QByteArray("0.123457,1.500000")
        << QByteArray("1000.000000,-2.000000");
    // A 128th and three of them lie in the middle between two sixth decimals.
    QTest::newRow("halves of the last decimal go away from zero")
        << list("0.0078125|-0.0078125") << list("0.0234375|-0") << QByteArray("0.007813,0.023438")
        << QByteArray("-0.007813,0.000000");
    QTest::newRow("of many digits") << list("123456789012.5|1e22") << list("1e-7|0.000001")
                                    << QByteArray("123456789012.500000,0.000000")
                                    << QByteArray("10000000000000000000000.000000,0.000001");
    QTest::newRow("a little below zero is zero")
        << list("-1e-9|-0.0000004") << list("-0.0000006|-1e-300")
        << QByteArray("0.000000,-0.000001") << QByteArray("0.000000,0.000000");
    QTest::newRow("that are no numbers")
        << list("x|") << list("1,5| 7 ") << QByteArray("0.000000,0.000000")
        << QByteArray("0.000000,7.000000");
    QTest::newRow("of a list too short")
        << list("600") << list("5") << QByteArray("600.000000,5.000000")
        << QByteArray("20000.000000,100.000000");
    QTest::newRow("of no list") << QStringList() << QStringList()
                                << QByteArray("400.000000,1.000000")
                                << QByteArray("20000.000000,100.000000");
}

void TestRecordingWriter::ratings()
{
    QFETCH(QStringList, primaries);
    QFETCH(QStringList, secondaries);
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, configurationText().text(), dataUpTo(3));
    const Written copy = written(recording, 0, 3, primaries, secondaries);
    QCOMPARE(copy.line(3), "1,IL1,A,Bay,A,0.5,-1,3.25,-32767,32767," + first + ",S");
    QCOMPARE(copy.line(4), "2,UL1,B,,V,2,0,0,-100,100," + second + ",P");
}

void TestRecordingWriter::valuesOfData_data()
{
    QTest::addColumn<QByteArray>("read"); // of three channels and a state
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char *name, const char *read, const char *written) {
        QTest::newRow(name) << QByteArray(read) << QByteArray(written);
    };
    row("whole numbers", "0,32767,-32768,1", "0,32767,-32768,1");
    row("unscaled, whatever a and b are", "99999,5,-5,0", "99999,5,-5,0");
    row("below and above a half", "2.4,2.6,-2.6,0", "2,3,-3,0");
    row("halves go away from zero", "0.5,1.5,-2.5,0", "1,2,-3,0");
    row("the half below zero too", "-0.5,-1.5,2.5,0", "-1,-2,3,0");
    row("a little below zero is zero", "-0.4,0.4,-0,0", "0,0,0,0");
    row("beyond whole floats", "16777217,1e15,-1e15,0",
        "16777216,999999986991104,-999999986991104,0");
    row("beyond 64 bits", "1e20,-1e20,0,0", "100000002004087734272,-100000002004087734272,0,0");
    row("beyond all bounds", "inf,-inf,nan,0", "inf,-inf,nan,0");
    row("missing and empty", ",,", "0,0,0,0");
    row("states as read", "1,2,3,-7", "1,2,3,-7");
    row("the smallest state", "1,2,3,-2147483648", "1,2,3,-2147483648");
}

void TestRecordingWriter::valuesOfData()
{
    QFETCH(QByteArray, read);
    QFETCH(QByteArray, written);
    ConfigurationText text = configurationText();
    text.analog = QByteArrayList{analogLine(1, "3", "7"), analogLine(2), analogLine(3)};
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), "9,0," + read + '\n');
    QCOMPARE(::written(recording, -1, 1).data, "1,0," + written);
}

void TestRecordingWriter::stampsOfData_data()
{
    QTest::addColumn<QByteArray>("read"); // separated by blanks
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char *name, const char *read, const char *written) {
        QTest::newRow(name) << QByteArray(read) << QByteArray(written);
    };
    row("from 0", "0 833 1667 2500", "0 833 1667 2500");
    row("a late start moves to 0", "72500 73333 74167", "0 833 1667");
    row("an early start moves to 0", "-77500 -76667 0", "0 833 77500");
    row("parts of a microsecond are rounded", "0 833.4 1666.6", "0 833 1667");
    row("halves of a microsecond go up", "0 0.5 1.5 2.5", "0 1 2 3");
    row("beyond 32 bits", "0 17258333000", "0 17258333000");
    row("stamps that run back", "5000 4000", "0 -1000");
    row("no stamps", "x x", "0 0");
}

void TestRecordingWriter::stampsOfData()
{
    QFETCH(QByteArray, read);
    QFETCH(QByteArray, written);
    QByteArray data;
    for (const QByteArray &stamp : read.split(' '))
        data += "1," + stamp + ",1,2,0\n";
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, configurationText().text(), data);
    QByteArrayList stamps;
    for (const QByteArray &line : ::written(recording, -infinite, infinite).data.split('\n'))
        stamps += line.split(',').value(1);
    QCOMPARE(stamps.join(' '), written);
}

void TestRecordingWriter::channelsOfOneKind_data()
{
    QTest::addColumn<int>("analog");
    QTest::addColumn<int>("digital");
    QTest::addColumn<QByteArray>("counts");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("no digital channel: the line ends with a comma")
        << 2 << 0 << QByteArray("2,2A,0D") << QByteArray("1,0,5,6,\n2,1000,7,8,");
    QTest::newRow("no analog channel")
        << 0 << 2 << QByteArray("2,0A,2D") << QByteArray("1,0,5,6\n2,1000,7,8");
    QTest::newRow("no channel at all")
        << 0 << 0 << QByteArray("0,0A,0D") << QByteArray("1,0,\n2,1000,");
}

void TestRecordingWriter::channelsOfOneKind()
{
    QFETCH(int, analog);
    QFETCH(int, digital);
    QFETCH(QByteArray, counts);
    QFETCH(QByteArray, data);
    ConfigurationText text;
    for (int k = 1; k <= analog; ++k)
        text.analog += analogLine(k);
    for (int j = 1; j <= digital; ++j)
        text.digital += digitalLine(j);
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), "1,0,5,6\n2,1000,7,8\n");
    const Written copy = written(recording, 0, 10);
    QCOMPARE(copy.line(2), counts);
    QCOMPARE(copy.data, data);
}

// Lines of 16 kB, the last of a block nearly all behind its end.
void TestRecordingWriter::longLinesOverManyBlocks()
{
    constexpr int channels = 399;
    constexpr int lines = 100;
    ConfigurationText text;
    QByteArray data;
    QByteArray expected;
    for (int k = 1; k <= channels; ++k)
        text.analog += analogLine(k);
    for (int i = 0; i < lines; ++i) {
        const QByteArray head
            = QByteArray::number(i + 1) + ',' + QByteArray::number(1000 * i) + ',';
        data += head + QByteArray("-3e38,").repeated(channels) + '\n';
        // The nearest single precision number.
        expected
            += head + QByteArray("-300000000549775575777803994281145270272,").repeated(channels);
        if (i + 1 < lines)
            expected += '\n';
    }
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), data);
    QVERIFY(written(recording, -infinite, infinite).data == expected);
}

void TestRecordingWriter::rateLines_data()
{
    QTest::addColumn<QByteArrayList>("rates");
    QTest::addColumn<QByteArrayList>("written");
    QTest::newRow("one") << QByteArrayList{"7680.25,3"} << QByteArrayList{"1", "7680.250000,4"};
    QTest::newRow("three become the last one three times") << QByteArrayList{"1000,10", "2000,20",
        "4000,30"} << QByteArrayList{"3", "4000.000000,4", "4000.000000,4", "4000.000000,4"};
    QTest::newRow("a half of the last decimal")
        << QByteArrayList{"0.0078125,3"} << QByteArrayList{"1", "0.007813,4"};
    QTest::newRow("none") << QByteArrayList() << QByteArrayList{"0"};
}

void TestRecordingWriter::rateLines()
{
    QFETCH(QByteArrayList, rates);
    QFETCH(QByteArrayList, written);
    ConfigurationText text = configurationText();
    text.rates = rates;
    text.frequency = "16.7";
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), dataUpTo(3));
    const QByteArrayList lines = ::written(recording, 0, 3).configuration.split('\n');
    QCOMPARE(lines.at(5), QByteArray("16.700000"));
    QCOMPARE(lines.mid(6, written.size()), written);
    QVERIFY2(lines.at(6 + written.size()).startsWith("15/03/2024,"), lines.at(7).constData());
}

void TestRecordingWriter::rateLinesThatWereMissing_data()
{
    QTest::addColumn<QByteArray>("count");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("start");
    // The line of the file type is taken for the fifth of the rates, the time factor for the start.
    QTest::newRow("three of five")
        << QByteArray("5") << 5 << QByteArray("0.000000,4") << QByteArray("1,");
    // The time factor is the last of them.
    QTest::newRow("nearly all of very many")
        << QByteArray("2000000000") << 999 << QByteArray("1.000000,4") << QByteArray(",");
}

void TestRecordingWriter::rateLinesThatWereMissing()
{
    QFETCH(QByteArray, count);
    QFETCH(int, lines);
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, start);
    ConfigurationText text = configurationText();
    text.rates = QByteArrayList{"1000,2", "2000,4"};
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text().replace("\n2\n1000", '\n' + count + "\n1000"), dataUpTo(3));
    const QByteArrayList copied = written(recording, 0, 3).configuration.split('\n').mid(6);
    QCOMPARE(copied.at(0), count);
    for (int i = 1; i <= lines; ++i)
        QCOMPARE(copied.at(i), line);
    QCOMPARE(copied.at(lines + 1), start);
    QCOMPARE(copied.size(), lines + 5);
}

// Clause 5.3.6 has such a line; the reader goes by the count alone.
void TestRecordingWriter::aRateLineWhereNoneIsCountedStandsForTheStart()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(
        recording, configurationText().text().replace("\n1\n1000,40\n", "\n0\n0,4\n"), dataUpTo(3));
    QCOMPARE(recording.sampleRate, 0.0);
    QCOMPARE(recording.samplesPerCycle, 0);
    QCOMPARE(recording.analogChannels.at(0)->fftMagnitudes, QVector<float>(4, 0.0F));
    const QByteArray configuration = written(recording, 0, 3).configuration;
    QCOMPARE(configuration.mid(configuration.indexOf("50.000000")),
        QByteArray("50.000000\n0\n0,\n15/03/2024,\n15/03/2024,10:00:00.020000\n0"));
}

void TestRecordingWriter::shortDefinitionsAreFilledWithEmptyTexts()
{
    ConfigurationText text = configurationText();
    text.analog[1] = "2,UL1,B,,V,2,0,0,-100,100"; // as the edition before has it
    text.digital = QByteArrayList{"1,TRIP,x,y,0", "2,CLOSE,0"};
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), dataUpTo(3));
    const Written copy = written(recording, 0, 3);
    QCOMPARE(copy.line(4), QByteArray("2,UL1,B,,V,2,0,0,-100,100,0.000000,0.000000,"));
    // The phase was kept with the line end behind it, which must not start a line here.
    QCOMPARE(copy.line(6), QByteArray("2,CLOSE,0,,"));
    QCOMPARE(copy.line(7), QByteArray("50.000000"));
}

void TestRecordingWriter::fieldsBehindAShortDigitalLineMoveUpToIt()
{
    ConfigurationText text = configurationText();
    text.digital = QByteArrayList{"1,TRIP", "2,CLOSE,x,y,1", "3,OPEN,u,v,0"};
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), "1,0,5,6,1,0,1\n");
    const Written copy = written(recording, 0, 3);
    QCOMPARE(copy.line(5), QByteArray("1,TRIP,x,y,1"));
    QCOMPARE(copy.line(6), QByteArray("2,CLOSE,u,v,0"));
    QCOMPARE(copy.line(7), QByteArray("3,OPEN,,,"));
}

void TestRecordingWriter::recordsWithoutDefinitionsHaveLines()
{
    // A configuration cut off behind its first channel.
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, "Harju,J07,1999\n3,2A,1D\n" + analogLine(1) + '\n', "1,0,5,6,1\n");
    QCOMPARE(recording.analogChannels.size(), 2);
    const Written copy = written(recording, 0, 3);
    QCOMPARE(copy.line(4), QByteArray("0,,,,,1,0,0,0,0,1.000000,1.000000,"));
    QCOMPARE(copy.line(5), QByteArray("0,,,,"));
    QCOMPARE(copy.line(6), QByteArray("0.000000"));
    QCOMPARE(copy.data, QByteArray("1,0,5,6,1"));
}

void TestRecordingWriter::recordsThatAreNotCountedHaveNone()
{
    ConfigurationText text = configurationText();
    text.counts = "4,2A,1D";
    const QByteArray data = "1,0,5,6,1,0\n2,1000,7,8,0,1";
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), data);
    QCOMPARE(recording.lineFrequency, 50.0);
    for (const char *name : {"first", "second"}) {
        QCOMPARE(recording.digitalChannels.size(), 2);
        const Written copy = written(recording, -infinite, infinite);
        QCOMPARE(copy.line(2), text.counts);
        QCOMPARE(copy.line(5), text.digital.at(0));
        QCOMPARE(copy.line(6), QByteArray("50.000000"));
        QCOMPARE(copy.line(7), QByteArray("1"));
        QCOMPARE(copy.data, data);
        folder.load(recording, copy.configuration, copy.data, name);
        QCOMPARE(recording.lineFrequency, 50.0);
    }
}

void TestRecordingWriter::lettersGoOutAsTheyCameIn()
{
    ConfigurationText text = configurationText();
    text.station = "H\xe4rj\xe4,J\xc3\xa4,2013";
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), dataUpTo(3));
    QCOMPARE(written(recording, 0, 3).line(1), text.station);
}

void TestRecordingWriter::lettersBeyondLatin1GoOutAsUtf8_data()
{
    QTest::addColumn<QByteArray>("read"); // in UTF-8, a name and its unit
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("the last letter of Latin-1")
        << QByteArray("J\xc3\xa4nnite[\xc3\xbf]") << QByteArray("J\xe4nnite,,,\xff");
    QTest::newRow("the first letter beyond")
        << QByteArray("J\xc3\xa4nnite[\xc4\x80]") << QByteArray("J\xc3\xa4nnite,,,\xc4\x80");
    QTest::newRow("one far beyond")
        << QByteArray("J\xc3\xa4nnite[\xce\xa9]") << QByteArray("J\xc3\xa4nnite,,,\xce\xa9");
    QTest::newRow("NULs, behind which a line would not be read")
        << QByteArray("U\0a[k\0V]", 8) << QByteArray("Ua,,,kV");
}

void TestRecordingWriter::carriageReturnsBehindALineAreLost()
{
    ConfigurationText text = configurationText();
    text.station = "Harju,J\r07,1999\r";
    text.digital = QByteArrayList{"1,TRIP,x,y,0\r\r"};
    text.fileType = "ASCII\r";
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text("\r\n"), dataUpTo(3));
    QCOMPARE(recording.fileType, QStringLiteral("ASCII\r"));
    const Written first = written(recording, 0, 3);
    QCOMPARE(first.line(1), QByteArray("Harju,J\r07,1999"));
    QCOMPARE(first.line(5), QByteArray("1,TRIP,x,y,0"));
    QCOMPARE(first.line(11), QByteArray("ASCII"));
    folder.load(recording, first.configuration, first.data, "first");
    QCOMPARE(written(recording, 0, 3).configuration, first.configuration);
}

void TestRecordingWriter::lettersBeyondLatin1GoOutAsUtf8()
{
    QFETCH(QByteArray, read);
    QFETCH(QByteArray, written);
    const RecordingFolder folder;
    QVERIFY(writeTextFile(folder.path("rec.txt"), '#' + read + "\n01/02/2020-10:00:00:000,5\n"));
    CFGProperties recording;
    recording.filePath = folder.path("rec.txt");
    recording.init();
    QCOMPARE(::written(recording, 0, 3).line(3),
        "0," + written + ",1,0,0,-99999,99999,1.000000,1.000000,P");
}

void TestRecordingWriter::asPrimaryTurnsSecondaryChannels()
{
    ConfigurationText text = configurationText();
    text.analog += "3,IL3,C,,A,0.25,2,0,0,0,500,0,S";
    text.analog += "4,IL4,C,,A,0.25,2,0,0,0,500,5,s";
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), "1,0,1,2,3,4,1\n2,1000,-1,-2,-3,-4,0\n");
    const Written copy
        = writtenAsPrimary(recording, QStringList{QStringLiteral("600"), QStringLiteral("33000")},
            QStringList{QStringLiteral("5"), QStringLiteral("110")});
    QVERIFY(!copy.outcome.hasFailed());
    QCOMPARE(copy.configuration,
        QByteArray("Harju,Feeder J07,1999\n"
                   "5,4A,1D\n"
                   "1,IL1,A,Bay,A,200,-400,3.25,-32767,32767,600.000000,5.000000,P\n"
                   "2,UL1,B,,V,2,0,0,-100,100,33000.000000,110.000000,P\n"
                   "3,IL3,C,,A,0.25,2,0,0,0,500.000000,0.000000,P\n"
                   "4,IL4,C,,A,0.25,2,0,0,0,500.000000,5.000000,P\n"
                   "1,TRIP,x,y,0\n"
                   "50.000000\n"
                   "1\n"
                   "1000.000000,2\n"
                   "15/03/2024,10:00:00.000\n"
                   "15/03/2024,10:00:00.000\n"
                   "ASCII\n"
                   "1"));
    QCOMPARE(copy.data, QByteArray("1,0,1,2,3,4,1\n2,1000,-1,-2,-3,-4,0"));
}

void TestRecordingWriter::asPrimaryMultipliesByTheRatio_data()
{
    QTest::addColumn<QByteArrayList>("ratings"); // of channels with a = 0.5 and b = -1
    QTest::addColumn<QByteArrayList>("factors"); // a and b as written
    QTest::newRow("a primary rating of 0 leaves the values")
        << QByteArrayList{"0,1,S"} << QByteArrayList{"0.5,-1"};
    QTest::newRow("a secondary rating of 0 leaves the values")
        << QByteArrayList{"400,0,S"} << QByteArrayList{"0.5,-1"};
    QTest::newRow("ratings of 0 leave the values")
        << QByteArrayList{"0,0,S"} << QByteArrayList{"0.5,-1"};
    QTest::newRow("a negative rating") << QByteArrayList{"-400,1,S"} << QByteArrayList{"-200,400"};
    QTest::newRow("an offset that only a double holds")
        << QByteArrayList{"1e39,1,S"} << QByteArrayList{"5e+38,-1e+39"};
    // The first channel has no factor, which gives it that of the second one.
    QTest::newRow("the factors of later channels do not change one without a side")
        << QByteArrayList{"600,5,s", "400,1,S", "20000,100,P"}
        << QByteArrayList{"0.5,-1", "0.5,-1", "0.5,-1"};
}

void TestRecordingWriter::asPrimaryMultipliesByTheRatio()
{
    QFETCH(QByteArrayList, ratings);
    QFETCH(QByteArrayList, factors);
    ConfigurationText text;
    QByteArray data = "1,0";
    for (int k = 0; k < ratings.size(); ++k) {
        text.analog += analogLine(k + 1, "0.5", "-1", ratings.at(k));
        data += ",7";
    }
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), data);
    const Written copy = writtenAsPrimary(recording);
    for (int k = 0; k < factors.size(); ++k)
        QCOMPARE(copy.line(3 + k).split(',').mid(5, 2).join(','), factors.at(k));
}

void TestRecordingWriter::asPrimaryWritesEverySample()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(
        recording, configurationText().text(), "1,-5000,1,2,0\n2,0,3,4,1\n3,90000000,5,6,0\n");
    const Written copy = writtenAsPrimary(recording);
    QCOMPARE(copy.data, QByteArray("1,0,1,2,0\n2,5000,3,4,1\n3,90005000,5,6,0"));
    QCOMPARE(copy.line(8), QByteArray("1000.000000,3"));
    QCOMPARE(copy.line(9), QByteArray("15/03/2024,09:59:59.995"));
    QCOMPARE(copy.line(10), QByteArray("15/03/2024,10:00:00.020"));
}

void TestRecordingWriter::asPrimaryShowsTheSameValuesWhenOpened()
{
    ConfigurationText text = configurationText();
    text.analog[0] = "1,IL1,A,Bay,A,0.0123456,-1.5,0,0,0,600,5,S";
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), dataUpTo(40));
    RecordingWriter(recording, {}, {}).writeAsPrimary(folder.path("copy"));
    CFGProperties copy;
    copy.filePath = folder.path("copy.cfg");
    copy.init();
    QCOMPARE(copy.loaded, 1);
    QCOMPARE(copy.sampleCount, 41);
    for (int k = 0; k < 2; ++k) {
        const AnalogChannel &one = *recording.analogChannels.at(k);
        const AnalogChannel &other = *copy.analogChannels.at(k);
        for (int i = 0; i < 41; ++i) {
            const double value = static_cast<double>(one.values.at(i));
            const double copied = static_cast<double>(other.values.at(i));
            QVERIFY(std::abs(copied * other.toPrimary - value * one.toPrimary)
                <= 2e-6 * std::abs(value * one.toPrimary) + 1e-3);
            QVERIFY(std::abs(copied * other.toSecondary - value * one.toSecondary)
                <= 2e-6 * std::abs(value * one.toSecondary) + 1e-5);
        }
        QCOMPARE(other.ps, QStringLiteral("P"));
    }
    QCOMPARE(copy.analogChannels.at(0)->toPrimary, 1.0);
    // 5 by 600, of values that are 120 times as large.
    QCOMPARE(copy.analogChannels.at(0)->toSecondary, 1.0 / 120);
    QCOMPARE(copy.analogA.at(0), 1.48147F);
    QCOMPARE(copy.analogB.at(0), -180.0F);
}

void TestRecordingWriter::aTextExportCanBeWritten()
{
    const RecordingFolder folder;
    QVERIFY(writeTextFile(folder.path("rec.txt"),
        "#Ua[kV],Freq\n01/02/2020-10:00:00:000,1.5,50\n01/02/2020-10:00:00:020,-2.25,49\n"));
    CFGProperties recording;
    recording.filePath = folder.path("rec.txt");
    recording.init();
    const Written copy = written(recording, 0, 20);
    // Its start time has a colon before the milliseconds and is no time of a configuration.
    QCOMPARE(copy.configuration,
        QByteArray(",,\n"
                   "2,2A,0D\n"
                   "0,Ua,,,kV,1,0,0,-99999,99999,1.000000,1.000000,P\n"
                   "1,Freq,,,Freq,1,0,0,-99999,99999,1.000000,1.000000,P\n"
                   "1.000000\n"
                   "1\n"
                   "1.000000,2\n"
                   "01/02/2020,\n"
                   ",\n"
                   "\n"
                   "1"));
    QCOMPARE(copy.data, QByteArray("1,0,2,50,\n2,20000,-2,49,"));
}

QTEST_GUILESS_MAIN(TestRecordingWriter)
#include "tst_recordingwriter.moc"
