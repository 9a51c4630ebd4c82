// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cursormarks.h"
#include "plotgeometry.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QtTest>

#include <algorithm>
#include <random>

namespace {

using Differences = QVector<CursorMarks::Difference>;

QFont tenPixels()
{
    QFont font;
    font.setPixelSize(10);
    return font;
}

// A view of 0 to the span (ms) in a plot without readout.
PlotGeometry geometryOf(int width, double span)
{
    return {{width, 301}, 0, {0, span, 10, -12, 12, 8}};
}

// Whether a text has its middle over a line or covers all of it.
bool isOver(const QRect &place, const QRect &line)
{
    const int middle = place.left() + place.width() / 2;
    return (middle >= line.left() && middle <= line.right())
        || (place.left() <= line.left() && place.right() >= line.right());
}

} // namespace

class TestCursorMarks : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { marks.clear(); }

    void aTextStandsInTheMiddleBetweenItsCursors();
    void aTextNeedsTwoCursors();
    void textsOverCommonLinesMoveApart_data();
    void textsOverCommonLinesMoveApart();
    void textsNearTheEndsStand_data();
    void textsNearTheEndsStand();
    void aPairOutOfViewHasNoText();
    void textsKeepClearOfTheTitle_data();
    void textsKeepClearOfTheTitle();
    void textsHaveAShadow();
    void linesAreSeenAtEveryFactor_data();
    void linesAreSeenAtEveryFactor();
    void labelsAtTheRightEndKeepTheirOrder_data();
    void labelsAtTheRightEndKeepTheirOrder();
    void labelsAtOnePlaceFillColumns_data();
    void labelsAtOnePlaceFillColumns();
    void anyCursorsAreReadRight_data();
    void anyCursorsAreReadRight();

private:
    void add(const QVector<double> &times)
    {
        for (const double time : times)
            marks.add(time);
    }
    // Null for those that are hidden.
    QVector<QRect> labels(const PlotGeometry &geometry)
    {
        marks.place(geometry);
        QVector<QRect> places;
        for (const CustomLabel *label : plot.findChildren<CustomLabel *>())
            places.append(label->isHidden() ? QRect() : label->geometry());
        return places;
    }
    void checkDifferences(const PlotGeometry &geometry);
    void checkLabels(const PlotGeometry &geometry);

    QFont font = tenPixels();
    QFontMetrics metrics{font};
    QWidget plot;
    CursorMarks marks{&plot};
    // In a plot of this width the cursors have one pixel for each of 1000 ms, from x = 100 on.
    const PlotGeometry pixels = geometryOf(1103, 1000);
};

// The box of 100 pixels is that from 350 to 449.
void TestCursorMarks::aTextStandsInTheMiddleBetweenItsCursors()
{
    add({200, 401});
    const Differences found = marks.differences(pixels, metrics, {});
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().text, QStringLiteral("dT=201"));
    QCOMPARE(found.first().line, QRect(QPoint(300, 60), QPoint(501, 60)));
    const QRect place = found.first().place;
    QCOMPARE(place.left() - 350, 449 - place.right());
    QVERIFY(place.width() > metrics.horizontalAdvance(QStringLiteral("dT=201")));
    QCOMPARE(place.top(), 40);
    QCOMPARE(place.bottom(), 59);
}

void TestCursorMarks::aTextNeedsTwoCursors()
{
    QVERIFY(marks.differences(pixels, metrics, {}).isEmpty());
    add({200});
    QVERIFY(marks.differences(pixels, metrics, {}).isEmpty());
    QCOMPARE(marks.pairDifference(), 0.0);
    add({500, 450});
    const Differences found = marks.differences(pixels, metrics, {});
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.at(0).text, QStringLiteral("dT=50"));
    QCOMPARE(found.at(1).text, QStringLiteral("dT=300"));
    QCOMPARE(marks.pairDifference(), 50.0);
}

void TestCursorMarks::textsOverCommonLinesMoveApart_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("span");
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<QStringList>("shown");
    const QStringList both{QStringLiteral("dT=813"), QStringLiteral("dT=659")};
    for (const int width : {300, 400, 500, 803, 1103, 1600}) {
        QTest::addRow("middle, right, left in %d pixels", width)
            << width << 1800.0 << QVector<double>{271, 930, 117} << both;
    }
    QTest::newRow("lines a little shorter than their texts")
        << 1103 << 1000.0 << QVector<double>{500, 530, 560}
        << QStringList{QStringLiteral("dT=30"), QStringLiteral("dT=30")};
    QTest::newRow("a long line makes room for a short one")
        << 1103 << 1000.0 << QVector<double>{495, 505, 900, 100}
        << QStringList{QStringLiteral("dT=800"), QStringLiteral("dT=395"), QStringLiteral("dT=10")};
    QTest::newRow("no place left: the later one stands")
        << 1103 << 1000.0 << QVector<double>{500, 505.4, 500.1}
        << QStringList{QStringLiteral("dT=5.3")};
}

void TestCursorMarks::textsOverCommonLinesMoveApart()
{
    QFETCH(int, width);
    QFETCH(double, span);
    QFETCH(QVector<double>, times);
    add(times);
    QStringList shown;
    for (const CursorMarks::Difference &each :
        marks.differences(geometryOf(width, span), metrics, {})) {
        if (!each.place.isNull())
            shown.append(each.text);
    }
    QTEST(shown, "shown");
    checkDifferences(geometryOf(width, span));
}

// The plot area reaches from 100 to 1100.
void TestCursorMarks::textsNearTheEndsStand_data()
{
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<int>("left"); // of the text; -1 where the right end tells its place
    QTest::addColumn<int>("right");
    QTest::newRow("at the left end") << QVector<double>{0, 5} << 100 << -1;
    QTest::newRow("at the right end") << QVector<double>{990, 1000} << -1 << 1100;
    QTest::newRow("from the view to the right") << QVector<double>{950, 5000} << -1 << 1100;
    QTest::newRow("from the left into the view") << QVector<double>{-5000, 40} << 100 << -1;
}

void TestCursorMarks::textsNearTheEndsStand()
{
    QFETCH(QVector<double>, times);
    QFETCH(int, left);
    QFETCH(int, right);
    add(times);
    const QRect place = marks.differences(pixels, metrics, {}).first().place;
    QVERIFY(!place.isNull());
    QCOMPARE(left < 0 ? -1 : place.left(), left);
    QCOMPARE(right < 0 ? -1 : place.right(), right);
}

void TestCursorMarks::aPairOutOfViewHasNoText()
{
    add({1200, 1500});
    QVERIFY(marks.differences(pixels, metrics, {}).first().place.isNull());
}

void TestCursorMarks::textsKeepClearOfTheTitle_data()
{
    QTest::addColumn<int>("titleTop"); // its rectangle is 100 x 20 from x = 70 on
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<bool>("stands");
    QTest::addColumn<bool>("moves");
    QTest::newRow("above the texts") << 20 << QVector<double>{10, 60} << true << false;
    QTest::newRow("over the whole line") << 30 << QVector<double>{10, 60} << false << false;
    QTest::newRow("over a part of the text") << 30 << QVector<double>{10, 150} << true << true;
    QTest::newRow("beside the text") << 30 << QVector<double>{10, 250} << true << false;
}

void TestCursorMarks::textsKeepClearOfTheTitle()
{
    QFETCH(int, titleTop);
    QFETCH(QVector<double>, times);
    QFETCH(bool, moves);
    const QRect title(70, titleTop, 100, 20);
    add(times);
    const QRect place = marks.differences(pixels, metrics, title).first().place;
    QTEST(!place.isNull(), "stands");
    if (moves)
        QCOMPARE(place.left(), 170);
    else if (!place.isNull())
        QCOMPARE(place, marks.differences(pixels, metrics, {}).first().place);
}

// One pixel right of and one below each pixel of the letters, as far as no letter stands there.
void TestCursorMarks::textsHaveAShadow()
{
    add({200, 400});
    font.setStyleStrategy(QFont::NoAntialias);
    for (const bool isForPaper : {false, true, false}) {
        marks.setForPaper(isForPaper);
        QImage image(pixels.widgetSize(), QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setFont(font);
        marks.paintDifferences(painter, pixels, {});
        painter.end();
        const QRgb mark = qRgb(255, 250, 80);
        const QRgb shadow = qRgb(80, 80, 80);
        int shadows = 0;
        for (int y = 41; y < 60; ++y) {
            for (int x = 350; x < 450; ++x) {
                const bool isBehind
                    = image.pixel(x - 1, y - 1) == mark && image.pixel(x, y) != mark;
                QCOMPARE(image.pixel(x, y) == shadow, isBehind && !isForPaper);
                shadows += isBehind ? 1 : 0;
            }
        }
        QVERIFY(shadows > 20);
    }
}

void TestCursorMarks::linesAreSeenAtEveryFactor_data()
{
    QTest::addColumn<double>("factor");
    for (const double factor : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
        QTest::addRow("%g", factor) << factor;
}

void TestCursorMarks::linesAreSeenAtEveryFactor()
{
    QFETCH(double, factor);
    add({200, 400});
    QImage image(pixels.widgetSize() * factor, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(factor);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setFont(font);
    marks.paintDifferences(painter, pixels, {});
    painter.end();
    for (int x = static_cast<int>(301 * factor); x < static_cast<int>(499 * factor); ++x) {
        int lit = 0;
        for (int y = static_cast<int>(60 * factor) - 1; y < 63 * factor; ++y)
            lit += image.pixel(x, y) == qRgb(255, 250, 80) ? 1 : 0;
        QCOMPARE(lit, static_cast<int>(factor)); // everywhere of one thickness
    }
}

// A label is some 20 pixels wide.
void TestCursorMarks::labelsAtTheRightEndKeepTheirOrder_data()
{
    QTest::addColumn<QVector<double>>("times"); // the line stands at the time + 100
    QTest::addColumn<QString>("sides"); // of the lines, left or right
    QTest::addColumn<QVector<int>>("rows"); // counted from the top
    QTest::newRow("one that does not fit")
        << QVector<double>{995} << QStringLiteral("L") << QVector<int>{0};
    QTest::newRow("two that do not fit")
        << QVector<double>{990, 998} << QStringLiteral("LL") << QVector<int>{0, 1};
    QTest::newRow("two that do not fit, the right one first")
        << QVector<double>{998, 990} << QStringLiteral("LL") << QVector<int>{0, 1};
    QTest::newRow("one fits, but not beside the other")
        << QVector<double>{965, 995} << QStringLiteral("LL") << QVector<int>{0, 0};
    QTest::newRow("one fits beside the other")
        << QVector<double>{920, 995} << QStringLiteral("RL") << QVector<int>{0, 0};
    QTest::newRow("a row of neighbours") << QVector<double>{965, 905, 995, 935, 700}
                                         << QStringLiteral("LLLLR") << QVector<int>{0, 0, 0, 0, 0};
    QTest::newRow("none at the end")
        << QVector<double>{500, 505, 700} << QStringLiteral("RRR") << QVector<int>{0, 1, 0};
}

void TestCursorMarks::labelsAtTheRightEndKeepTheirOrder()
{
    QFETCH(QVector<double>, times);
    add(times);
    QString sides;
    QVector<int> rows;
    const QVector<QRect> found = labels(pixels);
    for (int i = 0; i < times.size(); ++i) {
        const int x = 100 + qRound(times.at(i));
        const QRect place = found.at(i);
        sides += place.left() == x + 3 ? QLatin1Char('R')
            : place.right() == x - 3   ? QLatin1Char('L')
                                       : QLatin1Char('?');
        rows.append((place.top() - 62) / place.height());
    }
    QTEST(sides, "sides");
    QTEST(rows, "rows");
    checkLabels(pixels);
}

// No text overlaps another or leaves the plot area, each is over the visible part of its own line,
// and one that is left out would find no place among the others.
void TestCursorMarks::checkDifferences(const PlotGeometry &geometry)
{
    const QRect area = geometry.area();
    const QRect title(70, 30, 100, 20);
    const Differences all = marks.differences(geometry, metrics, title);
    const auto isFree = [&](const QRect &place) {
        return !place.intersects(title)
            && std::none_of(all.cbegin(), all.cend(),
                [&](const CursorMarks::Difference &each) { return each.place.intersects(place); });
    };
    for (int i = 0; i < all.size(); ++i) {
        const QRect line = all.at(i).line & area;
        const QRect place = all.at(i).place;
        if (!place.isNull()) {
            QVERIFY(place.left() >= area.left() && place.right() <= area.right());
            QVERIFY(isOver(place, line));
            QVERIFY(!place.intersects(title));
            for (int k = 0; k < i; ++k)
                QVERIFY(!all.at(k).place.intersects(place));
            continue;
        }
        QRect other(0, 40, metrics.horizontalAdvance(all.at(i).text) + 9, 20);
        for (int x = area.left(); x + other.width() <= area.right(); ++x) {
            other.moveLeft(x);
            QVERIFY2(!isOver(other, line) || !isFree(other), qPrintable(all.at(i).text));
        }
    }
}

// Labels stand beside their lines, within the plot area, in the order of the lines; none covers
// another. One stands elsewhere only where the whole height beside its line is taken.
void TestCursorMarks::checkLabels(const PlotGeometry &geometry)
{
    const QRect area = geometry.area();
    const QVector<QRect> places = labels(geometry);
    const QList<double> times = marks.times();
    const auto isRight
        = [&](int i) { return places.at(i).left() == qRound(geometry.cursorX(times.at(i))) + 3; };
    const auto isFull = [&](QRect place) { // the column from a place at its top on
        for (; place.bottom() < area.bottom(); place.translate(0, place.height())) {
            if (std::none_of(places.cbegin(), places.cend(),
                    [&](const QRect &other) { return other.intersects(place); }))
                return false;
        }
        return true;
    };
    const auto isFullBeside = [&](int i) {
        const int x = qRound(geometry.cursorX(times.at(i)));
        const QSize size = places.at(i).size();
        return isFull({{x + 3, area.top() + 2}, size})
            || isFull({{x - 2 - size.width(), area.top() + 2}, size});
    };
    for (int i = 0; i < places.size(); ++i) {
        const int x = qRound(geometry.cursorX(times.at(i)));
        QCOMPARE(places.at(i).isNull(), x < area.left() || x > area.right());
        if (places.at(i).isNull())
            continue;
        QVERIFY(area.contains(places.at(i)));
        const bool isBeside
            = isRight(i) || places.at(i).right() == x - 3 || places.at(i).left() == area.left();
        QVERIFY(isBeside || isFullBeside(i));
        for (int k = 0; k < i; ++k)
            QVERIFY(!places.at(i).intersects(places.at(k)));
        for (int k = 0; k < places.size(); ++k) {
            if (places.at(k).isNull() || qRound(geometry.cursorX(times.at(k))) <= x
                || isFullBeside(i) || isFullBeside(k))
                continue;
            if (isRight(i) && !isRight(k))
                QVERIFY(places.at(i).right() < places.at(k).left());
            if (places.at(i).top() == places.at(k).top() && !places.at(i).intersects(places.at(k)))
                QVERIFY(places.at(i).left() < places.at(k).left());
        }
    }
}

// On the left side of the middle to the right, on the right side to the left.
void TestCursorMarks::labelsAtOnePlaceFillColumns_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<int>("nextColumn"); // to the right of the one before, in widths of a label
    QTest::addColumn<bool>("leftOfTheLine");
    QTest::newRow("at the left end") << 0.0 << 1 << false;
    QTest::newRow("left of the middle") << 450.0 << 1 << false;
    QTest::newRow("right of the middle") << 550.0 << -1 << false;
    QTest::newRow("at the right end") << 1000.0 << -1 << true;
}

void TestCursorMarks::labelsAtOnePlaceFillColumns()
{
    QFETCH(double, time);
    QFETCH(int, nextColumn);
    QFETCH(bool, leftOfTheLine);
    for (int twice = 0; twice < 2; ++twice) {
        marks.clear();
        add(QVector<double>(20, time));
        const QVector<QRect> places = labels(pixels);
        QCOMPARE(places.size(), 20);
        const QRect first = places.first();
        const int rows = (pixels.area().bottom() - first.top()) / first.height();
        QVERIFY(rows > 5 && rows < 20);
        for (int i = 0; i < places.size(); ++i) {
            const int moved = leftOfTheLine ? places.at(i).right() - first.right()
                                            : places.at(i).left() - first.left();
            QCOMPARE(moved, i < rows ? 0 : nextColumn * places.at(i).width());
            QCOMPARE(places.at(i).top() - first.top(), i % rows * first.height());
        }
        checkLabels(pixels);
    }
}

void TestCursorMarks::anyCursorsAreReadRight_data()
{
    QTest::addColumn<int>("most"); // cursors
    QTest::addColumn<int>("distance"); // at most, from one to the next, ms
    QTest::newRow("a few anywhere") << 5 << 1000;
    QTest::newRow("many anywhere") << 20 << 1000;
    QTest::newRow("a few close ones") << 5 << 60;
    QTest::newRow("many close ones") << 20 << 30;
    QTest::newRow("many all but at one place") << 20 << 1;
}

void TestCursorMarks::anyCursorsAreReadRight()
{
    QFETCH(int, most);
    QFETCH(int, distance);
    std::mt19937 random(12345);
    const auto upTo = [&](int end) { return static_cast<int>(random() % unsigned(end + 1)); };
    for (int set = 0; set < 300; ++set) {
        marks.clear();
        const PlotGeometry geometry = geometryOf(300 + upTo(1300), 1000);
        double time = upTo(1000);
        for (int count = 1 + upTo(most - 1); count > 0; --count) {
            marks.add(time);
            time += upTo(2 * distance) - distance;
            if (time < -100 || time > 1100) // most of them in view
                time = upTo(1000);
        }
        checkDifferences(geometry);
        checkLabels(geometry);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("set %1, %2 pixels wide")
                                 .arg(set)
                                 .arg(geometry.widgetSize().width())));
    }
}

QTEST_MAIN(TestCursorMarks)
#include "tst_cursormarks.moc"
