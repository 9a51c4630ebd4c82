// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "asciilayout.h"

#include <QtTest>

namespace {

const QByteArray goodConfiguration
    = "Harju,Feeder J07,1999\n"
      "3,2A,1D\n"
      "1,IL1,A,Bay,A,0.5,-1,3.25,-32767,32767,400.000000,1.000000,S\n"
      "2,UL1,B,,V,2e-05,0,0,-100,100,20000,100,P\n"
      "1,TRIP,x,y,0\n"
      "50.000000\n"
      "2\n"
      "1000.000000,2\n"
      "500.000000,3\n"
      "15/03/2024,10:00:00.000\n"
      "15/03/2024,10:00:00.002\n"
      "ASCII\n"
      "1";
const QByteArray goodData = "1,0,0,-99999,0\n"
                            "2,1000,1,99999,1\n"
                            "3,3000,-2,-2,0";

QByteArray withLine(const QByteArray &text, int number, const QByteArray &line)
{
    QByteArrayList lines = text.split('\n');
    lines[number - 1] = line;
    return lines.join('\n');
}

QByteArrayList faults(const QByteArray &configuration, const QByteArray &data)
{
    QByteArrayList texts;
    for (const LayoutFault &fault : faultsOfPair(configuration.toStdString(), data.toStdString())) {
        const bool inData = fault.file == LayoutFault::File::Data;
        texts += (inData ? "data " : "configuration ") + QByteArray::number(fault.line) + ": "
            + QByteArray::fromStdString(fault.what);
    }
    return texts;
}

} // namespace

// The check of saved files, held against pairs written by hand.
class TestAsciiLayout : public QObject {
    Q_OBJECT

private slots:
    void goodPairs_data();
    void goodPairs();
    void brokenConfigurations_data();
    void brokenConfigurations();
    void aLineTooManyEndsTheConfiguration();
    void brokenData_data();
    void brokenData();
};

void TestAsciiLayout::goodPairs_data()
{
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("with LF and no last line end") << goodConfiguration << goodData;
    QTest::newRow("with CR LF, last line ends and the mark of the end")
        << QByteArray(goodConfiguration + '\n').replace("\n", "\r\n")
        << QByteArray(goodData + '\n').replace("\n", "\r\n") + '\x1a';
    QTest::newRow("seconds with six decimals")
        << withLine(goodConfiguration, 10, "15/03/2024,10:00:00.000000") << goodData;
    QTest::newRow("part of a recording")
        << goodConfiguration << QByteArray("101,0,0,0,0\n102,1000,1,1,1\n103,3000,-2,-2,0");
    const QByteArray noDigitals
        = withLine(goodConfiguration, 2, "2,2A,0D").replace("1,TRIP,x,y,0\n", "");
    QTest::newRow("a comma at the end without digital channels")
        << noDigitals << QByteArray("1,0,0,0,\n2,1000,1,1,\n3,3000,-2,-2,");
    QTest::newRow("no sample") << withLine(withLine(goodConfiguration, 8, "1000,0"), 9, "500,0")
                               << QByteArray();
    QTest::newRow("no fixed rate")
        << withLine(goodConfiguration, 7, "0").replace("1000.000000,2\n500.000000,3", "0,3")
        << goodData;
}

void TestAsciiLayout::goodPairs()
{
    QFETCH(QByteArray, configuration);
    QFETCH(QByteArray, data);
    QCOMPARE(faults(configuration, data), QByteArrayList());
}

void TestAsciiLayout::brokenConfigurations_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("fault");
    const auto row = [](const char *name, int line, const QByteArray &text, const char *fault) {
        QTest::newRow(name) << line << text
                            << "configuration " + QByteArray::number(line) + ": " + fault;
    };
    row("a field too few at the top", 1, "Harju,1999", "the first line has not three fields");
    row("a long station", 1, QByteArray(65, 'x') + ",J07,1999",
        "the station has more than 64 letters");
    row("a long device", 1, "Harju," + QByteArray(65, 'x') + ",1999",
        "the device has more than 64 letters");
    row("no year", 1, "Harju,J07,", "the revision year is not 1999");
    row("counts without letters", 2, "3,2,1", "the second line does not count channels");
    row("counts that do not add up", 2, "4,2A,1D", "the total is not the sum of the channels");
    row("an analog field too few", 3, "1,IL1,A,Bay,A,0.5,-1,3.25,-9,9,400,1",
        "an analog channel has not 13 fields");
    row("an analog field too many", 3, "1,IL1,A,Bay,A,0.5,-1,3.25,-9,9,400,1,S,",
        "an analog channel has not 13 fields");
    row("channels from 0", 3, "0,IL1,A,Bay,A,0.5,-1,0,-9,9,400,1,S",
        "the channels are not counted from 1");
    row("a channel twice", 4, "1,UL1,B,,V,2,0,0,-9,9,20000,100,P",
        "the channels are not counted from 1");
    row("a long name", 3, "1," + QByteArray(65, 'x') + ",A,Bay,A,0.5,-1,0,-9,9,400,1,S",
        "the name has more than 64 letters");
    row("a long phase", 3, "1,IL1,L1N,Bay,A,0.5,-1,0,-9,9,400,1,S",
        "the phase has more than two letters");
    row("a long circuit", 3, "1,IL1,A," + QByteArray(65, 'x') + ",A,0.5,-1,0,-9,9,400,1,S",
        "the circuit has more than 64 letters");
    row("no unit", 3, "1,IL1,A,Bay,,0.5,-1,0,-9,9,400,1,S", "the unit has not 1 to 32 letters");
    row("a multiplier with a decimal comma", 3, "1,IL1,A,Bay,A,0;5,-1,0,-9,9,400,1,S",
        "a or b is no number");
    row("an infinite offset", 3, "1,IL1,A,Bay,A,0.5,inf,0,-9,9,400,1,S", "a or b is no number");
    row("no skew", 3, "1,IL1,A,Bay,A,0.5,-1,,-9,9,400,1,S", "the skew is no number");
    row("a minimum with decimals", 3, "1,IL1,A,Bay,A,0.5,-1,0,-9.5,9,400,1,S",
        "min or max is no whole number of five digits");
    row("a maximum of six digits", 3, "1,IL1,A,Bay,A,0.5,-1,0,-9,100000,400,1,S",
        "min or max is no whole number of five digits");
    row("min above max", 3, "1,IL1,A,Bay,A,0.5,-1,0,9,-9,400,1,S", "min is larger than max");
    row("no rating", 3, "1,IL1,A,Bay,A,0.5,-1,0,-9,9,,1,S", "a rating is no number");
    row("no flag", 3, "1,IL1,A,Bay,A,0.5,-1,0,-9,9,400,1,", "the flag is neither P nor S");
    row("a flag of two letters", 3, "1,IL1,A,Bay,A,0.5,-1,0,-9,9,400,1,SP",
        "the flag is neither P nor S");
    row("a digital field too few", 5, "1,TRIP,0", "a digital channel has not five fields");
    row("no normal state", 5, "1,TRIP,x,y,", "the normal state is neither 0 nor 1");
    row("no frequency", 6, "", "the line frequency is no number");
    row("too many rates", 7, "1000", "the number of rates is no number up to 999");
    row("a rate without its last sample", 8, "1000", "a rate has no number or no last sample");
    row("rates that run back", 9, "500,1", "a rate has no number or no last sample");
    row("month first", 10, "03/15/2024,10:00:00.000", "the first sample has no date and time");
    row("no time", 10, "15/03/2024,", "the first sample has no date and time");
    row("a colon before the milliseconds", 11, "15/03/2024,10:00:00:000",
        "the trigger has no date and time");
    row("the 25th hour", 11, "15/03/2024,24:00:00.000", "the trigger has no date and time");
    row("binary data", 12, "BINARY", "the file type is not ASCII");
    row("no factor", 13, "x", "the time factor is no number");
}

void TestAsciiLayout::brokenConfigurations()
{
    QFETCH(int, line);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, fault);
    QCOMPARE(faults(withLine(goodConfiguration, line, text), goodData), QByteArrayList{fault});
}

void TestAsciiLayout::aLineTooManyEndsTheConfiguration()
{
    QCOMPARE(faults(goodConfiguration + "\n0,0", goodData),
        QByteArrayList{
            "configuration 13: the configuration has not the lines that its counts promise"});
}

void TestAsciiLayout::brokenData_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("fault");
    const auto row = [](const char *name, int line, const char *text, const char *fault) {
        QTest::newRow(name) << line << QByteArray(text)
                            << "data " + QByteArray::number(line) + ": " + fault;
    };
    row("a field too few", 2, "2,1000,1,1", "a sample has not a field for each channel");
    row("a field too many", 3, "3,3000,1,1,1,", "a sample has not a field for each channel");
    row("a line that is empty", 2, "", "a sample has not a field for each channel");
    row("a number left out", 3, "4,3000,1,1,1", "the samples are not counted");
    row("no number", 1, ",0,1,1,1", "the samples are not counted");
    row("no stamp", 3, "3,,1,1,1", "a stamp is no number from 0 on");
    row("a stamp below 0", 1, "1,-1,1,1,1", "a stamp is no number from 0 on");
    row("a stamp with decimals", 1, "1,0.5,1,1,1", "a stamp is no number from 0 on");
    row("stamps that run back", 3, "3,999,1,1,1", "the stamps run back");
    row("a value with decimals", 2, "2,1000,1.5,1,1", "a value is no whole number of five digits");
    row("no value", 2, "2,1000,,1,1", "a value is no whole number of five digits");
    row("a value of six digits", 2, "2,1000,1,100000,1",
        "a value is no whole number of five digits");
    row("a state of 2", 2, "2,1000,1,1,2", "a state is neither 0 nor 1");
    row("a sample too many", 4, "4,4000,1,1,1", "the last rate does not end at the last sample");
}

void TestAsciiLayout::brokenData()
{
    QFETCH(int, line);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, fault);
    const QByteArray data = line > 3 ? goodData + "\n\n" : goodData;
    QCOMPARE(faults(goodConfiguration, withLine(data, line, text)), QByteArrayList{fault});
}

QTEST_GUILESS_MAIN(TestAsciiLayout)
#include "tst_asciilayout.moc"
