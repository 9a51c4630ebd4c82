// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bandpreview.h"
#include "plotpair.h"

#include <QFrame>

#include <memory>
#include <utility>

namespace {

struct Counts {
    int baseLayers = 0;
    int refreshes = 0;
};

template <typename Plot> class Counted : public Plot, public Counts {
public:
    using Plot::Plot;
    void drawCurves(QPainter *painter) override
    {
        ++baseLayers;
        Plot::drawCurves(painter);
    }
    void refreshPixmap() override
    {
        ++refreshes;
        Plot::refreshPixmap();
    }

    double ratio = 1; // of the pixels of the screen to its own

protected:
    int metric(QPaintDevice::PaintDeviceMetric wanted) const override
    {
        return wanted == QPaintDevice::PdmDevicePixelRatioScaled
            ? qRound(ratio * QPaintDevice::devicePixelRatioFScale())
            : Plot::metric(wanted);
    }
};

} // namespace

// Eight linked plots over a recording of a million samples.
class TestPlotterRedraws : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aMoveOfThePointerRedrawsNoBaseLayer();
    void aCursorRedrawsEachPlotOnce();
    void aDragRedrawsNoBaseLayerUntilItEnds();
    void aBandRedrawsNoBaseLayerUntilItEnds_data();
    void aBandRedrawsNoBaseLayerUntilItEnds();
    void aRefreshThatChangesNothingRedrawsNone();
    void aScreenOfAnotherFactorRedrawsEachPlotOnce();
    void aZoomRedrawsEachPlotOnce();
    void aReadoutThatWidensRedrawsEachPlotOnce_data();
    void aReadoutThatWidensRedrawsEachPlotOnce();

private:
    // Of each plot since the last call, the digital one at last.
    QList<int> baseLayers() { return taken(&Counts::baseLayers); }
    QList<int> refreshes() { return taken(&Counts::refreshes); }
    QList<int> taken(int Counts::*count);

    std::unique_ptr<FakePlotHost> host;
    std::unique_ptr<QWidget> area;
    QList<Counted<Plotter> *> analog;
    Counted<plotterDg> *digital = nullptr;
};

void TestPlotterRedraws::init()
{
    constexpr int samples = 1000000;
    QVector<double> times(samples);
    QVector<float> current(samples);
    QVector<int> trip(samples);
    for (int i = 0; i < samples; ++i) {
        times[i] = i;
        current[i] = float(i % 1999 - 999);
        trip[i] = i / 50000 % 2;
    }
    host = std::make_unique<FakePlotHost>();
    host->setTimes(times);
    host->source->durationMs = samples;
    host->source->sampleRate = 1000;
    host->addAnalog(QStringLiteral("Ia"), current);
    host->addDigital(QStringLiteral("Trip"), trip);
    area = std::make_unique<QWidget>();
    area->resize(803, 301);
    QList<Plotter *> plots;
    analog.clear();
    const auto add = [&](Plotter *plot) {
        plot->setMainWindow(host.get());
        plot->resize(803, 301);
        plot->addChannel(0);
        plot->setupPlot();
        plots.append(plot);
    };
    for (int i = 0; i < 7; ++i) {
        analog.append(new Counted<Plotter>(area.get()));
        add(analog.last());
    }
    digital = new Counted<plotterDg>(area.get());
    add(digital);
    for (Plotter *plot : qAsConst(plots)) {
        QList<Plotter *> others = plots;
        others.removeAll(plot);
        plot->setLinkedPlotters(others);
    }
    analog.first()->raise();
    area->show();
    area->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(area.get()));
    (void)baseLayers();
}

void TestPlotterRedraws::cleanup()
{
    area.reset();
    host.reset();
}

QList<int> TestPlotterRedraws::taken(int Counts::*count)
{
    QList<int> counts;
    for (Counted<Plotter> *plot : qAsConst(analog))
        counts.append(std::exchange(plot->*count, 0));
    counts.append(std::exchange(digital->*count, 0));
    return counts;
}

void TestPlotterRedraws::aMoveOfThePointerRedrawsNoBaseLayer()
{
    for (int x = 100; x < 800; x += 10)
        PlotPair::move(analog.first(), {x, 150});
    QTest::qWait(20);
    QCOMPARE(baseLayers(), QList<int>({0, 0, 0, 0, 0, 0, 0, 0}));
    QVERIFY(digital->findChild<QFrame *>(QStringLiteral("timeline"))->isVisibleTo(digital));
}

// The digital plot has no readout that would grow.
void TestPlotterRedraws::aCursorRedrawsEachPlotOnce()
{
    QTest::mouseDClick(analog.first(), Qt::LeftButton, {}, {300, 150});
    QCOMPARE(digital->cursors().size(), 1);
    QTest::qWait(20);
    QCOMPARE(baseLayers(), QList<int>({1, 1, 1, 1, 1, 1, 1, 0}));
}

void TestPlotterRedraws::aDragRedrawsNoBaseLayerUntilItEnds()
{
    QTest::mouseDClick(analog.first(), Qt::LeftButton, {}, {300, 150});
    (void)baseLayers();
    const QPoint grip = PlotPair::lineLabels(analog.first()).first()->geometry().center();
    QTest::mousePress(analog.first(), Qt::LeftButton, {}, grip);
    for (int x = 310; x < 600; x += 10)
        PlotPair::move(analog.first(), {x, 80}, Qt::LeftButton);
    QCOMPARE(baseLayers(), QList<int>({0, 0, 0, 0, 0, 0, 0, 0}));
    QTest::mouseRelease(analog.first(), Qt::LeftButton, {}, {590, 80});
    QCOMPARE(baseLayers(), QList<int>({1, 1, 1, 1, 1, 1, 1, 0}));
}

void TestPlotterRedraws::aBandRedrawsNoBaseLayerUntilItEnds_data()
{
    QTest::addColumn<bool>("isDigital");
    QTest::newRow("analog") << false;
    QTest::newRow("digital") << true;
}

void TestPlotterRedraws::aBandRedrawsNoBaseLayerUntilItEnds()
{
    QFETCH(bool, isDigital);
    Plotter *plot = isDigital ? static_cast<Plotter *>(digital) : analog.first();
    plot->raise();
    QTest::mousePress(plot, Qt::LeftButton, {}, {200, 100});
    (void)refreshes();
    for (int x = 210; x < 600; x += 10) {
        PlotPair::move(plot, {x, 200}, Qt::LeftButton);
        QTest::qWait(1);
    }
    QVERIFY(plot->findChild<BandPreview *>()->isVisible());
    QCOMPARE(baseLayers(), QList<int>({0, 0, 0, 0, 0, 0, 0, 0}));
    QCOMPARE(refreshes(), QList<int>({0, 0, 0, 0, 0, 0, 0, 0}));
    QTest::mouseRelease(plot, Qt::LeftButton, {}, {590, 200});
    QCOMPARE(baseLayers(), QList<int>({1, 1, 1, 1, 1, 1, 1, 1}));
}

void TestPlotterRedraws::aRefreshThatChangesNothingRedrawsNone()
{
    analog.first()->zoomIn();
    QCOMPARE(baseLayers(), QList<int>({0, 0, 0, 0, 0, 0, 0, 0}));
}

void TestPlotterRedraws::aScreenOfAnotherFactorRedrawsEachPlotOnce()
{
    const auto moveToScreen = [&](double ratio) {
        const auto move = [&](auto *plot) {
            plot->ratio = ratio;
            QEvent event(QEvent::ScreenChangeInternal);
            QCoreApplication::sendEvent(plot, &event);
        };
        for (Counted<Plotter> *plot : qAsConst(analog))
            move(plot);
        move(digital);
    };
    for (const double ratio : {1.5, 1.25, 1.5, 1.0}) {
        moveToScreen(ratio);
        QCOMPARE(baseLayers(), (QList<int>{1, 1, 1, 1, 1, 1, 1, 1}));
        moveToScreen(ratio); // another screen of the same factor
        QCOMPARE(baseLayers(), (QList<int>{0, 0, 0, 0, 0, 0, 0, 0}));
    }
}

void TestPlotterRedraws::aZoomRedrawsEachPlotOnce()
{
    analog.first()->customZoomIn();
    QCOMPARE(baseLayers(), QList<int>({1, 1, 1, 1, 1, 1, 1, 1}));
}

// The plots turn to channels whose names grow from plot to plot, so that each needs more room than
// the one before; none is told of the others.
void TestPlotterRedraws::aReadoutThatWidensRedrawsEachPlotOnce_data()
{
    QTest::addColumn<int>("first"); // to be refreshed
    QTest::addColumn<bool>("all"); // whether all of them turn, or the first alone
    QTest::newRow("one of the plots") << 0 << false;
    QTest::newRow("all plots, the narrowest first") << 0 << true;
    QTest::newRow("all plots, one in the middle first") << 3 << true;
    QTest::newRow("all plots, the widest first") << 6 << true;
}

void TestPlotterRedraws::aReadoutThatWidensRedrawsEachPlotOnce()
{
    QFETCH(int, first);
    QFETCH(bool, all);
    for (int i = 1; i <= 7; ++i)
        host->addAnalog(QString(9 + 3 * i, QLatin1Char('M')), QVector<float>(1000, 1));
    analog.first()->addCursorAt(300);
    const int width = analog.first()->geometryOfView().readoutWidth();
    (void)baseLayers();
    (void)refreshes();
    for (int i = 0; i < 7; ++i) {
        if (all || i == first)
            analog.at(i)->showChannels({i + 1});
    }
    analog.at(first)->refreshPixmap();
    QVERIFY(analog.first()->geometryOfView().readoutWidth() > width);
    QCOMPARE(refreshes(), QList<int>({1, 1, 1, 1, 1, 1, 1, 0}));
    QCOMPARE(baseLayers(), QList<int>({1, 1, 1, 1, 1, 1, 1, 0}));
    for (Plotter *plot : qAsConst(analog))
        plot->refreshPixmap();
    QCOMPARE(baseLayers(), QList<int>({0, 0, 0, 0, 0, 0, 0, 0}));
    for (const Plotter *plot : qAsConst(analog))
        QCOMPARE(
            plot->geometryOfView().readoutWidth(), analog.first()->geometryOfView().readoutWidth());
}

QTEST_MAIN(TestPlotterRedraws)
#include "tst_plotter_redraws.moc"
