// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fakeplothost.h"
#include "vectorpanel.h"

namespace {

using namespace vectorpanel;

// The coloured pixel of a line's end; flipping the vertical axis may move it by a row.
bool endsAt(const QImage &image, const QColor &color, const QPoint &end)
{
    const QPoint pixel = origin + QPoint(end.x(), -end.y());
    return image.pixelColor(pixel) == color || image.pixelColor(pixel - QPoint(0, 1)) == color;
}

} // namespace

class TestVectorWidgetLines : public QObject, private VectorPanelFixture {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }
    void ofTheGridAreAsTheToolkitDrawsThem_data();
    void ofTheGridAreAsTheToolkitDrawsThem();
    void ofTheGridHaveOneThickness();
    void endAtThePhasorsOfEachCursor_data();
    void endAtThePhasorsOfEachCursor();
    void areDrawnOverEarlierOnes();
    void leaveTheAxisLabelsAsWithOneCursor();
    void leaveOutMagnitudesBelowTheLabel();
    void followTheSampleNearestToTheCursor_data();
    void followTheSampleNearestToTheCursor();
};

void TestVectorWidgetLines::ofTheGridAreAsTheToolkitDrawsThem_data()
{
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<QVector<int>>("lines");
    QTest::newRow("no channel") << false
                                << QVector<int>{0, 30, 61, 91, 122, 152, 183, 213, 244, 274, 305};
    QTest::newRow("an axis up to 100")
        << true << QVector<int>{0, 30, 60, 91, 121, 152, 182, 213, 243, 274, 304};
}

// On a screen without a scale.
void TestVectorWidgetLines::ofTheGridAreAsTheToolkitDrawsThem()
{
    QFETCH(bool, isChecked);
    QFETCH(QVector<int>, lines);
    recording.add(QStringLiteral("I"), 0, 52, extremeOf100);
    setPlotter({});
    show();
    if (isChecked)
        check(0);
    QPixmap pixmap(365, 365);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QPen(QColor(200, 200, 200, 50), 1, Qt::DashLine));
    painter.translate(30, 20);
    for (const int line : lines) {
        painter.drawLine(0, line, 305, line);
        painter.drawLine(line, 0, line, 305);
    }
    QCOMPARE(diagram(), pixmap.toImage());
}

// Also once more at each of these scale factors of the screen.
void TestVectorWidgetLines::ofTheGridHaveOneThickness()
{
    const QMap<double, int> pixels{{1, 1}, {1.25, 1}, {1.5, 1}, {1.75, 1}, {2, 2}};
    const double scale = qApp->devicePixelRatio();
    QVERIFY(pixels.contains(scale));
    setPlotter({});
    show();
    const QImage image = diagram();
    // All lines begin with a dash, which lies from 30 or 20 on; the third pixel of each.
    const int column = static_cast<int>(32 * scale);
    const int row = static_cast<int>(22 * scale);
    QVector<int> across;
    QVector<int> along;
    for (int i = 1; i < image.width(); ++i) {
        const auto count = [&](QVector<int> &thicknesses, const QPoint &before, const QPoint &at) {
            if (image.pixelColor(at).alpha() == 0)
                return;
            if (image.pixelColor(before).alpha() == 0)
                thicknesses.append(0);
            ++thicknesses.last();
        };
        count(across, {column, i - 1}, {column, i});
        count(along, {i - 1, row}, {i, row});
    }
    QCOMPARE(across, QVector<int>(11, pixels.value(scale)));
    QCOMPARE(along, QVector<int>(11, pixels.value(scale)));
}

void TestVectorWidgetLines::endAtThePhasorsOfEachCursor_data()
{
    QTest::addColumn<float>("angle"); // at the first cursor, magnitude 52
    QTest::addColumn<QPoint>("first"); // from the origin, y upwards
    QTest::addColumn<QPoint>("second"); // a quarter turn ahead, magnitude 29

    // 52 are 79.3 pixels, 29 are 44.225; truncated toward zero. All ends lie within a dash.
    QTest::newRow("to the right") << 0.0F << QPoint(79, 0) << QPoint(0, 44);
    QTest::newRow("a twelfth of a turn") << pi / 6 << QPoint(68, 39) << QPoint(-22, 38);
    QTest::newRow("an eighth of a turn") << pi / 4 << QPoint(56, 56) << QPoint(-31, 31);
    QTest::newRow("up") << pi / 2 << QPoint(0, 79) << QPoint(-44, 0);
    QTest::newRow("up and to the left") << 2 * pi / 3 << QPoint(-39, 68) << QPoint(-38, -22);
    QTest::newRow("to the left") << pi << QPoint(-79, 0) << QPoint(0, -44);
    QTest::newRow("down and to the left") << -3 * pi / 4 << QPoint(-56, -56) << QPoint(31, -31);
    QTest::newRow("down") << -pi / 2 << QPoint(0, -79) << QPoint(44, 0);
    QTest::newRow("down and to the right") << -pi / 6 << QPoint(68, -39) << QPoint(22, 38);
}

void TestVectorWidgetLines::endAtThePhasorsOfEachCursor()
{
    QFETCH(float, angle);
    QFETCH(QPoint, first);
    QFETCH(QPoint, second);
    AnalogChannel &channel = recording.add(QStringLiteral("I"), angle, 52, extremeOf100);
    channel.fftAngles[70] = angle + pi / 2;
    channel.fftMagnitudes[70] = 29;
    setPlotter({50, 70});
    show();
    check(0);
    const QImage image = diagram();
    QVERIFY(endsAt(image, orange, first));
    QVERIFY(endsAt(image, orange, second));
    QCOMPARE(pixelsOf(image, orange),
        pixelsOf(linesPicture({{first, orange}, {second, orange}}), orange));
}

// Channel 2 covers channel 1 at the same cursor, and both are covered at the next one.
void TestVectorWidgetLines::areDrawnOverEarlierOnes()
{
    AnalogChannel &first = recording.add(QStringLiteral("A"), 0, 52, extremeOf100);
    recording.add(QStringLiteral("B"), 0, 29, extremeOf100);
    setPlotter({50, 70});
    first.fftMagnitudes[70] = 29.0F / 2; // 22.1 pixels
    show();
    check(0);
    check(1);
    const QList<Line> lines{
        {{79, 0}, orange}, {{44, 0}, green}, {{22, 0}, orange}, {{44, 0}, green}};
    QCOMPARE(pixelsOf(diagram(), orange), pixelsOf(linesPicture(lines), orange));
    QCOMPARE(pixelsOf(diagram(), green), pixelsOf(linesPicture(lines), green));
}

void TestVectorWidgetLines::leaveTheAxisLabelsAsWithOneCursor()
{
    recording.add(QStringLiteral("I"), 0, 52, extremeOf100);
    show();
    check(0);
    const QImage one = diagram();
    QVERIFY(!isTransparent(one.copy(0, 16, 29, 10))); // "100"
    setPlotter({50, 60, 70});
    panel->drawAll();
    QCOMPARE(diagram(), one);
}

// Base lines of 15, 30, ... pixels: of the 20 texts of a column, five stand within 85 pixels and
// the sixth, on 90, reaches into them.
void TestVectorWidgetLines::leaveOutMagnitudesBelowTheLabel()
{
    QList<double> cursors;
    QList<Text> texts;
    const int columns[]{0, 121, 242};
    const QColor colors[]{orange, green, blue};
    for (int i = 0; i < 20; ++i) {
        cursors.append(i);
        for (int k = 0; k < 3; ++k)
            texts.append(
                {{columns[k], 15 * (i + 1)}, colors[k], QStringLiteral("Åg%1: 50").arg(k)});
    }
    for (int k = 0; k < 3; ++k)
        recording.add(QStringLiteral("Åg%1").arg(k), 0, 50, extremeOf100);
    setPlotter(cursors);
    show();
    for (int k = 0; k < 3; ++k)
        check(k);
    QCOMPARE(magnitudes(), pictureOf(texts));
}

void TestVectorWidgetLines::followTheSampleNearestToTheCursor_data()
{
    QTest::addColumn<QVector<double>>("times"); // the magnitudes are 0, 1, 2, ...
    QTest::addColumn<double>("cursor");
    QTest::addColumn<QString>("text");
    using Times = QVector<double>;
    const Times even{0, 10, 20, 30, 40};
    const Times twice{0, 10, 10, 30, 40};
    const Times back{0, 20, 10, 30, 40};

    QTest::newRow("on a sample") << even << 20.0 << QStringLiteral("I: 2");
    QTest::newRow("on the first") << even << 0.0 << QStringLiteral("I: 0");
    QTest::newRow("on the last") << even << 40.0 << QStringLiteral("I: 4");
    QTest::newRow("nearer to the earlier") << even << 14.9 << QStringLiteral("I: 1");
    QTest::newRow("halfway goes to the later") << even << 15.0 << QStringLiteral("I: 2");
    QTest::newRow("nearer to the later") << even << 15.1 << QStringLiteral("I: 2");
    QTest::newRow("behind the last") << even << 40.1 << QStringLiteral("I: 0");
    QTest::newRow("equal times: the first of them") << twice << 10.0 << QStringLiteral("I: 1");
    QTest::newRow("between equal times and the next") << twice << 12.0 << QStringLiteral("I: 2");
    QTest::newRow("times that run back: the first pair around it")
        << back << 13.0 << QStringLiteral("I: 1");
}

// A plot that has read the times of the same recording, and one that has read none.
void TestVectorWidgetLines::followTheSampleNearestToTheCursor()
{
    QFETCH(QVector<double>, times);
    QFETCH(double, cursor);
    QFETCH(QString, text);
    FakePlotHost plotHost;
    plotHost.setTimes(times);
    plotHost.addAnalog(QStringLiteral("I"), {0, 1});
    AnalogChannel &channel = recording.add(QStringLiteral("I"), 0, 0, extremeOf100);
    channel.times = plotHost.source->sampleTimes;
    channel.sampleRate = 7; // no guess of it fits
    for (int i = 0; i < times.size(); ++i)
        channel.fftMagnitudes[i] = static_cast<float>(i);
    setPlotter({cursor});
    show();
    check(0);
    QVERIFY(plotter->sampleTimes().times().isEmpty());
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, orange, text}}));

    plotter->setMainWindow(&plotHost);
    plotter->addChannel(0);
    plotter->setupPlot();
    QVERIFY(plotter->sampleTimes().times().isSharedWith(channel.times));
    panel->drawAll();
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, orange, text}}));
}

QTEST_MAIN(TestVectorWidgetLines)
#include "tst_vectorwidget_lines.moc"
