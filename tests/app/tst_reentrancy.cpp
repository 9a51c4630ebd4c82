// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "addplotterdialog.h"
#include "cfgproperties.h"
#include "drops.h"
#include "playedarchiver.h"
#include "plotswindow.h"
#include "smallrecording.h"

#include <QFileDialog>
#include <QLoggingCategory>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QScrollBar>
#include <QWheelEvent>

#include <random>

// Whatever a person may do while files load and dialogs are open, at random and from within the
// event loops of all that. Where WAVORIN_LONG_TESTS is set, for a hundred times as long.
class TestReentrancy : public PlotsWindow {
    Q_OBJECT

    static constexpr int actionsOfARound = 60;

    std::mt19937 random;
    QTimer closer;
    QByteArray searchPath;
    QStringList files; // to be opened: good ones and others
    QAction *exit = nullptr;
    int actionsLeft = 0;
    int leavesAt = -1; // so many actions before the end of the round
    int opened = 0; // loads that were begun

    int upTo(int count) { return static_cast<int>(random() % unsigned(count)); }
    template <typename List> auto anyOf(const List &list) { return list.at(upTo(list.size())); }

    // The next action comes while this one still waits for a dialog or a load.
    void go()
    {
        if (actionsLeft-- <= 0)
            return;
        QTimer::singleShot(upTo(4), this, [this] { go(); });
        if (actionsLeft == leavesAt)
            leave();
        else if (QWidget *modal = QApplication::activeModalWidget())
            answer(modal);
        else if (window)
            act();
    }

    // Under a dialog a window can be closed, as by the end of the session, but not deleted; that
    // may be hidden already, while what was done in it is still at work.
    void leave()
    {
        const bool isAsking = QApplication::activeModalWidget()
            || window->findChild<QFileDialog *>() || window->findChild<QMessageBox *>();
        if (upTo(2) || isAsking)
            window->close();
        else
            window.reset();
    }

    void act()
    {
        switch (upTo(12)) {
        case 0:
        case 1:
            window->open(anyOf(files));
            break;
        case 2:
            dropFile(*window, anyOf(files));
            break;
        case 3:
        case 4:
        case 5:
            triggerAny();
            break;
        case 6:
            chooseLanguage();
            break;
        case 7:
            change();
            break;
        case 8:
            closeADialog();
            break;
        default:
            point();
        }
    }

    // Of the menus and tool bars, as far as it is enabled; but not the one that ends the program.
    void triggerAny()
    {
        QList<QAction *> enabled;
        for (QAction *candidate : window->findChildren<QAction *>()) {
            if (candidate->isEnabled() && !candidate->menu() && candidate != exit)
                enabled.append(candidate);
        }
        anyOf(enabled)->trigger();
    }

    void chooseLanguage()
    {
        QList<QAction *> languages;
        for (QAction *candidate : window->findChildren<QAction *>()) {
            if (candidate->isCheckable() && candidate->actionGroup())
                languages.append(candidate);
        }
        anyOf(languages)->trigger();
    }

    // What the window's own controls offer, which may be empty.
    void change()
    {
        QListWidget *names = list(upTo(2) ? "listWidget" : "listWidget2");
        QComboBox *box = combo(upTo(2) ? "comboBox_primSec" : "comboBox_mainReference");
        switch (upTo(4)) {
        case 0:
            if (names->count() > 0)
                click(names, upTo(names->count()));
            break;
        case 1:
            if (box->count() > 0)
                box->setCurrentIndex(upTo(box->count()));
            break;
        case 2:
            window->resize(700 + upTo(600), 500 + upTo(500));
            break;
        default:
            upTo(4) ? window->showNormal() : window->showMinimized();
        }
    }

    // One that is open beside the window.
    void closeADialog()
    {
        QList<QDialog *> shown;
        for (QDialog *dialog : window->findChildren<QDialog *>()) {
            if (dialog->isVisible())
                shown.append(dialog);
        }
        if (!shown.isEmpty())
            upTo(2) ? anyOf(shown)->accept() : anyOf(shown)->reject();
    }

    void point()
    {
        const QList<Plotter *> shown = plots();
        if (shown.isEmpty())
            return;
        const QPointer<Plotter> plot = anyOf(shown); // a load may end meanwhile
        const QPoint from(100 + upTo(400), 60 + upTo(100));
        const QPoint to(100 + upTo(400), 60 + upTo(100));
        switch (upTo(5)) {
        case 0: // through the window, which knows then over what the pointer stands
            QCursor::setPos(plot->mapToGlobal(to));
            QTest::mouseMove(window->windowHandle(), plot->mapTo(window.get(), to));
            break;
        case 1:
            QTest::mouseDClick(plot, Qt::LeftButton, {}, to);
            break;
        case 2:
            QTest::keyClick(plot, upTo(2) ? Qt::Key_Plus : Qt::Key_Left);
            break;
        case 3: {
            QWheelEvent event(to, plot->mapToGlobal(to), {}, {0, upTo(2) ? 120 : -120},
                Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(plot, &event);
            break;
        }
        default:
            QTest::mousePress(plot, Qt::LeftButton, {}, from);
            if (plot)
                QTest::mouseMove(plot, to);
            if (plot)
                QTest::mouseRelease(plot, Qt::LeftButton, {}, to);
        }
    }

    // As a person would who is in no hurry: now and then not at all.
    void answer(QWidget *modal)
    {
        if (upTo(3) == 0)
            return;
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            anyOf(box->buttons())->click();
        } else if (auto *dialog = qobject_cast<QFileDialog *>(modal)) {
            const bool opens = dialog->acceptMode() == QFileDialog::AcceptOpen;
            dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))
                ->setText(opens ? anyOf(files) : path("saved"));
            upTo(3) ? QTest::keyClick(dialog, Qt::Key_Return) : dialog->reject();
        } else if (auto *added = qobject_cast<AddPlotterDialog *>(modal)) {
            added->findChild<QListWidget *>(QStringLiteral("listWidget_unSelected"))->selectAll();
            added->findChild<QPushButton *>(QStringLiteral("pushButton_add"))->click();
            upTo(3) ? added->accept() : added->reject();
        } else if (auto *other = qobject_cast<QDialog *>(modal)) {
            upTo(2) ? other->accept() : other->reject();
        } else {
            modal->close();
        }
    }

    // When all has been played: what still waits for an answer holds up the test itself.
    void closeWhatWaits()
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (actionsLeft > 0 || !modal)
            return;
        auto *dialog = qobject_cast<QDialog *>(modal);
        dialog ? dialog->reject() : static_cast<void>(modal->close());
    }

    void playARound()
    {
        actionsLeft = actionsOfARound;
        QTimer::singleShot(0, this, [this] { go(); });
        QTRY_VERIFY_WITH_TIMEOUT(actionsLeft <= 0, 60000);
        QCoreApplication::processEvents(); // what was dropped last opens only afterwards
    }

    // Two plots, of the file that was asked for last, and nothing of those before it.
    void expectTheNextFileOpens()
    {
        const QString next = writeSmallRecording(folder->path(), QStringLiteral("next"));
        window->showNormal();
        window->open(next);
        QTRY_VERIFY_WITH_TIMEOUT(window->windowTitle().endsWith(QLatin1String(" next.cfg")), 20000);
        QTRY_VERIFY(window->recording());
        QCOMPARE(window->recording()->sampleCount, 40);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(plots().size(), 2);
        for (const Plotter *plot : plots()) {
            QCOMPARE(plot->view().maxX, plots().constFirst()->view().maxX);
            QVERIFY(std::isfinite(plot->view().minX) && plot->view().spanX() > 0);
        }
    }

    void openAnotherWindow()
    {
        window = std::make_unique<MainWindow>();
        window->resize(1200, 900);
        window->show();
        exit = window->findChild<QMenuBar *>()
                   ->actions()
                   .constFirst()
                   ->menu()
                   ->actions()
                   .constLast();
        connect(window.get(), &MainWindow::initProperties, this, [this] { ++opened; });
    }

    // Small ones, one that takes a while, others that cannot be loaded, and packages for a program
    // in the archiver's place.
    void writeFiles()
    {
        files = QStringList{writeSmallRecording(folder->path(), QStringLiteral("small")),
            writeRecording(folder->path(), {QStringLiteral("IL1"), QStringLiteral("MEAS1")},
                {QStringLiteral("TRIP"), QStringLiteral("START0")}),
            path("none.cfg"), path("bad.cfg"), path("export.txt"), path("notes.pdf"),
            path("some.zip"), path("invalid.zip")};
        QVERIFY(writeTextFile(path("bad.cfg"), "x"));
        QVERIFY(writeTextFile(path("notes.pdf"), "x"));
        QVERIFY(writeTextFile(path("some.zip"), "PK"));
        QVERIFY(writeTextFile(path("invalid.zip"), "PK"));
        QVERIFY(writeTextFile(path("export.txt"),
            "#Ua[kV],Ub[kV]\n01/02/2020-10:00:00:000,1,2\n01/02/2020-10:00:00:020,3,4\n"));
        ConfigurationText text;
        for (int channel = 1; channel <= 8; ++channel)
            text.analog.append(analogLine(channel));
        text.rates = QByteArrayList{"1000,4000"};
        const auto values = [](int i) {
            QByteArrayList fields;
            for (int channel = 1; channel <= 8; ++channel)
                fields.append(QByteArray::number(i % 20 * channel));
            return fields;
        };
        files.append(writePair(
            folder->filePath(QStringLiteral("long")), text.text(), dataLines(4000, 1000, values)));
        playArchiver("refuse invalid\nsleep 10\ncopy " + QFile::encodeName(path("small")) + ".\n",
            searchPath);
    }

private slots:
    void initTestCase()
    {
        // The platform without a display warns whenever a plot grabs the keyboard.
        QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
        searchPath = qgetenv("PATH");
        connect(&closer, &QTimer::timeout, this, [this] { closeWhatWaits(); });
        closer.start(5);
    }

    void init()
    {
        startAsMaker();
        opened = 0;
        makeWindow();
        openAnotherWindow();
        writeFiles();
    }

    void cleanup()
    {
        qputenv("PATH", searchPath);
        closeWindow();
    }

    void anythingWhileFilesLoad_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 3; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void anythingWhileFilesLoad()
    {
        QFETCH(unsigned, seed);
        random.seed(seed);
        const int rounds = qEnvironmentVariableIsSet("WAVORIN_LONG_TESTS") ? 300 : 3;
        for (int round = 0; round < rounds; ++round) {
            playARound();
            if (QTest::currentTestFailed())
                return;
            expectTheNextFileOpens();
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(opened > rounds, qPrintable(QString::number(opened)));
    }

    void closingAtAnyMoment_data() { anythingWhileFilesLoad_data(); }

    void closingAtAnyMoment()
    {
        QFETCH(unsigned, seed);
        random.seed(100 + seed);
        const int rounds = qEnvironmentVariableIsSet("WAVORIN_LONG_TESTS") ? 300 : 3;
        for (int round = 0; round < rounds; ++round) {
            leavesAt = upTo(actionsOfARound);
            playARound();
            leavesAt = -1;
            QVERIFY(!window || !window->recording());
            if (window) {
                window->open(anyOf(files)); // is no longer possible, and harmless
                QVERIFY(!window->recording());
            }
            openAnotherWindow();
        }
    }
};

QTEST_MAIN(TestReentrancy)
#include "tst_reentrancy.moc"
