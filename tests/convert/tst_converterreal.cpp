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

} // namespace

// Recordings of devices in service, which are not part of these sources: a copy means the same.
class TestConverterReal : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void copyMeansTheSame_data();
    void copyMeansTheSame();
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
    QCOMPARE(copy.analogIds, original.analogIds);
    QCOMPARE(copy.analogUnits, original.analogUnits);
    QCOMPARE(copy.digitalIds, original.digitalIds);
    QCOMPARE(copy.triggerOffsetMs, original.triggerOffsetMs);
    QCOMPARE(copy.sampleRate, original.sampleRate);
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
