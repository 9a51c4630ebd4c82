// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "configurationreader.h"
#include "samplebudget.h"
#include "textreader.h"

#include "configuredrecording.h"
#include "notetexts.h"
#include "recordingbuilder.h"

#include <QBuffer>
#include <QtTest>

#include <functional>

Q_DECLARE_METATYPE(CFGProperties::Failure)

namespace {

QString realPath(const QString &name)
{
    return QStringLiteral(SOURCE_DIR "/../shared/recordings/real/") + name + QStringLiteral(".cfg");
}

void readText(CFGProperties &recording, QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    readTextExport(buffer, recording);
}

void readConfigurationText(CFGProperties &recording, QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    readConfiguration(buffer, recording);
}

// The texts of the notes, as rows give them: without any, none.
QStringList listed(const char *notes)
{
    return QString::fromUtf8(notes).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

// Two analog channels, one digital, and so many samples that the rate line promises.
ConfigurationText plainConfiguration()
{
    ConfigurationText configuration;
    configuration.analog = {analogLine(1), analogLine(2)};
    configuration.digital = {digitalLine(1)};
    configuration.rates = {"1000,3"};
    return configuration;
}

const QByteArray threeLines = "1,0,5,6,0\n2,1000,7,8,1\n3,2000,9,10,0\n";
const QByteArray header = "#Ua[kV],Ub[kV]\n";
const QByteArray stamp = "01/02/2020-10:00:00:";

} // namespace

// What the readers notice. The notes are written as noteTexts() tells.
class TestReadingNotes : public QObject {
    Q_OBJECT

private slots:
    void ofConfigurations_data();
    void ofConfigurations();
    void ofNames_data();
    void ofNames();
    void ofData_data();
    void ofData();
    void ofTimes_data();
    void ofTimes();
    void ofMarks_data();
    void ofMarks();
    void ofTextExports_data();
    void ofTextExports();
    void ofLongLines_data();
    void ofLongLines();
    void ofTheBudget();
    void blankBeyondABlock_data();
    void blankBeyondABlock();
    void marksBeyondABlock();
    void valuesAreNotTouched();
    void everyLoadBeginsAnew();
    void failedLoads_data();
    void failedLoads();
    void aDataFileThatCannotBeOpened();
    void ofRealRecordings_data();
    void ofRealRecordings();

private:
    RecordingFolder m_folder;
};

void TestReadingNotes::ofConfigurations_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("notes");
    const auto row = [](const char *name, const char *notes,
                         const std::function<void(ConfigurationText &)> &change) {
        ConfigurationText configuration = plainConfiguration();
        change(configuration);
        QTest::newRow(name) << configuration.text() << listed(notes);
        const QByteArray crLf = name + QByteArray(", CR LF");
        QTest::newRow(crLf) << configuration.text("\r\n") << listed(notes);
    };
    using Text = ConfigurationText;
    row("nothing", "", [](Text &) {});
    row("of 1991", "", [](Text &text) { text.station = "Harju,Feeder J07"; });
    row("of 2013", "revision cfg:1 x1 2013..2013",
        [](Text &text) { text.station = "Harju,Feeder J07,2013"; });
    row("a year that is none", "", [](Text &text) { text.station = "Harju,Feeder J07,2013a"; });
    // From the rate lines on, a line later or earlier is taken for what it is not.
    row("total too large", "counts cfg:2 x4 3..3", [](Text &text) { text.counts = "4,2A,1D"; });
    row("total too small", "counts cfg:2 x2 3..3", [](Text &text) { text.counts = "2,2A,1D"; });
    row("no rate", "norates cfg:7 x1", [](Text &text) { text.rates.clear(); });
    row("no rate, of another type", "norates cfg:7 x1|type cfg:10 x1 BINARY", [](Text &text) {
        text.rates.clear();
        text.fileType = "BINARY";
    });
    // As the standard has it, a line of the number of samples follows.
    row("no rate, and its line", "norates cfg:7 x1", [](Text &text) {
        text.rates.clear();
        text.start.prepend("0,3\n");
    });
    row("analog lines of few fields", "fields cfg:3 x2 -8..0", [](Text &text) {
        text.analog = {"1,IL1", "2,IL2,A,Bay,A,1,0,0,-99"};
    });
    row("analog lines of 1991", "", [](Text &text) {
        text.analog = {"1,IL1,A,Bay,A,1,0,0,-99,99", "2,IL2,A,Bay,A,1,0,0,-99,99"};
    });
    // Channels stand on the lines 3 to 5, the number of rates on line 7.
    row("two rates", "rates cfg:9 x2 2000..2000", [](Text &text) {
        text.rates = {"1000,2", "2000,3"};
    });
    row("three equal rates", "rates cfg:10 x3 1000..1000", [](Text &text) {
        text.rates = {"1000,1", "1000,2", "1000,3"};
    });
    const auto days
        = [=](const char *name, const char *notes, const char *start, const char *trigger) {
              row(name, notes, [=](Text &text) {
                  text.start = start;
                  text.trigger = trigger;
              });
          };
    days("the day after", "day cfg:10 x1 -86399700..-86399700", "15/03/2024,23:59:59.900000",
        "16/03/2024,00:00:00.200000");
    days("the day after, an hour later", "day cfg:10 x1 3600000..3600000",
        "15/03/2024,10:00:00.000000", "16/03/2024,11:00:00.000000");
    days("midnight under one date", "day cfg:10 x1 -86399700..-86399700",
        "15/03/2024,23:59:59.900000", "15/03/2024,00:00:00.200000");
    days("a trigger before the start", "", "15/03/2024,10:00:00.000000",
        "15/03/2024,09:59:59.000000");
    days("dates set apart by spaces", "", " 15/03/2024,10:00:00.000000",
        "15/03/2024 ,10:00:00.000000");
    days("dates written in two ways", "", "05/03/2024,10:00:00.000000", "5/3/2024,10:00:00.020000");
    days("a date that is none", "", "0,3", "15/03/2024,10:00:00.020000");
    row("type of other letters", "", [](Text &text) { text.fileType = "ascii "; });
    row("no type", "", [](Text &text) { text.fileType = ""; });
    row("type BINARY", "type cfg:11 x1 BINARY", [](Text &text) { text.fileType = "BINARY"; });
    row("type FLOAT32", "type cfg:11 x1 FLOAT32", [](Text &text) { text.fileType = " FLOAT32"; });
    row("several at once",
        "revision cfg:1 x1 2013..2013|rates cfg:9 x2 500..500|type cfg:12 x1 Float32",
        [](Text &text) {
            text.station = ",,2013";
            text.rates = {"1000,2", "500,3"};
            text.fileType = "Float32";
        });
    // Behind the type, the text ends with a line end, the time multiplier and a line end.
    ConfigurationText last = plainConfiguration();
    QTest::newRow("type at the end of the file") << last.text().chopped(3) << QStringList();
    last.fileType = "BINARY";
    QTest::newRow("type BINARY at the end of the file")
        << last.text().chopped(3) << listed("type cfg:11 x1 BINARY");
}

void TestReadingNotes::ofConfigurations()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, notes);
    CFGProperties recording;
    readConfigurationText(recording, text);
    QCOMPARE(noteTexts(recording), notes);
    // A second pass goes on with the numbers of the lines.
    readConfigurationText(recording, text);
    QCOMPARE(noteTexts(recording), notes);
}

// Bytes beyond ASCII are written in hexadecimal digits.
void TestReadingNotes::ofNames_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("notes");
    const auto row = [](const char *name, const char *notes,
                         const std::function<void(ConfigurationText &)> &change) {
        ConfigurationText configuration = plainConfiguration();
        change(configuration);
        QTest::newRow(name) << configuration.text() << listed(notes);
    };
    using Text = ConfigurationText;
    const QByteArray russian = QByteArray::fromHex("cfd3d1ca"); // ПУСК
    row("ASCII", "", [](Text &) {});
    row("UTF-8", "letters cfg:1 x1 UTF-8", [](Text &text) { text.station = "H\xc3\xa4me,J07"; });
    row("Latin-1", "", [](Text &text) { text.station = "H\xe4me,J07"; });
    row("Windows-1251 of a digital channel", "letters cfg:5 x1 Windows-1251",
        [=](Text &text) { text.digital = {"1," + russian + ",,,0"}; });
    row("GBK of two channels", "letters cfg:4 x2 GBK", [](Text &text) {
        text.analog[1].replace("2,", "2," + QByteArray::fromHex("b5e7c1f7")); // 电流
        text.digital = {"1," + QByteArray::fromHex("ccf8d5a2") + ",,,0"}; // 跳闸
    });
    row("IBM 866 of the device", "letters cfg:1 x1 IBM 866",
        [](Text &text) { text.station = "S," + QByteArray::fromHex("8f93918a"); });
    row("Windows-1252 of a station", "letters cfg:1 x1 Windows-1252",
        [](Text &text) { text.station = "10 \x80,J07"; });
    row("a type is no name", "type cfg:11 x1 ÏÓÑÊ", [=](Text &text) { text.fileType = russian; });
}

void TestReadingNotes::ofNames()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, notes);
    CFGProperties recording;
    readConfigurationText(recording, text);
    QCOMPARE(noteTexts(recording), notes);
}

void TestReadingNotes::ofData_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QStringList>("notes");
    const auto row = [](const char *name, const QByteArray &data, const char *notes) {
        QTest::newRow(name) << data << listed(notes);
    };
    row("nothing", threeLines, "");
    row("the last line has no end", threeLines.chopped(1), "");
    row("one line too few", "1,0,5,6,0\n2,1000,7,8,1\n", "fewer cfg:8 x2 3..0");
    row("a line too many", threeLines + "4,3000,1,2,0\n", "more cfg:8 x4 3..0");
    row("a blank line", "1,0,5,6,0\n\n3,2000,9,10,0\n", "ended dat:2 x1|fewer cfg:8 x1 3..0");
    row("a blank line behind all", threeLines + "\n1\n", "ended dat:4 x1");
    row("a short line", "1,0,5,6,0\n2,1000,7,8,1\nabc\n3,2000,9,10,0\n",
        "ended dat:3 x1|fewer cfg:8 x2 3..0");
    row("a short line at the end", threeLines + "abc", "ended dat:4 x1");
    row("blank lines at the end", threeLines + "\r\n \n\n", "");
    row("the mark of the end of a file", threeLines + "\x1a", "");
    row("lines end with CR LF", QByteArray(threeLines).replace("\n", "\r\n"), "");
    row("a field too few", "1,0,5,6,0\n2,1000,7,8\n3,2000,9,10,0\n", "fields dat:2 x1 -1..0");
    row("more and more fields", "1,0,5,6,0\n2,1000,7,8,1,1\n3,2000,9,10,0,1,0,0\n",
        "fields dat:2 x2 1..3");
    row("two fields", "1,0,5,6,0\n2,1000,7,8,1\n3,2000\n", "fields dat:3 x1 -3..0");
    row("a comma at the end", "1,0,5,6,0,\n2,1000,7,8,1\n3,2000,9,10,0,\n", "");
    row("two commas at the end", "1,0,5,6,0\n2,1000,7,8,1,,\n3,2000,9,10,0\n",
        "fields dat:2 x1 2..2");
    row("a stamp that is not finite", "1,0,5,6,0\n2,inf,7,8,1\n3,2000,9,10,0\n", "");
    row("an empty state", "1,0,5,6,\n2,1000,7,8,1\n3,2000,9,10,0\n", "");
}

void TestReadingNotes::ofData()
{
    QFETCH(QByteArray, data);
    QFETCH(QStringList, notes);
    CFGProperties recording;
    recording.filePath
        = writePair(m_folder.path(QTest::currentDataTag()), plainConfiguration().text(), data);
    readWithoutPhasors(recording);
    QCOMPARE(noteTexts(recording), notes);
}

void TestReadingNotes::ofTimes_data()
{
    QTest::addColumn<QList<int>>("stamps"); // microseconds
    QTest::addColumn<QStringList>("notes");
    const auto row = [](const char *name, const QList<int> &stamps, const char *notes) {
        QTest::newRow(name) << stamps << listed(notes);
    };
    row("one sample", {0}, "");
    row("all 0", {0, 0, 0}, "equal dat:1 x3");
    row("all equal", {1500, 1500}, "equal dat:1 x2 1.5..0");
    row("equal but for the last", {0, 0, 0, 1}, "");
    row("even steps", {-2000, -1000, 0, 1000, 2000}, "");
    row("steps of 833 and 834", {0, 833, 1667, 2500, 3333, 4167}, "");
    row("stamps of few digits", {0, 2000, 3000, 5000, 7000, 8000, 10000}, "");
    row("stamps of very few digits", {0, 0, 1000, 1000, 2000, 2000, 2000, 3000}, "");
    row("another rate", {0, 1000, 2000, 12000, 22000, 32000}, "");
    row("a faster rate", {0, 10000, 20000, 21000, 22000, 23000}, "");
    row("one is left out", {0, 1000, 2000, 4000, 5000}, "");
    row("two are left out", {0, 1000, 2000, 5000, 6000}, "jumps dat:4 x1 3..3");
    row("a jump before the last", {0, 1000, 2000, 9000}, "jumps dat:4 x1 7..7");
    row("a jump after the first", {0, 72500, 73500, 74500}, "jumps dat:2 x1 72.5..72.5");
    row("two jumps in turn", {0, 1000, 101000, 141000, 142000}, "jumps dat:3 x2 100..100");
    row("a jump and a larger one", {0, 1000, 11000, 12000, 52000, 53000}, "jumps dat:3 x2 10..40");
    row("a step back", {0, 1000, 2000, 500, 1500, 2500}, "back dat:4 x1 1.5..1.5");
    row("steps back", {5000, 4000, 3000, 500}, "back dat:2 x3 1..2.5");
    row("forth and back", {0, 1000, 90000, 2000, 3000},
        "jumps dat:3 x1 89..89|back dat:4 x1 88..88");
}

void TestReadingNotes::ofTimes()
{
    QFETCH(QList<int>, stamps);
    QFETCH(QStringList, notes);
    CFGProperties recording;
    configure(recording, 1, 0);
    QByteArray data;
    for (const int time : stamps)
        data += "1," + QByteArray::number(time) + ",1\n";
    read(recording, data);
    QCOMPARE(noteTexts(recording), notes);
    QCOMPARE(recording.sampleTimes.size(), stamps.size());
}

void TestReadingNotes::ofMarks_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<float>("a"); // of the first of two channels
    QTest::addColumn<float>("b");
    QTest::addColumn<QStringList>("notes");
    const auto row
        = [](const char *name, const QByteArray &data, float a, float b, const char *notes) {
              QTest::newRow(name) << data << a << b << listed(notes);
          };
    const QByteArray nines = "1,0,5,99999\n2,1,99999,8\n3,2,7,7\n4,3,999999,8\n";
    const char *const ofNines = "missing dat:2 x2 ch0|missing dat:1 x1 ch1";
    row("nines", nines, 1, 0, ofNines);
    row("nines, below 0 when scaled", nines, -0.01F, 0, ofNines);
    row("nines, large offset", nines, 0.001F, -3e6F, ofNines);
    row("nines, larger offset", nines, -1e-6F, 5e8F, ofNines);
    row("nines, all the same when scaled", nines, 0, -5, ofNines);
    row("nines, without a range", nines, NAN, 0, ofNines);
    row("nines with a sign or decimals", "1,0,+99999,8\n2,1,99999.0,8\n3,2,7,7\n", 1, 0,
        "missing dat:1 x2 ch0");
    row("nines below 0", "1,0,-99999,8\n2,1,-999999,8\n3,2,7,7\n", -1, 0, "");
    row("near the nines", "1,0,99998,9999\n2,1,100000,9999999\n3,2,999998,8\n", 1, 0, "");
    row("empty", "1,0,,8\n2,1,7,\n3,2,,7\n", 1, 0, "missing dat:1 x2 ch0|missing dat:2 x1 ch1");
    row("empty, at last", "1,0,5,8\n2,1,6,7\n3,2,7,\n", 1, 0, "missing dat:3 x1 ch1");
    row("not there", "1,0,5,8\n2,1,6\n3,2,7,6\n", 1, 0, "fields dat:2 x1 -1..0");
    row("empty before nines", "1,0,5,8\n2,1,,7\n3,2,99999,6\n", 1, 0, "missing dat:2 x2 ch0");
    row("nines before empty", "1,0,5,8\n2,1,99999,7\n3,2,,6\n", 1, 0, "missing dat:2 x2 ch0");
    row("no time stamp", "1,,5,8\n2,,6,7\n", 1, 0, "equal dat:1 x2");
}

void TestReadingNotes::ofMarks()
{
    QFETCH(QByteArray, data);
    QFETCH(float, a);
    QFETCH(float, b);
    QFETCH(QStringList, notes);
    CFGProperties recording;
    configure(recording, 2, 0);
    recording.analogA[0] = a;
    recording.analogB[0] = b;
    read(recording, data);
    QCOMPARE(noteTexts(recording), notes);
}

void TestReadingNotes::ofTextExports_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("notes");
    const auto row = [](const char *name, const QByteArray &lines, const char *notes) {
        QTest::newRow(name) << header + lines << listed(notes);
    };
    QTest::newRow("GBK") << QByteArray::fromHex("b5e7c1f7") + "[A]\n"
                         << listed("letters dat:1 x1 GBK");
    QTest::newRow("UTF-8, as it is read") << QByteArray("电流[A]\n") << QStringList();
    const QByteArray first = stamp + "000,1,2\n";
    row("nothing", first + stamp + "020,3,4\n" + stamp + "040,5,6\n", "");
    row("no sample", "", "");
    row("blank lines at the end", first + stamp + "020,3,4\n\n\n", "");
    // A blank line is a sample at time 0 without values.
    row("a blank line", first + stamp + "020,3,4\n\n" + stamp + "040,3,4\n",
        "fields dat:4 x1 -2..0|back dat:4 x1 20..20");
    row("a value too few and one too many", first + stamp + "020,3\n" + stamp + "040,3,4,5\n",
        "fields dat:3 x2 -1..1");
    row("commas at the end", first + stamp + "020,3,4,\n" + stamp + "040,3,4,,\n",
        "fields dat:4 x1 2..2");
    row("missing values", first + stamp + "020,,99999\n" + stamp + "040,999999,99999.5\n",
        "missing dat:3 x2 ch0|missing dat:3 x1 ch1");
    row("stamps that do not read", "1,1,2\n2,3,4\n", "equal dat:2 x2");
    row("a step back", first + stamp + "900,3,4\n" + stamp + "300,5,6\n", "back dat:4 x1 600..600");
}

void TestReadingNotes::ofTextExports()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, notes);
    CFGProperties recording;
    readText(recording, text);
    QCOMPARE(noteTexts(recording), notes);
}

void TestReadingNotes::ofLongLines_data()
{
    QTest::addColumn<QByteArray>("reader");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("behind");
    QTest::addColumn<QStringList>("notes");
    const auto row = [](const char *name, const char *reader, const QByteArray &before,
                         const QByteArray &behind, const char *notes) {
        QTest::newRow(name) << QByteArray(reader) << before << behind << listed(notes);
    };
    row("configuration", "cfg", "Harju,J07,1999\n", "\n2,1A,1D\n", "limit cfg:2 x1");
    row("configuration, to its end", "cfg", "Harju,J07,1999\n", "", "limit cfg:2 x1");
    row("data", "dat", "1,0,5\n2,1000,5\n", "\n4,3000,5\n", "limit dat:3 x1");
    row("data, to its end", "dat", "1,0,5\n2,1000,5\n", "", "limit dat:3 x1");
    row("export", "txt", header + stamp + "000,1,2\n", "\n", "limit dat:3 x1");
    row("export, behind a blank line", "txt", header + stamp + "000,1,2\n\n", "\n",
        "limit dat:4 x1");
    row("names of an export", "txt", "", "\n", "limit dat:1 x1");
}

void TestReadingNotes::ofLongLines()
{
    QFETCH(QByteArray, reader);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, behind);
    QFETCH(QStringList, notes);
    const RecordingFolder folder;
    QVERIFY(
        folder.write(QStringLiteral("rec"), before + QByteArray(mostLineBytes + 1, '1') + behind));
    QFile file(folder.path("rec")); // of which lines are read sooner than of a buffer
    QVERIFY(file.open(QIODevice::ReadOnly));
    CFGProperties recording;
    if (reader == "txt") {
        readTextExport(file, recording);
    } else if (reader == "dat") {
        configure(recording, 1, 0);
        readData(file, recording);
    } else {
        readConfiguration(file, recording);
    }
    QCOMPARE(noteTexts(recording), notes);
}

// Lines of 3 bytes for 2,000 channels. Beyond the first line, 16,384 values are read and 64 for
// each byte: 10 lines have 18,000 of 18,304, 11 would have 20,000 of 18,496.
void TestReadingNotes::ofTheBudget()
{
    CFGProperties recording;
    configure(recording, 2000, 0);
    read(recording, QByteArray("1,\n").repeated(100));
    QCOMPARE(recording.sampleCount, 10);
    QCOMPARE(noteTexts(recording),
        QStringList({QStringLiteral("limit dat:11 x1"), QStringLiteral("fields dat:1 x10 -2000..0"),
            QStringLiteral("equal dat:1 x10")}));
}

void TestReadingNotes::blankBeyondABlock_data()
{
    QTest::addColumn<QByteArray>("behind");
    QTest::addColumn<QStringList>("notes");
    const auto row = [](const char *name, const QByteArray &behind, const char *notes) {
        QTest::newRow(name) << behind << listed(notes);
    };
    row("a blank line", "\n", "");
    row("the mark of the end of a file", "\r\n\x1a", "");
    row("filled up with NULs", QByteArray(65536, '\0'), "");
    row("another sample", "1,1012483,5\n", "ended dat:12484 x1");
    row("a word behind a blank line", "\nend", "ended dat:12484 x1");
}

// Of 262,144 bytes, which are read at once, the last one is a blank line.
void TestReadingNotes::blankBeyondABlock()
{
    QFETCH(QByteArray, behind);
    QFETCH(QStringList, notes);
    QByteArray data;
    for (int i = 0; i < 12483; ++i) // of 21 bytes
        data += "1," + QByteArray::number(1000000 + i) + ",0000000005\n";
    QCOMPARE(data.size(), 262143);
    CFGProperties recording;
    configure(recording, 1, 0);
    read(recording, data + '\n' + behind);
    QCOMPARE(recording.sampleCount, 12483);
    QCOMPARE(noteTexts(recording), notes);
}

// The channel holds marks on each 100th of 1,000 lines, and has an empty field on line 999.
void TestReadingNotes::marksBeyondABlock()
{
    CFGProperties recording;
    configure(recording, 1, 0);
    QByteArray data;
    for (int line = 1; line <= 1000; ++line) {
        const QByteArray value = line % 100 == 0 ? "99999" : line == 999 ? "" : "5";
        data += "1," + QByteArray::number(line) + ',' + value + '\n';
    }
    read(recording, data);
    QCOMPARE(noteTexts(recording), QStringList(QStringLiteral("missing dat:100 x11 ch0")));
}

void TestReadingNotes::valuesAreNotTouched()
{
    CFGProperties recording;
    configure(recording, 2, 1);
    read(recording, "1,0,99999,,\n2,0,999999,3\n3,-5,4,5,1,7\n\n4,1,1,1,1\n");
    QCOMPARE(recording.sampleTimes, QVector<double>({0, 0, -0.005}));
    QCOMPARE(recording.analogChannels.at(0)->rawValues, QVector<float>({99999, 999999, 4}));
    QCOMPARE(recording.analogChannels.at(1)->rawValues, QVector<float>({0, 3, 5}));
    QCOMPARE(recording.digitalChannels.at(0)->values, QVector<int>({0, 0, 1}));
    QCOMPARE(recording.notes.size(), 5);
}

void TestReadingNotes::everyLoadBeginsAnew()
{
    ConfigurationText later = plainConfiguration();
    later.station = ",,2013";
    const QString noted = writePair(m_folder.path("noted"), later.text(), threeLines);
    const QString plain
        = writePair(m_folder.path("plain"), plainConfiguration().text(), threeLines);
    CFGProperties recording;
    for (const QString &path : {noted, plain, noted, noted}) {
        recording.filePath = path;
        recording.init();
        QCOMPARE(recording.loaded, 1);
        QCOMPARE(recording.notes.size(), path == noted ? 1 : 0);
    }
    recording.clearConfig();
    QVERIFY(recording.notes.isEmpty());
}

void TestReadingNotes::failedLoads_data()
{
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<CFGProperties::Failure>("failure");
    using Failure = CFGProperties::Failure;
    const QByteArray noSample = "\n1\n";
    const QByteArray binary("\x01\0\0\0\x02\0", 6);
    ConfigurationText text = plainConfiguration();
    text.station = ",,2013";
    QTest::newRow("no sample") << text.text() << noSample << Failure::NoDataLine;
    QTest::newRow("no sample, type at the end of the file")
        << text.text().chopped(3) << noSample << Failure::NoDataLine;
    text.fileType = "ascii data";
    QTest::newRow("no sample, type with a word more")
        << text.text() << noSample << Failure::NoDataLine;
    text.fileType = "";
    QTest::newRow("no type") << text.text() << binary << Failure::NoDataLine;
    text.fileType = "BINARY";
    QTest::newRow("other data") << text.text() << binary << Failure::NotAscii;
    QTest::newRow("other data, type at the end of the file")
        << text.text().chopped(3) << binary << Failure::NotAscii;
    text.rates.clear();
    text.start.prepend("0,3\n");
    QTest::newRow("other data, no rate") << text.text() << binary << Failure::NotAscii;
    text.fileType = "ASCII";
    text.start = plainConfiguration().start;
    QTest::newRow("no sample, no rate") << text.text() << noSample << Failure::NoDataLine;
}

// What is cleared has no notes; why it failed, failure tells.
void TestReadingNotes::failedLoads()
{
    QFETCH(QByteArray, configuration);
    QFETCH(QByteArray, data);
    CFGProperties recording;
    recording.filePath = writePair(m_folder.path("failed"), configuration, data);
    recording.init();
    QTEST(recording.failure(), "failure");
    QCOMPARE(recording.loaded, 0);
    QVERIFY(recording.notes.isEmpty());
}

void TestReadingNotes::aDataFileThatCannotBeOpened()
{
    CFGProperties recording;
    const QString path
        = writePair(m_folder.path("unopened"), plainConfiguration().text(), QByteArray());
    QFile::remove(m_folder.path("unopened.dat"));
    recording.filePath = path;
    recording.init();
    QCOMPARE(recording.failure(), CFGProperties::Failure::NoDataFile);
    QVERIFY(QDir().mkdir(m_folder.path("unopened.dat")));
    recording.filePath = path;
    recording.init();
    QCOMPARE(recording.failure(), CFGProperties::Failure::NoAccess);
    QCOMPARE(recording.loaded, 0);
}

// Worked out from the bytes of the files by a script that shares nothing with the readers.
void TestReadingNotes::ofRealRecordings_data()
{
    QTest::addColumn<QStringList>("notes");
    const auto row
        = [](const char *name, const char *notes) { QTest::newRow(name) << listed(notes); };
    row("bay-cp1251-crlf", "letters cfg:1 x91 Windows-1251");
    row("dfr-1991-gbk",
        "rates cfg:73 x8 1200..1200|letters cfg:12 x49 GBK|jumps dat:290 x5 3281.666..6120");
    row("line-110-digitals", "letters cfg:1 x120 Windows-1251");
    row("line-relay-gbk",
        "rates cfg:36 x10 1000..1000|letters cfg:1 x8 GBK|jumps dat:201 x1 16893..16893|back "
        "dat:401 x3 199..199|"
        "missing dat:2 x949 ch8|missing dat:2 x949 ch9|missing dat:2 x949 ch10|"
        "missing dat:2 x949 ch11|missing dat:2 x949 ch12|missing dat:2 x949 ch13|"
        "missing dat:2 x949 ch14");
    row("pq-monitor-1999", "");
    row("recorder-1991-cp866", "letters cfg:1 x5 IBM 866");
    row("simulator-40000", "");
    row("small-2013-missing",
        "revision cfg:1 x1 2013..2013|missing dat:2 x1 ch0|missing dat:3 x1 ch1|"
        "missing dat:4 x1 ch2|missing dat:5 x1 ch3");
    row("small-2013-utf8", "revision cfg:1 x1 2013..2013|letters cfg:1 x1 UTF-8");
}

void TestReadingNotes::ofRealRecordings()
{
    QFETCH(QStringList, notes);
    CFGProperties recording;
    recording.filePath = realPath(QString::fromLatin1(QTest::currentDataTag()));
    if (!QFileInfo::exists(recording.filePath))
        QSKIP("The real recordings are not beside these sources.");
    readWithoutPhasors(recording);
    QCOMPARE(recording.loaded, 1);
    QCOMPARE(noteTexts(recording), notes);
}

QTEST_GUILESS_MAIN(TestReadingNotes)
#include "tst_readingnotes.moc"
