// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "outputfixture.h"
#include "plotmenus.h"

#include <QPushButton>
#include <QSlider>

#include <memory>

#ifdef Q_OS_UNIX
#include "filesizelimit.h"
#endif

// Recordings, or parts of them, saved from the window.
class TestSaving : public OutputFixture {
    Q_OBJECT

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
    void init() { openWithRecording(); }
    void cleanup() { closeWindow(); }

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

    void aLongNameBreaksInTheQuestion()
    {
        const QString name(40, QLatin1Char('n'));
        QVERIFY(writeTextFile(folder->filePath(name + name + QLatin1String(".cfg")), "before"));
        BoxReader boxes;
        answerFileDialog(folder->filePath(name + name));
        trigger("Save As &Primary");
        const QChar mayBreak(0x200B);
        QVERIFY(boxes.take().value(0).text.endsWith(
            QLatin1Char('/') + name + mayBreak + name + mayBreak + QLatin1String(".cfg")));
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

QTEST_MAIN(TestSaving)
#include "tst_saving.moc"
