// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "phasordiagram.h"

#include <QtTest>
#include <cmath>
#include <limits>

namespace {

const QSize label(365, 365);
// For this extreme the axis maximum is 100 and the grid has 1.525 pixels per unit, as a float a
// little less.
constexpr double extremeOf100 = 95;
constexpr float pi = 3.14159265F;
constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace

class TestPhasorDiagram : public QObject {
    Q_OBJECT

private slots:
    void roundsTheAxisUpToTwoDigits_data();
    void roundsTheAxisUpToTwoDigits();
    void placesTheGridLines_data();
    void placesTheGridLines();
    void labelsTheAxes_data();
    void labelsTheAxes();
    void placesTheAxisLabels_data();
    void placesTheAxisLabels();
    void placesTheOriginAtTheGridsCentre();
    void endsTheLines_data();
    void endsTheLines();
    void placesMagnitudesInThreeColumns_data();
    void placesMagnitudesInThreeColumns();
};

void TestPhasorDiagram::roundsTheAxisUpToTwoDigits_data()
{
    QTest::addColumn<double>("extreme");
    QTest::addColumn<double>("maximum");

    QTest::newRow("no channel gives 0") << 0.0 << 0.0;
    QTest::newRow("two digits before the point") << 70.7 << 75.0; // 74.235
    QTest::newRow("three digits") << 100.0 << 110.0; // 105
    QTest::newRow("the margin of 5 % adds a digit") << 99.9 << 110.0; // 104.895
    QTest::newRow("just below 1") << 0.952 << 1.0; // 0.9996
    QTest::newRow("just above 1") << 0.953 << 1.1; // 1.00065
    QTest::newRow("just below 10") << 9.52 << 10.0; // 9.996
    QTest::newRow("just above 10") << 9.53 << 11.0; // 10.0065
    QTest::newRow("just below 100") << 95.2 << 100.0; // 99.96
    QTest::newRow("just above 100") << 95.3 << 110.0; // 100.065
    QTest::newRow("just below 1000") << 952.0 << 1000.0; // 999.6
    QTest::newRow("just above 1000") << 953.0 << 1100.0; // 1000.65
    QTest::newRow("four digits") << 1234.0 << 1300.0; // 1295.7
    QTest::newRow("one digit keeps a decimal") << 3.0 << 3.2; // 3.15
    QTest::newRow("less than 1 rounds up to tenths") << 0.02 << 0.1; // 0.021
    QTest::newRow("more than an int holds") << 5e9 << 5.3e9; // 5.25e9
    QTest::newRow("more than a 64-bit integer holds") << 3e38 << 3.2e38; // 3.15e38
}

void TestPhasorDiagram::roundsTheAxisUpToTwoDigits()
{
    QFETCH(double, extreme);
    QFETCH(double, maximum);
    const double actual = PhasorDiagram(extreme, label).axisMaximum();
    QVERIFY2(std::abs(actual - maximum) <= 1e-12 * maximum, qPrintable(QString::number(actual)));
}

void TestPhasorDiagram::placesTheGridLines_data()
{
    QTest::addColumn<double>("extreme");
    QTest::addColumn<QVector<int>>("lines");

    QTest::newRow("ten cells of 30.5 pixels, truncated")
        << extremeOf100 << QVector<int>{0, 30, 60, 91, 121, 152, 182, 213, 243, 274, 304};
    const QVector<int> evenly{0, 30, 61, 91, 122, 152, 183, 213, 244, 274, 305};
    QTest::newRow("an axis of 0 has the same grid") << 0.0 << evenly;
    QTest::newRow("so has one without end") << infinity << evenly;
}

void TestPhasorDiagram::placesTheGridLines()
{
    QFETCH(double, extreme);
    const PhasorDiagram diagram(extreme, label);
    QVector<int> lines;
    for (int k = 0; k < PhasorDiagram::lineCount; ++k)
        lines.append(diagram.gridLine(k));
    QTEST(lines, "lines");
    QCOMPARE(diagram.width(), 305);
    QCOMPARE(diagram.height(), 305);
}

void TestPhasorDiagram::labelsTheAxes_data()
{
    QTest::addColumn<double>("extreme");
    QTest::addColumn<QString>("horizontal");

    QTest::newRow("from minus to plus the maximum, 0 in the middle")
        << extremeOf100 << QStringLiteral("-100 -80 -60 -40 -20 0 20 40 60 80 100");
    QTest::newRow("with decimals")
        << 3.0 << QStringLiteral("-3.2 -2.56 -1.92 -1.28 -0.64 0 0.64 1.28 1.92 2.56 3.2");
    QTest::newRow("six digits, then an exponent")
        << 5e9
        << QStringLiteral("-5.3e+09 -4.24e+09 -3.18e+09 -2.12e+09 -1.06e+09 0 1.06e+09 2.12e+09 "
                          "3.18e+09 4.24e+09 5.3e+09");
    const auto nans = QStringLiteral("nan nan nan nan nan nan nan nan nan nan nan");
    QTest::newRow("an axis of 0 has no numbers") << 0.0 << nans;
    QTest::newRow("nor has one without end") << infinity << nans;
}

void TestPhasorDiagram::labelsTheAxes()
{
    QFETCH(double, extreme);
    QFETCH(QString, horizontal);
    const PhasorDiagram diagram(extreme, label);
    QStringList leftToRight;
    QStringList bottomToTop;
    for (int k = 0; k < PhasorDiagram::lineCount; ++k) {
        leftToRight.append(diagram.horizontalText(k));
        bottomToTop.prepend(diagram.verticalText(k));
    }
    QCOMPARE(leftToRight.join(QLatin1Char(' ')), horizontal);
    QCOMPARE(bottomToTop.join(QLatin1Char(' ')), horizontal);
}

void TestPhasorDiagram::placesTheAxisLabels_data()
{
    QTest::addColumn<double>("extreme");
    QTest::addColumn<int>("k");
    QTest::addColumn<QRect>("vertical");
    QTest::addColumn<QRect>("horizontal");

    // Line k stands at k x 30.5; the vertical label 4 pixels above it, the horizontal one 14 pixels
    // left of line k + 1; y is 364 - 49.
    QTest::newRow("first") << extremeOf100 << 0 << QRect(0, -4, 30, 10) << QRect(16, 315, 30, 10);
    QTest::newRow("second") << extremeOf100 << 1 << QRect(0, 26, 30, 10) << QRect(46, 315, 30, 10);
    QTest::newRow("middle") << extremeOf100 << 5 << QRect(0, 148, 30, 10)
                            << QRect(168, 315, 30, 10);
    QTest::newRow("last") << extremeOf100 << 10 << QRect(0, 300, 30, 10) << QRect(321, 315, 30, 10);
    QTest::newRow("second of an axis of 0")
        << 0.0 << 1 << QRect(0, 26, 30, 10) << QRect(47, 315, 30, 10);
    QTest::newRow("last of an axis of 0")
        << 0.0 << 10 << QRect(0, 301, 30, 10) << QRect(321, 315, 30, 10);
}

void TestPhasorDiagram::placesTheAxisLabels()
{
    QFETCH(double, extreme);
    QFETCH(int, k);
    const PhasorDiagram diagram(extreme, label);
    QTEST(diagram.verticalTextRect(k), "vertical");
    QTEST(diagram.horizontalTextRect(k), "horizontal");
}

void TestPhasorDiagram::placesTheOriginAtTheGridsCentre()
{
    QCOMPARE(PhasorDiagram(extremeOf100, label).origin(), QPoint(182, 172));
    QCOMPARE(PhasorDiagram(extremeOf100, QSize(360, 260)).origin(), QPoint(180, 120));
}

void TestPhasorDiagram::endsTheLines_data()
{
    QTest::addColumn<double>("extreme");
    QTest::addColumn<float>("angle");
    QTest::addColumn<float>("magnitude");
    QTest::addColumn<float>("reference");
    QTest::addColumn<QPoint>("end");

    const float huge = std::numeric_limits<float>::infinity();
    const float none = std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("angle 0 points right") << extremeOf100 << 0.0F << 50.0F << 0.0F << QPoint(76, 0);
    QTest::newRow("a quarter turn points up")
        << extremeOf100 << pi / 2 << 50.0F << 0.0F << QPoint(0, 76);
    QTest::newRow("half a turn points left, truncated toward 0")
        << extremeOf100 << pi << 50.0F << 0.0F << QPoint(-76, 0);
    QTest::newRow("minus a quarter points down")
        << extremeOf100 << -pi / 2 << 50.0F << 0.0F << QPoint(0, -76);
    QTest::newRow("an eighth turn")
        << extremeOf100 << pi / 4 << 50.0F << 0.0F << QPoint(53, 53); // 53.92
    QTest::newRow("the reference itself lies on the axis")
        << extremeOf100 << 1.2F << 50.0F << 1.2F << QPoint(76, 0);
    QTest::newRow("others turn with it")
        << extremeOf100 << 0.0F << 50.0F << pi / 2 << QPoint(0, -76);
    QTest::newRow("magnitude 0 has no length")
        << extremeOf100 << 1.0F << 0.0F << 0.0F << QPoint(0, 0);
    QTest::newRow("an axis of 0") << 0.0 << 1.0F << 0.0F << 0.0F << QPoint(0, 0);
    QTest::newRow("an endless magnitude is bounded")
        << extremeOf100 << pi / 4 << huge << 0.0F << QPoint(10000, 10000);
    QTest::newRow("not a number has no length")
        << extremeOf100 << none << 50.0F << 0.0F << QPoint(0, 0);
}

void TestPhasorDiagram::endsTheLines()
{
    QFETCH(double, extreme);
    QFETCH(float, angle);
    QFETCH(float, magnitude);
    QFETCH(float, reference);
    const PhasorDiagram diagram(extreme, label);
    QTEST(diagram.lineEnd({angle, magnitude}, reference), "end");
}

void TestPhasorDiagram::placesMagnitudesInThreeColumns_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QPoint>("position");

    QTest::newRow("first") << 0 << QPoint(0, 15);
    QTest::newRow("second") << 1 << QPoint(121, 15);
    QTest::newRow("third ends the row") << 2 << QPoint(242, 15);
    QTest::newRow("fourth starts the next row") << 3 << QPoint(0, 30);
    QTest::newRow("eighth") << 7 << QPoint(121, 45);
}

void TestPhasorDiagram::placesMagnitudesInThreeColumns()
{
    QFETCH(int, number);
    QTEST(magnitudeTextPosition(number, 365), "position");
}

QTEST_APPLESS_MAIN(TestPhasorDiagram)
#include "tst_phasordiagram.moc"
