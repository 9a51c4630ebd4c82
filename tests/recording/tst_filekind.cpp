// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filekind.h"

#include <QTemporaryDir>
#include <QtTest>

class TestFileKind : public QObject {
    Q_OBJECT

private slots:
    void goesByThePath_data();
    void goesByThePath();
    void takesTheFirstRecordingOfSeveral_data();
    void takesTheFirstRecordingOfSeveral();
    void whatIsReadEndsAndComesAtOnce_data();
    void whatIsReadEndsAndComesAtOnce();
};

void TestFileKind::goesByThePath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("atStart");
    QTest::addColumn<bool>("package");
    QTest::addColumn<bool>("recording");
    QTest::addColumn<bool>("textExport");
    QTest::addColumn<bool>("singleFile");
    const auto row = [](const char *name, const char *path, const char *kinds) {
        const QByteArray answers(kinds);
        QTest::newRow(name) << QString::fromLatin1(path) << answers.contains('s')
                            << answers.contains('p') << answers.contains('r')
                            << answers.contains('t') << answers.contains('f');
    };
    // s: opens at start, p: package, r: recording, t: text export, f: single file
    row("a package", "/rec/a.zip", "sp");
    row("a package in capitals", "/rec/A.ZIP", "p");
    row("a package in mixed letters", "/rec/A.Zip", "p");
    row("the package's ending in the middle", "/rec/a.zip.1", "p");
    row("a folder named like a package", "/rec.zip/a", "p");
    row("a configuration in a folder named like a package", "/rec.zip/a.cfg", "spr");
    row("a configuration", "/rec/a.cfg", "sr");
    row("a configuration in capitals", "/rec/A.CFG", "r");
    row("a configuration in mixed letters", "/rec/A.Cfg", "r");
    row("the configuration's ending in the middle", "/rec/a.cfg.bak", "r");
    row("a package named after a configuration", "/rec/a.cfg.zip", "spr");
    row("a configuration named after a package", "/rec/a.zip.cfg", "spr");
    row("a text export", "/rec/a.txt", "rt");
    row("a text export in capitals", "/rec/A.TXT", "r");
    row("the text's ending in the middle", "/rec/a.txt.bak", "r");
    row("a text in a folder named like a configuration", "/rec.cfg/a.txt", "rt");
    row("a configuration named after a text", "/rec/a.txt.cfg", "sr");
    row("a data file", "/rec/a.dat", "");
    row("a single file", "/rec/a.cff", "f");
    row("a single file in capitals", "/rec/A.CFF", "f");
    row("a single file in a folder named like a configuration", "/rec.cfg/a.cff", "rf");
    row("the single file's ending in the middle", "/rec/a.cff.bak", "");
    row("no point before the single file's ending", "/rec/acff", "");
    row("no point before the ending", "/rec/acfg", "");
    row("another ending", "/rec/a.pdf", "");
    row("the ending alone", ".cfg", "sr");
    row("no path", "", "");
}

void TestFileKind::goesByThePath()
{
    QFETCH(QString, path);
    QTEST(opensAtStart(path), "atStart");
    QTEST(isPackage(path), "package");
    QTEST(isRecording(path), "recording");
    QTEST(isTextExport(path), "textExport");
    QTEST(isSingleFile(path), "singleFile");
}

void TestFileKind::takesTheFirstRecordingOfSeveral_data()
{
    QTest::addColumn<QStringList>("dropped"); // names in a folder with a.cfg, B.CFG and alone.dat
    QTest::addColumn<QString>("opened");
    const auto row = [](const char *name, const char *dropped, const char *opened) {
        QTest::newRow(name) << QString::fromLatin1(dropped).split(QLatin1Char(' '))
                            << QString::fromLatin1(opened);
    };
    row("one", "a.cfg", "a.cfg");
    row("the first of two", "a.cfg B.CFG", "a.cfg");
    row("after others", "notes.pdf a.png B.CFG a.cfg", "B.CFG");
    row("a package", "notes.pdf p.ZIP a.cfg", "p.ZIP");
    row("a text export", "notes.pdf t.txt", "t.txt");
    row("a data file stands for its configuration", "a.dat", "a.cfg");
#ifdef Q_OS_WIN // where both names are those of one file
    row("in another case", "b.dat", "b.cfg");
#else
    row("in another case", "b.dat", "B.CFG");
#endif
    row("a pair, data first", "a.dat a.cfg", "a.cfg");
    row("a data file alone", "alone.dat", "alone.dat");
    row("a data file alone before a recording", "alone.dat a.cfg", "a.cfg");
    row("no recording at all", "notes.pdf a.png", "notes.pdf");
}

void TestFileKind::takesTheFirstRecordingOfSeveral()
{
    QFETCH(QStringList, dropped);
    const QTemporaryDir folder;
    for (const char *name : {"a.cfg", "B.CFG", "alone.dat"})
        QVERIFY(QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
    for (QString &name : dropped)
        name = folder.filePath(name);
    QTEST(QFileInfo(recordingToOpen(dropped)).fileName(), "opened");
    QCOMPARE(recordingToOpen({}), QString());
}

void TestFileKind::whatIsReadEndsAndComesAtOnce_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("pipeOrDevice");
    QTest::newRow("a file") << QCoreApplication::applicationFilePath() << false;
    QTest::newRow("a folder") << QCoreApplication::applicationDirPath() << false;
    QTest::newRow("nothing") << QStringLiteral("/nowhere/a.cfg") << false;
#ifdef Q_OS_UNIX
    QTest::newRow("a device") << QStringLiteral("/dev/zero") << true;
#endif
}

void TestFileKind::whatIsReadEndsAndComesAtOnce()
{
    QFETCH(QString, path);
    QTEST(isPipeOrDevice(path), "pipeOrDevice");
}

QTEST_GUILESS_MAIN(TestFileKind)
#include "tst_filekind.moc"
