// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packageunpacker.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

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

private:
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
    QTest::newRow("plain path") << QStringLiteral("/rec/device.zip");
    QTest::newRow("blanks stay within their argument") << QStringLiteral("/my rec/a b.zip");
}

void TestPackageUnpacker::startsTheArchiver()
{
    QFETCH(QString, package);
    useScript(QByteArray());
    unpack(package);
    QCOMPARE(m_unpacker->process()->program(), QStringLiteral("7z.exe"));
    QCOMPARE(m_unpacker->process()->arguments(),
        QStringList({QStringLiteral("e"), package, QStringLiteral("-aoa"),
            QLatin1String("-o") + unpackingFolder(1)}));
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
        QVERIFY(!m_unpacker->isUnableToStart());
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
    QVERIFY(!m_unpacker->isUnableToStart());
    qputenv("PATH", "");
    m_unpacker->start(QStringLiteral("device.zip"));
    QTRY_VERIFY(m_unpacker->isUnableToStart());
    QVERIFY(m_unpacker->isBusy());
    qputenv("PATH", QFile::encodeName(m_folder->path()) + ':' + m_searchPath);
    useScript(QByteArray());
    unpack(QStringLiteral("device.zip"));
    QVERIFY(!m_unpacker->isUnableToStart());
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

QTEST_GUILESS_MAIN(TestPackageUnpacker)
#include "tst_packageunpacker.moc"
