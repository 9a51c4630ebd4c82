// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"

#include "recordingbuilder.h"

#include <QSignalSpy>
#include <QThread>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

const float infiniteFloat = std::numeric_limits<float>::infinity();

QByteArray twoChannels()
{
    ConfigurationText text;
    text.analog = QByteArrayList{analogLine(1), analogLine(2)};
    text.digital = QByteArrayList{digitalLine(1), digitalLine(2)};
    return text.text();
}

const QByteArray twoSamples = "1,0,3,-4,0,1\n2,1000,-5,6,0,0\n";

} // namespace

class TestCfgProperties : public QObject {
    Q_OBJECT

private slots:
    void aNewRecordingIsEmpty();
    void newRecordsStartAsTheirTablesSay();
    void slotsKeepTheirOrder();
    void clearingKeepsPathResultAndTimeMultiplier();
    void aPairLoads();
    void loadingEndsWithOneSignal_data();
    void loadingEndsWithOneSignal();
    void aFailedLoadLeavesTheRecordingCleared();
    void dataWithoutConfigurationLoadsTimesAlone();
    void capitalTxtIsAConfiguration();
    void theDataFileIsNamedAfterTheConfiguration_data();
    void theDataFileIsNamedAfterTheConfiguration();
    void ofSeveralDataFilesTheNearestIsRead_data();
    void ofSeveralDataFilesTheNearestIsRead();
    void analogChannelsAreNumberedFromOneAndWrapOnce();
    void digitalChannelsAreNumberedFromOne();
    void extremesOfAllChannels();
    void extremesOfPositiveValuesIncludeZero();
    void valuesAreScaledAndWidenTheExtremes_data();
    void valuesAreScaledAndWidenTheExtremes();
    void thePeakIsNotBelowZero_data();
    void thePeakIsNotBelowZero();
    void aStateThatIsNotZeroIsRememberedForGood();
    void recordsOutliveReloadAndRecording();
    void loadingRunsOnAnotherThread();
#ifdef Q_OS_UNIX
    void pipesAreNotWaitedFor();
#endif
};

void TestCfgProperties::aNewRecordingIsEmpty()
{
    const CFGProperties recording;
    QVERIFY(recording.filePath.isEmpty());
    QCOMPARE(recording.loaded, 0);
    QCOMPARE(recording.cfgLineNumber, 0);
    QCOMPARE(recording.analogChannelCount, 0);
    QCOMPARE(recording.digitalChannelCount, 0);
    QCOMPARE(recording.maxValue, 0.0F);
    QCOMPARE(recording.minValue, 0.0F);
    QCOMPARE(recording.timeMultiplier, 1.0);
    QVERIFY(recording.stationName.isEmpty());
    QVERIFY(recording.analogIds.isEmpty());
    QVERIFY(recording.sampleTimes.isEmpty());
    QVERIFY(recording.analogChannels.isEmpty());
    QVERIFY(recording.digitalChannels.isEmpty());
    QVERIFY(!recording.parent());
}

void TestCfgProperties::newRecordsStartAsTheirTablesSay()
{
    const AnalogChannel analog;
    QCOMPARE(analog.index, 0);
    QVERIFY(analog.id.isEmpty());
    QCOMPARE(analog.maxValue, 0.0F);
    QCOMPARE(analog.minValue, 0.0F);
    QCOMPARE(analog.a, 0.0F);
    QCOMPARE(analog.maxReal, 0.0F);
    QCOMPARE(analog.maxImaginary, 0.0F);
    QVERIFY(analog.maxMagnitude == 0.000001F);
    const DigitalChannel digital;
    QCOMPARE(digital.index, 0);
    QVERIFY(digital.allZero);
}

void TestCfgProperties::slotsKeepTheirOrder()
{
    const QMetaObject &meta = CFGProperties::staticMetaObject;
    QByteArrayList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods += meta.method(i).methodSignature();
    const QByteArrayList expected{"initFinished()", "setChannelsPoints()", "readConfgFile()",
        "readTxtFile()", "init()", "fftTransform()", "clearConfig()"};
    QCOMPARE(methods, expected);
}

void TestCfgProperties::clearingKeepsPathResultAndTimeMultiplier()
{
    const RecordingFolder folder;
    CFGProperties recording;
    QByteArray configuration = twoChannels();
    configuration.replace("ASCII\n1\n", "ASCII\n2.5\n");
    folder.load(recording, configuration, twoSamples);
    recording.updateMaxValue();
    recording.updateMinValue();
    QCOMPARE(recording.maxValue, 6.0F);

    const QString path = recording.filePath;
    recording.clearConfig();

    QCOMPARE(recording.filePath, path);
    QCOMPARE(recording.loaded, 1);
    QCOMPARE(recording.timeMultiplier, 2.5);
    QCOMPARE(recording.cfgLineNumber, 0);
    QCOMPARE(recording.sampleCount, 0);
    QCOMPARE(recording.totalChannelCount, 0);
    QCOMPARE(recording.analogChannelCount, 0);
    QCOMPARE(recording.digitalChannelCount, 0);
    QCOMPARE(recording.lineFrequency, 0.0);
    QCOMPARE(recording.rateCount, 0);
    QCOMPARE(recording.sampleRate, 0.0);
    QCOMPARE(recording.lastSampleNumber, 0);
    QCOMPARE(recording.durationMs, qint64(0));
    QCOMPARE(recording.samplesPerCycle, 0);
    QCOMPARE(recording.triggerOffsetMs, 0);
    QCOMPARE(recording.maxValue, 0.0F);
    QCOMPARE(recording.minValue, 0.0F);
    for (const QString &text : {recording.stationName, recording.recordingDeviceId,
             recording.revisionYear, recording.startDate, recording.startTime,
             recording.triggerDate, recording.triggerTime, recording.fileType})
        QVERIFY2(text.isEmpty(), qPrintable(text));
    for (const QStringList &texts :
        {recording.analogIds, recording.analogPhases, recording.analogCircuits,
            recording.analogUnits, recording.psFlags, recording.digitalIds, recording.digitalPhases,
            recording.digitalCircuits, recording.digitalNormalStates})
        QVERIFY2(texts.isEmpty(), qPrintable(texts.join(QLatin1Char(' '))));
    for (const QList<double> &numbers : {recording.analogSkews, recording.toPrimary,
             recording.primaryValues, recording.toSecondary, recording.secondaryValues})
        QVERIFY(numbers.isEmpty());
    for (const QList<int> &numbers : {recording.analogIndexes, recording.analogMins,
             recording.analogMaxs, recording.digitalIndexes})
        QVERIFY(numbers.isEmpty());
    QVERIFY(recording.analogA.isEmpty());
    QVERIFY(recording.analogB.isEmpty());
    QVERIFY(recording.sampleTimes.isEmpty());
    QVERIFY(recording.analogChannels.isEmpty());
    QVERIFY(recording.digitalChannels.isEmpty());
}

void TestCfgProperties::aPairLoads()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, twoChannels(), twoSamples);
    QCOMPARE(recording.loaded, 1);
    QCOMPARE(recording.sampleCount, 2);
    QCOMPARE(recording.sampleTimes, QVector<double>({0.0, 1.0}));
    QCOMPARE(recording.analogChannels.size(), 2);
    QCOMPARE(recording.analogChannels.at(1)->values, QVector<float>({-4.0F, 6.0F}));
    QCOMPARE(recording.digitalChannels.size(), 2);
    QCOMPARE(recording.digitalChannels.at(1)->values, QVector<int>({1, 0}));
    // The phasors come with the load.
    QCOMPARE(recording.analogChannels.at(0)->fftMagnitudes.size(), 2);
    QCOMPARE(recording.analogChannels.at(1)->fftAngles.size(), 2);
}

void TestCfgProperties::loadingEndsWithOneSignal_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("loaded");
    QTest::newRow("a pair") << QStringLiteral("good.cfg") << 1;
    QTest::newRow("a configuration without data") << QStringLiteral("alone.cfg") << 0;
    QTest::newRow("no file at all") << QStringLiteral("missing.cfg") << 0;
    QTest::newRow("a text export") << QStringLiteral("export.txt") << 1;
    QTest::newRow("no text export at all") << QStringLiteral("missing.txt") << 1;
}

void TestCfgProperties::loadingEndsWithOneSignal()
{
    QFETCH(QString, name);
    QFETCH(int, loaded);
    const RecordingFolder folder;
    QVERIFY(writeTextFile(folder.path("good.cfg"), twoChannels()));
    QVERIFY(writeTextFile(folder.path("good.dat"), twoSamples));
    QVERIFY(writeTextFile(folder.path("alone.cfg"), twoChannels()));
    QVERIFY(writeTextFile(folder.path("export.txt"), "#Ua[kV]\n01/02/2020-10:00:00:000,1\n"));
    CFGProperties recording;
    recording.loaded = -1;
    recording.filePath = folder.path(qPrintable(name));
    const QSignalSpy finished(&recording, &CFGProperties::initFinished);
    const QSignalSpy points(&recording, &CFGProperties::setChannelsPoints);
    recording.init();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(points.count(), 0);
    QCOMPARE(recording.loaded, loaded);
}

void TestCfgProperties::aFailedLoadLeavesTheRecordingCleared()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, twoChannels(), twoSamples);
    folder.load(recording, twoChannels(), QByteArray());
    QCOMPARE(recording.loaded, 0);
    QCOMPARE(recording.sampleCount, 0);
    QCOMPARE(recording.cfgLineNumber, 0);
    QVERIFY(recording.stationName.isEmpty());
    QVERIFY(recording.analogIds.isEmpty());
    QVERIFY(recording.sampleTimes.isEmpty());
    QVERIFY(recording.analogChannels.isEmpty());
    QVERIFY(recording.digitalChannels.isEmpty());
}

void TestCfgProperties::dataWithoutConfigurationLoadsTimesAlone()
{
    const RecordingFolder folder;
    QVERIFY(writeTextFile(folder.path("rec.dat"), twoSamples));
    CFGProperties recording;
    recording.filePath = folder.path("rec.cfg");
    QTest::ignoreMessage(QtDebugMsg, "CANNOT OPEN CFG FILE");
    recording.init();
    QCOMPARE(recording.loaded, 1);
    QCOMPARE(recording.sampleCount, 2);
    QCOMPARE(recording.sampleTimes, QVector<double>({0.0, 1.0}));
    QVERIFY(recording.analogChannels.isEmpty());
    QVERIFY(recording.digitalChannels.isEmpty());
}

void TestCfgProperties::capitalTxtIsAConfiguration()
{
    const RecordingFolder folder;
    const QString path = folder.path("export.TXT");
    QVERIFY(writeTextFile(path, "#Ua[kV],Ub[kV]\n01/02/2020-10:00:00:000,1,2\n"));
    CFGProperties recording;
    recording.filePath = path;
    recording.init();
    QCOMPARE(recording.stationName, QStringLiteral("#Ua[kV]"));
    QVERIFY(recording.analogChannels.isEmpty());
    // Nothing in the path is replaced, so the file serves as its own data.
    QCOMPARE(recording.filePath, path);
    QCOMPARE(recording.sampleCount, 2);
}

void TestCfgProperties::theDataFileIsNamedAfterTheConfiguration_data()
{
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("pathAfterwards");
    const auto row = [](const char *name, const char *configuration, const char *data,
                         const char *pathAfterwards) {
        QTest::newRow(name) << QString::fromLatin1(configuration) << QString::fromLatin1(data)
                            << QString::fromLatin1(pathAfterwards);
    };
    row("in lower case", "rec.cfg", "rec.dat", "rec.dat");
    row("a capital extension becomes a small one", "REC.CFG", "REC.dat", "REC.dat");
    row("every place of the path is replaced", "in.cfg/rec.cfg", "in.dat/rec.dat",
        "in.dat/rec.dat");
    row("also in the middle of the name", "a.cfg.old.cfg", "a.dat.old.dat", "a.dat.old.dat");
    row("data in another case are found", "REC.CFG", "REC.DAT", "REC.dat");
    row("data under another capital letter are found", "rec.cfg", "Rec.Dat", "rec.dat");
    row("hidden data are found", ".rec.CFG", ".REC.DAT", ".rec.dat");
}

void TestCfgProperties::theDataFileIsNamedAfterTheConfiguration()
{
    QFETCH(QString, configuration);
    QFETCH(QString, data);
    QFETCH(QString, pathAfterwards);
    const RecordingFolder folder;
    QVERIFY(QDir().mkpath(folder.path("in.cfg")));
    QVERIFY(QDir().mkpath(folder.path("in.dat")));
    QVERIFY(folder.write(configuration, twoChannels()));
    QVERIFY(folder.write(data, twoSamples));
    CFGProperties recording;
    folder.loadFile(recording, configuration);
    QCOMPARE(recording.loaded, 1);
    QCOMPARE(recording.sampleCount, 2);
    QCOMPARE(recording.filePath, folder.path(pathAfterwards));
}

void TestCfgProperties::ofSeveralDataFilesTheNearestIsRead_data()
{
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QStringList>("others"); // of one sample
    QTest::addColumn<QString>("data"); // of two samples
    const auto row
        = [](const char *name, const char *configuration, const char *others, const char *data) {
              QTest::newRow(name) << QString::fromLatin1(configuration)
                                  << QString::fromLatin1(others).split(QLatin1Char(' '))
                                  << QString::fromLatin1(data);
          };
    row("capitals among small letters", "REC.CFG", "Rec.DAT rec.DAT rec.dat", "REC.DAT");
    row("small letters among capitals", "rec.CFG", "REC.DAT Rec.DAT REC.dat", "rec.DAT");
    row("mixed letters", "Rec.Cfg", "REC.DAT rec.DAT rEC.dat", "Rec.Dat");
    row("points in the name", "A.b.CFG", "A.B.DAT a.b.dat", "A.b.Dat");
    row("the very name before all", "REC.CFG", "REC.DAT rec.dat", "REC.dat");
}

void TestCfgProperties::ofSeveralDataFilesTheNearestIsRead()
{
    QFETCH(QString, configuration);
    QFETCH(QStringList, others);
    QFETCH(QString, data);
    const RecordingFolder folder;
    QVERIFY(folder.write(configuration, twoChannels()));
    QVERIFY(folder.write(data, twoSamples));
    if (QFileInfo::exists(folder.path(data.toLower() == data ? data.toUpper() : data.toLower())))
        QSKIP("Names that differ in case alone are one here.");
    for (const QString &other : others)
        QVERIFY(folder.write(other, "1,0,9,9,0,0\n"));
    CFGProperties recording;
    folder.loadFile(recording, configuration);
    QCOMPARE(recording.sampleCount, 2);
}

void TestCfgProperties::analogChannelsAreNumberedFromOneAndWrapOnce()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, twoChannels(), twoSamples);
    AnalogChannel *const first = recording.analogChannels.at(0);
    AnalogChannel *const second = recording.analogChannels.at(1);
    QCOMPARE(recording.analogChannel(1), first);
    QCOMPARE(recording.analogChannel(2), second);
    QCOMPARE(recording.analogChannel(3), first);
    QCOMPARE(recording.analogChannel(4), second);
    QVERIFY(!recording.analogChannel(5));
    QVERIFY(!recording.analogChannel(0));
    QVERIFY(!recording.analogChannel(-1));
    QVERIFY(!CFGProperties().analogChannel(1));
}

void TestCfgProperties::digitalChannelsAreNumberedFromOne()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, twoChannels(), twoSamples);
    QCOMPARE(recording.digitalChannel(1), recording.digitalChannels.at(0));
    QCOMPARE(recording.digitalChannel(2), recording.digitalChannels.at(1));
    QVERIFY(!recording.digitalChannel(3));
    QVERIFY(!recording.digitalChannel(0));
}

void TestCfgProperties::extremesOfAllChannels()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, twoChannels(), twoSamples);
    QCOMPARE(recording.updateMaxValue(), 6.0F);
    QCOMPARE(recording.maxValue, 6.0F);
    QCOMPARE(recording.updateMinValue(), -5.0F);
    QCOMPARE(recording.minValue, -5.0F);

    CFGProperties empty;
    empty.maxValue = 7;
    empty.minValue = -7;
    QCOMPARE(empty.updateMaxValue(), 0.0F);
    QCOMPARE(empty.maxValue, 0.0F);
    QCOMPARE(empty.updateMinValue(), 0.0F);
    QCOMPARE(empty.minValue, 0.0F);
}

void TestCfgProperties::extremesOfPositiveValuesIncludeZero()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, twoChannels(), "1,0,3,4,0,0\n2,1000,5,6,0,0\n");
    QCOMPARE(recording.analogChannels.at(0)->minValue, 0.0F);
    QCOMPARE(recording.analogChannels.at(1)->minValue, 0.0F);
    QCOMPARE(recording.updateMinValue(), 0.0F);
    QCOMPARE(recording.updateMaxValue(), 6.0F);
}

void TestCfgProperties::valuesAreScaledAndWidenTheExtremes_data()
{
    QTest::addColumn<QVector<float>>("raw");
    QTest::addColumn<float>("a");
    QTest::addColumn<float>("b");
    QTest::addColumn<QVector<float>>("values");
    QTest::addColumn<float>("minimum");
    QTest::addColumn<float>("maximum");
    using Values = QVector<float>;
    const float notANumber = std::numeric_limits<float>::quiet_NaN();

    QTest::newRow("a x + b") << Values{10} << 2.0F << 1.0F << Values{21} << 0.0F << 21.0F;
    QTest::newRow("both sides of 0")
        << Values{-1, 3, 2} << 2.0F << 0.0F << Values{-2, 6, 4} << -2.0F << 6.0F;
    QTest::newRow("all negative") << Values{-1, -3} << 1.0F << 0.0F << Values{-1, -3} << -3.0F
                                  << 0.0F;
    // 3 x 13421773 x 2^-27 less 40265320 x 2^-27; in single precision the two cancel.
    QTest::newRow("multiplied in double")
        << Values{3} << 0.1F << -0.3F << Values{-0x1p-27F} << -0x1p-27F << 0.0F;
    // In single precision the product would overflow before b brings it back.
    QTest::newRow("a product beyond a float comes back")
        << Values{0x1p126F} << 4.0F << -0x1p127F << Values{0x1p127F} << 0.0F << 0x1p127F;
    QTest::newRow("beyond a float is infinite")
        << Values{3e38F, -3e38F} << 10.0F << 0.0F << Values{infiniteFloat, -infiniteFloat}
        << -infiniteFloat << infiniteFloat;
    QTest::newRow("what is no number widens nothing")
        << Values{notANumber} << 1.0F << 0.0F << Values{notANumber} << 0.0F << 0.0F;
}

void TestCfgProperties::valuesAreScaledAndWidenTheExtremes()
{
    QFETCH(QVector<float>, raw);
    QFETCH(float, a);
    QFETCH(float, b);
    QFETCH(QVector<float>, values);
    QFETCH(float, minimum);
    QFETCH(float, maximum);
    AnalogChannel channel;
    for (const float x : qAsConst(raw))
        channel.appendValue(x, a, b);
    QCOMPARE(channel.values.size(), values.size());
    for (int i = 0; i < values.size(); ++i) {
        const bool isSame = channel.values.at(i) == values.at(i)
            || (std::isnan(channel.values.at(i)) && std::isnan(values.at(i)));
        QVERIFY2(isSame, qPrintable(QString::number(static_cast<double>(channel.values.at(i)))));
    }
    QVERIFY(channel.minValue == minimum);
    QVERIFY(channel.maxValue == maximum);
}

void TestCfgProperties::thePeakIsNotBelowZero_data()
{
    QTest::addColumn<QVector<float>>("values");
    QTest::addColumn<float>("peak");
    QTest::newRow("no values") << QVector<float>() << 0.0F;
    QTest::newRow("all negative") << QVector<float>{-3, -1} << 0.0F;
    QTest::newRow("the largest one") << QVector<float>{-3, 7, 5} << 7.0F;
}

void TestCfgProperties::thePeakIsNotBelowZero()
{
    QFETCH(QVector<float>, values);
    QFETCH(float, peak);
    AnalogChannel channel;
    channel.values = values;
    QCOMPARE(channel.peakValue(), peak);
}

void TestCfgProperties::aStateThatIsNotZeroIsRememberedForGood()
{
    DigitalChannel channel;
    channel.appendValue(0);
    channel.appendTime(1.5);
    QVERIFY(channel.allZero);
    channel.appendValue(1);
    QVERIFY(!channel.allZero);
    channel.appendValue(0);
    QVERIFY(!channel.allZero);
    QCOMPARE(channel.values, QVector<int>({0, 1, 0}));
    QCOMPARE(channel.times, QVector<double>({1.5}));
}

void TestCfgProperties::recordsOutliveReloadAndRecording()
{
    const RecordingFolder folder;
    auto recording = std::make_unique<CFGProperties>();
    folder.load(*recording, twoChannels(), twoSamples);
    const AnalogChannel *const analog = recording->analogChannels.at(0);
    const DigitalChannel *const digital = recording->digitalChannels.at(1);
    for (int i = 0; i < 3; ++i)
        folder.load(*recording, twoChannels(), "1,0,99,99,1,1\n", "other");
    QVERIFY(recording->analogChannels.at(0) != analog);
    recording.reset();
    QCOMPARE(analog->id, QStringLiteral("IL1"));
    QCOMPARE(analog->values, QVector<float>({3.0F, -5.0F}));
    QCOMPARE(analog->times, QVector<double>({0.0, 1.0}));
    QCOMPARE(digital->id, QStringLiteral("DI2"));
    QCOMPARE(digital->values, QVector<int>({1, 0}));
}

void TestCfgProperties::loadingRunsOnAnotherThread()
{
    const RecordingFolder folder;
    QVERIFY(writeTextFile(folder.path("rec.cfg"), twoChannels()));
    QVERIFY(writeTextFile(folder.path("rec.dat"), twoSamples));
    QThread thread;
    QPointer<CFGProperties> recording = new CFGProperties;
    recording->moveToThread(&thread);
    connect(&thread, &QThread::finished, recording.data(), &QObject::deleteLater);
    thread.start();
    QThread *loader = nullptr;
    connect(
        recording.data(), &CFGProperties::initFinished, recording.data(),
        [&loader] { loader = QThread::currentThread(); }, Qt::DirectConnection);

    for (int i = 0; i < 2; ++i) {
        recording->filePath = folder.path("rec.cfg");
        QEventLoop loop;
        connect(recording.data(), &CFGProperties::initFinished, &loop, &QEventLoop::quit);
        QMetaObject::invokeMethod(recording.data(), &CFGProperties::init, Qt::QueuedConnection);
        QTimer::singleShot(10000, &loop, [&loop] { loop.exit(1); });
        QCOMPARE(loop.exec(), 0);
        QCOMPARE(loader, &thread);
        QCOMPARE(recording->loaded, 1);
        QCOMPARE(recording->sampleCount, 2);
    }
    thread.quit();
    QVERIFY(thread.wait(10000));
    QVERIFY(!recording);
}

#ifdef Q_OS_UNIX
void TestCfgProperties::pipesAreNotWaitedFor()
{
    const RecordingFolder folder;
    for (const char *name : {"pipe.txt", "pipe.cfg"}) {
        QCOMPARE(mkfifo(QFile::encodeName(folder.path(name)).constData(), 0600), 0);
        CFGProperties recording;
        recording.filePath = folder.path(name);
        recording.init();
        QCOMPARE(recording.totalChannelCount, 0);
        QCOMPARE(recording.sampleCount, 0);
    }
}
#endif

QTEST_GUILESS_MAIN(TestCfgProperties)
#include "tst_cfgproperties.moc"
