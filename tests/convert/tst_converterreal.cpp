// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "asciilayout.h"
#include "cfgproperties.h"
#include "converterrun.h"

#include <QtTest>

#include <memory>

namespace {

const QString recordings = QStringLiteral(SOURCE_DIR "/../shared/recordings/real/");

void read(CFGProperties &recording, const QString &path)
{
    recording.filePath = path;
    recording.readConfgFile();
    recording.readDatFile();
}

bool has1991Layout(const CFGProperties &recording)
{
    return recording.revisionYear.isEmpty();
}

void requireSameNames(const CFGProperties &copy, const CFGProperties &original)
{
    QCOMPARE(copy.stationName, original.stationName);
    // The viewer keeps the end of a line that ends with the device.
    QCOMPARE(copy.recordingDeviceId, QString(original.recordingDeviceId).remove(QLatin1Char('\n')));
    QCOMPARE(copy.analogIds, original.analogIds);
    QCOMPARE(copy.analogPhases, original.analogPhases);
    QCOMPARE(copy.analogCircuits, original.analogCircuits);
    QCOMPARE(copy.analogUnits, original.analogUnits);
    QCOMPARE(copy.digitalIndexes, original.digitalIndexes);
    QCOMPARE(copy.digitalIds, original.digitalIds);
    if (!has1991Layout(original)) {
        QCOMPARE(copy.digitalPhases, original.digitalPhases);
        QCOMPARE(copy.digitalCircuits, original.digitalCircuits);
        QCOMPARE(copy.digitalNormalStates, original.digitalNormalStates);
        return;
    }
    // In place of the phase there is the normal state, and nothing follows.
    for (int j = 0; j < original.digitalIds.size(); ++j) {
        QCOMPARE(copy.digitalPhases.at(j), QString());
        QCOMPARE(copy.digitalCircuits.at(j), QString());
        QCOMPARE(copy.digitalNormalStates.at(j), original.digitalPhases.at(j).trimmed());
    }
}

void requireSameAnalogs(const CFGProperties &copy, const CFGProperties &original)
{
    QCOMPARE(copy.analogIndexes, original.analogIndexes);
    QCOMPARE(copy.analogA, original.analogA);
    QCOMPARE(copy.analogB, original.analogB);
    QCOMPARE(copy.analogSkews, original.analogSkews);
    QCOMPARE(copy.analogMins, original.analogMins);
    QCOMPARE(copy.analogMaxs, original.analogMaxs);
    QCOMPARE(copy.lineFrequency, original.lineFrequency);
    const int channels = original.analogIds.size();
    const bool hasRatios = !has1991Layout(original);
    const QVector<double> ones(channels, 1);
    QCOMPARE(copy.primaryValues.toVector(), hasRatios ? original.primaryValues.toVector() : ones);
    QCOMPARE(
        copy.secondaryValues.toVector(), hasRatios ? original.secondaryValues.toVector() : ones);
    for (int k = 0; k < channels; ++k)
        QCOMPARE(
            copy.psFlags.at(k), hasRatios ? original.psFlags.at(k).toUpper() : QStringLiteral("P"));
}

} // namespace

// Recordings of devices in service, which are not part of these sources: a copy means the same.
class TestConverterReal : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void copyMeansTheSame_data();
    void copyMeansTheSame();
    void copyHasTheSameMoments_data();
    void copyHasTheSameMoments();
    void copyKeepsToTheLayout_data();
    void copyKeepsToTheLayout();
};

void TestConverterReal::initTestCase()
{
    if (!QFileInfo::exists(recordings))
        QSKIP("The real recordings are not beside these sources.");
}

void TestConverterReal::copyMeansTheSame_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : QDir(recordings).entryList({QStringLiteral("*.cfg")}, QDir::Files))
        QTest::newRow(qPrintable(name)) << name;
}

void TestConverterReal::copyMeansTheSame()
{
    QFETCH(QString, name);
    const ConverterFolder folder;
    const auto outcome = folder.run(recordings + name + QStringLiteral(" -o @"));
    QCOMPARE(outcome.errors, QByteArray());
    CFGProperties original;
    CFGProperties copy;
    read(original, recordings + name);
    read(copy, folder.path(name));
    QVERIFY(original.sampleCount > 0);
    QCOMPARE(copy.sampleCount, original.sampleCount);
    QCOMPARE(copy.sampleTimes, original.sampleTimes);
    QCOMPARE(copy.triggerOffsetMs, original.triggerOffsetMs);
    QCOMPARE(copy.sampleRate, original.sampleRate);
    requireSameNames(copy, original);
    requireSameAnalogs(copy, original);
    for (int k = 0; k < original.analogChannels.size(); ++k) {
        const AnalogChannel &channel = *original.analogChannels.at(k);
        QVERIFY(copy.analogChannels.at(k)->rawValues == channel.rawValues);
        QVERIFY(copy.analogChannels.at(k)->values == channel.values);
    }
    for (int j = 0; j < original.digitalChannels.size(); ++j)
        QVERIFY(copy.digitalChannels.at(j)->values == original.digitalChannels.at(j)->values);
    // And a copy of the copy has the same bytes.
    QDir(folder.path(QString())).mkdir(QStringLiteral("again"));
    QCOMPARE(folder.run(QStringLiteral("@") + name + QStringLiteral(" -o @again")).status, 0);
    for (const char *ending : {"cfg", "dat"}) {
        const QString file = name.chopped(3) + QLatin1String(ending);
        QVERIFY(
            bytesOf(folder.path(QStringLiteral("again/") + file)) == bytesOf(folder.path(file)));
    }
}

void TestConverterReal::copyHasTheSameMoments_data()
{
    QTest::addColumn<QByteArray>("start"); // of the copy
    QTest::addColumn<QByteArray>("trigger");
    const auto row = [](const char *name, const char *start, const char *trigger) {
        QTest::newRow(name) << QByteArray(start) << QByteArray(trigger);
    };
    row("bay-cp1251-crlf", "05/08/2020,14:46:26.406000", "05/08/2020,14:46:26.906000");
    row("line-110-digitals", "25/06/2022,21:46:07.483000", "25/06/2022,21:46:07.983000");
    row("line-relay-gbk", "24/12/2012,17:30:48.384000", "24/12/2012,17:30:48.384000");
    row("pq-monitor-1999", "11/07/2012,08:44:21.051022", "11/07/2012,08:44:21.051022");
    row("simulator-40000", "09/10/2018,08:41:02.673000", "09/10/2018,08:41:03.073000");
    row("small-2013-missing", "12/01/2011,05:55:30.075011", "12/01/2011,05:55:30.078261");
    row("small-2013-utf8", "12/01/2011,05:55:30.750110", "12/01/2011,05:55:30.782610");
    // These have the month first and years of two digits.
    row("dfr-1991-gbk", "17/09/2015,10:52:52.987545", "17/09/2015,10:52:53.065045");
    row("recorder-1991-cp866", "11/03/2013,15:19:07.000000", "11/03/2013,15:19:07.080000");
}

void TestConverterReal::copyHasTheSameMoments()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, trigger);
    const ConverterFolder folder;
    const QString name = QLatin1String(QTest::currentDataTag()) + QLatin1String(".cfg");
    QCOMPARE(folder.run(recordings + name + QStringLiteral(" -o @")).status, 0);
    QVERIFY(bytesOf(folder.path(name))
                .endsWith("\r\n" + start + "\r\n" + trigger + "\r\nASCII\r\n1\r\n"));
}

void TestConverterReal::copyKeepsToTheLayout_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("faults"); // of the device, which a copy keeps
    const auto row = [](const char *name, const QStringList &faults) {
        QTest::newRow(name) << QString::fromLatin1(name) << faults;
    };
    row("bay-cp1251-crlf", {});
    row("line-110-digitals", {});
    row("recorder-1991-cp866", {});
    row("small-2013-missing", {});
    row("small-2013-utf8", {});
    const QString earlyStamp = QStringLiteral("a stamp is no number from 0 on");
    row("pq-monitor-1999", {earlyStamp});
    row("simulator-40000", {QStringLiteral("the unit has not 1 to 32 letters")});
    row("line-relay-gbk",
        {QStringLiteral("a value is no whole number of five digits"),
            QStringLiteral("the stamps run back")});
    row("dfr-1991-gbk",
        {earlyStamp, QStringLiteral("min or max is no whole number of five digits"),
            QStringLiteral("the channels are not counted from 1")});
}

void TestConverterReal::copyKeepsToTheLayout()
{
    QFETCH(QString, name);
    QFETCH(QStringList, faults);
    const ConverterFolder folder;
    QCOMPARE(folder.run(recordings + name + QStringLiteral(".cfg -o @")).status, 0);
    QStringList found;
    for (const LayoutFault &fault :
        faultsOfPair(bytesOf(folder.path(name + QLatin1String(".cfg"))).toStdString(),
            bytesOf(folder.path(name + QLatin1String(".dat"))).toStdString()))
        found += QString::fromStdString(fault.what);
    found.removeDuplicates();
    found.sort();
    QCOMPARE(found, faults);
}

QTEST_GUILESS_MAIN(TestConverterReal)
#include "tst_converterreal.moc"
