// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "textreader.h"

#include "recordingbuilder.h"

#include <QBuffer>
#include <QtTest>

namespace {

void read(CFGProperties &recording, QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    readTextExport(buffer, recording);
}

const QByteArray twoLines = "#Ua[kV],Ub[kV]\n01/02/2020-10:00:00:000,1.5,-2\n"
                            "01/02/2020-10:00:00:020,3,4.25\n";

} // namespace

class TestTextReader : public QObject {
    Q_OBJECT

private slots:
    void everyFieldIsSet_data();
    void everyFieldIsSet();
    void headerNamesChannels_data();
    void headerNamesChannels();
    void stampsGiveTimes_data();
    void stampsGiveTimes();
    void stampsAreNotBentByTheLocalTime_data();
    void stampsAreNotBentByTheLocalTime();
    void valuesOfALine_data();
    void valuesOfALine();
    void recordsCarryTheirDefinitions();
    void manyNames_data();
    void manyNames();
    void emptyLines_data();
    void emptyLines();
    void lettersOfTheHeader_data();
    void lettersOfTheHeader();
    void lettersOfTwoBytes_data();
    void lettersOfTwoBytes();
    void aLoadOfAnExport_data();
    void aLoadOfAnExport();
    void manyLinesLoad();
};

void TestTextReader::everyFieldIsSet_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("lines end with LF") << twoLines;
    QTest::newRow("lines end with CR LF") << QByteArray(twoLines).replace("\n", "\r\n");
    QTest::newRow("the last line has no end") << twoLines.chopped(1);
    QTest::newRow("no hash before the names") << twoLines.mid(1);
}

void TestTextReader::everyFieldIsSet()
{
    QFETCH(QByteArray, text);
    CFGProperties recording;
    recording.timeMultiplier = 7;
    read(recording, text);
    QCOMPARE(recording.stationName, QString());
    QCOMPARE(recording.recordingDeviceId, QString());
    QCOMPARE(recording.revisionYear, QString());
    QCOMPARE(recording.totalChannelCount, 2);
    QCOMPARE(recording.analogChannelCount, 2);
    QCOMPARE(recording.digitalChannelCount, 0);
    QCOMPARE(recording.analogIndexes, QList<int>({0, 1}));
    QCOMPARE(recording.analogIds, QStringList({QStringLiteral("Ua"), QStringLiteral("Ub")}));
    QCOMPARE(recording.analogPhases, QStringList({QString(), QString()}));
    QCOMPARE(recording.analogCircuits, QStringList({QString(), QString()}));
    QCOMPARE(recording.analogUnits, QStringList({QStringLiteral("kV"), QStringLiteral("kV")}));
    QCOMPARE(recording.analogA, QList<float>({1, 1}));
    QCOMPARE(recording.analogB, QList<float>({0, 0}));
    QCOMPARE(recording.analogSkews, QList<double>({0, 0}));
    QCOMPARE(recording.analogMins, QList<int>({-99999, -99999}));
    QCOMPARE(recording.analogMaxs, QList<int>({99999, 99999}));
    QCOMPARE(recording.primaryValues, QList<double>({1, 1}));
    QCOMPARE(recording.secondaryValues, QList<double>({1, 1}));
    QCOMPARE(recording.toPrimary, QList<double>({1, 1}));
    QCOMPARE(recording.toSecondary, QList<double>({1, 1}));
    QCOMPARE(recording.psFlags, QStringList({QStringLiteral("P"), QStringLiteral("P")}));
    QCOMPARE(recording.rateCount, 1);
    QCOMPARE(recording.lineFrequency, 1.0);
    QCOMPARE(recording.sampleRate, 1.0);
    QCOMPARE(recording.samplesPerCycle, 1);
    QCOMPARE(recording.startDate, QStringLiteral("01/02/2020"));
    QCOMPARE(recording.startTime, QStringLiteral("10:00:00:000"));
    QCOMPARE(recording.triggerDate, QString());
    QCOMPARE(recording.triggerTime, QString());
    QCOMPARE(recording.triggerOffsetMs, 0);
    QCOMPARE(recording.fileType, QString());
    QCOMPARE(recording.timeMultiplier, 1.0);
    QCOMPARE(recording.lastSampleNumber, 2);
    QCOMPARE(recording.durationMs, qint64(20));
    QCOMPARE(recording.sampleCount, 2);
    QCOMPARE(recording.sampleTimes, QVector<double>({0, 20}));
    QVERIFY(recording.digitalChannels.isEmpty());
    QCOMPARE(recording.analogChannels.size(), 2);
    QCOMPARE(recording.analogChannels.at(0)->values, QVector<float>({1.5F, 3.0F}));
    QCOMPARE(recording.analogChannels.at(1)->values, QVector<float>({-2.0F, 4.25F}));
}

void TestTextReader::headerNamesChannels_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<QStringList>("units");
    const auto row = [](const char *name, const char *header, const char *ids, const char *units) {
        QTest::newRow(name) << QByteArray(header)
                            << QString::fromLatin1(ids).split(QLatin1Char('|'))
                            << QString::fromLatin1(units).split(QLatin1Char('|'));
    };
    row("name and unit", "#Ua[kV],Ub[kV]", "Ua|Ub", "kV|kV");
    row("a name without brackets is its own unit", "#Freq", "Freq", "Freq");
    row("with and without", "Freq,Ua[kV]", "Freq|Ua", "Freq|kV");
    row("only the first hash is dropped", "##Ua[kV]", "#Ua", "kV");
    row("a hash in the middle stays", "Ua[kV],#Ub[kV]", "Ua|#Ub", "kV|kV");
    row("empty names are channels", "#Ua[kV],,", "Ua||", "kV||");
    row("empty brackets", "Ua[]", "Ua", "");
    row("a bracket that does not close", "Ua[kV", "Ua", "kV");
    row("a bracket that did not open", "Ua]kV", "Ua]kV", "Ua]kV");
    row("two pairs: the name before the first, the unit in the last", "Ua[L1][kV]", "Ua", "kV");
    row("letters behind the bracket", "Ua[kV] rms", "Ua", "kV");
    row("a bracket that closes first", "U]a[kV]", "U]a", "kV");
    row("blanks stay", "# Ua [ kV ]", " Ua ", " kV ");
    row("an empty line names one channel", "", "", "");
    row("a hash alone names one channel", "#", "", "");
}

void TestTextReader::headerNamesChannels()
{
    QFETCH(QByteArray, header);
    QFETCH(QStringList, ids);
    QFETCH(QStringList, units);
    CFGProperties recording;
    read(recording, header + "\n01/02/2020-10:00:00:000,1,2,3\n");
    QCOMPARE(recording.analogIds, ids);
    QCOMPARE(recording.analogUnits, units);
    QCOMPARE(recording.analogChannelCount, ids.size());
    QCOMPARE(recording.totalChannelCount, ids.size());
    QCOMPARE(recording.analogChannels.size(), ids.size());
    QCOMPARE(recording.analogIndexes.constLast(), ids.size() - 1);
}

void TestTextReader::stampsGiveTimes_data()
{
    QTest::addColumn<QByteArray>(
        "stamps"); // separated by blanks, with "_" for a blank of their own
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<QString>("start");
    using Times = QVector<double>;
    const auto row = [](const char *name, const char *stamps, const Times &times, qint64 duration,
                         const char *start) {
        QTest::newRow(name) << QByteArray(stamps) << times << duration
                            << QString::fromLatin1(start);
    };
    row("milliseconds from the first", "01/02/2020-10:00:00:000 01/02/2020-10:00:00:020",
        Times{0, 20}, 20, "01/02/2020 10:00:00:000");
    row("uneven steps stay",
        "01/02/2020-10:00:00:000 01/02/2020-10:00:00:007 01/02/2020-10:00:01:000",
        Times{0, 7, 1000}, 1000, "01/02/2020 10:00:00:000");
    row("over midnight and the end of a month", "29/02/2020-23:59:59:990 01/03/2020-00:00:00:010",
        Times{0, 20}, 20, "29/02/2020 23:59:59:990");
    row("stamps that run back", "01/02/2020-10:00:00:020 01/02/2020-10:00:00:000", Times{0, -20},
        -20, "01/02/2020 10:00:00:020");
    row("days apart", "01/02/2020-10:00:00:000 02/03/2020-10:00:00:000", Times{0, 2592000000.0},
        2592000000, "01/02/2020 10:00:00:000");
    row("day before month", "13/02/2020-10:00:00:000 02/13/2020-10:00:00:000", Times{0, 0}, 0,
        "13/02/2020 10:00:00:000");
    row("a stamp that is none has time 0",
        "01/02/2020-10:00:00:000 yesterday 01/02/2020-10:00:00:005", Times{0, 0, 5}, 5,
        "01/02/2020 10:00:00:000");
    row("the first one that is a stamp counts", "x 01/02/2020-10:00:00:000 01/02/2020-10:00:00:005",
        Times{0, 0, 5}, 5, "01/02/2020 10:00:00:000");
    row("a last stamp that is none leaves no duration",
        "01/02/2020-10:00:00:000 01/02/2020-10:00:00:005 x", Times{0, 5, 0}, 0,
        "01/02/2020 10:00:00:000");
    row("no stamp at all", "x y", Times{0, 0}, 0, " ");
    row("a point before the milliseconds is no stamp", "01/02/2020-10:00:00.000", Times{0}, 0, " ");
    row("digits too few are no stamp", "1/2/2020-10:00:00:000", Times{0}, 0, " ");
    row("one digit of milliseconds is no stamp", "01/02/2020-10:00:00:5", Times{0}, 0, " ");
    row("two digits of milliseconds are no stamp", "01/02/2020-10:00:00:05", Times{0}, 0, " ");
    row("no digit of milliseconds is no stamp", "01/02/2020-10:00:00:", Times{0}, 0, " ");
    row("four digits of milliseconds are no stamp", "01/02/2020-10:00:00:0005", Times{0}, 0, " ");
    row("blanks around are no stamp",
        "_01/02/2020-10:00:00:005 01/02/2020-10:00:00:006_ _01/02/2020-10:00:00:007_",
        Times{0, 0, 0}, 0, " ");
    row("a blank for a digit is no stamp", "01/02/2020-_9:00:00:000", Times{0}, 0, " ");
    row("a day that is none is no stamp", "30/02/2020-10:00:00:000", Times{0}, 0, " ");
    row("a date without a time is no stamp", "01/02/2020", Times{0}, 0, " ");
    row("before the epoch", "01/01/1969-00:00:00:000 01/01/1969-00:00:00:001", Times{0, 1}, 1,
        "01/01/1969 00:00:00:000");
    // While the reference is the epoch it is replaced, so a later stamp takes its place.
    row("the epoch itself is no reference", "01/01/1970-00:00:00:000 01/01/1970-00:00:00:005",
        Times{0, 0}, 0, "01/01/1970 00:00:00:000");
}

void TestTextReader::stampsGiveTimes()
{
    QFETCH(QByteArray, stamps);
    QFETCH(QVector<double>, times);
    QFETCH(qint64, duration);
    QFETCH(QString, start);
    QByteArray text = "#Ua[kV]\n";
    for (const QByteArray &stamp : stamps.split(' '))
        text += QByteArray(stamp).replace('_', ' ') + ",5\n";
    CFGProperties recording;
    read(recording, text);
    QCOMPARE(recording.sampleTimes, times);
    QCOMPARE(recording.sampleCount, times.size());
    QCOMPARE(recording.lastSampleNumber, times.size());
    QCOMPARE(recording.durationMs, duration);
    QCOMPARE(recording.startDate + QLatin1Char(' ') + recording.startTime, start);
    QCOMPARE(recording.analogChannels.at(0)->times.constData(), recording.sampleTimes.constData());
    QCOMPARE(recording.analogChannels.at(0)->rawValues.size(), times.size());
}

void TestTextReader::stampsAreNotBentByTheLocalTime_data()
{
    QTest::addColumn<QByteArray>("stamps");
    QTest::addColumn<QVector<double>>("times");
    const QByteArray spring = "29/03/2020-02:59:59:999,5\n29/03/2020-03:30:00:000,5\n"
                              "29/03/2020-04:00:00:000,5\n";
    const QByteArray autumn = "25/10/2020-03:59:59:999,5\n25/10/2020-04:00:00:000,5\n"
                              "25/10/2020-05:00:00:000,5\n";
    QTest::newRow("in the hour that spring leaves out")
        << spring << QVector<double>{0, 1800001, 3600001};
    QTest::newRow("in the hour that autumn repeats") << autumn << QVector<double>{0, 1, 3600001};
}

void TestTextReader::stampsAreNotBentByTheLocalTime()
{
    QFETCH(QByteArray, stamps);
    QFETCH(QVector<double>, times);
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "EET-2EEST,M3.5.0/3,M10.5.0/4");
    CFGProperties recording;
    read(recording, "#Ua[kV]\n" + stamps);
    qputenv("TZ", zone);
    QCOMPARE(recording.sampleTimes, times);
}

void TestTextReader::valuesOfALine_data()
{
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QVector<float>>("raw"); // of three channels
    QTest::addColumn<QVector<float>>("largest"); // of each, a line of 7, -8 and 9 included
    using Values = QVector<float>;
    QTest::newRow("numbers") << QByteArray(",1,-2.5,3e2") << Values{1, -2.5, 300}
                             << Values{7, 0, 300};
    QTest::newRow("blanks around")
        << QByteArray(", 1 ,  2,3  ") << Values{1, 2, 3} << Values{7, 2, 9};
    QTest::newRow("words are 0") << QByteArray(",x,2,n/a") << Values{0, 2, 0} << Values{7, 2, 9};
    QTest::newRow("empty fields are 0") << QByteArray(",,2,") << Values{0, 2, 0} << Values{7, 2, 9};
    QTest::newRow("missing fields are 0") << QByteArray(",1") << Values{1, 0, 0} << Values{7, 0, 9};
    QTest::newRow("a stamp alone") << QByteArray() << Values{0, 0, 0} << Values{7, 0, 9};
    QTest::newRow("fields too many are left")
        << QByteArray(",1,2,3,4,5") << Values{1, 2, 3} << Values{7, 2, 9};
    QTest::newRow("a decimal comma makes two fields")
        << QByteArray(",1,5,2") << Values{1, 5, 2} << Values{7, 5, 9};
}

void TestTextReader::valuesOfALine()
{
    QFETCH(QByteArray, values);
    QFETCH(QVector<float>, raw);
    QFETCH(QVector<float>, largest);
    CFGProperties recording;
    read(recording,
        "#a[A],b[A],c[A]\n01/02/2020-10:00:00:000" + values + "\n01/02/2020-10:00:00:001,7,-8,9\n");
    for (int k = 0; k < 3; ++k) {
        const AnalogChannel &channel = *recording.analogChannels.at(k);
        const QVector<float> expected{raw.at(k), k == 1 ? -8.0F : static_cast<float>(7 + k)};
        QCOMPARE(channel.rawValues, expected);
        QCOMPARE(channel.values, expected);
        QCOMPARE(channel.maxValue, largest.at(k));
    }
    QCOMPARE(recording.analogChannels.at(1)->minValue, -8.0F);
}

void TestTextReader::recordsCarryTheirDefinitions()
{
    CFGProperties recording;
    read(recording, twoLines);
    const AnalogChannel &channel = *recording.analogChannels.at(1);
    QCOMPARE(channel.index, 1);
    QCOMPARE(channel.id, QStringLiteral("Ub"));
    QCOMPARE(channel.sampleRate, 1.0);
    QCOMPARE(channel.frequency, 1.0);
    QCOMPARE(channel.a, 1.0F);
    QCOMPARE(channel.toPrimary, 1.0);
    QCOMPARE(channel.toSecondary, 1.0);
    QCOMPARE(channel.primary, 1.0);
    QCOMPARE(channel.secondary, 1.0);
    QCOMPARE(channel.ps, QStringLiteral("P"));
}

void TestTextReader::manyNames_data()
{
    QTest::addColumn<int>("commas");
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("samples");
    QTest::newRow("as many as a recording may have") << 999998 << QByteArray() << 999999 << 0;
    QTest::newRow("one more is left out") << 999999 << QByteArray() << 999999 << 0;
    QTest::newRow("millions are left out") << 3000000 << QByteArray() << 999999 << 0;
    const auto lines = [](int count) { return QByteArray("x\n").repeated(count); };
    QTest::newRow("missing values are 0") << 19999 << lines(2) << 20000 << 2;
    // A line of stamps alone.
    QTest::newRow("values that are missing from every line are 0")
        << 299 << QByteArray("01/02/2020-10:00:00:000\n").repeated(1000) << 300 << 1000;
    // Behind the first line they may be 16384 and 64 a letter, names and line ends included.
    QTest::newRow("missing values beyond all measure end the reading")
        << 19999 << lines(99) << 20000 << 66;
    // The last line alone would be worth another sample.
    QTest::newRow("empty lines beyond all measure end the reading")
        << 19999 << QByteArray(1000000, '\n') + QByteArray(100000, 'x') << 20000 << 66;
}

void TestTextReader::manyNames()
{
    QFETCH(int, commas);
    QFETCH(QByteArray, lines);
    QFETCH(int, channels);
    QFETCH(int, samples);
    CFGProperties recording;
    read(recording, QByteArray(commas, ',') + '\n' + lines);
    QCOMPARE(recording.analogChannelCount, channels);
    QCOMPARE(recording.totalChannelCount, channels);
    QCOMPARE(recording.analogIds.size(), channels);
    QCOMPARE(recording.analogIndexes.constLast(), channels - 1);
    QCOMPARE(recording.sampleCount, samples);
    QCOMPARE(recording.analogChannels.size(), samples > 0 ? channels : 0);
    if (samples > 0)
        QCOMPARE(recording.analogChannels.constLast()->rawValues, QVector<float>(samples, 0.0F));
}

void TestTextReader::emptyLines_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("samples");
    const QByteArray header = "#Ua[kV]\n";
    const QByteArray line = "01/02/2020-10:00:00:000,5\n";
    QTest::newRow("at the end are no samples") << header + line + "\n\n\n" << 1;
    QTest::newRow("at the end with CR LF are no samples") << header + line + "\r\n\r\n" << 1;
    QTest::newRow("in the middle are samples") << header + line + "\n\n" + line << 4;
    QTest::newRow("in the middle are samples, however many")
        << header + line + QByteArray(30000, '\n') + line << 30002;
    QTest::newRow("of blanks at the end are samples") << header + line + "  \n" << 2;
    QTest::newRow("behind the header alone") << header + "\n\n" << 0;
    QTest::newRow("none at all") << header << 0;
    QTest::newRow("a header without line end") << QByteArray("#Ua[kV]") << 0;
}

void TestTextReader::emptyLines()
{
    QFETCH(QByteArray, text);
    QFETCH(int, samples);
    CFGProperties recording;
    read(recording, text);
    QCOMPARE(recording.sampleCount, samples);
    QCOMPARE(recording.sampleTimes.size(), samples);
    QCOMPARE(recording.lastSampleNumber, samples);
    QCOMPARE(recording.analogIds, QStringList({QStringLiteral("Ua")}));
    QCOMPARE(recording.analogChannels.size(), samples > 0 ? 1 : 0);
}

void TestTextReader::lettersOfTheHeader_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QString>("id");
    QTest::newRow("UTF-8") << QByteArray("#J\xc3\xa4nnite[\xce\xa9]")
                           << QString::fromUtf8("Jännite");
    QTest::newRow("UTF-8 with a byte order mark")
        << QByteArray("\xef\xbb\xbfJ\xc3\xa4nnite[V]") << QString::fromUtf8("Jännite");
    QTest::newRow("Latin-1 where it is no UTF-8")
        << QByteArray("#J\xe4nnite[V]") << QString::fromUtf8("Jännite");
    QTest::newRow("Latin-1 where UTF-8 breaks off")
        << QByteArray("#Ua\xc3") << QString::fromUtf8("UaÃ");
    QTest::newRow("UTF-8 with a NUL")
        << QByteArray("#J\xc3\xa4\0n[V]", 9) << QString::fromLatin1("J\xe4\0n", 4);
    QTest::newRow("Latin-1 with a NUL")
        << QByteArray("#J\xe4\0n[V]", 8) << QString::fromLatin1("J\xe4\0n", 4);
}

void TestTextReader::lettersOfTheHeader()
{
    QFETCH(QByteArray, header);
    QFETCH(QString, id);
    CFGProperties recording;
    read(recording, header + "\n01/02/2020-10:00:00:000,5\n");
    QCOMPARE(recording.analogIds, QStringList({id}));
}

void TestTextReader::lettersOfTwoBytes_data()
{
    QTest::addColumn<QByteArray>("mark");
    QTest::addColumn<bool>("isHighFirst");
    QTest::addColumn<QByteArray>("lineEnd");
    for (const QByteArray &lineEnd : {QByteArray("\n"), QByteArray("\r\n")}) {
        const char *name = lineEnd.size() == 1 ? "LF" : "CR LF";
        QTest::addRow("the low byte first, %s", name) << QByteArray("\xff\xfe") << false << lineEnd;
        QTest::addRow("the high byte first, %s", name) << QByteArray("\xfe\xff") << true << lineEnd;
    }
}

// The bytes of the letters are written out here; "\u0a0a" has that of a line end twice.
void TestTextReader::lettersOfTwoBytes()
{
    QFETCH(QByteArray, mark);
    QFETCH(bool, isHighFirst);
    QFETCH(QByteArray, lineEnd);
    const QString name = QString::fromUtf8("J\u00e4nnite \u0a0a \u7535");
    const QString text = QLatin1Char('#') + name
        + QString::fromUtf8("[\u03a9],b[A]\n01/02/2020-10:00:00:000,1.5,-2\n\n"
                            "01/02/2020-10:00:00:020,3,4.25\n\n\n")
              .replace(QLatin1Char('\n'), QLatin1String(lineEnd));
    QByteArray bytes = mark;
    for (const QChar letter : text) {
        const auto high = static_cast<char>(letter.unicode() / 256);
        const auto low = static_cast<char>(letter.unicode() % 256);
        bytes += isHighFirst ? high : low;
        bytes += isHighFirst ? low : high;
    }
    CFGProperties recording;
    read(recording, bytes);
    QCOMPARE(recording.analogIds, QStringList({name, QStringLiteral("b")}));
    QCOMPARE(
        recording.analogUnits, QStringList({QString::fromUtf8("\u03a9"), QStringLiteral("A")}));
    QCOMPARE(recording.sampleTimes, QVector<double>({0, 0, 20}));
    QCOMPARE(recording.analogChannels.at(0)->rawValues, QVector<float>({1.5F, 0, 3}));
    QCOMPARE(recording.analogChannels.at(1)->rawValues, QVector<float>({-2, 0, 4.25F}));
}

void TestTextReader::aLoadOfAnExport_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("samples");
    QTest::newRow("an export") << QStringLiteral("good.txt") << 2 << 2;
    QTest::newRow("an empty file") << QStringLiteral("empty.txt") << 0 << 0;
    QTest::newRow("no file") << QStringLiteral("missing.txt") << 0 << 0;
    QTest::newRow("a folder") << QStringLiteral("folder.txt") << 0 << 0;
}

void TestTextReader::aLoadOfAnExport()
{
    QFETCH(QString, name);
    QFETCH(int, channels);
    QFETCH(int, samples);
    const RecordingFolder folder;
    QVERIFY(QDir().mkdir(folder.path("folder.txt")));
    QVERIFY(folder.write(QStringLiteral("good.txt"), twoLines));
    QVERIFY(folder.write(QStringLiteral("empty.txt"), QByteArray()));
    CFGProperties recording;
    folder.loadFile(recording, name);
    // Whatever was found, it counts as loaded.
    QCOMPARE(recording.loaded, 1);
    QCOMPARE(recording.filePath, folder.path(name));
    QCOMPARE(recording.analogChannelCount, channels);
    QCOMPARE(recording.analogChannels.size(), channels);
    QCOMPARE(recording.sampleCount, samples);
    for (const AnalogChannel *channel : qAsConst(recording.analogChannels)) {
        QVERIFY(channel->fftAngles.isEmpty());
        QVERIFY(channel->fftMagnitudes.isEmpty());
    }
}

void TestTextReader::manyLinesLoad()
{
    QByteArray text = "#a[A],b[A],c[A]\n";
    for (int i = 0; i < 50000; ++i)
        text += "01/02/2020-10:00:00:" + QByteArray::number(i % 1000).rightJustified(3, '0')
            + ",1,2,3\n";
    CFGProperties recording;
    QElapsedTimer timer;
    timer.start();
    read(recording, text);
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(recording.sampleCount, 50000);
    QCOMPARE(recording.durationMs, qint64(999));
    QCOMPARE(recording.analogChannels.at(2)->values.count(3.0F), 50000);
}

QTEST_GUILESS_MAIN(TestTextReader)
#include "tst_textreader.moc"
