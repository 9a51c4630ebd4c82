// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "phasorlookup.h"
#include "timeaxis.h"
#include "tracesummary.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

// Whole milliseconds from 0 on, and again from 0 on.
QVector<double> twice(int count)
{
    QVector<double> times;
    for (int i = 0; i < 2 * count; ++i)
        times.append(i % count);
    return times;
}

} // namespace

class TestTimeAxis : public QObject {
    Q_OBJECT

private slots:
    void facts_data();
    void facts();
    void runs_data();
    void runs();
    void firstAtOrAfter();
    void searchesMayStartLateWhereTimesAscend();
    void theSearchEndsWhereAFullOneDoes();
    void columnsHoldEverySampleOnce_data();
    void columnsHoldEverySampleOnce();
    void columnsEndRightOfTheArea();
    void columnsOfARunThatGoesBack();
    void extentOfAnyRun_data();
    void extentOfAnyRun();
    void extentTellsOfGaps();
};

void TestTimeAxis::facts_data()
{
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<bool>("ascending");
    QTest::addColumn<double>("smallest");
    QTest::addColumn<double>("largest");
    using Times = QVector<double>;
    QTest::newRow("none") << Times{} << true << 0.0 << 0.0;
    QTest::newRow("one") << Times{5} << true << 5.0 << 5.0;
    QTest::newRow("ascending") << Times{-1, 0, 3} << true << -1.0 << 3.0;
    QTest::newRow("equal neighbours") << Times{0, 1, 1, 2} << true << 0.0 << 2.0;
    QTest::newRow("runs back") << Times{0, 5, 2, 7} << false << 0.0 << 7.0;
    QTest::newRow("a gap") << Times{0, noNumber, 2} << false << 0.0 << 2.0;
    QTest::newRow("infinite at the end") << Times{0, 1, infinite} << true << 0.0 << 1.0;
    QTest::newRow("nothing finite") << Times{infinite} << true << 0.0 << 0.0;
}

void TestTimeAxis::facts()
{
    QFETCH(QVector<double>, times);
    const TimeAxis axis(times);
    QTEST(axis.isAscending(), "ascending");
    QTEST(axis.smallest(), "smallest");
    QTEST(axis.largest(), "largest");
    QCOMPARE(axis.times().constData(), times.constData());
}

void TestTimeAxis::runs_data()
{
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<QVector<int>>("ends"); // of the runs
    using Times = QVector<double>;
    using Ends = QVector<int>;
    QTest::newRow("no samples") << Times{} << Ends{};
    QTest::newRow("one sample") << Times{5} << Ends{1};
    QTest::newRow("ascending") << Times{0, 1, 1, 2} << Ends{4};
    QTest::newRow("one step back") << twice(20) << Ends{20, 40};
    QTest::newRow("a gap") << twice(20) + Times{noNumber, 1} + twice(20)
                           << Ends{20, 40, 41, 42, 62, 82};
    QTest::newRow("hardly ever ascending") << Times{0, 5, 2, 7} << Ends{};
}

void TestTimeAxis::runs()
{
    QFETCH(QVector<double>, times);
    QFETCH(QVector<int>, ends);
    int next = 0;
    QVector<int> found;
    const TimeAxis axis(times);
    for (const TimeAxis::Run &run : axis.runs()) {
        QCOMPARE(run.first, next);
        next = run.last;
        found.append(next);
    }
    QCOMPARE(found, ends);
}

void TestTimeAxis::firstAtOrAfter()
{
    const TimeAxis axis({0, 1, 1, 2, 0, 1});
    QCOMPARE(axis.firstAtOrAfter(-1, {0, 4}), 0);
    QCOMPARE(axis.firstAtOrAfter(1, {0, 4}), 1);
    QCOMPARE(axis.firstAtOrAfter(1.5, {0, 4}), 3);
    QCOMPARE(axis.firstAtOrAfter(3, {0, 4}), 4);
    QCOMPARE(axis.firstAtOrAfter(1, {4, 6}), 5);
    QCOMPARE(axis.firstAtOrAfter(3, {4, 6}), 6);
}

void TestTimeAxis::searchesMayStartLateWhereTimesAscend()
{
    QCOMPARE(TimeAxis({0, 1, 1, 2}).searchStart(1.5), 3);
    QCOMPARE(TimeAxis({0, 2, 1, 2}).searchStart(1.5), 0);
    const TimeAxis axis(twice(20)); // 0 to 19, and again
    QCOMPARE(axis.searchStart(5), 5);
    QCOMPARE(axis.searchStart(5.5), 6);
    QCOMPARE(axis.searchStart(19.5), 40);
    const TimeAxis gap(QVector<double>{noNumber} + twice(20));
    QCOMPARE(gap.searchStart(0), 1);
    QCOMPARE(gap.searchStart(5.5), 7);
}

void TestTimeAxis::theSearchEndsWhereAFullOneDoes()
{
    std::mt19937 random(9);
    for (int round = 0; round < 2000; ++round) {
        QVector<double> times;
        double time = 0;
        for (int i = 0; i < 100; ++i) {
            time += random() % 30 == 0 ? -double(random() % 20) : double(random() % 3);
            times.append(random() % 200 == 0 ? noNumber : time);
        }
        const TimeAxis axis(times);
        for (double searched = -5; searched < 110; searched += 0.5) {
            int fromTheFirst = 0;
            QCOMPARE(axis.sampleAt(0, searched), ::sampleAt(times, 0, searched, fromTheFirst));
        }
    }
}

void TestTimeAxis::columnsHoldEverySampleOnce_data()
{
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<double>("ratio");
    const auto steady = [](int count) {
        QVector<double> times;
        for (int i = 0; i < count; ++i)
            times.append(1000.0 * i / count);
        return times;
    };
    QTest::newRow("fewer samples than columns") << steady(50) << 1.0;
    QTest::newRow("many samples") << steady(100000) << 1.0;
    QTest::newRow("many samples at 1.5") << steady(100000) << 1.5;
    QTest::newRow("many samples at 3") << steady(100000) << 3.0;
    QTest::newRow("all at one time") << QVector<double>(1000, 500.0) << 1.0;

    std::mt19937 random(1);
    QVector<double> bursts;
    double time = 0;
    for (int i = 0; i < 20000; ++i) {
        time += random() % 100 == 0 ? 20 : 0.001 * double(random() % 10);
        bursts.append(time);
    }
    QTest::newRow("bursts with gaps") << bursts << 1.0;
    QTest::newRow("bursts with gaps at 1.25") << bursts << 1.25;
}

void TestTimeAxis::columnsHoldEverySampleOnce()
{
    QFETCH(QVector<double>, times);
    QFETCH(double, ratio);
    const TimeAxis axis(times);
    const PlotGeometry geometry(QSize(900, 300), 0, {0, times.constLast() + 1, 4, 0, 1, 4});
    int next = 0;
    int lastX = -1;
    for (const TimeAxis::Column &column : axis.columns(geometry, ratio)) {
        QCOMPARE(column.first, next);
        QVERIFY(column.last > column.first);
        QVERIFY(column.x > lastX);
        for (int i = column.first; i < column.last; ++i) {
            const double x = 100 + times[i] * 800 / (times.constLast() + 1);
            QCOMPARE(int(std::lround(x * ratio)), column.x);
        }
        lastX = column.x;
        next = column.last;
        if (column.x >= 898 * ratio) // the area ends at x = 897
            return;
    }
    QCOMPARE(next, times.size());
}

void TestTimeAxis::columnsEndRightOfTheArea()
{
    const TimeAxis axis({0, 10, 20, 30, 40});
    const PlotGeometry geometry(QSize(900, 300), 0, {10, 20, 4, 0, 1, 4});
    const QVector<TimeAxis::Column> columns = axis.columns(geometry, 1);
    QCOMPARE(columns.size(), 2);
    QCOMPARE(columns[0].x, 100);
    QCOMPARE(columns[0].first, 1);
    QCOMPARE(columns[1].x, 900);
    QCOMPARE(columns[1].first, 2);
    QCOMPARE(columns[1].last, 3);
    const QVector<TimeAxis::Column> columnsAtTwo = axis.columns(geometry, 2);
    QCOMPARE(columnsAtTwo.size(), 2);
    QCOMPARE(columnsAtTwo[0].x, 200);
    QCOMPARE(columnsAtTwo[1].x, 1800);
}

// 800 pixels from x = 100 on for 8 ms; the view begins at 2 and ends at 10. The second run begins
// where the first one came from.
void TestTimeAxis::columnsOfARunThatGoesBack()
{
    const PlotGeometry geometry(QSize(900, 300), 0, {2, 10, 4, 0, 1, 4});
    QVector<QVector<int>> found;
    for (const TimeAxis::Column &column : TimeAxis(twice(20)).columns(geometry, 1))
        found.append({column.x, column.first, column.last});
    QVector<QVector<int>> expected;
    for (const int begin : {0, 20}) {
        for (int i = 2; i <= 10; ++i)
            expected.append({100 * i - 100, begin + i, begin + i + 1});
        if (begin == 0)
            expected.append({1800, 19, 20}); // the line comes back from there
    }
    QCOMPARE(found, expected);
}

void TestTimeAxis::extentOfAnyRun_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {1, 15, 16, 17, 255, 256, 257, 5000})
        QTest::addRow("%d samples", count) << count;
}

void TestTimeAxis::extentOfAnyRun()
{
    QFETCH(int, count);
    std::mt19937 random(7);
    QVector<float> values;
    for (int i = 0; i < count; ++i)
        values.append(float(int(random() % 2001) - 1000));
    const TraceSummary summary(values);
    for (int round = 0; round < 2000; ++round) {
        const int first = int(random() % unsigned(count));
        const int last = first + 1 + int(random() % unsigned(count - first));
        const TraceExtent extent = summary.extent(first, last);
        QCOMPARE(extent.min, *std::min_element(values.cbegin() + first, values.cbegin() + last));
        QCOMPARE(extent.max, *std::max_element(values.cbegin() + first, values.cbegin() + last));
        QVERIFY(!extent.broken);
    }
}

void TestTimeAxis::extentTellsOfGaps()
{
    QVector<float> values(1000, 2.0F);
    values[500] = std::numeric_limits<float>::quiet_NaN();
    values[700] = std::numeric_limits<float>::infinity();
    const TraceSummary summary(values);
    QVERIFY(!summary.extent(0, 500).broken);
    QVERIFY(summary.extent(0, 501).broken);
    QVERIFY(!summary.extent(501, 700).broken);
    QVERIFY(summary.extent(501, 1000).broken);
    QCOMPARE(summary.extent(0, 1000).max, 2.0F);
    QVERIFY(summary.extent(500, 501).isEmpty());
    QVERIFY(summary.extent(3, 3).isEmpty());
}

QTEST_APPLESS_MAIN(TestTimeAxis)
#include "tst_timeaxis.moc"
