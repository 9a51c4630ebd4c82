// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "contrast.h"
#include "ctvtdialog.h"
#include "ordinaryuser.h"
#include "plotmenus.h"
#include "plotterdg.h"
#include "smallrecording.h"
#include "windowfixture.h"

#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QStatusBar>

#include <algorithm>
#include <memory>

#ifdef Q_OS_UNIX
#include "filesizelimit.h"

#include <sys/stat.h>
#endif

class TestOutput : public WindowFixture {
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

    static QString fileText(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
    }

    void expectStyle(const QString &style) const
    {
        const QList<Plotter *> plots = window->findChildren<Plotter *>();
        QVERIFY(plots.size() >= 2);
        for (const Plotter *plot : plots)
            QCOMPARE(plot->styleSheet(), style);
    }

    // Answers the next file dialog with the name, or cancels it where the name is empty.
    void answerFileDialog(const QString &name, QString *title = nullptr,
        QStringList *filters = nullptr, QString *proposal = nullptr)
    {
        QTimer::singleShot(100, this, [=] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            if (title)
                *title = dialog->windowTitle();
            if (filters)
                *filters = dialog->nameFilters();
            if (proposal)
                *proposal = dialog->directory().filePath(edit->text());
            if (name.isEmpty()) {
                dialog->reject();
            } else {
                edit->setText(name);
                QTest::keyClick(edit, Qt::Key_Return);
            }
        });
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

    // Saves what the dialog offers.
    void saveByDialog(const QString &name) const
    {
        trigger("&Save As..");
        const auto *dialog = window->findChild<QDialog *>(QStringLiteral("SaveDialog"));
        QVERIFY(dialog->isVisible());
        dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_FilePath"))->setText(name);
        QTest::mouseClick(
            dialog->findChild<QWidget *>(QStringLiteral("pushButton_Save")), Qt::LeftButton);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File saved."));
    }

private slots:
    void init()
    {
        startAsMaker();
        openWindow(1000, 700);
        window->open(writeSmallRecording(folder->path(), QStringLiteral("rec")));
        QVERIFY(window->recording());
        QCoreApplication::processEvents();
        window->statusBar()->clearMessage();
    }
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

    // Saving

    void savedRangeIsReported()
    {
        window->saveRecording(path("out"), 10, 12);
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File saved."));
        QCOMPARE(fileText(path("out.dat")),
            QStringLiteral("11,0,-200,10,0\n12,1000,-200,11,0\n13,2000,-200,12,0"));
        QVERIFY(fileText(path("out.cfg")).contains(QLatin1String(",400.000000,1.000000,S\n")));
    }

    // Those that were set, not those that were typed.
    void ratingsOfTheDialogAreSaved()
    {
        auto *dialog = window->findChild<CTVTDialog *>();
        const auto type = [&](int row, const char *text) {
            const QList<QLineEdit *> edits = dialog->findChildren<QLineEdit *>();
            edits.at(row)->setText(QLatin1String(text));
        };
        const auto ratings = [&] {
            window->saveRecording(path("out"), 0, 39);
            const QStringList lines = fileText(path("out.cfg")).split(QLatin1Char('\n'));
            return lines.at(2).section(QLatin1Char(','), 10, 11);
        };
        trigger("Rescale CTVT");
        type(0, "600");
        type(1, "5");
        QCOMPARE(ratings(), QStringLiteral("400.000000,1.000000"));
        dialog->findChild<QPushButton *>(QStringLiteral("pushButton_Set"))->click();
        QCOMPARE(ratings(), QStringLiteral("600.000000,5.000000"));
        dialog->close();
        answerFileDialog(path("primary"));
        trigger("Save As &Primary");
        // 0.5 times 600/5.
        QCOMPARE(fileText(path("primary.cfg")).split(QLatin1Char('\n')).value(2),
            QStringLiteral("1,IL1,A,,A,60,0,0,-32767,32767,600.000000,5.000000,P"));
    }

    void theOpenRecordingCanBeSavedOver()
    {
        window->saveRecording(path("rec.cfg"), 10, 12);
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File saved."));
        // What is open stays whole until it is opened again.
        QCOMPARE(window->recording()->sampleCount, 40);
        window->saveRecording(path("copy.cfg"), 0, 39);
        QCOMPARE(fileText(path("copy.dat")).count(QLatin1Char('\n')), 39);
        window->open(path("rec.cfg"));
        QCOMPARE(window->recording()->sampleTimes, QVector<double>({0, 1, 2}));
        QCOMPARE(window->recording()->analogChannels.at(1)->rawValues,
            QVector<float>({10.0F, 11.0F, 12.0F}));
    }

    void saveDialogWritesBothFiles()
    {
        const QString name = QString::fromUtf8("h\u00e4iri\u00f6 \u6545\u969c");
        window->showSaveDialog();
        const auto *dialog = window->findChild<QDialog *>(QStringLiteral("SaveDialog"));
        const auto child = [dialog](const char *object) {
            return dialog->findChild<QWidget *>(QLatin1String(object));
        };
        QTest::sendKeyEvent(QTest::Click, child("lineEdit_FilePath"), Qt::Key_unknown,
            folder->filePath(name), Qt::NoModifier);
        QTest::keyClick(child("horizontalSlider_StartPoint"), Qt::Key_End);
        QTest::keyClick(child("horizontalSlider_StartPoint"), Qt::Key_Left);
        QTest::mouseClick(child("pushButton_Save"), Qt::LeftButton);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File saved."));
        QCOMPARE(fileText(folder->filePath(name + QLatin1String(".dat"))),
            QStringLiteral("39,0,-200,38,1\n40,1000,-200,39,1"));
        QVERIFY(fileText(folder->filePath(name + QLatin1String(".cfg")))
                    .startsWith(QLatin1String("Harju 110/20 kV,Feeder J07,1999\n")));
    }

    // Both ends are those that the dialog shows: 1 and 39.
    void samplesBeyondTheRoundedEndsAreLeftOut()
    {
        QByteArray data = smallData();
        data.replace("1,0,200", "1,600,200").replace("40,39000,", "40,39400,");
        const QString recording = writeSmallRecording(folder->path(), QStringLiteral("rounded"));
        QVERIFY(writeTextFile(path("rounded.dat"), data));
        window->open(recording);
        QCOMPARE(window->recording()->sampleTimes.constFirst(), 0.6);
        QCOMPARE(window->recording()->sampleTimes.constLast(), 39.4);
        saveByDialog(path("out"));
        const QStringList lines = fileText(path("out.dat")).split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 38);
        QCOMPARE(lines.constFirst(), QStringLiteral("2,0,200,1,0"));
        QCOMPARE(lines.constLast(), QStringLiteral("39,37000,-200,38,1"));
        const QString configuration = fileText(path("out.cfg"));
        QVERIFY(
            configuration.contains(QLatin1String("\n1000.000000,38\n15/03/2024,10:00:00.001\n")));
    }

    void anEmptyExportCanBeSaved_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("configuration");
        QTest::newRow("names alone")
            << QByteArray("#Ua[kV],Freq\n")
            << QStringLiteral(",,\n2,2A,0D\n"
                              "0,Ua,,,kV,1,0,0,-99999,99999,1.000000,1.000000,P\n"
                              "1,Freq,,,Freq,1,0,0,-99999,99999,1.000000,1.000000,P\n"
                              "1.000000\n1\n1.000000,0\n,\n,\n\n1");
        QTest::newRow("nothing") << QByteArray()
                                 << QStringLiteral(",,\n0,0A,0D\n0.000000\n0\n,\n,\n\n1");
    }

    void anEmptyExportCanBeSaved()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, configuration);
        QVERIFY(writeTextFile(path("export.txt"), text));
        window->open(path("export.txt"));
        QVERIFY(window->recording());
        saveByDialog(path("out"));
        QCOMPARE(fileText(path("out.cfg")), configuration);
        QVERIFY(QFile::exists(path("out.dat")));
        QCOMPARE(fileText(path("out.dat")), QString());
    }

    void pathThatCannotBeOpenedIsReportedSavedAllTheSame()
    {
        window->saveRecording(path("no/such/folder/out"), 10, 12);
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File saved."));
        QVERIFY(!QFile::exists(path("no")));
    }

    void writeErrorIsReportedAndLeavesWhatWasThere()
    {
#ifdef Q_OS_UNIX
        QVERIFY(writeTextFile(path("out.cfg"), "before"));
        BoxReader boxes;
        {
            const FileSizeLimit limit(0);
            window->saveRecording(path("out.cfg"), 10, 12);
        }
        const QList<BoxReader::Box> seen = boxes.take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].icon, QMessageBox::Warning);
        QCOMPARE(seen[0].title, QStringLiteral("Application"));
        QCOMPARE(seen[0].text,
            QLatin1String("Cannot write file ") + path("out.cfg")
                + QLatin1String(":\nFile too large."));
        QCOMPARE(window->statusBar()->currentMessage(), QString());
        QCOMPARE(fileText(path("out.cfg")), QStringLiteral("before"));
#else
        QSKIP("Sizes of files have no limit there.");
#endif
    }

    void saveAsPrimary()
    {
        QString title;
        answerFileDialog(path("primary"), &title);
        trigger("Save As &Primary");
        QCOMPARE(title, QStringLiteral("Save recording"));
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File saved."));
        const QStringList lines = fileText(path("primary.cfg")).split(QLatin1Char('\n'));
        // 0.5 times 400/1 and 2 times 20000/100.
        QCOMPARE(lines.value(2),
            QStringLiteral("1,IL1,A,,A,200,0,0,-32767,32767,400.000000,1.000000,P"));
        QCOMPARE(lines.value(3),
            QStringLiteral("2,UL1,A,,V,400,0,0,-32767,32767,20000.000000,100.000000,P"));
        QCOMPARE(fileText(path("primary.dat")).count(QLatin1Char('\n')), 39);
    }

    // Set in the dialog, the ratios show other values; those of the file stay primary.
    void ratingsOfTheDialogDoNotScalePrimaryChannels()
    {
        window->open(writeSmallRecording(folder->path(), QStringLiteral("mixed"),
            smallConfiguration().replace("20000,100,S", "20000,100,P")));
        trigger("Rescale CTVT");
        auto *dialog = window->findChild<CTVTDialog *>();
        QTest::mouseClick(
            dialog->findChild<QPushButton *>(QStringLiteral("pushButton_Set")), Qt::LeftButton);
        QCOMPARE(window->recording()->analogChannels.at(1)->toPrimary, 20000.0);
        dialog->close();
        answerFileDialog(path("primary"));
        trigger("Save As &Primary");
        const QStringList lines = fileText(path("primary.cfg")).split(QLatin1Char('\n'));
        QCOMPARE(lines.value(2),
            QStringLiteral("1,IL1,A,,A,200,0,0,-32767,32767,400.000000,1.000000,P"));
        QCOMPARE(lines.value(3),
            QStringLiteral("2,UL1,A,,V,2,0,0,-32767,32767,20000.000000,100.000000,P"));
    }

    void cancelledSaveAsPrimaryWritesNothing()
    {
        answerFileDialog(QString());
        trigger("Save As &Primary");
        QCOMPARE(window->statusBar()->currentMessage(), QString());
        QCOMPARE(QDir(folder->path()).entryList(QDir::Files).size(), 2);
    }

    void saveAsPrimaryAsksBeforeItReplaces_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QStringList>("named"); // in the question; empty for none
        const QString cfg = QStringLiteral("old.cfg");
        const QString dat = QStringLiteral("old.dat");
        const QStringList both{cfg, dat};
        QTest::newRow("both, typed without .cfg") << "old" << both << both;
        QTest::newRow("both, typed with .cfg") << "old.cfg" << both << both;
        QTest::newRow("the configuration alone") << "old" << QStringList(cfg) << QStringList(cfg);
        QTest::newRow("the data alone") << "old" << QStringList(dat) << QStringList(dat);
        QTest::newRow("the data alone, typed with .cfg")
            << "old.cfg" << QStringList(dat) << QStringList(dat);
        QTest::newRow("the name as typed, which is not written")
            << "old" << QStringList(QStringLiteral("old")) << QStringList();
        QTest::newRow("none") << "old" << QStringList() << QStringList();
    }

    void saveAsPrimaryAsksBeforeItReplaces()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, existing);
        QFETCH(QStringList, named);
        for (const QString &name : existing)
            QVERIFY(writeTextFile(folder->filePath(name), "before"));
        BoxReader boxes; // which answers "Continue"
        answerFileDialog(folder->filePath(typed));
        trigger("Save As &Primary");
        const QList<BoxReader::Box> seen = boxes.take();
        QCOMPARE(seen.size(), named.isEmpty() ? 0 : 1);
        if (!named.isEmpty()) {
            QStringList lines{
                QStringLiteral("File already exists. Are you sure you want to overwrite it?")};
            for (const QString &name : named)
                lines.append(folder->filePath(name));
            QCOMPARE(seen[0].title, QStringLiteral("Save file"));
            QCOMPARE(seen[0].text, lines.join(QLatin1Char('\n')));
            QCOMPARE(seen[0].format, Qt::PlainText);
        }
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File saved."));
        QCOMPARE(fileText(path("old.dat")).count(QLatin1Char('\n')), 39);
        QVERIFY(fileText(path("old.cfg")).startsWith(QLatin1String("Harju 110/20 kV,")));
        if (existing.contains(QStringLiteral("old")))
            QCOMPARE(fileText(path("old")), QStringLiteral("before"));
    }

    void saveAsPrimaryAsksForNoFolder()
    {
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("old.cfg")));
        BoxReader boxes;
        answerFileDialog(folder->filePath(QStringLiteral("old")));
        trigger("Save As &Primary");
        QCOMPARE(boxes.take().size(), 0);
        QVERIFY(QFileInfo(path("old.cfg")).isDir());
        QCOMPARE(fileText(path("old.dat")).count(QLatin1Char('\n')), 39);
    }

    // Back to the file dialog, for another name or for none.
    void saveAsPrimaryReplacesNothingAgainstTheWill_data()
    {
        QTest::addColumn<bool>("byEscape");
        QTest::addColumn<QString>("then"); // empty for cancelled
        QTest::newRow("Escape, then none") << true << QString();
        QTest::newRow("Escape, then another") << true << QStringLiteral("new");
        QTest::newRow("Cancel, then none") << false << QString();
        QTest::newRow("Cancel, then another") << false << QStringLiteral("new");
    }

    void saveAsPrimaryReplacesNothingAgainstTheWill()
    {
        QFETCH(bool, byEscape);
        QFETCH(QString, then);
        const QString configuration = fileText(path("rec.cfg"));
        const QString data = fileText(path("rec.dat"));
        int questions = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            // At the first one only; after it comes the file dialog anew.
            if (++questions == 1)
                answerFileDialog(then.isEmpty() ? then : folder->filePath(then));
            if (byEscape)
                QTest::keyClick(box, Qt::Key_Escape);
            else
                QTest::mouseClick(box->buttons().last(), Qt::LeftButton);
        });
        timer.start(20);
        answerFileDialog(path("rec"));
        trigger("Save As &Primary");
        QCOMPARE(questions, 1);
        QCOMPARE(fileText(path("rec.cfg")), configuration);
        QCOMPARE(fileText(path("rec.dat")), data);
        QCOMPARE(QFile::exists(path("new.cfg")), !then.isEmpty());
        QCOMPARE(QFile::exists(path("new.dat")), !then.isEmpty());
        QCOMPARE(window->statusBar()->currentMessage(),
            then.isEmpty() ? QString() : QStringLiteral("File saved."));
    }

    void saveAsPrimaryStartsInTheRecordingsFolder()
    {
        QSettings(QStringLiteral("Norvale"), QStringLiteral("Setterra"))
            .setValue(QStringLiteral("SettingsDialog/DRFilesPath"), folder->path());
        window = std::make_unique<MainWindow>();
        window->open(path("rec.cfg"));
        QStringList filters;
        QString proposal;
        answerFileDialog(QString(), nullptr, &filters, &proposal);
        trigger("Save As &Primary");
        QCOMPARE(proposal, folder->path());
        QCOMPARE(filters, QStringList(QStringLiteral("All Files (*)")));
    }

    void withoutARecordingThereIsNothingToSave()
    {
        MainWindow empty;
        empty.showSaveDialog();
        QVERIFY(!empty.findChild<QDialog *>(QStringLiteral("SaveDialog"))->isVisible());
        empty.saveRecording(path("nothing"), 0, 1);
        answerFileDialog(path("nothing"));
        empty.saveAsPrimary();
        QCOMPARE(empty.statusBar()->currentMessage(), QStringLiteral("Ready"));
        QVERIFY(!QFile::exists(path("nothing.cfg")));
    }

    void savingIsToldForTwoSeconds()
    {
        window->saveRecording(path("out"), 10, 12);
        QTest::qWait(1500);
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File saved."));
        QTRY_COMPARE_WITH_TIMEOUT(window->statusBar()->currentMessage(), QString(), 2500);
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
            const QRgb behind = picture.pixel(0, 0);
            int legible = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x)
                    legible += contrast(picture.pixel(x, y), behind) >= 4.5 ? 1 : 0;
            }
            QVERIFY2(legible > 10, qPrintable(QString::number(legible)));
            QCOMPARE(name->styleSheet(), style);
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

    void theRangeBetweenTheCursorsIsOfferedForSaving()
    {
        Plotter *plot = plotNamed(QStringLiteral("Analog"));
        QVERIFY(!offers(plot, QStringLiteral("Save P1 to P2...")));
        for (const double time : {25.4, 30.0, 10.6})
            plot->addCursorAt(time);
        QVERIFY(choose(plot, QStringLiteral("Save P3 to P2...")));
        const auto *dialog = window->findChild<QDialog *>(QStringLiteral("SaveDialog"));
        QVERIFY(dialog->isVisible());
        const auto text = [&](const char *edit) {
            return dialog->findChild<QLineEdit *>(QLatin1String(edit))->text();
        };
        QCOMPARE(text("lineEdit_Start"), QStringLiteral("11"));
        QCOMPARE(text("lineEdit_End"), QStringLiteral("30"));
        QCOMPARE(
            dialog->findChild<QSlider *>(QStringLiteral("horizontalSlider_StartPoint"))->value(),
            11);
        dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_FilePath"))->setText(path("part"));
        QTest::mouseClick(
            dialog->findChild<QWidget *>(QStringLiteral("pushButton_Save")), Qt::LeftButton);
        QCOMPARE(fileText(path("part.dat")).count(QLatin1Char('\n')), 19); // of 20 lines
        window->showSaveDialog();
        QCOMPARE(text("lineEdit_Start"), QStringLiteral("0"));
        QCOMPARE(text("lineEdit_End"), QStringLiteral("39"));
    }

    void saveDialogOffersTheWholeRecording()
    {
        window->showSaveDialog();
        const auto *dialog = window->findChild<QDialog *>(QStringLiteral("SaveDialog"));
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_Start"))->text(),
            QStringLiteral("0"));
        QCOMPARE(dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_End"))->text(),
            QStringLiteral("39"));
    }
};

QTEST_MAIN(TestOutput)
#include "tst_output.moc"
