// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotpair.h"

#include <QScrollBar>

#include <random>

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
    void aPlotThatWasScrolledAloneFollowsTheNextZoom();
    void allPlotsKeepTheWidestReadout();
    void theWidestReadoutMayGoWithItsPlot();
    void aHeldKeyGoesAlong();
    void aReleasedKeyDoesNot();
    void randomActionsKeepVisiblePlotsInStep_data();
    void randomActionsKeepVisiblePlotsInStep();

private:
    void makePair(bool isPainted);
    QList<Plotter *> plots() const { return {pair->plot, pair->other, pair->digital}; }
    bool areInStep() const;

    std::unique_ptr<PlotPair> pair;
};

void TestPlotterLinked::makePair(bool isPainted)
{
    pair = std::make_unique<PlotPair>(isPainted);
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
    QTest::addColumn<bool>("isPainted"); // which takes most of the time
    QTest::addColumn<int>("actions");
    QTest::newRow("a few, painted") << true << 10000;
    QTest::newRow("many") << false << 100000;
}

// All that moves the time but for the plain wheel, which is one plot's own.
void TestPlotterLinked::randomActionsKeepVisiblePlotsInStep()
{
    QFETCH(bool, isPainted);
    QFETCH(int, actions);
    makePair(isPainted);
    std::mt19937 random(20240315);
    const auto upTo = [&](int count) { return static_cast<int>(random() % unsigned(count)); };
    QScrollBar *bar = pair->host.bar.get();
    const auto setWidth = [&](int width) {
        for (Plotter *plot : plots())
            plot->resize(width, 103);
    };
    setWidth(160);
    int zooms = 0;
    for (int action = 0; action < actions; ++action) {
        QList<Plotter *> shown;
        for (Plotter *plot : plots()) {
            if (!plot->isHidden())
                shown.append(plot);
        }
        Plotter *plot = shown.isEmpty() ? pair->plot : shown.at(upTo(shown.size()));
        const double span = plot->view().spanX();
        switch (upTo(10)) {
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
            bar->setValue(bar->value() + upTo(5) - 2);
            break;
        case 4:
            plots().at(upTo(3))->setVisible(upTo(2));
            break;
        case 5:
            setWidth(140 + upTo(60));
            break;
        case 6:
            plots().at(upTo(3))->resize(20 + upTo(300), 103); // as one that is hidden may be
            setWidth(160);
            break;
        case 7:
            if (upTo(4) == 0) {
                for (Plotter *each : plots())
                    each->customResetZoom();
            }
            break;
        case 8:
            pair->host.mode = upTo(3);
            for (Plotter *each : plots())
                each->rescaleValues();
            plot->zoomIn();
            break;
        default:
            QTest::keyClick(plot, upTo(2) ? Qt::Key_Left : Qt::Key_Right);
        }
        zooms += plot->view().spanX() != span;
        QVERIFY2(areInStep(), qPrintable(QString::number(action)));
    }
    QVERIFY(zooms > actions / 20);
}

QTEST_MAIN(TestPlotterLinked)
#include "tst_plotter_linked.moc"
