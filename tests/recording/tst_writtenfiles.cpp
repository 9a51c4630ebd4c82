#include "cfgproperties.h"
#include "recordingwriter.h"

#include "writtenpair.h"

#include <QtTest>

#include <limits>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

Q_DECLARE_METATYPE(ConfigurationText)

namespace {

const double infinite = std::numeric_limits<double>::infinity();

} // namespace

class TestWrittenFiles : public QObject {
    Q_OBJECT

private slots:
    void targetNames_data();
    void targetNames();
    void whatWasThereIsReplaced();
    void filesThatCannotBeOpenedAreSilent_data();
    void filesThatCannotBeOpenedAreSilent();
    void aFileThatCannotBeWrittenInFullIsTold_data();
    void aFileThatCannotBeWrittenInFullIsTold();
    void aCopyReadsAsTheOriginalAndCopiesToTheSameBytes_data();
    void aCopyReadsAsTheOriginalAndCopiesToTheSameBytes();
};

void TestWrittenFiles::targetNames_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("files");
    const auto row = [](const char *name, const char *target, const char *files) {
        QTest::newRow(name) << QString::fromLatin1(target)
                            << QString::fromLatin1(files).split(QLatin1Char(' '));
    };
    row("no extension", "out", "out.cfg out.dat");
    row("the extension", "out.cfg", "out.cfg out.dat");
    row("the extension in capitals", "out.CFG", "out.CFG.cfg out.CFG.dat");
    row("the extension of the data", "out.dat", "out.dat.cfg out.dat.dat");
    row("the extension twice", "out.cfg.cfg", "out.cfg.cfg out.cfg.dat");
    row("the extension inside", "out.cfg.old", "out.cfg.old.cfg out.cfg.old.dat");
    row("a point at the end", "out.", "out..cfg out..dat");
}

void TestWrittenFiles::targetNames()
{
    QFETCH(QString, target);
    QFETCH(QStringList, files);
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const RecordingWriter writer(recording, {}, {});
    const QTemporaryDir folder;
    writer.write(folder.filePath(target), 0, 3);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files, QDir::Name), files);
    const QTemporaryDir other;
    writer.writeAsPrimary(other.filePath(target));
    QCOMPARE(QDir(other.path()).entryList(QDir::Files, QDir::Name), files);
}

void TestWrittenFiles::whatWasThereIsReplaced()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, configurationText().text(), dataUpTo(3));
    QVERIFY(writeTextFile(folder.path("out.cfg"), QByteArray(100000, 'x')));
    QVERIFY(writeTextFile(folder.path("out.dat"), QByteArray(100000, 'x')));
    const auto outcome = RecordingWriter(recording, {}, {}).write(folder.path("out"), 1, 1);
    QVERIFY(!outcome.hasFailed());
    QCOMPARE(contents(folder.path("out.dat")), QByteArray("2,0,1,-1,1"));
    QVERIFY(contents(folder.path("out.cfg")).startsWith("Harju,"));
    QVERIFY(contents(folder.path("out.cfg")).endsWith("\nASCII\n1"));
}

void TestWrittenFiles::filesThatCannotBeOpenedAreSilent_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("hasConfiguration");
    QTest::addColumn<bool>("hasData");
    QTest::newRow("a folder that is not there") << QStringLiteral("missing/out") << false << false;
    QTest::newRow("a folder in the configuration's place")
        << QStringLiteral("cfg-taken") << false << true;
    QTest::newRow("a folder in the data's place") << QStringLiteral("dat-taken") << true << false;
    QTest::newRow("a folder without write permission")
        << QStringLiteral("locked/out") << false << false;
}

void TestWrittenFiles::filesThatCannotBeOpenedAreSilent()
{
    QFETCH(QString, target);
    QFETCH(bool, hasConfiguration);
    QFETCH(bool, hasData);
    const QTemporaryDir folder;
    const QDir dir(folder.path());
    QVERIFY(dir.mkdir(QStringLiteral("cfg-taken.cfg")));
    QVERIFY(dir.mkdir(QStringLiteral("dat-taken.dat")));
    QVERIFY(dir.mkdir(QStringLiteral("locked")));
    const QString locked = folder.filePath(QStringLiteral("locked"));
    QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::ExeOwner));
    if (target.startsWith(QLatin1String("locked")) && QFileInfo(locked).isWritable())
        QSKIP("This user may write everywhere.");
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const auto outcome = RecordingWriter(recording, {}, {}).write(folder.filePath(target), 0, 3);
    QVERIFY2(!outcome.hasFailed(), qPrintable(outcome.error));
    QCOMPARE(QFileInfo(folder.filePath(target + QLatin1String(".cfg"))).isFile(), hasConfiguration);
    QCOMPARE(QFileInfo(folder.filePath(target + QLatin1String(".dat"))).isFile(), hasData);
}

void TestWrittenFiles::aFileThatCannotBeWrittenInFullIsTold_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("room"); // bytes a file may have
    QTest::addColumn<QString>("failed");
    QTest::newRow("the configuration does not fit") << 3 << 50 << QStringLiteral("out.cfg");
    QTest::newRow("the last bytes of the data do not fit")
        << 300 << 1000 << QStringLiteral("out.dat");
    QTest::newRow("data of several blocks do not fit")
        << 60000 << 700000 << QStringLiteral("out.dat");
}

void TestWrittenFiles::aFileThatCannotBeWrittenInFullIsTold()
{
#ifdef Q_OS_UNIX
    QFETCH(int, samples);
    QFETCH(int, room);
    QFETCH(QString, failed);
    const QTemporaryDir folder;
    const QString configuration = folder.filePath(QStringLiteral("out.cfg"));
    const QString data = folder.filePath(QStringLiteral("out.dat"));
    QVERIFY(writeTextFile(configuration, "as before"));
    QVERIFY(writeTextFile(data, "as before"));
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(samples));

    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limited{static_cast<rlim_t>(room), before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limited), 0);
    const RecordingWriter writer(recording, {}, {});
    const auto outcome = writer.write(configuration, -infinite, infinite);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    QVERIFY(outcome.hasFailed());
    QCOMPARE(outcome.failedFile, folder.filePath(failed));
    QVERIFY(!outcome.error.isEmpty());
    // What was there stays, both of it, and nothing half-written is left beside it.
    QCOMPARE(contents(configuration), QByteArray("as before"));
    QCOMPARE(contents(data), QByteArray("as before"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
#else
    QSKIP("Only where a process can limit its own files.");
#endif
}

void TestWrittenFiles::aCopyReadsAsTheOriginalAndCopiesToTheSameBytes_data()
{
    QTest::addColumn<ConfigurationText>("text");
    QTest::addColumn<int>("last");
    ConfigurationText text = configurationText();
    QTest::newRow("a recording of both kinds") << text << 400;
    text.start = "15/03/2024,10:00:00.123456";
    text.rates = QByteArrayList{"1000,10", "7680.25,401"};
    text.analog[0] = "1,IL1,A,Bay,A,3.2e-7,-1.25e9,3.25,-32767,32767,400,1,S";
    text.fileType = "BINARY";
    text.timeMultiplier = "0.001";
    QTest::newRow("numbers with exponents, two rates") << text << 400;
    text.analog[1] = "2,UL1,B,,V,2,0,0,-100,100,20000,100,s";
    QTest::newRow("a flag that is none") << text << 400;
    text.digital.clear();
    QTest::newRow("no digital channels") << text << 400;
    QTest::newRow("one sample") << text << 0;
    QTest::newRow("several blocks of data") << configurationText() << 60000;
}

void TestWrittenFiles::aCopyReadsAsTheOriginalAndCopiesToTheSameBytes()
{
    QFETCH(ConfigurationText, text);
    QFETCH(int, last);
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), dataUpTo(last));
    const Written first = written(recording, -infinite, infinite);
    QVERIFY(!first.outcome.hasFailed());

    CFGProperties copy;
    folder.load(copy, first.configuration + '\n', first.data, "first");
    QCOMPARE(copy.loaded, 1);
    QCOMPARE(copy.stationName, recording.stationName);
    QCOMPARE(copy.recordingDeviceId, recording.recordingDeviceId);
    QCOMPARE(copy.revisionYear, recording.revisionYear);
    QCOMPARE(copy.analogIds, recording.analogIds);
    QCOMPARE(copy.analogA, recording.analogA);
    QCOMPARE(copy.analogB, recording.analogB);
    QCOMPARE(copy.analogSkews, recording.analogSkews);
    QCOMPARE(copy.analogMins, recording.analogMins);
    QCOMPARE(copy.psFlags, recording.psFlags);
    QCOMPARE(copy.toPrimary, recording.toPrimary);
    QCOMPARE(copy.digitalIds, recording.digitalIds);
    QCOMPARE(copy.digitalNormalStates, recording.digitalNormalStates);
    QCOMPARE(copy.sampleRate, recording.sampleRate);
    QCOMPARE(copy.lineFrequency, recording.lineFrequency);
    QCOMPARE(copy.lastSampleNumber, last + 1);
    QCOMPARE(copy.startTime, recording.startTime);
    QCOMPARE(copy.fileType, recording.fileType);
    QCOMPARE(copy.timeMultiplier, recording.timeMultiplier);
    QCOMPARE(copy.sampleTimes, recording.sampleTimes);
    QCOMPARE(copy.analogChannels.size(), recording.analogChannels.size());
    for (int k = 0; k < copy.analogChannels.size(); ++k) {
        QCOMPARE(copy.analogChannels.at(k)->rawValues, recording.analogChannels.at(k)->rawValues);
        QCOMPARE(copy.analogChannels.at(k)->values, recording.analogChannels.at(k)->values);
    }
    QCOMPARE(copy.digitalChannels.size(), recording.digitalChannels.size());
    for (int j = 0; j < copy.digitalChannels.size(); ++j)
        QCOMPARE(copy.digitalChannels.at(j)->values, recording.digitalChannels.at(j)->values);

    // The copy lacks the last line end, as every copy does, and nothing is lost by that.
    CFGProperties again;
    folder.load(again, first.configuration, first.data, "again");
    const Written second = written(again, -infinite, infinite);
    QCOMPARE(second.configuration, first.configuration);
    QVERIFY(second.data == first.data);
}

QTEST_GUILESS_MAIN(TestWrittenFiles)
#include "tst_writtenfiles.moc"
