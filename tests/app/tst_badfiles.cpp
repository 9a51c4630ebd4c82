// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "openingfixture.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <functional>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using Change = std::function<void(const QString &stem)>;
Q_DECLARE_METATYPE(Change)

// Files that cannot be opened, that hold no recording, or that fail or change while they load.
class TestBadFiles : public OpeningFixture {
    Q_OBJECT

private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void unreadableFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason"); // on Windows the system's own, in its language
        QTest::newRow("no such file") << "none.cfg"
                                      << "No such file or directory";
        QTest::newRow("no such package") << "none.zip"
                                         << "No such file or directory";
        QTest::newRow("a folder") << "folder.cfg"
                                  << "file to open is a directory";
#ifdef Q_OS_UNIX
        QTest::newRow("no permission") << "secret.cfg"
                                       << "Permission denied";
        QTest::newRow("a link that leads nowhere") << "dangling.cfg"
                                                   << "No such file or directory";
        QTest::newRow("a link to itself") << "circle.cfg"
                                          << "Too many levels of symbolic links";
        QTest::newRow("a pipe") << "pipe.cfg"
                                << "It is a pipe or a device";
        QTest::newRow("a pipe in a package's place") << "pipe.zip"
                                                     << "It is a pipe or a device";
        QTest::newRow("a device") << "zero.txt"
                                  << "It is a pipe or a device";
#endif
        QTest::newRow("place markers in the name") << "%2.cfg"
                                                   << "No such file or directory";
        QTest::newRow("tags in the name") << "<b>x</b>.cfg"
                                          << "No such file or directory";
    }

    void unreadableFile()
    {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("folder.cfg")));
#ifdef Q_OS_WIN
        QFile unreadable(folder->filePath(name));
        QVERIFY(!unreadable.open(QIODevice::ReadOnly));
        reason = unreadable.errorString();
        QVERIFY(!reason.isEmpty());
        while (reason.endsWith(QLatin1Char('.')))
            reason.chop(1);
#else
        QVERIFY(QFile::link(path("nowhere.cfg"), path("dangling.cfg")));
        QVERIFY(QFile::link(path("circle.cfg"), path("circle.cfg")));
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path("zero.txt")));
        for (const char *pipe : {"pipe.cfg", "pipe.zip"})
            QCOMPARE(mkfifo(QFile::encodeName(path(pipe)).constData(), 0600), 0);
        QVERIFY(writeTextFile(path("secret.cfg"), "x"));
        QFile::setPermissions(path("secret.cfg"), {});
        if (name == QLatin1String("secret.cfg") && geteuid() == 0)
            QSKIP("everything is readable for root");
#endif
        window->open(goodRecording());
        window->statusBar()->clearMessage();
        window->open(folder->filePath(name));
        const QList<BoxReader::Box> seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].icon, QMessageBox::Warning);
        QCOMPARE(seen[0].title, QStringLiteral("Application"));
        QCOMPARE(seen[0].text,
            QLatin1String("Cannot read file ") + folder->filePath(name) + QLatin1String(":\n")
                + reason + QLatin1Char('.'));
        QCOMPARE(seen[0].format, Qt::PlainText);
        QCOMPARE(seen[0].buttons, QMessageBox::Ok);
        // Nothing changes.
        QVERIFY(window->recording());
        QCOMPARE(shown("label5"), QStringLiteral("Feeder J07"));
        QCOMPARE(window->windowFilePath(), path("good.cfg"));
        QCOMPARE(window->statusBar()->currentMessage(), QString());
    }

    void unsupportedFile_data()
    {
        QTest::addColumn<QByteArray>("configuration");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("reason");
        const QString noFile = QStringLiteral("There is no data file bad.dat.");
        const QString noSample = QStringLiteral("Its data file holds no sample.");
        const QString notAscii = QStringLiteral(
            "Its data are not ASCII.\nwavorin-convert may turn it into a recording that opens.");
        QTest::newRow("no data file") << smallConfiguration() << QByteArray() << noFile;
        QTest::newRow("empty configuration, empty data")
            << QByteArray("") << QByteArray("") << noSample;
        QTest::newRow("empty data file") << smallConfiguration() << QByteArray("") << noSample;
        QTest::newRow("data without separators")
            << smallConfiguration() << QByteArray("1\n2\n") << noSample;
        QTest::newRow("binary rubbish")
            << QByteArray(5000, '\0') << QByteArray(5000, '\xff') << noSample;
        QTest::newRow("binary data")
            << smallConfiguration().replace("ASCII", "BINARY") << QByteArray(160, '\0') << notAscii;
        QTest::newRow("real numbers") << smallConfiguration().replace("ASCII", "FLOAT32")
                                      << QByteArray(160, '\0') << notAscii;
    }

    void unsupportedFile()
    {
        QFETCH(QByteArray, configuration);
        QFETCH(QByteArray, data);
        QFETCH(QString, reason);
        window->open(goodRecording("before"));
        window->statusBar()->clearMessage();
        QVERIFY(writeTextFile(path("bad.cfg"), configuration));
        if (!data.isNull())
            QVERIFY(writeTextFile(path("bad.dat"), data));
        window->open(path("bad.cfg"));
        const QList<BoxReader::Box> seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].icon, QMessageBox::Warning);
        QCOMPARE(seen[0].title, QStringLiteral("Application"));
        QCOMPARE(seen[0].text, QStringLiteral("File not supported."));
        QCOMPARE(seen[0].details, path("bad.cfg") + QLatin1Char('\n') + reason);
        QCOMPARE(seen[0].buttons, QMessageBox::Ok);
        QVERIFY(animationIsGone());
        QVERIFY(viewIsEmpty());
        QVERIFY(recordingActionsDisabled());
        QVERIFY(!window->recording());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - before.cfg"));
        QCOMPARE(window->windowFilePath(), path("before.cfg"));
        QCOMPARE(window->statusBar()->currentMessage(), QString());

        window->open(goodRecording("after"));
        QVERIFY(window->recording());
        QCOMPARE(listed("listWidget").size(), 2);
        QVERIFY(recordingActionsEnabled());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - after.cfg"));
    }

    // No line of a message is longer than its box.
    void longNameInAMessage()
    {
        const QRegularExpression tooLong(QStringLiteral("[^\\s/\u200B-]{41}"));
        const QString name(200, QLatin1Char('n'));
        QVERIFY(writeTextFile(folder->filePath(name + QLatin1String(".cfg")), ""));
        for (const char *ending : {".cfg", "none.cfg"}) {
            window->open(folder->filePath(name + QLatin1String(ending)));
            const BoxReader::Box seen = boxes->take().value(0);
            QVERIFY((seen.text + seen.details).contains(QString(40, QLatin1Char('n'))));
            QVERIFY(!tooLong.match(seen.text).hasMatch());
            QVERIFY(!tooLong.match(seen.details).hasMatch());
        }
    }

    // What holds all in one has no data file beside it.
    void singleFile()
    {
        const QList<QPair<const char *, QString>> names{
            {"single.cfg.cff", QStringLiteral("single.dat.cff")},
            {"SINGLE.CFG.CFF", QStringLiteral("SINGLE.dat.CFF")}};
        for (const auto &[name, data] : names) {
            const QString single = path(name);
            QVERIFY(writeTextFile(single, "--- file type: CFG ---\r\n" + smallConfiguration()));
            window->open(single);
            const QList<BoxReader::Box> seen = boxes->take();
            QCOMPARE(seen.size(), 1);
            QCOMPARE(seen[0].text, QStringLiteral("File not supported."));
            QCOMPARE(seen[0].details,
                single
                    + QStringLiteral("\nThere is no data file %1."
                                     "\nwavorin-convert may turn it into a recording that opens.")
                          .arg(data));
        }
    }

    // The folder's name is part of what names the data file.
    void dataFileOfAFolderNamedLikeAConfiguration_data()
    {
        QTest::addColumn<QString>("folderName");
        QTest::addColumn<bool>("isThere"); // a folder in the data file's place
        QTest::addColumn<QString>("reason");
        const QString none = QStringLiteral("There is no data file %1.");
        QTest::newRow("lower case") << "site.cfg" << false << none;
        QTest::newRow("capitals, in the middle") << "site.CFG.2026" << false << none;
        QTest::newRow("there, but no file")
            << "site.cfg" << true << "The data file %1 cannot be read.";
    }

    void dataFileOfAFolderNamedLikeAConfiguration()
    {
        QFETCH(QString, folderName);
        QFETCH(bool, isThere);
        QFETCH(QString, reason);
        QVERIFY(QDir(folder->path()).mkdir(folderName));
        const QDir beside(folder->filePath(folderName));
        const QString asked = writeSmallRecording(beside.path(), QStringLiteral("good"));
        QVERIFY(beside.exists(QStringLiteral("good.dat")));
        const QString wanted = folder->filePath(folderName.left(4) + QLatin1String(".dat")
            + folderName.mid(8) + QLatin1String("/good.dat"));
        if (isThere)
            QVERIFY(QDir().mkpath(wanted));
        window->open(asked);
        const QList<BoxReader::Box> seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text, QStringLiteral("File not supported."));
        QCOMPARE(seen[0].details, asked + QLatin1Char('\n') + reason.arg(wanted));
    }

    // This process's own memory looks like a file, and its first bytes cannot be read.
    void fileThatFailsIsNotSupported_data()
    {
        QTest::addColumn<QString>("faulty");
        QTest::newRow("the configuration") << "bad.cfg";
        QTest::newRow("the data") << "bad.dat";
        QTest::newRow("an export") << "bad.txt";
    }

    void fileThatFailsIsNotSupported()
    {
        QFETCH(QString, faulty);
#ifdef Q_OS_WIN
        QSKIP("Links need rights of their own there.");
#endif
        if (!QFile::exists(QStringLiteral("/proc/self/mem")))
            QSKIP("there is no such file here");
        goodRecording("bad");
        QFile::remove(folder->filePath(faulty));
        QVERIFY(QFile::link(QStringLiteral("/proc/self/mem"), folder->filePath(faulty)));
        window->open(goodRecording("before"));
        window->open(path(faulty.endsWith(QLatin1String("txt")) ? "bad.txt" : "bad.cfg"));
        const QList<BoxReader::Box> seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text, QStringLiteral("File not supported."));
        QVERIFY(
            seen[0].details.endsWith(QLatin1String("\nA file of it cannot be read to its end.")));
        QVERIFY(viewIsEmpty());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - before.cfg"));
        window->open(goodRecording("after"));
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - after.cfg"));
    }

    // After the file was tried and before it is read.
    void filesChangeWhileTheLoadBegins_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("samples"); // 0 where it is not supported
        QTest::addColumn<int>("channels");
        const QLatin1String cfg(".cfg");
        const QLatin1String dat(".dat");
#ifdef Q_OS_UNIX // elsewhere what is open can be emptied, but not removed
        QTest::newRow("both are replaced") << Change([=](const QString &stem) {
            QVERIFY(QFile::remove(stem + cfg) && QFile::remove(stem + dat));
            ConfigurationText text;
            text.addAnalog("U,A,,V,1,0,0,-9,9,1,1,P");
            QVERIFY(writeTextFile(stem + cfg, text.text()));
            QVERIFY(writeTextFile(stem + dat, "1,0,5\n2,1000,6\n"));
        }) << 2 << 1;
        QTest::newRow("the configuration is removed")
            << Change([=](const QString &stem) { QVERIFY(QFile::remove(stem + cfg)); }) << 40 << 0;
        QTest::newRow("the folder is removed") << Change([](const QString &stem) {
            QVERIFY(QFileInfo(stem).dir().removeRecursively());
        }) << 0 << 0;
#endif
        QTest::newRow("the configuration is emptied")
            << Change([=](const QString &stem) { QVERIFY(QFile::resize(stem + cfg, 0)); }) << 40
            << 0;
        QTest::newRow("the data are removed")
            << Change([=](const QString &stem) { QVERIFY(QFile::remove(stem + dat)); }) << 0 << 0;
        QTest::newRow("the data are emptied")
            << Change([=](const QString &stem) { QVERIFY(QFile::resize(stem + dat, 0)); }) << 0
            << 0;
        QTest::newRow("the data shrink to their first line") << Change([=](const QString &stem) {
            QVERIFY(QFile::resize(stem + dat, smallData().indexOf('\n') + 1));
        }) << 1 << 2;
    }

    void filesChangeWhileTheLoadBegins()
    {
        QFETCH(Change, change);
        QFETCH(int, samples);
        QFETCH(int, channels);
        window->open(goodRecording("before"));
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("in")));
        const QString changing = writeSmallRecording(path("in"), QStringLiteral("rec"));
        delayLoader();
        connect(
            window.get(), &MainWindow::initProperties, this, [&] { change(changing.chopped(4)); });
        window->open(changing);
        QCOMPARE(boxes->take().size(), samples == 0 ? 1 : 0);
        QCOMPARE(window->recording() != nullptr, samples > 0);
        if (samples > 0)
            QCOMPARE(window->recording()->sampleCount, samples);
        QCOMPARE(listed("listWidget").size(), channels);
        disconnect(window.get(), &MainWindow::initProperties, this, nullptr);
        window->open(goodRecording("after"));
        QCOMPARE(listed("listWidget").size(), 2);
    }

    // Nobody writes to it, so that its reader would wait for ever.
    void aPipeInTheDataFilesPlaceIsNotSupported()
    {
#ifdef Q_OS_UNIX
        QVERIFY(writeTextFile(path("bad.cfg"), smallConfiguration()));
        QCOMPARE(mkfifo(QFile::encodeName(path("bad.dat")).constData(), 0600), 0);
        window->open(path("bad.cfg"));
        const QList<BoxReader::Box> seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text, QStringLiteral("File not supported."));
#else
        QSKIP("Pipes lie in no folder there.");
#endif
    }

    void failedLoadTwiceInARow()
    {
        window->open(goodRecording());
        QVERIFY(writeTextFile(path("bad.cfg"), "x"));
        window->open(path("bad.cfg"));
        window->open(path("bad.cfg"));
        QCOMPARE(boxes->take().size(), 2);
        window->open(goodRecording());
        QVERIFY(window->recording());
    }
};

QTEST_MAIN(TestBadFiles)
#include "tst_badfiles.moc"
