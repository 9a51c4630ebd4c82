// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"

#include "addressspacelimit.h"
#include "recordingbuilder.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

ConfigurationText configuration()
{
    ConfigurationText text;
    text.analog = QByteArrayList{analogLine(1), analogLine(2)};
    text.digital = QByteArrayList{digitalLine(1), digitalLine(2)};
    return text;
}

} // namespace

class TestLackOfMemory : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("The sanitizer needs address space without end.");
#endif
    }
    void aLoadFailsAndTheNextOneDoesNot_data();
    void aLoadFailsAndTheNextOneDoesNot();
};

void TestLackOfMemory::aLoadFailsAndTheNextOneDoesNot_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("of many samples") << QStringLiteral("long.cfg");
    QTest::newRow("of many channels") << QStringLiteral("wide.cfg");
    QTest::newRow("of a cycle as long as it may be") << QStringLiteral("cycle.cfg");
    QTest::newRow("of transforms") << QStringLiteral("transforms.cfg");
    QTest::newRow("of an export") << QStringLiteral("long.txt");
}

// What there is too little memory for is another thing at each limit: lists, records, phasors.
void TestLackOfMemory::aLoadFailsAndTheNextOneDoesNot()
{
    QFETCH(QString, name);
    const RecordingFolder folder;
    QVERIFY(writeTextFile(folder.path("long.cfg"), configuration().text()));
    QVERIFY(writeTextFile(folder.path("long.dat"), QByteArray("1,0,3,4,0,1\n").repeated(10000)));
    QVERIFY(writeTextFile(folder.path("wide.cfg"), "S,D,1999\n4000,2000A,2000D\n"));
    QVERIFY(writeTextFile(folder.path("wide.dat"), QByteArray(4001, ',') + '\n'));
    QVERIFY(writeTextFile(
        folder.path("cycle.cfg"), configuration().text().replace("1000,40", "5000000,40")));
    QVERIFY(writeTextFile(folder.path("transforms.cfg"),
        configuration().text().replace("1000,40", "49850,40"))); // a prime number a cycle
    QVERIFY(writeTextFile(folder.path("transforms.dat"), QByteArray("1,0,3,4\n").repeated(1500)));
    QVERIFY(writeTextFile(folder.path("cycle.dat"), QByteArray("1,0,3,4\n").repeated(1000)));
    QVERIFY(writeTextFile(folder.path("long.txt"),
        "#Ua,Ub\n" + QByteArray("01/02/2020-10:00:00:000,1,2\n").repeated(10000)));
    QVERIFY(writeTextFile(folder.path("small.cfg"), configuration().text()));
    QVERIFY(writeTextFile(folder.path("small.dat"), "1,0,3,-4,0,1\n2,1000,-5,6,0,0\n"));

    CFGProperties recording;
    recording.filePath = folder.path(qPrintable(name));
    const QString path = recording.filePath;
    int failures = 0;
    int successes = 0;
    for (int kilobytes = 0; kilobytes < 32768 && successes < 2; kilobytes += 16) {
        recording.clearConfig();
        recording.filePath = path;
        const QSignalSpy finished(&recording, &CFGProperties::initFinished);
        {
            const AddressSpaceLimit limit(kilobytes * 1024);
            QVERIFY(limit.isSet());
            recording.init();
        }
        QCOMPARE(finished.count(), 1);
        if (recording.loaded == 1) {
            ++successes;
            continue;
        }
        ++failures;
        QCOMPARE(recording.loaded, 0);
        QCOMPARE(recording.sampleCount, 0);
        QCOMPARE(recording.totalChannelCount, 0);
        QVERIFY(recording.stationName.isEmpty());
        QVERIFY(recording.sampleTimes.isEmpty());
        QVERIFY(recording.analogChannels.isEmpty());
        QVERIFY(recording.digitalChannels.isEmpty());
    }
    QVERIFY(failures > 0);
    QVERIFY(successes > 0);
    recording.filePath = folder.path("small.cfg");
    recording.init();
    QCOMPARE(recording.loaded, 1);
    QCOMPARE(recording.sampleCount, 2);
}
QTEST_GUILESS_MAIN(TestLackOfMemory)
#include "tst_lackofmemory.moc"
