// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ordinaryuser.h"
#include "temporaryfolder.h"

#include <QProcess>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThreadPool>
#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

bool makeFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("x") == 1;
}

const QString holdOption = QStringLiteral("--hold"); // has this program do what follows

// An instance that uses its folder until it is told to end. Leaves a file that is not its own.
void hold(const QString &base)
{
    TemporaryFolder folder(base);
    folder.renew();
    makeFile(folder.path() + QLatin1String("/.hidden"));
    const QString beside = QFileInfo(base).dir().filePath(QStringLiteral("beside"));
    makeFile(beside);
    QFile::link(beside, folder.path() + QLatin1String("/link"));
    folder.plainPath(beside);
    QTextStream(stdout) << "ready" << Qt::endl;
    QTextStream(stdin).readLine();
    folder.remove();
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
    void madeWhenItIsFirstUsed();
    void aFileOfThatNameGivesWay();
    void anotherInstanceWasFaster();
    void racedPairsNeverShare();
    void renewalEmptiesTheSameFolder();
    void whatCannotBeMovedIsLeftBehind();
    void nobodyWaitsForARemoval();
    void aDeadInstancesFolderIsRemoved_data();
    void aDeadInstancesFolderIsRemoved();
    void aLivingInstancesFolderStays();
    void aFolderWithoutLockStays();
    void removalsCutShortAreFinished();
    void plainPathLeadsToTheFile_data();
    void plainPathLeadsToTheFile();
    void writeProtectedPlainPathsGo();
    void onlyOwnFoldersAreRemoved();
    void lostParentIsMadeAgain();
    void whereNoFolderCanBeMade();
    void removesAFolderWithAllInIt();
    void removesASingleFile();
    void emptyPathRemovesNothing();
    void missingPathRemovesNothing();
    void keepsHiddenEntriesAndTheirFolders();
    void removesHiddenEntriesToo();
    void writeProtectionIsLifted_data();
    void writeProtectionIsLifted();
    void writeProtectionBehindALinkStays();
    void linkIsRemovedAndNotFollowed_data();
    void linkIsRemovedAndNotFollowed();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString base() const { return path(QStringLiteral("files")); }

    // What lies in the test's folder once all that was put away is gone.
    QStringList left() const
    {
        QThreadPool::globalInstance()->waitForDone();
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    // Another instance that has made its folder and put files there.
    std::unique_ptr<QProcess> otherInstance() const
    {
        auto process = std::make_unique<QProcess>();
        process->start(QCoreApplication::applicationFilePath(), {holdOption, base()});
        process->waitForReadyRead();
        return process;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestTemporaryFolder::init()
{
    // In memory where there is such a place: many files are made.
    QString place = QDir::tempPath();
#ifdef Q_OS_UNIX
    if (const QString memory = QStringLiteral("/dev/shm"); QFileInfo(memory).isWritable())
        place = memory;
#endif
    m_folder = std::make_unique<QTemporaryDir>(place + QLatin1String("/XXXXXX"));
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
#ifdef Q_OS_WIN
    const QString place = QDir::fromNativeSeparators(qEnvironmentVariable("LOCALAPPDATA"));
#else
    const QString place = m_folder->path();
#endif
    const QString expected = place + QLatin1String("/Norvale/Wavorin/tmp/files");
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

void TestTemporaryFolder::madeWhenItIsFirstUsed()
{
    TemporaryFolder folder(base());
    QCOMPARE(folder.path(), path(QStringLiteral("files1")));
    QVERIFY(!QFileInfo::exists(folder.path()));
    folder.renew();
    QCOMPARE(folder.path(), path(QStringLiteral("files1")));
    QVERIFY(QFileInfo(folder.path()).isDir());
    folder.remove();
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("files1"))));
}

void TestTemporaryFolder::aFileOfThatNameGivesWay()
{
    QVERIFY(makeFile(path(QStringLiteral("files1"))));
    TemporaryFolder folder(base());
    folder.renew();
    QCOMPARE(folder.path(), path(QStringLiteral("files1")));
    QVERIFY(QFileInfo(folder.path()).isDir());
}

void TestTemporaryFolder::anotherInstanceWasFaster()
{
    TemporaryFolder first(base());
    TemporaryFolder second(base());
    QCOMPARE(first.path(), second.path());
    second.renew();
    QVERIFY(makeFile(second.path() + QLatin1String("/a.cfg")));
    first.renew();
    QCOMPARE(second.path(), path(QStringLiteral("files1")));
    QCOMPARE(first.path(), path(QStringLiteral("files2")));
    QVERIFY(QFileInfo(first.path()).isDir());
    QVERIFY(QFileInfo::exists(path(QStringLiteral("files1/a.cfg"))));
    first.remove();
    QVERIFY(QFileInfo(path(QStringLiteral("files1"))).isDir());
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("files2"))));
}

// Both instances have chosen the same folder and begin at the same instant.
void TestTemporaryFolder::racedPairsNeverShare()
{
#ifdef Q_OS_WIN
    const int pairs = 20; // files are slow there
#else
    const int pairs = 200;
#endif
    for (int pair = 0; pair < pairs; ++pair) {
        const QString numbered = path(QStringLiteral("%1files").arg(pair));
        TemporaryFolder first(numbered);
        TemporaryFolder second(numbered);
        QCOMPARE(first.path(), second.path());
        std::atomic<int> ready{0};
        const auto renewTogether = [&ready](TemporaryFolder &folder) {
            ++ready;
            while (ready < 2) { } // a thread that waits in any other way comes too late
            folder.renew();
        };
        std::thread other([&] { renewTogether(second); });
        renewTogether(first);
        other.join();
        QSet<QString> taken{first.path(), second.path()};
        QVERIFY(taken.contains(numbered + QLatin1Char('1')));
        QVERIFY(taken.contains(numbered + QLatin1Char('2')));
        QVERIFY(QFileInfo(first.path()).isDir());
        QVERIFY(QFileInfo(second.path()).isDir());
    }
}

void TestTemporaryFolder::renewalEmptiesTheSameFolder()
{
    TemporaryFolder folder(base());
    for (int time = 0; time < 3; ++time) {
        folder.renew();
        QCOMPARE(folder.path(), path(QStringLiteral("files1")));
        QVERIFY(QDir(folder.path()).isEmpty());
        QVERIFY(makeFile(folder.path() + QLatin1String("/b.cfg")));
    }
}

// In a folder like the system's temporary one nobody moves what another user owns.
void TestTemporaryFolder::whatCannotBeMovedIsLeftBehind()
{
#ifdef Q_OS_UNIX
    if (geteuid() != 0)
        QSKIP("only the superuser can give folders away");
    QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 01777), 0);
    QVERIFY(QDir().mkdir(path(QStringLiteral("files3")))); // another instance's
    TemporaryFolder folder(base());
    for (const char *name : {"files1", "files2", "files4"}) {
        {
            const OrdinaryUser user;
            folder.renew();
            left(); // what is removed is removed by that user
            QCOMPARE(folder.path(), path(QLatin1String(name)));
            QVERIFY(QDir(folder.path()).isEmpty());
        }
        QVERIFY(makeFile(folder.path() + QLatin1String("/kept")));
        QCOMPARE(chown(QFile::encodeName(folder.path()).constData(), 0, 0), 0);
    }
    {
        const OrdinaryUser user;
        folder.remove();
        QCOMPARE(left().join(QLatin1Char(' ')), QStringLiteral("files1 files2 files3 files4"));
        folder.renew();
        QCOMPARE(folder.path(), path(QStringLiteral("files5")));
    }
#else
    QSKIP("Rights are other ones there.");
#endif
}

// However much there is to remove: here the thread for that has not even begun.
void TestTemporaryFolder::nobodyWaitsForARemoval()
{
    QThreadPool &pool = *QThreadPool::globalInstance();
    const int threads = pool.maxThreadCount();
    pool.setMaxThreadCount(1);
    QSemaphore goesOn;
    pool.start([&goesOn] { goesOn.acquire(); });
    TemporaryFolder folder(base());
    folder.renew();
    QVERIFY(makeFile(folder.path() + QLatin1String("/a.cfg")));
    folder.renew();
    const QString second = folder.path();
    const bool isEmpty = QDir(second).isEmpty();
    folder.remove();
    const int aside = QDir(m_folder->path()).entryList({QStringLiteral("files1.old-*")}).size();
    const bool isGone = !QFileInfo::exists(second);
    goesOn.release();
    const QStringList remaining = left();
    pool.setMaxThreadCount(threads);
    QCOMPARE(second, path(QStringLiteral("files1")));
    QVERIFY(isEmpty);
    QVERIFY(isGone);
    QCOMPARE(aside, 2);
    QCOMPARE(remaining, QStringList());
}

void TestTemporaryFolder::aDeadInstancesFolderIsRemoved_data()
{
    QTest::addColumn<int>("instances");
    QTest::newRow("of one") << 1;
    QTest::newRow("of three") << 3;
}

void TestTemporaryFolder::aDeadInstancesFolderIsRemoved()
{
    QFETCH(int, instances);
    std::vector<std::unique_ptr<QProcess>> others;
    for (int number = 1; number <= instances; ++number) {
        others.push_back(otherInstance());
        QVERIFY(QFileInfo(path(QStringLiteral("files%1/.hidden").arg(number))).isFile());
    }
    for (const auto &other : others) {
        other->kill();
        QVERIFY(other->waitForFinished());
    }
    QVERIFY(QFileInfo(path(QStringLiteral("files1"))).isDir());
    TemporaryFolder folder(base());
    QCOMPARE(folder.path(), path(QStringLiteral("files1")));
    QVERIFY(!QFileInfo::exists(folder.path())); // at once
    QCOMPARE(left().join(QLatin1Char(' ')), QStringLiteral("beside"));
}

void TestTemporaryFolder::aLivingInstancesFolderStays()
{
    const auto other = otherInstance();
    for (int time = 0; time < 2; ++time) {
        TemporaryFolder folder(base());
        QCOMPARE(folder.path(), path(QStringLiteral("files2")));
        folder.renew();
        QCOMPARE(folder.path(), path(QStringLiteral("files2")));
        folder.remove();
        QVERIFY(QFileInfo(path(QStringLiteral("files1/.hidden"))).isFile());
    }
    other->write("\n"); // it may end
    QVERIFY(other->waitForFinished());
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("files1"))));
    const TemporaryFolder next(base()); // removes the hidden file, which the other let stay
    QCOMPARE(left().join(QLatin1Char(' ')), QStringLiteral("beside"));
}

void TestTemporaryFolder::aFolderWithoutLockStays()
{
    QVERIFY(QDir().mkdir(path(QStringLiteral("files1"))));
    const TemporaryFolder folder(base());
    QCOMPARE(folder.path(), path(QStringLiteral("files2")));
    QCOMPARE(left().join(QLatin1Char(' ')), QStringLiteral("files1"));
}

// The machine was switched off while a thread removed what had been put away.
void TestTemporaryFolder::removalsCutShortAreFinished()
{
    QVERIFY(QDir().mkpath(path(QStringLiteral("files1.old-17/one"))));
    QVERIFY(makeFile(path(QStringLiteral("files1.old-17/one/.hidden"))));
    QVERIFY(QDir().mkpath(path(QStringLiteral("old-files"))));
    const TemporaryFolder folder(base());
    QCOMPARE(left().join(QLatin1Char(' ')), QStringLiteral("old-files"));
}

void TestTemporaryFolder::plainPathLeadsToTheFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("relative");
#ifndef Q_OS_WIN // whose names hold no such letters
    QTest::newRow("an asterisk") << QStringLiteral("p*.zip") << false;
    QTest::newRow("a question mark") << QStringLiteral("p?.zip") << false;
#endif
    QTest::newRow("a hyphen at the beginning") << QStringLiteral("-x.zip") << true;
}

void TestTemporaryFolder::plainPathLeadsToTheFile()
{
    QFETCH(QString, name);
    QFETCH(bool, relative);
    QVERIFY(QDir().mkdir(path(QStringLiteral("in"))));
    const QString file = path(QLatin1String("in/") + name);
    QVERIFY(makeFile(file));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(path(QStringLiteral("in"))));
    TemporaryFolder folder(base());
    folder.renew();
    const QString plain = folder.plainPath(relative ? name : file);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(plain, path(QStringLiteral("files1.zip")));
    QFile read(plain);
    QVERIFY(read.open(QIODevice::ReadOnly));
    QCOMPARE(read.readAll(), QByteArray("x"));
    read.close();
    folder.remove();
    QCOMPARE(left().join(QLatin1Char(' ')), QStringLiteral("in"));
    QVERIFY(QFileInfo(file).isFile());
}

// On Windows they are copies, protected like the file; on other systems links, which any protection
// of the file lets go.
void TestTemporaryFolder::writeProtectedPlainPathsGo()
{
    QVERIFY(QDir().mkdir(path(QStringLiteral("in"))));
    QVERIFY(makeFile(path(QStringLiteral("files1.zip")))); // of nobody
    TemporaryFolder folder(base());
    for (const char *content : {"one", "two"}) {
        const QString file = path(QLatin1String("in/-") + QLatin1String(content));
        QFile written(file);
        QVERIFY(written.open(QIODevice::WriteOnly));
        QCOMPARE(written.write(content), qint64(3));
        written.close();
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
        folder.renew();
        QFile read(folder.plainPath(file));
        QVERIFY(read.open(QIODevice::ReadOnly));
        QCOMPARE(read.readAll(), QByteArray(content));
        read.close();
        QVERIFY(!(QFile::permissions(file) & QFile::WriteOwner));
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner)); // for cleanup()
    }
    folder.remove();
    QCOMPARE(left().join(QLatin1Char(' ')), QStringLiteral("in"));
}

void TestTemporaryFolder::onlyOwnFoldersAreRemoved()
{
    TemporaryFolder folder(base());
    QVERIFY(QDir().mkdir(folder.path()));
    folder.remove();
    QVERIFY(QFileInfo(folder.path()).isDir());
    folder.renew();
    folder.remove();
    QVERIFY(QDir().mkdir(path(QStringLiteral("files2"))));
    folder.remove(); // its own one is gone
    QVERIFY(QFileInfo(path(QStringLiteral("files2"))).isDir());
}

void TestTemporaryFolder::lostParentIsMadeAgain()
{
#ifdef Q_OS_WIN
    QSKIP("Nobody removes a lock that is held there.");
#endif
    TemporaryFolder folder(path(QStringLiteral("tmp/files")));
    folder.renew();
    QVERIFY(QDir(path(QStringLiteral("tmp"))).removeRecursively());
    folder.renew();
    QCOMPARE(folder.path(), path(QStringLiteral("tmp/files1")));
    QVERIFY(QFileInfo(folder.path()).isDir());
}

void TestTemporaryFolder::whereNoFolderCanBeMade()
{
    QVERIFY(makeFile(path(QStringLiteral("tmp"))));
    TemporaryFolder folder(path(QStringLiteral("tmp/files")));
    folder.renew();
    QVERIFY(!QFileInfo::exists(folder.path()));
    folder.remove();
    QVERIFY(QFile::remove(path(QStringLiteral("tmp"))));
    folder.renew();
    QVERIFY(QFileInfo(folder.path()).isDir());
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
    QVERIFY(QDir().mkpath(path(QStringLiteral("t/.two"))));
    QVERIFY(makeFile(path(QStringLiteral("t/one/.hidden"))));
    QVERIFY(makeFile(path(QStringLiteral("t/one/a.cfg"))));
    QVERIFY(makeFile(path(QStringLiteral("t/.two/a.cfg"))));
    QVERIFY(makeFile(path(QStringLiteral("t/b.cfg"))));
    removeRecursively(path(QStringLiteral("t")));
    QVERIFY(QFileInfo::exists(path(QStringLiteral("t/one/.hidden"))));
    QVERIFY(QFileInfo::exists(path(QStringLiteral("t/.two/a.cfg"))));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("t/one/a.cfg"))));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("t/b.cfg"))));
}

void TestTemporaryFolder::removesHiddenEntriesToo()
{
    QVERIFY(QDir().mkpath(path(QStringLiteral("t/one"))));
    QVERIFY(QDir().mkpath(path(QStringLiteral("t/.two/...")))); // three dots are a name
    QVERIFY(makeFile(path(QStringLiteral("t/one/.hidden"))));
    QVERIFY(makeFile(path(QStringLiteral("t/.two/a.cfg"))));
    QVERIFY(makeFile(path(QStringLiteral("beside"))));
    removeRecursively(path(QStringLiteral("t")), Entries::All);
    QCOMPARE(left().join(QLatin1Char(' ')), QStringLiteral("beside"));
}

void TestTemporaryFolder::writeProtectionIsLifted_data()
{
    QTest::addColumn<QString>("protectedPath");
    QTest::addColumn<int>("permissions");
    QTest::newRow("a file") << "t/one/a.cfg" << int(QFile::ReadOwner);
    QTest::newRow("a folder") << "t/one" << int(QFile::ReadOwner | QFile::ExeOwner);
    QTest::newRow("the folder itself") << "t" << int(QFile::ReadOwner | QFile::ExeOwner);
#ifdef Q_OS_UNIX // elsewhere read-only is all that they can be
    QTest::newRow("a file that nobody may read") << "t/one/a.cfg" << 0;
    QTest::newRow("a folder that nobody may list")
        << "t/one" << int(QFile::WriteOwner | QFile::ExeOwner);
    QTest::newRow("a folder that nobody may enter") << "t/one" << 0;
#endif
}

void TestTemporaryFolder::writeProtectionIsLifted()
{
    QFETCH(QString, protectedPath);
    QFETCH(int, permissions);
    const OrdinaryUser user;
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(path(QStringLiteral("t/one"))));
    QVERIFY(makeFile(path(QStringLiteral("t/one/a.cfg"))));
    QVERIFY(QFile::setPermissions(path(protectedPath), QFile::Permissions(permissions)));
    removeRecursively(path(QStringLiteral("t")));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("t"))));
}

void TestTemporaryFolder::writeProtectionBehindALinkStays()
{
#ifdef Q_OS_WIN
    QSKIP("Symbolic links need rights of their own on this platform.");
#endif
    const OrdinaryUser user;
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(makeFile(path(QStringLiteral("kept"))));
    QVERIFY(QFile::setPermissions(path(QStringLiteral("kept")), QFile::ReadOwner));
    QVERIFY(QDir().mkdir(path(QStringLiteral("t"))));
    QVERIFY(QFile::link(path(QStringLiteral("kept")), path(QStringLiteral("t/link"))));
    removeRecursively(path(QStringLiteral("t")));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("t"))));
    QVERIFY(!(QFile::permissions(path(QStringLiteral("kept"))) & QFile::WriteOwner));
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

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == holdOption) {
        hold(arguments.value(2));
        return 0;
    }
    TestTemporaryFolder test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_temporaryfolder.moc"
