// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fakeplothost.h"
#include "plotter.h"
#include "plottitle.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

namespace {

using Ends = QVector<double>;

class CountingPlotter : public Plotter {
    Q_OBJECT

public:
    using Plotter::Plotter;
    void refreshPixmap() override
    {
        ++refreshes;
        Plotter::refreshPixmap();
    }
    void drawGrid(QPainter *painter) override
    {
        ++draws;
        Plotter::drawGrid(painter);
    }
    int refreshes = 0;
    int draws = 0; // of the base layer
};

// The view to nine decimals: steps such as 0.3 are no exact doubles.
Ends ends(const PlotSettings &view)
{
    Ends result{view.minX, view.maxX, view.numXTicks, view.minY, view.maxY, view.numYTicks};
    for (double &end : result)
        end = std::round(end * 1e9) / 1e9;
    return result;
}

QVector<double> milliseconds(int count)
{
    QVector<double> times(count);
    for (int i = 0; i < count; ++i)
        times[i] = i;
    return times;
}

} // namespace

// A host of 800 x 301 with two plots over one another: a plot area 697 wide and 200 high. The
// recording lasts 1000 ms and has the channels Ia (-10 to 10 A) and Ua (0 to 4 V).
class TestPlotter : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void slotsStandInTheirOrder();
    void setupPlot();
    void fullView_data();
    void fullView();
    void spectrumReachesFromZeroToItsMaximum_data();
    void spectrumReachesFromZeroToItsMaximum();
    void anUnknownReferenceChannelIsNone();

    void zoomInHalvesTheTimeOfAllPlots();
    void zoomOutDoublesIt();
    void zoomsForOnePlotLeaveTheOthers();
    void verticalZoomKeepsTheCentre();
    void resetShowsTheFullViewAgain();
    void zoomInRefreshesAllPlotsOnce();
    void zoomOutAtLevelZeroDoesNothing();
    void someSlotsRefreshThisPlotOnly_data();
    void someSlotsRefreshThisPlotOnly();

    void scrollBarIsRangedAfterAZoom();
    void theScrollBarGoesBeyondTwiceTheDuration_data();
    void theScrollBarGoesBeyondTwiceTheDuration();
    void scrollingMovesByThePosition();
    void scrollingToTheLastPositionDoesNothing();

    void plotsAreTakenOutByName_data();
    void plotsAreTakenOutByName();
    void aNewPlotTakesOverTheTimeRange();
    void changedFactorsKeepTheTraceInPlace();
    void resetPlotEmptiesThePlot();
    void aPlotWithoutHostSurvivesEverything();

    void aPlotWithoutParentDraws();
    void gridAndTraceStandWhereTheViewSays();
    void triggerStandsAtItsTime();
    void channelLabels();
    void channelsAreNamedInTheOrderOfTheirAdding();
    void channelLabelsShareTheRoom();
    void spectrumLabelAndColour();
    void longTitlesShowTheirBeginning();
    void namesAreNoMarkUp();
    void anUnchangedBaseLayerIsNotDrawnAgain();
    void aPaintOnlyCopiesTheLayers();

private:
    Plotter *linkedPair();

    std::unique_ptr<FakePlotHost> host;
    std::unique_ptr<QWidget> area;
    CountingPlotter *plot = nullptr;
    CountingPlotter *other = nullptr;
};

void TestPlotter::init()
{
    host = std::make_unique<FakePlotHost>();
    host->setTimes(milliseconds(1001));
    host->source->durationMs = 1000;
    host->source->triggerOffsetMs = 250;
    QVector<float> current(1001, 0.0F);
    current[100] = -10;
    current[200] = 10;
    QVector<float> voltage(1001, 0.0F);
    voltage[300] = 4;
    host->addAnalog(QStringLiteral("Ia"), current);
    host->addAnalog(QStringLiteral("Ua"), voltage, QStringLiteral("V"));

    area = std::make_unique<QWidget>();
    area->resize(800, 301);
    for (CountingPlotter **created : {&plot, &other}) {
        *created = new CountingPlotter(area.get());
        (*created)->setMainWindow(host.get());
        (*created)->resize(800, 301);
        (*created)->addChannel(0);
    }
    plot->setName(QStringLiteral("Analog"));
    other->setName(QStringLiteral("Graph 1"));
    plot->setLinkedPlotters({other});
    other->setLinkedPlotters({plot});
    plot->setupPlot();
    other->setupPlot();
    area->show();
    QVERIFY(QTest::qWaitForWindowExposed(area.get()));
    plot->raise();
    plot->refreshes = 0;
    other->refreshes = 0;
}

void TestPlotter::cleanup()
{
    area.reset();
    host.reset();
}

void TestPlotter::construction()
{
    QCOMPARE(plot->objectName(), QStringLiteral("Plotter"));
    QVERIFY(plot->hasMouseTracking());
    QCOMPARE(plot->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(plot->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(plot->sizeHint(), QSize(600, 400));
    QCOMPARE(plot->minimumSizeHint(), QSize(300, 200));
    QCOMPARE(plot->styleSheet(),
        QStringLiteral("Plotter{background-color: #313034; border: 2px outset qlineargradient(x1: "
                       "0, y1: 0, x2: 0, y2: 1, stop: 0 #616064, stop: 1 #313034);}"));

    const auto *title = plot->findChild<QLabel *>(QStringLiteral("Plotter Label"));
    QVERIFY(title);
    QCOMPARE(
        title->styleSheet(), QStringLiteral("QLabel{border: 1px solid #00b9f2; color:white;}"));
    const auto *time = plot->findChild<QLabel *>(QStringLiteral("timelabel"));
    QVERIFY(time);
    QCOMPARE(time->styleSheet(), QStringLiteral("QLabel{color: white;}"));
    const auto *line = plot->findChild<QFrame *>(QStringLiteral("timeline"));
    QVERIFY(line);
    QCOMPARE(line->frameShape(), QFrame::VLine);
    QCOMPARE(line->frameShadow(), QFrame::Plain);
    QCOMPARE(line->styleSheet(), QStringLiteral("QFrame{color: white; border-color: white;}"));
    for (const QString &name : {QStringLiteral("startMarker"), QStringLiteral("endMarker")}) {
        const auto *marker = plot->findChild<QFrame *>(name);
        QVERIFY(marker);
        QVERIFY(!marker->isVisible());
        QCOMPARE(marker->styleSheet(), QStringLiteral("QFrame{color: red; border-color: red;}"));
    }
    const auto *editor = plot->findChild<QLineEdit *>();
    QVERIFY(editor);
    QVERIFY(!editor->isVisible());
    QVERIFY(editor->windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(plot->cursors().isEmpty());
}

void TestPlotter::slotsStandInTheirOrder()
{
    QStringList names;
    const QMetaObject &meta = Plotter::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(names,
        QStringList({QStringLiteral("zoomIn()"), QStringLiteral("zoomIn2()"),
            QStringLiteral("zoomOut()"), QStringLiteral("zoomOut2()"),
            QStringLiteral("scrolling(int)"), QStringLiteral("customZoomIn()"),
            QStringLiteral("customZoomOut()"), QStringLiteral("customResetZoom()"),
            QStringLiteral("customZoomIn2()"), QStringLiteral("customZoomOut2()"),
            QStringLiteral("labelEditFinished()"), QStringLiteral("labelEditConfirm()"),
            QStringLiteral("customVZoomIn()"), QStringLiteral("customVZoomOut()"),
            QStringLiteral("customVZoomIn2()"), QStringLiteral("customVZoomOut2()"),
            QStringLiteral("refreshSlot()"), QStringLiteral("setStartPoint(double)"),
            QStringLiteral("setEndPoint(double)"), QStringLiteral("clearSaveMarkers()")}));
}

void TestPlotter::setupPlot()
{
    QCOMPARE(ends(plot->home()), Ends({0, 1000, 10, -12, 12, 8}));
    QCOMPARE(ends(plot->view()), ends(plot->home()));
    const auto *title = plot->findChild<QLabel *>(QStringLiteral("Plotter Label"));
    QCOMPARE(title->text(), QStringLiteral("Analog Plotter"));
    QCOMPARE(title->geometry(), QRect(70, 20, 100, 20));
    QVERIFY(title->isVisible());
}

void TestPlotter::fullView_data()
{
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<QVector<float>>("values");
    QTest::addColumn<double>("factor");
    QTest::addColumn<Ends>("expected");
    using Values = QVector<float>;
    constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("positive values begin at zero")
        << Ends{0, 100} << Values{2, 10} << 1.0 << Ends{0, 100, 10, 0, 10, 10};
    QTest::newRow("the first time need not be zero")
        << Ends{72.5, 105} << Values{-10, 10} << 1.0 << Ends{70, 105, 7, -12, 12, 8};
    QTest::newRow("times that run back")
        << Ends{50, 100, 0, 20} << Values{0, 0, 0, 10} << 1.0 << Ends{0, 100, 10, 0, 10, 10};
    QTest::newRow("the factor scales the values")
        << Ends{0, 100} << Values{0, 1} << 400.0 << Ends{0, 100, 10, 0, 400, 4};
    QTest::newRow("a negative factor turns them over")
        << Ends{0, 100} << Values{0, 10} << -1.0 << Ends{0, 100, 10, -10, 0, 10};
    QTest::newRow("an infinite factor is passed over")
        << Ends{0, 100} << Values{0, 10} << double(INFINITY) << Ends{0, 100, 10, -1.2, 1.2, 8};
    QTest::newRow("values that are no numbers are passed over")
        << Ends{0, 100} << Values{notANumber, 10} << 1.0 << Ends{0, 100, 10, 0, 10, 10};
    QTest::newRow("an infinite value costs the others nothing")
        << Ends{0, 100, 200} << Values{-10, INFINITY, 4} << 1.0 << Ends{0, 210, 7, -12, 6, 6};
    QTest::newRow("a flat range is widened")
        << Ends{0, 100} << Values{0, 0} << 1.0 << Ends{0, 100, 10, -1.2, 1.2, 8};
    QTest::newRow("one sample") << Ends{0} << Values{0} << 1.0 << Ends{-1.2, 1.2, 8, -1.2, 1.2, 8};
}

void TestPlotter::fullView()
{
    QFETCH(QVector<double>, times);
    QFETCH(QVector<float>, values);
    QFETCH(double, factor);
    FakePlotHost fresh;
    fresh.setTimes(times);
    fresh.addAnalog(QStringLiteral("X"), values)->toPrimary = factor;
    Plotter single(area.get());
    single.setMainWindow(&fresh);
    single.addChannel(0);
    single.setupPlot();
    QTEST(ends(single.home()), "expected");
}

void TestPlotter::spectrumReachesFromZeroToItsMaximum_data()
{
    QTest::addColumn<bool>("angles");
    QTest::addColumn<int>("reference");
    QTest::addColumn<double>("maxY");
    QTest::newRow("magnitude alone") << false << 0 << 10.0;
    QTest::newRow("with its angle in degrees") << true << 0 << 400.0;
    QTest::newRow("with its angle against a reference") << true << 2 << 10.0;
}

void TestPlotter::spectrumReachesFromZeroToItsMaximum()
{
    QFETCH(bool, angles);
    QFETCH(int, reference);
    AnalogChannel *current = host->source->analogChannels[0];
    current->fftMagnitudes = QVector<float>(1001, 10.0F);
    current->fftAngles = QVector<float>(1001, 0.0F);
    current->maxMagnitude = 10;
    host->angles = angles;
    host->reference = reference;
    Plotter single(area.get());
    single.setMainWindow(host.get());
    single.addChannel(2);
    single.setupPlot();
    QCOMPARE(single.home().minY, 0.0);
    QTEST(single.home().maxY, "maxY");
}

void TestPlotter::anUnknownReferenceChannelIsNone()
{
    host->angles = true;
    host->reference = 99;
    plot->addChannel(3);
    plot->setupPlot();
    plot->refreshPixmap();
    QCOMPARE(plot->home().maxY, 400.0); // degrees
}

void TestPlotter::zoomInHalvesTheTimeOfAllPlots()
{
    plot->customZoomIn();
    QCOMPARE(ends(plot->view()), Ends({0, 500, 5, -12, 12, 8}));
    QCOMPARE(ends(other->view()), Ends({0, 500, 5, -12, 12, 8}));
}

void TestPlotter::zoomOutDoublesIt()
{
    plot->customZoomOut();
    QCOMPARE(ends(plot->view()), Ends({0, 2100, 7, -12, 12, 8}));
    QCOMPARE(ends(other->view()), Ends({0, 2100, 7, -12, 12, 8}));
}

void TestPlotter::zoomsForOnePlotLeaveTheOthers()
{
    plot->customZoomIn2();
    QCOMPARE(plot->view().maxX, 500.0);
    QCOMPARE(other->view().maxX, 1000.0);
    QCOMPARE(other->refreshes, 0);
    plot->customZoomOut2();
    QCOMPARE(plot->view().maxX, 1000.0);
    plot->customVZoomIn2();
    QCOMPARE(other->view().maxY, 12.0);
    QCOMPARE(other->refreshes, 0);
}

// The view moved up by two intervals of 3 has its centre at 6; half of -12 to 12 is -6 to 6.
void TestPlotter::verticalZoomKeepsTheCentre()
{
    QWheelEvent wheel({300, 150}, plot->mapToGlobal(QPoint(300, 150)), {}, {0, 240}, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(plot, &wheel);
    QCOMPARE(plot->view().minY, -6.0);
    QCOMPARE(plot->view().maxY, 18.0);
    plot->customVZoomIn();
    QCOMPARE(plot->view().minY, 0.0);
    QCOMPARE(plot->view().maxY, 12.0);
    QCOMPARE(plot->view().numYTicks, 12.0);
    plot->customVZoomOut(); // -12 to 12 in steps of 5 is -15 to 15
    QCOMPARE(plot->view().minY, -9.0);
    QCOMPARE(plot->view().maxY, 21.0);
    QCOMPARE(other->view().maxY, 12.0);
}

void TestPlotter::resetShowsTheFullViewAgain()
{
    plot->customZoomIn();
    plot->customVZoomIn();
    plot->scrolling(2);
    plot->refreshes = 0;
    other->refreshes = 0;
    plot->customResetZoom();
    QCOMPARE(ends(plot->view()), ends(plot->home()));
    QCOMPARE(plot->refreshes, 1);
    QCOMPARE(other->refreshes, 1);
    plot->customZoomIn();
    QCOMPARE(plot->view().maxX, 500.0);
}

void TestPlotter::zoomInRefreshesAllPlotsOnce()
{
    plot->setLinkedPlotters({other, plot});
    plot->zoomIn();
    QCOMPARE(plot->refreshes, 1);
    QCOMPARE(other->refreshes, 1);
}

void TestPlotter::zoomOutAtLevelZeroDoesNothing()
{
    plot->zoomOut();
    plot->zoomOut2();
    QCOMPARE(plot->refreshes, 0);
    QCOMPARE(other->refreshes, 0);
}

void TestPlotter::someSlotsRefreshThisPlotOnly_data()
{
    QTest::addColumn<QByteArray>("slot");
    for (const char *slot : {"refreshSlot", "zoomIn2"})
        QTest::newRow(slot) << QByteArray(slot);
}

void TestPlotter::someSlotsRefreshThisPlotOnly()
{
    QFETCH(QByteArray, slot);
    const int before = host->vectorRefreshes;
    QVERIFY(QMetaObject::invokeMethod(plot, slot.constData()));
    QCOMPARE(plot->refreshes, 1);
    QCOMPARE(other->refreshes, 0);
    QCOMPARE(host->vectorRefreshes, before + 1);
}

// After zooming in, an interval is 100 ms; twice the duration, to the hundred, and 100 make 2100
// ms.
void TestPlotter::scrollBarIsRangedAfterAZoom()
{
    QCOMPARE(host->bar->maximum(), 99);
    host->bar->setRange(0, 0);
    QSignalSpy moved(host->bar.get(), &QScrollBar::valueChanged);
    plot->customZoomIn();
    QCOMPARE(host->bar->minimum(), 0);
    QCOMPARE(host->bar->maximum(), 16);
    QCOMPARE(host->bar->value(), 0);
    QVERIFY(moved.isEmpty());

    plot->scrolling(2); // 200 to 700 ms
    plot->customZoomIn(); // 200 to 450 ms, intervals of 50 ms
    QCOMPARE(plot->view().minX, 200.0);
    QCOMPARE(plot->view().maxX, 450.0);
    QCOMPARE(host->bar->maximum(), 33);
    QCOMPARE(host->bar->value(), 4);
    QVERIFY(moved.isEmpty());
}

void TestPlotter::theScrollBarGoesBeyondTwiceTheDuration_data()
{
    QTest::addColumn<int>("duration");
    QTest::addColumn<int>("position"); // of the bar before
    QTest::addColumn<int>("last"); // of intervals of 100 ms, from 500 ms on
    QTest::newRow("to the hundred and 100 ms more") << 1000 << 0 << 16;
    QTest::newRow("rounded down to it") << 1049 << 0 << 16;
    QTest::newRow("the next hundred") << 1050 << 0 << 17;
    QTest::newRow("as much further as the bar stood") << 1000 << 3 << 19;
}

void TestPlotter::theScrollBarGoesBeyondTwiceTheDuration()
{
    QFETCH(int, duration);
    QFETCH(int, position);
    host->source->durationMs = duration;
    host->bar->setRange(0, position);
    host->bar->setValue(position);
    plot->customZoomIn();
    QTEST(host->bar->maximum(), "last");
}

void TestPlotter::scrollingMovesByThePosition()
{
    plot->scrolling(3);
    QCOMPARE(plot->view().minX, 300.0);
    QCOMPARE(plot->view().maxX, 1300.0);
    QCOMPARE(plot->refreshes, 1);
    QCOMPARE(other->view().minX, 0.0);
    plot->scrolling(1); // the position itself, not the change of it
    QCOMPARE(plot->view().minX, 400.0);
}

void TestPlotter::scrollingToTheLastPositionDoesNothing()
{
    plot->scrolling(0);
    QCOMPARE(plot->refreshes, 0);
    plot->scrolling(3);
    plot->scrolling(3);
    QCOMPARE(plot->refreshes, 1);
    QCOMPARE(plot->view().minX, 300.0);
}

void TestPlotter::plotsAreTakenOutByName_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QStringList>("left");
    const auto list = [](const char *names) {
        return QString::fromLatin1(names).split(QLatin1Char(','), Qt::SkipEmptyParts);
    };
    QTest::newRow("the one of that name") << list("a,b,c") << "b" << list("a,c");
    QTest::newRow("the last of that name") << list("a,b,a,c") << "a" << list("a,b,c");
    QTest::newRow("the first where none has it") << list("a,b,c") << "x" << list("b,c");
    QTest::newRow("nothing from an empty list") << list("") << "x" << list("");
}

void TestPlotter::plotsAreTakenOutByName()
{
    QFETCH(QStringList, names);
    QFETCH(QString, removed);
    QList<Plotter *> plotters;
    for (const QString &name : qAsConst(names)) {
        plotters.append(new Plotter(area.get()));
        plotters.last()->setName(name);
    }
    plot->setLinkedPlotters(plotters);
    plot->removeLinkedPlotter(removed);
    QStringList left;
    for (const Plotter *linked : plot->linked())
        left.append(linked->name());
    QTEST(left, "left");
    if (QByteArray(QTest::currentDataTag()) == "the last of that name")
        QCOMPARE(plot->linked().first(), plotters.first());
}

void TestPlotter::aNewPlotTakesOverTheTimeRange()
{
    plot->customZoomIn();
    plot->scrolling(2);
    CountingPlotter added(area.get());
    added.setMainWindow(host.get());
    added.addChannel(1);
    added.setupPlot();
    added.followFromNowOn(*plot);
    QCOMPARE(ends(added.view()), Ends({200, 700, 5, 0, 4, 4}));
    added.customZoomIn2(); // from the shared half to a quarter
    QCOMPARE(added.view().maxX, 450.0);
}

// With a factor of 100 instead of 1 all values are 100 times as large, and so is the zoomed view.
void TestPlotter::changedFactorsKeepTheTraceInPlace()
{
    host->source->analogChannels[0]->toSecondary = 100;
    plot->customZoomIn();
    plot->customVZoomIn();
    host->mode = 1;
    plot->rescaleValues();
    QCOMPARE(ends(plot->view()), Ends({0, 500, 5, -600, 600, 12}));
    QCOMPARE(ends(plot->home()), Ends({0, 1000, 10, -1200, 1200, 8}));
    plot->customVZoomOut();
    QCOMPARE(plot->view().maxY, 1500.0);
    plot->customResetZoom();
    QCOMPARE(ends(plot->view()), Ends({0, 1000, 10, -1200, 1200, 8}));
}

void TestPlotter::resetPlotEmptiesThePlot()
{
    plot->addCursor(300, 100);
    plot->customZoomIn();
    plot->scrolling(3);
    plot->resetPlot();
    QCOMPARE(Plotter::shared().timeZoom, 1.0); // plots to come begin at the full view
    QVERIFY(plot->channels().isEmpty());
    QVERIFY(plot->cursors().isEmpty());
    QCOMPARE(ends(plot->view()), Ends({0, 0, 4, 0, 0, 4}));
    plot->refreshPixmap();
    QVERIFY(plot->findChildren<QLabel *>(QStringLiteral("channelLabel")).isEmpty());
    plot->addChannel(0);
    plot->setupPlot();
    plot->scrolling(3); // the last position is forgotten
    QCOMPARE(plot->view().minX, 300.0);
}

void TestPlotter::aPlotWithoutHostSurvivesEverything()
{
    Plotter alone(area.get());
    QObject stranger;
    for (const bool isSetUp : {false, true}) {
        alone.setMainWindow(isSetUp ? &stranger : nullptr);
        if (isSetUp) {
            alone.addChannel(0);
            alone.setupPlot();
        }
        const QMetaObject &meta = Plotter::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod slot = meta.method(i);
            if (slot.parameterCount() == 0)
                QVERIFY(slot.invoke(&alone));
        }
        alone.scrolling(4);
        alone.setStartPoint(1);
        alone.setEndPoint(2);
        alone.applyRubberBand();
        alone.addCursor(200, 100);
        alone.rescaleValues();
        alone.show();
        for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Left, Qt::Key_Up})
            QTest::keyClick(&alone, key);
        QTest::mouseMove(&alone, {300, 150});
        QTest::mouseDClick(&alone, Qt::LeftButton, {}, {300, 150});
        alone.grab();
        alone.resetPlot();
    }
}

void TestPlotter::aPlotWithoutParentDraws()
{
    Plotter alone(nullptr);
    alone.setMainWindow(host.get());
    alone.addChannel(0);
    alone.setupPlot();
    alone.resize(800, 301);
    QCOMPARE(alone.grab().toImage().pixel(135, 160), qRgb(245, 30, 18));
}

void TestPlotter::gridAndTraceStandWhereTheViewSays()
{
    const QImage image = plot->grab().toImage();
    const QRgb grid = qRgb(150, 150, 150);
    const QRgb red = qRgb(245, 30, 18);
    QCOMPARE(image.pixel(100 + 70, 75), grid); // 100 ms
    QCOMPARE(image.pixel(100 + 490, 75), grid); // 700 ms
    QCOMPARE(image.pixel(135, 60 + 25), grid); // value 9
    QCOMPARE(image.pixel(135, 60 + 175), grid); // value -9
    QCOMPARE(image.pixel(100, 200), qRgb(255, 255, 255)); // frame
    QCOMPARE(image.pixel(797, 200), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(400, 60), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(400, 260), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(135, 160), red); // value 0
    QCOMPARE(image.pixel(170, 243), red); // -10 at 100 ms
    QCOMPARE(image.pixel(240, 77), red); // 10 at 200 ms
    QCOMPARE(image.pixel(400, 75), qRgb(0x31, 0x30, 0x34)); // background
}

void TestPlotter::triggerStandsAtItsTime()
{
    const auto isDashed = [this](int x) {
        const QImage image = plot->grab().toImage();
        int white = 0;
        for (int y = 70; y < 240; ++y)
            white += image.pixel(x, y) == qRgb(255, 255, 255);
        return white > 60 && white < 170;
    };
    QVERIFY(isDashed(275)); // 250 ms
    host->source->triggerOffsetMs = 1500;
    plot->refreshPixmap();
    QVERIFY(!isDashed(275));
    host->source->triggerOffsetMs = 0;
    plot->scrolling(1); // the trigger is left of the view
    QVERIFY(!isDashed(100 - 70));
}

void TestPlotter::channelLabels()
{
    plot->addChannel(1);
    plot->refreshPixmap();
    const QList<QLabel *> labels = plot->findChildren<QLabel *>(QStringLiteral("channelLabel"));
    QCOMPARE(labels.size(), 2);
    QCOMPARE(labels[0]->text(), QStringLiteral("Ia(A)"));
    QCOMPARE(labels[1]->text(), QStringLiteral("Ua(V)"));
    QCOMPARE(labels[0]->font().weight(), 75);
    QCOMPARE(labels[0]->palette().color(labels[0]->foregroundRole()), QColor(245, 30, 18));
    QCOMPARE(labels[1]->palette().color(labels[1]->foregroundRole()), QColor(220, 220, 0));
    QCOMPARE(labels[0]->x(), 180);
    QCOMPARE(labels[0]->y(), 20);
    QCOMPARE(labels[1]->x(), labels[0]->geometry().right() + 11);
    QCOMPARE(labels[0]->toolTip(), QStringLiteral("Ia(A)\nA\nline"));
    QVERIFY(labels[0]->isVisible());

    plot->showChannels({1});
    plot->refreshPixmap();
    const QList<QLabel *> left = plot->findChildren<QLabel *>(QStringLiteral("channelLabel"));
    QCOMPARE(left.size(), 1);
    QCOMPARE(left[0]->text(), QStringLiteral("Ua(V)"));
    QCOMPARE(left[0]->palette().color(left[0]->foregroundRole()), QColor(220, 220, 0));
}

void TestPlotter::channelsAreNamedInTheOrderOfTheirAdding()
{
    plot->showChannels({1, 0});
    plot->setupPlot();
    plot->addCursor(300, 100);
    QCOMPARE(plot->channels(), QList<int>({1, 0}));
    const QList<QLabel *> labels = plot->findChildren<QLabel *>(QStringLiteral("channelLabel"));
    QCOMPARE(labels.size(), 2);
    QCOMPARE(labels[0]->text(), QStringLiteral("Ua(V)"));
    QCOMPARE(labels[1]->text(), QStringLiteral("Ia(A)"));
    QCOMPARE(labels[0]->palette().color(labels[0]->foregroundRole()), QColor(220, 220, 0));

    plot->showChannels({0, 1}); // the same channels, the other way round
    plot->refreshPixmap();
    QCOMPARE(labels[0]->text(), QStringLiteral("Ia(A)"));
}

void TestPlotter::channelLabelsShareTheRoom()
{
    for (int i = 2; i < 22; ++i) {
        host->addAnalog(
            QStringLiteral("A channel with a long name %1").arg(i), QVector<float>(1001));
        plot->addChannel(i);
    }
    plot->refreshPixmap();
    const QList<QLabel *> labels = plot->findChildren<QLabel *>(QStringLiteral("channelLabel"));
    QCOMPARE(labels.size(), 21);
    for (int i = 1; i < labels.size(); ++i)
        QVERIFY(labels[i]->x() > labels[i - 1]->geometry().right());
    QVERIFY(labels.last()->geometry().right() < 800);
    QVERIFY(
        labels.last()->toolTip().startsWith(QStringLiteral("A channel with a long name 21(A)")));
}

// Two channels and the spectra of both: the trace at position 2 has the colour 2 + 2, not that of
// its waveform.
void TestPlotter::spectrumLabelAndColour()
{
    plot->addChannel(1);
    plot->addChannel(2);
    plot->addChannel(3);
    plot->refreshPixmap();
    const QList<QLabel *> labels = plot->findChildren<QLabel *>(QStringLiteral("channelLabel"));
    QCOMPARE(labels.size(), 4);
    QCOMPARE(labels[2]->text(), QStringLiteral("Ia(A)_FFT"));
    QCOMPARE(labels[3]->text(), QStringLiteral("Ua(V)_FFT"));
    QCOMPARE(labels[2]->palette().color(labels[2]->foregroundRole()), QColor(223, 105, 209));
    QCOMPARE(labels[3]->palette().color(labels[3]->foregroundRole()), QColor(250, 140, 20));
}

void TestPlotter::namesAreNoMarkUp()
{
    auto *title = plot->findChild<PlotTitle *>(QStringLiteral("Plotter Label"));
    title->setTitle(QStringLiteral("<b>x</b>"));
    QCOMPARE(title->text(), QStringLiteral("<b>x</b>"));
    QCOMPARE(title->textFormat(), Qt::PlainText);
    host->source->analogChannels[1]->id = QStringLiteral("<i>Ua</i>");
    plot->addChannel(1);
    plot->refreshPixmap();
    const QList<QLabel *> labels = plot->findChildren<QLabel *>(QStringLiteral("channelLabel"));
    QCOMPARE(labels[1]->textFormat(), Qt::PlainText);
    QVERIFY(labels[1]->toolTip().startsWith(QStringLiteral("&lt;i&gt;Ua&lt;/i&gt;(V)")));
}

// A zoom refreshes each plot through every plot that is linked to it.
void TestPlotter::anUnchangedBaseLayerIsNotDrawnAgain()
{
    const int before = plot->draws;
    plot->refreshPixmap();
    QCOMPARE(plot->draws, before);
    plot->customZoomIn();
    QCOMPARE(plot->draws, before + 1);
    QCOMPARE(other->view().maxX, 500.0);
    const int atZoom = other->draws;
    other->refreshPixmap();
    QCOMPARE(other->draws, atZoom);
    for (const auto &change :
        {std::function<void()>([&] { plot->addChannel(1); }), std::function<void()>([&] {
             host->mode = 2;
             host->source->analogChannels[0]->ps = QStringLiteral("P");
             host->source->analogChannels[0]->primary = 5;
         }),
            std::function<void()>([&] { host->source->triggerOffsetMs = 3; }),
            std::function<void()>([&] { plot->resize(790, 301); }),
            std::function<void()>([&] { plot->addCursor(300, 100); })}) {
        const int last = plot->draws;
        change();
        plot->refreshPixmap();
        QCOMPARE(plot->draws, last + 1);
    }
}

void TestPlotter::longTitlesShowTheirBeginning()
{
    auto *title = plot->findChild<PlotTitle *>(QStringLiteral("Plotter Label"));
    title->setTitle(QStringLiteral("Feeder currents before and after the fault"));
    QCOMPARE(title->text(), QStringLiteral("Feeder currents before and after the fault"));
    QCOMPARE(title->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(title->toolTip(), QStringLiteral("Feeder currents before and after the fault"));
    title->setTitle(QStringLiteral("I"));
    QCOMPARE(title->text(), QStringLiteral("I"));
    QCOMPARE(title->alignment(), Qt::AlignCenter);
    QVERIFY(title->toolTip().isEmpty());
}

void TestPlotter::aPaintOnlyCopiesTheLayers()
{
    plot->repaint();
    plot->grab();
    QCOMPARE(plot->refreshes, 0);
}

QTEST_MAIN(TestPlotter)
#include "tst_plotter.moc"
