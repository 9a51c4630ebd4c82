// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "drops.h"
#include "openingfixture.h"
#include "plotvalues.h"
#include "vectordialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QMovie>
#include <QStatusBar>
#include <QtTest>

#include <algorithm>
#include <ctime>
#include <memory>

class TestOpening : public OpeningFixture {
    Q_OBJECT

private slots:
    void initTestCase()
    {
#ifdef Q_OS_WIN // whose library takes no such names; the system has read it when this began
        qunsetenv("TZ");
        _tzset();
#else
        qputenv("TZ", "Europe/Helsinki");
        tzset();
#endif
    }

    void init()
    {
        open();
    }
    void cleanup()
    {
        close();
    }

    void goodRecordingIsShown()
    {
        window->open(goodRecording());
        QVERIFY(window->recording());
        QCOMPARE(window->recording()->sampleCount, 40);
        QCOMPARE(shown("label4"), QStringLiteral("Harju 110/20 kV"));
        QCOMPARE(shown("label5"), QStringLiteral("Feeder J07"));
        QCOMPARE(shownTimes(), QStringLiteral("15/03/2024|10:00:00.000|15/03/2024|10:00:00.020"));
        QCOMPARE(listed("listWidget"), QStringList({QStringLiteral("IL1"), QStringLiteral("UL1")}));
        QCOMPARE(listed("listWidget2"), QStringList({QStringLiteral("TRIP")}));
        for (const char *list : {"listWidget", "listWidget2"})
            QCOMPARE(child<QListWidget>(list)->selectionMode(), QAbstractItemView::MultiSelection);
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - good.cfg"));
        QCOMPARE(window->windowFilePath(), path("good.cfg"));
        QVERIFY(!window->isWindowModified());
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File loaded"));
        QVERIFY(recordingActionsEnabled());
        QVERIFY(!enabled("&Remove Plotter"));
        QVERIFY(child<QCheckBox>("checkBox_showAngles")->isEnabled());
        QVERIFY(child<QComboBox>("comboBox_mainReference")->isEnabled());
        QVERIFY(boxes->take().isEmpty());
    }

    void messageGoesAfterTwoSeconds()
    {
        window->open(goodRecording());
        QTest::qWait(1500);
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File loaded"));
        QTRY_COMPARE_WITH_TIMEOUT(window->statusBar()->currentMessage(), QString(), 1500);
    }

    void ratingsReachTheRescaleDialog()
    {
        window->open(goodRecording());
        window->showCTVTDialog();
        QStringList texts;
        for (const QLineEdit *edit : child<QDialog>("CTVTDialog")->findChildren<QLineEdit *>())
            texts.append(edit->text());
        texts.sort();
        QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("1 100 20000 400"));
    }

    void ratingsHaveSixDigits()
    {
        window->open(writeSmallRecording(folder->path(), QStringLiteral("rec"),
            smallConfiguration().replace("400,1,S", "1234567.8,0.00001234567,S")));
        window->showCTVTDialog();
        QStringList texts;
        for (const QLineEdit *edit : child<QDialog>("CTVTDialog")->findChildren<QLineEdit *>())
            texts.append(edit->text());
        texts.sort();
        QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("1.23457e+06 1.23457e-05 100 20000"));
    }

    void cursorOfTheFirstPlotReachesTheVectorDialog()
    {
        window->show();
        window->open(goodRecording());
        trigger("&Show Vectors");
        const auto *dialog = window->findChild<VectorDialog *>();
        QVERIFY(dialog->isVisible());
        const auto *magnitudes = dialog->findChild<QLabel *>(QStringLiteral("labelMagnitudes"));
        const auto picture = [&] { return magnitudes->pixmap(Qt::ReturnByValue).toImage(); };
        dialog->findChild<QCheckBox *>()->click();
        QTest::qWait(200); // the panel draws 100 ms after it is shown
        const QImage withoutCursor = picture();
        QVERIFY(!withoutCursor.isNull());
        for (auto *plot : window->findChildren<Plotter *>()) {
            if (plot->name() == QLatin1String("Analog"))
                QTest::mouseDClick(plot, Qt::LeftButton, {}, plot->rect().center());
        }
        QTRY_VERIFY(picture() != withoutCursor);
    }

    void textExportOpensWithoutSpectrumControls()
    {
        QVERIFY(writeTextFile(path("rec.txt"),
            "#Ua[kV],Ub[kV]\n01/02/2020-10:00:00:000,1,2\n01/02/2020-10:00:00:020,3,4\n"));
        window->open(path("rec.txt"));
        QVERIFY(window->recording());
        QCOMPARE(listed("listWidget"), QStringList({QStringLiteral("Ua"), QStringLiteral("Ub")}));
        QCOMPARE(shownTimes(), QStringLiteral("01/02/2020|10:00:00:000||"));
        QVERIFY(recordingActionsEnabled());
        QVERIFY(!child<QCheckBox>("checkBox_showAngles")->isEnabled());
        QVERIFY(!child<QComboBox>("comboBox_mainReference")->isEnabled());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - rec.txt"));
    }

    void emptyTextExportCountsAsLoaded()
    {
        QVERIFY(writeTextFile(path("empty.txt"), ""));
        window->open(path("empty.txt"));
        QVERIFY(window->recording());
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File loaded"));
        window->showSaveDialog();
        window->showCTVTDialog();
        window->open(goodRecording());
        QCOMPARE(listed("listWidget").size(), 2);
    }

    void names_data()
    {
        QTest::addColumn<QString>("configuration");
        QTest::addColumn<QString>("data");
        QTest::newRow("upper-case ending") << "rec.CFG"
                                           << "rec.dat";
        QTest::newRow(".cfg anywhere in the name") << "a.cfg.bak"
                                                   << "a.dat.bak";
        QTest::newRow("letters beyond ASCII")
            << QStringLiteral("häiriö.cfg") << QStringLiteral("häiriö.dat");
        QTest::newRow("place markers in the name") << "50%1%2.cfg"
                                                   << "50%1%2.dat";
    }

    void names()
    {
        QFETCH(QString, configuration);
        QFETCH(QString, data);
        QVERIFY(writeTextFile(folder->filePath(configuration), smallConfiguration()));
        QVERIFY(writeTextFile(folder->filePath(data), smallData()));
        window->open(folder->filePath(configuration));
        QVERIFY(window->recording());
        QCOMPARE(window->windowTitle(), QLatin1String("Wavorin - ") + configuration);
    }

    // windowTitle() gives the title as it was set; the window's frame gets what is shown.
    void markInTheNameStaysInTheTitle_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("once") << "a[*].cfg";
        QTest::newRow("twice in a row") << "[*][*].cfg";
        QTest::newRow("three in a row, then one more") << "[*][*][*]-[*].cfg";
        QTest::newRow("unfinished") << "[*[*]].cfg";
        QTest::newRow("none") << "[a]*.cfg";
    }

    void markInTheNameStaysInTheTitle()
    {
#ifdef Q_OS_WIN
        QSKIP("Names hold no asterisks there.");
#endif
        QFETCH(QString, name);
        window->show();
        window->open(writeSmallRecording(folder->path(), QFileInfo(name).completeBaseName()));
        QVERIFY(window->recording());
        QCOMPARE(window->windowHandle()->title(), QLatin1String("Wavorin - ") + name);
        window->open(goodRecording());
        QCOMPARE(window->windowHandle()->title(), QStringLiteral("Wavorin - good.cfg"));
    }

    void upperCaseTextExportCountsAsConfiguration()
    {
        QVERIFY(writeTextFile(path("data.TXT"), smallConfiguration()));
        window->open(path("data.TXT"));
        // Data file and configuration are then the same file, whose first line reads as a sample.
        QVERIFY(window->recording());
        QCOMPARE(window->recording()->stationName, QStringLiteral("Harju 110/20 kV"));
    }

    void textEndingInTheMiddleCountsAsConfiguration()
    {
        QVERIFY(writeTextFile(path("d.txt.bak"), "#Ua[kV]\n01/02/2020-10:00:00:000,1\n"));
        window->open(path("d.txt.bak"));
        const QList<BoxReader::Box> seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text, QStringLiteral("File not supported."));
        QVERIFY(!window->recording());
    }

    void anotherEndingLoadsNothingButIsReportedLoaded()
    {
        window->open(goodRecording());
        QVERIFY(writeTextFile(path("notes.pdf"), "x"));
        window->open(path("notes.pdf"));
        QVERIFY(window->recording());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - good.cfg"));
        QCOMPARE(window->windowFilePath(), path("notes.pdf"));
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File loaded"));
        QVERIFY(recordingActionsEnabled());
    }

    void anglesAreNoLongerShownAfterALoad_data()
    {
        QTest::addColumn<bool>("fails");
        QTest::newRow("a load that fails") << true;
        QTest::newRow("a load that succeeds") << false;
    }

    void anglesAreNoLongerShownAfterALoad()
    {
        QFETCH(bool, fails);
        window->open(goodRecording());
        auto *box = child<QCheckBox>("checkBox_showAngles");
        box->click();
        QVERIFY(box->isChecked() && window->showsAngles());
        QVERIFY(writeTextFile(path("bad.cfg"), "x"));
        window->open(fails ? path("bad.cfg") : goodRecording("next"));
        QCOMPARE(boxes->take().size(), fails ? 1 : 0);
        QVERIFY(!box->isChecked());
        QVERIFY(!window->showsAngles());
        window->open(goodRecording("last"));
        QVERIFY(!box->isChecked());
        box->click();
        QVERIFY(box->isChecked() && window->showsAngles());
    }

    // While it loads

    void nothingOfTheOldRecordingIsReadDuringTheLoad()
    {
        window->open(goodRecording());
        window->show();
        window->showSaveDialog();
        window->showCTVTDialog();
        PlotValues::shared().timesAndPositions.fill(7.0);
        PlotValues::shared().primaryFactor = 3.0;
        bool seen = false;
        connect(window.get(), &MainWindow::initProperties, this, [&] {
            seen = true;
            QVERIFY(!window->recording());
            QVERIFY(recordingActionsDisabled());
            QVERIFY(viewIsEmpty());
            QVERIFY(!child<QDialog>("SaveDialog")->isVisible());
            QVERIFY(!child<QDialog>("CTVTDialog")->isVisible());
            QVERIFY(child<QDialog>("CTVTDialog")->findChildren<QLineEdit *>().isEmpty());
            for (const double value : PlotValues::shared().timesAndPositions)
                QCOMPARE(value, 0.0);
            QCOMPARE(PlotValues::shared().primaryFactor, 3.0);
            child<QCheckBox>("checkBox_convertToLocal")->toggle();
        });
        window->open(goodRecording("next"));
        QVERIFY(seen);
        QVERIFY(window->recording());
    }

    void animationRunsInTheMiddle()
    {
        window->resize(1201, 801);
        QMovie *movie = nullptr;
        connect(window.get(), &MainWindow::initProperties, this, [&] {
            for (QLabel *label : window->findChildren<QLabel *>()) {
                if (!label->movie())
                    continue;
                movie = label->movie();
                QCOMPARE(label->geometry(), QRect(550, 350, 100, 100));
                QVERIFY(label->testAttribute(Qt::WA_DeleteOnClose));
                QCOMPARE(movie->fileName(), QStringLiteral(":/images/loading.gif"));
                QVERIFY(movie->isValid());
                const int size = qRound(100 * window->devicePixelRatioF()); // on the screen
                QCOMPARE(movie->scaledSize(), QSize(size, size));
                QCOMPARE(movie->state(), QMovie::Running);
                // Pixel by pixel; the corners are transparent.
                const QRect middle(size / 4, size / 4, size / 2, size / 2);
                const auto format = QImage::Format_RGB32;
                QImage picture = label->grab().toImage();
                picture.setDevicePixelRatio(1);
                QCOMPARE(picture.copy(middle).convertToFormat(format),
                    movie->currentImage().copy(middle).convertToFormat(format));
            }
        });
        window->open(goodRecording());
        QVERIFY(movie);
        QVERIFY(animationIsGone());
    }

    void lastOfSeveralFilesOpensInsteadOfTheRunningOne()
    {
        const QString second = goodRecording("second");
        const QString third = goodRecording("third");
        QStringList titles;
        connect(window.get(), &QWidget::windowTitleChanged, this,
            [&](const QString &title) { titles.append(title); });
        bool asked = false;
        connect(window.get(), &MainWindow::initProperties, this, [&] {
            if (std::exchange(asked, true))
                return;
            window->open(second);
            window->open(third);
            QVERIFY(titles.isEmpty());
        });
        window->open(goodRecording("first"));
        QCOMPARE(titles, QStringList(QStringLiteral("Wavorin - third.cfg")));
        QVERIFY(window->recording());
    }

    void triedFileStaysOpenUntilTheEnd_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("a recording") << "next.cfg";
        QTest::newRow("a recording that cannot be loaded") << "bad.cfg";
        QTest::newRow("a recording that is not there") << "none.cfg";
        QTest::newRow("nothing that is loaded") << "notes.pdf";
    }

    void triedFileStaysOpenUntilTheEnd()
    {
        QFETCH(QString, name);
        window->open(goodRecording());
        goodRecording("next");
        QVERIFY(writeTextFile(path("bad.cfg"), "x"));
        QVERIFY(writeTextFile(path("notes.pdf"), "x"));
        const QString tried = folder->filePath(name);
        bool checked = false;
        connect(window.get(), &MainWindow::initProperties, this, [&] {
            checked = true;
            QVERIFY(isOpen(tried));
        });
        delayLoader(); // which opens the file itself
        QVERIFY(!isOpen(tried));
        window->open(tried);
        QVERIFY(!isOpen(tried));
        QCOMPARE(checked, name == QLatin1String("next.cfg") || name == QLatin1String("bad.cfg"));
    }

    void triedFileIsClosedWithTheWindow_data()
    {
        QTest::addColumn<bool>("deleted");
        QTest::newRow("that is closed") << false;
        QTest::newRow("that is deleted") << true;
    }

    void triedFileIsClosedWithTheWindow()
    {
        QFETCH(bool, deleted);
        window->open(goodRecording());
        const QString tried = goodRecording("slow");
        delayLoader();
        bool wasOpen = false;
        QTimer::singleShot(0, this, [&] {
            wasOpen = isOpen(tried);
            if (deleted)
                window.reset();
            else
                window->close();
        });
        window->open(tried);
        QVERIFY(wasOpen);
        QVERIFY(!isOpen(tried));
    }

    void closingBeforeTheLoadHasBegun()
    {
        connect(window.get(), &MainWindow::initProperties, window.get(), &QWidget::close);
        window->open(goodRecording());
        QVERIFY(!window->recording());
        QVERIFY(boxes->take().isEmpty());
        window->open(goodRecording("later")); // is no longer possible, and harmless
        QVERIFY(!window->recording());
    }

    void closingDuringTheLoad()
    {
        window->open(goodRecording());
        delayLoader();
        QTimer::singleShot(0, window.get(), &QWidget::close);
        window->open(goodRecording("slow"));
        QVERIFY(!window->recording());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - good.cfg"));
    }

    void deletionDuringTheLoad()
    {
        window->open(goodRecording());
        delayLoader();
        QTimer::singleShot(0, this, [this] { window.reset(); });
        window->open(goodRecording("slow"));
        QVERIFY(!window);
    }

    void deletionDuringAMessage()
    {
        boxes.reset();
        QTimer::singleShot(50, this, [this] { window.reset(); });
        window->open(path("none.cfg"));
        QVERIFY(!window);
    }

    void closingWithARecordingOnScreen()
    {
        window->show();
        window->open(goodRecording());
        window->close();
        QVERIFY(!window->recording());
        QVERIFY(recordingActionsDisabled());
    }

    // Times

    void localTimesAtLoadAndByCheckBox_data()
    {
        QTest::addColumn<QByteArray>("date");
        QTest::addColumn<QByteArray>("time");
        QTest::addColumn<QString>("atLoad");
        QTest::addColumn<QString>("toggled");
        QTest::newRow("4 March at load, 3 April by the check box")
            << QByteArray("03/04/2024") << QByteArray("10:00:00.000000")
            << "03/04/2024|12:00:00.000|03/04/2024|12:00:00.020"
            << "03/04/2024|13:00:00.000|03/04/2024|13:00:00.020";
        QTest::newRow("no month 15")
            << QByteArray("15/03/2024") << QByteArray("10:00:00.000000") << "|||"
            << "15/03/2024|12:00:00.000|15/03/2024|12:00:00.020";
        QTest::newRow("an hour that local time skips")
            << QByteArray("31/03/2024") << QByteArray("03:30:00.000000") << "|||"
            << "31/03/2024|06:30:00.000|31/03/2024|13:00:00.020";
        QTest::newRow("into the next day")
            << QByteArray("15/03/2024") << QByteArray("23:30:00.000000") << "|||"
            << "16/03/2024|01:30:00.000|15/03/2024|12:00:00.020";
        QTest::newRow("a time that does not read")
            << QByteArray("15/03/2024") << QByteArray("9:00:00.000000") << "|||"
            << "||15/03/2024|12:00:00.020";
    }

    void localTimesAtLoadAndByCheckBox()
    {
        QFETCH(QByteArray, date);
        QFETCH(QByteArray, time);
        QFETCH(QString, atLoad);
        QFETCH(QString, toggled);
        if (QDateTime(QDate(2024, 3, 15), QTime(0, 0), Qt::UTC).toLocalTime().time() != QTime(2, 0)
            || QDateTime(QDate(2024, 7, 1), QTime(0, 0), Qt::UTC).toLocalTime().time()
                != QTime(3, 0))
            QSKIP("the time zone is not that of Finland");
        auto *box = child<QCheckBox>("checkBox_convertToLocal");
        box->setChecked(true);
        QCOMPARE(shownTimes(), QStringLiteral("|||"));
        window->open(writeSmallRecording(
            folder->path(), QStringLiteral("rec"), smallConfiguration("Harju", date, time)));
        QCOMPARE(shownTimes(), atLoad);
        box->setChecked(false);
        const QString writtenDate = QString::fromLatin1(date);
        QCOMPARE(shownTimes(),
            writtenDate + QLatin1Char('|') + QString::fromLatin1(time.left(12)) + QLatin1Char('|')
                + writtenDate + QLatin1String("|10:00:00.020"));
        box->setChecked(true);
        QCOMPARE(shownTimes(), toggled);
    }

    void timesThatDoNotReadSayWhy()
    {
        const auto tip = [&](const char *label) { return child<QLabel>(label)->toolTip(); };
        auto *box = child<QCheckBox>("checkBox_convertToLocal");
        box->setChecked(true);
        window->open(writeSmallRecording(folder->path(), QStringLiteral("rec"),
            smallConfiguration("Harju", "15/03/2024", "10:00:00.000000")));
        const QString start = QStringLiteral(
            "15/03/2024 10:00:00.000 cannot be read as month/day/year and time of day");
        QCOMPARE(tip("label9"), start);
        QCOMPARE(tip("label10"), start);
        QCOMPARE(
            tip("label12"), QString(start).replace(QLatin1String(".000 "), QLatin1String(".020 ")));
        for (const bool local : {false, true, false, true}) {
            box->setChecked(local);
            QCOMPARE(tip("label9"), QString());
            QCOMPARE(tip("label12"), QString());
        }
        window->open(writeSmallRecording(folder->path(), QStringLiteral("bad"),
            smallConfiguration("Harju", "15/03/2024", "9:00:00.000000")));
        box->setChecked(false);
        box->setChecked(true);
        QCOMPARE(tip("label9"),
            QStringLiteral(
                "15/03/2024 9:00:00.0000 cannot be read as day/month/year and time of day"));
        QCOMPARE(tip("label11"), QString());
        window->open(path("missing.txt")); // shows nothing new
        QVERIFY(!tip("label9").isEmpty());
    }

    void stationIsShownAsPlainText()
    {
        window->open(writeSmallRecording(
            folder->path(), QStringLiteral("rec"), smallConfiguration("  <b>Harju</b>  ")));
        QCOMPARE(shown("label4"), QStringLiteral("<b>Harju</b>"));
        QCOMPARE(child<QLabel>("label4")->textFormat(), Qt::PlainText);
    }

    void longTextsDoNotWidenTheWindow()
    {
        window->show();
        const int width = window->minimumSizeHint().width();
        window->open(writeSmallRecording(folder->path(), QStringLiteral("rec"),
            smallConfiguration(
                QByteArray(5000, 'W'), QByteArray(5000, '1'), QByteArray(5000, '2'))));
        QVERIFY(window->recording());
        QCOMPARE(window->minimumSizeHint().width(), width);
        QVERIFY(child<QLabel>("label12")->width() >= 96);
        QCOMPARE(shown("label4"), QString(1000, QLatin1Char('W')));
    }

    // Ways to open

    void openDialog_data()
    {
        QTest::addColumn<bool>("accepted");
        QTest::newRow("a chosen file opens") << true;
        QTest::newRow("a cancelled dialog does nothing") << false;
    }

    void openDialog()
    {
        QFETCH(bool, accepted);
        QSettings companion(QStringLiteral("Norvale"), QStringLiteral("Setterra"));
        companion.setValue(QStringLiteral("SettingsDialog/DRFilesPath"), folder->path());
        companion.sync();
        window = std::make_unique<MainWindow>();
        const QString good = goodRecording();
        QTimer::singleShot(100, this, [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Open File"));
            QCOMPARE(
                dialog->nameFilters(), QStringList(QStringLiteral("DR-files (*.zip *.cfg *.txt)")));
            QCOMPARE(dialog->directory().absolutePath(), folder->path());
            dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(good);
            QTest::keyClick(dialog, accepted ? Qt::Key_Return : Qt::Key_Escape);
            if (dialog->isVisible())
                dialog->reject();
        });
        window->open();
        QCOMPARE(window->recording() != nullptr, accepted);
        QCOMPARE(window->windowFilePath(), accepted ? good : QStringLiteral("untitled.txt"));
    }

    void droppedFileOpens()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(goodRecording())});
        QDragEnterEvent enter(
            QPoint(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
            Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &drop);
        QVERIFY(drop.isAccepted());
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
        QTRY_COMPARE(window->windowTitle(), QStringLiteral("Wavorin - good.cfg"));
    }

    void droppedFilesOpenTheFirstRecording()
    {
        QMimeData data;
        const QString good = goodRecording();
        data.setUrls({QUrl(QStringLiteral("https://www.norvale.example/rec.cfg")),
            QUrl::fromLocalFile(path("notes.pdf")),
            QUrl::fromLocalFile(path("good.dat")), // the configuration beside it is opened
            QUrl::fromLocalFile(path("other.cfg"))});
        QDragEnterEvent enter(
            QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &enter);
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &drop);
        QTRY_COMPARE(window->windowTitle(), QStringLiteral("Wavorin - good.cfg"));
        QCOMPARE(window->windowFilePath(), good);
    }

    void otherDropsAreRefused()
    {
        QMimeData data;
        data.setUrls({QUrl(QStringLiteral("https://www.norvale.example/rec.cfg"))});
        QDragEnterEvent enter(
            QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(window.get(), &enter);
        QVERIFY(!enter.isAccepted());
    }

    // Of a program that took its files back before they could be asked for.
    void aDropOfNothingOpensNothing()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(goodRecording())});
        QDragEnterEvent enter(
            QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &enter);
        QVERIFY(enter.isAccepted());
        data.clear();
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &drop);
        QTest::qWait(20);
        QVERIFY(boxes->take().isEmpty());
        QCOMPARE(window->windowFilePath(), QStringLiteral("untitled.txt"));
        dropFile(*window, goodRecording());
        QTRY_COMPARE(window->windowTitle(), QStringLiteral("Wavorin - good.cfg"));
    }

private:
    // Whether this process has the file open.
    static bool isOpen(const QString &path)
    {
#ifdef Q_OS_WIN // which gives no other name to what is open
        const QString other = path + QLatin1String(".other");
        return QFile::exists(path) && !(QFile::rename(path, other) && QFile::rename(other, path));
#else
        const QFileInfoList files = QDir(QStringLiteral("/proc/self/fd")).entryInfoList();
        return std::any_of(files.begin(), files.end(),
            [&](const QFileInfo &file) { return file.symLinkTarget() == path; });
#endif
    }
};

QTEST_MAIN(TestOpening)
#include "tst_opening.moc"
