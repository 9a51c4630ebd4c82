// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packageunpacker.h"
#include "playedarchiver.h"

#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtTest>

#include <memory>

namespace {

const QString serveOption = QStringLiteral("--serve"); // has this program do what follows

// Unpacks each package that is named, prints the folder, its files and what is in the first one,
// and removes them at the next line. An empty line ends it.
void serve()
{
    QTextStream input(stdin);
    QTextStream output(stdout);
    for (QString package; !(package = input.readLine()).isEmpty();) {
        QObject owner;
        PackageUnpacker unpacker(&owner);
        QObject::connect(unpacker.process(),
            QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &unpacker,
            &PackageUnpacker::end);
        unpacker.start(package);
        while (unpacker.isBusy())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QFile file(unpacker.configuration());
        const QDir folder = QFileInfo(file).dir();
        if (file.open(QIODevice::ReadOnly)) {
            output << folder.path() << '|' << folder.entryList(QDir::Files).join(QLatin1Char(' '))
                   << '|' << file.readAll();
            file.close(); // or Windows keeps it
        }
        output << Qt::endl;
        input.readLine();
        unpacker.stop();
        output << "stopped" << Qt::endl;
    }
}

} // namespace

// The archiver is a program of its name, first in the search path.
class TestPackageUnpacker : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void startsTheArchiver_data();
    void startsTheArchiver();
    void folderIsMadeAtTheFirstPackage();
    void emptyPathStartsNothing();
    void busyUntilTheArchiverEnds();
    void questionsAreAnswered();
    void eachPackageIsInvalidOnce();
    void configurationIsTheFirstFound_data();
    void configurationIsTheFirstFound();
    void archiverThatCannotStart();
    void stopKillsTheArchiverAndRemovesTheFolder();
    void nothingIsHeardAfterStop();
    void stopEndsWhatTheArchiverHasStarted();
    void archiverMayWaitForAllThatItHasStarted();
    void aCrashEndsWhatTheArchiverHasStarted_data();
    void aCrashEndsWhatTheArchiverHasStarted();
    void racedPairsNeverMix();
    void aCrashLeavesNothing();

private:
    // Another instance, which unpacks the packages whose paths it is sent, each one as it would be
    // after a start of its own.
    static std::unique_ptr<QProcess> otherInstance()
    {
        auto process = std::make_unique<QProcess>();
        process->start(QCoreApplication::applicationFilePath(), {serveOption});
        return process;
    }

    static QString answerOf(QProcess &instance)
    {
        while (!instance.canReadLine() && instance.waitForReadyRead()) { }
        return QString::fromLocal8Bit(instance.readLine()).trimmed();
    }

    static void end(QProcess &instance)
    {
        instance.write("\n\n");
        QVERIFY(instance.waitForFinished());
    }

    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QByteArray encodedPath(const char *name) const { return QFile::encodeName(path(name)); }

    static QString unpackingFolder(int number)
    {
        return temporaryFolderBase() + QString::number(number);
    }

    void play(const QByteArray &lines) const { playArchiver(lines, m_searchPath); }

    // Has the shell do it instead.
    void useScript(const QByteArray &script) const
    {
        QFile file(path("7z.exe"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(m_folder->path()) + ':' + m_searchPath);
    }

    // Starts it and waits for its end.
    void unpack(const QString &package)
    {
        m_unpacker->start(package);
        QTRY_VERIFY(!m_unpacker->isBusy());
    }

    QByteArray m_searchPath;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QObject> m_owner;
    PackageUnpacker *m_unpacker = nullptr;
};

void TestPackageUnpacker::initTestCase()
{
    m_searchPath = qgetenv("PATH");
}

void TestPackageUnpacker::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->path()));
    QDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation))
        .removeRecursively(); // where that cannot be moved
    m_owner = std::make_unique<QObject>();
    m_unpacker = new PackageUnpacker(m_owner.get());
    connect(m_unpacker->process(), &QProcess::readyRead, m_unpacker, &PackageUnpacker::readOutput);
    connect(m_unpacker->process(), QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
        m_unpacker, &PackageUnpacker::end);
}

void TestPackageUnpacker::cleanup()
{
    m_unpacker->stop();
    m_owner.reset();
}

void TestPackageUnpacker::startsTheArchiver_data()
{
    QTest::addColumn<QString>("package");
    QTest::addColumn<QString>("handedOver");
    const auto asItIs = [](const char *name, const QString &package) {
        QTest::newRow(name) << package << package;
    };
    asItIs("plain path", QStringLiteral("/rec/device.zip"));
    asItIs("blanks stay within their argument", QStringLiteral("/my rec/a b.zip"));
    asItIs("brackets", QStringLiteral("/rec/[a]{b}.zip"));
    asItIs("a hyphen further on", QStringLiteral("/rec/-a.zip"));
    const QString own = QStringLiteral("files1.zip");
    QTest::newRow("an asterisk") << QStringLiteral("/rec/p*.zip") << own;
    QTest::newRow("a question mark in a folder") << QStringLiteral("/rec?/p.zip") << own;
    QTest::newRow("a hyphen at the beginning") << QStringLiteral("-x.zip") << own;
    QTest::newRow("an at sign at the beginning") << QStringLiteral("@x.zip") << own;
}

void TestPackageUnpacker::startsTheArchiver()
{
    QFETCH(QString, package);
    QFETCH(QString, handedOver);
    play({});
    unpack(package);
    QCOMPARE(m_unpacker->process()->program(), QStringLiteral("7z.exe"));
    QCOMPARE(m_unpacker->process()->arguments(),
        QStringList({QStringLiteral("e"),
            handedOver == package ? package : unpackingFolder(1) + QLatin1String(".zip"),
            QStringLiteral("-aoa"), QLatin1String("-o") + unpackingFolder(1)}));
    QCOMPARE(m_unpacker->process()->parent(), m_owner.get());
}

void TestPackageUnpacker::folderIsMadeAtTheFirstPackage()
{
    play({});
    QVERIFY(!QFileInfo::exists(unpackingFolder(1)));
    unpack(QStringLiteral("device.zip"));
    QVERIFY(QFileInfo(unpackingFolder(1)).isDir());
}

void TestPackageUnpacker::emptyPathStartsNothing()
{
    play({});
    m_unpacker->start(QString());
    QVERIFY(!m_unpacker->isBusy());
    QCOMPARE(m_unpacker->process()->state(), QProcess::NotRunning);
    QVERIFY(!QFileInfo::exists(unpackingFolder(1)));
}

void TestPackageUnpacker::busyUntilTheArchiverEnds()
{
    play("await %p\nexit 2\n");
    for (const char *package : {"first.zip", "second.zip"}) {
        m_unpacker->start(path(package));
        QTest::qWait(100);
        QVERIFY(m_unpacker->isBusy());
        QVERIFY(QDir().mkdir(path(package)));
        QTRY_VERIFY(!m_unpacker->isBusy());
    }
}

void TestPackageUnpacker::questionsAreAnswered()
{
    play("print Overwrite (Y)es / (A)lways?\nask %o/seen\n");
    unpack(QStringLiteral("device.zip"));
    QFile seen(unpackingFolder(1) + QLatin1String("/seen"));
    QVERIFY(seen.open(QIODevice::ReadOnly));
    QCOMPARE(seen.readAll(), QByteArray("A\r"));
}

void TestPackageUnpacker::eachPackageIsInvalidOnce()
{
    play("only bad\nprint Error\ncomplain error\nsleep 100\nprint ERROR\n");
    const QSignalSpy invalid(m_unpacker, &PackageUnpacker::packageInvalid);
    unpack(QStringLiteral("good.zip"));
    QCOMPARE(invalid.count(), 0);
    unpack(QStringLiteral("bad.zip"));
    QCOMPARE(invalid.count(), 1);
    unpack(QStringLiteral("bad.zip"));
    QCOMPARE(invalid.count(), 2);
    unpack(QStringLiteral("good.zip"));
    QCOMPARE(invalid.count(), 2);
}

void TestPackageUnpacker::configurationIsTheFirstFound_data()
{
    QTest::addColumn<QByteArray>("made"); // in the folder, by the archiver
    QTest::addColumn<QString>("found");
    QTest::newRow("nothing") << QByteArray("") << QString();
    QTest::newRow("one") << QByteArray("file %o/a.dat\nfile %o/rec.cfg\nfile %o/z.txt")
                         << QStringLiteral("rec.cfg");
    QTest::newRow("capitals") << QByteArray("file %o/REC.CFG\nfile %o/REC.DAT")
                              << QStringLiteral("REC.CFG");
    QTest::newRow("a folder of that name") << QByteArray("folder %o/rec.cfg") << QString();
    QTest::newRow("ending in the middle") << QByteArray("file %o/rec.cfg.bak") << QString();
}

void TestPackageUnpacker::configurationIsTheFirstFound()
{
    QFETCH(QByteArray, made);
    QFETCH(QString, found);
    play(made);
    unpack(QStringLiteral("device.zip"));
    QCOMPARE(m_unpacker->configuration(),
        found.isEmpty() ? QString() : unpackingFolder(1) + QLatin1Char('/') + found);
}

void TestPackageUnpacker::archiverThatCannotStart()
{
    qputenv("PATH", "");
    m_unpacker->start(QStringLiteral("device.zip"));
    QTest::qWait(100);
    QCOMPARE(m_unpacker->process()->error(), QProcess::FailedToStart);
    QVERIFY(m_unpacker->isBusy());
    m_unpacker->stop();
    QVERIFY(!m_unpacker->isBusy());
    play({});
    unpack(QStringLiteral("device.zip"));
}

void TestPackageUnpacker::stopKillsTheArchiverAndRemovesTheFolder()
{
    play("file %o/rec.cfg\nsleep 60000\n");
    m_unpacker->start(QStringLiteral("device.zip"));
    QTRY_VERIFY(!m_unpacker->configuration().isEmpty());
    m_unpacker->stop();
    QVERIFY(!m_unpacker->isBusy());
    QCOMPARE(m_unpacker->process()->state(), QProcess::NotRunning);
    QVERIFY(!QFileInfo::exists(unpackingFolder(1)));
    m_unpacker->stop(); // does no harm
}

void TestPackageUnpacker::nothingIsHeardAfterStop()
{
    play("print Error\nfile %o/rec.cfg\nsleep 60000\n");
    const QSignalSpy invalid(m_unpacker, &PackageUnpacker::packageInvalid);
    m_unpacker->start(QStringLiteral("device.zip"));
    while (m_unpacker->configuration().isEmpty())
        QThread::msleep(5); // handles no events, so that nothing reads what is said
    m_unpacker->stop();
    QTest::qWait(50);
    QCOMPARE(invalid.count(), 0);
}

// The archiver may be a script that calls the program proper.
void TestPackageUnpacker::stopEndsWhatTheArchiverHasStarted()
{
#ifdef Q_OS_WIN
    QSKIP("There the archiver is the program proper.");
#endif
    play("run sleep 60 & echo $! > '" + encodedPath("pid") + "'; wait\n");
    m_unpacker->start(QStringLiteral("device.zip"));
    QTRY_VERIFY(QFileInfo(path("pid")).size() > 0);
    QVERIFY(!hasEnded(path("pid")));
    m_unpacker->stop();
    QTRY_VERIFY(hasEnded(path("pid")));
}

// What watches over the archiver is none of its children.
void TestPackageUnpacker::archiverMayWaitForAllThatItHasStarted()
{
#ifndef Q_OS_LINUX
    QSKIP("Nothing watches over it there.");
#endif
    useScript("exec perl -e '1 while wait() > 0; open my $f, \">\", $ARGV[0]' '"
        + encodedPath("waited") + "'\n");
    unpack(QStringLiteral("device.zip"));
    QVERIFY(QFileInfo::exists(path("waited")));
}

void TestPackageUnpacker::aCrashEndsWhatTheArchiverHasStarted_data()
{
    QTest::addColumn<QByteArray>("script"); // PID stands for the file of the number
    QTest::newRow("a program in its place") << QByteArray("echo $$ > PID\nexec sleep 60\n");
    QTest::newRow("a child") << QByteArray("sleep 60 &\necho $! > PID\nwait\n");
    QTest::newRow("a child of a child")
        << QByteArray("sh -c 'sleep 60 & echo $! > PID; wait' &\nwait\n");
    QTest::newRow("a child that ignores that a terminal ends")
        << QByteArray("trap '' HUP TERM\nsleep 60 &\necho $! > PID\nwait\n");
}

void TestPackageUnpacker::aCrashEndsWhatTheArchiverHasStarted()
{
#ifndef Q_OS_LINUX
    QSKIP("Only Linux tells a process of the end of another.");
#endif
    QFETCH(QByteArray, script);
    useScript(script.replace("PID", encodedPath("pid")));
    const auto crashing = otherInstance();
    crashing->write("hang.zip\n");
    crashing->waitForBytesWritten();
    QTRY_VERIFY(QFileInfo(path("pid")).size() > 0);
    QVERIFY(!hasEnded(path("pid")));
    crashing->kill();
    QVERIFY(crashing->waitForFinished());
    QTRY_VERIFY(hasEnded(path("pid")));
}

// Two programs start and unpack at the same instant.
void TestPackageUnpacker::racedPairsNeverMix()
{
    play("file %o/rec.cfg|%p\n");
    const auto first = otherInstance();
    const auto second = otherInstance();
#ifdef Q_OS_WIN
    const int pairs = 20; // programs begin slowly there
#else
    const int pairs = 200;
#endif
    for (int pair = 0; pair < pairs; ++pair) {
        for (const char *package : {"a.zip\n", "b.zip\n"})
            (*package == 'a' ? first : second)->write(package);
        first->waitForBytesWritten(); // the bytes of both are on their way from here on
        second->waitForBytesWritten();
        const QStringList a = answerOf(*first).split(QLatin1Char('|'));
        const QStringList b = answerOf(*second).split(QLatin1Char('|'));
        QCOMPARE(a.size(), 3);
        QCOMPARE(b.size(), 3);
        const QSet<QString> folders{a.at(0), b.at(0)};
        QCOMPARE(folders, QSet<QString>({unpackingFolder(1), unpackingFolder(2)}));
        QCOMPARE(a.mid(1), QStringList({QStringLiteral("rec.cfg"), QStringLiteral("a.zip")}));
        QCOMPARE(b.mid(1), QStringList({QStringLiteral("rec.cfg"), QStringLiteral("b.zip")}));
        for (const auto *instance : {&first, &second}) {
            (*instance)->write("\n");
            (*instance)->waitForBytesWritten();
        }
        QCOMPARE(answerOf(*first), QStringLiteral("stopped"));
        QCOMPARE(answerOf(*second), QStringLiteral("stopped"));
        QVERIFY(!QFileInfo::exists(unpackingFolder(1)) && !QFileInfo::exists(unpackingFolder(2)));
    }
    end(*first);
    end(*second);
}

// A third instance starts after one of two has crashed while it unpacked.
void TestPackageUnpacker::aCrashLeavesNothing()
{
    play("file %o/rec.cfg|x\nonly hang\nfile " + encodedPath("pid") + "|%i\nsleep 60000\n");
    const auto crashing = otherInstance();
    crashing->write("hang.zip\n");
    crashing->waitForBytesWritten();
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(path("pid")).size() > 0, 20000);
    QVERIFY(!hasEnded(path("pid")));
    const auto living = otherInstance();
    living->write("good.zip\n");
    QCOMPARE(answerOf(*living), unpackingFolder(2) + QLatin1String("|rec.cfg|x"));
    crashing->kill();
    QVERIFY(crashing->waitForFinished());
    QVERIFY(QFileInfo::exists(unpackingFolder(1) + QLatin1String("/rec.cfg")));
#ifdef Q_OS_LINUX
    QTRY_VERIFY(hasEnded(path("pid")));
#endif

    const auto third = otherInstance();
    third->write("good.zip\n");
    QCOMPARE(answerOf(*third), unpackingFolder(1) + QLatin1String("|rec.cfg|x"));
    end(*third);
    end(*living);
    QCOMPARE(QFileInfo(unpackingFolder(1))
                 .dir()
                 .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
                 .join(QLatin1Char(' ')),
        QStringLiteral("files"));
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == serveOption) {
        serve();
        return 0;
    }
    TestPackageUnpacker test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_packageunpacker.moc"
