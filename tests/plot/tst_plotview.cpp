// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotview.h"

#include "viewends.h"

#include <QRect>
#include <QSize>
#include <QtTest>

#include <random>

Q_DECLARE_METATYPE(ValueExtremes)

namespace {

constexpr ValueExtremes tenAmperes{-10, 10};

// 0 to 1000 ms and -10 to 10, which is shown as -12 to 12.
PlotView wholeView()
{
    PlotView view;
    view.setHome(0, 1000, tenAmperes);
    return view;
}

// With values of -12 to 12 cut to about their upper half.
PlotView zoomedView()
{
    PlotView view = wholeView();
    view.zoomToBand(QRect(QPoint(250, 50), QPoint(450, 150)), {800, 300}, true);
    return view;
}

} // namespace

class TestPlotView : public QObject {
    Q_OBJECT

private slots:
    void beforeAHomeThereIsNothingToChange();
    void theFirstHomeIsShown();
    void anotherHomeKeepsTheTimeAndShowsAllValues();
    void eachZoomInHalvesTheTimeAgain();
    void aZoomGoesByTheEndOfTheWhole();
    void zoomsOfTheValues();
    void aZoomOfTheValuesKeepsTheCentreOfAMovedView();
    void zoomsWithoutEndKeepAUsableView_data();
    void zoomsWithoutEndKeepAUsableView();
    void bands_data();
    void bands();
    void scrolls();
    void turnsMoveByThePosition();
    void aPositionThatIsSetIsNoTurn();
    void aFollowerTakesTheTimeAlone();
    void resetShowsTheHome();
    void clearForgetsAll();

    void oneFactorKeepsTheTraceInPlace();
    void factorsThatDifferFitTheWhole();
    void aPartIsWidenedFromWhatWasChosen();
    void thereAndBackIsTheSame_data();
    void thereAndBackIsTheSame();
    void anglesFitTheWholeAndKeepTheShareOfAPart();
    void whatWasFlatIsFitted();
    void randomSequencesComeBack();
};

void TestPlotView::beforeAHomeThereIsNothingToChange()
{
    PlotView view;
    QVERIFY(view.isEmpty());
    QVERIFY(!view.rescale(tenAmperes));
    QVERIFY(!view.zoomTime(0.5));
    QVERIFY(!view.zoomValues(0.5, true));
    QVERIFY(!view.zoomToBand(QRect(200, 100, 50, 50), {800, 300}, true));
    QVERIFY(!view.scroll(1, 1));
    QVERIFY(!view.reset());
    QVERIFY(!view.follow(wholeView()));
    QVERIFY(!view.clear());
    QVERIFY(view.isEmpty());
    QCOMPARE(ends(view.live()), Ends({0, 0, 4, 0, 0, 4}));
}

void TestPlotView::theFirstHomeIsShown()
{
    PlotView view;
    QVERIFY(view.setHome(0, 1000, tenAmperes));
    QCOMPARE(ends(view.home()), Ends({0, 1000, 10, -12, 12, 8}));
    QCOMPARE(ends(view.live()), Ends({0, 1000, 10, -12, 12, 8}));
    QVERIFY(!view.setHome(0, 1000, tenAmperes));
}

void TestPlotView::anotherHomeKeepsTheTimeAndShowsAllValues()
{
    PlotView view = wholeView();
    view.zoomTime(0.5);
    view.zoomValues(0.5, true);
    QVERIFY(view.setHome(0, 1000, {0, 4}));
    QCOMPARE(ends(view.live()), Ends({0, 500, 5, 0, 4, 4}));
    QCOMPARE(view.timeZoom(), 0.5);
    QCOMPARE(view.valueZoom(), 1.0);
}

void TestPlotView::eachZoomInHalvesTheTimeAgain()
{
    PlotView view = wholeView();
    for (const double maxX : {500.0, 250.0, 150.0, 70.0}) {
        QVERIFY(view.zoomTime(0.5));
        QCOMPARE(view.live().maxX, maxX);
    }
    QCOMPARE(view.timeZoom(), 0.0625);
}

// Where the whole does not begin at 0 the span is not halved: half of 105 from 70 on is 122.5, in
// steps of 10. A band's share is of the span of the whole, 35.
void TestPlotView::aZoomGoesByTheEndOfTheWhole()
{
    PlotView view;
    view.setHome(72.5, 105, tenAmperes);
    QCOMPARE(ends(view.home()), Ends({70, 105, 7, -12, 12, 8}));
    QVERIFY(view.zoomTime(0.5));
    QCOMPARE(ends(view.live()), Ends({70, 130, 6, -12, 12, 8}));
    view.reset();
    QVERIFY(view.zoomToBand(QRect(QPoint(190, 100), QPoint(540, 150)), {800, 300}, false));
    QCOMPARE(rounded(view.timeZoom()), 0.5);
}

void TestPlotView::zoomsOfTheValues()
{
    PlotView view = wholeView();
    QVERIFY(view.zoomValues(0.5, false));
    QCOMPARE(ends(view.live()), Ends({0, 1000, 10, -6, 6, 12}));
    QVERIFY(view.zoomValues(2, false));
    QCOMPARE(ends(view.live()), Ends({0, 1000, 10, -15, 15, 6})); // -12 to 12 in steps of 5
    QCOMPARE(view.valueZoom(), 1.0);
}

// Two intervals of 3 up, the centre is at 6; half of -12 to 12 is -6 to 6.
void TestPlotView::aZoomOfTheValuesKeepsTheCentreOfAMovedView()
{
    PlotView view = wholeView();
    view.scroll(PlotSettings::noScroll, 2);
    QVERIFY(view.zoomValues(0.5, true));
    QCOMPARE(ends(view.live()), Ends({0, 1000, 10, 0, 12, 12}));
    QVERIFY(view.zoomValues(2, true));
    QCOMPARE(ends(view.live()), Ends({0, 1000, 10, -9, 21, 6}));
}

void TestPlotView::zoomsWithoutEndKeepAUsableView_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<bool>("ofTime");
    QTest::newRow("time in") << 0.5 << true;
    QTest::newRow("time out") << 2.0 << true;
    QTest::newRow("values in") << 0.5 << false;
    QTest::newRow("values out") << 2.0 << false;
}

void TestPlotView::zoomsWithoutEndKeepAUsableView()
{
    QFETCH(double, factor);
    QFETCH(bool, ofTime);
    PlotView view = wholeView();
    bool isDone = true;
    for (int i = 0; i < 3000; ++i)
        isDone = ofTime ? view.zoomTime(factor) : view.zoomValues(factor, i % 2 == 0);
    QVERIFY(!isDone);
    QVERIFY(PlotSettings::isUsable(view.live().minX, view.live().maxX));
    QVERIFY(PlotSettings::isUsable(view.live().minY, view.live().maxY));
    QVERIFY(view.reset());
    QVERIFY(view.zoomTime(0.5));
    QCOMPARE(ends(view.live()), Ends({0, 500, 5, -12, 12, 8}));
}

// 700 pixels stand for the 1000 ms and 200 for the values of 24, and 50 are taken off each edge.
void TestPlotView::bands_data()
{
    QTest::addColumn<QRect>("band");
    QTest::addColumn<bool>("withValues");
    QTest::addColumn<Ends>("view");
    QTest::addColumn<double>("timeZoom");
    QTest::addColumn<double>("valueZoom");
    const QRect band(QPoint(190, 100), QPoint(540, 150));
    QTest::newRow("both axes") << band << true << Ends{200, 700, 5, 0, 6, 6} << 0.5 << 0.25;
    QTest::newRow("time alone") << band << false << Ends{200, 700, 5, -12, 12, 8} << 0.5 << 1.0;
}

void TestPlotView::bands()
{
    QFETCH(QRect, band);
    QFETCH(bool, withValues);
    PlotView view = wholeView();
    QVERIFY(view.zoomToBand(band, {800, 300}, withValues));
    QTEST(ends(view.live()), "view");
    QTEST(rounded(view.timeZoom()), "timeZoom");
    QTEST(view.valueZoom(), "valueZoom");
}

void TestPlotView::scrolls()
{
    PlotView view = wholeView();
    QVERIFY(view.scroll(2, PlotSettings::noScroll));
    QCOMPARE(ends(view.live()), Ends({200, 1200, 10, -12, 12, 8}));
    QVERIFY(view.scroll(PlotSettings::noScroll, -1));
    QCOMPARE(ends(view.live()), Ends({200, 1200, 10, -15, 9, 8}));
    QVERIFY(!view.scroll(0, 0));
}

void TestPlotView::turnsMoveByThePosition()
{
    PlotView view = wholeView();
    QVERIFY(view.turnTo(3));
    QCOMPARE(view.live().minX, 300.0);
    QVERIFY(!view.turnTo(3));
    QVERIFY(view.turnTo(1)); // the position itself, not the change of it
    QCOMPARE(view.live().minX, 400.0);
}

void TestPlotView::aPositionThatIsSetIsNoTurn()
{
    PlotView view = wholeView();
    view.setBarPosition(3);
    QCOMPARE(view.live().minX, 0.0);
    QVERIFY(!view.turnTo(3));
    QVERIFY(view.turnTo(2));
    QCOMPARE(view.live().minX, 200.0);
}

void TestPlotView::aFollowerTakesTheTimeAlone()
{
    PlotView leader = wholeView();
    leader.zoomTime(0.5);
    leader.zoomValues(0.5, true);
    leader.turnTo(2);
    PlotView view;
    view.setHome(0, 1000, {0, 4});
    QVERIFY(view.follow(leader));
    QCOMPARE(ends(view.live()), Ends({200, 700, 5, 0, 4, 4}));
    QCOMPARE(view.timeZoom(), 0.5);
    QCOMPARE(view.valueZoom(), 1.0);
    QCOMPARE(view.barPosition(), 2);
    QVERIFY(!view.follow(leader));
}

void TestPlotView::resetShowsTheHome()
{
    PlotView view = zoomedView();
    QVERIFY(view.reset());
    QCOMPARE(ends(view.live()), ends(view.home()));
    QCOMPARE(view.timeZoom(), 1.0);
    QCOMPARE(view.valueZoom(), 1.0);
    QVERIFY(!view.reset());
}

void TestPlotView::clearForgetsAll()
{
    PlotView view = zoomedView();
    view.turnTo(2);
    QVERIFY(view.clear());
    QVERIFY(view.isEmpty());
    QCOMPARE(view.barPosition(), 0);
    view.setHome(0, 100, {0, 4});
    QCOMPARE(ends(view.live()), Ends({0, 100, 10, 0, 4, 4}));
}

// The grid is scaled with the view, which is fitted by a reset.
void TestPlotView::oneFactorKeepsTheTraceInPlace()
{
    PlotView whole = wholeView();
    QVERIFY(whole.rescale({-1100, 1100}));
    QCOMPARE(ends(whole.live()), Ends({0, 1000, 10, -1320, 1320, 8}));
    QVERIFY(whole.reset());
    QCOMPARE(ends(whole.live()), Ends({0, 1000, 10, -1500, 1500, 6}));

    PlotView part = wholeView();
    part.zoomValues(0.5, true);
    part.scroll(PlotSettings::noScroll, 1);
    QVERIFY(part.rescale({-5, 5}));
    QCOMPARE(ends(part.live()), Ends({0, 1000, 10, -2.5, 3.5, 12}));
    QCOMPARE(part.valueZoom(), 0.5);
}

void TestPlotView::factorsThatDifferFitTheWhole()
{
    PlotView view = wholeView();
    QVERIFY(view.rescale({-10, 40}));
    QCOMPARE(ends(view.live()), Ends({0, 1000, 10, -10, 40, 5}));
}

// 0 to 5.5 of -10 to 10 is widened to 0 to 6. Under -100 to 300 it is 100 to 210; 0 to 6 would be
// 100 to 220.
void TestPlotView::aPartIsWidenedFromWhatWasChosen()
{
    const ValuePart part(tenAmperes, 0, 5.5);
    QCOMPARE(part.at(tenAmperes).max, 6.0);
    const ValueRange range = part.at({-100, 300});
    QCOMPARE(range.min, 100.0);
    QCOMPARE(range.max, 210.0);
}

void TestPlotView::thereAndBackIsTheSame_data()
{
    QTest::addColumn<bool>("isZoomed");
    QTest::addColumn<ValueExtremes>("other");
    const ValueExtremes common{-1234.5, 1234.5};
    const ValueExtremes differing{-90, 31000};
    for (const bool isZoomed : {false, true}) {
        const char *name = isZoomed ? "a part" : "the whole";
        QTest::addRow("%s, one factor", name) << isZoomed << common;
        QTest::addRow("%s, factors that differ", name) << isZoomed << differing;
        QTest::addRow("%s, with angles", name) << isZoomed << ValueExtremes{-10, 360, 360};
    }
}

void TestPlotView::thereAndBackIsTheSame()
{
    QFETCH(bool, isZoomed);
    QFETCH(ValueExtremes, other);
    PlotView view = isZoomed ? zoomedView() : wholeView();
    const PlotSettings before = view.live();
    view.rescale(other);
    const PlotSettings there = view.live();
    QVERIFY(!(there == before));
    for (int i = 0; i < 7; ++i) {
        view.rescale({-1, 2});
        view.rescale(tenAmperes);
        QVERIFY(view.live() == before);
        view.rescale(other);
        QVERIFY(view.live() == there);
    }
}

// Of a magnitude of 70 all is shown, with angles to 360 then all from 0 to 400. The upper half of
// 70 becomes that of 360.
void TestPlotView::anglesFitTheWholeAndKeepTheShareOfAPart()
{
    PlotView whole;
    whole.setHome(0, 1000, {0, 70});
    QCOMPARE(whole.live().maxY, 70.0);
    QVERIFY(whole.rescale({0, 360, 360}));
    QCOMPARE(whole.live().maxY, 400.0);
    QVERIFY(whole.rescale({0, 70}));
    QCOMPARE(whole.live().maxY, 70.0);

    const ValuePart part({0, 70}, 35, 70);
    QCOMPARE(part.at({0, 360, 360}).min, 180.0);
    QCOMPARE(part.at({0, 360, 360}).max, 360.0);
}

void TestPlotView::whatWasFlatIsFitted()
{
    PlotView view;
    view.setHome(0, 1000, {});
    QCOMPARE(view.live().maxY, 1.2);
    QVERIFY(view.rescale(tenAmperes));
    QCOMPARE(ends(view.live()), Ends({0, 1000, 10, -12, 12, 8}));
    QVERIFY(view.rescale({}));
    QCOMPARE(view.live().maxY, 1.2);
}

// Whatever was zoomed and scrolled, and however often the factors turn: the same factors show the
// same view, and no view is unusable.
void TestPlotView::randomSequencesComeBack()
{
    std::mt19937 random(20240315);
    const auto upTo = [&](int count) { return static_cast<int>(random() % unsigned(count)); };
    const QVector<ValueExtremes> modes{tenAmperes, {-1100, 1100}, {-90, 31000}, {0, 360, 360}, {}};
    PlotView view = wholeView();
    ValueExtremes mode = tenAmperes;
    for (int step = 0; step < 20000; ++step) {
        switch (upTo(8)) {
        case 0:
            view.zoomTime(upTo(2) ? 0.5 : 2);
            break;
        case 1:
            view.zoomValues(upTo(2) ? 0.5 : 2, upTo(2));
            break;
        case 2: {
            const QPoint from(100 + upTo(600), 60 + upTo(180));
            view.zoomToBand(
                QRect(from, from + QPoint(3 + upTo(300), 3 + upTo(100))), {800, 300}, upTo(2));
            break;
        }
        case 3:
            view.scroll(upTo(7) - 3, upTo(7) - 3);
            break;
        case 4:
            view.turnTo(upTo(5));
            break;
        case 5:
            if (upTo(10) == 0)
                view.reset();
            break;
        default: {
            const PlotSettings before = view.live();
            for (int turn = upTo(5); turn >= 0; --turn)
                view.rescale(modes.at(upTo(modes.size())));
            view.rescale(mode);
            QVERIFY(view.live() == before);
            mode = modes.at(upTo(modes.size()));
            view.rescale(mode);
        }
        }
        QVERIFY(PlotSettings::isUsable(view.live().minX, view.live().maxX));
        QVERIFY(PlotSettings::isUsable(view.live().minY, view.live().maxY));
    }
}

QTEST_APPLESS_MAIN(TestPlotView)
#include "tst_plotview.moc"
