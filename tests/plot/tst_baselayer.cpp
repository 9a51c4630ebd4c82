// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "baselayer.h"
#include "digitalruns.h"
#include "textsearch.h"
#include "timeaxis.h"

#include <QPixmap>
#include <QtTest>

#include <cmath>
#include <functional>

Q_DECLARE_METATYPE(PlotSettings)

namespace {

const QRgb grid = qRgb(150, 150, 150);
const QRgb white = qRgb(255, 255, 255);
const QRgb black = qRgb(0, 0, 0);

// A plot area 698 pixels wide from x = 100 on and 201 high from y = 60 on; traces have 700 x 200.
constexpr QSize widget(800, 301);
const QRect area(100, 60, 698, 201);
const QRect belowArea(0, 262, 800, 39);
const QRect leftOfArea(0, 0, 100, 301);

PlotGeometry geometryOf(const PlotSettings &view, int readoutWidth = 0)
{
    return {widget, readoutWidth, view};
}

QImage paint(const std::function<void(QPainter &)> &draw, double ratio = 1)
{
    QImage image(widget * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    QPainter painter(&image);
    draw(painter);
    return image;
}

// A row or a column of device pixels.
QVector<QRgb> deviceRow(const QImage &image, int y)
{
    QVector<QRgb> pixels;
    for (int x = 0; x < image.width(); ++x)
        pixels.append(image.pixel(x, y));
    return pixels;
}

QVector<QRgb> deviceColumn(const QImage &image, int x)
{
    return deviceRow(image.transformed(QTransform(0, 1, 1, 0, 0, 0)), x);
}

// Black but for the stretches of a colour, each of which reaches from one widget pixel to another.
// Of the last one it covers as many device pixels as of every other: those that fit into each.
QVector<QRgb> stretches(
    const QVector<QPair<int, int>> &fromTo, QRgb color, double ratio, int deviceLength)
{
    QVector<QRgb> pixels(deviceLength, black);
    for (const auto &stretch : fromTo) {
        for (int i = qRound(stretch.first * ratio); i < qRound(stretch.second * ratio) + int(ratio);
             ++i)
            pixels[i] = color;
    }
    return pixels;
}

void addRatios()
{
    QTest::addColumn<double>("ratio"); // of device pixels to widget pixels
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
        QTest::addRow("at %g", ratio) << ratio;
}

QStringList list(const char *texts)
{
    return QString::fromLatin1(texts).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class TestBaseLayer : public QObject {
    Q_OBJECT

private slots:
    void aLayerOfAboutItsSizeIsKept_data();
    void aLayerOfAboutItsSizeIsKept();
    void coversAPartOfATallPlot_data();
    void coversAPartOfATallPlot();
    void timeGridStandsOnItsTimes();
    void theLastTimeLineStandsOnTheFrame_data();
    void theLastTimeLineStandsOnTheFrame();
    void timeLabels_data();
    void timeLabels();
    void timeLabelsStandUnderTheirLines();
    void timeLabelsThatWouldOverlapAreLeftOut();
    void valueGridStandsOnItsValues();
    void valueLabels_data();
    void valueLabels();
    void valueLabelsThatWouldOverlapAreLeftOut();
    void theFrameStandsAroundTheArea();
    void theTriggerIsALineWithItsTime_data();
    void theTriggerIsALineWithItsTime();
    void aTriggerOutOfViewIsNotDrawn_data();
    void aTriggerOutOfViewIsNotDrawn();
    void gridLinesAreEquallyThick_data() { addRatios(); }
    void gridLinesAreEquallyThick();
    void theFrameIsEquallyThick_data() { addRatios(); }
    void theFrameIsEquallyThick();
    void nothingIsSeenBesideTheFrame_data() { addRatios(); }
    void nothingIsSeenBesideTheFrame();
    void theTriggersDashesAreEquallyThick_data() { addRatios(); }
    void theTriggersDashesAreEquallyThick();
    void theTriggersTextIsBlackOnWhatIsBright_data() { addRatios(); }
    void theTriggersTextIsBlackOnWhatIsBright();
    void bandsWithinARectangle();
    void digitalRowsAreEquallyThick_data() { addRatios(); }
    void digitalRowsAreEquallyThick();
    void aBandOfTwoPixelsHasAllCorners();
    void digitalRowsWhereTimesStepBack_data();
    void digitalRowsWhereTimesStepBack();

private:
    QFont font = crispFont(12);
};

void TestBaseLayer::aLayerOfAboutItsSizeIsKept_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QSize>("size");
    QTest::newRow("the same size") << QSize(100, 200) << QSize(100, 200);
    QTest::newRow("a little smaller") << QSize(99, 170) << QSize(100, 200);
    QTest::newRow("much lower") << QSize(100, 150) << QSize(100, 150);
    QTest::newRow("much narrower") << QSize(70, 200) << QSize(70, 200);
    QTest::newRow("wider") << QSize(101, 190) << QSize(101, 190);
    QTest::newRow("higher") << QSize(90, 201) << QSize(90, 201);
}

void TestBaseLayer::aLayerOfAboutItsSizeIsKept()
{
    QFETCH(QSize, pixels);
    QPixmap layer(100, 200);
    layer.fill(Qt::red);
    clearLayer(layer, pixels, 1.5);
    QTEST(layer.size(), "size");
    QCOMPARE(layer.devicePixelRatio(), 1.5);
    QImage clear(layer.size(), QImage::Format_ARGB32_Premultiplied);
    clear.fill(Qt::transparent);
    clear.setDevicePixelRatio(1.5);
    QCOMPARE(layer.toImage(), clear);
}

void TestBaseLayer::coversAPartOfATallPlot_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QRect>("seen");
    QTest::addColumn<QRect>("part");
    QTest::newRow("an ordinary plot") << 400 << QRect(0, 100, 800, 50) << QRect(0, 0, 800, 400);
    QTest::newRow("nothing of it seen") << 400 << QRect() << QRect(0, 0, 800, 400);
    QTest::newRow("the tallest of one part")
        << 4096 << QRect(0, 4000, 800, 96) << QRect(0, 0, 800, 4096);
    QTest::newRow("its begin") << 10000 << QRect(0, 0, 800, 300) << QRect(0, 0, 800, 4099);
    QTest::newRow("its middle") << 10000 << QRect(5, 5000, 20, 96) << QRect(0, 3000, 800, 4099);
    QTest::newRow("its end") << 10000 << QRect(0, 9700, 800, 300) << QRect(0, 5904, 800, 4096);
    QTest::newRow("nothing of a tall one seen") << 10000 << QRect() << QRect(0, 0, 800, 4099);
    QTest::newRow("a strip of just its height")
        << 10000 << QRect(0, 1234, 800, 4096) << QRect(0, 1232, 800, 4099);
}

void TestBaseLayer::coversAPartOfATallPlot()
{
    QFETCH(int, height);
    QFETCH(QRect, seen);
    QTEST(layerPart({800, height}, seen), "part");
}

// 7 intervals of 100 pixels.
void TestBaseLayer::timeGridStandsOnItsTimes()
{
    const QImage image = paint([](QPainter &painter) {
        drawTimeGrid(painter, geometryOf({0, 700, 7, -12, 12, 8}));
    });
    for (int x = 0; x < 800; ++x) {
        const bool isLine = (x % 100 == 0 && x >= 100 && x < 800) || x == 797;
        QCOMPARE(image.pixel(x, 160), isLine ? grid : black);
    }
    for (int y = 0; y < 301; ++y)
        QCOMPARE(image.pixel(300, y), y >= 60 && y <= 260 ? grid : black);
}

void TestBaseLayer::theLastTimeLineStandsOnTheFrame_data()
{
    QTest::addColumn<int>("readoutWidth");
    QTest::addColumn<int>("right");
    QTest::newRow("at the widget's right") << 0 << 797;
    QTest::newRow("at the readout") << 200 << 597;
}

void TestBaseLayer::theLastTimeLineStandsOnTheFrame()
{
    QFETCH(int, readoutWidth);
    QFETCH(int, right);
    const PlotGeometry geometry = geometryOf({0, 1000, 10, -12, 12, 8}, readoutWidth);
    const QImage lines = paint([&](QPainter &painter) { drawTimeGrid(painter, geometry); });
    const QImage frame = paint([&](QPainter &painter) { drawFrame(painter, geometry); });
    QCOMPARE(lines.pixel(right, 100), grid);
    QCOMPARE(frame.pixel(right, 100), white);
    for (int x = right + 1; x < 800; ++x)
        QCOMPARE(lines.pixel(x, 100), black);
}

void TestBaseLayer::timeLabels_data()
{
    QTest::addColumn<PlotSettings>("view");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("whole milliseconds")
        << PlotSettings{0, 1000, 5, 0, 1, 4} << list("0 200 400 600 800 1000");
    QTest::newRow("six digits") << PlotSettings{1234.5, 1238.5, 4, 0, 1, 4}
                                << list("1234.5 1235.5 1236.5 1237.5 1238.5");
    QTest::newRow("more than six digits are rounded") << PlotSettings{
        100000.25, 100004.25, 4, 0, 1, 4} << list("100000 100001 100002 100003 100004");
    QTest::newRow("large times have an exponent")
        << PlotSettings{0, 4e6, 4, 0, 1, 4} << list("0 1e+06 2e+06 3e+06 4e+06");
    QTest::newRow("what rounding leaves of zero is zero")
        << PlotSettings{-0.1, 0.25, 7, 0, 1, 4} << list("-0.1 -0.05 0 0.05 0.1 0.15 0.2 0.25");
    QTest::newRow("a small time that is none of rounding stays")
        << PlotSettings{0, 4e-9, 4, 0, 1, 4} << list("0 1e-09 2e-09 3e-09 4e-09");
}

void TestBaseLayer::timeLabels()
{
    QFETCH(PlotSettings, view);
    QFETCH(QStringList, texts);
    const QImage image
        = paint([&](QPainter &painter) { drawTimeLabels(painter, geometryOf(view), font); });
    int right = 0;
    for (const QString &text : qAsConst(texts)) {
        const QRect found = findText(image, text, font, belowArea);
        QVERIFY2(!found.isNull(), qPrintable(text));
        QVERIFY(found.left() > right);
        right = found.right();
    }
    QCOMPARE(inkRect(image, image.rect()), inkRect(image, belowArea));
}

// The last label would reach out of the widget and stands as far right as it may.
void TestBaseLayer::timeLabelsStandUnderTheirLines()
{
    const QImage image = paint([&](QPainter &painter) {
        drawTimeLabels(painter, geometryOf({0, 700, 7, 0, 1, 4}), font);
    });
    for (int i = 0; i < 7; ++i) {
        const QRect found = findText(image, QString::number(100 * i), font, belowArea);
        QVERIFY(std::abs(found.center().x() - (100 + 100 * i)) <= 1);
    }
    QVERIFY(findText(image, QStringLiteral("700"), font, belowArea).right() < 798);
}

// 20 intervals of 5 pixels each.
void TestBaseLayer::timeLabelsThatWouldOverlapAreLeftOut()
{
    const QImage image = paint([&](QPainter &painter) {
        drawTimeLabels(painter, {{200, 301}, 0, {0, 20000, 20, 0, 1, 4}}, font);
    });
    QVERIFY(!findText(image, QStringLiteral("0"), font, belowArea).isNull());
    QVERIFY(findText(image, QStringLiteral("1000"), font, belowArea).isNull());
    int labels = 0;
    for (int i = 1; i <= 20; ++i)
        labels += !findText(image, QString::number(1000 * i), font, belowArea).isNull();
    QVERIFY(labels >= 1 && labels <= 3);
}

// Values -12 to 12 in steps of 3, 25 pixels apart.
void TestBaseLayer::valueGridStandsOnItsValues()
{
    const QImage image = paint([&](QPainter &painter) {
        drawValueGrid(painter, geometryOf({0, 700, 7, -12, 12, 8}), font);
    });
    for (int y = 0; y < 301; ++y) {
        const bool isLine = y >= 60 && y <= 260 && (y - 60) % 25 == 0;
        QCOMPARE(image.pixel(400, y), isLine ? grid : black);
    }
    QCOMPARE(image.pixel(99, 160), black);
    QCOMPARE(image.pixel(100, 160), grid);
    QCOMPARE(image.pixel(797, 160), grid);
    QCOMPARE(image.pixel(798, 160), black);
}

void TestBaseLayer::valueLabels_data()
{
    QTest::addColumn<PlotSettings>("view");
    QTest::addColumn<QStringList>("texts"); // from the bottom up
    QTest::newRow("whole numbers")
        << PlotSettings{0, 1, 4, -12, 12, 8} << list("-12 -9 -6 -3 0 3 6 9 12");
    QTest::newRow("trailing zeros are cut")
        << PlotSettings{0, 1, 4, 0, 10, 4} << list("0 2.5 5 7.5 10");
    QTest::newRow("zeros of whole numbers stay")
        << PlotSettings{0, 1, 4, 0, 400, 4} << list("0 100 200 300 400");
    QTest::newRow("six decimals") << PlotSettings{0, 1, 4, 0, 0.000004, 4}
                                  << list("0 0.000001 0.000002 0.000003 0.000004");
    QTest::newRow("what rounding leaves of zero is zero")
        << PlotSettings{0, 1, 4, -0.1, 0.25, 7} << list("-0.1 -0.05 0 0.05 0.1 0.15 0.2 0.25");
}

// In a font of 10 pixels, right-aligned six pixels left of the area, beside their lines.
void TestBaseLayer::valueLabels()
{
    QFETCH(PlotSettings, view);
    QFETCH(QStringList, texts);
    const QImage image
        = paint([&](QPainter &painter) { drawValueGrid(painter, geometryOf(view), font); });
    for (int i = 0; i < texts.size(); ++i) {
        const QRect found = findText(image, texts.at(i), crispFont(10), leftOfArea);
        QVERIFY2(!found.isNull(), qPrintable(texts.at(i)));
        QVERIFY(found.right() >= 90 && found.right() <= 94);
        const int line = qRound(260 - 200.0 * i / (texts.size() - 1));
        QVERIFY(std::abs(found.center().y() - line) <= 2);
    }
}

// Forty lines 5 pixels apart have labels at most at every second.
void TestBaseLayer::valueLabelsThatWouldOverlapAreLeftOut()
{
    const QImage image = paint([&](QPainter &painter) {
        drawValueGrid(painter, geometryOf({0, 700, 7, 0, 40, 40}), font);
    });
    QVERIFY(!findText(image, QStringLiteral("0"), crispFont(10), leftOfArea).isNull());
    QVERIFY(findText(image, QStringLiteral("1"), crispFont(10), leftOfArea).isNull());
    int labels = 0;
    for (int i = 0; i <= 40; ++i)
        labels += !findText(image, QString::number(i), crispFont(10), leftOfArea).isNull();
    QVERIFY(labels >= 10 && labels <= 20);
}

void TestBaseLayer::theFrameStandsAroundTheArea()
{
    const QImage image = paint([](QPainter &painter) {
        drawFrame(painter, geometryOf({0, 700, 7, 0, 1, 4}));
    });
    for (int y = 0; y < 301; ++y) {
        for (int x = 0; x < 800; ++x) {
            const bool isEdge = area.contains(x, y) && !area.adjusted(1, 1, -1, -1).contains(x, y);
            QCOMPARE(image.pixel(x, y), isEdge ? white : black);
        }
    }
}

void TestBaseLayer::theTriggerIsALineWithItsTime_data()
{
    QTest::addColumn<int>("time");
    QTest::addColumn<int>("x");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isRight"); // the text is right of the line
    QTest::newRow("in the middle") << 250 << 350 << QStringLiteral("Trigger: 250 ms") << true;
    QTest::newRow("at the left edge") << 0 << 100 << QStringLiteral("Trigger: 0 ms") << true;
    QTest::newRow("near the right edge")
        << 690 << 790 << QStringLiteral("Trigger: 690 ms") << false;
    QTest::newRow("at the right edge") << 697 << 797 << QStringLiteral("Trigger: 697 ms") << false;
    QTest::newRow("mapped beside it") << 698 << 797 << QStringLiteral("Trigger: 698 ms") << false;
    QTest::newRow("at the view's end") << 700 << 797 << QStringLiteral("Trigger: 700 ms") << false;
}

void TestBaseLayer::theTriggerIsALineWithItsTime()
{
    QFETCH(int, time);
    QFETCH(int, x);
    QFETCH(QString, text);
    QFETCH(bool, isRight);
    const QImage image = paint([&](QPainter &painter) {
        drawTriggerMark(painter, geometryOf({0, 700, 7, 0, 1, 4}), font, time);
    });
    int onLine = 0;
    for (int y = 60; y <= 260; ++y)
        onLine += image.pixel(x, y) == white;
    QVERIFY(onLine > 100 && onLine < 201); // dashes
    QCOMPARE(inkRect(image, image.rect()) | area, area);
    const QRect found = findText(image, text, font);
    QVERIFY(!found.isNull());
    QVERIFY(isRight ? found.left() > x && found.left() <= x + 10
                    : found.right() < x && found.right() >= x - 10);
    QVERIFY(found.bottom() > 245);
}

void TestBaseLayer::aTriggerOutOfViewIsNotDrawn_data()
{
    QTest::addColumn<int>("time");
    QTest::newRow("left of the view") << -1;
    QTest::newRow("right of the view") << 701;
    QTest::newRow("far away") << 2000000000;
}

void TestBaseLayer::aTriggerOutOfViewIsNotDrawn()
{
    QFETCH(int, time);
    const QImage image = paint([&](QPainter &painter) {
        drawTriggerMark(painter, geometryOf({0, 700, 7, 0, 1, 4}), font, time);
    });
    QVERIFY(inkRect(image, image.rect()).isNull());
}

// A line at every whole number of 31 ms, 700 / 31 pixels apart, and at every seventh of the height.
void TestBaseLayer::gridLinesAreEquallyThick()
{
    QFETCH(double, ratio);
    const PlotGeometry geometry = geometryOf({0, 31, 31, 0, 7, 7});
    QVector<QPair<int, int>> columns{{797, 797}};
    for (int i = 0; i < 31; ++i)
        columns.append({qRound(100 + i * 700 / 31.0), qRound(100 + i * 700 / 31.0)});
    const QImage times = paint([&](QPainter &painter) { drawTimeGrid(painter, geometry); }, ratio);
    QCOMPARE(deviceRow(times, int(160 * ratio)), stretches(columns, grid, ratio, times.width()));
    QCOMPARE(deviceColumn(times, qRound(100 * ratio)),
        stretches({{60, 260}}, grid, ratio, times.height()));

    const QImage values
        = paint([&](QPainter &painter) { drawValueGrid(painter, geometry, font); }, ratio);
    QCOMPARE(deviceColumn(values, int(450 * ratio)),
        stretches({{60, 60}, {89, 89}, {117, 117}, {146, 146}, {174, 174}, {203, 203}, {231, 231},
                      {260, 260}},
            grid, ratio, values.height()));
}

void TestBaseLayer::theFrameIsEquallyThick()
{
    QFETCH(double, ratio);
    const QImage image = paint(
        [](QPainter &painter) {
            drawFrame(painter, geometryOf({0, 700, 7, 0, 1, 4}));
        },
        ratio);
    QCOMPARE(deviceRow(image, int(160 * ratio)),
        stretches({{100, 100}, {797, 797}}, white, ratio, image.width()));
    QCOMPARE(deviceColumn(image, int(450 * ratio)),
        stretches({{60, 60}, {260, 260}}, white, ratio, image.height()));
}

// What is clipped to it ends where its right and its bottom line do.
void TestBaseLayer::nothingIsSeenBesideTheFrame()
{
    QFETCH(double, ratio);
    for (const int width : {797, 798, 799, 800}) {
        const PlotGeometry geometry({width, 301 + width % 4}, 0, {0, 700, 7, 0, 1, 4});
        const QImage image = paint(
            [&](QPainter &painter) {
                clipToFrame(painter, geometry);
                painter.fillRect(QRect({}, widget), Qt::white);
            },
            ratio);
        QCOMPARE(deviceRow(image, int(160 * ratio)),
            stretches({{100, width - 3}}, white, ratio, image.width()));
        QCOMPARE(deviceColumn(image, int(450 * ratio)),
            stretches({{60, 260 + width % 4}}, white, ratio, image.height()));
    }
}

// Four pixels of every six, from the top of the plot area on.
void TestBaseLayer::theTriggersDashesAreEquallyThick()
{
    QFETCH(double, ratio);
    QVector<QPair<int, int>> dashes{{258, 260}};
    for (int y = 60; y < 258; y += 6)
        dashes.append({y, y + 3});
    for (const int x : {101, 102, 103, 104}) {
        const QImage image = paint(
            [&](QPainter &painter) {
                drawTriggerMark(painter, geometryOf({0, 700, 7, 0, 1, 4}), font, x - 100);
            },
            ratio);
        QCOMPARE(deviceColumn(image, qRound(x * ratio)),
            stretches(dashes, white, ratio, image.height()));
        QCOMPARE(
            deviceRow(image, int(61 * ratio)), stretches({{x, x}}, white, ratio, image.width()));
    }
}

// On black, letters within it are not seen; all else is as without it.
void TestBaseLayer::theTriggersTextIsBlackOnWhatIsBright()
{
    QFETCH(double, ratio);
    const PlotGeometry geometry = geometryOf({0, 700, 7, 0, 1, 4});
    const QImage usual
        = paint([&](QPainter &painter) { drawTriggerMark(painter, geometry, font, 250); }, ratio);
    QImage expected = usual;
    for (int y = qRound(249 * ratio); y < qRound(254 * ratio); ++y) {
        for (int x = qRound(370 * ratio); x < qRound(600 * ratio); ++x)
            expected.setPixel(x, y, black);
    }
    QVERIFY(expected != usual);
    const QImage image = paint(
        [&](QPainter &painter) {
            drawTriggerMark(painter, geometry, font, 250, QRect(370, 249, 230, 5));
        },
        ratio);
    QCOMPARE(image, expected);
}

// On from 200 to 301 ms, which is from x = 300 to 401, and from 600 ms on.
void TestBaseLayer::bandsWithinARectangle()
{
    const PlotGeometry geometry = geometryOf({0, 700, 7, 0, 1, 4});
    const TimeAxis axis({0, 200, 301, 600, 700});
    const DigitalRuns runs({0, 1, 0, 1, 1});
    const auto bands
        = [&](const QRect &within) { return digitalBands(geometry, axis, runs, 100, within); };
    QCOMPARE(bands(area), QRegion(301, 96, 100, 9) + QRegion(701, 96, 97, 9));
    QCOMPARE(bands(QRect(350, 100, 400, 20)), QRegion(350, 100, 51, 5) + QRegion(701, 100, 49, 5));
    QCOMPARE(bands(QRect(100, 106, 698, 20)), QRegion());
    QCOMPARE(bands(QRect(100, 60, 698, 35)), QRegion());
    QCOMPARE(bands(QRect()), QRegion());
}

// Off from 0 to 200 ms, on to 301, off to 600, and on for less than a pixel there.
void TestBaseLayer::digitalRowsAreEquallyThick()
{
    QFETCH(double, ratio);
    const QRgb line = qRgb(20, 150, 20);
    const QRgb band = qRgb(240, 255, 240);
    const TimeAxis axis({0, 200, 301, 600, 600.1, 650});
    const DigitalRuns runs({0, 1, 0, 1, 0, 0});
    for (const int y : {101, 102, 103, 104}) {
        const QImage image = paint(
            [&](QPainter &painter) {
                drawDigitalRow(painter, geometryOf({0, 700, 7, 0, 1, 4}), axis, runs, y);
            },
            ratio);
        QCOMPARE(deviceColumn(image, int(200 * ratio)),
            stretches({{y, y}}, line, ratio, image.height()));
        QVector<QRgb> across = stretches({{y - 5, y + 5}}, line, ratio, image.height());
        QCOMPARE(deviceColumn(image, qRound(700 * ratio)), across);
        for (int i = qRound((y - 5) * ratio) + int(ratio); i < qRound((y + 5) * ratio); ++i)
            across[i] = band;
        QCOMPARE(deviceColumn(image, int(350 * ratio)), across);
        QVector<QRgb> along
            = stretches({{300, 300}, {401, 401}, {700, 700}}, line, ratio, image.width());
        for (int i = qRound(300 * ratio) + int(ratio); i < qRound(401 * ratio); ++i)
            along[i] = band;
        QCOMPARE(deviceRow(image, qRound((y - 4) * ratio)), along);
    }
}

void TestBaseLayer::aBandOfTwoPixelsHasAllCorners()
{
    const QImage image = paint([](QPainter &painter) {
        drawDigitalRow(painter, geometryOf({0, 700, 7, 0, 1, 4}), TimeAxis({200, 201, 400}),
            DigitalRuns({1, 0, 0}), 160);
    });
    for (const int x : {300, 301}) {
        QCOMPARE(
            deviceColumn(image, x), stretches({{155, 165}}, qRgb(20, 150, 20), 1, image.height()));
    }
}

void TestBaseLayer::digitalRowsWhereTimesStepBack_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("back"); // ms
    QTest::addColumn<int>("hold"); // samples of one state
    QTest::addColumn<PlotSettings>("view");
    const PlotSettings whole{0, 700, 7, 0, 1, 4};
    QTest::newRow("never") << 0 << 0.0 << 1 << whole;
    QTest::newRow("by little") << 1 << 1.0 << 1 << whole;
    QTest::newRow("by much") << 1 << 300.0 << 1 << whole;
    QTest::newRow("by much, few changes") << 1 << 300.0 << 3000 << whole;
    QTest::newRow("often") << 40 << 12.0 << 7 << whole;
    QTest::newRow("often, a part of the time")
        << 40 << 12.0 << 7 << PlotSettings{50, 99, 4, 0, 1, 4};
    QTest::newRow("with every sample") << 19999 << 0.04 << 3 << PlotSettings{-100, 0, 4, 0, 1, 4};
}

// Against every stretch on its own, in their order: a line of one column is green, as is a band of
// one, so that only what is wider may hide what stands there before it.
void TestBaseLayer::digitalRowsWhereTimesStepBack()
{
    QFETCH(int, steps);
    QFETCH(double, back);
    QFETCH(int, hold);
    QFETCH(PlotSettings, view);
    constexpr int count = 20000;
    QVector<double> times;
    QVector<int> states;
    for (int i = 0; i < count; ++i) {
        const qint64 stepsBefore = qint64(i) * (steps + 1) / count;
        times.append(700.0 * i / count - back * double(stepsBefore));
        states.append(i / hold % 2);
    }
    const PlotGeometry geometry = geometryOf(view);
    const auto columnOf = [&](int sample) {
        return int(std::lround(100 + (times[sample] - view.minX) * 700 / (view.maxX - view.minX)));
    };
    const QRgb line = qRgb(20, 150, 20);
    const QImage expected = paint([&](QPainter &painter) {
        for (int first = 0; first < count; first += hold) {
            const int ends[] = {columnOf(first), columnOf(std::min(first + hold, count - 1))};
            const int left = std::min(ends[0], ends[1]);
            const int width = std::abs(ends[1] - ends[0]) + 1;
            const bool isOn = first / hold % 2;
            painter.fillRect(left, isOn ? 155 : 160, width, isOn ? 11 : 1, QColor(line));
            if (isOn && width > 2)
                painter.fillRect(left + 1, 156, width - 2, 9, QColor(240, 255, 240));
        }
    });
    const QImage actual = paint([&](QPainter &painter) {
        drawDigitalRow(painter, geometry, TimeAxis(times), DigitalRuns(states), 160);
    });
    QVERIFY(deviceRow(expected, 160).count(line) >= 7);
    QCOMPARE(actual.copy(area), expected.copy(area));
}

QTEST_MAIN(TestBaseLayer)
#include "tst_baselayer.moc"
