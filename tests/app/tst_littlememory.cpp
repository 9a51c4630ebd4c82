// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "addressspacelimit.h"
#include "cfgproperties.h"
#include "mainwindow.h"
#include "smallrecording.h"
#include "windowtest.h"

#include <QLabel>
#include <QListWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

// A program of its own: where memory that runs out is not survived, it ends at once.
class TestLittleMemory : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void recordingThatDoesNotFitIsNotSupported_data();
    void recordingThatDoesNotFitIsNotSupported();

private:
    QTemporaryDir m_folder;
    QString m_large; // its samples take 120 MB, their phasors as much again
};

void TestLittleMemory::initTestCase()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizer itself takes all of the address space");
#endif
    startAsMaker();
    QByteArray configuration = "Harju,Feeder J07,1999\n300,300A,0D\n";
    for (int channel = 1; channel <= 300; ++channel)
        configuration += QByteArray::number(channel) + ",I,A,,A,0.5,0,0,-32767,32767,400,1,S\n";
    configuration += "50\n1\n1000,50000\n15/03/2024,10:00:00.000000\n15/03/2024,10:00:00.000000\n"
                     "ASCII\n1\n";
    const QByteArray data = QByteArray("1,0,5\n").repeated(50000); // most fields are missing
    m_large = m_folder.filePath(QStringLiteral("large.cfg"));
    QVERIFY(writeTextFile(m_large, configuration));
    QVERIFY(writeTextFile(m_folder.filePath(QStringLiteral("large.dat")), data));
}

void TestLittleMemory::recordingThatDoesNotFitIsNotSupported_data()
{
    QTest::addColumn<int>("megabytes");
    for (const int megabytes : {20, 32, 48, 64, 96, 128})
        QTest::addRow("%d MB", megabytes) << megabytes;
}

void TestLittleMemory::recordingThatDoesNotFitIsNotSupported()
{
    QFETCH(int, megabytes);
    BoxReader boxes;
    MainWindow window;
    window.show();
    window.open(writeSmallRecording(m_folder.path(), QStringLiteral("before")));
    window.statusBar()->clearMessage();
    const AddressSpaceLimit limit(static_cast<qint64>(megabytes) << 20);
    QVERIFY(limit.isSet());
    for (int time = 0; time < 2; ++time) {
        window.open(m_large);
        const QList<BoxReader::Box> seen = boxes.take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].title, QStringLiteral("Application"));
        QCOMPARE(seen[0].text, QStringLiteral("File not supported."));
        QCOMPARE(seen[0].details, m_large + QLatin1String("\nThere is too little memory for it."));
        QVERIFY(!window.recording());
        QCOMPARE(window.findChild<QListWidget *>(QStringLiteral("listWidget"))->count(), 0);
        QCOMPARE(window.findChild<QLabel *>(QStringLiteral("label4"))->text(), QString());
        QCOMPARE(window.windowTitle(), QStringLiteral("Wavorin - before.cfg"));
        QCOMPARE(window.statusBar()->currentMessage(), QString());
    }
    window.open(writeSmallRecording(m_folder.path(), QStringLiteral("next")));
    QVERIFY(window.recording());
    QCOMPARE(window.recording()->sampleCount, 40);
    QCOMPARE(window.windowTitle(), QStringLiteral("Wavorin - next.cfg"));
    QCOMPARE(window.statusBar()->currentMessage(), QStringLiteral("File loaded"));
}

QTEST_MAIN(TestLittleMemory)
#include "tst_littlememory.moc"
