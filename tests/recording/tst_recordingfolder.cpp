// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordingfolder.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray someExport("Ia[A],Ib[A]\n15/03/2024-10:00:00:000,1,2\n");

} // namespace

class TestRecordingFolder : public QObject {
    Q_OBJECT

private slots:
    void neighbours_data();
    void neighbours();
    void textsWithStampsAlone_data();
    void textsWithStampsAlone();
    void thereAndBack();
    void noFolder();
    void pipesAndFolders();
    void manyFiles();
    void manyTexts_data();
    void manyTexts();

private:
    static void write(const QTemporaryDir &folder, const QString &name, const QByteArray &text)
    {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    static QString names(const QTemporaryDir &folder, const QString &name)
    {
        const Neighbours found = neighboursOf(folder.filePath(name));
        return QFileInfo(found.previous).fileName() + QLatin1Char('|')
            + QFileInfo(found.next).fileName();
    }
};

void TestRecordingFolder::neighbours_data()
{
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("of");
    QTest::addColumn<QString>("expected"); // previous|next
    const auto row = [](const char *name, const char *files, const char *of, const char *expected) {
        QTest::newRow(name) << files << of << expected;
    };
    row("in the middle", "a.zip b.zip c.zip", "b.zip", "a.zip|c.zip");
    row("the first", "a.zip b.zip c.zip", "a.zip", "|b.zip");
    row("the last", "a.zip b.zip c.zip", "c.zip", "b.zip|");
    row("the only one", "a.zip", "a.zip", "|");
    row("a pair is one", "a.cfg a.dat b.cfg b.dat", "a.cfg", "|b.cfg");
    row("no configuration without data", "a.zip b.cfg c.zip", "a.zip", "|c.zip");
    row("data in other letters", "a.zip B.CFG b.Dat", "a.zip", "|B.CFG");
    row("other files", "a.zip b.pdf b.hdr b.inf b.dat b.cff b.cfg.bak c.zip", "a.zip", "|c.zip");
    row("hidden files", "a.zip .b.zip c.zip", "a.zip", "|c.zip");
    row("all kinds", "a.cfg a.dat b.zip c.txt", "b.zip", "a.cfg|c.txt");
    row("capitals", "a.zip B.ZIP c.zip", "B.ZIP", "a.zip|c.zip");
    row("a text in capitals", "a.zip B.TXT c.zip", "a.zip", "|c.zip");
    row("numbers by value", "r10.zip r9.zip r100.zip", "r10.zip", "r9.zip|r100.zip");
    row("numbers by value, the lowest", "r10.zip r9.zip r100.zip", "r9.zip", "|r10.zip");
    row("leading noughts", "r009.zip r10.zip r8.zip", "r009.zip", "r8.zip|r10.zip");
    row("one name, two kinds", "a.cfg a.dat a.txt a.zip", "a.txt", "a.cfg|a.zip");
    row("blanks", "a 1.zip a 2.zip", "a 1.zip", "|a 2.zip");
    row("a file that is gone", "a.zip c.zip", "b.zip", "a.zip|c.zip");
    row("a file that is none", "a.zip b.cfg.bak c.zip", "b.cfg.bak", "a.zip|c.zip");
    row("no recording at all", "a.pdf b.doc", "b.zip", "|");
}

void TestRecordingFolder::neighbours()
{
    QFETCH(QString, files);
    const QTemporaryDir folder;
    QStringList names;
    QString gathered;
    for (const QString &part : files.split(QLatin1Char(' '))) { // names may hold blanks
        gathered += gathered.isEmpty() ? part : QLatin1Char(' ') + part;
        if (part.contains(QLatin1Char('.')))
            names.append(std::exchange(gathered, QString()));
    }
    for (const QString &name : qAsConst(names))
        write(folder, name, name.endsWith(QLatin1String("txt")) ? someExport : QByteArray());
    QFETCH(QString, of);
    QTEST(TestRecordingFolder::names(folder, of), "expected");
}

void TestRecordingFolder::textsWithStampsAlone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isRecording");
    const QString plain = QString::fromLatin1(someExport);
    const QByteArray little(reinterpret_cast<const char *>(plain.utf16()), 2 * plain.size());
    QByteArray big;
    for (const char letter : someExport)
        big.append('\0').append(letter);
    QTest::newRow("an export") << someExport << true;
    QTest::newRow("with CR and LF") << QByteArray(someExport).replace("\n", "\r\n") << true;
    QTest::newRow("UTF-16") << "\xff\xfe" + little << true;
    QTest::newRow("UTF-16, big end first") << "\xfe\xff" + big << true;
    QTest::newRow("a long header")
        << QByteArray("Ia[A],").repeated(20'000) + "\n15/03/2024-10:00:00:000,1\n"
        << true;
    QTest::newRow("a stamp that does not read")
        << QByteArray("Ia[A]\n?\n15/03/2024-10:00:00:000,1\n") << true;
    QTest::newRow("a readme") << QByteArray("Trip of 15/03/2024-10:00:00.\nSee the others.\n")
                              << false;
    QTest::newRow("a header alone") << QByteArray("Ia[A],Ib[A]\n") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("another date") << QByteArray("Ia[A]\n2024-03-15 10:00:00,1\n") << false;
}

void TestRecordingFolder::textsWithStampsAlone()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isRecording);
    const QTemporaryDir folder;
    write(folder, QStringLiteral("a.zip"), {});
    write(folder, QStringLiteral("b.txt"), text);
    write(folder, QStringLiteral("c.zip"), {});
    QCOMPARE(names(folder, QStringLiteral("a.zip")),
        QLatin1Char('|') + (isRecording ? QStringLiteral("b.txt") : QStringLiteral("c.zip")));
}

// Names that only case or noughts tell apart are each passed once.
void TestRecordingFolder::thereAndBack()
{
    const QTemporaryDir folder;
    QStringList expected;
    for (const char *name : {"1.zip", "01.zip", "2.zip", "A.txt", "a.cfg", "a.zip", "Ä.zip",
             "b2.zip", "b10.zip", "z.zip"}) {
        write(folder, QString::fromUtf8(name), someExport);
        expected.append(folder.filePath(QString::fromUtf8(name)));
    }
    write(folder, QStringLiteral("a.dat"), {});
    QStringList passed;
    for (QString at = folder.filePath(QStringLiteral("!")); !at.isEmpty();) {
        at = neighboursOf(at).next;
        if (!at.isEmpty())
            passed.append(at);
    }
    QCOMPARE(passed.size(), expected.size());
    for (const QString &path : qAsConst(expected))
        QCOMPARE(passed.count(path), 1);
    QStringList back;
    for (QString at = passed.constLast(); !at.isEmpty(); at = neighboursOf(at).previous)
        back.prepend(at);
    QCOMPARE(back, passed);
}

void TestRecordingFolder::noFolder()
{
    const QTemporaryDir folder;
    const Neighbours none = neighboursOf(folder.filePath(QStringLiteral("gone/a.zip")));
    QVERIFY(none.previous.isEmpty() && none.next.isEmpty());
}

void TestRecordingFolder::pipesAndFolders()
{
    const QTemporaryDir folder;
    write(folder, QStringLiteral("a.zip"), {});
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("b.zip")));
#ifdef Q_OS_UNIX
    QCOMPARE(
        QProcess::execute(QStringLiteral("mkfifo"), {folder.filePath(QStringLiteral("c.txt"))}), 0);
#endif
    QCOMPARE(names(folder, QStringLiteral("a.zip")), QStringLiteral("|"));
}

// A right click must not wait for them.
void TestRecordingFolder::manyFiles()
{
    const QTemporaryDir folder;
    for (int i = 0; i < 5000; ++i)
        write(folder, QStringLiteral("r%1.cfg").arg(i), {});
    for (const int i : {7, 4990})
        write(folder, QStringLiteral("r%1.dat").arg(i), {});
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(names(folder, QStringLiteral("r3000.cfg")), QStringLiteral("r7.cfg|r4990.cfg"));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
}

// Each would have to be read to see that it is none.
void TestRecordingFolder::manyTexts_data()
{
    QTest::addColumn<int>("logs"); // before an export, and after one
    QTest::addColumn<QString>("expected");
    QTest::newRow("few") << 99 << "c.txt|x.txt";
    QTest::newRow("more than are looked at") << 100 << "a.zip|z.zip";
}

void TestRecordingFolder::manyTexts()
{
    QFETCH(int, logs);
    const QTemporaryDir folder;
    for (const char *name : {"a.zip", "z.zip"})
        write(folder, QString::fromLatin1(name), {});
    for (const char *name : {"c.txt", "x.txt"})
        write(folder, QString::fromLatin1(name), someExport);
    for (int i = 0; i < logs; ++i) {
        write(folder, QStringLiteral("d%1.txt").arg(i), "Ia\n10:00 nothing\n");
        write(folder, QStringLiteral("m%1.txt").arg(i), "Ia\n10:00 nothing\n");
    }
    QTEST(names(folder, QStringLiteral("h.txt")), "expected");
}

QTEST_GUILESS_MAIN(TestRecordingFolder)
#include "tst_recordingfolder.moc"
