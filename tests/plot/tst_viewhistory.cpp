// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewhistory.h"

#include "viewends.h"

#include <QRect>
#include <QSize>
#include <QtTest>

#include <random>

namespace {

constexpr ValueExtremes tenAmperes{-10, 10};
constexpr ValueExtremes thousandAmperes{-1000, 1000};

// 0 to 1000 ms and -10 to 10, which is shown as -12 to 12.
PlotView wholeView()
{
    PlotView view;
    view.setHome(0, 1000, tenAmperes);
    return view;
}

// One of the changes that a person makes.
void changeSomehow(PlotView &view, std::mt19937 &random)
{
    switch (random() % 8) {
    case 0:
        view.zoomTime(random() % 2 ? 0.5 : 2);
        break;
    case 1:
        view.zoomValues(random() % 2 ? 0.5 : 2, true);
        break;
    case 2:
        view.scroll(int(random() % 5) - 2, PlotSettings::noScroll);
        break;
    case 3:
        view.scroll(PlotSettings::noScroll, int(random() % 5) - 2);
        break;
    case 4:
        view.turnTo(int(random() % 4));
        break;
    case 5:
        view.zoomToBand(
            QRect(150 + int(random() % 200), 80, 100 + int(random() % 200), 90), {800, 300}, true);
        break;
    case 6:
        view.moveTimes(view.live().spanX() * (random() % 2 ? 0.5 : -0.5));
        break;
    default:
        view.reset();
    }
}

} // namespace

class TestViewHistory : public QObject {
    Q_OBJECT

private slots:
    void exactTimes_data();
    void exactTimes();
    void timesThatCannotBeShownChangeNothing();
    void allTimesKeepTheValues();
    void movesStopAtTheEndsOfTheWhole_data();
    void movesStopAtTheEndsOfTheWhole();

    void anEmptyHistoryLeadsNowhere();
    void aStepThatChangedNothingIsNoStep();
    void stepsAreGoneBackInTurn_data();
    void stepsAreGoneBackInTurn();
    void aStepIsShownUnderPresentFactors();
    void anotherValueModeAloneIsNoStep();
    void aPlotThatCameLaterFollowsInTime();
    void aPlotThatWentIsForgotten();
    void theOldestStepsAreGivenUp();
};

// The grid has as many intervals as that of the times around them.
void TestViewHistory::exactTimes_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("ticks");
    QTest::newRow("whole steps") << 200.0 << 600.0 << 4.0;
    QTest::newRow("between steps") << 123.4 << 456.7 << 8.0; // 100 to 500 by 50
    QTest::newRow("fractions") << 0.1 << 0.35 << 5.0; // 0.1 to 0.35 by 0.05
    QTest::newRow("beyond the whole") << -500.0 << 1500.0 << 7.0; // -600 to 1500 by 300
}

void TestViewHistory::exactTimes()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, ticks);
    PlotView view = wholeView();
    QVERIFY(view.showTimes(from, to));
    QCOMPARE(view.live().minX, from);
    QCOMPARE(view.live().maxX, to);
    QCOMPARE(view.live().numXTicks, ticks);
    QCOMPARE(view.live().minY, -12.0);
    QCOMPARE(view.timeZoom(), (to - from) / 1000);
    QVERIFY(!view.showTimes(from, to));
}

void TestViewHistory::timesThatCannotBeShownChangeNothing()
{
    PlotView view = wholeView();
    QVERIFY(!view.showTimes(300, 300));
    QVERIFY(!view.showTimes(400, 300));
    QVERIFY(!view.showTimes(qQNaN(), 300));
    QVERIFY(view.live() == wholeView().live());
    QCOMPARE(view.timeZoom(), 1.0);
    PlotView empty;
    QVERIFY(!empty.showTimes(0, 100));
    QVERIFY(!empty.showAllTimes());
    QVERIFY(!empty.moveTimes(10));
    QVERIFY(empty.isEmpty());
}

void TestViewHistory::allTimesKeepTheValues()
{
    PlotView view = wholeView();
    QVERIFY(!view.showAllTimes());
    view.zoomToBand(QRect(QPoint(250, 50), QPoint(450, 150)), {800, 300}, true);
    const PlotSettings zoomed = view.live();
    QVERIFY(view.showAllTimes());
    QCOMPARE(view.live().minX, 0.0);
    QCOMPARE(view.live().maxX, 1000.0);
    QCOMPARE(view.live().numXTicks, wholeView().live().numXTicks);
    QCOMPARE(view.live().minY, zoomed.minY);
    QCOMPARE(view.live().maxY, zoomed.maxY);
    QCOMPARE(view.timeZoom(), 1.0);
}

void TestViewHistory::movesStopAtTheEndsOfTheWhole_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("distance");
    QTest::addColumn<double>("moved");
    QTest::newRow("earlier") << 400.0 << 600.0 << -100.0 << 300.0;
    QTest::newRow("later") << 400.0 << 600.0 << 100.0 << 500.0;
    QTest::newRow("to the beginning") << 40.0 << 240.0 << -100.0 << 0.0;
    QTest::newRow("to the end") << 730.0 << 930.0 << 100.0 << 800.0;
    QTest::newRow("at the end") << 800.0 << 1000.0 << 100.0 << 800.0;
    QTest::newRow("beyond the end, on") << 900.0 << 1100.0 << 100.0 << 900.0;
    QTest::newRow("beyond the end, back") << 900.0 << 1100.0 << -100.0 << 800.0;
    QTest::newRow("wider than the whole") << -100.0 << 1100.0 << 600.0 << -100.0;
}

void TestViewHistory::movesStopAtTheEndsOfTheWhole()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, distance);
    QFETCH(double, moved);
    PlotView view = wholeView();
    view.showTimes(from, to);
    const double ticks = view.live().numXTicks;
    QCOMPARE(view.moveTimes(distance), moved != from);
    QCOMPARE(view.live().minX, moved);
    QCOMPARE(view.live().maxX, moved + to - from);
    QCOMPARE(view.live().numXTicks, ticks);
}

void TestViewHistory::anEmptyHistoryLeadsNowhere()
{
    ViewHistory history;
    const QObject plot;
    const ViewHistory::Views now{{&plot, wholeView()}};
    QVERIFY(!history.canGoBack(now));
    QVERIFY(history.goBack(now).value(&plot).live() == wholeView().live());
    QVERIFY(!history.canGoBack({}));
    QVERIFY(history.goBack({}).isEmpty());
}

void TestViewHistory::aStepThatChangedNothingIsNoStep()
{
    ViewHistory history;
    const QObject plot;
    PlotView view = wholeView();
    history.note({{&plot, view}});
    QVERIFY(!history.canGoBack({{&plot, view}}));
    view.zoomTime(0.5);
    for (int i = 0; i < 3; ++i)
        history.note({{&plot, view}});
    QVERIFY(history.canGoBack({{&plot, view}}));
    view = history.goBack({{&plot, view}}).value(&plot);
    QCOMPARE(view.live().maxX, 1000.0);
    QVERIFY(!history.canGoBack({{&plot, view}}));
}

void TestViewHistory::stepsAreGoneBackInTurn_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 40; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

// Of two plots, with the zooms that go with the views.
void TestViewHistory::stepsAreGoneBackInTurn()
{
    QFETCH(uint, seed);
    std::mt19937 random(seed);
    ViewHistory history;
    const QObject first;
    const QObject second;
    PlotView a = wholeView();
    PlotView b = wholeView();
    QVector<QPair<PlotView, PlotView>> seen;
    for (int i = 0; i < 60; ++i) {
        const QPair<PlotView, PlotView> before(a, b);
        history.note({{&first, a}, {&second, b}});
        changeSomehow(random() % 3 ? a : b, random);
        if (!(before.first.live() == a.live()) || !(before.second.live() == b.live()))
            seen.append(before);
    }
    QVERIFY(seen.size() > 10);
    while (!seen.isEmpty()) {
        QVERIFY(history.canGoBack({{&first, a}, {&second, b}}));
        const ViewHistory::Views back = history.goBack({{&first, a}, {&second, b}});
        a = back.value(&first);
        b = back.value(&second);
        const auto [expectedA, expectedB] = seen.takeLast();
        QVERIFY(a.live() == expectedA.live());
        QVERIFY(b.live() == expectedB.live());
        QCOMPARE(a.timeZoom(), expectedA.timeZoom());
        QCOMPARE(a.valueZoom(), expectedA.valueZoom());
    }
    QVERIFY(!history.canGoBack({{&first, a}, {&second, b}}));
}

// The values were noted on the primary side, a hundred times those of the secondary one.
void TestViewHistory::aStepIsShownUnderPresentFactors()
{
    ViewHistory history;
    const QObject plot;
    PlotView view = wholeView();
    view.zoomValues(0.5, true); // -6 to 6
    history.note({{&plot, view}});
    view.zoomTime(0.5);
    view.rescale(thousandAmperes);
    view = history.goBack({{&plot, view}}).value(&plot);
    QCOMPARE(view.live().maxX, 1000.0);
    QCOMPARE(view.live().minY, -600.0);
    QCOMPARE(view.live().maxY, 600.0);
    QCOMPARE(view.home().maxY, 1200.0); // -1000 to 1000 by 300
    view.rescale(tenAmperes);
    QCOMPARE(view.live().minY, -6.0);
    QCOMPARE(view.live().maxY, 6.0);
}

void TestViewHistory::anotherValueModeAloneIsNoStep()
{
    ViewHistory history;
    const QObject plot;
    PlotView view = wholeView();
    history.note({{&plot, view}});
    view.rescale(thousandAmperes);
    QVERIFY(!history.canGoBack({{&plot, view}}));
    QVERIFY(history.goBack({{&plot, view}}).value(&plot).live() == view.live());
}

void TestViewHistory::aPlotThatCameLaterFollowsInTime()
{
    ViewHistory history;
    const QObject first;
    const QObject added;
    PlotView view = wholeView();
    history.note({{&first, view}});
    view.showTimes(300, 400);
    PlotView later = view;
    later.zoomValues(0.5, true);
    const ViewHistory::Views back = history.goBack({{&first, view}, {&added, later}});
    QCOMPARE(back.value(&first).live().maxX, 1000.0);
    QCOMPARE(back.value(&added).live().maxX, 1000.0);
    QCOMPARE(back.value(&added).live().maxY, 6.0);
}

void TestViewHistory::aPlotThatWentIsForgotten()
{
    ViewHistory history;
    const QObject first;
    const QObject removed;
    PlotView view = wholeView();
    PlotView other = wholeView();
    history.note({{&first, view}, {&removed, other}});
    other.zoomValues(0.5, true);
    history.note({{&first, view}, {&removed, other}});
    QVERIFY(history.canGoBack({{&first, view}, {&removed, other}}));
    history.forget(&removed);
    QVERIFY(!history.canGoBack({{&first, view}}));
    view.zoomTime(0.5);
    QVERIFY(history.canGoBack({{&first, view}}));
    history.forget(&first);
    QVERIFY(!history.canGoBack({{&first, view}}));
}

void TestViewHistory::theOldestStepsAreGivenUp()
{
    ViewHistory history;
    const QObject plot;
    PlotView view = wholeView();
    for (int i = 0; i < ViewHistory::most + 5; ++i) {
        history.note({{&plot, view}});
        view.showTimes(i + 1, i + 101);
    }
    int steps = 0;
    while (history.canGoBack({{&plot, view}})) {
        view = history.goBack({{&plot, view}}).value(&plot);
        ++steps;
    }
    QCOMPARE(steps, 200);
    QCOMPARE(view.live().minX, 5.0);
}

QTEST_APPLESS_MAIN(TestViewHistory)
#include "tst_viewhistory.moc"
