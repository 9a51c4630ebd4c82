// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "phasorlookup.h"
#include "recordingwriter.h"

#include "recordingbuilder.h"

#include <QtTest>

#include <ctime>
#include <limits>
#include <random>

namespace {

const double infinite = std::numeric_limits<double>::infinity();

// Reading in time with what such a file promises takes minutes or more; reading in time with its
// size takes a second or so, longer on a slow or a busy machine, half a minute under Wine.
#ifdef Q_OS_WIN
constexpr double mostSeconds = 60;
#else
constexpr double mostSeconds = 20;
#endif

#ifdef __SANITIZE_ADDRESS__
constexpr bool isMemoryMeasured = false;
#else
constexpr bool isMemoryMeasured = true;
#endif

double processorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// A figure of this process in kilobytes, 0 where the system does not tell.
int memory(const QByteArray &figure)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(figure))
            return line.simplified().split(' ').value(1).toInt();
    }
    return 0;
}

void forgetPeakOfMemory()
{
    writeTextFile(QStringLiteral("/proc/self/clear_refs"), "5");
}

// What the program does with a recording, as far as it goes without a window.
void use(CFGProperties &recording, bool isWritten = true)
{
    for (int number = -1; number <= recording.analogChannels.size() + 2; ++number) {
        const AnalogChannel *const channel = recording.analogChannel(number);
        if (!channel || number >= 20)
            continue;
        for (const double time : {0.0, infinite}) {
            int from = 0;
            phasorOf(*channel, sampleAt(channel->times, channel->sampleRate, time, from));
        }
    }
    recording.updateMaxValue();
    recording.updateMinValue();
    // Pairs of a million channels take seconds each.
    if (!isWritten || recording.analogChannels.size() > 200000)
        return;
    const RecordingFolder folder;
    const RecordingWriter writer(recording, {}, {});
    writer.write(folder.path("part"), 0, 10);
    writer.writeAsPrimary(folder.path("all"));
}

ConfigurationText twoAndOne()
{
    ConfigurationText text;
    text.analog = QByteArrayList{analogLine(1), analogLine(2)};
    text.digital = QByteArrayList{digitalLine(1)};
    return text;
}

const QByteArray threeLines = "1,0,5,6,0\n2,1000,-7,8,1\n3,2000,9,-9,0\n";

// Columns of a pair, its result and the memory it may take.
void addPairColumns()
{
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("loaded");
    QTest::addColumn<int>("megabytes");
}

void row(const char *name, const QByteArray &configuration, const QByteArray &data, int loaded = 1,
    int megabytes = 16)
{
    QTest::newRow(name) << configuration << data << loaded << megabytes;
}

QByteArray withCounts(const QByteArray &counts)
{
    ConfigurationText text = twoAndOne();
    text.counts = counts;
    return text.text();
}

} // namespace

class TestBadInput : public QObject {
    Q_OBJECT

private slots:
    void oddNumbersTakeAMomentAndLittleMemory_data();
    void oddNumbersTakeAMomentAndLittleMemory();
    void oddFilesTakeAMomentAndLittleMemory_data();
    void oddFilesTakeAMomentAndLittleMemory();
    void aSmallPairTakesAMomentWhateverItsCycle_data();
    void aSmallPairTakesAMomentWhateverItsCycle();
    void aBadExportTakesAMomentAndLittleMemory_data();
    void aBadExportTakesAMomentAndLittleMemory();
    void aLineWithoutEndEndsTheReading_data();
    void aLineWithoutEndEndsTheReading();
    void aLineMayHaveTheLargestLength_data();
    void aLineMayHaveTheLargestLength();
    void aPairCutOffAnywhereIsSurvived();
    void aPairWithBytesChangedIsSurvived();
    void anExportWithBytesChangedIsSurvived();
};

void TestBadInput::oddNumbersTakeAMomentAndLittleMemory_data()
{
    addPairColumns();
    row("two milliards of channels", withCounts("2000000000,2000000000A,0D"), threeLines);
    row("two milliards of digital channels", withCounts("2000000000,2A,1999999998D"), threeLines);
    row("two milliards of everything", withCounts("2000000000,2000000000A,2000000000D"),
        threeLines);
    row("negative counts", withCounts("-5,-3A,-2D"), threeLines);
    row("a very negative analog count", withCounts("2000000000,-2000000000A,5D"), threeLines);
    row("a very negative total", withCounts("-2000000000,2A,1D"), threeLines);
    row("the smallest counts", withCounts("-2147483648,-2147483648A,-2147483648D"), threeLines);
    row("the largest counts", withCounts("2147483647,2147483647A,2147483647D"), threeLines);
    row("counts that do not add up", withCounts("7,2A,1D"), threeLines);

    const QByteArray text = twoAndOne().text();
    row("two milliards of rates", QByteArray(text).replace("\n1\n1000", "\n2000000000\n1000"),
        threeLines);
    row("a negative number of rates", QByteArray(text).replace("\n1\n1000", "\n-2000000000\n1000"),
        threeLines);
    row("a rate beyond all bounds", QByteArray(text).replace("1000,40", "1e308,2147483647"),
        threeLines);
    row("a rate that is infinite", QByteArray(text).replace("1000,40", "inf,40"), threeLines);
    row("a rate that is no number", QByteArray(text).replace("1000,40", "nan,40"), threeLines);
    row("a negative rate", QByteArray(text).replace("1000,40", "-1000,-40"), threeLines);
    row("a frequency of nearly nothing", QByteArray(text).replace("\n50\n", "\n1e-300\n"),
        threeLines);
    row("a frequency that is no number", QByteArray(text).replace("\n50\n", "\nnan\n"), threeLines);
    row("a frequency of nothing and no rate",
        QByteArray(text).replace("\n50\n", "\n0\n").replace("1000,40", "0,0"), threeLines);

    QByteArray manyLines;
    for (int i = 0; i < 400; ++i)
        manyLines += "1,0,5,6,0\n";
    row("a million samples a cycle", QByteArray(text).replace("1000,40", "52428800,40"), manyLines);
    row("four thousand samples a cycle", QByteArray(text).replace("1000,40", "204800,40"),
        manyLines);

    row("multipliers beyond all bounds",
        QByteArray(text).replace("Bay,A,1,0", "Bay,A,1e308,-1e308"), threeLines);
    row("ratings of nothing", QByteArray(text).replace("400,1,S", "0,0,S"), threeLines);
    row("values beyond all bounds", text, "1,0,1e39,inf,1\n2,1000,nan,-1e39,99999999999\n");
    row("stamps beyond all bounds", text,
        "1,inf,1,2,0\n2,-inf,1,2,0\n3,nan,1,2,0\n4,1e308,1,2,0\n");
}

void TestBadInput::oddFilesTakeAMomentAndLittleMemory_data()
{
    addPairColumns();
    const QByteArray text = twoAndOne().text();
    // Four thousand channels of one byte each, two thousand lines of two bytes.
    row("channels and lines of hardly a byte",
        "S,D,1999\n4000,4000A,0D\n" + QByteArray(4000, '\n') + "50\n1\n1000,9\n,\n,\nASCII\n1\n",
        QByteArray(",\n").repeated(2000));
    row("channels of hardly a byte, the first sample of each",
        "S,D,1999\n1000,1000A,0D\n" + QByteArray(1000, '\n') + "50\n1\n204800,9\n,\n,\nASCII\n1\n",
        "1,0" + QByteArray(",1").repeated(1000) + '\n' + QByteArray(",\n").repeated(1000));
    row("four thousand promised channels, empty fields", withCounts("4000,4000A,0D"),
        QByteArray(4000, ',') + '\n');
    row("a million promised channels, empty fields", withCounts("1000000,1000000A,0D"),
        QByteArray(1000000, ',') + '\n', 1, 600);
    row("a million promised digital channels, empty fields", withCounts("1000002,2A,1000000D"),
        QByteArray(1000000, ',') + '\n', 1, 600);

    row("a configuration of one long line", QByteArray(4000000, 'x'), threeLines, 1, 80);
    row("a configuration of one line of commas", QByteArray(4000000, ','), threeLines, 1, 80);
    row("a start of millions of parts",
        QByteArray(text).replace("15/03/2024,", QByteArray("/a").repeated(4000000) + ','),
        threeLines, 1, 150);
    row("a configuration of empty lines", QByteArray(200000, '\n'), threeLines, 1, 80);
    row("two hundred thousand lines of channels",
        "S,D,1999\n200000,200000A,0D\n" + QByteArray(200000, '\n'), threeLines, 1, 300);
    row("data of one long line", text, QByteArray(4000000, 'x'), 0, 80);
    row("data of one long number", text, "1,0," + QByteArray(4000000, '9') + ",5,1\n", 1, 80);
    row("data of one long exponent", text, "1,0,1e" + QByteArray(100000, '9') + ",5,1\n", 1, 80);
    row("data of one long line of commas", text, QByteArray(4000000, ','), 1, 80);
    row("data of blanks", text, "1," + QByteArray(4000000, ' ') + ",5,6,1\n", 1, 80);
    row("data without a line end", text, QByteArray("1,0,5,6,1,").repeated(400000), 1, 80);

    row("an empty configuration", QByteArray(), threeLines);
    row("an empty pair", QByteArray(), QByteArray(), 0);
    row("NULs in place of a configuration", QByteArray(1000, '\0'), threeLines);
    row("NULs in place of data", text, QByteArray(1000, '\0'), 0);
    row("data in place of the configuration", threeLines, threeLines);
    row("the configuration in place of data", text, text);
    QByteArray wide;
    for (const char letter : text) {
        wide += letter;
        wide += '\0';
    }
    row("letters of two bytes", wide, threeLines);
    QByteArray noise;
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i)
        noise += static_cast<char>(random());
    row("noise in place of a configuration", noise, threeLines);
    row("noise in place of data", text, "1,2\n" + noise);
    row("noise in place of both", noise, "1,2\n" + noise);
}

void TestBadInput::oddNumbersTakeAMomentAndLittleMemory()
{
    QFETCH(QByteArray, configuration);
    QFETCH(QByteArray, data);
    QFETCH(int, loaded);
    QFETCH(int, megabytes);
    const RecordingFolder folder;
    CFGProperties recording;
    forgetPeakOfMemory();
    const int before = memory("VmRSS:");
    const double start = processorSeconds();
    folder.load(recording, configuration, data);
    const double taken = processorSeconds() - start;
    const int peak = memory("VmHWM:");
    QCOMPARE(recording.loaded, loaded);
    QVERIFY2(taken < mostSeconds, qPrintable(QString::number(taken)));
    if (isMemoryMeasured)
        QVERIFY2(peak - before < megabytes * 1024, qPrintable(QString::number(peak - before)));
    for (const AnalogChannel *channel : qAsConst(recording.analogChannels)) {
        QCOMPARE(channel->values.size(), recording.sampleCount);
        QCOMPARE(channel->fftAngles.size(), recording.sampleCount);
    }
    use(recording);
}

void TestBadInput::oddFilesTakeAMomentAndLittleMemory()
{
    oddNumbersTakeAMomentAndLittleMemory();
}

void TestBadInput::aSmallPairTakesAMomentWhateverItsCycle_data()
{
    QTest::addColumn<int>("channels"); // without definitions, each with values in its first lines
    QTest::addColumn<int>("lines"); // with values
    QTest::addColumn<int>("shortLines"); // behind them, of two empty fields
    QTest::addColumn<int>("cycle");
    QTest::addColumn<int>("size"); // of both files, bytes
    QTest::addColumn<double>("seconds");
    const auto row = [](const char *name, int channels, int lines, int shortLines, int cycle,
                         int size, double seconds) {
        QTest::newRow(name) << channels << lines << shortLines << cycle << size << seconds;
    };
    row("a thousand bytes, a cycle of 4093", 230, 1, 130, 4093, 1000, 0.5);
    row("a thousand bytes, a cycle as long as the recording", 200, 1, 180, 181, 1000, 0.5);
    row("a thousand bytes, the longest cycle", 230, 1, 130, 1048576, 1000, 0.5);
    row("a thousand bytes, a long prime cycle", 1, 150, 0, 1048573, 1000, 0.5);
    row("a hundred thousand bytes, a cycle of 4093", 1200, 20, 2800, 4093, 100000, 10);
    row("a hundred thousand bytes, many values", 200, 150, 15000, 4093, 100000, 10);
    row("a hundred thousand bytes, the longest cycle", 40, 1000, 5000, 1048576, 100000, 10);
}

void TestBadInput::aSmallPairTakesAMomentWhateverItsCycle()
{
    QFETCH(int, channels);
    QFETCH(int, lines);
    QFETCH(int, shortLines);
    QFETCH(int, cycle);
    QFETCH(int, size);
    QFETCH(double, seconds);
    const QByteArray count = QByteArray::number(channels);
    const QByteArray configuration = "S,D,1999\n" + count + ',' + count + "A,0D\n"
        + QByteArray(channels, '\n') + "50\n1\n" + QByteArray::number(50 * cycle) + ",9\n";
    const QByteArray data = (',' + QByteArray(",1").repeated(channels) + '\n').repeated(lines)
        + QByteArray(",\n").repeated(shortLines);
    QVERIFY(configuration.size() + data.size() <= size);
    const RecordingFolder folder;
    CFGProperties recording;
    const double start = processorSeconds();
    folder.load(recording, configuration, data);
    const double taken = processorSeconds() - start;
    QCOMPARE(recording.loaded, 1);
    QCOMPARE(recording.samplesPerCycle, cycle);
    QCOMPARE(recording.sampleCount, lines + shortLines);
    QVERIFY2(taken < seconds, qPrintable(QString::number(taken)));
}

void TestBadInput::aBadExportTakesAMomentAndLittleMemory_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("megabytes");
    const QByteArray stamp = "01/02/2020-10:00:00:000";
    QTest::newRow("nothing") << QByteArray() << 16;
    QTest::newRow("one line end") << QByteArray("\n") << 16;
    QTest::newRow("a long name") << QByteArray(4000000, 'x') << 80;
    QTest::newRow("a long stamp") << "a[A]\n" + QByteArray(4000000, '1') + ",5\n" << 80;
    QTest::newRow("a long value") << "a[A]\n" + stamp + ',' + QByteArray(4000000, '9') << 80;
    QTest::newRow("a long line of commas") << "a[A]\n" + stamp + QByteArray(1000000, ',') << 80;
    QTest::newRow("a very long line of commas")
        << "a[A]\n" + stamp + QByteArray(60000000, ',') << 400;
    QTest::newRow("a longer line of names than there may be")
        << QByteArray(70000000, ',') + '\n' + stamp << 200;
    QTest::newRow("many names") << QByteArray(100000, ',') + '\n' + stamp + ",1\n" << 200;
    QTest::newRow("two short lines under very many names") << QByteArray(199999, ',') + '\n' + stamp
            + ",1\n" + stamp + ",2\n" << 200;
    QTest::newRow("millions of names") << QByteArray(60000000, ',') + '\n' + stamp + ",1\n" << 600;
    QTest::newRow("names and lines of hardly a byte")
        << QByteArray(4000, ',') + '\n' + QByteArray("x\n").repeated(2000) << 16;
    QTest::newRow("many empty lines and then one") << QByteArray(1000, ',')
            + QByteArray(200000, '\n') + "x\n" << 32;
    QTest::newRow("a byte order mark alone") << QByteArray("\xff\xfe") << 16;
    QTest::newRow("half a letter") << QByteArray("\xfe\xff\0", 3) << 16;
    QTest::newRow("NULs") << QByteArray(1000, '\0') << 16;
    QTest::newRow("lone carriage returns") << QByteArray("a[A]\r01/02/2020\r5\r\r") << 16;
    QTest::newRow("values beyond all bounds") << "a[A],b[A]\n" + stamp + ",1e39,nan\n" << 16;
    QTest::newRow("years far apart")
        << QByteArray("a[A]\n01/01/0001-00:00:00:000,1\n31/12/9999-23:59:59:999,2\n") << 16;
}

void TestBadInput::aBadExportTakesAMomentAndLittleMemory()
{
    QFETCH(QByteArray, text);
    QFETCH(int, megabytes);
    const RecordingFolder folder;
    QVERIFY(writeTextFile(folder.path("rec.txt"), text));
    CFGProperties recording;
    recording.filePath = folder.path("rec.txt");
    forgetPeakOfMemory();
    const int before = memory("VmRSS:");
    const double start = processorSeconds();
    recording.init();
    const double taken = processorSeconds() - start;
    const int peak = memory("VmHWM:");
    QCOMPARE(recording.loaded, 1);
    QVERIFY2(taken < mostSeconds, qPrintable(QString::number(taken)));
    if (isMemoryMeasured)
        QVERIFY2(peak - before < megabytes * 1024, qPrintable(QString::number(peak - before)));
    for (const AnalogChannel *channel : qAsConst(recording.analogChannels))
        QCOMPARE(channel->values.size(), recording.sampleCount);
    use(recording);
}

void TestBadInput::aLineMayHaveTheLargestLength_data()
{
    QTest::addColumn<int>("length"); // of a data line, its end included
    QTest::addColumn<int>("samples");
    QTest::newRow("2^26 bytes") << 67108864 << 2;
    QTest::newRow("one more") << 67108865 << 1;
}

void TestBadInput::aLineMayHaveTheLargestLength()
{
    QFETCH(int, length);
    const QByteArray first = "1,0,5,6,0\n";
    QByteArray second = "2,1000,5,6,0";
    second += QByteArray(length - second.size() - 1, ',') + '\n';
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, twoAndOne().text(), first + second);
    QTEST(recording.sampleCount, "samples");
}

void TestBadInput::aLineWithoutEndEndsTheReading_data()
{
    QTest::addColumn<QString>("longFile");
    QTest::addColumn<QByteArray>("text"); // before NULs up to 1.1 GB
    QTest::addColumn<int>("loaded");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("samples");
    const QString configuration = QStringLiteral("rec.cfg");
    const QString data = QStringLiteral("rec.dat");
    const QString text = QStringLiteral("rec.txt");
    const QByteArray sample = "01/02/2020-10:00:00:000,5,6\n";
    QTest::newRow("the names of an export") << text << QByteArray("a[A],b[A]") << 1 << 0 << 0;
    QTest::newRow("the second sample of an export")
        << text << "a[A],b[A]\n" + sample + sample.chopped(1) << 1 << 2 << 1;
    QTest::newRow("the names of an export of two bytes a letter") << text
                                                                  << QByteArray("\xff\xfe"
                                                                                "a\0[\0A\0",
                                                                         8)
                                                                  << 1 << 0 << 0;
    QTest::newRow("the first sample of an export of two bytes a letter") << text
                                                                         << QByteArray("\xff\xfe"
                                                                                       "a\0\n\0"
                                                                                       "5\0",
                                                                                8)
                                                                         << 1 << 0 << 0;
    QTest::newRow("the station") << configuration << QByteArray("Harju") << 1 << 0 << 3;
    QTest::newRow("behind the time factor") << configuration << twoAndOne().text() << 1 << 2 << 3;
    QTest::newRow("the first sample") << data << QByteArray("1,0,5,6,0") << 0 << 0 << 0;
    QTest::newRow("behind the samples") << data << threeLines << 1 << 2 << 3;
}

void TestBadInput::aLineWithoutEndEndsTheReading()
{
    QFETCH(QString, longFile);
    QFETCH(QByteArray, text);
    QFETCH(int, loaded);
    QFETCH(int, channels);
    QFETCH(int, samples);
    const RecordingFolder folder;
    QVERIFY(writeTextFile(folder.path("rec.cfg"), twoAndOne().text()));
    QVERIFY(writeTextFile(folder.path("rec.dat"), threeLines));
    QFile file(folder.path(qPrintable(longFile)));
    QVERIFY(writeTextFile(file.fileName(), text));
    QVERIFY(file.resize(1100000000)); // takes no room on the disk
    CFGProperties recording;
    recording.filePath
        = folder.path(longFile.endsWith(QLatin1String(".txt")) ? "rec.txt" : "rec.cfg");
    forgetPeakOfMemory();
    const int before = memory("VmRSS:");
    const double start = processorSeconds();
    recording.init();
    const double taken = processorSeconds() - start;
    const int peak = memory("VmHWM:");
    QCOMPARE(recording.loaded, loaded);
    QCOMPARE(recording.analogChannels.size(), channels);
    QCOMPARE(recording.sampleCount, samples);
    QVERIFY2(taken < mostSeconds, qPrintable(QString::number(taken)));
    if (isMemoryMeasured)
        QVERIFY2(peak - before < 400 * 1024, qPrintable(QString::number(peak - before)));
}

void TestBadInput::aPairCutOffAnywhereIsSurvived()
{
    const RecordingFolder folder = RecordingFolder::inMemory();
    const QByteArray configuration = twoAndOne().text();
    for (int length = 0; length <= configuration.size(); ++length) {
        CFGProperties recording;
        folder.load(recording, configuration.left(length), threeLines);
        QCOMPARE(recording.loaded, 1);
        QCOMPARE(recording.sampleCount, 3);
        use(recording, length % 50 == 0);
    }
    for (int length = 0; length <= threeLines.size(); ++length) {
        CFGProperties recording;
        folder.load(recording, configuration, threeLines.left(length));
        // From the first comma on there is a sample.
        QCOMPARE(recording.loaded, length < 2 ? 0 : 1);
        use(recording, length % 50 == 0);
    }
}

void TestBadInput::aPairWithBytesChangedIsSurvived()
{
    const QByteArray letters = QByteArray("0123456789,,,\n\r-+.eEnaifSPAD :/\x1a\xff") + '\0';
    std::mt19937 random(11);
    const auto changed = [&](QByteArray text) {
        for (auto changes = 1 + random() % 6; changes > 0; --changes) {
            const int at = static_cast<int>(random() % static_cast<unsigned>(text.size()));
            const char letter
                = letters.at(static_cast<int>(random() % static_cast<unsigned>(letters.size())));
            switch (random() % 3) {
            case 0:
                text[at] = letter;
                break;
            case 1:
                text.insert(at, letter);
                break;
            default:
                text.remove(at, 1 + static_cast<int>(random() % 4));
            }
        }
        return text;
    };
    const RecordingFolder folder = RecordingFolder::inMemory();
    for (int i = 0; i < 1500; ++i) {
        CFGProperties recording;
        const QByteArray configuration = changed(twoAndOne().text());
        const QByteArray data = changed(threeLines);
        folder.load(recording, configuration, data);
        QVERIFY2(recording.sampleCount <= 6, configuration.constData());
        QVERIFY2(recording.analogChannels.size() <= 40, configuration.constData());
        use(recording, i % 50 == 0);
    }
}

void TestBadInput::anExportWithBytesChangedIsSurvived()
{
    const QByteArray text = "#Ua[kV],Ub[kV]\n01/02/2020-10:00:00:000,1.5,-2\n"
                            "01/02/2020-10:00:00:020,3,4.25\n";
    std::mt19937 random(12);
    const RecordingFolder folder = RecordingFolder::inMemory();
    for (int i = 0; i < 1500; ++i) {
        QByteArray changed = text;
        for (auto changes = 1 + random() % 6; changes > 0; --changes)
            changed[static_cast<int>(random() % static_cast<unsigned>(changed.size()))]
                = static_cast<char>(random());
        QVERIFY(writeTextFile(folder.path("rec.txt"), changed));
        CFGProperties recording;
        recording.filePath = folder.path("rec.txt");
        recording.init();
        QVERIFY(recording.sampleCount <= 10);
        use(recording, i % 50 == 0);
    }
}

QTEST_GUILESS_MAIN(TestBadInput)
#include "tst_badinput.moc"
