// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "harmonicbars.h"

#include <QtTest>

namespace {

const QColor blue(0x00, 0xb9, 0xf2);
const QColor panel(0x31, 0x30, 0x34);

Harmonics harmonicsOf(const QList<double> &values)
{
    Harmonics harmonics;
    for (int i = 0; i < values.size(); ++i)
        harmonics[static_cast<size_t>(i)] = values.at(i);
    return harmonics;
}

bool has(const QImage &picture, const QRect &place, bool (*isSought)(const QColor &))
{
    for (int x = place.left(); x <= place.right(); ++x) {
        for (int y = place.top(); y <= place.bottom(); ++y) {
            if (isSought(picture.pixelColor(x, y)))
                return true;
        }
    }
    return false;
}

bool hasBlue(const QImage &picture, const QRect &place)
{
    return has(picture, place, [](const QColor &color) { return color == blue; });
}

bool hasText(const QImage &picture, const QRect &place)
{
    return has(picture, place, [](const QColor &color) { return color.lightness() > 150; });
}

} // namespace

class TestHarmonicBars : public QObject {
    Q_OBJECT

private slots:
    void barsAreAsHighAsTheHarmonics();
    void barsStandSideBySide_data();
    void barsStandSideBySide();
    void barsAreDrawnInTheirPlaces();
    void narrowBarsHaveTheirShares_data();
    void narrowBarsHaveTheirShares();
    void withoutHarmonicsThereIsAText();
    void whatIsNotFiniteHasNoBar();
};

void TestHarmonicBars::barsAreAsHighAsTheHarmonics()
{
    HarmonicBars bars;
    bars.resize(462, 300);
    bars.setHarmonics(harmonicsOf({10, 5, 0, 2.5}), QString());
    const int room = 300 - 2 * 6 - 2 * bars.fontMetrics().height(); // beside the texts
    QCOMPARE(bars.bar(1).height(), room);
    QCOMPARE(bars.bar(2).height(), qRound(room / 2.0));
    QCOMPARE(bars.bar(3).height(), 0);
    QCOMPARE(bars.bar(4).height(), qRound(room / 4.0));
    QVERIFY(bars.bar(5).isNull()); // there is no fifth
    QCOMPARE(bars.bar(1).bottom(), bars.bar(4).bottom());
    // The highest need not be the fundamental.
    bars.setHarmonics(harmonicsOf({5, 10}), QString());
    QCOMPARE(bars.bar(1).height(), qRound(room / 2.0));
    QCOMPARE(bars.bar(2).height(), room);
}

void TestHarmonicBars::barsStandSideBySide_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("as small as can be") << HarmonicBars().minimumSizeHint();
    QTest::newRow("usual") << QSize(400, 250);
    QTest::newRow("wide") << QSize(1777, 250);
}

void TestHarmonicBars::barsStandSideBySide()
{
    QFETCH(QSize, size);
    HarmonicBars bars;
    bars.resize(size);
    bars.setHarmonics(harmonicsOf({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}), QString());
    QRect before(0, 0, 1, 1);
    for (int order = 1; order <= 15; ++order) {
        const QRect bar = bars.bar(order);
        QVERIFY(bar.width() > 0 && bar.height() > 0);
        QVERIFY(bar.left() > before.right());
        QVERIFY(bars.rect().contains(bar));
        before = bar;
    }
}

void TestHarmonicBars::barsAreDrawnInTheirPlaces()
{
    HarmonicBars bars;
    bars.resize(462, 300);
    bars.setHarmonics(harmonicsOf({10, 5}), QString());
    const QImage picture = bars.grab().toImage();
    QCOMPARE(picture.pixelColor(bars.bar(2).center()), blue);
    QCOMPARE(picture.pixelColor(bars.bar(2).topLeft()), blue);
    QCOMPARE(picture.pixelColor(bars.bar(2).bottomRight()), blue);
    QCOMPARE(picture.pixelColor(bars.bar(2).left() - 1, bars.bar(2).center().y()), panel);
    QCOMPARE(picture.pixelColor(bars.bar(1).right() + 1, bars.bar(1).center().y()), panel);
    // The order below the bar and the share above it.
    const QRect bar = bars.bar(2);
    QVERIFY(hasText(picture, {bar.left(), bar.bottom() + 2, bar.width(), 14}));
    QVERIFY(hasText(picture, {bar.left(), bar.top() - 15, bar.width(), 14}));
}

void TestHarmonicBars::narrowBarsHaveTheirShares_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QList<double>>("values");
    const int least = HarmonicBars().minimumSizeHint().width();
    for (const int width : {least, 320, 345, 400, 800}) {
        QTest::addRow("the fundamental alone, %d", width) << width << QList<double>{10};
        QTest::addRow("one hundred each, %d", width)
            << width << QList<double>{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
        QTest::addRow("above the fundamental, %d", width) << width << QList<double>{1, 12.5, 8};
    }
}

// Each bar has white above it.
void TestHarmonicBars::narrowBarsHaveTheirShares()
{
    QFETCH(int, width);
    QFETCH(QList<double>, values);
    HarmonicBars bars;
    bars.resize(width, 200);
    bars.setHarmonics(harmonicsOf(values), QString());
    const QImage picture = bars.grab().toImage();
    for (int order = 1; order <= values.size(); ++order) {
        const QRect bar = bars.bar(order);
        const QRect above(bar.left(), bar.top() - bars.fontMetrics().height(), bar.width(),
            bars.fontMetrics().height());
        QVERIFY2(hasText(picture, above), qPrintable(QString::number(order)));
    }
}

void TestHarmonicBars::withoutHarmonicsThereIsAText()
{
    HarmonicBars bars;
    bars.resize(462, 300);
    const QImage empty = bars.grab().toImage();
    bars.setHarmonics(Harmonics(), QStringLiteral("There is no cursor."));
    QVERIFY(bars.bar(1).isNull());
    QVERIFY(bars.grab().toImage() != empty);
    bars.setHarmonics(harmonicsOf({0, 0}), QString()); // a dead channel
    QVERIFY(bars.bar(1).isNull());
    QVERIFY(!hasBlue(bars.grab().toImage(), bars.rect()));
}

void TestHarmonicBars::whatIsNotFiniteHasNoBar()
{
    HarmonicBars bars;
    bars.resize(462, 300);
    bars.setHarmonics(harmonicsOf({10, qInf(), qQNaN()}), QString());
    QVERIFY(bars.bar(1).height() > 0);
    QVERIFY(bars.bar(2).isNull());
    QVERIFY(bars.bar(3).isNull());
    const QImage picture = bars.grab().toImage();
    QVERIFY(hasBlue(picture, bars.bar(1)));
    QVERIFY(!hasBlue(picture, QRect(QPoint(bars.bar(1).right() + 1, 0), QPoint(461, 299))));
}

QTEST_MAIN(TestHarmonicBars)
#include "tst_harmonicbars.moc"
