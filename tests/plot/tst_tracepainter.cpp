// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tracepainter.h"

#include <QDir>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <numeric>
#include <random>

using Generator = std::function<float(int)>;
Q_DECLARE_METATYPE(Generator)

namespace {

constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();
const QSize size(900, 300);

QVector<double> steadyTimes(int count)
{
    QVector<double> times(count);
    for (int i = 0; i < count; ++i)
        times[i] = 1000.0 * i / count;
    return times;
}

// Times of 1000 ms that step back by some of them, some times on the way.
QVector<double> steppingBack(int count, int steps, double back)
{
    QVector<double> times = steadyTimes(count);
    for (int i = 0; i < count; ++i) {
        const int stepsBefore = i * (steps + 1) / count;
        times[i] -= back * stepsBefore;
    }
    return times;
}

const QVector<double> ratios{1, 1.25, 1.5, 1.75, 2, 3}; // of device pixels to widget pixels

QImage paint(
    double ratio, const PlotGeometry &geometry, const std::function<void(QPainter &)> &draw)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::green, 0));
    painter.setClipRect(geometry.area());
    draw(painter);
    return image;
}

QImage traceImage(const PlotGeometry &geometry, const QVector<double> &times,
    const QVector<float> &values, double factor, bool thinned, double ratio = 1)
{
    return paint(ratio, geometry, [&](QPainter &painter) {
        const TimeAxis axis(times);
        TracePainter traces(painter, geometry, axis);
        if (thinned)
            traces.draw(TraceSummary(values), factor);
        else
            traces.drawAll(values, factor);
    });
}

// White where two pictures differ, black elsewhere.
QImage difference(const QImage &a, const QImage &b)
{
    QImage image(a.size(), QImage::Format_RGB32);
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            image.setPixelColor(x, y, a.pixel(x, y) != b.pixel(x, y) ? Qt::white : Qt::black);
    }
    return image;
}

int differentPixels(const QImage &a, const QImage &b)
{
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            different += a.pixel(x, y) != b.pixel(x, y);
    }
    return different;
}

// How many pixels are lit in each column of device pixels.
QVector<int> litInColumns(const QImage &image)
{
    QVector<int> lit(image.width());
    // Half a milliard of pixels in all: with calls that are not inlined, they would take long.
    int *const column = lit.data();
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < width; ++x)
            column[x] += (line[x] >> 24) != 0; // its alpha
    }
    return lit;
}

int litPixels(const QImage &image)
{
    const QVector<int> lit = litInColumns(image);
    return std::accumulate(lit.cbegin(), lit.cend(), 0);
}

// Pictures that differ are left in the build folder.
void compare(const QImage &thinned, const QImage &full, double ratio)
{
    const int different = thinned == full ? 0 : differentPixels(thinned, full);
    if (different > 0) {
        const QString stem = QStringLiteral(TEST_OUTPUT_DIR "/trace-")
            + QString::fromLatin1(QTest::currentDataTag())
                  .replace(QLatin1Char(' '), QLatin1Char('-'))
            + QStringLiteral("-at-%1").arg(ratio);
        QVERIFY(thinned.save(stem + QStringLiteral("-actual.png")));
        QVERIFY(full.save(stem + QStringLiteral("-expected.png")));
        QVERIFY(difference(thinned, full).save(stem + QStringLiteral("-difference.png")));
    }
    QVERIFY2(different == 0,
        qPrintable(QStringLiteral("%1 pixels differ at %2").arg(different).arg(ratio)));
}

// Takes a picture as lines, and keeps nothing but their number.
class LineCounter : public QPaintDevice, private QPaintEngine {
public:
    LineCounter() : QPaintEngine(AllFeatures) { }

    int count() const { return m_count; }
    QPaintEngine *paintEngine() const override { return const_cast<LineCounter *>(this); }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return size.width();
        case PdmHeight:
            return size.height();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return qRound(devicePixelRatioFScale());
        default:
            return 96;
        }
    }

private:
    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState & /*state*/) override { }
    Type type() const override { return User; }
    void drawPixmap(
        const QRectF & /*to*/, const QPixmap & /*pixmap*/, const QRectF & /*from*/) override
    {
    }
    void drawLines(const QLine * /*lines*/, int count) override { m_count += count; }

    int m_count = 0;
};

} // namespace

class TestTracePainter : public QObject {
    Q_OBJECT

private slots:
    void thinnedPictureEqualsFull_data();
    void thinnedPictureEqualsFull();
    void thinnedWhereTimesStepBack_data();
    void thinnedWhereTimesStepBack();
    void aStepBackLeavesTheLinesFew();
    void coversWhatThePaintersOwnLineDoes_data();
    void coversWhatThePaintersOwnLineDoes();
    void aFlatLineIsOneDevicePixelThick_data();
    void aFlatLineIsOneDevicePixelThick();
    void linesFromFarOutsideAreNotBent_data();
    void linesFromFarOutsideAreNotBent();
    void descendingTimesAreNotThinned();
    void samplesLeftOfTheViewAreSkipped();
    void theLineLeavesTheAreaOnTheRight();
    void valuesAreMultipliedByTheFactor();
    void anInfiniteFactorDrawsNothing();
    void gapsBreakTheLine();
    void aSampleBetweenGapsIsAPoint();
    void noSamplesDrawNothing();
};

void TestTracePainter::thinnedPictureEqualsFull_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Generator>("value");
    QTest::addColumn<QVector<double>>("view"); // times and values of the edges
    QTest::addColumn<double>("factor");

    const QVector<double> whole{0, 1000, -1.2, 1.2};
    const auto random = std::make_shared<std::mt19937>(3);
    const Generator noise = [random](int) { return float((*random)() % 20001) / 10000 - 1; };
    const Generator sine = [](int i) { return float(std::sin(i * 0.01)); };
    const Generator flat = [](int) { return 0.25F; };
    const Generator spiky
        = [random](int) { return (*random)() % 5000 == 0 ? float((*random)() % 3) - 1 : 0.0F; };
    const Generator walk = [random, level = std::make_shared<float>(0.0F)](int) {
        *level += float(int((*random)() % 2001) - 1000) / 500000;
        return *level;
    };
    const Generator gaps = [random](int i) {
        if ((*random)() % 300 == 0)
            return (*random)() % 2 ? noNumber : infinite;
        return float(std::sin(i * 0.003));
    };
    const Generator onlyGaps = [](int) { return noNumber; };
    const Generator halfGaps = [random](int) { return (*random)() % 2 ? noNumber : 0.5F; };

    QTest::newRow("noise") << 100000 << noise << whole << 1.0;
    QTest::newRow("noise, just many enough to be thinned") << 1700 << noise << whole << 1.0;
    QTest::newRow("noise, a part of the time")
        << 200000 << noise << QVector<double>{300, 333, -1.2, 1.2} << 1.0;
    QTest::newRow("noise, a part of the values")
        << 100000 << noise << QVector<double>{0, 1000, 0.2, 0.4} << 1.0;
    QTest::newRow("noise, far beyond the values")
        << 50000 << noise << QVector<double>{0, 1000, 0, 1e-9} << 1.0;
    QTest::newRow("noise, negative factor") << 100000 << noise << whole << -0.7;
    QTest::newRow("sine") << 100000 << sine << whole << 1.0;
    QTest::newRow("slow sine") << 5000 << sine << whole << 1.0;
    QTest::newRow("spikes") << 100000 << spiky << whole << 1.0;
    QTest::newRow("flat") << 100000 << flat << whole << 1.0;
    QTest::newRow("random walk") << 100000 << walk << whole << 1.0;
    QTest::newRow("gaps") << 50000 << gaps << whole << 1.0;
    QTest::newRow("nothing but gaps") << 50000 << onlyGaps << whole << 1.0;
    QTest::newRow("every other sample a gap") << 20000 << halfGaps << whole << 1.0;
    QTest::newRow("two samples") << 2 << sine << whole << 1.0;
    QTest::newRow("one sample") << 1 << flat << whole << 1.0;
}

void TestTracePainter::thinnedPictureEqualsFull()
{
    QFETCH(int, count);
    QFETCH(Generator, value);
    QFETCH(QVector<double>, view);
    QFETCH(double, factor);
    QVector<float> values(count);
    for (int i = 0; i < count; ++i)
        values[i] = value(i);
    const PlotGeometry geometry(size, 0, {view[0], view[1], 4, view[2], view[3], 4});
    const QVector<double> times = steadyTimes(count);
    for (const double ratio : ratios) {
        compare(traceImage(geometry, times, values, factor, true, ratio),
            traceImage(geometry, times, values, factor, false, ratio), ratio);
    }
}

void TestTracePainter::thinnedWhereTimesStepBack_data()
{
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<QVector<double>>("view"); // times of the edges
    using Times = QVector<double>;
    const Times whole{0, 1000};
    Times withGap = steppingBack(100000, 2, 50);
    for (int i = 40000; i < 40003; ++i)
        withGap[i] = noNumber;
    Times withInfinity = steppingBack(100000, 2, 50);
    withInfinity[20000] = infinite;
    QTest::newRow("by little") << steppingBack(100000, 1, 1) << whole;
    QTest::newRow("by much") << steppingBack(100000, 1, 500) << whole;
    QTest::newRow("behind the left edge") << steppingBack(100000, 1, 500) << Times{200, 300};
    QTest::newRow("from beyond the right edge") << steppingBack(100000, 1, 300) << Times{100, 300};
    QTest::newRow("out of view") << steppingBack(100000, 1, 1) << Times{600, 700};
    QTest::newRow("often") << steppingBack(100000, 50, 15) << whole;
    QTest::newRow("often, a part of the time") << steppingBack(100000, 50, 15) << Times{100, 150};
    QTest::newRow("every 16 samples") << steppingBack(100000, 6249, 0.1) << whole;
    QTest::newRow("with every sample") << steppingBack(10000, 9999, 0.2) << Times{-1000, 0};
    QTest::newRow("and some are no numbers") << withGap << whole;
    QTest::newRow("and one is infinite") << withInfinity << whole;
}

void TestTracePainter::thinnedWhereTimesStepBack()
{
    QFETCH(QVector<double>, times);
    QFETCH(QVector<double>, view);
    const PlotGeometry geometry(size, 0, {view[0], view[1], 4, -1.2, 1.2, 4});
    std::mt19937 random(8);
    QVector<float> values;
    for (int i = 0; i < times.size(); ++i) {
        const float value = float(std::sin(i * 0.003)) + float(random() % 100) / 1000;
        values.append(random() % 5000 == 0 ? noNumber : value);
    }
    for (const double ratio : ratios) {
        const QImage full = traceImage(geometry, times, values, 1, false, ratio);
        QVERIFY(litPixels(full) > 500 * ratio);
        compare(traceImage(geometry, times, values, 1, true, ratio), full, ratio);
    }
}

// A hundred thousand samples on 800 columns: at most a step into and a line along each.
void TestTracePainter::aStepBackLeavesTheLinesFew()
{
    const PlotGeometry geometry(size, 0, {0, 1000, 4, -1.2, 1.2, 4});
    QVector<float> values;
    for (int i = 0; i < 100000; ++i)
        values.append(i % 2 ? 1 : -1);
    const auto lines = [&](const QVector<double> &times) {
        LineCounter counter;
        QPainter painter(&counter);
        const TimeAxis axis(times);
        TracePainter(painter, geometry, axis).draw(TraceSummary(values), 1);
        return counter.count();
    };
    const int ascending = lines(steadyTimes(100000));
    QVERIFY(ascending > 800 && ascending < 1700);
    const int steppedBack = lines(steppingBack(100000, 1, 100));
    QVERIFY2(steppedBack < 1.2 * ascending, qPrintable(QString::number(steppedBack)));
}

void TestTracePainter::coversWhatThePaintersOwnLineDoes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Generator>("value");
    QTest::addColumn<double>("back"); // in the middle, ms
    const auto random = std::make_shared<std::mt19937>(5);
    const Generator noise = [random](int) { return float((*random)() % 2001) / 1000 - 1; };
    QTest::newRow("noise") << 100000 << noise << 0.0;
    QTest::newRow("noise, with a step back") << 100000 << noise << 300.0;
    QTest::newRow("sine of 160 periods")
        << 100000 << Generator([](int i) { return float(std::sin(i * 0.01)); }) << 0.0;
    QTest::newRow("sine of 640 periods")
        << 100000 << Generator([](int i) { return float(std::sin(i * 0.04)); }) << 0.0;
    QTest::newRow("pulses") << 100000 << Generator([](int i) { return i / 5 % 2 ? 0.9F : -0.9F; })
                            << 0.0;
}

// Of points that are not rounded, by the number of lit pixels.
void TestTracePainter::coversWhatThePaintersOwnLineDoes()
{
    QFETCH(int, count);
    QFETCH(Generator, value);
    QFETCH(double, back);
    const PlotGeometry geometry(size, 0, {0, 1000, 4, -1.2, 1.2, 4}); // 800 x 199 pixels
    const QVector<double> times = steppingBack(count, 1, back);
    QVector<float> values;
    QPolygonF points;
    for (int i = 0; i < count; ++i) {
        values.append(value(i));
        points.append({100 + times[i] * 800 / 1000, 60 + (1.2 - double(values[i])) * 199 / 2.4});
    }
    for (const double ratio : ratios) {
        const QImage expected
            = paint(ratio, geometry, [&](QPainter &painter) { painter.drawPolyline(points); });
        for (const bool thinned : {true, false}) {
            const QImage actual = traceImage(geometry, times, values, 1, thinned, ratio);
            const double share = double(litPixels(actual)) / litPixels(expected);
            QVERIFY2(share > 0.98 && share < 1.02,
                qPrintable(QStringLiteral("%1 of the pixels at %2").arg(share).arg(ratio)));
        }
    }
}

void TestTracePainter::aFlatLineIsOneDevicePixelThick_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : ratios)
        QTest::addRow("at %g", ratio) << ratio;
}

// In 100 heights; one sample stands on the right edge of the plot area or beyond.
void TestTracePainter::aFlatLineIsOneDevicePixelThick()
{
    QFETCH(double, ratio);
    const PlotGeometry geometry(size, 0, {0, 1000, 4, -1.2, 1.2, 4});
    QVector<double> times = steadyTimes(6000);
    times.append(1000);
    const int left = int(std::lround(100 * ratio));
    const int right = int(std::lround(898 * ratio)) - 1; // the frame's right edge is 897
    for (int i = 0; i < 100; ++i) {
        const QVector<float> values(6001, float(i - 50) / 50);
        const QImage image = traceImage(geometry, times, values, 1, true, ratio);
        QVector<int> expected(image.width(), 0);
        std::fill(expected.begin() + left, expected.begin() + right + 1, 1);
        QCOMPARE(litInColumns(image), expected);
    }
}

void TestTracePainter::linesFromFarOutsideAreNotBent_data()
{
    QTest::addColumn<QVector<double>>("times"); // of the ends; 800 pixels a millisecond from 100 on
    QTest::addColumn<QVector<float>>("values"); // 0 stands at 160, one a pixel
    QTest::addColumn<QPointF>("crossing"); // a point of the line in the plot area
    QTest::addColumn<bool>("isSteep");
    using Times = QVector<double>;
    using Values = QVector<float>;
    // From (100, 160) to (100 + 1e9, 160 + 2.5e8).
    QTest::newRow("to the lower right")
        << Times{0, 1.25e6} << Values{0, -2.5e8F} << QPointF(260, 200) << false;
    QTest::newRow("to the upper right")
        << Times{0, 1.25e6} << Values{0, 2.5e8F} << QPointF(260, 120) << false;
    // From (100, 160 - 4e9) to (300, 160 + 1e9).
    QTest::newRow("from above to below")
        << Times{0, 0.25} << Values{4e9F, -1e9F} << QPointF(260, 160) << true;
    QTest::newRow("from below to above")
        << Times{0, 0.25} << Values{-4e9F, 1e9F} << QPointF(260, 160) << true;
    // From (100, 160 - 1e9) to (100 + 1e9, 160 + 6.25e15): by 6.25e6 a pixel.
    QTest::newRow("from above to the lower right, all far outside")
        << Times{0, 1.25e6} << Values{1e9F, -6.25e15F} << QPointF(260, 160) << true;
}

void TestTracePainter::linesFromFarOutsideAreNotBent()
{
    QFETCH(QVector<double>, times);
    QFETCH(QVector<float>, values);
    QFETCH(QPointF, crossing);
    QFETCH(bool, isSteep);
    const PlotGeometry geometry({900, 301}, 0, {0, 1, 4, -100, 100, 4});
    for (const double ratio : ratios) {
        const QPoint pixel = (crossing * ratio).toPoint();
        const QImage full = traceImage(geometry, times, values, 1, false, ratio);
        QVERIFY2(qAlpha(full.pixel(pixel)) != 0, qPrintable(QString::number(ratio)));
        QVERIFY(isSteep || litInColumns(full)[pixel.x()] == 1);
        QVector<double> manyTimes(3000, times[0]);
        manyTimes += QVector<double>(3000, times[1]);
        QVector<float> manyValues(3000, values[0]);
        manyValues += QVector<float>(3000, values[1]);
        compare(traceImage(geometry, manyTimes, manyValues, 1, true, ratio), full, ratio);
    }
}

void TestTracePainter::descendingTimesAreNotThinned()
{
    QVector<double> times = steadyTimes(5000);
    std::reverse(times.begin(), times.end());
    QVector<float> values(5000);
    for (int i = 0; i < values.size(); ++i)
        values[i] = float(std::sin(i * 0.02));
    const PlotGeometry geometry(size, 0, {0, 1000, 4, -1.2, 1.2, 4});
    const QImage thinned = traceImage(geometry, times, values, 1, true);
    QCOMPARE(differentPixels(thinned, traceImage(geometry, times, values, 1, false)), 0);
    QVERIFY(litPixels(thinned) > 800);
}

// Value 0 stands at y = 159.5, drawn on row 160. With samples at x = 100, 500 and 900 and the view
// begun after the first, the line begins at the second.
void TestTracePainter::samplesLeftOfTheViewAreSkipped()
{
    const PlotGeometry geometry(size, 0, {1, 1001, 4, -1, 1, 4});
    const QImage image = traceImage(geometry, {0, 501, 900}, {0, 0, 0}, 1, true);
    QCOMPARE(qAlpha(image.pixel(499, 160)), 0);
    QCOMPARE(image.pixel(500, 160), QColor(Qt::green).rgba());
    QCOMPARE(image.pixel(700, 160), QColor(Qt::green).rgba());
}

void TestTracePainter::theLineLeavesTheAreaOnTheRight()
{
    const PlotGeometry geometry(size, 0, {0, 100, 4, -1, 1, 4});
    QVector<double> times = steadyTimes(5000); // 0.2 ms apart
    const QImage thinned = traceImage(geometry, times, QVector<float>(5000, 0.0F), 1, true);
    QCOMPARE(thinned.pixel(897, 160), QColor(Qt::green).rgba());
    QCOMPARE(qAlpha(thinned.pixel(898, 160)), 0); // clipped at the frame
}

void TestTracePainter::valuesAreMultipliedByTheFactor()
{
    const PlotGeometry geometry(QSize(900, 301), 0, {0, 1000, 4, -100, 100, 4});
    const QImage image = traceImage(geometry, {0, 1000}, {1, 1}, 50, true);
    QCOMPARE(image.pixel(400, 110), QColor(Qt::green).rgba()); // value 50, a quarter down
}

void TestTracePainter::anInfiniteFactorDrawsNothing()
{
    const PlotGeometry geometry(size, 0, {0, 1000, 4, -1, 1, 4});
    QCOMPARE(litPixels(traceImage(
                 geometry, {0, 1000}, {0, 1}, std::numeric_limits<double>::infinity(), true)),
        0);
}

void TestTracePainter::gapsBreakTheLine()
{
    const PlotGeometry geometry(size, 0, {0, 800, 4, -1, 1, 4});
    const QImage image
        = traceImage(geometry, {0, 100, 200, 300, 400}, {0, 0, noNumber, 0, 0}, 1, true);
    QCOMPARE(image.pixel(150, 160), QColor(Qt::green).rgba());
    QCOMPARE(qAlpha(image.pixel(250, 160)), 0);
    QCOMPARE(qAlpha(image.pixel(350, 160)), 0);
    QCOMPARE(image.pixel(450, 160), QColor(Qt::green).rgba());
}

void TestTracePainter::aSampleBetweenGapsIsAPoint()
{
    const PlotGeometry geometry(size, 0, {0, 800, 4, -1, 1, 4});
    const QImage image = traceImage(geometry, {0, 100, 200}, {noNumber, 0, noNumber}, 1, true);
    QCOMPARE(litPixels(image), 1);
    QCOMPARE(image.pixel(200, 160), QColor(Qt::green).rgba());
}

void TestTracePainter::noSamplesDrawNothing()
{
    const PlotGeometry geometry(size, 0, {0, 800, 4, -1, 1, 4});
    QCOMPARE(litPixels(traceImage(geometry, {}, {}, 1, true)), 0);
    QCOMPARE(litPixels(traceImage(geometry, {0, 1}, {}, 1, true)), 0);
}

QTEST_MAIN(TestTracePainter)
#include "tst_tracepainter.moc"
