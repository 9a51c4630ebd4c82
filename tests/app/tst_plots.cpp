// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "plotswindow.h"
#include "plotterdg.h"
#include "savedialog.h"
#include "smallrecording.h"
#include "vectordialog.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolBar>

class TestPlots : public PlotsWindow {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void plotsOfARecording();
    void firstPlotShowsAtMostSixChannels();
    void listsShowWhatThePlotsShow();
    void listsSelectRangesOfRows();
    void listsAndPlotsAgreeAfterEveryLoad();
    void valueModeStartsFromTheFirstChannel_data();
    void valueModeStartsFromTheFirstChannel();
    void referenceOffersEveryAnalogChannel();
    void actionsAreEnabledByALoad();
    void controlsStartAnewWithEachLoad();
    void spectrumControlsNeedPhasors();

    void analogListChoosesTheFirstPlotsChannels();
    void digitalListChoosesTheRows();
    void keysAndDraggingChooseChannelsToo();
    void noDigitalChannelsHideTheirPlot();
    void aDeselectedListHidesThePlotAndASelectionShowsIt();

    void zoomActionsReachEveryPlot_data();
    void zoomActionsReachEveryPlot();
    void theScrollBarMovesEveryPlot();
    void valueModeRescalesThePlots();
    void changedRatiosRescaleThePlots();
    void saveMarkersReachEveryPlot();
    void removeCursorsClearsEveryPlot();

    void spectrumTracesFollowAngleAndReference();
    void aReferenceWithoutAnglesKeepsTheView();
    void vectorDialogGetsPlotAndNames();
    void aReloadBeginsAnew();
    void manyRowsLeaveRoomForTheAnalogPlot();
    void longNamesFitTheWindowAndAreToldInFull();
    void slotsWithoutARecordingDoNothing();
};

void TestPlots::plotsOfARecording()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("Trip")});
    QCOMPARE(plots().size(), 2);
    QCOMPARE(plots().first(), analog());
    QCOMPARE(analog()->minimumHeight(), 200);
    QCOMPARE(analog()->maximumHeight(), 1000);
    QCOMPARE(digital()->minimumHeight(), 200);
    QCOMPARE(analog()->findChild<QLabel *>(QStringLiteral("Plotter Label"))->text(),
        QStringLiteral("Analog Plotter"));
    QCOMPARE(digital()->findChild<QLabel *>(QStringLiteral("Plotter Label"))->text(),
        QStringLiteral("Digital Plotter"));
    QCOMPARE(analog()->linked(), QList<Plotter *>{digital()});
    QCOMPARE(digital()->linked(), QList<Plotter *>{analog()});

    const QScrollBar *bar = window->horizontalScrollBar();
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->orientation(), Qt::Horizontal);
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 0);
    const auto *area = window->findChild<QScrollArea *>(QStringLiteral("scrollArea"));
    QVERIFY(bar->mapTo(window.get(), QPoint()).y() > area->geometry().bottom());
}

void TestPlots::firstPlotShowsAtMostSixChannels()
{
    QStringList names;
    for (int i = 1; i <= 8; ++i)
        names.append(QStringLiteral("A%1").arg(i));
    open(names, {});
    QCOMPARE(analog()->channels(), QList<int>({0, 1, 2, 3, 4, 5}));
    open(names.mid(0, 4), {});
    QCOMPARE(analog()->channels(), QList<int>({0, 1, 2, 3}));
    open({}, {QStringLiteral("Trip")});
    QVERIFY(analog()->channels().isEmpty());
}

void TestPlots::listsShowWhatThePlotsShow()
{
    QStringList names;
    for (int i = 1; i <= 8; ++i)
        names.append(QStringLiteral("A%1").arg(i));
    open(names, {QStringLiteral("D0"), QStringLiteral("D1"), QStringLiteral("D20")});
    QCOMPARE(texts(list("listWidget")), names);
    QCOMPARE(texts(list("listWidget2")),
        QStringList({QStringLiteral("D0"), QStringLiteral("D1"), QStringLiteral("D20")}));
    for (int row = 0; row < 8; ++row)
        QCOMPARE(list("listWidget")->item(row)->isSelected(), row < 6);
    QCOMPARE(digital()->channels(), QList<int>{1}); // those that are 0 throughout are left out
    for (int row = 0; row < 3; ++row)
        QCOMPARE(list("listWidget2")->item(row)->isSelected(), row == 1);
}

// Names that end with 0 are those of channels without a state, which is left out.
void TestPlots::listsSelectRangesOfRows()
{
    QStringList names;
    for (int i = 1; i <= 24; ++i)
        names.append(QStringLiteral("D%1").arg(i));
    open(names, names);
    const auto ranges
        = [this](const char *name) { return list(name)->selectionModel()->selection().size(); };
    QCOMPARE(ranges("listWidget"), 1); // 1 to 6
    QCOMPARE(ranges("listWidget2"), 3); // 1 to 9, 11 to 19, 21 to 24
    QCOMPARE(digital()->channels().size(), 22);
    QVERIFY(!list("listWidget2")->item(19)->isSelected());
    QVERIFY(list("listWidget2")->item(23)->isSelected());
}

// Chosen from, added to, opened anew, failed to open; and all of it again.
void TestPlots::listsAndPlotsAgreeAfterEveryLoad()
{
    const auto selected = [this](const char *name) {
        QList<int> rows;
        for (int row = 0; row < list(name)->count(); ++row) {
            if (list(name)->item(row)->isSelected())
                rows.append(row);
        }
        return rows;
    };
    const QString broken = folder->filePath(QStringLiteral("broken.cfg")); // without data
    QVERIFY(writeTextFile(broken, smallConfiguration()));
    BoxReader boxes;
    for (int i = 0; i < 2; ++i) {
        for (int k = 0; k < 2; ++k) {
            open({QStringLiteral("Ia"), QStringLiteral("Ib")},
                {QStringLiteral("D1"), QStringLiteral("D2")});
            QCOMPARE(selected("listWidget"), QList<int>({0, 1}));
            QCOMPARE(analog()->channels(), QList<int>({0, 1}));
            QCOMPARE(selected("listWidget2"), QList<int>({0, 1}));
            QCOMPARE(digital()->channels(), QList<int>({0, 1}));
            QVERIFY(digital()->isVisible());
            click(list("listWidget"), 0);
            click(list("listWidget2"), 0);
            click(list("listWidget2"), 1);
            window->addPlotter({QStringLiteral("Ia")});
            window->removePlotter();
            QCOMPARE(selected("listWidget"), QList<int>{1});
            QCOMPARE(analog()->channels(), QList<int>{1});
            QCOMPARE(selected("listWidget2"), QList<int>());
            QVERIFY(!digital()->isVisible());
        }
        window->open(broken);
        QVERIFY(!window->recording());
        QCOMPARE(list("listWidget")->count() + list("listWidget2")->count(), 0);
        QVERIFY(plots().isEmpty());
    }
    QCOMPARE(boxes.count(), 2);
}

void TestPlots::valueModeStartsFromTheFirstChannel_data()
{
    QTest::addColumn<QByteArray>("flag");
    QTest::addColumn<int>("mode");
    QTest::newRow("secondary") << QByteArray("S") << 1;
    QTest::newRow("primary") << QByteArray("P") << 0;
    QTest::newRow("another flag") << QByteArray("s") << 0;
}

void TestPlots::valueModeStartsFromTheFirstChannel()
{
    QFETCH(QByteArray, flag);
    open({QStringLiteral("Ia")}, {}, flag);
    QCOMPARE(texts(combo("comboBox_primSec")),
        QStringList({QStringLiteral("P"), QStringLiteral("S"), QStringLiteral("Per Unit")}));
    QTEST(combo("comboBox_primSec")->currentIndex(), "mode");
    QTEST(window->valueMode(), "mode");
}

void TestPlots::referenceOffersEveryAnalogChannel()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    QCOMPARE(texts(combo("comboBox_mainReference")),
        QStringList({QStringLiteral("-"), QStringLiteral("Ia"), QStringLiteral("Ib")}));
    QCOMPARE(window->referenceIndex(), 0);
    combo("comboBox_mainReference")->setCurrentIndex(2);
    QCOMPARE(window->referenceIndex(), 2);
}

void TestPlots::actionsAreEnabledByALoad()
{
    const QList<const char *> names{
        "&Save As..", "Save As &Primary", "&Add Plotter", "&Remove All Cursors", "Rescale CTVT"};
    for (const char *name : names)
        QVERIFY(!action(name)->isEnabled());
    open({QStringLiteral("Ia")}, {});
    for (const char *name : names)
        QVERIFY(action(name)->isEnabled());
    QVERIFY(!action("&Remove Plotter")->isEnabled());
    QVERIFY(combo("comboBox_mainReference")->isEnabled());
    QVERIFY(window->findChild<QCheckBox *>(QStringLiteral("checkBox_showAngles"))->isEnabled());

    BoxReader boxes;
    QVERIFY(writeTextFile(folder->filePath(QStringLiteral("bad.cfg")), "x\n"));
    window->open(folder->filePath(QStringLiteral("bad.cfg")));
    for (const char *name : names)
        QVERIFY(!action(name)->isEnabled());
    QVERIFY(plots().isEmpty());
    QVERIFY(!window->horizontalScrollBar());
}

void TestPlots::controlsStartAnewWithEachLoad()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {}, "S");
    auto *angles = window->findChild<QCheckBox *>(QStringLiteral("checkBox_showAngles"));
    angles->setChecked(true);
    combo("comboBox_mainReference")->setCurrentIndex(1);
    combo("comboBox_primSec")->setCurrentIndex(2);
    open({QStringLiteral("Ua")}, {}, "S");
    QVERIFY(!angles->isChecked());
    QVERIFY(!window->showsAngles());
    QCOMPARE(window->referenceIndex(), 0);
    QCOMPARE(window->valueMode(), 1);
}

void TestPlots::spectrumControlsNeedPhasors()
{
    const QString path = folder->filePath(QStringLiteral("export.txt"));
    QVERIFY(writeTextFile(path, "#Ua[kV]\n01/02/2020-10:00:00:000,1\n01/02/2020-10:00:00:020,2\n"));
    window->open(path);
    QVERIFY(window->recording());
    QVERIFY(!combo("comboBox_mainReference")->isEnabled());
    compose({}, {}, false);
    QCOMPARE(offered, QStringList{QStringLiteral("Ua")});
}

void TestPlots::analogListChoosesTheFirstPlotsChannels()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib"), QStringLiteral("Ic")}, {});
    QCOMPARE(analog()->home().maxY, 30.0);
    click(list("listWidget"), 2); // Ic reaches -30, Ib -20
    QCOMPARE(analog()->channels(), QList<int>({0, 1}));
    QCOMPARE(analog()->home().minY, -20.0);
    click(list("listWidget"), 0);
    click(list("listWidget"), 2);
    QCOMPARE(analog()->channels(), QList<int>({1, 2}));
    QVERIFY(!list("listWidget")->item(0)->isSelected());
    click(list("listWidget"), 1);
    click(list("listWidget"), 2);
    QVERIFY(analog()->channels().isEmpty());
    QVERIFY(analog()->isVisible());
}

void TestPlots::digitalListChoosesTheRows()
{
    open(
        {QStringLiteral("Ia")}, {QStringLiteral("D1"), QStringLiteral("D2"), QStringLiteral("D0")});
    click(list("listWidget2"), 0);
    QCOMPARE(digital()->channels(), QList<int>{1});
    click(list("listWidget2"), 2);
    QCOMPARE(digital()->channels(), QList<int>({1, 2}));
    QVERIFY(list("listWidget2")->item(2)->isSelected());
}

void TestPlots::keysAndDraggingChooseChannelsToo()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib"), QStringLiteral("Ic")},
        {QStringLiteral("D1"), QStringLiteral("D2")});
    const auto selected = [](const QListWidget *widget) {
        QList<int> rows;
        for (int row = 0; row < widget->count(); ++row) {
            if (widget->item(row)->isSelected())
                rows.append(row);
        }
        return rows;
    };
    for (QListWidget *widget : {list("listWidget"), list("listWidget2")}) {
        const Plotter *shown = widget == list("listWidget") ? analog() : digital();
        widget->setCurrentRow(1, QItemSelectionModel::NoUpdate);
        QTest::keyClick(widget, Qt::Key_Space);
        QVERIFY(!widget->item(1)->isSelected());
        QCOMPARE(shown->channels(), selected(widget));
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QVERIFY(widget->item(1)->isSelected());
        QCOMPARE(shown->channels(), selected(widget));
        QTest::mousePress(widget->viewport(), Qt::LeftButton, {},
            widget->visualItemRect(widget->item(0)).center());
        QMouseEvent move(QEvent::MouseMove, widget->visualItemRect(widget->item(1)).center(),
            Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget->viewport(), &move);
        QTest::mouseRelease(widget->viewport(), Qt::LeftButton, {},
            widget->visualItemRect(widget->item(1)).center());
        QCOMPARE(shown->channels(), selected(widget));
    }
}

void TestPlots::noDigitalChannelsHideTheirPlot()
{
    open({QStringLiteral("Ia")}, {});
    QVERIFY(!digital()->isVisible());
    open({QStringLiteral("Ia")}, {QStringLiteral("D0")});
    QVERIFY(!digital()->isVisible());
}

void TestPlots::aDeselectedListHidesThePlotAndASelectionShowsIt()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1"), QStringLiteral("D2")});
    QVERIFY(digital()->isVisible());
    click(list("listWidget2"), 0);
    QVERIFY(digital()->isVisible());
    click(list("listWidget2"), 1);
    QVERIFY(!digital()->isVisible());
    click(list("listWidget2"), 1);
    QVERIFY(digital()->isVisible());
    QCOMPARE(digital()->channels(), QList<int>{1});
}

// The recording lasts 99 ms: the full view is 0 to 100 ms. Values reach from -10 to 9: -12 to 9.
void TestPlots::zoomActionsReachEveryPlot_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<double>("maxX");
    QTest::newRow("in") << QByteArray("Zoom In") << 50.0;
    QTest::newRow("out") << QByteArray("Zoom Out") << 210.0;
    QTest::newRow("values in") << QByteArray("Vertical Zoom In") << 100.0;
    QTest::newRow("values out") << QByteArray("Vertical Zoom Out") << 100.0;
}

void TestPlots::zoomActionsReachEveryPlot()
{
    QFETCH(QByteArray, name);
    QFETCH(double, maxX);
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    action(name.constData())->trigger();
    for (const Plotter *each : plots())
        QCOMPARE(each->view().maxX, maxX);
    const PlotSettings added = plot(QStringLiteral("Currents"))->view();
    if (name == "Vertical Zoom In")
        QVERIFY(added.spanY() < 21);
    else if (name == "Vertical Zoom Out")
        QVERIFY(added.spanY() > 21);
    else
        QCOMPARE(added.spanY(), 21.0);
    action("Zoom Reset")->trigger();
    for (const Plotter *each : plots())
        QCOMPARE(each->view().maxX, 100.0);
    QCOMPARE(plot(QStringLiteral("Currents"))->view().spanY(), 21.0);
}

void TestPlots::theScrollBarMovesEveryPlot()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    action("Zoom In")->trigger(); // intervals of 10 ms
    window->horizontalScrollBar()->setValue(2);
    for (const Plotter *each : plots())
        QCOMPARE(each->view().minX, 20.0);
}

// 400/5 on an "S" channel: primary values are 80 times as large; per unit, a fifth.
void TestPlots::valueModeRescalesThePlots()
{
    open({QStringLiteral("Ia")}, {}, "S");
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    action("Zoom In")->trigger();
    combo("comboBox_primSec")->setCurrentIndex(0);
    for (const Plotter *each : {analog(), plot(QStringLiteral("Currents"))}) {
        QCOMPARE(each->view().maxY, 720.0);
        QCOMPARE(each->view().minY, -960.0);
        QCOMPARE(each->view().maxX, 50.0);
    }
    combo("comboBox_primSec")->setCurrentIndex(2);
    QCOMPARE(analog()->view().maxY, 1.8);
    combo("comboBox_primSec")->setCurrentIndex(1);
    QCOMPARE(analog()->view().maxY, 9.0);
}

// 800/5 makes primary values 160 times the secondary ones.
void TestPlots::changedRatiosRescaleThePlots()
{
    open({QStringLiteral("Ia")}, {}, "S");
    combo("comboBox_primSec")->setCurrentIndex(0);
    auto *dialog = window->findChild<CTVTDialog *>();
    action("Rescale CTVT")->trigger();
    QVERIFY(dialog->isVisible());
    dialog->findChildren<QLineEdit *>().first()->setText(QStringLiteral("800"));
    dialog->findChild<QPushButton *>(QStringLiteral("pushButton_Set"))->click();
    QCOMPARE(analog()->view().maxY, 1440.0);
}

void TestPlots::saveMarkersReachEveryPlot()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    action("&Save As..")->trigger();
    for (const Plotter *each : plots()) {
        QVERIFY(each->findChild<QFrame *>(QStringLiteral("startMarker"))->isVisible());
        QVERIFY(each->findChild<QFrame *>(QStringLiteral("endMarker"))->isVisible());
    }
    auto *dialog = window->findChild<SaveDialog *>();
    const auto *start = analog()->findChild<QFrame *>(QStringLiteral("startMarker"));
    const auto *end = analog()->findChild<QFrame *>(QStringLiteral("endMarker"));
    const int firstX = start->x();
    const int lastX = end->x();
    auto *slider = dialog->findChild<QWidget *>(QStringLiteral("horizontalSlider_StartPoint"));
    QTest::keyClick(slider, Qt::Key_End);
    QCOMPARE(start->x(), lastX);
    QCOMPARE(end->x(), lastX);
    slider = dialog->findChild<QWidget *>(QStringLiteral("horizontalSlider_EndPoint"));
    QTest::keyClick(slider, Qt::Key_Home);
    QCOMPARE(start->x(), lastX);
    QCOMPARE(end->x(), firstX);
    dialog->findChild<QPushButton *>(QStringLiteral("pushButton_Cancel"))->click();
    for (const Plotter *each : plots()) {
        QVERIFY(!each->findChild<QFrame *>(QStringLiteral("startMarker"))->isVisible());
        QVERIFY(!each->findChild<QFrame *>(QStringLiteral("endMarker"))->isVisible());
    }
}

void TestPlots::removeCursorsClearsEveryPlot()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    QTest::mouseDClick(analog(), Qt::LeftButton, {}, {300, 100});
    QTest::mouseDClick(analog(), Qt::LeftButton, {}, {400, 100});
    for (const Plotter *each : plots())
        QCOMPARE(each->cursors().size(), 2);
    action("&Remove All Cursors")->trigger();
    for (const Plotter *each : plots()) {
        QVERIFY(each->cursors().isEmpty());
        QCOMPARE(each->geometryOfView().readoutWidth(), 0);
    }
}

void TestPlots::spectrumTracesFollowAngleAndReference()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    compose({QStringLiteral("Ia_FFT")}, QStringLiteral("Spectra"));
    const Plotter *added = plot(QStringLiteral("Spectra"));
    const double magnitudeAlone = added->home().maxY;
    QVERIFY(magnitudeAlone < 10);
    window->findChild<QCheckBox *>(QStringLiteral("checkBox_showAngles"))->setChecked(true);
    QCOMPARE(added->home().maxY, 400.0); // degrees
    combo("comboBox_mainReference")->setCurrentIndex(2);
    QVERIFY(added->home().maxY < 10); // radians
    window->findChild<QCheckBox *>(QStringLiteral("checkBox_showAngles"))->setChecked(false);
    QCOMPARE(added->home().maxY, magnitudeAlone);
}

// Without angles nothing of a spectrum depends on the reference, and its view stays.
void TestPlots::aReferenceWithoutAnglesKeepsTheView()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    compose({QStringLiteral("Ia_FFT")}, QStringLiteral("Spectra"));
    const Plotter *added = plot(QStringLiteral("Spectra"));
    action("Vertical Zoom In")->trigger();
    const PlotSettings before = added->view();
    QVERIFY(!(before == added->home()));
    combo("comboBox_mainReference")->setCurrentIndex(2);
    QVERIFY(added->view() == before);
}

void TestPlots::vectorDialogGetsPlotAndNames()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    QCOMPARE(texts(window->findChild<VectorDialog *>()->findChild<QComboBox *>(
                 QStringLiteral("comboBox_reference"))),
        QStringList({QStringLiteral("-"), QStringLiteral("Ia"), QStringLiteral("Ib")}));
}

void TestPlots::aReloadBeginsAnew()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    action("Zoom In")->trigger();
    QTest::mouseDClick(analog(), Qt::LeftButton, {}, {300, 100});
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    QCOMPARE(plots().size(), 2);
    QCOMPARE(analog()->view().maxX, 100.0);
    QVERIFY(analog()->cursors().isEmpty());
    QVERIFY(!action("&Remove Plotter")->isEnabled());
    QCOMPARE(window->horizontalScrollBar()->maximum(), 0);
    compose({QStringLiteral("Ia")});
    QVERIFY(plot(QStringLiteral("Graph 1")));
    action("Zoom In")->trigger();
    QCOMPARE(analog()->view().maxX, 50.0);
}

void TestPlots::manyRowsLeaveRoomForTheAnalogPlot()
{
    QStringList rows;
    for (int i = 1; i <= 60; ++i)
        rows.append(QStringLiteral("D%1a").arg(i));
    open({QStringLiteral("Ia")}, rows);
    QCoreApplication::processEvents();
    QCOMPARE(digital()->minimumHeight(), 60 + 41 + 61 * 16);
    QVERIFY(analog()->height() > 290);
    const auto *column = analog()->parentWidget();
    const int heightBefore = column->minimumHeight();
    compose({QStringLiteral("Ia")});
    QVERIFY(analog()->height() > 290);
    QVERIFY(column->minimumHeight() > heightBefore);
    action("&Remove Plotter")->trigger();
    QCOMPARE(column->minimumHeight(), heightBefore);
}

void TestPlots::longNamesFitTheWindowAndAreToldInFull()
{
    const QString name = QStringLiteral("Phase current IL1 of the HV side");
    window->resize(1000, 720);
    open({name, QStringLiteral("<b>I0</b>")},
        {QStringLiteral("Trip of the main breaker by stage 2")});
    QCoreApplication::processEvents();
    QVERIFY(combo("comboBox_primSec")->isVisible());
    QVERIFY(combo("comboBox_primSec")->geometry().right() < window->width());
    combo("comboBox_mainReference")->showPopup();
    QVERIFY(combo("comboBox_mainReference")->view()->width() > 150);
    combo("comboBox_mainReference")->hidePopup();
    QCOMPARE(list("listWidget")->item(0)->toolTip(), name);
    QCOMPARE(list("listWidget")->item(1)->toolTip(), QStringLiteral("&lt;b&gt;I0&lt;/b&gt;"));
    QCOMPARE(list("listWidget2")->item(0)->toolTip(),
        QStringLiteral("Trip of the main breaker by stage 2"));
    QCOMPARE(
        window->findChild<QLabel *>(QStringLiteral("label4"))->toolTip(), QStringLiteral("Harju"));
    QVERIFY(writeTextFile(folder->filePath(QStringLiteral("bad.cfg")), "x\n"));
    BoxReader boxes;
    window->open(folder->filePath(QStringLiteral("bad.cfg")));
    QVERIFY(window->findChild<QLabel *>(QStringLiteral("label4"))->toolTip().isEmpty());
}

void TestPlots::slotsWithoutARecordingDoNothing()
{
    window->addPlotter({QStringLiteral("Ia")});
    window->removePlotter();
    window->removeCursors();
    window->setRequiredAnChannels();
    window->on_listWidget_clicked(QModelIndex());
    window->on_listWidget2_clicked(QModelIndex());
    window->showAnglesSlot(true);
    window->referenceChanged(1);
    window->refreshPlots();
    window->primSecChanged(2);
    QCOMPARE(window->valueMode(), 2);
    QVERIFY(plots().isEmpty());

    open({QStringLiteral("Ia")}, {});
    window->close(); // the plots stay until the window goes, the recording does not
    window->setAnalogChannels();
    window->addPlotter({QStringLiteral("Ia")});
    QCOMPARE(plots().size(), 2);
}

QTEST_MAIN(TestPlots)
#include "tst_plots.moc"
