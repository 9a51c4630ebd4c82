// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotgeometry.h"
#include "timemark.h"

#include <QtTest>

namespace {

const QRgb blue = qRgb(0x79, 0xd7, 0xff);

} // namespace

// Over a plot of 803 x 301 that shows 0 to 1000 ms from x = 100 to 800.
class TestTimeMark : public QObject {
    Q_OBJECT

private slots:
    void isHiddenAtFirst();
    void standsBelowItsTime_data();
    void standsBelowItsTime();
    void needsAPlotArea_data();
    void needsAPlotArea();
    void pointsUp();

private:
    QWidget plot;
};

void TestTimeMark::isHiddenAtFirst()
{
    const TimeMark mark(&plot);
    QVERIFY(mark.isHidden());
    QVERIFY(mark.testAttribute(Qt::WA_TransparentForMouseEvents));
}

void TestTimeMark::standsBelowItsTime_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<int>("x"); // -1 where it is hidden
    QTest::newRow("in the middle") << 500.0 << 450;
    QTest::newRow("at the first pixel") << 0.0 << 100;
    QTest::newRow("at the last one") << 1000.0 << 800;
    QTest::newRow("a pixel before the first") << -1.0 << -1;
    QTest::newRow("a pixel behind the last") << 1001.0 << -1;
}

void TestTimeMark::standsBelowItsTime()
{
    QFETCH(double, time);
    QFETCH(int, x);
    TimeMark mark(&plot);
    for (int twice = 0; twice < 2; ++twice) {
        mark.show(300, {{803, 301}, 0, {0, 1000, 10, 0, 1, 4}});
        QVERIFY(!mark.isHidden());
        mark.show(time, {{803, 301}, 0, {0, 1000, 10, 0, 1, 4}});
        QCOMPARE(mark.isHidden(), x < 0);
        if (x < 0)
            continue;
        QCOMPARE(mark.geometry().center().x(), x);
        QCOMPARE(mark.y(), 261); // below the frame
    }
}

void TestTimeMark::needsAPlotArea_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("stands");
    QTest::newRow("of two pixels") << QSize(102, 301) << false;
    QTest::newRow("of three pixels") << QSize(103, 301) << true;
    QTest::newRow("without height") << QSize(803, 100) << false;
}

void TestTimeMark::needsAPlotArea()
{
    QFETCH(QSize, size);
    TimeMark mark(&plot);
    mark.show(0, {size, 0, {0, 1000, 10, 0, 1, 4}});
    QTEST(!mark.isHidden(), "stands");
}

// Its edges are smooth: the tip has a part of its pixel, the corners above it have nothing.
void TestTimeMark::pointsUp()
{
    plot.setStyleSheet(QStringLiteral("QWidget{background-color: black;}"));
    plot.resize(803, 301);
    TimeMark mark(&plot);
    mark.show(500, {{803, 301}, 0, {0, 1000, 10, 0, 1, 4}});
    const QImage image = plot.grab().toImage();
    QCOMPARE(image.devicePixelRatio(), 1.0);
    const auto at = [&](int x, int y) { return image.pixel(x, y); };
    QVERIFY(qBlue(at(450, 261)) > 40);
    QCOMPARE(at(450, 264), blue);
    QCOMPARE(at(448, 266), blue);
    QCOMPARE(at(452, 266), blue);
    for (const int x : {446, 447, 453, 454})
        QCOMPARE(at(x, 261), qRgb(0, 0, 0));
    for (int x = 440; x <= 460; ++x) {
        QCOMPARE(at(x, 260), qRgb(0, 0, 0)); // the frame stays free
        QCOMPARE(at(x, 267), qRgb(0, 0, 0));
    }
}

QTEST_MAIN(TestTimeMark)
#include "tst_timemark.moc"
