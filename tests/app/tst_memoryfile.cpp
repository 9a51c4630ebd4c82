// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memoryfile.h"
#include "ordinaryuser.h"
#include "ownfilesystem.h"
#include "windowtest.h"

#include <QJsonArray>
#include <QProcess>

namespace {

const QString key = QStringLiteral("key");
const QString other = QStringLiteral("other");

QByteArray contents()
{
    QFile file(memoryFilePath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(memoryFilePath()).path()));
    QFile file(memoryFilePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class TestMemoryFile : public QObject {
    Q_OBJECT

private slots:
    void init() { startAsMaker(); }

    void liesInTheDataFolder();
    void keepsWhatIsUnderOtherKeys();
    void badFilesAreEmpty_data();
    void badFilesAreEmpty();
    void aFileThatCannotBeReadStays();
    void severalAtOnce();
    void noFileThatCannotBeWritten();
    void noFolderThatCannotBeMade();
    void noPipe();
    void aFullFileSystemKeepsIt();
};

void TestMemoryFile::liesInTheDataFolder()
{
    QVERIFY2(memoryFilePath().endsWith(QLatin1String("/Norvale/Wavorin/memory.json")),
        qPrintable(memoryFilePath()));
    QVERIFY(!QFile::exists(memoryFilePath()));
    QVERIFY(remembered(key).isUndefined());
    QVERIFY(!QFile::exists(memoryFilePath())); // a look makes none
    remember(key, 1);
    QVERIFY(QFile::exists(memoryFilePath()));
    QCOMPARE(QDir(QFileInfo(memoryFilePath()).path()).entryList(QDir::Files | QDir::Hidden),
        QStringList(QStringLiteral("memory.json")));
}

void TestMemoryFile::keepsWhatIsUnderOtherKeys()
{
    remember(key, QStringLiteral("häiriö"));
    remember(other, QJsonArray{1, 2});
    QCOMPARE(remembered(key).toString(), QStringLiteral("häiriö"));
    remember(key, QStringLiteral("later"));
    QCOMPARE(remembered(key).toString(), QStringLiteral("later"));
    QCOMPARE(remembered(other).toArray(), (QJsonArray{1, 2}));
}

void TestMemoryFile::badFilesAreEmpty_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << QByteArray(R"({"key": ["a", "b)");
    QTest::newRow("a list") << QByteArray(R"(["key"])");
    QTest::newRow("noughts") << QByteArray(1000, '\0');
    QTest::newRow("no text") << QByteArray("\xff\xfe\x80{\"key\": 1}");
    QTest::newRow("deep") << QByteArray(100'000, '[');
    QTest::newRow("more than a megabyte")
        << R"({"key": 1, "fill": ")" + QByteArray(1'000'000, 'x') + "\"}";
}

// Another write mends them.
void TestMemoryFile::badFilesAreEmpty()
{
    QFETCH(QByteArray, bytes);
    write(bytes);
    QVERIFY(remembered(key).isUndefined());
    remember(other, 2);
    QVERIFY(remembered(key).isUndefined());
    QCOMPARE(remembered(other).toInt(), 2);
    QVERIFY(contents().size() < 100);
}

// What it keeps may be of use again.
void TestMemoryFile::aFileThatCannotBeReadStays()
{
#ifdef Q_OS_UNIX
    remember(key, 1);
    const QByteArray before = contents();
    QFile file(memoryFilePath());
    QVERIFY(QFile::setPermissions(
        QFileInfo(file).path(), QFile::Permissions(0x7777))); // so that it could be replaced
    QVERIFY(file.setPermissions(QFile::WriteOwner));
    {
        const OrdinaryUser user;
        if (!QFile::exists(file.fileName()))
            QSKIP("The folder of this test is out of another user's reach.");
        QVERIFY(!QFile(file.fileName()).open(QIODevice::ReadOnly));
        QVERIFY(remembered(key).isUndefined());
        remember(other, 2);
        QVERIFY(remembered(other).isUndefined());
    }
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(contents(), before);
    remember(other, 2);
    QCOMPARE(remembered(key).toInt(), 1);
    QCOMPARE(remembered(other).toInt(), 2);
#else
    QSKIP("A file that others may not read is not made this way here.");
#endif
}

// Two instances take turns: each changes what is under its key alone.
void TestMemoryFile::severalAtOnce()
{
    remember(key, 1);
    write(R"({"key": 1, "other": 2, "third": 3})"); // by another one
    remember(key, 4);
    QCOMPARE(remembered(key).toInt(), 4);
    QCOMPARE(remembered(other).toInt(), 2);
    QCOMPARE(remembered(QStringLiteral("third")).toInt(), 3);
}

void TestMemoryFile::noFileThatCannotBeWritten()
{
    remember(key, 1);
    const QByteArray before = contents();
    const QString folder = QFileInfo(memoryFilePath()).path();
    QVERIFY(QFile::remove(memoryFilePath())
        && QDir().mkpath(memoryFilePath() + QLatin1String("/in the way")));
    remember(key, 2);
    QVERIFY(remembered(key).isUndefined());
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList());
    QVERIFY(QDir(memoryFilePath()).removeRecursively());
    write(before);
    QCOMPARE(remembered(key).toInt(), 1);
}

void TestMemoryFile::noFolderThatCannotBeMade()
{
    const QString folder = QFileInfo(memoryFilePath()).path();
    QVERIFY(QDir().mkpath(QFileInfo(folder).path()));
    QFile inTheWay(folder);
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    remember(key, 1);
    QVERIFY(remembered(key).isUndefined());
    QVERIFY(inTheWay.remove());
    remember(key, 1);
    QCOMPARE(remembered(key).toInt(), 1);
}

void TestMemoryFile::noPipe()
{
#ifdef Q_OS_UNIX
    QVERIFY(QDir().mkpath(QFileInfo(memoryFilePath()).path()));
    QCOMPARE(QProcess::execute(QStringLiteral("mkfifo"), {memoryFilePath()}), 0);
    QVERIFY(remembered(key).isUndefined()); // and it does not wait
    remember(key, 1);
    QVERIFY(remembered(key).isUndefined());
    QVERIFY(QFile::remove(memoryFilePath()));
#else
    QSKIP("There are no pipes among the files here.");
#endif
}

void TestMemoryFile::aFullFileSystemKeepsIt()
{
    const OwnFileSystem full(65536);
    if (!full.isMounted())
        QSKIP("This system mounts no file system for a test.");
    const QString folder = QFileInfo(memoryFilePath()).path();
    QVERIFY(QDir().mkpath(QFileInfo(folder).path()));
    QVERIFY(QFile::link(full.path(), folder));
    remember(key, 1);
    full.fill("another");
    remember(key, 2);
    QCOMPARE(remembered(key).toInt(), 1);
    QVERIFY(QFile::remove(full.path("another")));
    remember(key, 3);
    QCOMPARE(remembered(key).toInt(), 3);
    QVERIFY(QFile::remove(folder));
}

QTEST_MAIN(TestMemoryFile)
#include "tst_memoryfile.moc"
