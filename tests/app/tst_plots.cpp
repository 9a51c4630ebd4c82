#include "addplotterdialog.h"
#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "mainwindow.h"
#include "plotterdg.h"
#include "savedialog.h"
#include "smallrecording.h"
#include "vectordialog.h"
#include "windowtest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include <memory>

namespace {

// A recording of 100 samples, 1 ms apart, with the analog channels named and digital ones that are
// 1 from sample 50 on, but for those whose names end with "0".
QString writeRecording(const QString &folder, const QStringList &analog, const QStringList &digital,
    const QByteArray &flag = "P")
{
    QByteArray configuration = "Harju,J07,1999\n"
        + QByteArray::number(analog.size() + digital.size()) + ','
        + QByteArray::number(analog.size()) + "A," + QByteArray::number(digital.size()) + "D\n";
    for (int i = 0; i < analog.size(); ++i)
        configuration += QByteArray::number(i + 1) + ',' + analog.at(i).toLatin1()
            + ",A,line,A,1,0,0,-99,99,400,5," + flag + '\n';
    for (int i = 0; i < digital.size(); ++i)
        configuration += QByteArray::number(i + 1) + ',' + digital.at(i).toLatin1() + ",,,0\n";
    configuration
        += "50\n1\n1000,100\n15/03/2024,10:00:00.000000\n15/03/2024,10:00:00.050000\nASCII\n1\n";
    QByteArray data;
    for (int i = 0; i < 100; ++i) {
        data += QByteArray::number(i + 1) + ',' + QByteArray::number(i * 1000);
        for (int k = 0; k < analog.size(); ++k)
            data += ',' + QByteArray::number((i % 20 - 10) * (k + 1));
        for (const QString &name : digital)
            data += i >= 50 && !name.endsWith(QLatin1Char('0')) ? ",1" : ",0";
        data += '\n';
    }
    const QString base = folder + QStringLiteral("/recording");
    const bool isWritten = writeTextFile(base + QStringLiteral(".cfg"), configuration)
        && writeTextFile(base + QStringLiteral(".dat"), data);
    return isWritten ? base + QStringLiteral(".cfg") : QString();
}

QStringList texts(const QListWidget *list)
{
    QStringList result;
    for (int row = 0; row < list->count(); ++row)
        result.append(list->item(row)->text());
    return result;
}

QStringList texts(const QComboBox *combo)
{
    QStringList result;
    for (int i = 0; i < combo->count(); ++i)
        result.append(combo->itemText(i));
    return result;
}

} // namespace

class tst_Plots : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init();
    void cleanup();

    void plotsOfARecording();
    void firstPlotShowsAtMostSixChannels();
    void listsShowWhatThePlotsShow();
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

    void namesOfferedForANewPlot_data();
    void namesOfferedForANewPlot();
    void aPlotIsComposed();
    void aPlotOfSpectraOnly();
    void aCancelledDialogAddsNothing();
    void nothingChosenAddsNothing();
    void plotsWithoutANameAreNumbered();
    void plotsAreRemovedNewestFirst();
    void plotsOfOneNameAreRemovedOneByOne();
    void removingWithoutAnAddedPlotDisablesTheAction();
    void aRemovedPlotHoldsNeitherKeyboardNorBand();
    void anAddedPlotStartsAtTheFirstPlotsTime();
    void anAddedPlotScrollsWithTheOthers();
    void anAddedPlotIsScrolledIntoView();

    void spectrumTracesFollowAngleAndReference();
    void vectorDialogGetsPlotAndNames();
    void aReloadBeginsAnew();
    void manyRowsLeaveRoomForTheAnalogPlot();
    void longNamesFitTheWindowAndAreToldInFull();
    void slotsWithoutARecordingDoNothing();

private:
    void open(const QStringList &analog, const QStringList &digital, const QByteArray &flag = "P")
    {
        window->open(writeRecording(folder->path(), analog, digital, flag));
        QVERIFY(window->recording());
    }
    // In the order in which they stand, the first analog plot first.
    QList<Plotter *> plots() const
    {
        QList<Plotter *> found = window->findChildren<Plotter *>();
        std::sort(found.begin(), found.end(),
            [](const Plotter *a, const Plotter *b) { return a->y() < b->y(); });
        return found;
    }
    Plotter *plot(const QString &name) const
    {
        for (Plotter *candidate : window->findChildren<Plotter *>()) {
            if (candidate->name() == name)
                return candidate;
        }
        return nullptr;
    }
    Plotter *analog() const { return plot(QStringLiteral("Analog")); }
    Plotter *digital() const { return plot(QStringLiteral("Digital")); }
    QAction *action(const char *text) const
    {
        for (QAction *candidate : window->findChildren<QAction *>()) {
            if (candidate->text() == QLatin1String(text))
                return candidate;
        }
        return nullptr;
    }
    // Composes a plot through the dialog; without channels, accepts an empty choice.
    void compose(
        const QStringList &channels, const QString &name = QString(), bool accepted = true);
    QListWidget *list(const char *name) const
    {
        return window->findChild<QListWidget *>(QLatin1String(name));
    }
    void click(QListWidget *widget, int row)
    {
        const QRect rect = widget->visualItemRect(widget->item(row));
        QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, rect.center());
    }
    QComboBox *combo(const char *name) const
    {
        return window->findChild<QComboBox *>(QLatin1String(name));
    }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<MainWindow> window;
    QStringList offered;
};

void tst_Plots::init()
{
    folder = std::make_unique<QTemporaryDir>();
    const MissingSignalAlarm alarm;
    window = std::make_unique<MainWindow>();
    window->resize(1200, 900);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void tst_Plots::cleanup()
{
    window.reset();
    folder.reset();
}

void tst_Plots::compose(const QStringList &channels, const QString &name, bool accepted)
{
    QTimer::singleShot(0, window.get(), [&] {
        auto *dialog = qobject_cast<AddPlotterDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        auto *left = dialog->findChild<QListWidget *>(QStringLiteral("listWidget_unSelected"));
        offered = texts(left);
        for (const QString &channel : channels) {
            left->clearSelection();
            for (QListWidgetItem *item : left->findItems(channel, Qt::MatchExactly))
                item->setSelected(true);
            dialog->findChild<QPushButton *>(QStringLiteral("pushButton_add"))->click();
        }
        dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_graphName"))->setText(name);
        accepted ? dialog->accept() : dialog->reject();
    });
    action("&Add Plotter")->trigger();
}

void tst_Plots::plotsOfARecording()
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

void tst_Plots::firstPlotShowsAtMostSixChannels()
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

void tst_Plots::listsShowWhatThePlotsShow()
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

void tst_Plots::valueModeStartsFromTheFirstChannel_data()
{
    QTest::addColumn<QByteArray>("flag");
    QTest::addColumn<int>("mode");
    QTest::newRow("secondary") << QByteArray("S") << 1;
    QTest::newRow("primary") << QByteArray("P") << 0;
    QTest::newRow("another flag") << QByteArray("s") << 0;
}

void tst_Plots::valueModeStartsFromTheFirstChannel()
{
    QFETCH(QByteArray, flag);
    open({QStringLiteral("Ia")}, {}, flag);
    QCOMPARE(texts(combo("comboBox_primSec")),
        QStringList({QStringLiteral("P"), QStringLiteral("S"), QStringLiteral("Per Unit")}));
    QTEST(combo("comboBox_primSec")->currentIndex(), "mode");
    QTEST(window->valueMode(), "mode");
}

void tst_Plots::referenceOffersEveryAnalogChannel()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    QCOMPARE(texts(combo("comboBox_mainReference")),
        QStringList({QStringLiteral("-"), QStringLiteral("Ia"), QStringLiteral("Ib")}));
    QCOMPARE(window->referenceIndex(), 0);
    combo("comboBox_mainReference")->setCurrentIndex(2);
    QCOMPARE(window->referenceIndex(), 2);
}

void tst_Plots::actionsAreEnabledByALoad()
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

void tst_Plots::controlsStartAnewWithEachLoad()
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

void tst_Plots::spectrumControlsNeedPhasors()
{
    const QString path = folder->filePath(QStringLiteral("export.txt"));
    QVERIFY(writeTextFile(path, "#Ua[kV]\n01/02/2020-10:00:00:000,1\n01/02/2020-10:00:00:020,2\n"));
    window->open(path);
    QVERIFY(window->recording());
    QVERIFY(!combo("comboBox_mainReference")->isEnabled());
    compose({}, {}, false);
    QCOMPARE(offered, QStringList{QStringLiteral("Ua")});
}

void tst_Plots::analogListChoosesTheFirstPlotsChannels()
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

void tst_Plots::digitalListChoosesTheRows()
{
    open(
        {QStringLiteral("Ia")}, {QStringLiteral("D1"), QStringLiteral("D2"), QStringLiteral("D0")});
    click(list("listWidget2"), 0);
    QCOMPARE(digital()->channels(), QList<int>{1});
    click(list("listWidget2"), 2);
    QCOMPARE(digital()->channels(), QList<int>({1, 2}));
    QVERIFY(list("listWidget2")->item(2)->isSelected());
}

void tst_Plots::keysAndDraggingChooseChannelsToo()
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

void tst_Plots::noDigitalChannelsHideTheirPlot()
{
    open({QStringLiteral("Ia")}, {});
    QVERIFY(!digital()->isVisible());
    open({QStringLiteral("Ia")}, {QStringLiteral("D0")});
    QVERIFY(!digital()->isVisible());
}

void tst_Plots::aDeselectedListHidesThePlotAndASelectionShowsIt()
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
void tst_Plots::zoomActionsReachEveryPlot_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<double>("maxX");
    QTest::addColumn<double>("added"); // maxY of the plot added
    QTest::newRow("in") << QByteArray("Zoom In") << 50.0 << 9.0;
    QTest::newRow("out") << QByteArray("Zoom Out") << 210.0 << 9.0;
    QTest::newRow("values in") << QByteArray("Vertical Zoom In") << 100.0 << 4.0;
    QTest::newRow("values out") << QByteArray("Vertical Zoom Out") << 100.0 << 18.0;
}

void tst_Plots::zoomActionsReachEveryPlot()
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

void tst_Plots::theScrollBarMovesEveryPlot()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    action("Zoom In")->trigger(); // intervals of 10 ms
    window->horizontalScrollBar()->setValue(2);
    for (const Plotter *each : plots())
        QCOMPARE(each->view().minX, 20.0);
}

// 400/5 on an "S" channel: primary values are 80 times as large; per unit, a fifth.
void tst_Plots::valueModeRescalesThePlots()
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
void tst_Plots::changedRatiosRescaleThePlots()
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

void tst_Plots::saveMarkersReachEveryPlot()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    action("&Save As..")->trigger();
    for (const Plotter *each : plots()) {
        QVERIFY(each->findChild<QFrame *>(QStringLiteral("startMarker"))->isVisible());
        QVERIFY(each->findChild<QFrame *>(QStringLiteral("endMarker"))->isVisible());
    }
    window->findChild<SaveDialog *>()
        ->findChild<QPushButton *>(QStringLiteral("pushButton_Cancel"))
        ->click();
    for (const Plotter *each : plots())
        QVERIFY(!each->findChild<QFrame *>(QStringLiteral("startMarker"))->isVisible());
}

void tst_Plots::removeCursorsClearsEveryPlot()
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

void tst_Plots::namesOfferedForANewPlot_data()
{
    QTest::addColumn<QStringList>("channels");
    QTest::addColumn<QStringList>("names");
    const auto list
        = [](const char *names) { return QString::fromLatin1(names).split(QLatin1Char(',')); };
    QTest::newRow("waveforms first, then spectra") << list("Ia,Ib") << list("Ia,Ib,Ia_FFT,Ib_FFT");
    QTest::newRow("no spectra of measurements") << list("Ia,MEAS f") << list("Ia,MEAS f,Ia_FFT");
    QTest::newRow("only measurements") << list("MEAS f,MEASP") << list("MEAS f,MEASP");
    QTest::newRow("small letters are no measurement")
        << list("Meas f") << list("Meas f,Meas f_FFT");
}

void tst_Plots::namesOfferedForANewPlot()
{
    QFETCH(QStringList, channels);
    open(channels, {});
    compose({}, {}, false);
    QTEST(offered, "names");
}

void tst_Plots::aPlotIsComposed()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ib"), QStringLiteral("Ia_FFT"), QStringLiteral("Ia")},
        QStringLiteral("Currents"));
    Plotter *added = plot(QStringLiteral("Currents"));
    QVERIFY(added);
    QCOMPARE(added->channels(), QList<int>({1, 2, 0})); // in the order of the choice
    QCOMPARE(plots(), QList<Plotter *>({analog(), added, digital()}));
    QCOMPARE(added->minimumHeight(), 200);
    QVERIFY(added->isVisible());
    QVERIFY(action("&Remove Plotter")->isEnabled());
    QCOMPARE(analog()->linked(), QList<Plotter *>({digital(), added}));
    QCOMPARE(added->linked(), QList<Plotter *>({digital(), analog()}));
}

void tst_Plots::aPlotOfSpectraOnly()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    compose({QStringLiteral("Ib_FFT")}, QStringLiteral("Spectra"));
    const Plotter *added = plot(QStringLiteral("Spectra"));
    QCOMPARE(added->channels(), QList<int>{3});
    QVERIFY(added->showsSpectrum());
    QCOMPARE(added->home().minY, 0.0);
}

void tst_Plots::aCancelledDialogAddsNothing()
{
    open({QStringLiteral("Ia")}, {});
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"), false);
    QCOMPARE(plots().size(), 2);
    QVERIFY(!action("&Remove Plotter")->isEnabled());
}

void tst_Plots::nothingChosenAddsNothing()
{
    open({QStringLiteral("Ia")}, {});
    compose({}, QStringLiteral("Currents"));
    QCOMPARE(plots().size(), 2);
    QVERIFY(!action("&Remove Plotter")->isEnabled());
}

void tst_Plots::plotsWithoutANameAreNumbered()
{
    open({QStringLiteral("Ia")}, {});
    compose({QStringLiteral("Ia")});
    compose({QStringLiteral("Ia")}, QStringLiteral("  "));
    QVERIFY(plot(QStringLiteral("Graph 1")));
    QVERIFY(plot(QStringLiteral("Graph 2")));
}

void tst_Plots::plotsAreRemovedNewestFirst()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ia")}, QStringLiteral("first"));
    compose({QStringLiteral("Ia")}, QStringLiteral("second"));
    action("&Remove Plotter")->trigger();
    QVERIFY(plot(QStringLiteral("first")));
    QVERIFY(!plot(QStringLiteral("second")));
    QCOMPARE(analog()->linked(), QList<Plotter *>({digital(), plot(QStringLiteral("first"))}));
    QVERIFY(action("&Remove Plotter")->isEnabled());
    action("&Remove Plotter")->trigger();
    QVERIFY(!action("&Remove Plotter")->isEnabled());
    QCOMPARE(plots(), QList<Plotter *>({analog(), digital()}));
    QCOMPARE(analog()->linked(), QList<Plotter *>{digital()});
    action("Zoom In")->trigger();
    QCOMPARE(digital()->view().maxX, 50.0);
}

void tst_Plots::plotsOfOneNameAreRemovedOneByOne()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    for (int i = 0; i < 2; ++i)
        compose({QStringLiteral("Ia")}, QStringLiteral("Digital"));
    for (int left = 3; left >= 2; --left) {
        action("&Remove Plotter")->trigger();
        QCOMPARE(plots().size(), left);
        for (const Plotter *each : plots()) {
            for (const Plotter *linked : each->linked())
                QVERIFY(plots().contains(const_cast<Plotter *>(linked)));
        }
        action("Zoom In")->trigger();
    }
}

void tst_Plots::removingWithoutAnAddedPlotDisablesTheAction()
{
    open({QStringLiteral("Ia")}, {});
    action("&Remove Plotter")->setEnabled(true);
    window->removePlotter();
    QVERIFY(!action("&Remove Plotter")->isEnabled());
    QCOMPARE(plots().size(), 2);
}

void tst_Plots::aRemovedPlotHoldsNeitherKeyboardNorBand()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    Plotter *added = plot(QStringLiteral("Currents"));
    QApplication::setActiveWindow(window.get());
    QMouseEvent move(
        QEvent::MouseMove, QPointF(300, 100), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(added, &move);
    QCOMPARE(QWidget::keyboardGrabber(), added);
    QTest::mousePress(
        analog(), Qt::LeftButton, {}, {300, 100}); // a sibling in the middle of a band
    action("&Remove Plotter")->trigger();
    QVERIFY(!QWidget::keyboardGrabber());
    QTest::mouseRelease(analog(), Qt::LeftButton, {}, {500, 150});
}

void tst_Plots::anAddedPlotStartsAtTheFirstPlotsTime()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    action("Zoom In")->trigger();
    compose({QStringLiteral("Ib")}, QStringLiteral("Currents"));
    QCOMPARE(plot(QStringLiteral("Currents"))->view().maxX, 50.0);
    action("Zoom In")->trigger();
    QCOMPARE(plot(QStringLiteral("Currents"))->view().maxX, analog()->view().maxX);
}

// The bar goes to 2, the zoom sets it to 4, and it goes to 2 again, where the older plots were last
// and so do not move.
void tst_Plots::anAddedPlotScrollsWithTheOthers()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    action("Zoom In")->trigger();
    window->horizontalScrollBar()->setValue(2);
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    action("Zoom In")->trigger();
    window->horizontalScrollBar()->setValue(2);
    for (const Plotter *each : plots())
        QCOMPARE(each->view().minX, 20.0);
}

void tst_Plots::anAddedPlotIsScrolledIntoView()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    for (int i = 0; i < 4; ++i)
        compose({QStringLiteral("Ia")});
    const Plotter *newest = plot(QStringLiteral("Graph 4"));
    QCOMPARE(newest->visibleRegion().boundingRect().size(), newest->size());
}

void tst_Plots::spectrumTracesFollowAngleAndReference()
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

void tst_Plots::vectorDialogGetsPlotAndNames()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    QCOMPARE(texts(window->findChild<VectorDialog *>()->findChild<QComboBox *>(
                 QStringLiteral("comboBox_reference"))),
        QStringList({QStringLiteral("-"), QStringLiteral("Ia"), QStringLiteral("Ib")}));
}

void tst_Plots::aReloadBeginsAnew()
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

void tst_Plots::manyRowsLeaveRoomForTheAnalogPlot()
{
    QStringList rows;
    for (int i = 1; i <= 60; ++i)
        rows.append(QStringLiteral("D%1a").arg(i));
    open({QStringLiteral("Ia")}, rows);
    QCoreApplication::processEvents();
    QCOMPARE(digital()->minimumHeight(), 60 + 41 + 61 * 16);
    QVERIFY(analog()->height() > 290);
}

void tst_Plots::longNamesFitTheWindowAndAreToldInFull()
{
    const QString name = QStringLiteral("Phase current IL1 of the HV side");
    window->resize(1000, 720);
    open({name, QStringLiteral("<b>I0</b>")},
        {QStringLiteral("Trip of the main breaker by stage 2")});
    QCoreApplication::processEvents();
    QVERIFY(combo("comboBox_primSec")->isVisible());
    QVERIFY(combo("comboBox_primSec")->geometry().right() < window->width());
    QVERIFY(combo("comboBox_mainReference")->view()->minimumWidth() > 150);
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

void tst_Plots::slotsWithoutARecordingDoNothing()
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
}

QTEST_MAIN(tst_Plots)
#include "tst_plots.moc"
