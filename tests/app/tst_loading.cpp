// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "drops.h"
#include "openhint.h"
#include "openingfixture.h"
#include "playedarchiver.h"
#include "plotmenus.h"
#include "plotter.h"
#include "vectordialog.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QRegularExpression>
#include <QTableView>
#include <QToolButton>

#include <functional>
#include <utility>

// The load that a person sees go on, ends, or replaces by another one.
class TestLoading : public OpeningFixture {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> longFiles;
    QByteArray searchPath;
    QString before; // on screen at first
    CFGProperties *loader = nullptr; // of the window; lives in its thread
    QStringList titles; // of the window, since then
    bool isDone = false; // what was to be done during the load

    QProgressBar *bar() const { return child<QProgressBar>("progressBar_loading"); }
    QWidget *progress() const { return child<QWidget>("loadingProgress"); }
    QToolButton *button() const { return child<QToolButton>("toolButton_stopLoading"); }

    // Take long, on a busy machine, too: to be read, or to be given phasors.
    static void writeLongFiles(const QTemporaryDir &folder)
    {
        ConfigurationText text;
        for (int channel = 1; channel <= 8; ++channel)
            text.analog.append(analogLine(channel));
        const QByteArray line = "1,1,-9,8.25,-777,66666,5.55555,4,-33,2\n";
        const auto write = [&](const char *name, int lines) {
            return writePair(
                folder.filePath(QLatin1String(name)), text.text(), line.repeated(lines));
        };
        QVERIFY(!write("reading", 2000000).isEmpty());
        QVERIFY(!write("phasors", 200000).isEmpty());
        QVERIFY(writeTextFile(folder.filePath(QStringLiteral("export.txt")),
            "#1,2,3,4,5,6,7,8\n"
                + QByteArray("01/02/2020-10:00:00:000,1,2,3,4,5,6,7,8\n").repeated(500000)));
    }
    QString longFile(const char *name) const { return longFiles->filePath(QLatin1String(name)); }
    QString longAt(const QString &stage) const
    {
        return longFile(stage == QLatin1String("Reading") ? "reading.cfg" : "phasors.cfg");
    }

    // Opens a long file, which the loader begins when the progress of that can be seen already.
    void openLong(const QString &path)
    {
        QMetaObject::invokeMethod(
            loader, [] { QThread::msleep(1000); }, Qt::QueuedConnection);
        window->open(path);
    }

    // When it is seen that the load that follows has come to a stage, "Reading" or "Phasors", and
    // so far in it.
    void whenSeen(const QString &stage, int parts, const std::function<void()> &act)
    {
        auto *watch = new QTimer(window.get());
        connect(watch, &QTimer::timeout, window.get(), [=] {
            if (!progress()->isVisible() || !bar()->text().startsWith(stage)
                || bar()->value() < parts)
                return;
            watch->stop();
            act();
            isDone = true;
        });
        watch->start(10);
    }
    void whenAt(const QString &stage, const std::function<void()> &act) { whenSeen(stage, 1, act); }

    void pressEscape() const
    {
        QVERIFY(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    }

    void chooseLanguage(const QString &name) const
    {
        for (QAction *candidate : window->findChildren<QAction *>()) {
            if (candidate->text() == name)
                candidate->trigger();
        }
    }

    // A recording with a note is on screen.
    void openNoted()
    {
        window->open(writeSmallRecording(folder->path(), QStringLiteral("before"),
            smallConfiguration().replace(",1999\n", ",2013\n")));
        QVERIFY(window->recording());
        window->statusBar()->clearMessage();
        titles.clear();
    }
    // A window beside it, from the menu of the plots.
    QWidget *openBeside(const QString &entry) const
    {
        const bool isOpened = choose(window->findChild<Plotter *>(), entry)
            && QTest::qWaitFor([this] { return QApplication::activeWindow() != window.get(); });
        return isOpened ? QApplication::activeWindow() : nullptr;
    }
    static void giveKeys(QWidget *to)
    {
        to->activateWindow();
        QVERIFY(QTest::qWaitFor([to] {
            const QWidget *focus = QApplication::focusWidget();
            return focus && focus->window() == to;
        }));
    }

    // The window is as after a failed load, but for the message that there was none.
    void expectNothingLoaded()
    {
        QVERIFY(isDone);
        QVERIFY(boxes->take().isEmpty());
        QVERIFY(!window->recording());
        QVERIFY(viewIsEmpty());
        QVERIFY(recordingActionsDisabled());
        QVERIFY(animationIsGone());
        QVERIFY(window->findChildren<Plotter *>().isEmpty());
        QVERIFY(window->findChild<OpenHint *>()->isVisible());
        QVERIFY(!progress()->isVisible());
        QCOMPARE(titles, QStringList());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - before.cfg"));
        QCOMPARE(window->windowFilePath(), before);
        QCOMPARE(window->statusBar()->currentMessage(), QString());
    }

    void expectNextFileOpens()
    {
        window->open(goodRecording("next"));
        QVERIFY(window->recording());
        QCOMPARE(window->recording()->sampleCount, 40);
        QVERIFY(window->findChild<Plotter *>());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - next.cfg"));
        QVERIFY(boxes->take().isEmpty());
    }

private slots:
    void initTestCase()
    {
        searchPath = qgetenv("PATH");
        longFiles = std::make_unique<QTemporaryDir>();
        writeLongFiles(*longFiles);
    }

    void init()
    {
        open();
        before = goodRecording("before");
        showActive();
        window->open(before);
        loader = window->recording();
        window->statusBar()->clearMessage();
        titles.clear();
        isDone = false;
        connect(window.get(), &QWidget::windowTitleChanged, this,
            [this](const QString &title) { titles.append(title); });
    }

    void cleanup()
    {
        qputenv("PATH", searchPath);
        close();
    }

    void aLoadIsEnded_data()
    {
        QTest::addColumn<bool>("isExport");
        QTest::addColumn<QString>("stage");
        QTest::addColumn<bool>("byButton");
        QTest::newRow("reading, by Escape") << false << "Reading" << false;
        QTest::newRow("reading, by the button") << false << "Reading" << true;
        QTest::newRow("phasors, by Escape") << false << "Phasors" << false;
        QTest::newRow("phasors, by the button") << false << "Phasors" << true;
        QTest::newRow("an export, by Escape") << true << "Reading" << false;
        QTest::newRow("an export, by the button") << true << "Reading" << true;
    }

    void aLoadIsEnded()
    {
        QFETCH(bool, isExport);
        QFETCH(QString, stage);
        QFETCH(bool, byButton);
        const QString file = isExport ? longFile("export.txt") : longAt(stage);
        for (int time = 0; time < 2; ++time) {
            isDone = false;
            QElapsedTimer sinceEnded;
            whenAt(stage, [&] {
                sinceEnded.start();
                if (byButton)
                    QTest::mouseClick(button(), Qt::LeftButton);
                else
                    pressEscape();
            });
            openLong(file);
            QVERIFY(sinceEnded.isValid());
            // A moment, longer on a busy machine.
            QVERIFY2(
                sinceEnded.elapsed() < 2000, qPrintable(QString::number(sinceEnded.elapsed())));
            expectNothingLoaded();
        }
        expectNextFileOpens();
    }

    void aLoadOfAPackageIsEnded()
    {
        // Its phasors take longer than the progress takes to be seen, on any machine.
        const QString file = longFile("phasors.cfg");
        playArchiver("copy " + QFile::encodeName(file.chopped(4)) + ".\n", searchPath);
        QVERIFY(writeTextFile(path("some.zip"), "PK"));
        whenAt(QStringLiteral("Phasors"), [&] { pressEscape(); });
        window->open(path("some.zip"));
        expectNothingLoaded();
        expectNextFileOpens();
    }

    void escapeBeforeTheLoadHasBegun()
    {
        connect(window.get(), &MainWindow::initProperties, this, [this] {
            if (!std::exchange(isDone, true))
                pressEscape();
        });
        window->open(goodRecording("early"));
        expectNothingLoaded();
        expectNextFileOpens();
    }

    // It ends the load, not the one that comes after it.
    void escapeTwice()
    {
        whenAt(QStringLiteral("Reading"), [&] {
            pressEscape();
            pressEscape();
        });
        openLong(longFile("reading.cfg"));
        expectNothingLoaded();
        expectNextFileOpens();
        pressEscape();
        QVERIFY(window->recording());
    }

    void escapeInAMenuClosesThatAlone()
    {
        QMenu *menu = window->menuBar()->actions().constFirst()->menu();
        bool isClosed = false;
        whenSeen(QStringLiteral("Reading"), 0, [&] {
            QTimer::singleShot(100, this, [&] {
                QTest::keyClick(menu, Qt::Key_Escape);
                isClosed = !menu->isVisible();
            });
            menu->popup(window->mapToGlobal(QPoint(50, 50)));
        });
        bool goesOn = false;
        whenAt(QStringLiteral("Phasors"), [&] {
            goesOn = true;
            pressEscape();
        });
        openLong(longFile("phasors.cfg"));
        QVERIFY(isClosed);
        QVERIFY(goesOn);
        expectNothingLoaded();
    }

    void escapeInAWindowBesideEndsTheLoad_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("stage");
        for (const char *entry : {"Events...", "Measurements...", "Notes..."}) {
            for (const char *stage : {"Reading", "Phasors"})
                QTest::addRow("%s, %s", entry, stage) << entry << stage;
        }
    }

    // It stays open for the next recording; after the load the key closes it as ever.
    void escapeInAWindowBesideEndsTheLoad()
    {
        QFETCH(QString, entry);
        QFETCH(QString, stage);
        openNoted();
        const QPointer<QWidget> beside = openBeside(entry);
        QVERIFY(beside);
        for (int time = 0; time < 2; ++time) {
            isDone = false;
            giveKeys(beside);
            whenAt(stage, [&] {
                pressEscape();
                pressEscape();
            });
            openLong(longAt(stage));
            expectNothingLoaded();
            QVERIFY(beside->isVisible());
        }
        giveKeys(beside);
        pressEscape();
        QVERIFY(!beside->isVisible());
        expectNextFileOpens();
    }

    void escapeInAWindowBesideEndsTheUnpacking()
    {
        playArchiver("sleep 60000\n", searchPath);
        QVERIFY(writeTextFile(path("some.zip"), "PK"));
        openNoted();
        const QPointer<QWidget> beside = openBeside(QStringLiteral("Notes..."));
        QVERIFY(beside);
        QTimer::singleShot(500, window.get(), [&] { pressEscape(); });
        QTimer::singleShot(10000, window.get(), &QWidget::close); // fails instead of hanging
        window->open(path("some.zip"));
        QVERIFY(window->isVisible());
        QVERIFY(window->recording()); // as before
        QVERIFY(beside->isVisible());
        QCOMPARE(beside->findChild<QTableView *>()->model()->rowCount(), 1);
        QCOMPARE(titles, QStringList());
        pressEscape();
        QVERIFY(!beside->isVisible());
        expectNextFileOpens();
    }

    void notesThatAreShownGoWithTheirRecording()
    {
        openNoted();
        QWidget *notes = openBeside(QStringLiteral("Notes..."));
        QVERIFY(notes);
        const auto rows = [&] { return notes->findChild<QTableView *>()->model()->rowCount(); };
        for (int time = 0; time < 2; ++time) {
            QCOMPARE(rows(), 1);
            QVERIFY(child<QToolButton>("noteSign")->isVisible());
            isDone = false;
            giveKeys(window.get());
            whenAt(QStringLiteral("Reading"), [&] {
                QCOMPARE(rows(), 0);
                pressEscape();
            });
            openLong(longFile("reading.cfg"));
            expectNothingLoaded();
            QVERIFY(notes->isVisible());
            QCOMPARE(rows(), 0);
            QVERIFY(!child<QToolButton>("noteSign")->isVisible());
            openNoted();
        }
        QCOMPARE(rows(), 1);
    }

    void escapeInTheDialogOfPhasorsClosesThatAlone()
    {
        trigger("&Show Vectors");
        auto *dialog = window->findChild<VectorDialog *>();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        giveKeys(dialog);
        bool isClosed = false;
        whenSeen(QStringLiteral("Reading"), 0, [&] {
            pressEscape();
            isClosed = !dialog->isVisible();
            giveKeys(window.get());
        });
        bool goesOn = false;
        whenAt(QStringLiteral("Phasors"), [&] {
            goesOn = true;
            pressEscape();
        });
        openLong(longFile("phasors.cfg"));
        QVERIFY(isClosed);
        QVERIFY(goesOn);
        expectNothingLoaded();
    }

    void aFileChosenMeanwhileOpensAtOnce_data()
    {
        QTest::addColumn<QString>("stage");
        QTest::addColumn<QString>("way");
        for (const char *stage : {"Reading", "Phasors"}) {
            for (const char *way : {"once", "twice", "drop", "dialog", "package"})
                QTest::addRow("%s, %s", stage, way) << stage << way;
        }
    }

    void aFileChosenMeanwhileOpensAtOnce()
    {
        QFETCH(QString, stage);
        QFETCH(QString, way);
        const QString chosen = goodRecording("chosen");
        const QString other = goodRecording("other");
        const QString file = longAt(stage);
        playArchiver("copy " + QFile::encodeName(path("chosen")) + ".\n", searchPath);
        QVERIFY(writeTextFile(path("some.zip"), "PK"));
        QElapsedTimer sinceChosen;
        whenAt(stage, [&] {
            sinceChosen.start();
            if (way == QLatin1String("drop")) {
                dropFile(*window, chosen);
            } else if (way == QLatin1String("dialog")) {
                QTimer::singleShot(100, this, [&] {
                    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
                    QVERIFY(dialog);
                    dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(chosen);
                    QTest::keyClick(dialog, Qt::Key_Return);
                });
                trigger("&Open...");
            } else {
                if (way == QLatin1String("twice"))
                    window->open(other);
                window->open(way == QLatin1String("package") ? path("some.zip") : chosen);
            }
        });
        openLong(file);
        QVERIFY(isDone);
#ifdef Q_OS_WIN // under Wine, on a busy machine
        constexpr int atOnce = 20000; // ms
#else
        constexpr int atOnce = 5000;
#endif
        QVERIFY2(
            sinceChosen.elapsed() < atOnce, qPrintable(QString::number(sinceChosen.elapsed())));
        QVERIFY(boxes->take().isEmpty());
        QCOMPARE(titles, QStringList(QStringLiteral("Wavorin - chosen.cfg")));
        QVERIFY(window->recording());
        QCOMPARE(window->recording()->sampleCount, 40);
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File loaded"));
        QVERIFY(animationIsGone());
        QVERIFY(!progress()->isVisible());
        QVERIFY(!window->findChild<OpenHint *>()->isVisible());
        expectNextFileOpens();
    }

    // A load that was finished while the dialog was open is not shown for a moment, either.
    void aFileChosenLateOpensAlone()
    {
        const QString chosen = goodRecording("chosen");
        QTimer::singleShot(0, this, [&] {
            QTest::qWait(500);
            QVERIFY(titles.isEmpty());
            window->open(chosen);
        });
        window->open(goodRecording("early"));
        QCOMPARE(titles, QStringList(QStringLiteral("Wavorin - chosen.cfg")));
        QVERIFY(window->recording());
        QVERIFY(boxes->take().isEmpty());
    }

    void aFileThatCannotBeReadEndsNoLoad_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("warnings");
        QTest::newRow("it is not there") << "none.cfg" << 1;
        QTest::newRow("it is no recording") << "notes.pdf" << 0;
    }

    void aFileThatCannotBeReadEndsNoLoad()
    {
        QFETCH(QString, name);
        QFETCH(int, warnings);
        QVERIFY(writeTextFile(path("notes.pdf"), "x"));
        connect(window.get(), &MainWindow::initProperties, this, [&] {
            if (!std::exchange(isDone, true))
                window->open(folder->filePath(name));
        });
        window->open(goodRecording("good"));
        QVERIFY(isDone);
        QCOMPARE(boxes->take().size(), warnings);
        QCOMPARE(titles, QStringList(QStringLiteral("Wavorin - good.cfg")));
        QVERIFY(window->recording());
    }

    void closingEndsTheLoad_data()
    {
        QTest::addColumn<QString>("stage");
        QTest::addColumn<bool>("isDeleted");
        for (const char *stage : {"Reading", "Phasors"}) {
            QTest::addRow("%s, closed", stage) << stage << false;
            QTest::addRow("%s, deleted", stage) << stage << true;
        }
    }

    void closingEndsTheLoad()
    {
        QFETCH(QString, stage);
        QFETCH(bool, isDeleted);
        const QString file = longAt(stage);
        whenAt(stage, [&] {
            QTimer::singleShot(0, this, [&] {
                if (isDeleted)
                    window.reset();
                else
                    window->close();
            });
        });
        openLong(file);
        QVERIFY(isDone);
        QVERIFY(boxes->take().isEmpty());
        QCOMPARE(titles, QStringList());
        QVERIFY(!window || !window->recording());
    }

    void aShortLoadShowsNoProgress()
    {
        bool isShown = false;
        QTimer watch;
        connect(
            &watch, &QTimer::timeout, this, [&] { isShown = isShown || progress()->isVisible(); });
        watch.start(1);
        QVERIFY(!progress()->isVisible());
        window->open(goodRecording("short"));
        QVERIFY(!isShown);
        QVERIFY(!progress()->isVisible());
    }

    // Without a change of the status bar's height, at any of the scale factors.
    void progressIsSeen()
    {
        const int height = window->statusBar()->height();
        QStringList texts;
        whenSeen(QStringLiteral("Reading"), 0, [&] {
            texts.append(bar()->text());
            QCOMPARE(window->statusBar()->height(), height);
            const QRect place = progress()->geometry();
            QVERIFY(window->statusBar()->rect().contains(place));
            for (const QWidget *widget :
                {static_cast<QWidget *>(bar()), static_cast<QWidget *>(button())}) {
                QVERIFY(progress()->rect().contains(widget->geometry()));
                QVERIFY(widget->height() >= widget->fontMetrics().height());
                QVERIFY(!widget->accessibleName().isEmpty());
            }
            QCOMPARE(button()->accessibleName(), QStringLiteral("Stop loading"));
            QVERIFY(button()->width() >= button()->sizeHint().width());
            QCOMPARE(child<QLabel>("label_loadingTime")->text(), QString());
            QVERIFY(QApplication::focusWidget() == child<QListWidget>("listWidget"));
        });
        whenAt(QStringLiteral("Phasors"), [&] {
            texts.append(bar()->text());
            pressEscape();
        });
        openLong(longFile("phasors.cfg"));
        expectNothingLoaded();
        QCOMPARE(texts.size(), 2);
        QVERIFY2(QRegularExpression(QStringLiteral("^Reading: \\d+%$")).match(texts[0]).hasMatch(),
            qPrintable(texts[0]));
        QVERIFY2(texts[1].startsWith(QLatin1String("Phasors: ")), qPrintable(texts[1]));
    }

    void theTimeThatIsLeftIsSaid_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("stage");
        QTest::newRow("an export") << "export.txt"
                                   << "Reading: ";
        QTest::newRow("a pair") << "phasors.cfg"
                                << "Phasors: ";
    }

    // In the last stage alone.
    void theTimeThatIsLeftIsSaid()
    {
        QFETCH(QString, name);
        QFETCH(QString, stage);
        QString said;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            said = child<QLabel>("label_loadingTime")->text();
            if (said.isEmpty())
                return;
            watch.stop();
            isDone = true;
            QVERIFY2(bar()->text().startsWith(stage), qPrintable(bar()->text()));
            pressEscape();
        });
        watch.start(20);
        openLong(longFiles->filePath(name));
        expectNothingLoaded();
        QVERIFY2(QRegularExpression(QStringLiteral("^about [1-9]\\d* (s|min) left$"))
                     .match(said)
                     .hasMatch(),
            qPrintable(said));
    }

    void theLanguageChangesMeanwhile()
    {
        QStringList texts;
        whenSeen(QStringLiteral("Reading"), 0, [&] {
            for (const char *language : {"Suomi", "中文", "English"}) {
                chooseLanguage(QString::fromUtf8(language));
                QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
                texts.append(
                    bar()->text().section(QRegularExpression(QStringLiteral("[:：]")), 0, 0));
                texts.append(button()->text());
            }
        });
        whenAt(QStringLiteral("Phasors"), [&] { pressEscape(); });
        openLong(longFile("phasors.cfg"));
        expectNothingLoaded();
        QCOMPARE(texts,
            QStringList(
                {QStringLiteral("Luetaan"), QStringLiteral("Keskeytä"), QStringLiteral("正在读取"),
                    QStringLiteral("停止"), QStringLiteral("Reading"), QStringLiteral("Stop")}));
    }
};

QTEST_MAIN(TestLoading)
#include "tst_loading.moc"
