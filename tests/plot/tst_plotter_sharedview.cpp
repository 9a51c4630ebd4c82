// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotpair.h"
#include "viewends.h"

#include <QtTest>

#include <functional>
#include <memory>

using Operation = std::function<void(Plotter *)>;
Q_DECLARE_METATYPE(Operation)

namespace {

// What the zooms of one plot leave for all.
struct Shared {
    Ends view = ends(Plotter::shared().analog);
    double time = rounded(Plotter::shared().timeZoom);
    double value = rounded(Plotter::shared().valueZoom);
};

void zoomThrice(Plotter *plot)
{
    for (int i = 0; i < 3; ++i) {
        plot->customZoomIn();
        plot->customVZoomIn();
    }
}

void dragBand(Plotter *plot)
{
    PlotPair::drag(plot, {191, 100}, {543, 200});
}

} // namespace

// Each row begins with plots in full view, 0 to 1000 ms and -12 to 12, digital 0 to 1, and with a
// shared view of 0 to 250 ms and -3 to 3 and shared zooms of a quarter, which no row ends with.
class TestPlotterSharedView : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { pair.reset(); }

    void zoomsOfAnAnalogPlotAreShared_data();
    void zoomsOfAnAnalogPlotAreShared();
    void zoomsOfADigitalPlotAreSharedByTheirOwnRules_data();
    void zoomsOfADigitalPlotAreSharedByTheirOwnRules();
    void resetSharesTheFullView();
    void aLinkedBandSharesTheTime();
    void theNextZoomGoesOnFromABand();
    void theNextZoomOfALinkedPlotGoesOnFromABand();

private:
    std::unique_ptr<PlotPair> pair;
};

void TestPlotterSharedView::init()
{
    pair = std::make_unique<PlotPair>();
    for (Plotter *plotter :
        std::initializer_list<Plotter *>{pair->plot, pair->other, pair->digital})
        plotter->setLinkedPlotters({});
    pair->other->customResetZoom();
    for (int i = 0; i < 2; ++i) {
        pair->other->customZoomIn2();
        pair->other->customVZoomIn2();
    }
    QCOMPARE(Shared().view, Ends({0, 250, 5, -3, 3, 6}));
    QCOMPARE(Shared().time, 0.25);
    QCOMPARE(Shared().value, 0.25);
}

// A band shows 1000 x 352 / 703 = 500.711 ms and 24 x 100 / 201 = 11.9403 before the axes are
// adjusted: 0.500711 and 0.497512 of the full ranges.
void TestPlotterSharedView::zoomsOfAnAnalogPlotAreShared_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<Ends>("view");
    QTest::addColumn<double>("time");
    QTest::addColumn<double>("value");
    const auto row
        = [](const char *name, const Operation &operation, const Ends &view, double time,
              double value) { QTest::newRow(name) << operation << view << time << value; };
    const Ends zoomedIn{0, 500, 5, -12, 12, 8};
    const Ends zoomedOut{0, 2100, 7, -12, 12, 8};
    const Ends valuesIn{0, 1000, 10, -6, 6, 12};
    const Ends valuesOut{0, 1000, 10, -30, 30, 6};
    row("customZoomIn", &Plotter::customZoomIn, zoomedIn, 0.5, 0.25);
    row("customZoomIn2", &Plotter::customZoomIn2, zoomedIn, 0.5, 0.25);
    row("customZoomOut", &Plotter::customZoomOut, zoomedOut, 2, 0.25);
    row("customZoomOut2", &Plotter::customZoomOut2, zoomedOut, 2, 0.25);
    row("customVZoomIn", &Plotter::customVZoomIn, valuesIn, 0.25, 0.5);
    row("customVZoomIn2", &Plotter::customVZoomIn2, valuesIn, 0.25, 0.5);
    row("customVZoomOut", &Plotter::customVZoomOut, valuesOut, 0.25, 2);
    row("customVZoomOut2", &Plotter::customVZoomOut2, valuesOut, 0.25, 2);
    row("three zooms of both axes", zoomThrice, {0, 150, 5, -1.5, 1.5, 6}, 0.125, 0.125);
    row("a band", dragBand, {200, 800, 6, -6, 7, 13}, 0.500711, 0.497512);
}

void TestPlotterSharedView::zoomsOfAnAnalogPlotAreShared()
{
    QFETCH(Operation, operation);
    operation(pair->plot);
    QCOMPARE(ends(pair->plot->view()), Shared().view);
    QTEST(Shared().view, "view");
    QTEST(Shared().time, "time");
    QTEST(Shared().value, "value");
}

// The three rules by which zooms share a view differ on purpose.
void TestPlotterSharedView::zoomsOfADigitalPlotAreSharedByTheirOwnRules_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<bool>("isViewShared");
    QTest::addColumn<double>("time");
    QTest::addColumn<double>("value");
    const auto row
        = [](const char *name, const Operation &operation, bool isShared, double time,
              double value) { QTest::newRow(name) << operation << isShared << time << value; };
    row("customZoomIn always", &Plotter::customZoomIn, true, 0.5, 0.25);
    row("customZoomOut not", &Plotter::customZoomOut, false, 2, 0.25);
    row("customZoomIn2 not", &Plotter::customZoomIn2, false, 0.5, 0.25);
    row("customZoomOut2 not", &Plotter::customZoomOut2, false, 2, 0.25);
    row("customVZoomIn not", &Plotter::customVZoomIn, false, 0.25, 0.5);
    row("customVZoomOut not", &Plotter::customVZoomOut, false, 0.25, 2);
    row("customVZoomIn2 does nothing", &Plotter::customVZoomIn2, false, 0.25, 0.25);
    row("customVZoomOut2 does nothing", &Plotter::customVZoomOut2, false, 0.25, 0.25);
}

void TestPlotterSharedView::zoomsOfADigitalPlotAreSharedByTheirOwnRules()
{
    QFETCH(Operation, operation);
    QFETCH(bool, isViewShared);
    operation(pair->digital);
    QCOMPARE(
        Shared().view, isViewShared ? Ends({0, 500, 5, 0, 1, 10}) : Ends({0, 250, 5, -3, 3, 6}));
    QTEST(Shared().time, "time");
    QTEST(Shared().value, "value");
}

void TestPlotterSharedView::resetSharesTheFullView()
{
    pair->plot->customResetZoom();
    QCOMPARE(Shared().view, Ends({0, 1000, 10, -12, 12, 8}));
    QCOMPARE(Shared().time, 1.0);
    QCOMPARE(Shared().value, 1.0);
    pair->plot->customZoomIn();
    pair->plot->customVZoomIn();
    pair->digital->customResetZoom(); // always, as customZoomIn
    QCOMPARE(Shared().view, Ends({0, 1000, 10, 0, 1, 10}));
    QCOMPARE(Shared().time, 1.0);
    QCOMPARE(Shared().value, 1.0);
}

void TestPlotterSharedView::aLinkedBandSharesTheTime()
{
    pair->digital->setLinkedPlotters({pair->plot});
    dragBand(pair->digital);
    QCOMPARE(ends(pair->plot->view()), Ends({200, 800, 6, -12, 12, 8}));
    QCOMPARE(Shared().view, Ends({200, 800, 6, -12, 12, 8}));
    QCOMPARE(Shared().time, 0.500711);
}

// Half of the band's share of the time is 250.36 ms, widened to steps of 50; of the values -2.99 to
// 2.99, widened to steps of 1.
void TestPlotterSharedView::theNextZoomGoesOnFromABand()
{
    dragBand(pair->plot);
    pair->plot->customZoomIn2();
    QCOMPARE(ends(pair->plot->view()), Ends({200, 500, 6, -6, 7, 13}));
    pair->plot->customVZoomIn2();
    QCOMPARE(ends(pair->plot->view()), Ends({200, 500, 6, -3, 3, 6}));
}

void TestPlotterSharedView::theNextZoomOfALinkedPlotGoesOnFromABand()
{
    pair->plot->setLinkedPlotters({pair->other});
    pair->other->customResetZoom();
    dragBand(pair->plot);
    pair->other->customZoomIn2();
    QCOMPARE(ends(pair->other->view()), Ends({200, 500, 6, -12, 12, 8}));
    pair->other->customVZoomIn2();
    QCOMPARE(pair->other->view().maxY, 6.0); // half of the full range: the band left it alone
}

QTEST_MAIN(TestPlotterSharedView)
#include "tst_plotter_sharedview.moc"
