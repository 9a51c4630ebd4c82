// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"

#include <QtTest>

#include <cmath>
#include <map>
#include <memory>

namespace {

QString pathOf(const QString &name)
{
    return QStringLiteral(SOURCE_DIR "/../shared/recordings/real/") + name + QStringLiteral(".cfg");
}

// One of the recordings, loaded once for all tests.
const CFGProperties *loaded(const QString &name)
{
    static std::map<QString, std::unique_ptr<CFGProperties>> recordings;
    std::unique_ptr<CFGProperties> &recording = recordings[name];
    if (!recording) {
        recording = std::make_unique<CFGProperties>();
        recording->filePath = pathOf(name);
        recording->init();
    }
    return recording.get();
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

bool isNear(float actual, double expected, double relative)
{
    return std::abs(static_cast<double>(actual) - expected) <= relative * std::abs(expected);
}

const QStringList names{QStringLiteral("bay-cp1251-crlf"), QStringLiteral("dfr-1991-gbk"),
    QStringLiteral("line-110-digitals"), QStringLiteral("line-relay-gbk"),
    QStringLiteral("pq-monitor-1999"), QStringLiteral("recorder-1991-cp866"),
    QStringLiteral("simulator-40000"), QStringLiteral("small-2013-missing"),
    QStringLiteral("small-2013-utf8")};

} // namespace

// Recordings of devices in service, which are not part of these sources. The figures were worked
// out from the files by hand and by a script of its own.
class TestRealRecordings : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void figures_data();
    void figures();
    void phasorInTheMiddle_data();
    void phasorInTheMiddle();
    void yearsAndFlags_data();
    void yearsAndFlags();
    void secondaryValuesOfABay();
    void stampsThatJump();
    void stampsThatRunBack();
    void marksOfMissingValuesAreNumbers();
    void namesAreTheBytesOfTheFile();
};

void TestRealRecordings::initTestCase()
{
    if (!QFileInfo::exists(pathOf(names.constFirst())))
        QSKIP("The real recordings are not beside these sources.");
}

void TestRealRecordings::figures_data()
{
    QTest::addColumn<int>("analog");
    QTest::addColumn<int>("digital");
    QTest::addColumn<int>("samples");
    QTest::addColumn<double>("firstTime");
    QTest::addColumn<double>("lastTime");
    QTest::addColumn<int>("samplesPerCycle");
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<int>("triggerOffset");
    QTest::addColumn<int>("liveDigitals");
    QTest::addColumn<float>("minimum"); // of the first channel
    QTest::addColumn<float>("maximum");
    QTest::newRow("bay-cp1251-crlf") << 10 << 87 << 1639 << 0.0 << 1365.0 << 24 << qint64(1365)
                                     << 500 << 32 << -82.1086636F << 82.0803795F;
    QTest::newRow("dfr-1991-gbk") << 24 << 37 << 2131 << -77.5 << 17258.333 << 24 << qint64(1775)
                                  << 78 << 12 << -19.4650009F << 9.21100044F;
    QTest::newRow("line-110-digitals") << 17 << 110 << 4212 << 0.0 << 3509.166 << 24 << qint64(3510)
                                       << 500 << 42 << -1.86416108F << 1.86416108F;
    QTest::newRow("line-relay-gbk") << 15 << 7 << 950 << 0.0 << 17241.0 << 20 << qint64(950) << 0
                                    << 0 << -2.04275997F << 2.14367997F;
    QTest::newRow("pq-monitor-1999") << 6 << 0 << 3584 << -41.663 << 424.965 << 128 << qint64(466)
                                     << 0 << 0 << -317.518127F << 288.339371F;
    QTest::newRow("recorder-1991-cp866") << 7 << 4 << 120 << 0.0 << 198.333 << 12 << qint64(200)
                                         << 80 << 1 << -0.373345993F << 0.276790995F;
    QTest::newRow("simulator-40000") << 13 << 3 << 40000 << 0.0 << 1999.95 << 400 << qint64(2000)
                                     << 400 << 0 << -195.108994F << 195.108685F;
    QTest::newRow("small-2013-missing") << 4 << 4 << 40 << 72.5 << 105.0 << 20 << qint64(33) << 3
                                        << 3 << -23.6325073F << 11389.1032F;
    QTest::newRow("small-2013-utf8") << 4 << 4 << 40 << 72.5 << 105.0 << 20 << qint64(33) << 32 << 3
                                     << -23.6325073F << 30.9215698F;
}

void TestRealRecordings::figures()
{
    QFETCH(int, analog);
    QFETCH(int, digital);
    QFETCH(int, samples);
    QFETCH(double, firstTime);
    QFETCH(double, lastTime);
    QFETCH(int, samplesPerCycle);
    QFETCH(qint64, duration);
    QFETCH(int, triggerOffset);
    QFETCH(int, liveDigitals);
    QFETCH(float, minimum);
    QFETCH(float, maximum);
    const CFGProperties *const recording = loaded(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(recording->loaded, 1);
    QCOMPARE(recording->totalChannelCount, analog + digital);
    QCOMPARE(recording->analogIds.size(), analog);
    QCOMPARE(recording->digitalIds.size(), digital);
    QCOMPARE(recording->analogChannels.size(), analog);
    QCOMPARE(recording->digitalChannels.size(), digital);
    QCOMPARE(recording->sampleCount, samples);
    QCOMPARE(recording->sampleTimes.size(), samples);
    QCOMPARE(recording->sampleTimes.constFirst(), firstTime);
    QCOMPARE(recording->sampleTimes.constLast(), lastTime);
    QCOMPARE(recording->samplesPerCycle, samplesPerCycle);
    QCOMPARE(recording->durationMs, duration);
    QCOMPARE(recording->triggerOffsetMs, triggerOffset);
    int live = 0;
    for (const DigitalChannel *channel : recording->digitalChannels) {
        QCOMPARE(channel->values.size(), samples);
        QCOMPARE(channel->allZero, channel->values.count(0) == samples);
        live += channel->allZero ? 0 : 1;
    }
    QCOMPARE(live, liveDigitals);
    for (const AnalogChannel *channel : recording->analogChannels) {
        QCOMPARE(channel->values.size(), samples);
        QCOMPARE(channel->rawValues.size(), samples);
        QCOMPARE(channel->fftMagnitudes.size(), samples);
        QCOMPARE(channel->times.constData(), recording->sampleTimes.constData());
    }
    QCOMPARE(recording->analogChannels.at(0)->minValue, minimum);
    QCOMPARE(recording->analogChannels.at(0)->maxValue, maximum);
}

void TestRealRecordings::phasorInTheMiddle_data()
{
    QTest::addColumn<int>("sample");
    QTest::addColumn<float>("raw"); // of the first channel
    QTest::addColumn<double>("magnitude"); // by a sum over the cycle, written out
    QTest::addColumn<double>("angle");
    QTest::newRow("bay-cp1251-crlf") << 819 << 1754.0F << 51.18557 << 2.022847;
    QTest::newRow("dfr-1991-gbk") << 1065 << -91.0F << 0.01772916 << -1.263791;
    QTest::newRow("line-110-digitals") << 2106 << 0.0F << 0.0002655162 << -0.392699;
    QTest::newRow("line-relay-gbk") << 475 << 570.0F << 1.494276 << -1.719315;
    QTest::newRow("pq-monitor-1999") << 1792 << 79464.0F << 196.5812 << -2.246662;
    QTest::newRow("recorder-1991-cp866") << 60 << 36.0F << 0.1746031 << -0.196855;
    QTest::newRow("simulator-40000") << 20000 << 40274.0F << 137.9641 << 1.817656;
    QTest::newRow("small-2013-missing") << 20 << -118.0F << 17.35133 << 1.196786;
}

void TestRealRecordings::phasorInTheMiddle()
{
    QFETCH(int, sample);
    QFETCH(float, raw);
    QFETCH(double, magnitude);
    QFETCH(double, angle);
    const CFGProperties *const recording = loaded(QString::fromLatin1(QTest::currentDataTag()));
    const AnalogChannel &channel = *recording->analogChannels.at(0);
    QCOMPARE(channel.rawValues.at(sample), raw);
    QVERIFY2(isNear(channel.fftMagnitudes.at(sample), magnitude, 1e-6),
        qPrintable(QString::number(static_cast<double>(channel.fftMagnitudes.at(sample)), 'g', 9)));
    QVERIFY2(std::abs(static_cast<double>(channel.fftAngles.at(sample)) - angle) < 2e-6,
        qPrintable(QString::number(static_cast<double>(channel.fftAngles.at(sample)), 'g', 9)));
}

void TestRealRecordings::yearsAndFlags_data()
{
    QTest::addColumn<QString>("year");
    QTest::addColumn<QString>("flag");
    QTest::addColumn<int>("rates");
    QTest::addColumn<int>("factors");
    const auto row
        = [](const char *name, const char *year, const char *flag, int rates, int factors) {
              QTest::newRow(name) << QString::fromLatin1(year) << QString::fromLatin1(flag) << rates
                                  << factors;
          };
    row("bay-cp1251-crlf", "1999", "S", 1, 10);
    row("dfr-1991-gbk", "", "", 8, 0);
    row("line-110-digitals", "1999", "S", 1, 17);
    row("line-relay-gbk", "1999", "S", 10, 15);
    row("pq-monitor-1999", "1999", "P", 1, 6);
    row("recorder-1991-cp866", "", "", 1, 0);
    row("simulator-40000", "1999", "P", 1, 13);
    row("small-2013-missing", "2013", "s", 1, 0);
    row("small-2013-utf8", "2013", "s", 1, 0);
}

void TestRealRecordings::yearsAndFlags()
{
    QFETCH(QString, year);
    QFETCH(QString, flag);
    QFETCH(int, rates);
    QFETCH(int, factors);
    const CFGProperties *const recording = loaded(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(recording->revisionYear, year);
    QCOMPARE(recording->rateCount, rates);
    QCOMPARE(recording->toPrimary.size(), factors);
    QCOMPARE(recording->toSecondary.size(), factors);
    for (const AnalogChannel *channel : recording->analogChannels) {
        QCOMPARE(channel->ps, flag);
        // One of the two factors is always 1.
        QVERIFY(channel->toPrimary == 1 || channel->toSecondary == 1);
    }
}

void TestRealRecordings::secondaryValuesOfABay()
{
    const CFGProperties *const recording = loaded(QStringLiteral("bay-cp1251-crlf"));
    // A voltage transformer of 110000 to 100 and a current transformer of 600 to 5.
    QCOMPARE(recording->analogChannels.at(0)->toPrimary, 1100.0);
    int currents = 0;
    for (const AnalogChannel *channel : recording->analogChannels)
        currents += channel->toPrimary == 120.0 ? 1 : 0;
    QVERIFY(currents > 0);
}

void TestRealRecordings::stampsThatJump()
{
    const CFGProperties *const recording = loaded(QStringLiteral("dfr-1991-gbk"));
    QList<int> rows; // counted from 1
    for (int i = 1; i < recording->sampleTimes.size(); ++i) {
        if (recording->sampleTimes.at(i) - recording->sampleTimes.at(i - 1) > 100)
            rows += i + 1;
    }
    QCOMPARE(rows, QList<int>({290, 507, 1046, 1813, 2100}));
    QCOMPARE(recording->digitalIndexes.constFirst(), 25);
}

void TestRealRecordings::stampsThatRunBack()
{
    const CFGProperties *const recording = loaded(QStringLiteral("line-relay-gbk"));
    QList<int> rows; // counted from 1
    for (int i = 1; i < recording->sampleTimes.size(); ++i) {
        if (recording->sampleTimes.at(i) < recording->sampleTimes.at(i - 1)) {
            QCOMPARE(recording->sampleTimes.at(i) - recording->sampleTimes.at(i - 1), -199.0);
            rows += i + 1;
        }
    }
    QCOMPARE(rows, QList<int>({401, 601, 801}));
}

void TestRealRecordings::marksOfMissingValuesAreNumbers()
{
    const CFGProperties *const relay = loaded(QStringLiteral("line-relay-gbk"));
    for (int k = 8; k < 15; ++k) {
        const AnalogChannel &channel = *relay->analogChannels.at(k);
        QCOMPARE(channel.rawValues.count(999999.0F), 949);
        QVERIFY(isNear(channel.maxValue, 999999 * static_cast<double>(channel.a), 1e-6));
    }
    const CFGProperties *const small = loaded(QStringLiteral("small-2013-missing"));
    for (const AnalogChannel *channel : small->analogChannels)
        QCOMPARE(channel->rawValues.count(99999.0F), 1);
}

void TestRealRecordings::namesAreTheBytesOfTheFile()
{
    for (const QString &name : names) {
        const CFGProperties *const recording = loaded(name);
        const QByteArray header = contents(pathOf(name)).split('\n').constFirst();
        QCOMPARE(recording->stationName.toLatin1(), header.split(',').constFirst());
    }
}

QTEST_GUILESS_MAIN(TestRealRecordings)
#include "tst_realrecordings.moc"
