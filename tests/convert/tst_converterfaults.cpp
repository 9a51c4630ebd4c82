// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "converterrun.h"

#include <QtTest>

#include <memory>

namespace {

const QByteArray configuration = "Harju,Feeder J07,2013\n" // line 1
                                 "4,2A,2D\n"
                                 "1,IL1,A,Bay,A,0.5,0.25,0,-32767,32767,400,1,S\n"
                                 "2,UL1,A,Bay,kV,0.001,-1.5,16.7,-32767,32767,110,0.1,P\n"
                                 "1,Trip,,,0\n" // line 5
                                 "2,Start,,,1\n"
                                 "50\n"
                                 "2\n"
                                 "1000,2\n"
                                 "2000,3\n" // line 10
                                 "15/03/2024,10:00:00.000000\n"
                                 "15/03/2024,10:00:00.001000\n"
                                 "ASCII\n"
                                 "1\n"
                                 "+2h30,x\n" // line 15
                                 "4,0\n";
const QByteArray data = "1,0,1,2,0,1\n2,1000,3,4,0,1\n3,2000,5,6,1,1\n";

} // namespace

// What breaks the standard is told with its place, and leaves nothing behind.
class TestConverterFaults : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ConverterFolder> m_folder;

    void requireMessage(const QByteArray &message) const
    {
        const auto outcome = m_folder->run(QStringLiteral("@r.cfg -o @out"));
        QCOMPARE(outcome.errors, message + '\n');
        QCOMPARE(outcome.status, 1);
        QCOMPARE(
            m_folder->names(), QStringList({QStringLiteral("r.cfg"), QStringLiteral("r.dat")}));
    }

    static void addColumns()
    {
        QTest::addColumn<QByteArray>("search");
        QTest::addColumn<QByteArray>("replacement");
        QTest::addColumn<QByteArray>("message");
    }
    static void row(
        const char *name, const char *search, const char *replacement, const char *message)
    {
        QTest::newRow(name) << QByteArray(search) << QByteArray(replacement) << QByteArray(message);
    }

private slots:
    void init() { m_folder = std::make_unique<ConverterFolder>(); }

    void goodRecordingIsTaken();
    void configurationOfTheHead_data();
    void configurationOfTheHead() { configurationLine(); }
    void configurationOfChannels_data();
    void configurationOfChannels() { configurationLine(); }
    void configurationOfTheEnd_data();
    void configurationOfTheEnd() { configurationLine(); }
    void configurationThatEnds_data();
    void configurationThatEnds();
    void layoutsOfRevisions_data();
    void layoutsOfRevisions();
    void dataLine_data();
    void dataLine();
    void binaryData_data();
    void binaryData();
    void singleFile_data();
    void singleFile();
    void whatDoesNoHarmIsAWarning_data();
    void whatDoesNoHarmIsAWarning();
    void whatIsAllowed_data();
    void whatIsAllowed();
    void timeCodes_data();
    void timeCodes();
    void oddNumbersAreTakenAsTheyAre_data();
    void oddNumbersAreTakenAsTheyAre();
    void stampsFarApart();

private:
    void configurationLine();
};

void TestConverterFaults::goodRecordingIsTaken()
{
    m_folder->write("r.cfg", configuration);
    m_folder->write("r.dat", data);
    const auto outcome = m_folder->run(QStringLiteral("@r.cfg -o @out"));
    QCOMPARE(outcome.errors, QByteArray());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(m_folder->read("out.dat"), QByteArray(data).replace("\n", "\r\n"));
}

void TestConverterFaults::configurationLine()
{
    QFETCH(QByteArray, search);
    QFETCH(QByteArray, replacement);
    QFETCH(QByteArray, message);
    QCOMPARE(configuration.count(search), 1);
    m_folder->write("r.cfg", QByteArray(configuration).replace(search, replacement));
    m_folder->write("r.dat", data);
    requireMessage(message);
}

void TestConverterFaults::configurationOfTheHead_data()
{
    addColumns();
    row("unknown revision", "J07,2013", "J07,2001",
        "r.cfg:1: the revision year is none of 1991, 1999, 2013: 2001");
    row("four fields for the station", "J07,2013", "J07,2013,x",
        "r.cfg:1: the first line is not station, device and, since 1999, revision year");
    row("control character", "Harju", "Har\tj\x01u", "r.cfg:1: a control character is in the line");
    row("carriage return within a line", "Harju", "Har\rju",
        "r.cfg:1: a control character is in the line");
    row("two counts", "4,2A,2D", "4,2A",
        "r.cfg:2: the line of the numbers of channels has 2 fields instead of 3");
    row("total that does not agree", "4,2A,2D", "5,2A,2D",
        "r.cfg:2: 2 analog and 2 status channels are not 5 channels");
    row("count without its letter", "4,2A,2D", "4,2,2D",
        "r.cfg:2: a number with the letter A behind it is expected: 2");
    row("counts in the other order", "4,2A,2D", "4,2D,2A",
        "r.cfg:2: a number with the letter A behind it is expected: 2D");
    row("no channels", "4,2A,2D", "0,0A,0D", "r.cfg:2: there are no channels");
    row("negative count", "4,2A,2D", "1,-1A,2D",
        "r.cfg:2: the number of channels is no whole number from 0 to 999999: -1");
    row("too many channels", "4,2A,2D", "1000000,2A,999998D",
        "r.cfg:2: the number of channels is no whole number from 0 to 999999: 1000000");
}

void TestConverterFaults::configurationOfChannels_data()
{
    addColumns();
    row("factor that is no number", "0.5,0.25", "x,0.25", "r.cfg:3: the factor a is no number: x");
    row("offset that is not finite", "0.5,0.25", "0.5,inf",
        "r.cfg:3: the offset b is no number: inf");
    row("empty factor", "0.5,0.25", ",0.25", "r.cfg:3: the factor a is no number: ");
    row("number with letters behind it", "0.5,0.25", "0.5,0.25A",
        "r.cfg:3: the offset b is no number: 0.25A");
    row("skew that is no number", "16.7", "-", "r.cfg:4: the skew is no number: -");
    row("unknown flag", "400,1,S", "400,1,X", "r.cfg:3: the flag is neither P nor S: X");
    row("no flag", "400,1,S", "400,1,", "r.cfg:3: the flag is neither P nor S: ");
    row("rating that is no number", "110,0.1,P", "110,,P",
        "r.cfg:4: the secondary rating is no number: ");
    row("field too many", "110,0.1,P", "110,0.1,P,",
        "r.cfg:4: the line of the analog channel has 14 fields instead of 13");
    row("status channel with four fields", "1,Trip,,,0", "1,Trip,,0",
        "r.cfg:5: the line of the status channel has 4 fields instead of 5");
    row("normal state 2", "2,Start,,,1", "2,Start,,,2",
        "r.cfg:6: the normal state is neither 0 nor 1: 2");
    row("channel without a number", "2,Start,,,1", "two,Start,,,1",
        "r.cfg:6: the number of the channel is no whole number from 0 to 999999: two");
}

void TestConverterFaults::configurationOfTheEnd_data()
{
    addColumns();
    row("frequency that is no number", "\n50\n", "\n50 Hz\n",
        "r.cfg:7: the line frequency is no number: 50 Hz");
    row("number of rates with decimals", "\n50\n2\n", "\n50\n2.0\n",
        "r.cfg:8: the number of rates is no whole number from 0 to 999: 2.0");
    row("no rates, but one", "\n50\n2\n", "\n50\n0\n",
        "r.cfg:9: there are no rates, but one of 1000");
    row("negative rate", "1000,2", "-1000,2", "r.cfg:9: the rate is negative: -1000");
    row("last samples that go back", "2000,3", "2000,1",
        "r.cfg:10: the last sample of a rate is before that of the rate before");
    row("date with the month first", "15/03/2024,10:00:00.000000", "03/15/2024,10:00:00.000000",
        "r.cfg:11: the first sample is no dd/mm/yyyy,hh:mm:ss.ssssss: "
        "03/15/2024,10:00:00.000000");
    row("year of two digits", "15/03/2024,10:00:00.001000", "15/03/24,10:00:00.001000",
        "r.cfg:12: the trigger is no dd/mm/yyyy,hh:mm:ss.ssssss: 15/03/24,10:00:00.001000");
    row("hour 24", "10:00:00.000000", "24:00:00.000000",
        "r.cfg:11: the first sample is no dd/mm/yyyy,hh:mm:ss.ssssss: "
        "15/03/2024,24:00:00.000000");
    row("ten decimals", "10:00:00.000000", "10:00:00.0000000000",
        "r.cfg:11: the first sample is no dd/mm/yyyy,hh:mm:ss.ssssss: "
        "15/03/2024,10:00:00.0000000000");
    row("unknown type", "ASCII", "TEXT",
        "r.cfg:13: the file type is not known in this revision: TEXT");
    row("time multiplier 0", "ASCII\n1\n", "ASCII\n0\n",
        "r.cfg:14: the time multiplier is not above 0");
    row("time code without a number", "+2h30,x", "x,+2h30", "r.cfg:15: these are no time codes");
    row("time code with other minutes", "+2h30,x", "99h99,x", "r.cfg:15: these are no time codes");
    row("time code of 60 minutes", "+2h30,x", "+2h60,x", "r.cfg:15: these are no time codes");
    row("time code beyond 14 hours", "+2h30,x", "14h01,x", "r.cfg:15: these are no time codes");
    row("time code of 15 hours", "+2h30,x", "+15,x", "r.cfg:15: these are no time codes");
    row("time code before 12 hours", "+2h30,x", "-12h01,x", "r.cfg:15: these are no time codes");
    row("time code of three digits", "+2h30,x", "010,x", "r.cfg:15: these are no time codes");
    row("time code without minutes", "+2h30,x", "2h,x", "r.cfg:15: these are no time codes");
    row("local code that is none", "+2h30,x", "+2h30,-13", "r.cfg:15: these are no time codes");
    row("clock quality beyond F", "4,0", "G,0",
        "r.cfg:16: the clock quality is no digit from 0 to F: G");
    row("leap second 4", "4,0", "4,4",
        "r.cfg:16: the leap second is no whole number from 0 to 3: 4");
}

void TestConverterFaults::configurationThatEnds_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<QByteArray>("message");
    const QList<QByteArray> whats{"station", "numbers of channels", "analog channel",
        "analog channel", "status channel", "status channel", "line frequency", "number of rates",
        "rate", "rate", "first sample", "trigger", "file type", "time multiplier", "time codes",
        "clock quality"};
    for (int k = 0; k < whats.size(); ++k)
        QTest::addRow("after line %d", k) << k
                                          << "r.cfg:" + QByteArray::number(qMax(k, 1))
                + ": the configuration ends before the line of the " + whats.at(k);
}

void TestConverterFaults::configurationThatEnds()
{
    QFETCH(int, lines);
    QFETCH(QByteArray, message);
    QByteArray text;
    for (int k = 0; k < lines; ++k)
        text += configuration.split('\n').at(k) + '\n';
    m_folder->write("r.cfg", text);
    m_folder->write("r.dat", data);
    requireMessage(message);
}

void TestConverterFaults::layoutsOfRevisions_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("thirteen fields without a year")
        << QByteArray("S,D\n1,1A,0D\n1,I,,,A,1,0,0,-9,9,1,1,P\n")
        << QByteArray("r.cfg:3: the line of the analog channel has 13 fields instead of 10");
    QTest::newRow("ten fields in 1999")
        << QByteArray("S,D,1999\n1,1A,0D\n1,I,,,A,1,0,0,-9,9\n")
        << QByteArray("r.cfg:3: the line of the analog channel has 10 fields instead of 13");
    QTest::newRow("five fields of a status channel in 1991")
        << QByteArray("S,D,1991\n1,0A,1D\n1,T,,,0\n")
        << QByteArray("r.cfg:3: the line of the status channel has 5 fields instead of 3");
    QTest::newRow("day first in 1991")
        << QByteArray("S,D\n1,0A,1D\n1,T,0\n50\n1\n1000,1\n15/03/91,10:00:00\n")
        << QByteArray("r.cfg:7: the first sample is no mm/dd/yy,hh:mm:ss.ssssss: "
                      "15/03/91,10:00:00");
    QTest::newRow("BINARY32 in 1999")
        << QByteArray("S,D,1999\n1,0A,1D\n1,T,,,0\n50\n1\n1000,1\n15/03/2024,10:00:00.0\n"
                      "15/03/2024,10:00:00.0\nBINARY32\n1\n")
        << QByteArray("r.cfg:9: the file type is not known in this revision: BINARY32");
}

void TestConverterFaults::layoutsOfRevisions()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, message);
    m_folder->write("r.cfg", text);
    m_folder->write("r.dat", data);
    requireMessage(message);
}

void TestConverterFaults::dataLine_data()
{
    addColumns();
    row("field too few", "2,1000,3,4,0,1", "2,1000,3,4,0",
        "r.dat:2: the sample has 5 fields instead of 6");
    row("number and nothing else", "2,1000,3,4,0,1", "2",
        "r.dat:2: the sample has 1 fields instead of 6");
    row("field too many", "2,1000,3,4,0,1", "2,1000,3,4,0,1,0",
        "r.dat:2: the sample has 7 fields instead of 6");
    row("sample without a number", "2,1000,", ",1000,",
        "r.dat:2: the sample number is no whole number: ");
    row("stamp that is no number", "2,1000,", "2,1 ms,",
        "r.dat:2: the time stamp is no number: 1 ms");
    row("stamp beyond all measure", "2,1000,", "2,1e30,",
        "r.dat:2: the sample has no time: there is no stamp and no rate");
    row("stamp after more than 145 years", "2,1000,", "2,4600000000000001,",
        "r.dat:2: the sample has no time: there is no stamp and no rate");
    row("stamp before more than 145 years", "2,1000,", "2,-4600000000000001,",
        "r.dat:2: the sample has no time: there is no stamp and no rate");
    row("value that is no number", ",5,6,", ",5,six,", "r.dat:3: the value is no number: six");
    row("value that is not finite", ",5,6,", ",5,nan,", "r.dat:3: the value is no number: nan");
    row("state 2", "6,1,1", "6,1,2", "r.dat:3: the state is neither 0 nor 1: 2");
    row("empty state", "6,1,1", "6,,1", "r.dat:3: the state is neither 0 nor 1: ");
    row("empty line between samples", "3,2000", "\n3,2000",
        "r.dat:4: an empty line stands before this sample");
}

void TestConverterFaults::dataLine()
{
    QFETCH(QByteArray, search);
    QFETCH(QByteArray, replacement);
    QFETCH(QByteArray, message);
    QCOMPARE(data.count(search), 1);
    m_folder->write("r.cfg", configuration);
    m_folder->write("r.dat", QByteArray(data).replace(search, replacement));
    requireMessage(message);
}

void TestConverterFaults::binaryData_data()
{
    QTest::addColumn<int>("bytes"); // a sample has 14
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("none") << 0 << QByteArray("r.cfg: there are no samples");
    QTest::newRow("a part of the first sample")
        << 13 << QByteArray("r.dat: sample 1 has 13 of its 14 bytes");
    QTest::newRow("a part of a later sample")
        << 2 * 14 + 1 << QByteArray("r.dat: sample 3 has 1 of its 14 bytes");
    QTest::newRow("no stamp and no rate")
        << 14 << QByteArray("r.dat: sample 1 has no time: there is no stamp and no rate");
}

void TestConverterFaults::binaryData()
{
    QFETCH(int, bytes);
    QFETCH(QByteArray, message);
    QByteArray text = configuration;
    m_folder->write(
        "r.cfg", text.replace("ASCII", "BINARY").replace("\n2\n1000,2\n2000,3\n", "\n0\n0,3\n"));
    // Stamps 00000000 but for a recording of a single sample.
    m_folder->write("r.dat", QByteArray(bytes, bytes == 14 ? '\xff' : '\0'));
    requireMessage(message);
}

void TestConverterFaults::singleFile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("message");
    const QByteArray cfg = "--- file type: CFG ---\n" + configuration;
    const QByteArray binary = QByteArray(cfg).replace("ASCII", "BINARY");
    QTest::newRow("empty") << QByteArray()
                           << QByteArray("r.cff:1: the file does not begin with the section CFG");
    QTest::newRow("a configuration without headings")
        << configuration << QByteArray("r.cff:1: the file does not begin with the section CFG");
    QTest::newRow("a line before the first heading")
        << "x\n" + cfg << QByteArray("r.cff:1: the file does not begin with the section CFG");
    QTest::newRow("an empty line before the first heading")
        << "\n" + cfg << QByteArray("r.cff:1: the file does not begin with the section CFG");
    QTest::newRow("data first") << QByteArray("--- file type: DAT ASCII ---\n"
        + data) << QByteArray("r.cff:1: the file does not begin with the section CFG");
    QTest::newRow("heading that does not close")
        << QByteArray("--- file type: CFG\n" + configuration)
        << QByteArray("r.cff:1: this is no heading of a section");
    QTest::newRow("number of bytes that is none")
        << QByteArray(binary + "--- file type: DAT BINARY: x ---\n")
        << QByteArray("r.cff:18: this is no heading of a section");
    QTest::newRow("no data") << QByteArray(cfg + "--- file type: INF ---\n[Public]\n")
                             << QByteArray("r.cff: there is no section DAT");
    QTest::newRow("data of another form")
        << QByteArray(cfg + "--- file type: DAT BINARY: 14 ---\n" + QByteArray(14, '\0'))
        << QByteArray("r.cff:18: the data have another form than the configuration says");
    QTest::newRow("fewer bytes than the heading says")
        << QByteArray(binary + "--- file type: DAT BINARY: 28 ---\n" + QByteArray(14, '\0'))
        << QByteArray("r.cff: the data end 14 bytes before what their heading says");
    QTest::newRow("wrong line of the configuration") << QByteArray(cfg).replace(
        "\n50\n", "\nfifty\n") << QByteArray("r.cff:8: the line frequency is no number: fifty");
    QTest::newRow("configuration that a heading ends")
        << QByteArray("--- file type: CFG ---\nS,D,2013\n--- file type: INF ---\n")
        << QByteArray("r.cff:3: the configuration ends before the line of the numbers of channels");
    QTest::newRow("wrong sample") << QByteArray(cfg + "--- file type: DAT ASCII ---\n1,0,1,2,0,3\n")
                                  << QByteArray("r.cff:19: the state is neither 0 nor 1: 3");
}

void TestConverterFaults::singleFile()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, message);
    m_folder->write("r.cff", text);
    const auto outcome = m_folder->run(QStringLiteral("@r.cff -o @out"));
    QCOMPARE(outcome.errors, message + '\n');
    QCOMPARE(outcome.status, 1);
    QCOMPARE(m_folder->names(), QStringList(QStringLiteral("r.cff")));
}

void TestConverterFaults::whatDoesNoHarmIsAWarning_data()
{
    QTest::addColumn<QByteArray>("beyond"); // the configuration
    QTest::addColumn<QByteArray>("samples");
    QTest::addColumn<QByteArray>("warning");
    QTest::newRow("line beyond the end")
        << QByteArray("\nmore\nand more\n") << data
        << QByteArray("r.cfg:18: warning: this line is beyond the end and is left out\n");
    QTest::newRow("fewer samples than promised")
        << QByteArray() << QByteArray("1,0,1,2,0,1\n2,1000,3,4,0,1\n")
        << QByteArray("r.cfg: warning: there are 2 samples instead of 3\n");
    QTest::newRow("more samples than promised")
        << QByteArray() << data + "4,3000,1,2,0,1\n"
        << QByteArray("r.cfg: warning: there are 4 samples instead of 3\n");
}

void TestConverterFaults::whatDoesNoHarmIsAWarning()
{
    QFETCH(QByteArray, beyond);
    QFETCH(QByteArray, samples);
    QFETCH(QByteArray, warning);
    m_folder->write("r.cfg", configuration + beyond);
    m_folder->write("r.dat", samples);
    const auto outcome = m_folder->run(QStringLiteral("@r.cfg -o @out"));
    QCOMPARE(outcome.errors, warning);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(m_folder->read("out.dat"), QByteArray(samples).replace("\n", "\r\n"));
}

void TestConverterFaults::whatIsAllowed_data()
{
    QTest::addColumn<QByteArray>("samples");
    QTest::newRow("comma at the end of a sample") << QByteArray(data).replace("1,1\n", "1,1,\n");
    QTest::newRow("empty lines at the end") << data + "\n\r\n";
    QTest::newRow("last line without an end") << data.chopped(1);
    QTest::newRow("mark of the end") << data + "\x1a";
    QTest::newRow("mark of the end with something behind it") << data + "\x1a\r\nrest";
    QTest::newRow("blanks around fields") << QByteArray(data).replace(",", " , ");
    QTest::newRow("plus signs and leading zeros") << QByteArray(data).replace(",5,", ",+00005,");
    QTest::newRow("whole numbers with decimals") << QByteArray(data).replace(",5,", ",5.000,");
    QTest::newRow("whole numbers with an exponent") << QByteArray(data).replace(",5,", ",50E-1,");
    QTest::newRow("other sample numbers") << QByteArray(data).replace("\n2,", "\n77,");
}

void TestConverterFaults::whatIsAllowed()
{
    QFETCH(QByteArray, samples);
    m_folder->write("r.cfg", configuration);
    m_folder->write("r.dat", samples);
    QCOMPARE(m_folder->run(QStringLiteral("@r.cfg -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), QByteArray(data).replace("\n", "\r\n"));
}

void TestConverterFaults::timeCodes_data()
{
    QTest::addColumn<QByteArray>("codes");
    for (const char *codes :
        {"0,0", "-12,+14", "-5h30,-5h30", "+10h30,x", "14h00,X", "-12h00,05h45"})
        QTest::newRow(codes) << QByteArray(codes);
}

void TestConverterFaults::timeCodes()
{
    QFETCH(QByteArray, codes);
    m_folder->write("r.cfg", QByteArray(configuration).replace("+2h30,x", codes));
    m_folder->write("r.dat", data);
    QCOMPARE(m_folder->run(QStringLiteral("@r.cfg -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), QByteArray(data).replace("\n", "\r\n"));
}

void TestConverterFaults::oddNumbersAreTakenAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("search"); // in the configuration or in the data
    QTest::addColumn<QByteArray>("replacement");
    QTest::addColumn<QByteArray>("kept"); // line of the pair
    const auto row = [](const char *name, const char *search, const char *replacement,
                         const char *kept) {
        QTest::newRow(name) << QByteArray(search) << QByteArray(replacement) << QByteArray(kept);
    };
    row("value of seven digits", ",3,4,", ",1234567,4,", "2,1000,1234567,4,0,1");
    row("value with decimals", ",3,4,", ",1.5,4,", "2,1000,1.5,4,0,1");
    row("six nines", ",3,4,", ",999999,4,", "2,1000,999999,4,0,1");
    row("value beyond the channel's range", ",3,4,", ",-40000,4,", "2,1000,-40000,4,0,1");
    row("least value above the greatest", "0.25,0,-32767,32767", "0.25,0,5,-5",
        "1,IL1,A,Bay,A,0.5,0.25,0,5,-5,400,1,S");
    row("channel number twice", "\n2,Start", "\n1,Start", "1,Start,,,1");
    row("second 60 in the morning", "10:00:00.000000", "09:59:60.000000",
        "15/03/2024,10:00:00.000000");
}

void TestConverterFaults::oddNumbersAreTakenAsTheyAre()
{
    QFETCH(QByteArray, search);
    QFETCH(QByteArray, replacement);
    QFETCH(QByteArray, kept);
    QCOMPARE(configuration.count(search) + data.count(search), 1);
    m_folder->write("r.cfg", QByteArray(configuration).replace(search, replacement));
    m_folder->write("r.dat", QByteArray(data).replace(search, replacement));
    QCOMPARE(m_folder->run(QStringLiteral("@r.cfg -o @out")).errors, QByteArray());
    QCOMPARE(
        (m_folder->read("out.cfg") + m_folder->read("out.dat")).split('\n').count(kept + '\r'), 1);
}

// The rate of the copy and the times of a part are differences of times.
void TestConverterFaults::stampsFarApart()
{
    m_folder->write(
        "r.cfg", QByteArray(configuration).replace("\n2\n1000,2\n2000,3\n", "\n0\n0,2\n"));
    m_folder->write("r.dat", "1,-4600000000000000,1,2,0,1\n2,4600000000000000,3,4,0,1\n");
    QCOMPARE(m_folder->run(QStringLiteral("--from -1e13 @r.cfg -o @out")).errors, QByteArray());
    QCOMPARE(
        m_folder->read("out.dat"), QByteArray("1,0,1,2,0,1\r\n2,9200000000000000,3,4,0,1\r\n"));
}

QTEST_GUILESS_MAIN(TestConverterFaults)
#include "tst_converterfaults.moc"
