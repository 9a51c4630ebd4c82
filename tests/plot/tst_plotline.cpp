// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotline.h"

#include "plotgeometry.h"
#include "screenshot.h"

#include <QtTest>

#include <cmath>
#include <memory>
#include <vector>

namespace {

const QRgb white = qRgb(255, 255, 255);
const QRgb black = qRgb(0, 0, 0);

QImage picture(QWidget &window)
{
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

// Lines of real windows at the scale factor that QT_SCALE_FACTOR names.
class TestPlotLine : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void looks();
    void isSeenWhereverItStands_data();
    void isSeenWhereverItStands();
    void leavesNothingBehind();
    void repaintsMoreThanItsPlace();
    void whatIsMovedOverAPlotRepaintsAroundBothPlaces();

private:
    void checkLine(const QImage &image, int x) const;

    std::unique_ptr<QWidget> window;
    const PlotGeometry geometry{QSize(640, 160), 0, {0, 1, 4, 0, 1, 4}};
    qreal ratio = 1;
};

void TestPlotLine::init()
{
    window = std::make_unique<QWidget>();
    window->setStyleSheet(QStringLiteral("QWidget{background-color: black;}"));
    window->resize(640, 160);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const QByteArray factor = qgetenv("QT_SCALE_FACTOR");
    ratio = factor.isEmpty() ? 1.0 : factor.toDouble();
    // The toolkit keeps it in steps of 1/65536.
    QVERIFY(std::abs(window->devicePixelRatioF() - ratio) < 1.0 / 32768);
}

void TestPlotLine::cleanup()
{
    window.reset();
}

void TestPlotLine::looks()
{
    const auto *line = new PlotLine(window.get(), QStringLiteral("name"), QStringLiteral("red"));
    QCOMPARE(line->objectName(), QStringLiteral("name"));
    QCOMPARE(line->frameStyle(), 21);
    QCOMPARE(line->lineWidth(), 1);
    QCOMPARE(line->styleSheet(), QStringLiteral("QFrame{color: red; border-color: red;}"));
    QVERIFY(line->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(line->isHidden());
}

// A white line from y = 60 to 119 stands somewhere within its widget pixel, and nowhere else. It is
// everywhere of one width: the whole pixels of the screen that fit into one of the widget.
void TestPlotLine::checkLine(const QImage &image, int x) const
{
    const int from = int(std::floor(x * ratio));
    const int to = int(std::ceil((x + 1) * ratio));
    const int middle = int(90 * ratio);
    int lit = 0;
    for (int column = from - 1; column <= to; ++column) {
        const QRgb pixel = image.pixel(column, middle);
        QVERIFY2(pixel == black || (pixel == white && column >= from && column < to),
            qPrintable(QStringLiteral("x %1, column %2").arg(x).arg(column)));
        if (pixel != white)
            continue;
        ++lit;
        for (int y = int(std::ceil(60 * ratio)); y < qRound(119 * ratio) + int(ratio); ++y)
            QCOMPARE(image.pixel(column, y), white);
        QCOMPARE(image.pixel(column, int(60 * ratio) - 2), black);
        QCOMPARE(image.pixel(column, int(std::ceil(120 * ratio)) + 1), black);
    }
    QVERIFY2(lit == int(ratio), qPrintable(QStringLiteral("%1 wide at %2").arg(lit).arg(x)));
}

void TestPlotLine::isSeenWhereverItStands_data()
{
    QTest::addColumn<int>("first");
    for (int first = 100; first < 105; ++first)
        QTest::addRow("every fifth pixel from %d on", first) << first;
}

void TestPlotLine::isSeenWhereverItStands()
{
    QFETCH(int, first);
    for (int x = first; x < 630; x += 5) {
        auto *line = new PlotLine(window.get(), QString(), QStringLiteral("white"));
        line->place(x, geometry);
        line->show();
    }
    const QImage shown = screenshot(*window);
    const QImage grabbed = picture(*window);
    QCOMPARE(shown.size(), QSize(640, 160) * ratio);
    QCOMPARE(grabbed.size(), QSize(640, 160) * ratio);
    for (int x = first; x < 630; x += 5) {
        checkLine(shown, x);
        checkLine(grabbed, x);
    }
}

// Where only the places that it leaves and enters are repainted.
void TestPlotLine::leavesNothingBehind()
{
    const QImage before = screenshot(*window);
    PlotLine line(window.get(), QString(), QStringLiteral("white"));
    line.show();
    for (const int step : {1, 2, 3, 7}) {
        for (int x = 100; x < 200; x += step) {
            line.place(x, geometry);
            checkLine(screenshot(*window), x);
        }
    }
    line.hide();
    QCOMPARE(screenshot(*window), before);
}

namespace {

// What of a widget is painted.
class PaintWatch : public QObject {
public:
    QRegion painted;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

// The screen's own system may round the place of a widget differently from the toolkit.
void TestPlotLine::repaintsMoreThanItsPlace()
{
    PlotLine line(window.get(), QString(), QStringLiteral("white"));
    line.place(100, geometry);
    screenshot(*window);
    PaintWatch watch;
    window->installEventFilter(&watch);
    line.show();
    screenshot(*window);
    QVERIFY((QRegion(99, 59, 3, 62) - watch.painted).isEmpty());
    watch.painted = QRegion();
    line.place(300, geometry);
    screenshot(*window);
    QVERIFY((QRegion(99, 59, 3, 62) - watch.painted).isEmpty());
    QVERIFY((QRegion(299, 59, 3, 62) - watch.painted).isEmpty());
    QVERIFY(!watch.painted.intersects(QRect(120, 59, 160, 62)));
    watch.painted = QRegion();
    line.hide();
    screenshot(*window);
    QVERIFY((QRegion(299, 59, 3, 62) - watch.painted).isEmpty());
}

void TestPlotLine::whatIsMovedOverAPlotRepaintsAroundBothPlaces()
{
    QWidget moved(window.get());
    moved.setGeometry(100, 60, 10, 10);
    moved.show();
    screenshot(*window);
    PaintWatch watch;
    window->installEventFilter(&watch);
    for (int time = 0; time < 2; ++time) { // there and back
        watch.painted = QRegion();
        moveOver(*window, moved, time == 0 ? QPoint(300, 60) : QPoint(100, 60));
        screenshot(*window);
        QVERIFY((QRegion(99, 59, 12, 12) - watch.painted).isEmpty());
        QVERIFY((QRegion(299, 59, 12, 12) - watch.painted).isEmpty());
        QVERIFY(!watch.painted.intersects(QRect(120, 59, 160, 62)));
    }
}

QTEST_MAIN(TestPlotLine)
#include "tst_plotline.moc"
