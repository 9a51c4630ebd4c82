// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow.h"
#include "smallrecording.h"
#include "startup.h"
#include "windowtest.h"

#include <QElapsedTimer>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QProcess>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTextLayout>
#include <QtTest>

class TestStartup : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }

    void applicationFolderIsSearchedFirst()
    {
        qputenv("PATH", "/usr/bin");
        preferApplicationFolder();
        QCOMPARE(qgetenv("PATH"),
            QFile::encodeName(QCoreApplication::applicationDirPath()) + ":/usr/bin");
    }

    void chineseLettersHaveTheirSimplifiedShapes()
    {
        const QString wanted = QStringLiteral("Noto Sans CJK SC");
        if (!QFontDatabase().families().contains(wanted))
            QSKIP("fonts-noto-cjk is not installed");
        preferSimplifiedLetters();
        QTextLayout layout(QStringLiteral("R门"), QApplication::font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        QStringList families;
        for (const QGlyphRun &run : layout.glyphRuns())
            families.append(run.rawFont().familyName());
        QCOMPARE(families.size(), 2);
        QVERIFY(families.contains(QFontInfo(QApplication::font()).family()));
        QVERIFY(families.contains(wanted));
    }

    void everyBrandHasImagesOfItsOwn_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("splash") << QStringLiteral("waveform");
        QTest::newRow("logo") << QStringLiteral("logo");
    }

    void everyBrandHasImagesOfItsOwn()
    {
        QFETCH(QString, kind);
        QList<QImage> seen;
        for (const char *brand : {"", "_vanta", "_orlo", "_quill", "_mervic"}) {
            const QImage image(QStringLiteral(":/images/%1%2.png").arg(kind, QLatin1String(brand)));
            QVERIFY2(!image.isNull(), brand);
            QVERIFY2(!seen.contains(image), brand);
            seen.append(image);
        }
    }

    void splashWait_data()
    {
        QTest::addColumn<QString>("argument"); // below the folder; null for none
        QTest::addColumn<bool>("opens");
        QTest::newRow("no argument waits") << QString() << false;
        QTest::newRow(".cfg opens at once") << QStringLiteral("rec.cfg") << true;
        QTest::newRow(".CFG waits") << QStringLiteral("rec.CFG") << false;
        QTest::newRow(".txt waits") << QStringLiteral("rec.txt") << false;
        QTest::newRow(".cfg not at the end waits") << QStringLiteral("rec.cfg.bak") << false;
    }

    void splashWait()
    {
        QFETCH(QString, argument);
        QFETCH(bool, opens);
        const QTemporaryDir folder;
        for (const char *name : {"rec.cfg", "rec.CFG", "rec.txt", "rec.cfg.bak"})
            QVERIFY(writeTextFile(folder.filePath(QLatin1String(name)), smallConfiguration()));
        for (const char *name : {"rec.dat", "rec.dat.bak"})
            QVERIFY(writeTextFile(folder.filePath(QLatin1String(name)), smallData()));
        MainWindow window;
        QElapsedTimer timer;
        timer.start();
        openOrWait(window, argument.isNull() ? QString() : folder.filePath(argument));
        const qint64 elapsed = timer.elapsed();
        QCOMPARE(window.recording() != nullptr, opens);
        QVERIFY2(opens ? elapsed < 2000 : elapsed >= 2000, qPrintable(QString::number(elapsed)));
        QVERIFY2(elapsed < 4000, qPrintable(QString::number(elapsed)));
    }

    void eventsRunDuringTheWait()
    {
        MainWindow window;
        bool ran = false;
        QTimer::singleShot(100, this, [&] { ran = true; });
        openOrWait(window, QString());
        QVERIFY(ran);
    }

    void missingFilesAreReportedAndStartUpGoesOn_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("configuration") << QStringLiteral("/nowhere/rec.cfg");
        QTest::newRow("package") << QStringLiteral("/nowhere/rec.zip");
    }

    void missingFilesAreReportedAndStartUpGoesOn()
    {
        QFETCH(QString, path);
        BoxReader boxes;
        MainWindow window;
        openOrWait(window, path);
        const QList<BoxReader::Box> seen = boxes.take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text,
            QLatin1String("Cannot read file ") + path
                + QLatin1String(":\nNo such file or directory."));
        QCOMPARE(window.statusBar()->currentMessage(), QStringLiteral("Ready"));
    }

    // The program itself, on a display of its own.
    void program_data()
    {
        QTest::addColumn<bool>("withFile");
        QTest::newRow("without a file the window comes after two seconds") << false;
        QTest::newRow("with a file its title names the program alone") << true;
    }

    void program()
    {
        QFETCH(bool, withFile);
        QProcess display;
        display.start(QStringLiteral("Xvfb"),
            {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                QStringLiteral("0"), QStringLiteral("1600x1000x24")});
        if (!display.waitForStarted() || !display.waitForReadyRead())
            QSKIP("Xvfb is not installed");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"),
            QLatin1Char(':') + QString::fromLatin1(display.readAllStandardOutput().trimmed()));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));

        const QTemporaryDir folder;
        QStringList arguments;
        if (withFile)
            arguments.append(writeSmallRecording(folder.path(), QStringLiteral("rec")));
        QProcess program;
        program.setProcessEnvironment(environment);
        QElapsedTimer timer;
        timer.start();
        program.start(
            QCoreApplication::applicationDirPath() + QLatin1String("/wavorin"), arguments);
        QVERIFY(program.waitForStarted());

        // The splash bears no such title; the window is the widest one of the program.
        QProcess search;
        search.setProcessEnvironment(environment);
        search.start(QStringLiteral("xdotool"),
            {QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                QStringLiteral("--name"), QStringLiteral("^Wavorin$")});
        if (!search.waitForStarted())
            QSKIP("xdotool is not installed");
        QVERIFY(search.waitForFinished(20000));
        const qint64 elapsed = timer.elapsed();
        QCOMPARE(program.state(), QProcess::Running);
        if (!withFile)
            QVERIFY2(elapsed >= 2000, qPrintable(QString::number(elapsed)));
        program.kill();
        program.waitForFinished();
        display.terminate();
        display.waitForFinished();
    }
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
