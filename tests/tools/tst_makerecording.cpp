// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analogchannel.h"
#include "cfgproperties.h"
#include "digitalchannel.h"

#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double amperesPerCount = 0.2; // primary
const QString examples = QStringLiteral(SOURCE_DIR "/examples/");

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// The generator of recordings, run as a program.
class TestMakeRecording : public QObject {
    Q_OBJECT

private:
    struct Outcome {
        int exitCode = -1;
        QByteArray output;
        QByteArray errors;
    };
    using Row = QVector<int>; // of the data file: number, microseconds, values

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }

    // Options are separated by single blanks; the folder is where paths begin.
    Outcome run(const QString &options) const
    {
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.start(
            QStringLiteral(MAKERECORDING), options.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {
            process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    // The lines of a file that ends every line with CR LF.
    QList<QByteArray> lines(const char *name) const
    {
        QList<QByteArray> found = content(path(name)).replace("\r\n", "\n").split('\n');
        found.removeLast();
        return found;
    }

    QVector<Row> data() const
    {
        QVector<Row> rows;
        for (const QByteArray &line : lines("r.dat")) {
            Row row;
            for (const QByteArray &field : line.split(','))
                row.append(field.toInt());
            rows.append(row);
        }
        return rows;
    }

    static double rms(const QVector<Row> &rows, int column, int begin, int end)
    {
        double squares = 0;
        for (int k = begin; k < end; ++k)
            squares += std::pow(rows.at(k).at(column), 2);
        return std::sqrt(squares / (end - begin));
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void exampleIsMadeAnewByteForByte()
    {
        QCOMPARE(run(QStringLiteral("--fault AG r")).exitCode, 0);
        QVERIFY(!content(examples + QLatin1String("earth-fault.dat")).isEmpty());
        QCOMPARE(content(path("r.cfg")), content(examples + QLatin1String("earth-fault.cfg")));
        QVERIFY(content(path("r.dat")) == content(examples + QLatin1String("earth-fault.dat")));
    }

    void examplePackageHoldsTheExampleAmongOtherFiles()
    {
        QProcess archiver;
        archiver.setWorkingDirectory(m_folder->path());
        archiver.start(QStringLiteral("7z"),
            {QStringLiteral("e"), examples + QLatin1String("earth-fault.zip"),
                QStringLiteral("-aoa")});
        if (!archiver.waitForFinished())
            QSKIP("no archiver is installed");
        QCOMPARE(archiver.exitCode(), 0);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files, QDir::Name),
            QStringList({QStringLiteral("earth-fault.cfg"), QStringLiteral("earth-fault.dat"),
                QStringLiteral("readme.txt"), QStringLiteral("settings.xml")}));
        for (const char *name : {"earth-fault.cfg", "earth-fault.dat"})
            QVERIFY(content(path(name)) == content(examples + QLatin1String(name)));
    }

    void exampleLoads()
    {
        CFGProperties recording;
        recording.filePath = examples + QLatin1String("earth-fault.cfg");
        recording.init();
        QCOMPARE(recording.loaded, 1);
        QCOMPARE(recording.stationName, QStringLiteral("Harju 110/20 kV"));
        QCOMPARE(recording.recordingDeviceId, QStringLiteral("Feeder J07"));
        QCOMPARE(recording.totalChannelCount, 16);
        QCOMPARE(recording.analogIds.join(QLatin1Char(' ')),
            QStringLiteral("IL1 IL2 IL3 I0 UL1 UL2 UL3 U0"));
        QCOMPARE(recording.digitalIds.at(3), QStringLiteral("CB closed"));
        QCOMPARE(recording.digitalNormalStates.join(QString()), QStringLiteral("00010000"));
        QCOMPARE(recording.sampleCount, 3200);
        QCOMPARE(recording.lastSampleNumber, 3200);
        QCOMPARE(recording.durationMs, qint64(1600));
        QCOMPARE(recording.samplesPerCycle, 40);
        QCOMPARE(recording.startTime, QStringLiteral("09:26:53.500"));
        QCOMPARE(recording.triggerOffsetMs, 200);
        QCOMPARE(recording.sampleTimes.last(), 1599.5);
        QCOMPARE(recording.toPrimary.first(), 80.0);
        QCOMPARE(recording.toPrimary.last(), 200.0);
        for (const DigitalChannel *channel : qAsConst(recording.digitalChannels))
            QVERIFY2(!channel->allZero, qPrintable(channel->id));

        // Primary RMS a tenth of a second into the fault.
        const std::array<double, 8> expected = {949, 150, 150, 800, 3591, 15118, 19350, 8811};
        for (int k = 0; k < 8; ++k) {
            const AnalogChannel *channel = recording.analogChannel(k + 1);
            const double shown = channel->fftMagnitudes.at(600) * channel->toPrimary;
            const double right = expected.at(static_cast<std::size_t>(k));
            QVERIFY2(std::abs(shown - right) < 0.005 * right, qPrintable(channel->id));
        }
    }

    void loadIsASine_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("frequency");
        QTest::newRow("50 Hz at 2 kHz") << 2000 << 50;
        QTest::newRow("60 Hz at a rate that it does not divide") << 1999 << 60;
        QTest::newRow("16 Hz at 48 kHz") << 48000 << 16;
        QTest::newRow("faster than it is sampled") << 100 << 730;
    }

    void loadIsASine()
    {
        QFETCH(int, rate);
        QFETCH(int, frequency);
        const QString options
            = QStringLiteral("--noise 0 --samples 5000 --rate %1 --frequency %2 r");
        QCOMPARE(run(options.arg(rate).arg(frequency)).exitCode, 0);
        const QVector<Row> rows = data();
        QCOMPARE(rows.size(), 5000);
        for (int k = 0; k < rows.size(); ++k) {
            const double turn = 2 * pi * k * frequency / rate;
            const double current = 150 / amperesPerCount * std::sqrt(2) * std::cos(turn - pi / 10);
            const double voltage = 11547 * std::sqrt(2) * std::cos(turn + pi / 1.5);
            QVERIFY2(std::abs(rows.at(k).at(2) - current) < 0.6, qPrintable(QString::number(k)));
            QVERIFY2(std::abs(rows.at(k).at(8) - voltage) < 0.6, qPrintable(QString::number(k)));
        }
    }

    // Primary RMS from the symmetrical components of the network. Each row is one circuit seen from
    // another phase, so that the columns of a kind of fault turn with its letters.
    void faultShowsInItsPhases_data()
    {
        QTest::addColumn<QVector<int>>("expected");
        using Values = QVector<int>;
        QTest::newRow("none") << Values{150, 150, 150, 0, 11547, 11547, 11547, 0};
        QTest::newRow("AG") << Values{949, 150, 150, 800, 3591, 15118, 19350, 8811};
        QTest::newRow("BG") << Values{150, 949, 150, 800, 19350, 3591, 15118, 8811};
        QTest::newRow("CG") << Values{150, 150, 949, 800, 15118, 19350, 3591, 8811};
        QTest::newRow("AB") << Values{2510, 2401, 150, 0, 9061, 6971, 11547, 0};
        QTest::newRow("BC") << Values{150, 2510, 2401, 0, 11547, 9061, 6971, 0};
        QTest::newRow("CA") << Values{2401, 150, 2510, 0, 6971, 11547, 9061, 0};
        QTest::newRow("ABG") << Values{2677, 2250, 150, 446, 7028, 4366, 16247, 4915};
        QTest::newRow("BCG") << Values{150, 2677, 2250, 446, 16247, 7028, 4366, 4915};
        QTest::newRow("CAG") << Values{2250, 150, 2677, 446, 4366, 16247, 7028, 4915};
        QTest::newRow("ABC") << Values{2835, 2835, 2835, 0, 6534, 6534, 6534, 0};
        QTest::newRow("ABCG") << Values{2835, 2835, 2835, 0, 6534, 6534, 6534, 0};
    }

    void faultShowsInItsPhases()
    {
        QFETCH(QVector<int>, expected);
        const QString fault = QLatin1String(QTest::currentDataTag());
        QCOMPARE(run(QStringLiteral("--noise 0 --fault %1 r").arg(fault)).exitCode, 0);
        const QVector<Row> rows = data();
        for (int k = 0; k < expected.size(); ++k) {
            const double factor = k < 4 ? amperesPerCount : 1;
            // Four cycles under load, four of the fault when nothing is left of its beginning.
            const double load = factor * rms(rows, k + 2, 240, 400);
            const double during = factor * rms(rows, k + 2, 640, 800);
            const double carried = k < 3 ? 150 : k == 3 || k == 7 ? 0 : 11547;
            QVERIFY2(std::abs(load - carried) < 1, qPrintable(QString::number(load)));
            QVERIFY2(std::abs(during - expected.at(k)) < 2, qPrintable(QString::number(during)));
        }
    }

    void residualsAreSumsOfThePhases()
    {
        QCOMPARE(run(QStringLiteral("--noise 0 --fault BCG r")).exitCode, 0);
        for (const Row &row : data()) {
            QVERIFY(std::abs(row.at(2) + row.at(3) + row.at(4) - row.at(5)) <= 2);
            QVERIFY(std::abs(row.at(6) + row.at(7) + row.at(8) - 3 * row.at(9)) <= 4);
        }
    }

    void phasesWithoutFaultKeepTheirLoad_data()
    {
        QTest::addColumn<QVector<int>>("columns");
        QTest::newRow("AG") << QVector<int>{3, 4};
        QTest::newRow("BG") << QVector<int>{2, 4};
        QTest::newRow("CG") << QVector<int>{2, 3};
        QTest::newRow("AB") << QVector<int>{4, 8};
        QTest::newRow("BC") << QVector<int>{2, 6};
        QTest::newRow("CA") << QVector<int>{3, 7};
        QTest::newRow("ABG") << QVector<int>{4};
        QTest::newRow("BCG") << QVector<int>{2};
        QTest::newRow("CAG") << QVector<int>{3};
    }

    void phasesWithoutFaultKeepTheirLoad()
    {
        QFETCH(QVector<int>, columns);
        QCOMPARE(run(QStringLiteral("--noise 0 r")).exitCode, 0);
        const QVector<Row> load = data();
        const QString fault = QLatin1String(QTest::currentDataTag());
        QCOMPARE(run(QStringLiteral("--noise 0 --fault %1 r").arg(fault)).exitCode, 0);
        const QVector<Row> rows = data();
        for (int k = 400; k < 800; ++k) {
            for (const int column : columns)
                QVERIFY(std::abs(rows.at(k).at(column) - load.at(k).at(column)) <= 1);
        }
    }

    // The steepest change is that of the fault's own sine: 2835 A, 314 of them a second.
    void currentsDoNotJumpAtTheFault()
    {
        QCOMPARE(
            run(QStringLiteral("--noise 0 --fault ABC --rate 50000 --samples 19000 r")).exitCode,
            0);
        const QVector<Row> rows = data();
        const double steepest = 2835 / amperesPerCount * std::sqrt(2) * 2 * pi * 50 / 50000;
        for (int k = 1; k < rows.size(); ++k) {
            for (const int column : {2, 3, 4})
                QVERIFY2(std::abs(rows.at(k).at(column) - rows.at(k - 1).at(column)) < 2 * steepest,
                    qPrintable(QString::number(k)));
        }
    }

    void breakerInterruptsAtTheZeroOfTheCurrent()
    {
        QCOMPARE(run(QStringLiteral(
                         "--noise 0 --fault ABC --fault-at 200 --rate 20000 --samples 20000 r"))
                     .exitCode,
            0);
        const QVector<Row> rows = data();
        for (const int column : {2, 3, 4}) {
            int last = 8000; // while the breaker was closed
            for (int k = last; k < 18999; ++k)
                last = rows.at(k).at(column) == 0 ? last : k;
            QVERIFY(last >= 8100); // 405 ms: the contacts part
            QVERIFY(last <= 8300); // half a cycle later
            QVERIFY(std::abs(rows.at(last).at(column)) < 400); // of 20,000
            QVERIFY(rows.at(19100).at(column) != 0); // 955 ms: closed again
        }
        QCOMPARE(qRound(rms(rows, 6, 10000, 18000)), 11547); // the busbar keeps its voltage
    }

    void relayActsInOrder_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("normal");
        QTest::addColumn<int>("from"); // ms
        QTest::addColumn<int>("to");
        QTest::newRow("picks up") << 10 << 0 << 222 << 432;
        QTest::newRow("trips") << 11 << 0 << 350 << 450;
        QTest::newRow("breaker is open") << 12 << 0 << 415 << 960;
        QTest::newRow("breaker is not closed") << 13 << 1 << 405 << 950;
        QTest::newRow("starts to reclose") << 14 << 0 << 352 << 452;
        QTest::newRow("recloses") << 15 << 0 << 352 << 1050;
        QTest::newRow("commands the breaker to close") << 16 << 0 << 900 << 1000;
        QTest::newRow("reports success") << 17 << 0 << 1050 << 1350;
    }

    void relayActsInOrder()
    {
        QFETCH(int, column);
        QFETCH(int, normal);
        QFETCH(int, from);
        QFETCH(int, to);
        QCOMPARE(run(QStringLiteral("--fault AG --rate 1000 --samples 1600 r")).exitCode, 0);
        const QVector<Row> rows = data();
        for (int k = 0; k < rows.size(); ++k)
            QCOMPARE(rows.at(k).at(column), k >= from && k < to ? 1 - normal : normal);
    }

    // 222 ms after the start are 66.6 samples.
    void stateChangesInTheFirstSampleThatIsNotBefore()
    {
        QCOMPARE(run(QStringLiteral("--fault AG --rate 300 --samples 600 r")).exitCode, 0);
        const QVector<Row> rows = data();
        QCOMPARE(rows.at(66).mid(1, 1) + rows.at(66).mid(10, 1), Row({220000, 0}));
        QCOMPARE(rows.at(67).mid(1, 1) + rows.at(67).mid(10, 1), Row({223333, 1}));
    }

    void withoutFaultTheRelayRests()
    {
        QCOMPARE(run(QStringLiteral("r")).exitCode, 0);
        for (const Row &row : data())
            QCOMPARE(row.mid(10), Row({0, 0, 0, 1, 0, 0, 0, 0}));
    }

    void furtherChannelsRepeatAndAlternate()
    {
        QCOMPARE(
            run(QStringLiteral("--analog 17 --digital 10 --noise 0 --samples 400 r")).exitCode, 0);
        const QList<QByteArray> configuration = lines("r.cfg");
        QCOMPARE(configuration.at(1), QByteArray("27,17A,10D"));
        QVERIFY(configuration.at(10).startsWith("9,IL1 2,L1,CT core 2,A,0.0025,0,0,"));
        QVERIFY(configuration.at(18).startsWith("17,IL1 3,L1,CT core 3,A,"));
        QCOMPARE(configuration.at(28), QByteArray("10,Input 10,,,0"));
        for (const Row &row : data()) {
            QCOMPARE(row.size(), 2 + 17 + 10);
            QCOMPARE(row.at(10), row.at(2));
            QCOMPARE(row.at(18), row.at(2));
            const int millisecond = row.at(1) / 1000;
            QCOMPARE(row.at(27), millisecond / 90 % 2); // Input 9
            QCOMPARE(row.at(28), millisecond / 100 % 2); // Input 10
        }
    }

    void channelsOfOneKindMayBeMissing_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("channels");
        QTest::addColumn<QByteArray>("first");
        QTest::newRow("no digital channels") << QStringLiteral("--analog 1 --digital 0")
                                             << QByteArray("1,1A,0D") << QByteArray("1,0,1009");
        QTest::newRow("no analog channels") << QStringLiteral("--analog 0 --digital 4")
                                            << QByteArray("4,0A,4D") << QByteArray("1,0,0,0,0,1");
    }

    void channelsOfOneKindMayBeMissing()
    {
        QFETCH(QString, options);
        QFETCH(QByteArray, channels);
        QFETCH(QByteArray, first);
        QCOMPARE(run(options + QLatin1String(" --noise 0 r")).exitCode, 0);
        QCOMPARE(lines("r.cfg").at(1), channels);
        QCOMPARE(lines("r.dat").at(0), first);
    }

    void samplesAreStampedInMicroseconds()
    {
        QCOMPARE(run(QStringLiteral("--analog 0 --rate 1200 --samples 1201 r")).exitCode, 0);
        const QVector<Row> rows = data();
        QCOMPARE(rows.size(), 1201);
        QCOMPARE(rows.at(0).mid(0, 2), Row({1, 0}));
        QCOMPARE(rows.at(1).mid(0, 2), Row({2, 833}));
        QCOMPARE(rows.at(2).mid(0, 2), Row({3, 1667}));
        QCOMPARE(rows.at(1200).mid(0, 2), Row({1201, 1000000}));
        QCOMPARE(lines("r.cfg").at(12), QByteArray("1200,1201"));
    }

    void triggerIsTheFault_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("trigger");
        QTest::newRow("a fifth of a second into the recording")
            << QString() << QByteArray("14/03/2024,09:26:53.700000");
        QTest::newRow("an eighth of a short recording")
            << QStringLiteral("--samples 1600") << QByteArray("14/03/2024,09:26:53.600000");
        QTest::newRow("at its start in the shortest one")
            << QStringLiteral("--samples 1") << QByteArray("14/03/2024,09:26:53.500000");
        QTest::newRow("where it is asked for")
            << QStringLiteral("--fault-at 1234") << QByteArray("14/03/2024,09:26:54.734000");
        QTest::newRow("hours later in a slow recording")
            << QStringLiteral("--rate 1 --samples 9999 --fault-at 9000000")
            << QByteArray("14/03/2024,11:56:53.500000");
    }

    void triggerIsTheFault()
    {
        QFETCH(QString, options);
        QFETCH(QByteArray, trigger);
        QCOMPARE(run(options + QLatin1String(" --fault CA r")).exitCode, 0);
        const QList<QByteArray> configuration = lines("r.cfg");
        QCOMPARE(configuration.at(21), QByteArray("14/03/2024,09:26:53.500000"));
        QCOMPARE(configuration.at(22), trigger);
    }

    void seedChangesTheNoiseAlone()
    {
        QCOMPARE(run(QStringLiteral("--seed 7 --noise 5 r")).exitCode, 0);
        const QByteArray bytes = content(path("r.dat"));
        const QVector<Row> rows = data();
        QCOMPARE(run(QStringLiteral("--seed 7 --noise 5 r")).exitCode, 0);
        QVERIFY(content(path("r.dat")) == bytes);
        QCOMPARE(run(QStringLiteral("--seed 8 --noise 5 r")).exitCode, 0);
        QVERIFY(content(path("r.dat")) != bytes);
        QCOMPARE(run(QStringLiteral("--noise 0 r")).exitCode, 0);
        const QVector<Row> clean = data();
        int least = 0;
        int most = 0;
        for (int k = 0; k < rows.size(); ++k) {
            least = std::min(least, rows.at(k).at(2) - clean.at(k).at(2));
            most = std::max(most, rows.at(k).at(2) - clean.at(k).at(2));
        }
        QCOMPARE(least, -5);
        QCOMPARE(most, 5);
    }

    void samplesStayInTheRangeOfTheConverter()
    {
        QCOMPARE(run(QStringLiteral("--noise 10000 --fault AG r")).exitCode, 0);
        int most = 0;
        for (const Row &row : data())
            most = std::max(most, std::abs(*std::max_element(row.begin() + 2, row.end())));
        QCOMPARE(most, 32767);
    }

    void namesAreWritten()
    {
        QCOMPARE(run(QStringLiteral("--station Niemi --device K\u00e4rki r")).exitCode, 0);
        QCOMPARE(lines("r.cfg").at(0), QByteArray("Niemi,K\xc3\xa4rki,1999"));
    }

    void saysWhatIsWrong_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("error");
        const auto row = [](const char *name, const char *options, int exitCode,
                             const char *error) {
            QTest::newRow(name) << QString::fromLatin1(options) << exitCode << QByteArray(error);
        };
        row("no path", "--rate 50", 2, "there is no path; see --help");
        row("two paths", "r s", 2, "there are two paths; see --help");
        row("unknown option", "--colour 1 r", 2, "there is no option --colour; see --help");
        row("single hyphen", "-n 1 r", 2, "there is no option -n; see --help");
        row("option without value", "r --rate", 2, "--rate takes a value; see --help");
        row("number below the range", "--rate 0 r", 2,
            "--rate takes a number from 1 to 1000000; see --help");
        row("number above the range", "--frequency 1001 r", 2,
            "--frequency takes a number from 1 to 1000; see --help");
        row("number too long for a number", "--seed 99999999999999999999 r", 2,
            "--seed takes a number from 0 to 4294967295; see --help");
        row("letters behind a number", "--samples 10k r", 2,
            "--samples takes a number from 1 to 2000000000; see --help");
        row("unknown fault", "--fault AX r", 2, "--fault does not know AX; see --help");
        row("comma in a name", "--station a,b r", 2,
            "--station takes a name without commas and line ends; see --help");
        row("line end in a name", "--device a\nb r", 2,
            "--device takes a name without commas and line ends; see --help");
        row("no channel", "--analog 0 --digital 0 r", 1, "a recording needs a channel");
        row("stamps longer than the format's", "--rate 1 --samples 10000 r", 1,
            "a recording lasts 9999 s at the most");
        row("fault behind the end", "--fault-at 1600 r", 1,
            "the fault lies behind the end of the recording");
        row("folder that is not there", "nowhere/r", 1, "cannot write nowhere/r.cfg");
    }

    void saysWhatIsWrong()
    {
        QFETCH(QString, options);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, error);
        const Outcome outcome = run(options);
        QCOMPARE(outcome.errors, "makerecording: " + error + '\n');
        QCOMPARE(outcome.exitCode, exitCode);
        QVERIFY(QDir(m_folder->path()).isEmpty());
    }

    void fullDiskIsReported()
    {
        if (!QFile::link(QStringLiteral("/dev/full"), path("r.dat"))
            || !QFile::exists(path("r.dat")))
            QSKIP("there is no device that is always full");
        const Outcome outcome = run(QStringLiteral("r"));
        QCOMPARE(outcome.errors, QByteArray("makerecording: cannot write r.dat\n"));
        QCOMPARE(outcome.exitCode, 1);
    }

    void helpNamesEveryOption()
    {
        const Outcome outcome = run(QStringLiteral("--rate --help"));
        QCOMPARE(outcome.exitCode, 0);
        for (const char *option : {"--rate", "--frequency", "--samples", "--analog", "--digital",
                 "--noise", "--seed", "--fault", "--fault-at", "--station", "--device", "--help"})
            QVERIFY2(outcome.output.contains("\n  " + QByteArray(option) + ' '), option);
        QVERIFY(outcome.output.contains("none AG BG CG AB BC CA ABG BCG CAG ABC ABCG (none)"));
    }
};

QTEST_GUILESS_MAIN(TestMakeRecording)
#include "tst_makerecording.moc"
