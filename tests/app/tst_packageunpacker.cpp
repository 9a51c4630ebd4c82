// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packageunpacker.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtTest>

#include <csignal>
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
        }
        output << Qt::endl;
        input.readLine();
        unpacker.stop();
        output << "stopped" << Qt::endl;
    }
}

} // namespace

// The archiver is a script of its name, first in the search path.
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

    // The number that a script has written there, 0 while there is none.
    int numberIn(const char *file) const
    {
        QFile text(path(file));
        return text.open(QIODevice::ReadOnly) ? text.readAll().trimmed().toInt() : 0;
    }

    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }

    static QString unpackingFolder(int number)
    {
        return temporaryFolderBase() + QString::number(number);
    }

    void useScript(const QByteArray &script)
    {
        QFile file(path("7z.exe"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
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
    qputenv("PATH", QFile::encodeName(m_folder->path()) + ':' + m_searchPath);
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->path()));
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
    useScript(QByteArray());
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
    useScript(QByteArray());
    QVERIFY(!QFileInfo::exists(unpackingFolder(1)));
    unpack(QStringLiteral("device.zip"));
    QVERIFY(QFileInfo(unpackingFolder(1)).isDir());
}

void TestPackageUnpacker::emptyPathStartsNothing()
{
    useScript(QByteArray());
    m_unpacker->start(QString());
    QVERIFY(!m_unpacker->isBusy());
    QCOMPARE(m_unpacker->process()->state(), QProcess::NotRunning);
    QVERIFY(!QFileInfo::exists(unpackingFolder(1)));
}

void TestPackageUnpacker::busyUntilTheArchiverEnds()
{
    useScript("while [ ! -e \"$2\" ]; do sleep 0.02; done\nexit 2\n");
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
    useScript("echo 'Overwrite (Y)es / (A)lways?'\nread answer\n"
              "printf '%s' \"$answer\" > \"${4#-o}/seen\"\n");
    unpack(QStringLiteral("device.zip"));
    QFile seen(unpackingFolder(1) + QLatin1String("/seen"));
    QVERIFY(seen.open(QIODevice::ReadOnly));
    QCOMPARE(seen.readAll(), QByteArray("A\r"));
}

void TestPackageUnpacker::eachPackageIsInvalidOnce()
{
    useScript("case \"$2\" in bad*) echo Error; echo error >&2; sleep 0.1; echo ERROR;; esac\n");
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
    QTest::addColumn<QByteArray>("made"); // in the folder, by the shell
    QTest::addColumn<QString>("found");
    QTest::newRow("nothing") << QByteArray("") << QString();
    QTest::newRow("one") << QByteArray("touch a.dat rec.cfg z.txt") << QStringLiteral("rec.cfg");
    QTest::newRow("capitals") << QByteArray("touch REC.CFG REC.DAT") << QStringLiteral("REC.CFG");
    QTest::newRow("a folder of that name") << QByteArray("mkdir rec.cfg") << QString();
    QTest::newRow("ending in the middle") << QByteArray("touch rec.cfg.bak") << QString();
}

void TestPackageUnpacker::configurationIsTheFirstFound()
{
    QFETCH(QByteArray, made);
    QFETCH(QString, found);
    useScript("cd \"${4#-o}\"\n" + made + '\n');
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
    qputenv("PATH", QFile::encodeName(m_folder->path()) + ':' + m_searchPath);
    useScript(QByteArray());
    unpack(QStringLiteral("device.zip"));
}

void TestPackageUnpacker::stopKillsTheArchiverAndRemovesTheFolder()
{
    useScript("touch \"${4#-o}/rec.cfg\"\nexec sleep 60\n");
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
    useScript("echo Error\ntouch \"${4#-o}/rec.cfg\"\nexec sleep 60\n");
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
    useScript("sleep 60 &\necho $! > \"" + QFile::encodeName(path("pid")) + "\"\nwait\n");
    m_unpacker->start(QStringLiteral("device.zip"));
    QTRY_VERIFY(numberIn("pid") > 0);
    m_unpacker->stop();
    QTRY_VERIFY(kill(numberIn("pid"), 0) != 0);
}

// Two programs start and unpack at the same instant.
void TestPackageUnpacker::racedPairsNeverMix()
{
    useScript("printf %s \"$2\" > \"${4#-o}/rec.cfg\"\n");
    const auto first = otherInstance();
    const auto second = otherInstance();
    for (int pair = 0; pair < 200; ++pair) {
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
    useScript("printf x > \"${4#-o}/rec.cfg\"\n[ \"$2\" = good.zip ] || { echo $$ > \""
        + QFile::encodeName(path("pid")) + "\"; exec sleep 60; }\n");
    const auto crashing = otherInstance();
    crashing->write("hang.zip\n");
    crashing->waitForBytesWritten();
    QTRY_VERIFY(numberIn("pid") > 0);
    const auto living = otherInstance();
    living->write("good.zip\n");
    QCOMPARE(answerOf(*living), unpackingFolder(2) + QLatin1String("|rec.cfg|x"));
    crashing->kill();
    QVERIFY(crashing->waitForFinished());
    QVERIFY(QFileInfo::exists(unpackingFolder(1) + QLatin1String("/rec.cfg")));
#ifdef Q_OS_LINUX
    QTRY_VERIFY(kill(numberIn("pid"), 0) != 0);
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
