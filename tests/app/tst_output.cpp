// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "contrast.h"
#include "ordinaryuser.h"
#include "outputfixture.h"
#include "plotmenus.h"
#include "plotterdg.h"

#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QPainter>

#include <algorithm>
#include <memory>

#ifdef Q_OS_UNIX
#include "filesizelimit.h"

#include <sys/stat.h>
#endif

// Pictures of the plots.
class TestOutput : public OutputFixture {
    Q_OBJECT

    const QString screenStyle = QStringLiteral(
        "Plotter{background-color: #313034; border: 2px outset qlineargradient(x1: 0, y1: 0, x2: 0,"
        " y2: 1, stop: 0 #616064, stop: 1 #313034);}");
    const QString captureStyle = QStringLiteral("Plotter{background-color: transparent;}");
    static constexpr int captionHeight = 26;

    QWidget *plotColumn() const
    {
        return window->findChild<QWidget *>(QStringLiteral("scrollWidget"));
    }

    void expectStyle(const QString &style) const
    {
        const QList<Plotter *> plots = window->findChildren<Plotter *>();
        QVERIFY(plots.size() >= 2);
        for (const Plotter *plot : plots)
            QCOMPARE(plot->styleSheet(), style);
    }

    // Answers the question of a file dialog that has been answered with the name of a file.
    void agreeToReplace()
    {
        QTimer::singleShot(300, this, [] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        });
    }

    QImage savedPicture()
    {
        answerFileDialog(path("shot.png"));
        trigger("&Save screenshot");
        return QImage(path("shot.png"), "png");
    }

    QImage copiedPicture() const
    {
        trigger("&Copy to clipboard");
        return QGuiApplication::clipboard()->image();
    }

    // The topmost rows of a picture, in which nothing but the caption stands.
    static QImage topOf(const QImage &picture)
    {
        return picture.copy(0, 0, picture.width(), captionHeight)
            .convertToFormat(QImage::Format_RGB32);
    }

    static QImage drawnTop(const QString &caption, int width)
    {
        QPixmap sheet(width, captionHeight);
        sheet.fill(Qt::white);
        QPainter(&sheet).drawText(10, 20, caption);
        return topOf(sheet.toImage());
    }

private slots:
    void init() { openWithRecording(); }
    void cleanup() { closeWindow(); }

    void screenshotDialog()
    {
        QString title;
        QString proposal;
        QStringList filters;
        answerFileDialog(QString(), &title, &filters, &proposal);
        trigger("&Save screenshot");
        QCOMPARE(title, QStringLiteral("Save As"));
        QCOMPARE(filters,
            QStringList({QStringLiteral("PNG Files (*.png)"), QStringLiteral("All Files (*)")}));
        QCOMPARE(proposal, QDir::currentPath() + QLatin1String("/untitled.png"));
    }

    void screenshotIsSavedAndThePlotsAreSetBack()
    {
        expectStyle(screenStyle);
        answerFileDialog(path("shot.png"));
        trigger("&Save screenshot");
        const QImage picture(path("shot.png"), "png");
        QCOMPARE(picture.size(), plotColumn()->size());
        QCOMPARE(picture.pixelColor(2, 2), QColor(Qt::white));
        expectStyle(screenStyle);
    }

    void aScreenshotThatCannotBeSavedIsNotReported()
    {
        BoxReader boxes;
        answerFileDialog(path("rec.cfg/shot.png")); // a file stands in the folder's place
        trigger("&Save screenshot");
        QVERIFY(boxes.count() == 0);
        QVERIFY(window->statusBar()->currentMessage().isEmpty());
        expectStyle(screenStyle);
    }

    void aScreenshotThatDoesNotFitLeavesWhatWasThere_data()
    {
        QTest::addColumn<QByteArray>("before"); // null where there is no such file
        QTest::addColumn<int>("bytes"); // that fit
        QTest::newRow("a new one, nothing fits") << QByteArray() << 0;
        QTest::newRow("a new one, its beginning fits") << QByteArray() << 1000;
        QTest::newRow("an old one, nothing fits") << QByteArray("before") << 0;
        QTest::newRow("an old one, the beginning of the new one fits")
            << QByteArray("before") << 1000;
    }

    void aScreenshotThatDoesNotFitLeavesWhatWasThere()
    {
#ifdef Q_OS_UNIX
        QFETCH(QByteArray, before);
        QFETCH(int, bytes);
        const QString name = path("shot.png");
        if (!before.isNull())
            QVERIFY(writeTextFile(name, before));
        const QStringList files = QDir(folder->path()).entryList();
        const auto save = [&] {
            answerFileDialog(name);
            agreeToReplace();
            trigger("&Save screenshot");
        };
        {
            const FileSizeLimit limit(static_cast<rlim_t>(bytes));
            save();
        }
        QCOMPARE(fileText(name), QString::fromLatin1(before));
        QCOMPARE(QDir(folder->path()).entryList(), files);
        QVERIFY(window->statusBar()->currentMessage().isEmpty());
        expectStyle(screenStyle);
        save();
        QCOMPARE(QImage(name, "png").size(), plotColumn()->size());
#else
        QSKIP("Sizes of files have no limit there.");
#endif
    }

    void aScreenshotNeedsNoRoomBesideAnOldOne_data()
    {
        QTest::addColumn<QString>("name");
#ifdef Q_OS_UNIX
        QTest::newRow("in a folder that takes no new files") << "shut/shot.png";
#endif
        QTest::newRow("of a name that leaves no room for another")
            << QString(250, QLatin1Char('x')) + QLatin1String(".png");
    }

    void aScreenshotNeedsNoRoomBesideAnOldOne()
    {
        QFETCH(QString, name);
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("shut")));
        const QString file = folder->filePath(name);
        QVERIFY(writeTextFile(file, "before"));
#ifdef Q_OS_UNIX
        QCOMPARE(chmod(QFile::encodeName(file).constData(), 0666), 0);
        QCOMPARE(chmod(QFile::encodeName(path("shut")).constData(), 0555), 0);
        QCOMPARE(chmod(QFile::encodeName(folder->path()).constData(), 0777), 0);
#endif
        answerFileDialog(file);
        agreeToReplace();
        {
            const OrdinaryUser user;
            trigger("&Save screenshot");
        }
#ifdef Q_OS_UNIX
        QCOMPARE(chmod(QFile::encodeName(path("shut")).constData(), 0755), 0); // to be removed
#endif
        QCOMPARE(QImage(file, "png").size(), plotColumn()->size());
    }

    void cancelledScreenshotLeavesTheCaptureStyle()
    {
        answerFileDialog(QString());
        trigger("&Save screenshot");
        expectStyle(captureStyle);
    }

    void clipboardGetsThePicture()
    {
        trigger("&Copy to clipboard");
        const QImage picture = QGuiApplication::clipboard()->image();
        QCOMPARE(picture.size(), plotColumn()->size());
        QCOMPARE(picture.pixelColor(2, 2), QColor(Qt::white));
        expectStyle(screenStyle);
    }

    void theFocusIsNotInPictures_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::newRow("of a plot") << QStringLiteral("Plotter");
        QTest::newRow("of the column") << QStringLiteral("scrollWidget");
    }

    void theFocusIsNotInPictures()
    {
        QFETCH(QString, widget);
        const QImage copied = copiedPicture();
        const QImage saved = savedPicture();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        auto *focused = window->findChild<QWidget *>(widget);
        focused->setFocus(Qt::TabFocusReason);
        QVERIFY(focused->hasFocus());
        QCOMPARE(copiedPicture(), copied);
        QVERIFY(focused->hasFocus());
        QVERIFY(QFile::remove(path("shot.png")));
        QCOMPARE(savedPicture(), saved);
    }

    void addedPlotsAreStyledForPicturesToo()
    {
        window->addPlotter({QStringLiteral("IL1")});
        QCOMPARE(window->findChildren<Plotter *>().size(), 3);
        answerFileDialog(QString());
        trigger("&Save screenshot");
        expectStyle(captureStyle);
        trigger("&Copy to clipboard");
        expectStyle(screenStyle);
        QVERIFY(!savedPicture().isNull());
        expectStyle(screenStyle);
    }

    void whatIsScrolledOutOfSightIsInThePicture()
    {
        for (int i = 0; i < 3; ++i)
            window->addPlotter({QStringLiteral("IL1")});
        QVERIFY(plotColumn()->height() > plotColumn()->visibleRegion().boundingRect().height());
        const QImage picture = copiedPicture();
        QCOMPARE(picture.size(), plotColumn()->size());
        const QRect lowest = window->findChild<plotterDg *>()->geometry();
        int dark = 0; // pixels of the time axis, at the bottom of the lowest plot
        for (int x = lowest.left(); x < lowest.right(); ++x)
            dark += picture.pixelColor(x, lowest.bottom() - 40).value() < 50 ? 1 : 0;
        QVERIFY2(dark > lowest.width() / 2, qPrintable(QString::number(dark)));
    }

    void screenshotIsAPngWhateverItsName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("without an ending") << QStringLiteral("shot");
        QTest::newRow("with another ending") << QStringLiteral("shot.jpg");
    }

    void screenshotIsAPngWhateverItsName()
    {
        QFETCH(QString, name);
        answerFileDialog(folder->filePath(name));
        trigger("&Save screenshot");
        QCOMPARE(QImage(folder->filePath(name), "png").size(), plotColumn()->size());
    }

    // Their smooth edges, too, would be recoloured as black as the letters.
    void lettersOfTheAxesAreNotSmoothWhileThePictureIsTaken()
    {
        const QImage picture = copiedPicture();
        for (Plotter *plot : window->findChildren<Plotter *>()) {
            QFont font = plot->font();
            font.setStyleStrategy(QFont::NoAntialias);
            plot->setFont(font);
            plot->refreshSlot();
        }
        QCOMPARE(copiedPicture(), picture);
    }

    // Smooth edges would be recoloured as black as the letters.
    void lettersAreNotSmoothWhileThePictureIsTaken()
    {
        class FontWatch : public QObject {
        public:
            QList<QFont::StyleStrategy> seen;

        protected:
            bool eventFilter(QObject *watched, QEvent *event) override
            {
                if (event->type() == QEvent::Paint)
                    seen += static_cast<QWidget *>(watched)->font().styleStrategy();
                return false;
            }
        };
        FontWatch watch;
        const QList<QLabel *> labels = plotColumn()->findChildren<QLabel *>();
        for (QLabel *label : labels)
            label->installEventFilter(&watch);
        trigger("&Copy to clipboard");
        QVERIFY(watch.seen.contains(QFont::NoAntialias));
        QVERIFY(!watch.seen.contains(QFont::PreferDefault));
        for (const QLabel *label : labels)
            QCOMPARE(label->font().styleStrategy(), QFont::PreferDefault);
    }

    void picturesLeaveTheScreenAsItWas_data()
    {
        QTest::addColumn<QString>("entry");
        for (const char *entry : {"&Copy to clipboard", "&Save screenshot",
                 "Copy Picture with Heading", "Save Picture with Heading..."})
            QTest::newRow(entry) << QString::fromLatin1(entry);
    }

    // The first channel is left out, so each name stands where another one was.
    void picturesLeaveTheScreenAsItWas()
    {
        QFETCH(QString, entry);
        auto *names = child<QListWidget>("listWidget");
        Plotter *plot = plotNamed(QStringLiteral("Analog"));
        const QRect first = names->visualItemRect(names->item(0));
        QTest::mouseClick(names->viewport(), Qt::LeftButton, {}, first.center());
        plot->addCursorAt(12);
        for (int twice = 0; twice < 2; ++twice) {
            const QImage before = plot->grab().toImage();
            if (entry.contains(QLatin1String("Save")))
                answerFileDialog(path("picture.png"));
            if (action(entry.toLatin1()))
                trigger(entry.toLatin1());
            else
                QVERIFY(choose(plot, entry));
            QCOMPARE(plot->grab().toImage(), before);
            QVERIFY(QFile::remove(path("picture.png")) || !entry.contains(QLatin1String("Save")));
        }
    }

    void captionGivesTheStartTwice_data()
    {
        QTest::addColumn<bool>("isFile");
        QTest::addColumn<QByteArray>("startDate");
        QTest::addColumn<QString>("caption");
        const QString twice
            = QStringLiteral("Start: 15/03/2024 10:00:00.000    Trigger: 15/03/2024 10:00:00.000");
        for (const bool isFile : {true, false}) {
            const auto row = [isFile](const char *name, const char *date, const QString &caption) {
                const QByteArray place = isFile ? " in a file" : " on the clipboard";
                QTest::newRow(name + place) << isFile << QByteArray(date) << caption;
            };
            row("a start 20 ms before the trigger", "15/03/2024", twice);
            row("a start that is none", "2024-03-15", QStringLiteral("Start:     Trigger: "));
        }
    }

    void captionGivesTheStartTwice()
    {
        QFETCH(bool, isFile);
        QFETCH(QByteArray, startDate);
        QFETCH(QString, caption);
        window->open(writeSmallRecording(folder->path(), QStringLiteral("dated"),
            smallConfiguration("Harju", startDate, "10:00:00.000000")));
        const QImage picture = isFile ? savedPicture() : copiedPicture();
        QVERIFY(drawnTop(caption, 600)
            != drawnTop(QStringLiteral("Start: 15/03/2024 10:00:00.000"
                                       "    Trigger: 15/03/2024 10:00:00.020"),
                600));
        QCOMPARE(topOf(picture), drawnTop(caption, picture.width()));
    }

    // Two patches over the plots, which themselves have no colours so faint.
    void nearlyTransparentColoursShowInAFileAlone()
    {
        QLabel faint(plotColumn());
        faint.setStyleSheet(QStringLiteral("background-color: rgba(0, 0, 200, 19);"));
        faint.setGeometry(0, 0, 8, 4);
        faint.show();
        QLabel visible(plotColumn());
        visible.setStyleSheet(QStringLiteral("background-color: rgba(0, 0, 200, 20);"));
        visible.setGeometry(8, 0, 8, 4);
        visible.show();
        const QImage saved = savedPicture().convertToFormat(QImage::Format_RGB32);
        QImage copied = copiedPicture().convertToFormat(QImage::Format_RGB32);
        // 255 - 19 and 255 - 20, with 200 * 19 / 255 and 200 * 20 / 255 of blue.
        QCOMPARE(saved.pixelColor(4, 2), QColor(236, 236, 251));
        QCOMPARE(saved.pixelColor(12, 2), QColor(235, 235, 251));
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 8; ++x) {
                QCOMPARE(copied.pixelColor(x, y), QColor(Qt::white));
                copied.setPixel(x, y, saved.pixel(x, y));
            }
        }
        QCOMPARE(copied, saved); // everywhere else
    }

    void withoutRecordingThePictureIsStillMade()
    {
        MainWindow empty;
        empty.resize(1000, 700);
        empty.show();
        QVERIFY(QTest::qWaitForWindowExposed(&empty));
        empty.copyToClipboard();
        const QImage picture = QGuiApplication::clipboard()->image();
        QCOMPARE(
            picture.size(), empty.findChild<QWidget *>(QStringLiteral("scrollWidget"))->size());
        QCOMPARE(topOf(picture), drawnTop(QStringLiteral("Start:     Trigger: "), picture.width()));
    }

    void aReportIsCopiedWithItsHeading()
    {
        Plotter *plot = plotNamed(QStringLiteral("Analog"));
        plot->addCursorAt(10);
        plot->addCursorAt(25);
        const int line = window->fontMetrics().lineSpacing();
        for (int time = 0; time < 2; ++time) {
            QVERIFY(choose(plot, QStringLiteral("Copy Picture with Heading")));
            const QImage picture = QGuiApplication::clipboard()->image();
            QCOMPARE(picture.width(), plotColumn()->width());
            QCOMPARE(picture.height(), plotColumn()->height() + 2 * (20 + 3 * line));
            expectStyle(screenStyle);
            QSet<QRgb> colors; // of the plots: the letters around them have smooth edges
            const int above = 20 + 3 * line;
            for (int y = above; y < above + plotColumn()->height(); ++y) {
                for (int x = 0; x < picture.width(); ++x)
                    colors.insert(picture.pixel(x, y));
            }
            QVERIFY(colors.remove(0xffffffff));
            for (const QRgb color : qAsConst(colors))
                QVERIFY2(
                    contrast(color, 0xffffffff) >= 4.5, qPrintable(QString::number(color, 16)));
        }
    }

    void aReportNamesTheFileThatIsShown()
    {
        const auto report = [this] {
            choose(
                plotNamed(QStringLiteral("Analog")), QStringLiteral("Copy Picture with Heading"));
            return QGuiApplication::clipboard()->image();
        };
        const QImage before = report();
        QVERIFY(!before.isNull());
        QVERIFY(writeTextFile(path("another.cff"), "x"));
        window->open(path("another.cff")); // passed over
        QCOMPARE(window->windowFilePath(), path("another.cff"));
        QCOMPARE(report(), before);
    }

    void namesOfCursorsAreLegibleInAReport_data()
    {
        QTest::addColumn<QString>("plot");
        QTest::newRow("over traces") << QStringLiteral("Analog");
        QTest::newRow("over states") << QStringLiteral("Digital");
    }

    void namesOfCursorsAreLegibleInAReport()
    {
        QFETCH(QString, plot);
        plotNamed(plot)->addCursorAt(10);
        QLabel *name = plotNamed(plot)->findChild<QLabel *>(QStringLiteral("lineLabel"));
        const QString style = name->styleSheet();
        const int above = 20 + 3 * window->fontMetrics().lineSpacing();
        for (int time = 0; time < 2; ++time) {
            QVERIFY(choose(plotNamed(plot), QStringLiteral("Copy Picture with Heading")));
            const QImage picture = QGuiApplication::clipboard()->image().copy(
                QRect(name->mapTo(plotColumn(), QPoint(0, above)), name->size()));
            QCOMPARE(picture.pixel(0, 0), 0xffffffff);
            int letters = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x)
                    letters += picture.pixel(x, y) == 0xff000000 ? 1 : 0;
            }
            QVERIFY2(letters > 10, qPrintable(QString::number(letters)));
            QCOMPARE(name->styleSheet(), style);
        }
    }

    void bandsAreSeenUnderNamesInAReport()
    {
        window->open(QStringLiteral(SOURCE_DIR "/examples/earth-fault.cfg"));
        Plotter *plot = plotNamed(QStringLiteral("Digital"));
        const auto report = [&] {
            choose(plot, QStringLiteral("Copy Picture with Heading"));
            return QGuiApplication::clipboard()->image();
        };
        const QImage before = report();
        for (const double time : {200, 300, 350, 405, 950})
            plot->addCursorAt(time);
        const QImage after = report();
        const int above = 20 + 3 * window->fontMetrics().lineSpacing();
        int ofBands = 0;
        for (const QLabel *name : plot->findChildren<QLabel *>(QStringLiteral("lineLabel"))) {
            const QRect place(name->mapTo(plotColumn(), QPoint(0, above)), name->size());
            for (int y = place.top(); y <= place.bottom(); ++y) {
                for (int x = place.left(); x <= place.right(); ++x) {
                    const QRgb color = after.pixel(x, y);
                    QVERIFY(color == 0xff000000 || contrast(color, 0xff000000) >= 4.5);
                    if (before.pixel(x, y) == 0xffffffff)
                        continue;
                    QVERIFY(contrast(color, 0xffffffff) >= 4.5);
                    ++ofBands;
                }
            }
        }
        QVERIFY2(ofBands > 100, qPrintable(QString::number(ofBands)));
    }

    // On white they would run into the letters. Other pictures have them.
    void timeDifferencesHaveNoShadowInAReport()
    {
        Plotter *plot = plotNamed(QStringLiteral("Analog"));
        plot->addCursorAt(10);
        plot->addCursorAt(25);
        const auto shadows = [](const QImage &picture, int from) {
            int found = 0;
            for (int y = from; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x)
                    found += picture.pixel(x, y) == qRgb(80, 80, 80) ? 1 : 0;
            }
            return found;
        };
        const int above = 20 + 3 * window->fontMetrics().lineSpacing();
        const QRect texts(100, 40, plot->width() - 200, 24);
        const QImage before = plot->grab(texts).toImage();
        for (int time = 0; time < 2; ++time) {
            QVERIFY(choose(plot, QStringLiteral("Copy Picture with Heading")));
            const QImage report = QGuiApplication::clipboard()->image();
            QCOMPARE(
                shadows(report.copy(0, 0, report.width(), above + plotColumn()->height()), above),
                0);
            QCOMPARE(plot->grab(texts).toImage(), before);
            trigger("&Copy to clipboard");
            QVERIFY(shadows(QGuiApplication::clipboard()->image(), 0) > 40);
        }
    }

    void aReportIsSavedWithItsHeading()
    {
        Plotter *plot = plotNamed(QStringLiteral("Digital"));
        for (const char *name : {"report.png", ""}) {
            answerFileDialog(*name ? path(name) : QString());
            QVERIFY(choose(plot, QStringLiteral("Save Picture with Heading...")));
            expectStyle(screenStyle); // also where it was cancelled
        }
        const QImage picture(path("report.png"), "png");
        QCOMPARE(picture.height(),
            plotColumn()->height() + 20 + 3 * window->fontMetrics().lineSpacing());
    }
};

QTEST_MAIN(TestOutput)
#include "tst_output.moc"
