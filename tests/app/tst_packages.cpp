// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "ownfilesystem.h"
#include "packageswindow.h"
#include "startup.h"
#include "temporaryfolder.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>
#include <QThreadPool>
#include <QtTest>

#include <memory>

// Packages, unpacked by the real archiver where one is installed and by a program in its place
// where its behaviour must be arranged.
class TestPackages : public PackagesWindow {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QTemporaryDir content;
        QVERIFY(writeTextFile(content.filePath(QStringLiteral("x")), "x"));
        for (const char *name : {"7z", "7zz", "7za", "7zr"}) { // the last one may know no ZIP files
            const QString zip = content.filePath(QLatin1String(name) + QLatin1String(".zip"));
            if (pack(QLatin1String(name), content.path(), zip, {QStringLiteral("x")})) {
                realArchiver = QLatin1String(name);
                break;
            }
        }
        preferApplicationFolder();
        searchPath = qgetenv("PATH");
#ifndef Q_OS_WIN // which searches there by itself
        QVERIFY(
            searchPath.startsWith(QFile::encodeName(QCoreApplication::applicationDirPath()) + ':'));
#endif
    }

    void init()
    {
        startAsMaker();
        qputenv("PATH", searchPath);
        boxes = std::make_unique<BoxReader>();
        makeWindow();
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("in")));
    }

    void cleanup()
    {
        closeWindow();
        boxes.reset();
    }

    void goodPackage()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        writeSmallRecording(path("in"), QStringLiteral("deep"));
        QVERIFY(writeTextFile(path("in/settings.xml"), "<settings/>"));
        const QString zip = package("device.zip");
        QVERIFY(!QDir(unpackingFolder(1)).exists());
        window->open(zip);
        QVERIFY(window->recording());
        QCOMPARE(window->recording()->sampleCount, 40);
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - deep.cfg"));
        QCOMPARE(window->windowFilePath(), unpackingFolder(1) + QLatin1String("/deep.cfg"));
        QVERIFY(boxes->take().isEmpty());
        window->close();
        QVERIFY(!QDir(unpackingFolder(1)).exists());
    }

    void names_data()
    {
        QTest::addColumn<QString>("zip");
        QTest::newRow("upper-case ending") << "DEVICE.ZIP";
        QTest::newRow(".zip anywhere in the name") << "device.zip.1";
    }

    void names()
    {
        QFETCH(QString, zip);
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        window->open(package(qPrintable(zip)));
        QVERIFY(window->recording());
    }

    void configurationInAFolderNamedLikeAPackage()
    {
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("device.zip")));
        const QString configuration
            = writeSmallRecording(path("device.zip"), QStringLiteral("rec"));
        window->open(configuration);
        expectNotValidBox();
        QVERIFY(window->recording());
        QCOMPARE(window->windowFilePath(), configuration);
    }

    void upperCaseNamesInside()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        QVERIFY(writeTextFile(path("in/REC.CFG"), smallConfiguration()));
        QVERIFY(writeTextFile(path("in/REC.DAT"), smallData()));
        window->open(package("device.zip"));
        QVERIFY(window->recording());
        QCOMPARE(window->recording()->sampleCount, 40);
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - REC.CFG"));
    }

    void foldersInsideAreFlattened()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        QVERIFY(QDir(path("in")).mkpath(QStringLiteral("records/today")));
        writeSmallRecording(path("in/records/today"), QStringLiteral("rec"));
        window->open(package("device.zip"));
        QVERIFY(window->recording());
        QVERIFY(QFile::exists(unpackingFolder(1) + QLatin1String("/rec.cfg")));
    }

    void packageWithoutConfiguration()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        QVERIFY(writeTextFile(path("in/readme.txt"), "nothing here"));
        const QString zip = package("device.zip");
        window->open(zip);
        expectNothingLoaded(zip);
        expectNextGoodFileOpens();
    }

    void emptyPackageLeavesTheOldRecording()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        QVERIFY(writeTextFile(path("in/readme.txt"), "nothing here"));
        window->open(writeSmallRecording(folder->path(), QStringLiteral("before")));
        window->open(package("device.zip"));
        QVERIFY(window->recording());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - before.cfg"));
    }

    // Neither the order of creation nor its reverse, in which a file system may list the files, is
    // that of the names. One that mixes them is given other names.
    void firstConfigurationInTheOrderOfTheFileSystem()
    {
        const QByteArray in = "copy " + encodedPath("in");
        play(in + "/m\n" + in + "/a\n" + in + "/z\n");
        for (int attempt = 0; attempt < 20; ++attempt) {
            QDir(path("in")).removeRecursively();
            QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("in")));
            for (const char *name : {"a", "m", "z"})
                writeSmallRecording(path("in"), QLatin1String(name) + QString::number(attempt));
            window->open(anyPackage());
            const QStringList names = configurationsIn(unpackingFolder(1));
            QCOMPARE(names.size(), 3);
            QCOMPARE(
                window->windowFilePath(), unpackingFolder(1) + QLatin1Char('/') + names.first());
            QCOMPARE(window->windowTitle(), QLatin1String("Wavorin - ") + names.first());
            if (!names.first().startsWith(QLatin1Char('a')))
                return;
        }
        QSKIP("the file system lists files in the order of their names");
    }

    void filesOfTwoPackagesNeverMix()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        writeSmallRecording(path("in"), QStringLiteral("one"));
        window->open(package("one.zip"));
        QVERIFY(QFile::remove(path("in/one.cfg")) && QFile::remove(path("in/one.dat")));
        writeSmallRecording(path("in"), QStringLiteral("two"));
        window->open(package("two.zip"));
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - two.cfg"));
        QCOMPARE(QDir(unpackingFolder(1)).entryList(QDir::Files).join(QLatin1Char(' ')),
            QStringLiteral("two.cfg two.dat"));
        QVERIFY(!QDir(unpackingFolder(2)).exists());
    }

    // The archiver leaves its folder as a file system of its own, which nobody can move nor empty.
    void whatCannotBeRemovedIsNotTakenForTheNextPackages()
    {
        const OwnFileSystem memory(1 << 20);
        if (!memory.isMounted())
            QSKIP("no file system of its own here");
        writeSmallRecording(memory.path(), QStringLiteral("b"));
        const QByteArray content = '\'' + QFile::encodeName(memory.path("b"));
        play("run name=$(basename '%p' .zip); cd '%o'; cp " + content + ".cfg' $name.cfg; cp "
            + content + ".dat' $name.dat; "
            + "if [ $name = b ]; then mount --bind $PWD $PWD; mount -o remount,bind,ro $PWD; fi\n");
        for (const char *package : {"a.zip", "b.zip", "c.zip", "d.zip"})
            QVERIFY(writeTextFile(path(package), "PK"));
        window->open(path("a.zip"));
        QCOMPARE(window->windowFilePath(), unpackingFolder(1) + QLatin1String("/a.cfg"));
        window->open(path("b.zip"));
        QCOMPARE(window->windowFilePath(), unpackingFolder(1) + QLatin1String("/b.cfg"));
        window->open(path("c.zip"));
        QCOMPARE(window->windowFilePath(), unpackingFolder(2) + QLatin1String("/c.cfg"));
        window->open(path("d.zip"));
        QCOMPARE(window->windowFilePath(), unpackingFolder(2) + QLatin1String("/d.cfg"));
        QVERIFY(QFile::exists(unpackingFolder(1) + QLatin1String("/b.cfg")));
        window->close();
        QVERIFY(!QFile::exists(unpackingFolder(2)));
        QThreadPool::globalInstance()->waitForDone();
        QCOMPARE(QProcess::execute(QStringLiteral("umount"), {unpackingFolder(1)}), 0);
    }

    void everyInstanceHasAFolderOfItsOwn()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        const QString zip = package("device.zip");
        const auto madeBefore = std::make_unique<MainWindow>();
        window->open(zip);
        const auto madeAfter = std::make_unique<MainWindow>();
        madeBefore->open(zip);
        madeAfter->open(zip);
        QCOMPARE(window->windowFilePath(), unpackingFolder(1) + QLatin1String("/rec.cfg"));
        QCOMPARE(madeBefore->windowFilePath(), unpackingFolder(2) + QLatin1String("/rec.cfg"));
        QCOMPARE(madeAfter->windowFilePath(), unpackingFolder(3) + QLatin1String("/rec.cfg"));
        QVERIFY(madeAfter->recording());
        madeAfter->close();
        madeBefore->close();
        QVERIFY(QDir(unpackingFolder(1)).exists());
        QVERIFY(!QDir(unpackingFolder(2)).exists());
        QVERIFY(!QDir(unpackingFolder(3)).exists());
    }

    void anUnusedInstanceRemovesNothing()
    {
        const auto other = std::make_unique<MainWindow>();
        QVERIFY(QDir().mkpath(unpackingFolder(1)));
        other->close();
        QVERIFY(QDir(unpackingFolder(1)).exists());
    }

    void damagedPackage_data()
    {
        QTest::addColumn<bool>("truncated");
        QTest::newRow("no archive at all") << false;
        QTest::newRow("cut off in the middle") << true;
    }

    void damagedPackage()
    {
        QFETCH(bool, truncated);
        if (truncated && realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        QString zip = path("bad.zip");
        if (truncated) {
            QVERIFY(writeTextFile(path("in/readme.txt"), QByteArray(100000, 'x')));
            zip = package("bad.zip");
            QVERIFY(QFile::resize(zip, QFileInfo(zip).size() / 2));
        } else {
            QVERIFY(writeTextFile(zip, QByteArray(1000, 'x')));
        }
        window->open(zip);
        expectNothingLoaded(zip);
        expectNotValidBox();
        expectNextGoodFileOpens();
    }

    void passwordDoesNotBlock()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        const QString zip
            = package("locked.zip", {QStringLiteral("."), QStringLiteral("-psecret")});
        window->open(zip);
        // The archiver complains and leaves empty files behind.
        QTRY_COMPARE(boxes->count(), 2);
        QStringList texts;
        for (const BoxReader::Box &box : boxes->take())
            texts.append(box.text);
        QVERIFY(texts.contains(
            QStringLiteral("The zip file is not valid.\nPlease select another file.")));
        QVERIFY(texts.contains(QStringLiteral("File not supported.")));
        expectNextGoodFileOpens();
    }

    void errorInThePathIsNoError()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        window->open(package("Error Overwrite password.zip"));
        QVERIFY(window->recording());
        QTest::qWait(50);
        QVERIFY(boxes->take().isEmpty());
    }

    // A link to a folder outside must not lead the removal there.
    void linkOutOfThePackage()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
#ifdef Q_OS_WIN
        QSKIP("Links need rights of their own there.");
#endif
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("outside")));
        QVERIFY(writeTextFile(path("outside/precious"), "x"));
        QVERIFY(QFile::link(path("outside"), path("in/link")));
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        const QString zip = package("links.zip", {QStringLiteral("-snl"), QStringLiteral(".")});
        window->open(zip);
        window->open(zip);
        window->close();
        QVERIFY(QFile::exists(path("outside/precious")));
    }

    void nextAfterAWriteProtectedOne_data()
    {
        QTest::addColumn<bool>("entries");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::newRow("its entries are protected") << true << "one.zip"
                                                   << "two.zip";
        QTest::newRow("itself, named like an option") << false << "-one.zip"
                                                      << "-two.zip";
    }

    // Windows removes and overwrites nothing that is protected; on other systems this says little.
    void nextAfterAWriteProtectedOne()
    {
        QFETCH(bool, entries);
        QFETCH(QString, first);
        QFETCH(QString, second);
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        const QString before = QDir::currentPath();
        const auto back = qScopeGuard([&] { QDir::setCurrent(before); });
        QVERIFY(QDir::setCurrent(folder->path()));
        for (const QString &name : {first, second}) {
            const QString recording
                = QFileInfo(name.mid(name.indexOf(QLatin1Char('-')) + 1)).baseName();
            const QString configuration = writeSmallRecording(path("in"), recording);
            QString protectedFile = configuration;
            if (entries)
                QVERIFY(QFile::setPermissions(protectedFile, QFile::ReadOwner));
            QCOMPARE(package(qPrintable(name)), path(qPrintable(name)));
            if (!entries) {
                protectedFile = path(qPrintable(name));
                QVERIFY(QFile::setPermissions(protectedFile, QFile::ReadOwner));
            }
            window->open(name);
            QCOMPARE(window->windowTitle(),
                QLatin1String("Wavorin - ") + recording + QLatin1String(".cfg"));
            QVERIFY(boxes->take().isEmpty());
            QVERIFY(QFile::setPermissions(protectedFile, QFile::ReadOwner | QFile::WriteOwner));
            removeRecursively(path("in"));
            QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("in")));
        }
        window->close();
        QThreadPool::globalInstance()->waitForDone();
        const QDir parent = QFileInfo(unpackingFolder(1)).dir();
        QCOMPARE(parent.entryList({QStringLiteral("files*")}).join(QLatin1Char(' ')),
            QStringLiteral("files")); // the base, of no instance
    }

    void noArchiverInstalled()
    {
#ifdef Q_OS_WIN
        QSKIP("The launcher is not used there.");
#endif
        qputenv("PATH", QFile::encodeName(QCoreApplication::applicationDirPath()));
        const QString zip = anyPackage();
        window->open(zip);
        expectNothingLoaded(zip);
        expectNotValidBox();
    }

    void archiverThatCannotStartLeavesTheWindowAlive()
    {
        qputenv("PATH", "");
        bool alive = false;
        QTimer::singleShot(200, this, [&] {
            alive = true;
            window->close();
        });
        window->open(anyPackage());
        QVERIFY(alive);
        QVERIFY(!window->recording());
        QCOMPARE(window->windowFilePath(), QStringLiteral("untitled.txt"));
    }

    void archiverWithoutEndIsGivenUp_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<bool>("byEscape");
        const auto rows = [](const char *name, const QByteArray &lines) {
            QTest::addRow("%s, another file is opened", name) << lines << false;
            QTest::addRow("%s, Escape", name) << lines << true;
        };
        rows("it cannot be started", {});
        rows("it hangs", "sleep 60000\n");
#ifndef Q_OS_WIN // there the archiver is the program proper
        rows("it has a program that hangs", "run sleep 60; echo never\n");
#endif
        rows("it prints without end", "printForEver Extracting  a.cfg\n");
        rows("it fills the folder without end", "fillForEver\n");
    }

    void archiverWithoutEndIsGivenUp()
    {
        QFETCH(QByteArray, lines);
        QFETCH(bool, byEscape);
        const QString before = writeSmallRecording(folder->path(), QStringLiteral("before"));
        const QString next = writeSmallRecording(folder->path(), QStringLiteral("next"));
        showActive();
        window->open(before);
        window->statusBar()->clearMessage();
        if (lines.isEmpty())
            qputenv("PATH", "");
        else
            play("file " + encodedPath("pid") + "|%i\n" + lines);
        QElapsedTimer timer;
        QTimer watch; // the archiver begins late on a busy machine
        connect(&watch, &QTimer::timeout, this, [&] {
            if (!lines.isEmpty() && QFileInfo(path("pid")).size() == 0)
                return;
            watch.stop();
            timer.start();
            if (byEscape)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            else
                window->open(next);
        });
        watch.start(500);
        QTimer::singleShot(10000, window.get(), &QWidget::close); // fails instead of hanging
        window->open(anyPackage());
        QVERIFY(timer.isValid());
        // A moment, longer on a busy machine; another file takes its load.
        QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(window->recording());
        QCOMPARE(window->windowFilePath(), byEscape ? before : next);
        QCOMPARE(window->windowTitle(),
            byEscape ? QStringLiteral("Wavorin - before.cfg")
                     : QStringLiteral("Wavorin - next.cfg"));
        QCOMPARE(window->statusBar()->currentMessage(),
            byEscape ? QString() : QStringLiteral("File loaded"));
        QVERIFY(boxes->take().isEmpty());
        QVERIFY(!QDir(unpackingFolder(1)).exists());
        if (!lines.isEmpty())
            QTRY_VERIFY(hasEnded(path("pid")));
        qputenv("PATH", searchPath);
        expectNextGoodFileOpens();
    }

    // In a box or a dialog the key means something else.
    void escapeInABoxClosesThatAlone()
    {
        boxes.reset();
        play("print Error\nawait " + encodedPath("go") + "\ncopy " + encodedPath("in/rec") + '\n');
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        showActive();
        bool closed = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            QWidget *box = QApplication::activeModalWidget();
            if (!box)
                return;
            watch.stop();
            QTest::keyClick(box, Qt::Key_Escape);
            closed = !box->isVisible() && writeTextFile(path("go"), "x");
        });
        watch.start(20);
        QTimer::singleShot(10000, window.get(), &QWidget::close); // fails instead of hanging
        window->open(anyPackage());
        QVERIFY(closed);
        QVERIFY(window->recording());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - rec.cfg"));
    }

    void archiverThatCrashes()
    {
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        play("copy " + encodedPath("in/rec.cfg") + "\ncrash\n");
        window->open(anyPackage()); // which has brought no data file
        const QList<BoxReader::Box> seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text, QStringLiteral("File not supported."));
        play("crash\n");
        const QString zip = anyPackage();
        window->open(zip);
        expectNothingLoaded(zip);
        QVERIFY(boxes->take().isEmpty());
        expectNextGoodFileOpens();
    }

    void temporaryFolderIsLost_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::newRow("the folder, by the archiver") << QByteArray("remove %o\n");
        QTest::newRow("for a file of its name") << QByteArray("remove %o\nfile %o\n");
#ifndef Q_OS_WIN // where this instance's lock is not removed, nor a link made without rights
        QTest::newRow("all above it, by the archiver") << QByteArray("remove %o/../../..\n");
        QTest::newRow("for a link that leads nowhere")
            << QByteArray("remove %o\nrun ln -s /nowhere '%o'\n");
#endif
    }

    void temporaryFolderIsLost()
    {
        QFETCH(QByteArray, lines);
        play(lines);
        const QString zip = anyPackage();
        for (int time = 0; time < 2; ++time) {
            window->open(zip);
            expectNothingLoaded(zip);
        }
        QVERIFY(boxes->take().isEmpty());
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        play("copy " + encodedPath("in/rec") + '\n');
        window->open(zip);
        QVERIFY(window->recording());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - rec.cfg"));
        expectNextGoodFileOpens();
    }

    void noPlaceToUnpack_data()
    {
        QTest::addColumn<bool>("isReadOnly");
        QTest::newRow("nothing can be written") << true;
        QTest::newRow("the disk is full") << false;
    }

    void noPlaceToUnpack()
    {
        QFETCH(bool, isReadOnly);
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        const OwnFileSystem disk(1 << 16);
        if (!disk.isMounted())
            QSKIP("no file system of its own here");
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        const QString zip = package("device.zip");
        const QByteArray place = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QFile::encodeName(disk.path()));
        if (isReadOnly)
            QVERIFY(disk.makeReadOnly());
        else
            writeTextFile(disk.path("much"), QByteArray(1 << 16, 'x'));
        window = std::make_unique<MainWindow>();
        window->open(zip);
        QStringList texts;
        const auto isTold = [&](const QString &text) {
            for (const BoxReader::Box &box : boxes->take())
                texts.append(box.text);
            return texts.contains(text);
        };
        QTRY_VERIFY(
            isTold(QStringLiteral("The zip file is not valid.\nPlease select another file.")));
        // On a full disk the archiver leaves files without contents.
        if (!isReadOnly)
            QTRY_VERIFY(isTold(QStringLiteral("File not supported.")));
        QCOMPARE(texts.contains(QStringLiteral("File not supported.")), !isReadOnly);
        QVERIFY(!window->recording());
        expectNextGoodFileOpens();
        window->close();
        qputenv("XDG_DATA_HOME", place);
    }

    // The hidden file stays until the next start.
    void hiddenFilesAreRemovedAtTheNextStart()
    {
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
        writeSmallRecording(path("in"), QStringLiteral("rec"));
        QVERIFY(writeTextFile(path("in/.hidden"), "x"));
        const QString zip = package("device.zip");
        for (int time = 0; time < 2; ++time) {
            window->open(zip);
            QCOMPARE(window->windowFilePath(), unpackingFolder(1) + QLatin1String("/rec.cfg"));
            QVERIFY(QFile::exists(unpackingFolder(1) + QLatin1String("/.hidden")));
        }
        window->close();
        QThreadPool::globalInstance()->waitForDone();
        QVERIFY(!QFile::exists(unpackingFolder(1)));
        const TemporaryFolder nextStart(temporaryFolderBase());
        QThreadPool::globalInstance()->waitForDone();
        const QDir parent = QFileInfo(unpackingFolder(1)).dir();
        QCOMPARE(
            parent.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
                .join(QLatin1Char(' ')),
            QStringLiteral("files"));
    }

    // The archiver would take these names for something else.
    void namesThatMeanMore_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("relative");
        QTest::newRow("an asterisk") << "p*.zip" << false;
        QTest::newRow("an asterisk in the folder") << "d*/p.zip" << false;
        QTest::newRow("a question mark") << "p?.zip" << false;
        QTest::newRow("a hyphen at the beginning") << "-x.zip" << true;
        QTest::newRow("an at sign at the beginning") << "@x.zip" << true;
        QTest::newRow("a hyphen further on") << "a-x.zip" << true;
        QTest::newRow("an error word and an asterisk") << "Error*.zip" << false;
    }

    void namesThatMeanMore()
    {
        QFETCH(QString, name);
        QFETCH(bool, relative);
        if (realArchiver.isEmpty())
            QSKIP("no archiver is installed");
#ifdef Q_OS_WIN
        if (name.contains(QRegularExpression(QStringLiteral("[*?]"))))
            QSKIP("Names hold no such letters there.");
#endif
        writeSmallRecording(path("in"), QStringLiteral("wrong"));
        QVERIFY(QDir(folder->path()).mkpath(QFileInfo(name).path()));
        QVERIFY(QDir(folder->path()).mkpath(QStringLiteral("d2")));
        QVERIFY(!package("p2.zip").isEmpty());
        QVERIFY(QFile::copy(path("p2.zip"), path("d2/p.zip")));
        QVERIFY(QFile::remove(path("in/wrong.cfg")) && QFile::remove(path("in/wrong.dat")));
        writeSmallRecording(path("in"), QStringLiteral("right"));
        const QString zip = folder->filePath(name);
        QVERIFY(QFile::rename(package("made.zip"), zip));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder->path()));
        for (int time = 0; time < 2; ++time) {
            window->open(relative ? name : zip);
            QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - right.cfg"));
            QCOMPARE(QDir(unpackingFolder(1)).entryList(QDir::Files).join(QLatin1Char(' ')),
                QStringLiteral("right.cfg right.dat"));
        }
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(boxes->take().isEmpty());
        QVERIFY(QFile::exists(zip));
    }

    void archiverArguments()
    {
        play("file " + encodedPath("seen") + "|%a\n");
        const QString zip = anyPackage();
        window->open(zip);
        QFile seen(path("seen"));
        QVERIFY(seen.open(QIODevice::ReadOnly));
        QCOMPARE(QFile::decodeName(seen.readAll()),
            QLatin1String("4\ne\n") + zip + QLatin1String("\n-aoa\n-o") + unpackingFolder(1)
                + QLatin1Char('\n'));
        QVERIFY(QDir(unpackingFolder(1)).exists());
    }

    void overwriteQuestionIsAnswered()
    {
        play("print Overwrite (Y)es / (A)lways?\nask " + encodedPath("seen") + '\n');
        window->open(anyPackage());
        QFile seen(path("seen"));
        QVERIFY(seen.open(QIODevice::ReadOnly));
        QCOMPARE(seen.readAll(), QByteArray("A\r"));
    }

    void errorsOnBothChannelsShowOneBox()
    {
        play("print Error: one\ncomplain error: two\nsleep 200\nprint ERROR: three\nexit 2\n");
        const QString zip = anyPackage();
        window->open(zip);
        expectNothingLoaded(zip);
        expectNotValidBox();
    }

    void eachUnpackingMayShowItsBox()
    {
        play("print Error\n");
        const QString zip = anyPackage();
        window->open(zip);
        expectNotValidBox();
        window->open(zip);
        expectNotValidBox();
    }

    void lastOfSeveralFilesOpensWhenTheUnpackingHasEnded()
    {
        play("sleep 500\n");
        const QString second = writeSmallRecording(folder->path(), QStringLiteral("second"));
        const QString third = writeSmallRecording(folder->path(), QStringLiteral("third"));
        const QString zip = anyPackage();
        QTimer::singleShot(50, this, [&] {
            window->open(second);
            window->open(third);
            QVERIFY(!window->recording());
        });
        window->open(zip);
        QVERIFY(window->recording());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - third.cfg"));
    }

    void endDuringUnpackingStopsTheArchiver_data()
    {
        QTest::addColumn<bool>("deleted");
        QTest::newRow("the window is closed") << false;
        QTest::newRow("the window is deleted") << true;
    }

    void endDuringUnpackingStopsTheArchiver()
    {
        QFETCH(bool, deleted);
        play("file " + encodedPath("pid") + "|%i\nsleep 60000\n");
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (QFileInfo(path("pid")).size() == 0)
                return;
            watch.stop();
            if (deleted)
                window.reset();
            else
                window->close();
        });
        watch.start(20);
        window->open(anyPackage());
        QTRY_VERIFY(hasEnded(path("pid")));
        QVERIFY(!QDir(unpackingFolder(1)).exists());
    }

    // The complaint is still unread when the window closes.
    void closingWhileTheArchiverComplainsLeavesNoBox()
    {
        play("print Error\nfile " + encodedPath("said") + "\nsleep 60000\n");
        bool closed = false;
        QTimer::singleShot(0, this, [&] {
            QElapsedTimer waited; // handles no events, so that nothing reads what is said
            waited.start();
            while (!QFile::exists(path("said")) && waited.elapsed() < 10000)
                QThread::msleep(5);
            closed = QFile::exists(path("said")) && window->close();
        });
        window->open(anyPackage());
        QVERIFY(closed);
        QTest::qWait(100);
        QVERIFY(boxes->take().isEmpty());
        QVERIFY(window->findChildren<QMessageBox *>().isEmpty());
    }
};

QTEST_MAIN(TestPackages)
#include "tst_packages.moc"
