// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotpair.h"

#include <QFrame>
#include <QtTest>

#include <memory>

// Markers are placed as the traces are, over 703 pixels for the 1000 ms.
class TestSaveMarker : public QObject {
    Q_OBJECT

private slots:
    void init() { pair = std::make_unique<PlotPair>(); }
    void cleanup() { pair.reset(); }

    void standAtTheirTimes_data();
    void standAtTheirTimes();
    void timesAreCutToWholeMilliseconds();
    void zeroIsATime();
    void followTheView();
    void clearedOnesStayAway();

private:
    std::unique_ptr<PlotPair> pair;
};

void TestSaveMarker::standAtTheirTimes_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<int>("x");
    QTest::newRow("at the first time") << 0.0 << true << 100;
    QTest::newRow("in the middle") << 500.0 << true << 452;
    QTest::newRow("at the right edge") << 998.0 << true << 802;
    QTest::newRow("right of the view") << 1001.0 << false << 804;
    QTest::newRow("left of the view stays") << -100.0 << true << 30;
}

void TestSaveMarker::standAtTheirTimes()
{
    QFETCH(double, time);
    QFETCH(int, x);
    for (const bool isStart : {true, false}) {
        if (isStart)
            pair->plot->setStartPoint(time);
        else
            pair->plot->setEndPoint(time);
        const auto *marker = pair->plot->findChild<QFrame *>(
            isStart ? QStringLiteral("startMarker") : QStringLiteral("endMarker"));
        QTEST(marker->isVisibleTo(pair->plot), "visible");
        QCOMPARE(marker->geometry(), QRect(QPoint(x, 60), QPoint(x, 260)));
    }
}

void TestSaveMarker::timesAreCutToWholeMilliseconds()
{
    pair->plot->setStartPoint(12.9);
    pair->plot->setEndPoint(12.9);
    for (const QString &name : {QStringLiteral("startMarker"), QStringLiteral("endMarker")})
        QCOMPARE(pair->plot->findChild<QFrame *>(name)->x(), 100 + 8); // 12.9 ms would be at 109
}

void TestSaveMarker::zeroIsATime()
{
    pair->plot->setEndPoint(700);
    const auto *start = pair->plot->findChild<QFrame *>(QStringLiteral("startMarker"));
    QVERIFY(!start->isVisibleTo(pair->plot));
    pair->plot->setStartPoint(0);
    QVERIFY(start->isVisibleTo(pair->plot));
}

void TestSaveMarker::followTheView()
{
    pair->plot->setStartPoint(250);
    const auto *marker = pair->plot->findChild<QFrame *>(QStringLiteral("startMarker"));
    pair->plot->customZoomIn();
    QCOMPARE(marker->x(), 452);
    pair->plot->customZoomIn(); // 250 ms is one pixel right of the last place for a marker
    QVERIFY(!marker->isVisibleTo(pair->plot));
}

void TestSaveMarker::clearedOnesStayAway()
{
    pair->plot->setStartPoint(100);
    pair->plot->setEndPoint(200);
    pair->plot->clearSaveMarkers();
    pair->plot->refreshPixmap();
    for (const QString &name : {QStringLiteral("startMarker"), QStringLiteral("endMarker")})
        QVERIFY(!pair->plot->findChild<QFrame *>(name)->isVisibleTo(pair->plot));
}

QTEST_MAIN(TestSaveMarker)
#include "tst_savemarker.moc"
