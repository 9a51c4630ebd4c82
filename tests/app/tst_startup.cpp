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
#include <QRegularExpression>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTextLayout>
#include <QTextStream>
#include <QtTest>

#include <cstdlib>
#include <memory>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

struct Killer {
    void operator()(QProcess *process) const
    {
        process->kill();
        process->waitForFinished();
        delete process;
    }
};
using Process = std::unique_ptr<QProcess, Killer>; // which is killed with the pointer

const QString waitOption = QStringLiteral("--wait"); // has this program do what follows

// Starts as the viewer does with the argument, and prints how long that took in ms, whether a
// recording is open, and whether events ran.
void printWait(const QString &argument)
{
    MainWindow window;
    bool ran = false;
    QTimer::singleShot(100, &window, [&] { ran = true; });
    QElapsedTimer timer;
    timer.start();
    openOrWait(window, argument);
    QTextStream(stdout) << timer.elapsed() << ' ' << (window.recording() != nullptr) << ' ' << ran;
}

// A display for the program alone.
class OwnDisplay {
public:
    explicit OwnDisplay(const QString &size)
    {
        m_server.start(QStringLiteral("Xvfb"),
            {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                QStringLiteral("0"), size + QLatin1String("x24")});
        m_isReady = m_server.waitForStarted() && m_server.waitForReadyRead();
        set("DISPLAY",
            QLatin1Char(':') + QString::fromLatin1(m_server.readAllStandardOutput().trimmed()));
        set("QT_QPA_PLATFORM", QStringLiteral("xcb"));
    }
    ~OwnDisplay()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(OwnDisplay)

    bool isReady() const { return m_isReady; }
    void set(const char *variable, const QString &value)
    {
        m_environment.insert(QLatin1String(variable), value);
    }
    // A program on this display.
    Process started(const QString &program, const QStringList &arguments) const
    {
        Process process(new QProcess);
        process->setProcessEnvironment(m_environment);
        process->start(program, arguments);
        return process;
    }
    // Empty where the program is not installed.
    QString outputOf(const QString &program, const QStringList &arguments) const
    {
        const auto process = started(program, arguments);
        return process->waitForFinished(20000)
            ? QString::fromUtf8(process->readAllStandardOutput().trimmed())
            : QString();
    }
    // The number of the viewer's window, as soon as it is seen. The splash bears no such title.
    // Empty where the program that looks is not installed; it fails where another window goes
    // meanwhile.
    QString window() const
    {
        constexpr int tries = 5;
        QString found;
        for (int i = 0; i < tries && found.isEmpty(); ++i)
            found = outputOf(QStringLiteral("xdotool"),
                {QStringLiteral("search"), QStringLiteral("--sync"),
                    QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                    QStringLiteral("^Wavorin$")});
        return found.section(QLatin1Char('\n'), -1);
    }

private:
    QProcess m_server;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    bool m_isReady = false;
};

} // namespace

class TestStartup : public QObject {
    Q_OBJECT

    QTemporaryDir folder;
    std::vector<Process> waits; // those of splashWait()

private slots:
    void initTestCase() { startAsMaker(); }

    void applicationFolderIsSearchedFirst()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows searches there by itself.");
#endif
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
        preferSimplifiedCharacters();
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

    void simplifiedFontsOfEverySystemAreTried()
    {
        preferSimplifiedCharacters();
        const QStringList tried = QFont::substitutes(QApplication::font().family());
        QVERIFY(tried.contains(QStringLiteral("noto sans cjk sc")));
        QVERIFY(tried.contains(QStringLiteral("microsoft yahei")));
    }

    // A block that the allocator took from the system alone, and not from its stock.
    void freedPicturesGoBackToTheSystem()
    {
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        giveFreedPicturesBack();
        for (const std::size_t megabytes : {1UL, 16UL, 2UL, 30UL, 6UL}) {
            const auto before = mallinfo2();
            void *const volatile picture = std::malloc(megabytes << 20); // not to be optimised away
            const auto meanwhile = mallinfo2();
            std::free(picture);
            QCOMPARE(meanwhile.hblks, before.hblks + 1);
            QCOMPARE(mallinfo2().hblks, before.hblks);
        }
#else
        QSKIP("The allocator is another one.");
#endif
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

    // In processes side by side, as most wait for two seconds.
    void splashWait_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<bool>("hasFile");
        for (const char *name : {"rec.cfg", "rec.CFG", "rec.txt", "rec.cfg.bak"})
            QVERIFY(writeTextFile(folder.filePath(QLatin1String(name)), smallConfiguration()));
        for (const char *name : {"rec.dat", "rec.dat.bak"})
            QVERIFY(writeTextFile(folder.filePath(QLatin1String(name)), smallData()));
        const auto row = [this](const char *name, const char *file, bool opens) {
            QTest::newRow(name) << int(waits.size()) << opens << (*file != 0);
            const QString argument = *file ? folder.filePath(QLatin1String(file)) : QString();
            waits.emplace_back(new QProcess);
            waits.back()->start(QCoreApplication::applicationFilePath(), {waitOption, argument});
        };
        row("no argument waits", "", false);
        row(".cfg opens at once", "rec.cfg", true);
        row(".CFG waits", "rec.CFG", false);
        row(".txt waits", "rec.txt", false);
        row(".cfg not at the end waits", "rec.cfg.bak", false);
    }

    void splashWait()
    {
        QFETCH(int, number);
        QFETCH(bool, opens);
        QFETCH(bool, hasFile);
        QProcess &process = *waits.at(std::size_t(number));
        QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        const QByteArrayList seen = process.readAllStandardOutput().split(' ');
        QCOMPARE(seen.size(), 3);
        const int elapsed = seen.at(0).toInt();
        QCOMPARE(seen.at(1) == "1", opens);
        const QByteArray error = process.readAllStandardError();
        QCOMPARE(error.contains("not opened: the name does not end with .cfg or .zip"),
            !opens && hasFile);
        QVERIFY2(opens ? elapsed < 2000 : elapsed >= 2000, seen.at(0).constData());
        QVERIFY2(elapsed < 4000, seen.at(0).constData());
        QVERIFY(opens || seen.at(2) == "1");
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
#ifdef Q_OS_WIN // which gives the reason in its own language
        QVERIFY(
            seen[0].text.startsWith(QLatin1String("Cannot read file ") + path + QLatin1Char(':')));
#else
        QCOMPARE(seen[0].text,
            QLatin1String("Cannot read file ") + path
                + QLatin1String(":\nNo such file or directory."));
#endif
        QCOMPARE(window.statusBar()->currentMessage(), QStringLiteral("Ready"));
    }

    void questionsAreAnsweredWithoutADisplay_data()
    {
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("begin");
        QTest::newRow("version") << QStringLiteral("--version") << QStringLiteral("wavorin 1.");
        QTest::newRow("help") << QStringLiteral("--help") << QStringLiteral("Usage: ");
    }

    void questionsAreAnsweredWithoutADisplay()
    {
        QFETCH(QString, question);
        QFETCH(QString, begin);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *variable : {"DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(variable));
        program.setProcessEnvironment(environment);
        program.start(
            QCoreApplication::applicationDirPath() + QLatin1String("/../bin/wavorin"), {question});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 0);
        const QString answer = QString::fromUtf8(program.readAllStandardOutput());
        QVERIFY2(answer.startsWith(begin), qPrintable(answer));
        QCOMPARE(
            answer.contains(QLatin1String("[recording]")), question == QLatin1String("--help"));
        QCOMPARE(program.readAllStandardError(), QByteArray());
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
        const OwnDisplay display(QStringLiteral("1600x1000"));
        if (!display.isReady())
            QSKIP("Xvfb is not installed");
        QStringList arguments;
        if (withFile)
            arguments.append(writeSmallRecording(folder.path(), QStringLiteral("rec")));
        QElapsedTimer timer;
        timer.start();
        const auto program = display.started(
            QCoreApplication::applicationDirPath() + QLatin1String("/wavorin"), arguments);
        QVERIFY(program->waitForStarted());
        if (display.window().isEmpty())
            QSKIP("xdotool is not installed");
        const qint64 elapsed = timer.elapsed();
        QCOMPARE(program->state(), QProcess::Running);
        if (!withFile)
            QVERIFY2(elapsed >= 2000, qPrintable(QString::number(elapsed)));
    }

    // The archiver hangs, and there is no window yet.
    void thePatienceWithAPackageEnds_data()
    {
        QTest::addColumn<QStringList>("action"); // with the pointer over the splash
        QTest::newRow("by a click on the splash")
            << QStringList({QStringLiteral("click"), QStringLiteral("1")});
        QTest::newRow("by Escape")
            << QStringList({QStringLiteral("key"), QStringLiteral("Escape")});
    }

    void thePatienceWithAPackageEnds()
    {
        QFETCH(QStringList, action);
        OwnDisplay display(QStringLiteral("1600x1000"));
        if (!display.isReady()
            || QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty())
            QSKIP("Xvfb or xdotool is not installed");
        const QTemporaryDir archivers;
        const QString started = archivers.filePath(QStringLiteral("started"));
        const QString archiver = archivers.filePath(QStringLiteral("7z"));
        QVERIFY(writeTextFile(
            archiver, "#!/bin/sh\n: > \"" + QFile::encodeName(started) + "\"\nsleep 60\n"));
        QVERIFY(QFile::setPermissions(archiver, QFile::ReadOwner | QFile::ExeOwner));
        display.set("PATH", archivers.path() + QLatin1Char(':') + qEnvironmentVariable("PATH"));
        const QString package = folder.filePath(QStringLiteral("rec.zip"));
        QVERIFY(writeTextFile(package, "PK"));
        const auto program = display.started(
            QCoreApplication::applicationDirPath() + QLatin1String("/wavorin"), {package});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(started), 20000);
        const QStringList visible{QStringLiteral("search"), QStringLiteral("--onlyvisible"),
            QStringLiteral("--name"), QStringLiteral("^Wavorin$")};
        QCOMPARE(display.outputOf(QStringLiteral("xdotool"), visible), QString());
        display.outputOf(QStringLiteral("xdotool"),
            QStringList{QStringLiteral("mousemove"), QStringLiteral("800"), QStringLiteral("500")}
                + action);
        QVERIFY(!display.window().isEmpty());
        QCOMPARE(program->state(), QProcess::Running);
    }

    // By the dots of an inch: a factor given to the toolkit is never rounded.
    void windowIsScaledAsTheDesktopIs_data()
    {
        QTest::addColumn<int>("dotsPerInch");
        QTest::addColumn<int>("width"); // 1000 times the scale
        QTest::newRow("100 %") << 96 << 1000;
        QTest::newRow("125 %") << 120 << 1250;
        QTest::newRow("150 %") << 144 << 1500;
    }

    void windowIsScaledAsTheDesktopIs()
    {
        QFETCH(int, dotsPerInch);
        QFETCH(int, width);
        OwnDisplay display(QStringLiteral("1920x1080"));
        if (!display.isReady())
            QSKIP("Xvfb is not installed");
        display.set("QT_FONT_DPI", QString::number(dotsPerInch));
        const auto program
            = display.started(QCoreApplication::applicationDirPath() + QLatin1String("/wavorin"),
                {writeSmallRecording(folder.path(), QStringLiteral("rec"))});
        QVERIFY(program->waitForStarted());
        const QString window = display.window();
        const QString hints = display.outputOf(QStringLiteral("xprop"),
            {QStringLiteral("-id"), window, QStringLiteral("WM_NORMAL_HINTS")});
        if (window.isEmpty() || hints.isEmpty())
            QSKIP("xdotool or xprop is not installed");
        // The least size, with which all of the window is seen, and the present one.
        const QRegularExpression size(QStringLiteral("size: (\\d+) by (\\d+)"));
        int count = 0;
        for (auto found = size.globalMatch(hints); found.hasNext(); ++count) {
            const QRegularExpressionMatch match = found.next();
            if (match.captured(1) == QLatin1String("0"))
                continue; // the base size, which none has
            QCOMPARE(match.captured(1).toInt(), width);
            QVERIFY2(match.captured(2).toInt() <= 1080, qPrintable(match.captured(2)));
        }
        QVERIFY2(count >= 2, qPrintable(hints));
    }
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    application.setAttribute(Qt::AA_Use96Dpi); // as for all tests
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == waitOption) {
        printWait(arguments.value(2));
        return 0;
    }
    TestStartup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"
