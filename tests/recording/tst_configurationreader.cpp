// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "configurationreader.h"

#include "recordingbuilder.h"

#include <QBuffer>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

const double infinite = std::numeric_limits<double>::infinity();

void read(CFGProperties &recording, QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    readConfiguration(buffer, recording);
}

ConfigurationText twoAndTwo()
{
    ConfigurationText text;
    text.analog = QByteArrayList{"1,IL1,A,Bay 1,kA,0.5,-1.25,3.5,-32768,32767,400,1,S",
        "2,UL1,B,Bay 2,V,2,0,0,-100,100,20000,100,P"};
    text.digital = QByteArrayList{"11,TRIP,ph,Breaker,0", "12,CLOSE,,,1"};
    return text;
}

// The text from line number from on, lines counted from 1.
QByteArray linesFrom(const QByteArray &text, int from)
{
    const QByteArrayList lines = text.split('\n').mid(from - 1);
    return lines.join('\n');
}

} // namespace

class TestConfigurationReader : public QObject {
    Q_OBJECT

private slots:
    void everyFieldFindsItsPlace_data();
    void everyFieldFindsItsPlace();
    void stationLine_data();
    void stationLine();
    void countLine_data();
    void countLine();
    void analogLineWithMissingFields_data();
    void analogLineWithMissingFields();
    void numbersOfAnAnalogLine_data();
    void numbersOfAnAnalogLine();
    void factorsFollowTheFlag_data();
    void factorsFollowTheFlag();
    void anUnknownFlagShiftsLaterFactors();
    void fieldsOfADigitalLine_data();
    void fieldsOfADigitalLine();
    void frequencyLine_data();
    void frequencyLine();
    void rateLines_data();
    void rateLines();
    void samplesPerCycle_data();
    void samplesPerCycle();
    void timeStamps_data();
    void timeStamps();
    void fileType_data();
    void fileType();
    void timeMultiplier_data();
    void timeMultiplier();
    void totalCountAboveTheSumReadsRatesLater();
    void totalCountBelowTheSumReadsStampsEarlier();
    void blankLinesAreLines();
    void laterLinesAreCountedAndIgnored();
    void aSecondPassContinuesTheCount();
    void textIsLatin1AndNotTrimmed();
    void aLineEndsAtItsNul();
    void anEmptyFileChangesNothing();
    void aFileThatCannotBeOpenedIsToldInADebugLine_data();
    void aFileThatCannotBeOpenedIsToldInADebugLine();
};

void TestConfigurationReader::everyFieldFindsItsPlace_data()
{
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::newRow("lines end with LF") << QByteArray("\n");
    QTest::newRow("lines end with CR LF") << QByteArray("\r\n");
}

void TestConfigurationReader::everyFieldFindsItsPlace()
{
    QFETCH(QByteArray, lineEnd);
    CFGProperties recording;
    read(recording, twoAndTwo().text(lineEnd));
    QCOMPARE(recording.cfgLineNumber, 13);
    QCOMPARE(recording.stationName, QStringLiteral("Harju"));
    QCOMPARE(recording.recordingDeviceId, QStringLiteral("Feeder J07"));
    QCOMPARE(recording.revisionYear, QStringLiteral("1999"));
    QCOMPARE(recording.totalChannelCount, 4);
    QCOMPARE(recording.analogChannelCount, 2);
    QCOMPARE(recording.digitalChannelCount, 2);
    QCOMPARE(recording.analogIndexes, QList<int>({1, 2}));
    QCOMPARE(recording.analogIds, QStringList({QStringLiteral("IL1"), QStringLiteral("UL1")}));
    QCOMPARE(recording.analogPhases, QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(
        recording.analogCircuits, QStringList({QStringLiteral("Bay 1"), QStringLiteral("Bay 2")}));
    QCOMPARE(recording.analogUnits, QStringList({QStringLiteral("kA"), QStringLiteral("V")}));
    QCOMPARE(recording.analogA, QList<float>({0.5F, 2.0F}));
    QCOMPARE(recording.analogB, QList<float>({-1.25F, 0.0F}));
    QCOMPARE(recording.analogSkews, QList<double>({3.5, 0.0}));
    QCOMPARE(recording.analogMins, QList<int>({-32768, -100}));
    QCOMPARE(recording.analogMaxs, QList<int>({32767, 100}));
    QCOMPARE(recording.primaryValues, QList<double>({400.0, 20000.0}));
    QCOMPARE(recording.secondaryValues, QList<double>({1.0, 100.0}));
    QCOMPARE(recording.psFlags, QStringList({QStringLiteral("S"), QStringLiteral("P")}));
    QCOMPARE(recording.toPrimary, QList<double>({400.0, 1.0}));
    QCOMPARE(recording.toSecondary, QList<double>({1.0, 0.005}));
    QCOMPARE(recording.digitalIndexes, QList<int>({11, 12}));
    QCOMPARE(recording.digitalIds, QStringList({QStringLiteral("TRIP"), QStringLiteral("CLOSE")}));
    QCOMPARE(recording.digitalPhases, QStringList({QStringLiteral("ph"), QString()}));
    QCOMPARE(recording.digitalCircuits, QStringList({QStringLiteral("Breaker"), QString()}));
    QCOMPARE(
        recording.digitalNormalStates, QStringList({QStringLiteral("0"), QStringLiteral("1")}));
    QCOMPARE(recording.lineFrequency, 50.0);
    QCOMPARE(recording.rateCount, 1);
    QCOMPARE(recording.sampleRate, 1000.0);
    QCOMPARE(recording.lastSampleNumber, 40);
    QCOMPARE(recording.durationMs, qint64(40));
    QCOMPARE(recording.samplesPerCycle, 20);
    QCOMPARE(recording.startDate, QStringLiteral("15/03/2024"));
    QCOMPARE(recording.startTime, QStringLiteral("10:00:00.000"));
    QCOMPARE(recording.triggerDate, QStringLiteral("15/03/2024"));
    QCOMPARE(recording.triggerTime, QStringLiteral("10:00:00.020"));
    QCOMPARE(recording.triggerOffsetMs, 20);
    QCOMPARE(recording.fileType, QStringLiteral("ASCII"));
    QCOMPARE(recording.timeMultiplier, 1.0);
    // Records are the data reader's.
    QVERIFY(recording.analogChannels.isEmpty());
    QVERIFY(recording.digitalChannels.isEmpty());
}

void TestConfigurationReader::stationLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("station");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("year");
    const auto row = [](const char *name, const QByteArray &line, const char *station,
                         const char *device, const char *year) {
        QTest::newRow(name) << line << QString::fromLatin1(station) << QString::fromLatin1(device)
                            << QString::fromLatin1(year);
    };
    row("three fields", "Harju,J07,1999\n", "Harju", "J07", "1999");
    row("CR LF", "Harju,J07,2013\r\n", "Harju", "J07", "2013");
    row("no line end costs a letter", "Harju,J07,1999", "Harju", "J07", "199");
    row("a fourth field costs a letter too", "Harju,J07,1999,x\n", "Harju", "J07", "199");
    row("an empty year", "Harju,J07,\n", "Harju", "J07", "");
    row("no year: the device keeps the line end", "Harju,J07\n", "Harju", "J07\n", "");
    row("no device", "Harju\n", "Harju\n", "", "");
    row("nothing but commas", ",,\n", "", "", "");
    row("an empty line", "\n", "\n", "", "");
    row("blanks stay", " Harju , J07 , 1999 \n", " Harju ", " J07 ", " 1999 ");
}

void TestConfigurationReader::stationLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, station);
    QFETCH(QString, device);
    QFETCH(QString, year);
    CFGProperties recording;
    read(recording, line);
    QCOMPARE(recording.cfgLineNumber, 1);
    QCOMPARE(recording.stationName, station);
    QCOMPARE(recording.recordingDeviceId, device);
    QCOMPARE(recording.revisionYear, year);
}

void TestConfigurationReader::countLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("analog");
    QTest::addColumn<int>("digital");
    QTest::newRow("5,3A,2D") << QByteArray("5,3A,2D\n") << 5 << 3 << 2;
    QTest::newRow("CR LF") << QByteArray("5,3A,2D\r\n") << 5 << 3 << 2;
    QTest::newRow("small letters") << QByteArray("5,3a,2d\n") << 5 << 3 << 2;
    QTest::newRow("blanks around the numbers") << QByteArray(" 15 , 13A, 2D\n") << 15 << 13 << 2;
    QTest::newRow("without a line end the last digit goes")
        << QByteArray("15,3A,12D") << 15 << 3 << 1;
    QTest::newRow("a blank after A does not convert") << QByteArray("5,3A ,2D\n") << 5 << 0 << 2;
    QTest::newRow("without letters the last digits go") << QByteArray("25,13,12\n") << 25 << 1 << 1;
    QTest::newRow("one digit without letters goes") << QByteArray("5,3,2\n") << 5 << 0 << 0;
    QTest::newRow("nothing after the total") << QByteArray("5\n") << 5 << 0 << 0;
    QTest::newRow("no numbers") << QByteArray("a,bA,cD\n") << 0 << 0 << 0;
    QTest::newRow("an empty line") << QByteArray("\n") << 0 << 0 << 0;
    QTest::newRow("negative numbers") << QByteArray("-5,-3A,-2D\n") << -5 << -3 << -2;
    QTest::newRow("numbers beyond 32 bits")
        << QByteArray("3000000000,3000000000A,3000000000D\n") << 0 << 0 << 0;
    QTest::newRow("numbers near 32 bits") << QByteArray("2000000000,2000000000A,2000000000D\n")
                                          << 2000000000 << 2000000000 << 2000000000;
}

void TestConfigurationReader::countLine()
{
    QFETCH(QByteArray, line);
    QFETCH(int, total);
    QFETCH(int, analog);
    QFETCH(int, digital);
    CFGProperties recording;
    read(recording, "Harju,J07,1999\n" + line);
    QCOMPARE(recording.totalChannelCount, total);
    QCOMPARE(recording.analogChannelCount, analog);
    QCOMPARE(recording.digitalChannelCount, digital);
}

void TestConfigurationReader::analogLineWithMissingFields_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<float>("a");
    QTest::addColumn<double>("primary");
    QTest::addColumn<QString>("flag");
    const auto row = [](const char *name, const char *line, int index, const char *id,
                         const char *unit, float a, double primary, const char *flag) {
        QTest::newRow(name) << QByteArray(line) << index << QString::fromLatin1(id)
                            << QString::fromLatin1(unit) << a << primary
                            << QString::fromLatin1(flag);
    };
    row("all fields", "1,IL1,A,B,kA,2,0,0,1,2,400,1,S", 1, "IL1", "kA", 2, 400, "S");
    row("a fourteenth field", "1,IL1,A,B,kA,2,0,0,1,2,400,1,S,x", 1, "IL1", "kA", 2, 400, "S");
    row("ten fields, as in the edition before", "1,IL1,A,B,kA,2,0,0,1,2", 1, "IL1", "kA", 2, 0, "");
    row("an empty last field holds the line end", "1,IL1,A,B,kA,2,0,0,1,2,400,1,", 1, "IL1", "kA",
        2, 400, "\n");
    row("twelve fields", "1,IL1,A,B,kA,2,0,0,1,2,400,1", 1, "IL1", "kA", 2, 400, "");
    row("five fields: the last one holds the line end", "1,IL1,A,B,kA", 1, "IL1", "kA\n", 0, 0, "");
    row("two fields", "1,IL1", 1, "IL1\n", "", 0, 0, "");
    row("one field", "7", 7, "", "", 0, 0, "");
    row("an empty line", "", 0, "", "", 0, 0, "");
    row("nothing but commas", ",,,,,,,,,,,,", 0, "", "", 0, 0, "\n");
}

void TestConfigurationReader::analogLineWithMissingFields()
{
    QFETCH(QByteArray, line);
    QFETCH(int, index);
    QFETCH(QString, id);
    QFETCH(QString, unit);
    QFETCH(float, a);
    QFETCH(double, primary);
    QFETCH(QString, flag);
    ConfigurationText text;
    text.analog = QByteArrayList{line};
    CFGProperties recording;
    read(recording, text.text());
    QCOMPARE(recording.analogIndexes, QList<int>({index}));
    QCOMPARE(recording.analogIds, QStringList({id}));
    QCOMPARE(recording.analogUnits, QStringList({unit}));
    QCOMPARE(recording.analogA, QList<float>({a}));
    QCOMPARE(recording.primaryValues, QList<double>({primary}));
    QCOMPARE(recording.psFlags, QStringList({flag}));
    // Every other list has its entry, and the lines that follow keep their places.
    QCOMPARE(recording.analogPhases.size(), 1);
    QCOMPARE(recording.analogCircuits.size(), 1);
    QCOMPARE(recording.analogB.size(), 1);
    QCOMPARE(recording.analogSkews.size(), 1);
    QCOMPARE(recording.analogMins.size(), 1);
    QCOMPARE(recording.analogMaxs.size(), 1);
    QCOMPARE(recording.secondaryValues.size(), 1);
    QCOMPARE(recording.lineFrequency, 50.0);
}

void TestConfigurationReader::numbersOfAnAnalogLine_data()
{
    QTest::addColumn<QByteArray>("numbers"); // a, b, skew, min, max, primary, secondary
    QTest::addColumn<float>("a");
    QTest::addColumn<float>("b");
    QTest::addColumn<double>("skew");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<double>("primary");
    QTest::newRow("exponents") << QByteArray("1.5E-3,2e2,1e-6,-1,1,4e2,1") << 0.0015F << 200.0F
                               << 1e-6 << -1 << 1 << 400.0;
    QTest::newRow("blanks around")
        << QByteArray(" 2 , 3 , 4 , -5 , 6 , 7 ,1") << 2.0F << 3.0F << 4.0 << -5 << 6 << 7.0;
    QTest::newRow("limits with a decimal point are 0")
        << QByteArray("1,0,0,-32767.0,32767.5,400,1") << 1.0F << 0.0F << 0.0 << 0 << 0 << 400.0;
    QTest::newRow("what does not convert is 0")
        << QByteArray("x,y,z,v,w,u,1") << 0.0F << 0.0F << 0.0 << 0 << 0 << 0.0;
    QTest::newRow("beyond a float is infinite")
        << QByteArray("1e39,-1e39,0,0,0,400,1") << std::numeric_limits<float>::infinity()
        << -std::numeric_limits<float>::infinity() << 0.0 << 0 << 0 << 400.0;
    QTest::newRow("rounded to a float once, from a double")
        << QByteArray("0.1,-0.1,0.1,0,0,0.1,1") << 0.1F << -0.1F << 0.1 << 0 << 0 << 0.1;
}

void TestConfigurationReader::numbersOfAnAnalogLine()
{
    QFETCH(QByteArray, numbers);
    QFETCH(float, a);
    QFETCH(float, b);
    QFETCH(double, skew);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(double, primary);
    ConfigurationText text;
    text.analog = QByteArrayList{"1,IL1,A,B,kA," + numbers + ",S"};
    CFGProperties recording;
    read(recording, text.text());
    QVERIFY(recording.analogA.at(0) == a);
    QVERIFY(recording.analogB.at(0) == b);
    QCOMPARE(recording.analogSkews, QList<double>({skew}));
    QCOMPARE(recording.analogMins, QList<int>({minimum}));
    QCOMPARE(recording.analogMaxs, QList<int>({maximum}));
    QCOMPARE(recording.primaryValues, QList<double>({primary}));
}

void TestConfigurationReader::factorsFollowTheFlag_data()
{
    QTest::addColumn<QByteArray>("ratings");
    QTest::addColumn<QList<double>>("toPrimary");
    QTest::addColumn<QList<double>>("toSecondary");
    using Factors = QList<double>;
    QTest::newRow("S: secondary values") << QByteArray("400,1,S") << Factors{400} << Factors{1};
    QTest::newRow("P: primary values") << QByteArray("20000,100,P") << Factors{1} << Factors{0.005};
    QTest::newRow("only the first letter counts")
        << QByteArray("400,1,Secondary") << Factors{400} << Factors{1};
    QTest::newRow("a small s adds none") << QByteArray("400,1,s") << Factors{} << Factors{};
    QTest::newRow("a small p adds none") << QByteArray("400,1,p") << Factors{} << Factors{};
    QTest::newRow("a blank before it adds none")
        << QByteArray("400,1, S") << Factors{} << Factors{};
    QTest::newRow("no flag adds none") << QByteArray("400,1") << Factors{} << Factors{};
    // The reciprocal of 49 is rounded down, and the product stays below 1.
    QTest::newRow("S: a reciprocal, then a product")
        << QByteArray("49,49,S") << Factors{0x1.fffffffffffffp-1} << Factors{1};
    QTest::newRow("P: a reciprocal, then a product")
        << QByteArray("49,49,P") << Factors{1} << Factors{0x1.fffffffffffffp-1};
    QTest::newRow("S: a secondary rating of 0")
        << QByteArray("400,0,S") << Factors{infinite} << Factors{1};
    QTest::newRow("P: a primary rating of 0")
        << QByteArray("0,100,P") << Factors{1} << Factors{infinite};
}

void TestConfigurationReader::factorsFollowTheFlag()
{
    QFETCH(QByteArray, ratings);
    QFETCH(QList<double>, toPrimary);
    QFETCH(QList<double>, toSecondary);
    ConfigurationText text;
    text.analog = QByteArrayList{analogLine(1, "1", "0", ratings)};
    CFGProperties recording;
    read(recording, text.text());
    // Not QCOMPARE: it calls near doubles equal.
    QVERIFY(recording.toPrimary == toPrimary);
    QVERIFY(recording.toSecondary == toSecondary);
    QCOMPARE(recording.analogIds.size(), 1);
    QCOMPARE(recording.psFlags.size(), 1);
}

void TestConfigurationReader::anUnknownFlagShiftsLaterFactors()
{
    ConfigurationText text;
    text.analog = QByteArrayList{analogLine(1, "1", "0", "400,1,S"),
        analogLine(2, "1", "0", "500,1,s"), analogLine(3, "1", "0", "600,1,S")};
    CFGProperties recording;
    read(recording, text.text());
    QCOMPARE(recording.analogIds.size(), 3);
    QCOMPARE(recording.toPrimary, QList<double>({400.0, 600.0}));
    QCOMPARE(recording.toSecondary, QList<double>({1.0, 1.0}));
}

void TestConfigurationReader::fieldsOfADigitalLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<QStringList>("phases");
    QTest::addColumn<QStringList>("circuits");
    QTest::addColumn<QStringList>("states");
    const auto list = [](const char *text) {
        return text ? QStringList(QString::fromLatin1(text)) : QStringList();
    };
    const auto row = [&](const char *name, const char *line, int index, const char *id,
                         const char *phase, const char *circuit, const char *state) {
        QTest::newRow(name) << QByteArray(line) << index << list(id) << list(phase) << list(circuit)
                            << list(state);
    };
    row("five fields", "3,TRIP,A,Q0,1\n", 3, "TRIP", "A", "Q0", "1");
    row("CR LF", "3,TRIP,A,Q0,1\r\n", 3, "TRIP", "A", "Q0", "1");
    row("a sixth field", "3,TRIP,A,Q0,1,x\n", 3, "TRIP", "A", "Q0", "1");
    row("four fields", "3,TRIP,A,Q0\n", 3, "TRIP", "A", "Q0\n", nullptr);
    row("three fields, as in the edition before", "3,TRIP,0\n", 3, "TRIP", "0\n", nullptr, nullptr);
    row("two fields", "3,TRIP\n", 3, "TRIP\n", nullptr, nullptr, nullptr);
    row("one field", "3\n", 3, nullptr, nullptr, nullptr, nullptr);
    row("an empty line", "\n", 0, nullptr, nullptr, nullptr, nullptr);
    row("an empty state", "3,TRIP,A,Q0,\n", 3, "TRIP", "A", "Q0", "");
    row("no number", "x,TRIP,A,Q0,0\n", 0, "TRIP", "A", "Q0", "0");
}

void TestConfigurationReader::fieldsOfADigitalLine()
{
    QFETCH(QByteArray, line);
    QFETCH(int, index);
    QFETCH(QStringList, ids);
    QFETCH(QStringList, phases);
    QFETCH(QStringList, circuits);
    QFETCH(QStringList, states);
    CFGProperties recording;
    read(recording, "Harju,J07,1999\n1,0A,1D\n" + line + "60\n");
    QCOMPARE(recording.digitalIndexes, QList<int>({index}));
    QCOMPARE(recording.digitalIds, ids);
    QCOMPARE(recording.digitalPhases, phases);
    QCOMPARE(recording.digitalCircuits, circuits);
    QCOMPARE(recording.digitalNormalStates, states);
    QCOMPARE(recording.lineFrequency, 60.0);
}

void TestConfigurationReader::frequencyLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<double>("frequency");
    QTest::newRow("a whole number") << QByteArray("50\n") << 50.0;
    QTest::newRow("a decimal") << QByteArray("16.7\r\n") << 16.7;
    QTest::newRow("an empty line") << QByteArray("\n") << 0.0;
    QTest::newRow("no number") << QByteArray("50 Hz\n") << 0.0;
    QTest::newRow("without a line end the last digit goes") << QByteArray("50") << 5.0;
}

void TestConfigurationReader::frequencyLine()
{
    QFETCH(QByteArray, line);
    QFETCH(double, frequency);
    CFGProperties recording;
    read(recording, "Harju,J07,1999\n0,0A,0D\n" + line);
    QCOMPARE(recording.lineFrequency, frequency);
}

void TestConfigurationReader::rateLines_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("last");
    QTest::addColumn<qint64>("duration");
    constexpr qint64 longest = std::numeric_limits<qint64>::max();
    QTest::newRow("one rate") << QByteArray("1\n1000,40\n") << 1 << 1000.0 << 40 << qint64(40);
    QTest::newRow("the last of two counts")
        << QByteArray("2\n1000,500\n2000,3000\n") << 2 << 2000.0 << 3000 << qint64(1500);
    QTest::newRow("no rate") << QByteArray("0\n") << 0 << 0.0 << 0 << qint64(0);
    QTest::newRow("a rate with decimals; the part of a millisecond is cut")
        << QByteArray("1\n7680.5,3584\n") << 1 << 7680.5 << 3584 << qint64(466);
    QTest::newRow("a rate of 0") << QByteArray("1\n0,40\n") << 1 << 0.0 << 40 << longest;
    QTest::newRow("a rate and an end of 0") << QByteArray("1\n0,0\n") << 1 << 0.0 << 0 << qint64(0);
    QTest::newRow("a tiny rate") << QByteArray("1\n1e-300,40\n") << 1 << 1e-300 << 40 << longest;
    QTest::newRow("an end with a decimal point is 0")
        << QByteArray("1\n1000,40.0\n") << 1 << 1000.0 << 0 << qint64(0);
    QTest::newRow("no end") << QByteArray("1\n1000\n") << 1 << 1000.0 << 0 << qint64(0);
    QTest::newRow("a count that is no number")
        << QByteArray("one\n1000,40\n") << 0 << 0.0 << 0 << qint64(0);
    QTest::newRow("a negative end")
        << QByteArray("1\n1000,-40\n") << 1 << 1000.0 << -40 << qint64(-40);
    QTest::newRow("a huge rate") << QByteArray("1\n1e12,40\n") << 1 << 1e12 << 40 << qint64(0);
}

void TestConfigurationReader::rateLines()
{
    QFETCH(QByteArray, lines);
    QFETCH(int, count);
    QFETCH(double, rate);
    QFETCH(int, last);
    QFETCH(qint64, duration);
    CFGProperties recording;
    read(recording,
        "Harju,J07,1999\n0,0A,0D\n50\n" + lines
            + "15/03/2024,10:00:00.000\n15/03/2024,10:00:00.001\nASCII\n1\n");
    QCOMPARE(recording.rateCount, count);
    QCOMPARE(recording.sampleRate, rate);
    QCOMPARE(recording.lastSampleNumber, last);
    QCOMPARE(recording.durationMs, duration);
    if (lines.startsWith("one"))
        return;
    // The stamps stand after as many rate lines as were announced.
    QCOMPARE(recording.startDate, QStringLiteral("15/03/2024"));
    QCOMPARE(recording.triggerOffsetMs, 1);
}

void TestConfigurationReader::samplesPerCycle_data()
{
    QTest::addColumn<QByteArray>("frequency");
    QTest::addColumn<QByteArray>("rate");
    QTest::addColumn<int>("expected");
    QTest::newRow("1000 by 50") << QByteArray("50") << QByteArray("1000") << 20;
    QTest::newRow("1250 by 60 is rounded up") << QByteArray("60") << QByteArray("1250") << 21;
    QTest::newRow("1200 by 59 is rounded down") << QByteArray("59") << QByteArray("1200") << 20;
    QTest::newRow("a half goes up") << QByteArray("50") << QByteArray("125") << 3;
    QTest::newRow("a negative rate, a half") << QByteArray("50") << QByteArray("-125") << -2;
    QTest::newRow("a negative rate, beyond a half") << QByteArray("50") << QByteArray("-130") << -3;
    QTest::newRow("no rate") << QByteArray("50") << QByteArray("0") << 0;
    QTest::newRow("neither") << QByteArray("0") << QByteArray("0") << 0;
    QTest::newRow("no frequency") << QByteArray("0") << QByteArray("1000") << 2147483647;
    QTest::newRow("a rate beyond all bounds")
        << QByteArray("50") << QByteArray("1e300") << 2147483647;
    QTest::newRow("a rate that is no number") << QByteArray("50") << QByteArray("nan") << 0;
}

void TestConfigurationReader::samplesPerCycle()
{
    QFETCH(QByteArray, frequency);
    QFETCH(QByteArray, rate);
    QFETCH(int, expected);
    ConfigurationText text;
    text.frequency = frequency;
    text.rates = QByteArrayList{rate + ",40"};
    CFGProperties recording;
    read(recording, text.text());
    QCOMPARE(recording.samplesPerCycle, expected);
}

void TestConfigurationReader::timeStamps_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("trigger");
    QTest::addColumn<QString>("startTime");
    QTest::addColumn<QString>("triggerTime");
    QTest::addColumn<int>("offset");
    const auto row = [](const char *name, const char *start, const char *trigger,
                         const char *startTime, const char *triggerTime, int offset) {
        QTest::newRow(name) << QByteArray(start) << QByteArray(trigger)
                            << QString::fromLatin1(startTime) << QString::fromLatin1(triggerTime)
                            << offset;
    };
    row("microseconds are cut", "15/03/2024,10:00:00.000000", "15/03/2024,10:00:00.100000",
        "10:00:00.000", "10:00:00.100", 100);
    row("cut, not rounded", "15/03/2024,10:00:00.000999", "15/03/2024,10:00:00.100999",
        "10:00:00.000", "10:00:00.100", 100);
    row("milliseconds stay", "15/03/2024,10:00:00.000", "15/03/2024,10:00:00.100", "10:00:00.000",
        "10:00:00.100", 100);
    row("an hour of one digit is no time", "15/03/2024,9:00:00.000000",
        "15/03/2024,10:00:00.100000", "9:00:00.0000", "10:00:00.100", 0);
    row("no milliseconds, no time", "15/03/2024,10:00:00", "15/03/2024,10:00:01", "10:00:00",
        "10:00:01", 0);
    row("a trigger that is no time", "15/03/2024,10:00:00.000000", "15/03/2024,--", "10:00:00.000",
        "--", 0);
    row("an hour of 24 is no time", "15/03/2024,24:00:00.000", "15/03/2024,10:00:00.100",
        "24:00:00.000", "10:00:00.100", 0);
    row("a trigger after midnight is negative", "15/03/2024,23:59:59.900000",
        "16/03/2024,00:00:00.100000", "23:59:59.900", "00:00:00.100", -86399800);
    row("a trigger before the start is negative", "15/03/2024,10:00:00.100",
        "15/03/2024,10:00:00.000", "10:00:00.100", "10:00:00.000", -100);
    row("dates do not count", "15/03/2024,10:00:00.000", "16/03/2024,10:00:00.005", "10:00:00.000",
        "10:00:00.005", 5);
    row("no times", "15/03/2024", "15/03/2024", "", "", 0);
    row("a blank before the time is no time", "15/03/2024, 10:00:00.000", "15/03/2024,10:00:00.005",
        " 10:00:00.00", "10:00:00.005", 0);
}

void TestConfigurationReader::timeStamps()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, trigger);
    QFETCH(QString, startTime);
    QFETCH(QString, triggerTime);
    QFETCH(int, offset);
    ConfigurationText text;
    text.start = start;
    text.trigger = trigger;
    CFGProperties recording;
    read(recording, text.text());
    QCOMPARE(recording.startTime, startTime);
    QCOMPARE(recording.triggerTime, triggerTime);
    QCOMPARE(recording.triggerOffsetMs, offset);
}

void TestConfigurationReader::fileType_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("fileType");
    QTest::newRow("a word") << QByteArray("ASCII\n") << QStringLiteral("ASCII");
    QTest::newRow("CR LF") << QByteArray("ASCII\r\n") << QStringLiteral("ASCII");
    QTest::newRow("any word is kept") << QByteArray("binary32\n") << QStringLiteral("binary32");
    QTest::newRow("commas too") << QByteArray("a,b\n") << QStringLiteral("a,b");
    QTest::newRow("no line end costs a letter") << QByteArray("ASCII") << QStringLiteral("ASCI");
    QTest::newRow("an empty line") << QByteArray("\n") << QString();
}

void TestConfigurationReader::fileType()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, fileType);
    CFGProperties recording;
    read(recording, "S,D,1999\n0,0A,0D\n50\n0\n,\n,\n" + line);
    QCOMPARE(recording.fileType, fileType);
}

void TestConfigurationReader::timeMultiplier_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<double>("expected");
    QTest::newRow("one") << QByteArray("1\n") << 1.0;
    QTest::newRow("without a line end it is whole") << QByteArray("12") << 12.0;
    QTest::newRow("CR LF") << QByteArray("0.001\r\n") << 0.001;
    QTest::newRow("an exponent") << QByteArray("1E+03\n") << 1000.0;
    QTest::newRow("no number") << QByteArray("x\n") << 0.0;
    QTest::newRow("no line leaves it") << QByteArray() << 1.0;
}

void TestConfigurationReader::timeMultiplier()
{
    QFETCH(QByteArray, line);
    QFETCH(double, expected);
    CFGProperties recording;
    read(recording, "S,D,1999\n0,0A,0D\n50\n0\n,\n,\nASCII\n" + line);
    QCOMPARE(recording.timeMultiplier, expected);
}

void TestConfigurationReader::totalCountAboveTheSumReadsRatesLater()
{
    ConfigurationText text;
    text.counts = "4,2A,1D";
    text.analog = QByteArrayList{analogLine(1), analogLine(2)};
    text.digital = QByteArrayList{digitalLine(1)};
    CFGProperties recording;
    read(recording, text.text());
    QCOMPARE(recording.lineFrequency, 50.0);
    QCOMPARE(recording.rateCount, 1);
    // The line of the first stamp is taken for the rate, and so on.
    QCOMPARE(recording.sampleRate, 0.0);
    QCOMPARE(recording.startDate, QStringLiteral("15/03/2024"));
    QCOMPARE(recording.startTime, QStringLiteral("10:00:00.020"));
    QCOMPARE(recording.triggerDate, QStringLiteral("ASCII\n"));

    // With a line more after the count of rates, everything is in its place.
    CFGProperties shifted;
    QByteArray moved = text.text();
    moved.replace("\n1000,40\n", "\nunread\n1000,40\n");
    read(shifted, moved);
    QCOMPARE(shifted.sampleRate, 1000.0);
    QCOMPARE(shifted.lastSampleNumber, 40);
    QCOMPARE(shifted.triggerOffsetMs, 20);
    QCOMPARE(shifted.fileType, QStringLiteral("ASCII"));
}

void TestConfigurationReader::totalCountBelowTheSumReadsStampsEarlier()
{
    ConfigurationText text;
    text.counts = "2,2A,1D";
    text.analog = QByteArrayList{analogLine(1), analogLine(2)};
    text.digital = QByteArrayList{digitalLine(1)};
    CFGProperties recording;
    read(recording, text.text());
    // Line 7 is both the count of rates and a rate line: the former wins.
    QCOMPARE(recording.rateCount, 1);
    QCOMPARE(recording.sampleRate, 0.0);
    QCOMPARE(recording.startDate, QStringLiteral("1000"));
    QCOMPARE(recording.startTime, QStringLiteral("40"));
    QCOMPARE(recording.triggerDate, QStringLiteral("15/03/2024"));
    QCOMPARE(recording.triggerTime, QStringLiteral("10:00:00.000"));
}

void TestConfigurationReader::blankLinesAreLines()
{
    ConfigurationText text;
    text.analog = QByteArrayList{analogLine(1), "", analogLine(3)};
    CFGProperties recording;
    read(recording, text.text());
    QCOMPARE(recording.analogIndexes, QList<int>({1, 0, 3}));
    QCOMPARE(recording.lineFrequency, 50.0);
}

void TestConfigurationReader::laterLinesAreCountedAndIgnored()
{
    CFGProperties recording;
    read(recording, ConfigurationText().text() + "+2,+2\n0,3\n\x1a\n");
    QCOMPARE(recording.cfgLineNumber, 12);
    QCOMPARE(recording.timeMultiplier, 1.0);
    QCOMPARE(recording.fileType, QStringLiteral("ASCII"));
}

void TestConfigurationReader::aSecondPassContinuesTheCount()
{
    CFGProperties recording;
    const QByteArray text = twoAndTwo().text();
    const int read1 = 6;
    read(recording, text.left(text.indexOf(linesFrom(text, read1 + 1))));
    QCOMPARE(recording.cfgLineNumber, read1);
    QCOMPARE(recording.lineFrequency, 0.0);
    read(recording, linesFrom(text, read1 + 1));
    QCOMPARE(recording.cfgLineNumber, 13);
    QCOMPARE(recording.lineFrequency, 50.0);
    QCOMPARE(recording.triggerOffsetMs, 20);

    read(recording, "Other,Device,2013\n9,8A,1D\n");
    QCOMPARE(recording.cfgLineNumber, 15);
    QCOMPARE(recording.stationName, QStringLiteral("Harju"));
    QCOMPARE(recording.totalChannelCount, 4);

    recording.clearConfig();
    read(recording, "Other,Device,2013\n9,8A,1D\n");
    QCOMPARE(recording.stationName, QStringLiteral("Other"));
    QCOMPARE(recording.totalChannelCount, 9);
}

void TestConfigurationReader::textIsLatin1AndNotTrimmed()
{
    ConfigurationText text;
    text.station = "H\xe4rj\xe4,\xc3\xa4 ,1999";
    text.analog = QByteArrayList{"1, I\xb5 ,\ttab,with \r inside,A,1,0,0,0,0,1,1,S"};
    CFGProperties recording;
    read(recording, text.text());
    QCOMPARE(recording.stationName, QString::fromUtf8("Härjä"));
    QCOMPARE(recording.recordingDeviceId, QString::fromUtf8("Ã¤ "));
    QCOMPARE(recording.analogIds, QStringList({QString::fromUtf8(" Iµ ")}));
    QCOMPARE(recording.analogPhases, QStringList({QStringLiteral("\ttab")}));
    QCOMPARE(recording.analogCircuits, QStringList({QStringLiteral("with \r inside")}));
}

void TestConfigurationReader::aLineEndsAtItsNul()
{
    QByteArray text = twoAndTwo().text();
    text.replace("UL1,B", QByteArray("UL1\0B", 5));
    text.replace("ASCII", QByteArray("ASCII\0rest", 10));
    CFGProperties recording;
    read(recording, text);
    QCOMPARE(recording.analogIds.at(1), QStringLiteral("UL1"));
    QCOMPARE(recording.analogPhases.at(1), QString());
    QCOMPARE(recording.primaryValues.at(1), 0.0);
    QCOMPARE(recording.digitalIds.size(), 2);
    // There is no line end left to cut.
    QCOMPARE(recording.fileType, QStringLiteral("ASCI"));
}

void TestConfigurationReader::anEmptyFileChangesNothing()
{
    CFGProperties recording;
    read(recording, QByteArray());
    QCOMPARE(recording.cfgLineNumber, 0);
    QVERIFY(recording.stationName.isEmpty());
}

void TestConfigurationReader::aFileThatCannotBeOpenedIsToldInADebugLine_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such file") << QStringLiteral("missing.cfg");
    QTest::newRow("a folder") << QStringLiteral("folder.cfg");
    QTest::newRow("a file without read permission") << QStringLiteral("locked.cfg");
}

void TestConfigurationReader::aFileThatCannotBeOpenedIsToldInADebugLine()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.cfg")));
    const QString locked = folder.filePath(QStringLiteral("locked.cfg"));
    QVERIFY(writeTextFile(locked, twoAndTwo().text()));
    QVERIFY(QFile::setPermissions(locked, QFile::WriteOwner));
    if (locked.endsWith(name) && QFileInfo(locked).isReadable())
        QSKIP("This user may read every file.");
    CFGProperties recording;
    recording.stationName = QStringLiteral("as before");
    recording.filePath = folder.filePath(name);
    QTest::ignoreMessage(QtDebugMsg, "CANNOT OPEN CFG FILE");
    recording.readConfgFile();
    QCOMPARE(recording.stationName, QStringLiteral("as before"));
    QCOMPARE(recording.cfgLineNumber, 0);
}

QTEST_GUILESS_MAIN(TestConfigurationReader)
#include "tst_configurationreader.moc"
