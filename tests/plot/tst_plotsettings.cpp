// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotsettings.h"

#include <QtTest>

#include <cmath>
#include <limits>

class TestPlotSettings : public QObject {
    Q_OBJECT

private slots:
    void adjustAxis_data();
    void adjustAxis();
    void anyRangeBecomesUsable_data();
    void anyRangeBecomesUsable();
    void scroll_data();
    void scroll();
    void scrollKeepsAViewThatCannotMove_data();
    void scrollKeepsAViewThatCannotMove();
    void spans();
};

void TestPlotSettings::adjustAxis_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("adjustedMin");
    QTest::addColumn<double>("adjustedMax");
    QTest::addColumn<double>("ticks");

    QTest::newRow("0 to 10 stays, step 1") << 0.0 << 10.0 << 0.0 << 10.0 << 10.0;
    QTest::newRow("0 to 1.4 widens to step 0.3") << 0.0 << 1.4 << 0.0 << 1.5 << 5.0;
    QTest::newRow("0 to 0.5 stays, step 0.1") << 0.0 << 0.5 << 0.0 << 0.5 << 5.0;
    QTest::newRow("0 to 0.3 stays, step 0.05") << 0.0 << 0.3 << 0.0 << 0.3 << 6.0;
    QTest::newRow("0.1 to 0.35 stays, step 0.05") << 0.1 << 0.35 << 0.1 << 0.35 << 5.0;
    QTest::newRow("gross step at three steps is not tripled") << 0.0 << 12.0 << 0.0 << 12.0 << 12.0;
    QTest::newRow("gross step just above three is") << 0.0 << 12.4 << 0.0 << 15.0 << 5.0;
    QTest::newRow("gross step at five steps is only tripled") << 0.0 << 20.0 << 0.0 << 21.0 << 7.0;
    QTest::newRow("gross step above five is quintupled") << 0.0 << 24.0 << 0.0 << 25.0 << 5.0;
    QTest::newRow("both ends move outward") << -7.3 << 4.1 << -8.0 << 5.0 << 13.0;
    QTest::newRow("a cycle of times") << 72.5 << 105.0 << 70.0 << 105.0 << 7.0;
    QTest::newRow("a flat range is first widened by one") << 3.0 << 3.0 << 1.8 << 4.2 << 8.0;
    QTest::newRow("an inverted range counts as flat") << 2.0 << 1.0 << 0.9 << 3.0 << 7.0;
}

void TestPlotSettings::adjustAxis()
{
    QFETCH(double, min);
    QFETCH(double, max);
    double ticks = 0;
    PlotSettings::adjustAxis(min, max, ticks);
    QTEST(min, "adjustedMin");
    QTEST(max, "adjustedMax");
    QTEST(ticks, "ticks");
}

void TestPlotSettings::anyRangeBecomesUsable_data()
{
    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double big = std::numeric_limits<double>::max();
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::newRow("infinite above") << 0.0 << inf;
    QTest::newRow("infinite below") << -inf << 0.0;
    QTest::newRow("infinite on both sides") << -inf << inf;
    QTest::newRow("not a number") << nan << nan;
    QTest::newRow("not a number above") << 1.0 << nan;
    QTest::newRow("the largest doubles") << -big << big;
    QTest::newRow("flat at the largest double") << big << big;
    QTest::newRow("finer than doubles tell apart") << 1e9 << std::nextafter(1e9, 2e9);
    QTest::newRow("denormal") << 0.0 << 5e-324;
    QTest::newRow("flat at zero") << 0.0 << 0.0;
    QTest::newRow("far below zero") << -1e18 << -1e18;
}

void TestPlotSettings::anyRangeBecomesUsable()
{
    QFETCH(double, min);
    QFETCH(double, max);
    double ticks = 0;
    PlotSettings::adjustAxis(min, max, ticks);
    QVERIFY(std::isfinite(min));
    QVERIFY(std::isfinite(max));
    QVERIFY(max > min);
    QVERIFY(ticks >= 4);
    QVERIFY(ticks <= 50);
    QVERIFY(min + (max - min) / ticks > min);
}

void TestPlotSettings::scroll_data()
{
    QTest::addColumn<int>("dx");
    QTest::addColumn<int>("dy");
    QTest::addColumn<QVector<double>>("ends");
    QTest::newRow("right by one interval") << 1 << -100 << QVector<double>{10, 110, -5, 5};
    QTest::newRow("left by three intervals") << -3 << -100 << QVector<double>{-30, 70, -5, 5};
    QTest::newRow("up by two intervals") << -100 << 2 << QVector<double>{0, 100, -1, 9};
    QTest::newRow("both axes") << 2 << -1 << QVector<double>{20, 120, -7, 3};
    QTest::newRow("the sentinel on both axes") << -100 << -100 << QVector<double>{0, 100, -5, 5};
    QTest::newRow("by the largest step count") << std::numeric_limits<int>::max() << -100
                                               << QVector<double>{21474836470, 21474836570, -5, 5};
    QTest::newRow("by nothing") << 0 << 0 << QVector<double>{0, 100, -5, 5};
}

void TestPlotSettings::scroll()
{
    QFETCH(int, dx);
    QFETCH(int, dy);
    PlotSettings view{0, 100, 10, -5, 5, 5};
    view.scroll(dx, dy);
    QTEST((QVector<double>{view.minX, view.maxX, view.minY, view.maxY}), "ends");
    QCOMPARE(view.numXTicks, 10.0);
    QCOMPARE(view.numYTicks, 5.0);
}

void TestPlotSettings::scrollKeepsAViewThatCannotMove_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("steps");
    QTest::newRow("to where its span is too fine")
        << 999900000000.0 << 999900000001.0 << 2000000000;
    QTest::newRow("to where its span is too fine, below zero")
        << -999900000001.0 << -999900000000.0 << -2000000000;
    QTest::newRow("beyond the largest end") << 1e299 << 1e300 << 1000;
    QTest::newRow("beyond the smallest end") << -1e300 << -1e299 << -1000;
}

void TestPlotSettings::scrollKeepsAViewThatCannotMove()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, steps);
    PlotSettings view{min, max, 4, min, max, 4};
    view.scroll(steps, steps);
    QCOMPARE(view.minX, min);
    QCOMPARE(view.maxX, max);
    QCOMPARE(view.minY, min);
    QCOMPARE(view.maxY, max);
}

void TestPlotSettings::spans()
{
    const PlotSettings view{1, 4, 4, -2, 8, 4};
    QCOMPARE(view.spanX(), 3.0);
    QCOMPARE(view.spanY(), 10.0);
    QCOMPARE(sizeof(PlotSettings), size_t(48));
}

QTEST_APPLESS_MAIN(TestPlotSettings)
#include "tst_plotsettings.moc"
