// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotgeometry.h"

#include <QtTest>

#include <limits>

class TestPlotGeometry : public QObject {
    Q_OBJECT

private slots:
    void area_data();
    void area();
    void isDrawable_data();
    void isDrawable();
    void threeMappingsDiffer();
    void valuesGoUpward();
    void pixelIsNearestAndBounded_data();
    void pixelIsNearestAndBounded();
    void truncatedIsBounded_data();
    void truncatedIsBounded();
    void rows();
};

void TestPlotGeometry::area_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("readout");
    QTest::addColumn<QRect>("area");
    QTest::newRow("without readout")
        << QSize(800, 400) << 0 << QRect(QPoint(100, 60), QPoint(797, 359));
    QTest::newRow("with readout") << QSize(800, 400) << 150
                                  << QRect(QPoint(100, 60), QPoint(647, 359));
}

void TestPlotGeometry::area()
{
    QFETCH(QSize, size);
    QFETCH(int, readout);
    QTEST(PlotGeometry(size, readout, {}).area(), "area");
}

void TestPlotGeometry::isDrawable_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("drawable");
    QTest::newRow("plot width of 2") << QSize(102, 400) << false;
    QTest::newRow("plot width of 3") << QSize(103, 400) << true;
    QTest::newRow("plot height of 59") << QSize(400, 100) << false;
    QTest::newRow("plot height of 60") << QSize(400, 101) << true;
}

void TestPlotGeometry::isDrawable()
{
    QFETCH(QSize, size);
    QTEST(PlotGeometry(size, 0, {}).isDrawable(), "drawable");
}

// A widget 803 wide without readout has a plot width of 703, and 700 for the time line and cursors.
void TestPlotGeometry::threeMappingsDiffer()
{
    const PlotGeometry geometry(QSize(803, 401), 0, {0, 1000, 10, -1, 1, 4});
    QCOMPARE(geometry.traceX(0), 100.0);
    QCOMPARE(geometry.traceX(1000), 803.0);
    QCOMPARE(geometry.traceX(500), 451.5);
    QCOMPARE(geometry.lineTime(100), 0.0);
    QCOMPARE(geometry.lineTime(800), 1000.0);
    QCOMPARE(geometry.lineTime(450), 500.0);
    QCOMPARE(geometry.lineTime(50), -1000.0 * 50 / 700);
    QCOMPARE(geometry.cursorX(500), 450.0);
    QCOMPARE(geometry.cursorX(1000), 800.0);
}

void TestPlotGeometry::valuesGoUpward()
{
    const PlotGeometry geometry(QSize(800, 401), 0, {0, 1, 4, -10, 10, 4});
    QCOMPARE(geometry.traceY(10), 60.0);
    QCOMPARE(geometry.traceY(0), 210.0);
    QCOMPARE(geometry.traceY(-10), 360.0);
}

void TestPlotGeometry::pixelIsNearestAndBounded_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<int>("pixel");
    QTest::newRow("below a half") << 10.49 << 10;
    QTest::newRow("a half") << 10.5 << 11;
    QTest::newRow("a negative half") << -10.5 << -11;
    QTest::newRow("far right") << 1e30 << 1048576;
    QTest::newRow("far left") << -1e30 << -1048576;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 1048576;
}

void TestPlotGeometry::pixelIsNearestAndBounded()
{
    QFETCH(double, position);
    QTEST(PlotGeometry::pixel(position), "pixel");
}

void TestPlotGeometry::truncatedIsBounded_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("whole");
    QTest::newRow("positive") << 12.9 << 12;
    QTest::newRow("negative") << -12.9 << -12;
    QTest::newRow("too large") << 1e12 << std::numeric_limits<int>::max();
    QTest::newRow("too small") << -1e12 << std::numeric_limits<int>::min();
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void TestPlotGeometry::truncatedIsBounded()
{
    QFETCH(double, value);
    QTEST(PlotGeometry::truncated(value), "whole");
}

// Three rows in a plot 301 high: the plot area is 200 high, the base lines stand a quarter apart.
void TestPlotGeometry::rows()
{
    const PlotGeometry geometry(QSize(800, 301), 0, {});
    QCOMPARE(geometry.rowY(0, 3), 110);
    QCOMPARE(geometry.rowY(1, 3), 160);
    QCOMPARE(geometry.rowY(2, 3), 210);
}

QTEST_APPLESS_MAIN(TestPlotGeometry)
#include "tst_plotgeometry.moc"
