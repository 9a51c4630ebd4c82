// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "temporaryfolder.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

bool makeFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("x") == 1;
}

} // namespace

class TestTemporaryFolder : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void baseLiesInTheApplicationsDataFolder();
    void numbering_data();
    void numbering();
    void twoInstancesGetFoldersOfTheirOwn();
    void removesAFolderWithAllInIt();
    void removesASingleFile();
    void emptyPathRemovesNothing();
    void missingPathRemovesNothing();
    void keepsHiddenEntriesAndTheirFolders();
    void linkIsRemovedAndNotFollowed_data();
    void linkIsRemovedAndNotFollowed();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestTemporaryFolder::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestTemporaryFolder::cleanup()
{
    m_folder.reset();
}

void TestTemporaryFolder::baseLiesInTheApplicationsDataFolder()
{
    qputenv("XDG_DATA_HOME", m_folder->path().toLocal8Bit());
    QCoreApplication::setOrganizationName(QStringLiteral("Norvale"));
    QCoreApplication::setApplicationName(QStringLiteral("Wavorin"));
    const QString expected = path(QStringLiteral("Norvale/Wavorin/tmp/files"));
    for (int time = 0; time < 2; ++time) { // the second time it exists
        QCOMPARE(temporaryFolderBase(), expected);
        QVERIFY(QFileInfo(expected).isDir());
    }
}

void TestTemporaryFolder::numbering_data()
{
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("begins at 1") << QStringList{} << QStringList{} << QStringLiteral("files1");
    QTest::newRow("the folder without number does not count")
        << QStringList{QStringLiteral("files")} << QStringList{} << QStringLiteral("files1");
    QTest::newRow("takes the number after the folders in use")
        << QStringList{QStringLiteral("files1"), QStringLiteral("files2")} << QStringList{}
        << QStringLiteral("files3");
    QTest::newRow("takes the first gap")
        << QStringList{QStringLiteral("files1"), QStringLiteral("files3")} << QStringList{}
        << QStringLiteral("files2");
    QTest::newRow("a file of that name is in nobody's use")
        << QStringList{} << QStringList{QStringLiteral("files1")} << QStringLiteral("files1");
}

void TestTemporaryFolder::numbering()
{
    QFETCH(QStringList, folders);
    QFETCH(QStringList, files);
    QFETCH(QString, chosen);
    for (const QString &name : qAsConst(folders))
        QVERIFY(QDir().mkdir(path(name)));
    for (const QString &name : qAsConst(files))
        QVERIFY(makeFile(path(name)));
    QCOMPARE(freeTemporaryFolder(path(QStringLiteral("files"))), path(chosen));
    QVERIFY(!QFileInfo(path(chosen)).isDir());
}

void TestTemporaryFolder::twoInstancesGetFoldersOfTheirOwn()
{
    const QString base = path(QStringLiteral("files"));
    const QString first = freeTemporaryFolder(base);
    QVERIFY(QDir().mkdir(first));
    QCOMPARE(first, path(QStringLiteral("files1")));
    QCOMPARE(freeTemporaryFolder(base), path(QStringLiteral("files2")));
}

void TestTemporaryFolder::removesAFolderWithAllInIt()
{
    QVERIFY(QDir().mkpath(path(QStringLiteral("t/one/two"))));
    QVERIFY(makeFile(path(QStringLiteral("t/a.cfg"))));
    QVERIFY(makeFile(path(QStringLiteral("t/one/two/b.dat"))));
    QVERIFY(makeFile(path(QStringLiteral("beside"))));
    removeRecursively(path(QStringLiteral("t")));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("t"))));
    QVERIFY(QFileInfo::exists(path(QStringLiteral("beside"))));
}

void TestTemporaryFolder::removesASingleFile()
{
    QVERIFY(makeFile(path(QStringLiteral("t"))));
    removeRecursively(path(QStringLiteral("t")));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("t"))));
}

void TestTemporaryFolder::emptyPathRemovesNothing()
{
    QVERIFY(makeFile(path(QStringLiteral("kept"))));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    removeRecursively(QString());
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(QFileInfo::exists(path(QStringLiteral("kept"))));
}

void TestTemporaryFolder::missingPathRemovesNothing()
{
    QVERIFY(makeFile(path(QStringLiteral("kept"))));
    removeRecursively(path(QStringLiteral("missing")));
    QVERIFY(QFileInfo::exists(path(QStringLiteral("kept"))));
}

void TestTemporaryFolder::keepsHiddenEntriesAndTheirFolders()
{
    QVERIFY(QDir().mkpath(path(QStringLiteral("t/one"))));
    QVERIFY(makeFile(path(QStringLiteral("t/one/.hidden"))));
    QVERIFY(makeFile(path(QStringLiteral("t/one/a.cfg"))));
    QVERIFY(makeFile(path(QStringLiteral("t/b.cfg"))));
    removeRecursively(path(QStringLiteral("t")));
    QVERIFY(QFileInfo::exists(path(QStringLiteral("t/one/.hidden"))));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("t/one/a.cfg"))));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("t/b.cfg"))));
}

void TestTemporaryFolder::linkIsRemovedAndNotFollowed_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("removed");
    QTest::newRow("a link to a folder outside")
        << QStringLiteral("outside") << QStringLiteral("t/link") << QStringLiteral("t");
    QTest::newRow("a link to a file outside")
        << QStringLiteral("outside/kept") << QStringLiteral("t/link") << QStringLiteral("t");
    QTest::newRow("a link that leads nowhere")
        << QStringLiteral("nowhere") << QStringLiteral("t/link") << QStringLiteral("t");
    QTest::newRow("a link to the folder that holds it")
        << QStringLiteral("t") << QStringLiteral("t/link") << QStringLiteral("t");
    QTest::newRow("the path itself is a link")
        << QStringLiteral("outside") << QStringLiteral("link") << QStringLiteral("link");
}

void TestTemporaryFolder::linkIsRemovedAndNotFollowed()
{
#ifdef Q_OS_UNIX
    QFETCH(QString, target);
    QFETCH(QString, link);
    QFETCH(QString, removed);
    QVERIFY(QDir().mkdir(path(QStringLiteral("outside"))));
    QVERIFY(makeFile(path(QStringLiteral("outside/kept"))));
    QVERIFY(QDir().mkdir(path(QStringLiteral("t"))));
    QVERIFY(QFile::link(path(target), path(link)));
    removeRecursively(path(removed));
    QVERIFY(!QFileInfo(path(removed)).isSymLink());
    QVERIFY(!QFileInfo::exists(path(removed)));
    QVERIFY(QFileInfo::exists(path(QStringLiteral("outside/kept"))));
#else
    QSKIP("Symbolic links need rights of their own on this platform.");
#endif
}

QTEST_GUILESS_MAIN(TestTemporaryFolder)
#include "tst_temporaryfolder.moc"
