// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QtTest>

// The launcher of the archiver, with small scripts in the place of the archivers.
class TestArchiver : public QObject {
    Q_OBJECT

private:
    struct Outcome {
        int exitCode = -1;
        QByteArray output;
        QByteArray errors;
    };

    std::unique_ptr<QTemporaryDir> m_folder;

    void install(const char *name, const char *script)
    {
        QFile file(m_folder->filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n");
        file.write(script);
        file.close();
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }

    static Outcome launch(
        const QStringList &arguments, const QString &searchPath, const QByteArray &input = {})
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PATH"), searchPath);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(ARCHIVER), arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(20000) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {
            process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void firstInstalledArchiverRuns_data()
    {
        QTest::addColumn<QByteArray>("installed");
        QTest::addColumn<QByteArray>("runs");
        QTest::newRow("7z before all others") << QByteArray("7zr 7za 7zz 7z") << QByteArray("7z\n");
        QTest::newRow("7zz where there is no 7z")
            << QByteArray("7zr 7za 7zz") << QByteArray("7zz\n");
        QTest::newRow("7za where there is neither") << QByteArray("7zr 7za") << QByteArray("7za\n");
        QTest::newRow("7zr where it is the only one") << QByteArray("7zr") << QByteArray("7zr\n");
    }

    void firstInstalledArchiverRuns()
    {
        QFETCH(QByteArray, installed);
        QFETCH(QByteArray, runs);
        for (const QByteArray &name : installed.split(' '))
            install(name.constData(), "echo \"${0##*/}\"\n");
        const Outcome outcome = launch({}, m_folder->path());
        QCOMPARE(outcome.output, runs);
        QCOMPARE(outcome.exitCode, 0);
    }

    void argumentsArriveUnchanged()
    {
        install("7z", "printf '<%s>' \"$@\"\n");
        const Outcome outcome
            = launch({QStringLiteral("e"), QStringLiteral("/a b/\"c\" $HOME *.zip"), QString(),
                         QStringLiteral("-o/tmp/files1")},
                m_folder->path());
        QCOMPARE(outcome.output, QByteArray("<e></a b/\"c\" $HOME *.zip><><-o/tmp/files1>"));
    }

    void inputOutputAndExitCodeAreThoseOfTheArchiver()
    {
        install("7z", "read answer; echo \"read $answer\"; echo complaint >&2; exit 7\n");
        const Outcome outcome = launch({}, m_folder->path(), "A\n");
        QCOMPARE(outcome.output, QByteArray("read A\n"));
        QCOMPARE(outcome.errors, QByteArray("complaint\n"));
        QCOMPARE(outcome.exitCode, 7);
    }

    void whatCannotRunIsPassedOver()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("7z")));
        QFile text(m_folder->filePath(QStringLiteral("7zz")));
        QVERIFY(text.open(QIODevice::WriteOnly));
        install("7za", "echo third\n");
        QCOMPARE(launch({}, m_folder->path()).output, QByteArray("third\n"));
    }

    void saysSoWhereNoneIsInstalled()
    {
        const Outcome outcome = launch({QStringLiteral("e")}, m_folder->path());
        QCOMPARE(outcome.errors, QByteArray("Error: no archiver is installed\n"));
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.exitCode, 2);
    }

    // The viewer puts the launcher's own folder first in the search path.
    void doesNotFindItself()
    {
        const QString own = QFileInfo(QStringLiteral(ARCHIVER)).path();
        QCOMPARE(launch({}, own).exitCode, 2);
        install("7z", "echo archiver\n");
        const Outcome outcome = launch({}, own + QLatin1Char(':') + m_folder->path());
        QCOMPARE(outcome.output, QByteArray("archiver\n"));
    }

    void standsBesideTheViewerUnderTheArchiversName()
    {
        QCOMPARE(QFileInfo(QStringLiteral(ARCHIVER)).fileName(), QStringLiteral("7z.exe"));
        QCOMPARE(
            QFileInfo(QStringLiteral(ARCHIVER)).path(), QCoreApplication::applicationDirPath());
    }
};

QTEST_GUILESS_MAIN(TestArchiver)
#include "tst_archiver.moc"
