// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotpair.h"

#include <QScrollBar>

#include <cmath>
#include <functional>
#include <limits>
#include <random>

Q_DECLARE_METATYPE(PlotPair::Series)

namespace {

// What linked plots have in common.
QVector<double> timeOf(const Plotter *plot)
{
    return {plot->view().minX, plot->view().maxX, plot->view().numXTicks};
}

} // namespace

// Plots that are linked to each other, of which some may be hidden.
class TestPlotterLinked : public QObject {
    Q_OBJECT

private slots:
    void init() { makePair(true); }
    void cleanup() { pair.reset(); }

    void aHiddenPlotTakesNoPart();
    void aHiddenPlotFollowsWhenItIsShown();
    void aPlotResizedWhileHiddenFollows();
    void aHiddenPlotLeavesTheSharedZoomAlone();
    void theFirstTurnAfterAZoomMoves();
    void theFirstTurnAfterAResetMoves();
    void aResetRangesTheScrollBarAnew();
    void aPlotThatWasScrolledAloneFollowsTheNextZoom();
    void allPlotsKeepTheWidestReadout();
    void theWidestReadoutMayGoWithItsPlot();
    void aHeldKeyGoesAlong();
    void aReleasedKeyDoesNot();
    void randomActionsKeepVisiblePlotsInStep_data();
    void randomActionsKeepVisiblePlotsInStep();

private:
    void makePair(bool isPainted, const PlotPair::Series &series = PlotPair::ordinary());
    QList<Plotter *> plots() const { return {pair->plot, pair->other, pair->digital}; }
    bool areInStep() const;
    bool areUsable() const;
    QVector<PlotSettings> views() const;
    void resizeAll(int width);
    void setMode(int mode); // of the values
    void actAtRandom(Plotter *plot, std::mt19937 &random);
    void goThereAndBack(Plotter *plot, std::mt19937 &random);

    std::unique_ptr<PlotPair> pair;
};

void TestPlotterLinked::makePair(bool isPainted, const PlotPair::Series &series)
{
    pair = std::make_unique<PlotPair>(isPainted, series);
    for (Plotter *plot : plots())
        connect(pair->host.bar.get(), &QScrollBar::valueChanged, plot, &Plotter::scrolling);
}

bool TestPlotterLinked::areInStep() const
{
    QVector<double> time;
    for (const Plotter *plot : plots()) {
        if (plot->isHidden())
            continue;
        if (time.isEmpty())
            time = timeOf(plot);
        if (timeOf(plot) != time)
            return false;
    }
    return true;
}

// Ranges of numbers, with as many grid lines as can be drawn.
bool TestPlotterLinked::areUsable() const
{
    const auto isUsable = [](double min, double max, double ticks) {
        return std::isfinite(min) && std::isfinite(max) && min < max && ticks >= 4 && ticks < 100;
    };
    for (const PlotSettings &view : views()) {
        if (!isUsable(view.minX, view.maxX, view.numXTicks)
            || !isUsable(view.minY, view.maxY, view.numYTicks))
            return false;
    }
    return true;
}

QVector<PlotSettings> TestPlotterLinked::views() const
{
    QVector<PlotSettings> views;
    for (const Plotter *plot : plots())
        views.append(plot->view());
    return views;
}

void TestPlotterLinked::resizeAll(int width)
{
    for (Plotter *plot : plots())
        plot->resize(width, 103);
}

void TestPlotterLinked::setMode(int mode)
{
    pair->host.mode = mode;
    for (Plotter *plot : plots()) {
        plot->rescaleValues();
        plot->refreshPixmap();
    }
}

void TestPlotterLinked::aHiddenPlotTakesNoPart()
{
    pair->digital->hide();
    PlotPair::drag(pair->plot, {191, 100}, {543, 200});
    pair->plot->customZoomIn();
    QCOMPARE(timeOf(pair->digital), QVector<double>({0, 1000, 10}));
    QVERIFY(areInStep());
}

void TestPlotterLinked::aHiddenPlotFollowsWhenItIsShown()
{
    for (int i = 0; i < 2; ++i) {
        pair->digital->hide();
        PlotPair::drag(pair->plot, {191, 100}, {543, 200});
        pair->host.bar->setValue(pair->host.bar->value() + 1);
        pair->digital->show();
        QCOMPARE(timeOf(pair->digital), timeOf(pair->plot));
        pair->digital->customZoomOut();
        QVERIFY(areInStep());
        pair->host.bar->setValue(pair->host.bar->value() + 1);
        QVERIFY(areInStep());
    }
}

void TestPlotterLinked::aPlotResizedWhileHiddenFollows()
{
    pair->digital->hide();
    pair->digital->resize(100, 30);
    PlotPair::drag(pair->plot, {191, 100}, {543, 200});
    pair->digital->show();
    QCOMPARE(timeOf(pair->digital), QVector<double>({200, 800, 6}));
    PlotPair::drag(pair->other, {191, 100}, {543, 200});
    QVERIFY(areInStep());
}

void TestPlotterLinked::aHiddenPlotLeavesTheSharedZoomAlone()
{
    pair->digital->hide();
    pair->digital->resize(100, 30);
    PlotPair::drag(pair->plot, {191, 100}, {543, 200});
    pair->plot->customZoomIn();
    const double zoom = Plotter::shared().timeZoom;
    QVERIFY(qAbs(zoom - 0.5 * 352 / 703) < 1e-9);
    QCOMPARE(Plotter::shared().analog.maxX, pair->plot->view().maxX);
}

// Twice zoomed in, an interval is 50 ms. The bar goes to 2, the next zoom sets it to 3, at
// intervals of 30 ms from 90 ms on; a step back to 2 moves by two of them.
void TestPlotterLinked::theFirstTurnAfterAZoomMoves()
{
    QScrollBar *bar = pair->host.bar.get();
    pair->plot->customZoomIn();
    pair->plot->customZoomIn();
    bar->setValue(2);
    QCOMPARE(pair->plot->view().minX, 100.0);
    pair->plot->customZoomIn();
    QCOMPARE(pair->plot->view().minX, 90.0);
    QCOMPARE(bar->value(), 3);
    bar->setValue(2);
    for (const Plotter *plot : plots())
        QCOMPARE(plot->view().minX, 150.0);
}

void TestPlotterLinked::theFirstTurnAfterAResetMoves()
{
    QScrollBar *bar = pair->host.bar.get();
    pair->plot->customZoomIn();
    bar->setValue(2);
    for (Plotter *plot : plots())
        plot->customResetZoom();
    bar->setValue(1);
    for (const Plotter *plot : plots())
        QCOMPARE(plot->view().minX, 100.0);
}

// From 1000 ms, where the whole view ends, to 2100 ms in its intervals of 100 ms.
void TestPlotterLinked::aResetRangesTheScrollBarAnew()
{
    const QScrollBar *bar = pair->host.bar.get();
    const auto reset = [&] {
        for (Plotter *plot : plots())
            plot->customResetZoom();
    };
    for (int time = 0; time < 2; ++time) {
        for (int zoom = 0; zoom < 4; ++zoom)
            pair->plot->customZoomIn();
        QVERIFY(bar->maximum() > 44);
        pair->host.bar->setValue(7);
        reset();
        QCOMPARE(bar->value(), 0);
        QCOMPARE(bar->maximum(), 11);
        QCOMPARE(pair->plot->view(), pair->plot->home());
    }
}

// A plain wheel turn with a horizontal part moves one plot alone.
void TestPlotterLinked::aPlotThatWasScrolledAloneFollowsTheNextZoom()
{
    PlotPair::wheel(pair->other, {120, 120});
    QCOMPARE(pair->other->view().minX, 100.0);
    QVERIFY(!areInStep());
    pair->plot->customZoomIn();
    QVERIFY(areInStep());
    QCOMPARE(pair->other->view().maxX, 500.0);
}

void TestPlotterLinked::allPlotsKeepTheWidestReadout()
{
    pair->host.source->analogChannels[1]->id = QStringLiteral("a name that needs much room");
    pair->other->addChannel(1);
    pair->other->refreshPixmap();
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {400, 150});
    const int width = pair->plot->geometryOfView().readoutWidth();
    QVERIFY(width > 150);
    QCOMPARE(pair->other->geometryOfView().readoutWidth(), width);
    QCOMPARE(pair->digital->geometryOfView().readoutWidth(), 0);
    const auto *line = pair->plot->findChild<QFrame *>(QStringLiteral("cursorLine"));
    const auto *otherLine = pair->other->findChild<QFrame *>(QStringLiteral("cursorLine"));
    QCOMPARE(line->x(), otherLine->x());

    pair->other->showChannels({0});
    pair->other->refreshPixmap();
    QVERIFY(pair->plot->geometryOfView().readoutWidth() < width);
    QCOMPARE(line->x(), otherLine->x());
}

void TestPlotterLinked::theWidestReadoutMayGoWithItsPlot()
{
    pair->host.source->analogChannels[1]->id = QStringLiteral("a name that needs much room");
    pair->other->addChannel(1);
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {400, 150});
    const int width = pair->plot->geometryOfView().readoutWidth();
    pair->plot->setLinkedPlotters({pair->digital});
    pair->digital->setLinkedPlotters({pair->plot});
    delete pair->other;
    pair->plot->refreshPixmap();
    QVERIFY(pair->plot->geometryOfView().readoutWidth() < width);
}

void TestPlotterLinked::aHeldKeyGoesAlong()
{
    PlotPair::move(pair->plot, {400, 150});
    QTest::keyPress(pair->plot, Qt::Key_Control);
    for (int i = 0; i < 2; ++i) {
        for (Plotter *plot : plots()) {
            PlotPair::move(plot, {400, 150});
            const double span = plot->view().spanX();
            PlotPair::wheel(plot, {0, i == 0 ? 120 : -120});
            QVERIFY(i == 0 ? plot->view().spanX() < span : plot->view().spanX() > span);
        }
    }
}

void TestPlotterLinked::aReleasedKeyDoesNot()
{
    PlotPair::move(pair->plot, {400, 150});
    QTest::keyPress(pair->plot, Qt::Key_Control);
    PlotPair::move(pair->other, {400, 150});
    QTest::keyRelease(pair->other, Qt::Key_Control);
    for (Plotter *plot : {pair->plot, pair->other}) {
        PlotPair::move(plot, {400, 150});
        PlotPair::wheel(plot, {0, 120});
        QCOMPARE(plot->view().spanX(), 1000.0);
    }
}

void TestPlotterLinked::randomActionsKeepVisiblePlotsInStep_data()
{
    QTest::addColumn<PlotPair::Series>("series");
    QTest::addColumn<bool>("isPainted"); // which takes most of the time
    QTest::addColumn<int>("actions");
    const auto changed = [](const std::function<void(PlotPair::Series &, int)> &change) {
        PlotPair::Series series = PlotPair::ordinary();
        for (int i = 0; i < series.times.size(); ++i)
            change(series, i);
        return series;
    };
    const QVector<QPair<const char *, PlotPair::Series>> recordings{
        {"ordinary", PlotPair::ordinary()},
        {"flat", changed([](PlotPair::Series &series, int i) { series.values[i] = 7; })},
        {"one sample", {{5}, {3}}},
        {"no sample", {}},
        {"all at one time", changed([](PlotPair::Series &series, int i) { series.times[i] = -3; })},
        {"times that run back",
            changed([](PlotPair::Series &series, int i) { series.times[i] = 1000 - i; })},
        {"a step back in time",
            changed([](PlotPair::Series &series, int i) { series.times[i] -= i < 700 ? 0 : 400; })},
        {"no numbers among values and times", changed([](PlotPair::Series &series, int i) {
             const double odd[] = {qQNaN(), qInf(), -qInf()};
             if (i % 5 == 0)
                 series.values[i] = float(odd[i % 3]);
             if (i % 7 == 0)
                 series.times[i] = odd[i % 3];
         })},
        {"nothing but infinite values",
            changed([](PlotPair::Series &series, int i) { series.values[i] = float(qInf()); })},
        {"values and times as large as they can be", changed([](PlotPair::Series &series, int i) {
             series.values[i] = std::numeric_limits<float>::max() * float(i % 3 - 1);
             series.times[i] = std::numeric_limits<double>::max() / 1000 * i;
         })},
    };
    const bool isLong = qEnvironmentVariableIsSet("WAVORIN_LONG_TESTS");
    for (const auto &[name, series] : recordings) {
        QTest::addRow("%s", name) << series << false
                                  << (isLong || name == recordings.first().first ? 100000 : 10000);
        QTest::addRow("%s, painted", name) << series << true << (isLong ? 10000 : 500);
    }
}

// All that moves the time but for the plain wheel to a side, which is one plot's own.
void TestPlotterLinked::actAtRandom(Plotter *plot, std::mt19937 &random)
{
    const auto upTo = [&](int count) { return static_cast<int>(random() % unsigned(count)); };
    QScrollBar *bar = pair->host.bar.get();
    switch (upTo(12)) {
    case 0:
        upTo(2) ? plot->customZoomIn() : plot->customZoomOut();
        break;
    case 1:
        upTo(2) ? plot->customVZoomIn() : plot->customVZoomOut();
        break;
    case 2: {
        const QPoint from(100 + upTo(50), 60 + upTo(2));
        PlotPair::drag(plot, from, from + QPoint(upTo(60) - 30, 3 + upTo(9)));
        break;
    }
    case 3:
        bar->setValue(static_cast<int>(qBound(
            qint64(bar->minimum()), qint64(bar->value()) + upTo(5) - 2, qint64(bar->maximum()))));
        break;
    case 4:
        plots().at(upTo(3))->setVisible(upTo(2));
        break;
    case 5:
        resizeAll(140 + upTo(60));
        break;
    case 6:
        plots().at(upTo(3))->resize(20 + upTo(300), 103); // as one that is hidden may be
        resizeAll(160);
        break;
    case 7:
        if (upTo(4) == 0) {
            for (Plotter *each : plots())
                each->customResetZoom();
        }
        break;
    case 8:
        setMode(upTo(3));
        break;
    case 9: {
        const Qt::Key held[] = {Qt::Key_Control, Qt::Key_Shift, Qt::Key_A};
        const Qt::Key key = held[upTo(3)];
        PlotPair::move(plot, {120, 70});
        QTest::keyPress(plot, key);
        PlotPair::wheel(plot, {0, upTo(2) ? 120 : -120});
        QTest::keyRelease(plot, key);
        break;
    }
    case 10:
        if (upTo(2))
            plot->showPreviousView();
        else
            plot->changeView([&](PlotView &view) { return view.moveTimes(upTo(200) - 100); });
        break;
    default:
        QTest::keyClick(plot, Qt::Key(Qt::Key_Left + upTo(4))); // the arrows
    }
}

// What leads back to the very same views at once: other values, another size, out of sight.
void TestPlotterLinked::goThereAndBack(Plotter *plot, std::mt19937 &random)
{
    const QVector<PlotSettings> before = views();
    const int mode = pair->host.mode;
    const int width = plot->width();
    switch (random() % 4) {
    case 0:
        setMode(int(random() % 3));
        setMode(mode);
        break;
    case 1:
        resizeAll(20 + int(random() % 300));
        resizeAll(width);
        break;
    case 2:
        if (!plot->isHidden()) {
            plot->hide();
            plot->show();
        }
        break;
    default:
        plot->zoomIn();
        plot->refreshSlot();
    }
    QVERIFY(views() == before);
}

void TestPlotterLinked::randomActionsKeepVisiblePlotsInStep()
{
    QFETCH(PlotPair::Series, series);
    QFETCH(bool, isPainted);
    QFETCH(int, actions);
    makePair(isPainted, series);
    std::mt19937 random(20240315);
    resizeAll(160);
    int zooms = 0;
    for (int action = 0; action < actions; ++action) {
        QList<Plotter *> shown;
        for (Plotter *plot : plots()) {
            if (!plot->isHidden())
                shown.append(plot);
        }
        Plotter *plot
            = shown.isEmpty() ? pair->plot : shown.at(int(random() % unsigned(shown.size())));
        const double span = plot->view().spanX();
        actAtRandom(plot, random);
        zooms += plot->view().spanX() != span;
        QVERIFY2(areInStep(), qPrintable(QString::number(action)));
        QVERIFY2(areUsable(), qPrintable(QString::number(action)));
        goThereAndBack(plot, random);
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(QString::number(action)));
    }
    QVERIFY2(zooms > actions / 20, qPrintable(QString::number(zooms)));
    for (Plotter *plot : plots())
        plot->show();
    for (int time = 0; time < 2; ++time) {
        for (Plotter *plot : plots())
            plot->customResetZoom();
        for (const Plotter *plot : plots())
            QVERIFY(plot->view() == plot->home());
    }
}

QTEST_MAIN(TestPlotterLinked)
#include "tst_plotter_linked.moc"
