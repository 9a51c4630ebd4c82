// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "customlabel.h"
#include "harmonicbars.h"
#include "measurementswindow.h"
#include "ownfilesystem.h"
#include "plotmenus.h"
#include "plotterdg.h"
#include "pseudotranslator.h"
#include "recordingbuilder.h"

#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace measurementswindow;

class TestMeasurementsDialog : public MeasurementsWindow {
    Q_OBJECT

private slots:
    void init() { openDialog(); }
    void cleanup() { closeDialog(); }

    void tellsTheValuesAtTheCursors();
    void tellsWhatIsTicked();
    void tellsTheSide_data();
    void tellsTheSide();
    void tellsASideThatIsMultiplied_data();
    void tellsASideThatIsMultiplied();
    void measuresSpectraAndDigitalPlots();
    void followsTheCursors();
    void followsTheChannelsOfThePlot();
    void measuresChannelsWithoutAPlotOfTheirOwn();
    void anglesGoByTheChosenReference();
    void differencesGoBetweenTheChosenCursors();
    void chosenCursorsStayAsLongAsTheyExist();
    void chosenCursorsAreFollowed_data();
    void chosenCursorsAreFollowed();
    void aChosenCursorMovesOntoAnotherAndAway();
    void sequencesAreThoseOfTheChosenPhases();
    void harmonicsAreThoseOfTheChosenChannel();
    void refreshesOnceForManyRequests();
    void paintsNoMoreThanWhatDiffers();
    void rowNamesHaveTheWidthTheyNeed();
    void anotherRecordingsRowNamesHaveTheWidthTheyNeed();
    void refreshesNothingWhileHidden();
    void turnsItsPagesByKeys();
    void turnsItsPagesFromEverywhere_data();
    void turnsItsPagesFromEverywhere();
    void copiesTheTableShown();
    void savesTheTableShown();
    void tellsWhySavingFailed_data();
    void tellsWhySavingFailed();
    void aFullFileSystemKeepsItsFile();
    void survivesTheEndOfThePlot();
    void survivesTheEndOfTheRecording();
    void survivesAStrangerAsMainWindow();
    void beginsAnewWithAnotherRecording();
    void everyWidgetHasAName();
    void retranslatesOnALanguageChange();

private:
    void saveInto(const QString &path);
};

void TestMeasurementsDialog::tellsTheValuesAtTheCursors()
{
    QVERIFY(!dialog->isModal());
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Measurements: Analog"));
    QCOMPARE(headings(view("tableView_cursors")), texts({"P1 (20.000 ms)", "P2 (50.200 ms)"}));
    QCOMPARE(atCursors(),
        texts({"IL1, Value, A (primary)|1600|4000", "IL2, Value, kA (primary)|-20|-50"}));
}

void TestMeasurementsDialog::tellsWhatIsTicked()
{
    tick("checkBox_angle");
    QCOMPARE(atCursors(),
        texts({"IL1, Value, A (primary)|1600|4000", "IL1, Angle, °|30.00|30.00",
            "IL2, Value, kA (primary)|-20|-50", "IL2, Angle, °|-90.00|-90.00"}));
    tick("checkBox_angle");
    tick("checkBox_fundamental");
    QCOMPARE(atCursors().at(1), QStringLiteral("IL1, RMS of fundamental, A (primary)|800|800"));
    tick("checkBox_trueRms"); // of 1 to 20 the root of 143.5, of 31 to 50 that of 1673.5
    QCOMPARE(atCursors().at(2), QStringLiteral("IL1, True RMS, A (primary)|958.332|3272.67"));
    tick("checkBox_peak");
    QCOMPARE(atCursors().at(3), QStringLiteral("IL1, Peak, A (primary)|1600|4000"));
    QCOMPARE(atCursors().at(7), QStringLiteral("IL2, Peak, kA (primary)|20|50"));
    for (const char *box : {"checkBox_fundamental", "checkBox_trueRms", "checkBox_peak"})
        tick(box);
    QCOMPARE(atCursors().size(), 2);
}

void TestMeasurementsDialog::tellsTheSide_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("primary") << 0
                             << texts({"IL1, Value, A (primary)|1600|4000",
                                    "IL2, Value, kA (primary)|-20|-50", "Freq, Value, Hz|20|50"});
    QTest::newRow("secondary") << 1
                               << texts({"IL1, Value, A (secondary)|20|50",
                                      "IL2, Value, kA (secondary)|-10|-25",
                                      "Freq, Value, Hz|20|50"});
    QTest::newRow("per unit") << 2
                              << texts({"IL1, Value, p.u.|4|10", "IL2, Value, p.u.|-0.2|-0.5",
                                     "Freq, Value, Hz|20|50"});
}

void TestMeasurementsDialog::tellsTheSide()
{
    QFETCH(int, mode);
    QFETCH(QStringList, rows);
    plot->showChannels({0, 1, 2});
    host->mode = mode;
    plot->rescaleValues();
    plot->refreshPixmap();
    QTRY_COMPARE(atCursors(), rows);
}

// IL1 is secondary at 400/5, IL2 primary at 100/50: "Set" without a change multiplies each on its
// own side by the rating there.
void TestMeasurementsDialog::tellsASideThatIsMultiplied_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("afterwards");
    QTest::newRow("primary") << 0
                             << texts({"IL1, Value, A (primary)|1600|4000",
                                    "IL2, Value, kA (primary)|-20|-50", "Freq, Value, Hz|20|50"})
                             << texts({"IL1, Value, A (primary)|1600|4000",
                                    "IL2, Value, kA (P = file value x rating)|-2000|-5000",
                                    "Freq, Value, Hz|20|50"});
    QTest::newRow("secondary") << 1
                               << texts({"IL1, Value, A (secondary)|20|50",
                                      "IL2, Value, kA (secondary)|-10|-25",
                                      "Freq, Value, Hz|20|50"})
                               << texts({"IL1, Value, A (S = file value x rating)|100|250",
                                      "IL2, Value, kA (secondary)|-10|-25",
                                      "Freq, Value, Hz|20|50"});
    const QStringList perUnit
        = texts({"IL1, Value, p.u.|4|10", "IL2, Value, p.u.|-0.2|-0.5", "Freq, Value, Hz|20|50"});
    QTest::newRow("per unit") << 2 << perUnit << perUnit;
}

void TestMeasurementsDialog::tellsASideThatIsMultiplied()
{
    QFETCH(int, mode);
    QFETCH(QStringList, before);
    QFETCH(QStringList, afterwards);
    plot->showChannels({0, 1, 2});
    host->mode = mode;
    const QList<AnalogChannel *> &channels = host->source->analogChannels;
    for (int twice = 0; twice < 2; ++twice) {
        channels.at(0)->toSecondary = 1;
        channels.at(1)->toPrimary = 1;
        dialog->refresh();
        QTRY_COMPARE(atCursors(), before);
        channels.at(0)->toSecondary = 5;
        channels.at(1)->toPrimary = 100;
        dialog->refresh();
        QTRY_COMPARE(atCursors(), afterwards);
    }
    QTest::mouseClick(child<QPushButton>("pushButton_copy"), Qt::LeftButton);
    QVERIFY(QGuiApplication::clipboard()->text().contains(
        afterwards.at(1).section(QStringLiteral(", "), 2).section(QLatin1Char('|'), 0, 0)));
}

void TestMeasurementsDialog::measuresSpectraAndDigitalPlots()
{
    plot->showChannels({3}); // the spectrum of IL1
    plot->refreshPixmap();
    tick("checkBox_angle");
    tick("checkBox_peak");
    QTRY_COMPARE(atCursors(),
        texts({"IL1 FFT, Value, A (primary)|800|800", "IL1 FFT, Angle, °|30.00|30.00"}));
    plotterDg digital(nullptr);
    digital.setMainWindow(host.get());
    digital.setName(QStringLiteral("Digital"));
    digital.addChannel(0);
    digital.setupPlot();
    digital.addCursorAt(30);
    dialog->showForPlotter(&digital);
    QTRY_COMPARE(atCursors(), texts({"TRIP, Value|1"}));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Measurements: Digital"));
    QCOMPARE(chosen("comboBox_phase1"), 0);
    QCOMPARE(chosen("comboBox_channel"), 0);
}

void TestMeasurementsDialog::followsTheCursors()
{
    plot->addCursorAt(99.6);
    QTRY_COMPARE(atCursors().at(0), QStringLiteral("IL1, Value, A (primary)|1600|4000|8000"));
    plot->addCursorAt(200); // outside the recording
    QTRY_COMPARE(atCursors().at(0), QStringLiteral("IL1, Value, A (primary)|1600|4000|8000|"));
    plot->clearCursors();
    plot->refreshPixmap();
    QTRY_COMPARE(atCursors().at(0), QStringLiteral("IL1, Value, A (primary)"));
    plot->addCursorAt(1);
    QTRY_COMPARE(atCursors().at(0), QStringLiteral("IL1, Value, A (primary)|80"));
}

void TestMeasurementsDialog::followsTheChannelsOfThePlot()
{
    plot->showChannels({2});
    plot->refreshPixmap();
    QTRY_COMPARE(atCursors(), texts({"Freq, Value, Hz|20|50"}));
    plot->showChannels({});
    plot->refreshPixmap();
    QTRY_COMPARE(atCursors(), QStringList());
}

void TestMeasurementsDialog::measuresChannelsWithoutAPlotOfTheirOwn()
{
    dialog->showForChannels(plot.get(), {1, 2}, 1);
    QTRY_COMPARE(atCursors(), texts({"IL2, Value, kA (primary)|-20|-50", "Freq, Value, Hz|20|50"}));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Measurements"));
    QCOMPARE(child<ElidingComboBox>("comboBox_reference")->currentText(), QStringLiteral("IL2"));
    QCOMPARE(chosen("comboBox_phase1"), 2);
    plot->showChannels({0}); // is of no concern
    plot->refreshPixmap();
    QTest::qWait(20);
    QCOMPARE(atCursors().size(), 2);
    dialog->showForPlotter(plot.get());
    QTRY_COMPARE(atCursors(), texts({"IL1, Value, A (primary)|1600|4000"}));
}

void TestMeasurementsDialog::anglesGoByTheChosenReference()
{
    tick("checkBox_angle");
    choose("comboBox_reference", 2);
    QCOMPARE(atCursors().at(1), QStringLiteral("IL1, Angle, °|120.00|120.00"));
    QCOMPARE(atCursors().at(3), QStringLiteral("IL2, Angle, °|0.00|0.00"));
    choose("comboBox_reference", 3); // which has no phasors
    QCOMPARE(atCursors().at(1), QStringLiteral("IL1, Angle, °||"));
    choose("comboBox_reference", 0);
    QCOMPARE(atCursors().at(1), QStringLiteral("IL1, Angle, °|30.00|30.00"));
    host->reference = 1; // that of the window, from the next opening on
    dialog->showForPlotter(plot.get());
    QTRY_COMPARE(atCursors().at(3), QStringLiteral("IL2, Angle, °|-120.00|-120.00"));
}

void TestMeasurementsDialog::differencesGoBetweenTheChosenCursors()
{
    plot->addCursorAt(90);
    turnTo(1);
    const QTableView *table = view("tableView_differences");
    QCOMPARE(headings(table),
        texts({"P1", "P2", "Difference", "Smallest", "at (ms)", "Largest", "at (ms)"}));
    QCOMPARE(lines(table),
        texts({"Time, ms|20.000|50.200|30.200||||", "Time, cycles|||1.510||||",
            "IL1, Value, A (primary)|1600|4000|2400|1600|20.000|4000|50.000",
            "IL2, Value, kA (primary)|-20|-50|-30|-50|50.000|-20|20.000"}));
    choose("comboBox_from", 2);
    QCOMPARE(lines(table).at(2),
        QStringLiteral("IL1, Value, A (primary)|7200|4000|-3200|4000|50.000|7200|90.000"));
    QCOMPARE(headings(table).mid(0, 2), texts({"P3", "P2"}));
    choose("comboBox_to", 0);
    QCOMPARE(lines(table).at(0), QStringLiteral("Time, ms|90.000|20.000|-70.000||||"));
}

void TestMeasurementsDialog::chosenCursorsStayAsLongAsTheyExist()
{
    plot->addCursorAt(90);
    turnTo(1);
    choose("comboBox_from", 2);
    choose("comboBox_to", 1);
    plot->addCursorAt(95);
    QTRY_COMPARE(child<ElidingComboBox>("comboBox_to")->count(), 4);
    QCOMPARE(chosen("comboBox_from"), 2);
    QCOMPARE(chosen("comboBox_to"), 1);
    plot->clearCursors();
    plot->refreshPixmap();
    QTRY_COMPARE(child<ElidingComboBox>("comboBox_to")->count(), 0);
    QVERIFY(lines(view("tableView_differences")).isEmpty());
    plot->addCursorAt(10);
    plot->addCursorAt(30);
    QTRY_COMPARE(lines(view("tableView_differences")).value(0),
        QStringLiteral("Time, ms|10.000|30.000|20.000||||"));
}

// The first of cursors at 10, 30, 60 and 95 ms, of which one is removed before another is set.
void TestMeasurementsDialog::chosenCursorsAreFollowed_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("from"); // as the third: of the harmonics
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("removed");
    QTest::addColumn<QList<int>>("places"); // of from, to and the third
    QTest::addColumn<QString>("time"); // afterwards
    QTest::newRow("the first of three") << 3 << 1 << 2 << 0 << QList<int>{0, 1, 0}
                                        << QStringLiteral("Time, ms|30.000|60.000|30.000||||");
    QTest::newRow("the first of three, backwards")
        << 3 << 2 << 1 << 0 << QList<int>{1, 0, 1}
        << QStringLiteral("Time, ms|60.000|30.000|-30.000||||");
    QTest::newRow("between those chosen") << 3 << 0 << 2 << 1 << QList<int>{0, 1, 0}
                                          << QStringLiteral("Time, ms|10.000|60.000|50.000||||");
    QTest::newRow("the last of three") << 3 << 0 << 1 << 2 << QList<int>{0, 1, 0}
                                       << QStringLiteral("Time, ms|10.000|30.000|20.000||||");
    QTest::newRow("from the one removed") << 3 << 1 << 2 << 1 << QList<int>{0, 1, 1}
                                          << QStringLiteral("Time, ms|10.000|60.000|50.000||||");
    QTest::newRow("from the first, removed")
        << 3 << 0 << 1 << 0 << QList<int>{1, 0, 0}
        << QStringLiteral("Time, ms|60.000|30.000|-30.000||||");
    QTest::newRow("to the one removed") << 3 << 0 << 1 << 1 << QList<int>{0, 1, 0}
                                        << QStringLiteral("Time, ms|10.000|60.000|50.000||||");
    QTest::newRow("to the last, removed") << 3 << 1 << 2 << 2 << QList<int>{1, 0, 1}
                                          << QStringLiteral("Time, ms|30.000|10.000|-20.000||||");
    QTest::newRow("one against itself") << 3 << 2 << 2 << 0 << QList<int>{1, 1, 1}
                                        << QStringLiteral("Time, ms|60.000|60.000|0.000||||");
    QTest::newRow("the first of four") << 4 << 1 << 3 << 0 << QList<int>{0, 2, 0}
                                       << QStringLiteral("Time, ms|30.000|95.000|65.000||||");
    QTest::newRow("between those chosen of four")
        << 4 << 1 << 3 << 2 << QList<int>{1, 2, 1}
        << QStringLiteral("Time, ms|30.000|95.000|65.000||||");
    QTest::newRow("from the third of four, removed")
        << 4 << 2 << 0 << 2 << QList<int>{2, 0, 2}
        << QStringLiteral("Time, ms|95.000|10.000|-85.000||||");
}

void TestMeasurementsDialog::chosenCursorsAreFollowed()
{
    QFETCH(int, count);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, removed);
    QFETCH(QList<int>, places);
    turnTo(1);
    for (int twice = 0; twice < 2; ++twice) {
        plot->clearCursors();
        plot->refreshPixmap();
        QTRY_COMPARE(child<ElidingComboBox>("comboBox_to")->count(), 0);
        for (const double time : QList<double>{10, 30, 60, 95}.mid(0, count))
            plot->addCursorAt(time);
        QTRY_COMPARE(child<ElidingComboBox>("comboBox_to")->count(), count);
        choose("comboBox_from", from);
        choose("comboBox_to", to);
        choose("comboBox_cursor", from);
        const auto labels = plot->findChildren<CustomLabel *>();
        const auto label = std::find_if(labels.cbegin(), labels.cend(), [&](const QLabel *one) {
            return one->text() == QStringLiteral("P%1").arg(removed + 1);
        });
        QVERIFY(label != labels.cend());
        QVERIFY(
            ::choose(plot.get(), QStringLiteral("Remove Cursor"), (*label)->geometry().center()));
        QTRY_COMPARE(child<ElidingComboBox>("comboBox_to")->count(), count - 1);
        QTEST(lines(view("tableView_differences")).at(0), "time");
        QCOMPARE(
            QList<int>({chosen("comboBox_from"), chosen("comboBox_to"), chosen("comboBox_cursor")}),
            places);
        plot->addCursorAt(80); // behind all others
        QTRY_COMPARE(child<ElidingComboBox>("comboBox_to")->count(), count);
        QTEST(lines(view("tableView_differences")).at(0), "time");
    }
}

// It is not taken for the other one.
void TestMeasurementsDialog::aChosenCursorMovesOntoAnotherAndAway()
{
    turnTo(1);
    for (const double time : {30.0, 20.0, 40.0}) {
        plot->clearCursors();
        plot->addCursorAt(20);
        plot->addCursorAt(time);
        plot->refreshPixmap();
        const QString difference = QString::number(time - 20, 'f', 3);
        QTRY_COMPARE(lines(view("tableView_differences")).at(0),
            QStringLiteral("Time, ms|20.000|%1|%2||||")
                .arg(QString::number(time, 'f', 3), difference));
        QCOMPARE(chosen("comboBox_to"), 1);
    }
}

// A third of each: 800 at 30 degrees and 20 at -90, turned by 120 degrees and by -120. Of the
// positive sequence 20 turns to 30 degrees and adds up with 800; of the negative one it turns to
// 150. Both divided by 3.
void TestMeasurementsDialog::sequencesAreThoseOfTheChosenPhases()
{
    host->source->analogChannels.at(2)->fftAngles.fill(0, 101);
    host->source->analogChannels.at(2)->fftMagnitudes.fill(0, 101);
    turnTo(2);
    const QTableView *table = view("tableView_sequences");
    QCOMPARE(headings(table), texts({"P1 (20.000 ms)", "P2 (50.200 ms)"}));
    QCOMPARE(lines(table).at(0), QStringLiteral("Positive sequence, RMS||")); // only two are shown
    choose("comboBox_phase3", 3);
    QCOMPARE(lines(table).mid(0, 2),
        texts(
            {"Positive sequence, RMS|273.333|273.333", "Positive sequence, Angle, °|30.00|30.00"}));
    choose("comboBox_phase1", 3);
    choose("comboBox_phase3", 1); // the sum of all is (692.82, 400 - 20)
    QCOMPARE(lines(table).at(5), QStringLiteral("Zero sequence, Angle, °|28.74|28.74"));
}

void TestMeasurementsDialog::harmonicsAreThoseOfTheChosenChannel()
{
    turnTo(3);
    const QTableView *table = view("tableView_harmonics");
    QCOMPARE(headings(table), texts({"RMS, A (primary)", "% of fundamental"}));
    QCOMPARE(lines(table).size(), 15);
    QCOMPARE(lines(table).at(0), QStringLiteral("1|800|100.00"));
    QVERIFY(child<HarmonicBars>("bars")->bar(1).height() > 0);
    choose("comboBox_channel", 2);
    QCOMPARE(lines(table).at(0), QStringLiteral("1|20|100.00"));
    QCOMPARE(headings(table).at(0), QStringLiteral("RMS, kA (primary)"));
    choose("comboBox_channel", 3);
    QCOMPARE(lines(table).at(0), QStringLiteral("1||"));
    QVERIFY(child<HarmonicBars>("bars")->bar(1).isNull());
    choose("comboBox_channel", 1);
    plot->addCursorAt(95); // too near to the end
    QTRY_COMPARE(child<ElidingComboBox>("comboBox_cursor")->count(), 3);
    choose("comboBox_cursor", 2);
    QCOMPARE(lines(table).at(0), QStringLiteral("1||"));
    choose("comboBox_cursor", 1);
    QCOMPARE(lines(table).at(0), QStringLiteral("1|800|100.00"));
}

void TestMeasurementsDialog::refreshesOnceForManyRequests()
{
    const auto askedAfter = [this](int requests) {
        QTest::qWait(30);
        host->asked = 0;
        for (int i = 0; i < requests; ++i)
            dialog->refresh();
        QTest::qWait(30);
        return host->asked;
    };
    QVERIFY(askedAfter(1) > 0);
    QCOMPARE(askedAfter(8), askedAfter(1));
    QCOMPARE(askedAfter(0), 0);
}

// As while a cursor is dragged: its column, and the headings.
void TestMeasurementsDialog::paintsNoMoreThanWhatDiffers()
{
    QTableView *table = view("tableView_cursors");
    const QImage before = table->horizontalHeader()->grab().toImage();
    QTest::qWait(50);
    const PaintWatch cells(table->viewport());
    const PaintWatch columnNames(table->horizontalHeader()->viewport());
    const PaintWatch rowNames(table->verticalHeader()->viewport());
    plot->clearCursors();
    plot->addCursorAt(20);
    plot->addCursorAt(70);
    QTRY_COMPARE(atCursors().at(0), QStringLiteral("IL1, Value, A (primary)|1600|5600"));
    QTRY_VERIFY(!cells.painted.isEmpty());
    QCOMPARE(cells.painted.left(), table->columnViewportPosition(1));
    QTRY_VERIFY(!columnNames.painted.isEmpty());
    QVERIFY(table->horizontalHeader()->grab().toImage() != before);
    // Another side changes the names of the rows.
    host->mode = 1;
    dialog->refresh();
    QTRY_VERIFY(rowNames.painted.height() > 0);
    QTRY_COMPARE(cells.painted.left(), table->columnViewportPosition(0));
}

// Of the longest one, with room for bold letters.
void TestMeasurementsDialog::rowNamesHaveTheWidthTheyNeed()
{
    const QTableView *table = view("tableView_cursors");
    const QHeaderView *names = table->verticalHeader();
    dialog->resize(1400, 500);
    tick("checkBox_fundamental");
    const auto showSide = [&](int mode, const QString &name) {
        host->mode = mode;
        dialog->refresh();
        QTRY_COMPARE(names->model()->headerData(3, Qt::Vertical).toString(), name);
        const int needed = names->fontMetrics().horizontalAdvance(name);
        QTRY_VERIFY2(names->width() > needed && names->width() < needed * 5 / 4,
            qPrintable(QStringLiteral("%1 for %2").arg(names->width()).arg(needed)));
        QCOMPARE(table->viewport()->x() - names->geometry().right(), 1);
    };
    for (int twice = 0; twice < 2; ++twice) {
        showSide(2, QStringLiteral("IL2, RMS of fundamental, p.u."));
        showSide(1, QStringLiteral("IL2, RMS of fundamental, kA (secondary)"));
    }
}

void TestMeasurementsDialog::anotherRecordingsRowNamesHaveTheWidthTheyNeed()
{
    const QHeaderView *names = view("tableView_cursors")->verticalHeader();
    dialog->resize(1400, 500);
    QTRY_VERIFY(names->width() > 0);
    const int before = names->width();
    for (int twice = 0; twice < 2; ++twice) {
        host->source->analogChannels.at(0)->id = QStringLiteral("Feeder current of phase one");
        dialog->setPlotter(plot.get());
        const QString name = QStringLiteral("Feeder current of phase one, Value, A (primary)");
        QTRY_VERIFY(names->width() > names->fontMetrics().horizontalAdvance(name));
        host->source->analogChannels.at(0)->id = QStringLiteral("IL1");
        dialog->setPlotter(plot.get());
        QTRY_COMPARE(names->width(), before);
    }
}

void TestMeasurementsDialog::refreshesNothingWhileHidden()
{
    dialog->hide();
    plot->addCursorAt(60);
    QTest::qWait(30);
    QCOMPARE(atCursors().at(0), QStringLiteral("IL1, Value, A (primary)|1600|4000"));
    dialog->show();
    QCOMPARE(atCursors().at(0), QStringLiteral("IL1, Value, A (primary)|1600|4000|4800"));
}

void TestMeasurementsDialog::turnsItsPagesByKeys()
{
    const auto *pages = child<QTabWidget>("tabWidget");
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    for (const int page : {1, 2, 3, 0, 1}) {
        QTest::keyClick(dialog.get(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(pages->currentIndex(), page);
        QCOMPARE(child<QCheckBox>("checkBox_angle")->isEnabled(), page < 2);
    }
    child<QCheckBox>("checkBox_angle")->setFocus();
    for (const int page : {0, 3}) {
        QTest::keyClick(dialog.get(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(pages->currentIndex(), page);
    }
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
}

void TestMeasurementsDialog::turnsItsPagesFromEverywhere_data()
{
    QTest::addColumn<QString>("focus"); // none as the window opens
    QTest::addColumn<Qt::Key>("back"); // with Ctrl+Shift
    const QVector<QPair<const char *, const char *>> places{{"as the window opens", ""},
        {"tick box", "checkBox_angle"}, {"reference", "comboBox_reference"},
        {"table", "tableView_cursors"}, {"tabs", "qt_tabwidget_tabbar"},
        {"button", "pushButton_copy"}};
    for (const auto &place : places) {
        QTest::addRow("%s, Shift made another letter", place.first)
            << QString::fromLatin1(place.second) << Qt::Key_Backtab;
        // As the toolkit asks for it where the windowing system tells of Shift.
        QTest::addRow("%s, Tab with Shift", place.first)
            << QString::fromLatin1(place.second) << Qt::Key_Tab;
    }
}

void TestMeasurementsDialog::turnsItsPagesFromEverywhere()
{
    QFETCH(QString, focus);
    QFETCH(Qt::Key, back);
    const auto *pages = child<QTabWidget>("tabWidget");
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    if (!focus.isEmpty()) {
        auto *widget = dialog->findChild<QWidget *>(focus);
        widget->setFocus();
        QVERIFY(widget->hasFocus());
    }
    QWindow *window = dialog->windowHandle();
    for (int time = 0; time < 2; ++time) {
        for (const int page : {3, 2, 1, 0, 3, 2}) {
            QTest::keyClick(window, back, Qt::ControlModifier | Qt::ShiftModifier);
            QCOMPARE(pages->currentIndex(), page);
        }
        for (const int page : {3, 0, 1, 2, 3, 0}) {
            QTest::keyClick(window, Qt::Key_Tab, Qt::ControlModifier);
            QCOMPARE(pages->currentIndex(), page);
        }
    }
}

void TestMeasurementsDialog::copiesTheTableShown()
{
    const QString expected = QStringLiteral("Channel\tQuantity\tUnit\tP1 (20.000 ms)\tP2 (50.200 "
                                            "ms)\nIL1\tValue\tA (primary)\t1600\t4000\n"
                                            "IL2\tValue\tkA (primary)\t-20\t-50\n");
    QTest::mouseClick(child<QPushButton>("pushButton_copy"), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), expected);
    QGuiApplication::clipboard()->clear();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    QTest::keyClick(dialog.get(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), expected);
    view("tableView_cursors")->setFocus(); // which would copy a cell by itself
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(view("tableView_cursors"), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), expected);
    turnTo(3);
    QTest::mouseClick(child<QPushButton>("pushButton_copy"), Qt::LeftButton);
    QVERIFY(QGuiApplication::clipboard()->text().startsWith(
        QLatin1String("Harmonic: IL1, P1 (20.000 ms)\tRMS, A (primary)\t% of fundamental\n"
                      "1\t800\t100.00\n")));
}

// Answers the file dialog that the button opens.
void TestMeasurementsDialog::saveInto(const QString &path)
{
    QTimer timer;
    connect(&timer, &QTimer::timeout, dialog.get(), [&] {
        auto *box = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        timer.stop();
        if (path.isEmpty())
            return box->reject();
        box->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
        QTest::keyClick(box, Qt::Key_Return);
    });
    timer.start(10);
    QTest::mouseClick(child<QPushButton>("pushButton_save"), Qt::LeftButton);
}

void TestMeasurementsDialog::savesTheTableShown()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("values.csv"));
    const QSignalSpy saved(dialog.get(), &MeasurementsDialog::saved);
    saveInto(QString());
    QCOMPARE(saved.count(), 0);
    saveInto(path);
    QCOMPARE(saved.count(), 1);
    QCOMPARE(saved.at(0), QVariantList({QString(), QString()}));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(),
        QByteArray("\xEF\xBB\xBF"
                   "Channel,Quantity,Unit,P1 (20.000 ms),P2 (50.200 ms)\r\n"
                   "IL1,Value,A (primary),1600,4000\r\nIL2,Value,kA (primary),-20,-50\r\n"));
}

void TestMeasurementsDialog::tellsWhySavingFailed_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no such folder") << QStringLiteral("/nowhere/values.csv");
#ifdef Q_OS_UNIX
    QTest::newRow("a device") << QStringLiteral("/dev/null");
#endif
}

void TestMeasurementsDialog::tellsWhySavingFailed()
{
    QFETCH(QString, path);
    const QSignalSpy saved(dialog.get(), &MeasurementsDialog::saved);
    dialog->saveTable(path);
    QCOMPARE(saved.count(), 1);
    QCOMPARE(saved.at(0).at(0).toString(), path);
    QVERIFY(!saved.at(0).at(1).toString().isEmpty());
}

void TestMeasurementsDialog::aFullFileSystemKeepsItsFile()
{
    const OwnFileSystem full(65536);
    if (!full.isMounted())
        QSKIP("This system mounts no file system for a test.");
    const QString path = full.path("values.csv");
    QVERIFY(writeTextFile(path, "as before"));
    full.fill("another");
    const QSignalSpy saved(dialog.get(), &MeasurementsDialog::saved);
    for (int twice = 1; twice <= 2; ++twice) {
        dialog->saveTable(path);
        QCOMPARE(saved.count(), twice);
        QCOMPARE(saved.last(), QVariantList({path, QStringLiteral("No space left on device")}));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("as before"));
    }
    QVERIFY(QFile::remove(full.path("another")));
    dialog->saveTable(path);
    QCOMPARE(saved.last(), QVariantList({QString(), QString()}));
    QVERIFY(QFileInfo(path).size() > 100);
}

void TestMeasurementsDialog::survivesTheEndOfThePlot()
{
    plot.reset();
    dialog->refresh();
    QTRY_COMPARE(atCursors(), QStringList());
    for (int page = 3; page >= 0; --page)
        turnTo(page);
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Measurements"));
}

void TestMeasurementsDialog::survivesTheEndOfTheRecording()
{
    host->hasRecording = false;
    dialog->refresh();
    QTRY_COMPARE(atCursors(), QStringList());
    for (int page = 3; page >= 0; --page)
        turnTo(page);
    dialog->setPlotter(nullptr);
    QCOMPARE(child<ElidingComboBox>("comboBox_reference")->count(), 1);
}

void TestMeasurementsDialog::survivesAStrangerAsMainWindow()
{
    QObject stranger;
    dialog->setMainWindow(&stranger);
    dialog->showForPlotter(plot.get());
    for (int page = 3; page >= 0; --page)
        turnTo(page);
    QCOMPARE(atCursors(), QStringList());
}

// Also of the extremes, which are kept for each channel.
void TestMeasurementsDialog::beginsAnewWithAnotherRecording()
{
    turnTo(1);
    QCOMPARE(lines(view("tableView_differences")).size(), 4);
    dialog->setPlotter(nullptr);
    host->source->analogChannels.at(0)->values.fill(7);
    dialog->setPlotter(plot.get());
    QTRY_COMPARE(lines(view("tableView_differences")).value(2),
        QStringLiteral("IL1, Value, A (primary)|560|560|0|560|20.000|560|20.000"));
}

// For those who hear the window: a text of its own, or a label for it.
void TestMeasurementsDialog::everyWidgetHasAName()
{
    QList<const QWidget *> labelled;
    for (const QLabel *label : dialog->findChildren<QLabel *>())
        labelled.append(label->buddy());
    for (const QTableView *table : dialog->findChildren<QTableView *>())
        QVERIFY(!table->accessibleName().isEmpty());
    QVERIFY(!child<HarmonicBars>("bars")->accessibleName().isEmpty());
    const auto boxes = dialog->findChildren<ElidingComboBox *>();
    QCOMPARE(boxes.size(), 8);
    for (const ElidingComboBox *box : boxes)
        QVERIFY2(labelled.contains(box), qPrintable(box->objectName()));
}

void TestMeasurementsDialog::retranslatesOnALanguageChange()
{
    PseudoTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QTRY_COMPARE(dialog->windowTitle(),
        QStringLiteral("<MeasurementsDialog>Measurements: %1").arg(plot->name()));
    QCOMPARE(atCursors().at(0),
        QStringLiteral(
            "IL1, <MeasurementsDialog>Value, A (<MeasurementsDialog>primary)|1600|4000"));
    QCOMPARE(child<QPushButton>("pushButton_copy")->text(),
        QStringLiteral("<MeasurementsDialog>&Copy Table"));
}

QTEST_MAIN(TestMeasurementsDialog)
#include "tst_measurementsdialog.moc"
