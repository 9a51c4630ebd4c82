// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "baselayer.h"
#include "cursormarks.h"
#include "overlay.h"
#include "plotgeometry.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

// Over a plot of 803 x 301 without readout, 0 to 1000 ms.
class TestOverlay : public QObject {
    Q_OBJECT

private slots:
    void init();

    void thePictureIsAsHighAsItsStrip_data();
    void thePictureIsAsHighAsItsStrip();
    void theTextsStandWhereTheyArePaintedAtOnce_data();
    void theTextsStandWhereTheyArePaintedAtOnce();
    void anotherDrawingLeavesNothingOfTheOneBefore();
    void clearedItTakesNoRoom();

private:
    // What a painter leaves in a black picture of the plot.
    template <typename Paint> static QImage picture(qreal ratio, const Paint &paint);

    const PlotGeometry geometry{{803, 301}, 0, {0, 1000, 10, -12, 12, 8}};
    QWidget plot;
    CursorMarks marks{&plot};
    Overlay overlay;
};

void TestOverlay::init()
{
    overlay.clear();
    marks.clear();
    for (const double time : {100, 200, 203, 800})
        marks.add(time);
}

template <typename Paint> QImage TestOverlay::picture(qreal ratio, const Paint &paint)
{
    QImage image(QSize(803, 301) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    QPainter painter(&image);
    paint(painter);
    return image;
}

// The strip reaches from 40 to 64; at its ends, parts of a pixel of the screen count as whole ones.
void TestOverlay::thePictureIsAsHighAsItsStrip_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("1") << 1.0 << QSize(803, 24);
    QTest::newRow("1.25") << 1.25 << QSize(1004, 30);
    QTest::newRow("1.33, from 53.2 to 85.12") << 1.33 << QSize(1068, 33);
    QTest::newRow("1.5") << 1.5 << QSize(1205, 36);
    QTest::newRow("2") << 2.0 << QSize(1606, 48);
}

void TestOverlay::thePictureIsAsHighAsItsStrip()
{
    QFETCH(qreal, ratio);
    overlay.draw(marks, geometry, {}, plot.font(), ratio);
    QTEST(overlay.pixels(), "pixels");
}

void TestOverlay::theTextsStandWhereTheyArePaintedAtOnce_data()
{
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 1.1, 1.25, 1.33, 1.5, 1.75, 2.0, 3.0})
        QTest::addRow("%g", ratio) << ratio;
}

void TestOverlay::theTextsStandWhereTheyArePaintedAtOnce()
{
    QFETCH(qreal, ratio);
    overlay.draw(marks, geometry, {}, plot.font(), ratio);
    const QImage atOnce = picture(ratio, [&](QPainter &painter) {
        painter.setFont(smallFont(plot.font()));
        marks.paintDifferences(painter, geometry, {});
    });
    const QImage copied = picture(ratio, [&](QPainter &painter) { overlay.paint(painter); });
    QCOMPARE(copied, atOnce);
    QVERIFY(copied != picture(ratio, [](QPainter & /*painter*/) {}));
}

void TestOverlay::anotherDrawingLeavesNothingOfTheOneBefore()
{
    overlay.draw(marks, geometry, {}, plot.font(), 1);
    marks.clear();
    overlay.draw(marks, geometry, {}, plot.font(), 1);
    QCOMPARE(picture(1, [&](QPainter &painter) { overlay.paint(painter); }),
        picture(1, [](QPainter & /*painter*/) {}));
}

void TestOverlay::clearedItTakesNoRoom()
{
    overlay.draw(marks, geometry, {}, plot.font(), 1);
    overlay.clear();
    QVERIFY(overlay.pixels().isEmpty());
    QCOMPARE(picture(1, [&](QPainter &painter) { overlay.paint(painter); }),
        picture(1, [](QPainter & /*painter*/) {}));
}

QTEST_MAIN(TestOverlay)
#include "tst_overlay.moc"
