// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fakeplothost.h"
#include "plotterdg.h"
#include "textsearch.h"

#include <QHelpEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>
#include <QtTest>

#include <algorithm>
#include <memory>

// A plot of 800 x 261 with three rows over 1000 ms: base lines at y = 100, 140 and 180.
class TestPlotterDg : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void setupPlot();
    void rowsShowTheStates();
    void aChannelThatNeverChangesIsOneStretch();
    void denseChangesAreDrawnAsOne();
    void oneChangeAmongManyIsSeen();
    void rowsShowTheStatesInAnotherView();
    void rowsShowTheStatesOfUnorderedTimes();
    void rowsStayWithinThePlotArea();
    void rowsHaveTheirNamesInTheMargin();
    void namesTooLongForTheMarginShowBothEnds();
    void namesHaveToolTips_data();
    void namesHaveToolTips();
    void triggerAndGrid();
    void theTriggersTextIsReadOverTheLastBand_data();
    void theTriggersTextIsReadOverTheLastBand();
    void verticalZoomWithoutPropagationDoesNothing();
    void neverKeepsRoomForAReadout();
    void wheel_data();
    void wheel();
    void neededHeightGrowsWithTheRows();
    void rowsOfATallPlotAreDrawnAsTheyComeIntoSight();

private:
    QRgb pixel(double time, int y) const
    {
        return plot->grab().toImage().pixel(100 + qRound(time * 700 / 1000), y);
    }

    std::unique_ptr<FakePlotHost> host;
    std::unique_ptr<QWidget> area;
    plotterDg *plot = nullptr;
};

namespace {

const QRgb line = qRgb(20, 150, 20);
const QRgb band = qRgb(240, 255, 240);
const QRgb background = qRgb(0x31, 0x30, 0x34);

} // namespace

void TestPlotterDg::init()
{
    host = std::make_unique<FakePlotHost>();
    QVector<double> times(1001);
    QVector<int> pickUp(1001, 0);
    QVector<int> dense(1001, 0);
    for (int i = 0; i < times.size(); ++i) {
        times[i] = i;
        pickUp[i] = i >= 200 && i < 400 ? 1 : 0;
        dense[i] = i >= 600 && i < 700 ? i % 2 : 0;
    }
    host->setTimes(times);
    host->source->durationMs = 1000;
    host->source->triggerOffsetMs = 500;
    host->addDigital(QStringLiteral("Pick-up"), pickUp);
    host->addDigital(QStringLiteral("Closed"), QVector<int>(1001, 1));
    host->addDigital(QStringLiteral("Dense"), dense);

    area = std::make_unique<QWidget>();
    area->resize(800, 261);
    plot = new plotterDg(area.get());
    plot->setMainWindow(host.get());
    plot->setName(QStringLiteral("Digital"));
    plot->resize(800, 261);
    for (int i = 0; i < 3; ++i)
        plot->addChannel(i);
    plot->setupPlot();
    area->show();
    QVERIFY(QTest::qWaitForWindowExposed(area.get()));
}

void TestPlotterDg::cleanup()
{
    area.reset();
    host.reset();
}

void TestPlotterDg::construction()
{
    QCOMPARE(plot->objectName(), QStringLiteral("Plotter"));
    QVERIFY(plot->styleSheet().startsWith(QStringLiteral("Plotter{background-color: #313034;")));
}

void TestPlotterDg::setupPlot()
{
    const auto *title = plot->findChild<QLabel *>(QStringLiteral("Plotter Label"));
    QCOMPARE(title->text(), QStringLiteral("Digital Plotter"));
    QCOMPARE(title->geometry(), QRect(70, 30, 100, 20));
    QCOMPARE(title->lineWidth(), 2);
    QCOMPARE(title->frameStyle(), int(QFrame::Box));
    QVERIFY(title->isVisible());
    QCOMPARE(plot->view().minX, 0.0);
    QCOMPARE(plot->view().maxX, 1000.0);
    QCOMPARE(plot->view().numXTicks, 10.0);
}

void TestPlotterDg::rowsShowTheStates()
{
    QCOMPARE(pixel(150, 100), line);
    QCOMPARE(pixel(150, 97), background);
    QCOMPARE(pixel(350, 100), band);
    QCOMPARE(pixel(350, 96), band);
    QCOMPARE(pixel(350, 104), band);
    QCOMPARE(pixel(350, 95), line); // the edge of the band
    QCOMPARE(pixel(350, 105), line);
    QCOMPARE(pixel(350, 94), background);
    QCOMPARE(pixel(350, 106), background);
    QCOMPARE(pixel(200, 98), line); // its left edge
    QCOMPARE(pixel(450, 100), line);
    QCOMPARE(pixel(450, 98), background);
}

void TestPlotterDg::aChannelThatNeverChangesIsOneStretch()
{
    for (const int time : {50, 350, 650, 980})
        QCOMPARE(pixel(time, 140), band);
}

void TestPlotterDg::denseChangesAreDrawnAsOne()
{
    QCOMPARE(pixel(550, 180), line);
    QCOMPARE(pixel(550, 177), background);
    for (int time = 602; time < 698; time += 3)
        QVERIFY(pixel(time, 177) != background);
    QCOMPARE(pixel(750, 177), background);
    QCOMPARE(pixel(750, 180), line);
}

// 2000 samples for a pixel column, of which one differs from all others.
void TestPlotterDg::oneChangeAmongManyIsSeen()
{
    QVector<double> times(1400001);
    for (int i = 0; i < times.size(); ++i)
        times[i] = i;
    QVector<int> rare(times.size(), 0);
    rare[700000] = 1; // at x = 450
    QVector<int> mostly(times.size(), 1);
    mostly[280000] = 0; // at x = 240
    host->setTimes(times);
    host->addDigital(QStringLiteral("Rare"), rare);
    host->addDigital(QStringLiteral("Mostly"), mostly);
    plot->resetPlot();
    plot->showChannels({3, 4});
    plot->setupPlot();
    plot->refreshPixmap();
    const QImage image = plot->grab().toImage();
    const PlotGeometry geometry = plot->geometryOfView();
    const int first = geometry.rowY(0, 2);
    const int second = geometry.rowY(1, 2);
    const int x = PlotGeometry::pixel(geometry.traceX(700000));
    QCOMPARE(image.pixel(x, first - 3), line);
    QCOMPARE(image.pixel(x - 2, first - 3), background);
    QCOMPARE(image.pixel(x + 2, first - 3), background);
    QCOMPARE(image.pixel(PlotGeometry::pixel(geometry.traceX(100000)), second - 3), band);
}

// From 300 to 800 ms, the band of 200 to 400 ms begins left of the view.
void TestPlotterDg::rowsShowTheStatesInAnotherView()
{
    plot->customZoomIn();
    plot->scrolling(3);
    QCOMPARE(plot->view().minX, 300.0);
    QCOMPARE(plot->view().maxX, 800.0);
    const QImage image = plot->grab().toImage();
    const auto at = [&](double time, int y) {
        return image.pixel(100 + qRound((time - 300) * 700 / 500), y);
    };
    QCOMPARE(at(310, 100), band);
    QCOMPARE(at(395, 100), band);
    QCOMPARE(at(405, 97), background);
    QCOMPARE(at(405, 100), line);
    QCOMPARE(at(550, 140), band);
}

// The times go back to 0 half way: the second half is drawn over the first.
void TestPlotterDg::rowsShowTheStatesOfUnorderedTimes()
{
    QVector<double> times(1000);
    QVector<int> states(1000, 0);
    for (int i = 0; i < times.size(); ++i) {
        times[i] = i % 500 * 2;
        states[i] = i >= 600 && i < 700 ? 1 : 0; // 200 to 400 ms
    }
    host->setTimes(times);
    host->addDigital(QStringLiteral("Back"), states);
    plot->showChannels({3});
    plot->setupPlot();
    plot->refreshPixmap();
    const int y = plot->geometryOfView().rowY(0, 1);
    QCOMPARE(pixel(300, y - 3), band);
    QCOMPARE(pixel(150, y - 3), background);
    QCOMPARE(pixel(150, y), line);
    QCOMPARE(pixel(450, y - 3), background);
}

void TestPlotterDg::rowsStayWithinThePlotArea()
{
    plot->customZoomIn();
    plot->scrolling(3);
    const QImage image = plot->grab().toImage();
    QCOMPARE(image.pixel(99, 140), background); // left of a band that goes on there
    QVERIFY(image.pixel(101, 140) != background);
}

void TestPlotterDg::rowsHaveTheirNamesInTheMargin()
{
    const QImage image = plot->grab().toImage();
    const auto ink = [&](int y) {
        QRect found;
        for (int x = 3; x < 99; ++x) {
            for (int row = y - 7; row <= y + 7; ++row) {
                if (qGray(image.pixel(x, row)) > 150)
                    found |= QRect(x, row, 1, 1);
            }
        }
        return found;
    };
    for (const int y : {100, 140, 180}) {
        const QRect name = ink(y);
        QVERIFY(!name.isNull());
        QVERIFY(name.right() > 85); // right-aligned
        QVERIFY(std::abs(name.center().y() - y) <= 3);
    }
    QVERIFY(ink(120).isNull());
    QVERIFY(ink(100).width() != ink(180).width()); // another name
}

// The small font has 10 pixels; the margin leaves 90.
void TestPlotterDg::namesTooLongForTheMarginShowBothEnds()
{
    host->addDigital(QStringLiteral("Feeder protection stage 1 trip"), QVector<int>(1001, 0));
    host->addDigital(QStringLiteral("Feeder protection stage 2 trip"), QVector<int>(1001, 0));
    host->addDigital(QStringLiteral("Breaker protection stage 2 trip"), QVector<int>(1001, 0));
    plot->showChannels({3, 4, 5}); // at y = 100, 140 and 180
    plot->setupPlot();
    plot->refreshPixmap();
    const QImage image = plot->grab().toImage();
    const auto name = [&](int y) { return image.copy(4, y - 7, 90, 15); };
    QVERIFY(name(100) != name(140)); // by the end
    QVERIFY(name(140) != name(180)); // by the beginning
    QCOMPARE(image.copy(64, 133, 30, 15), image.copy(64, 173, 30, 15)); // the end is the same
}

void TestPlotterDg::namesHaveToolTips_data()
{
    QTest::addColumn<int>("start"); // ms, of the view
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QString>("tip");
    QTest::newRow("off") << 0 << QPoint(50, 100) << QStringLiteral("Pick-up = 0 at 0.000 ms");
    QTest::newRow("another view") << 300 << QPoint(50, 100)
                                  << QStringLiteral("Pick-up = 1 at 300.000 ms");
    QTest::newRow("on") << 0 << QPoint(99, 140) << QStringLiteral("Closed = 1 at 0.000 ms");
    QTest::newRow("last row") << 0 << QPoint(4, 180) << QStringLiteral("Dense = 0 at 0.000 ms");
    QTest::newRow("above the rows") << 0 << QPoint(50, 50) << QString();
    QTest::newRow("beside the names") << 0 << QPoint(100, 100) << QString();
}

void TestPlotterDg::namesHaveToolTips()
{
    QFETCH(int, start);
    QFETCH(QPoint, point);
    QFETCH(QString, tip);
    plot->changeView([=](PlotView &view) { return view.showTimes(start, start + 500); });
    for (int twice = 0; twice < 2; ++twice) {
        QHelpEvent help(QEvent::ToolTip, point, plot->mapToGlobal(point));
        QApplication::sendEvent(plot, &help);
        QCOMPARE(QToolTip::text(), tip);
        QHelpEvent beside(QEvent::ToolTip, {400, 20}, plot->mapToGlobal({400, 20}));
        QApplication::sendEvent(plot, &beside);
        QTRY_VERIFY(QToolTip::text().isEmpty());
    }
}

void TestPlotterDg::triggerAndGrid()
{
    const QImage image = plot->grab().toImage();
    QCOMPARE(image.pixel(170, 70), qRgb(150, 150, 150)); // 100 ms
    QCOMPARE(image.pixel(135, 60), qRgb(255, 255, 255)); // frame
    int white = 0;
    for (int y = 61; y < 220; ++y)
        white += image.pixel(450, y) == qRgb(255, 255, 255);
    QVERIFY(white > 40 && white < 159); // dashed, at 500 ms
}

void TestPlotterDg::theTriggersTextIsReadOverTheLastBand_data()
{
    QTest::addColumn<int>("from"); // ms, of the band
    QTest::addColumn<int>("to"); // x, to which letters are white
    QTest::newRow("that covers it") << 0 << 0;
    QTest::newRow("that begins in it") << 540 << 478;
    QTest::newRow("that begins behind it") << 900 << 797;
}

// 34 rows, 16 pixels apart: the last one has its base line at y = 604, and its band is filled from
// y = 600 to 608. The text stands from x = 456 to y = 618.
void TestPlotterDg::theTriggersTextIsReadOverTheLastBand()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QVector<int> states(1001, 0);
    std::fill(states.begin() + from, states.end(), 1);
    for (int i = 3; i < 34; ++i) {
        host->addDigital(QString::number(i), states);
        plot->addChannel(i);
    }
    const QFont font = crispFont(14);
    plot->setFont(font);
    plot->setupPlot();
    area->resize(800, 661);
    plot->resize(800, 661);
    const QImage image = plot->grab().toImage();

    QImage text(image.size(), QImage::Format_RGB32);
    text.fill(Qt::black);
    QPainter painter(&text);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(
        456, 618 + 1 - QFontMetrics(font).descent(), QStringLiteral("Trigger: 500 ms"));
    painter.end();
    const QRect ink = inkRect(text, text.rect());
    QVERIFY(ink.top() < 606 && ink.bottom() > 612 && ink.right() > 540);
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        for (int x = ink.left(); x <= ink.right(); ++x) {
            const bool isOverBand = y >= 600 && y <= 608 && x > to;
            if (isInk(text, x, y))
                QCOMPARE(image.pixel(x, y), isOverBand ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
            else if (isOverBand)
                QCOMPARE(image.pixel(x, y), band);
        }
    }
}

void TestPlotterDg::verticalZoomWithoutPropagationDoesNothing()
{
    const double maxY = plot->view().maxY;
    plot->customVZoomIn2();
    QCOMPARE(plot->view().maxY, maxY);
    plot->customVZoomOut2();
    QCOMPARE(plot->view().maxY, maxY);
}

void TestPlotterDg::neverKeepsRoomForAReadout()
{
    for (int i = 0; i < 5; ++i)
        plot->addCursor(200 + 50 * i, 100);
    QCOMPARE(plot->cursors().size(), 5);
    QCOMPARE(plot->geometryOfView().readoutWidth(), 0);
}

void TestPlotterDg::wheel_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("maxX");
    QTest::newRow("forward with Ctrl zooms in") << int(Qt::Key_Control) << 120 << 500.0;
    QTest::newRow("119 with Ctrl zooms out") << int(Qt::Key_Control) << 119 << 2100.0;
    QTest::newRow("with Shift does nothing") << int(Qt::Key_Shift) << 120 << 1000.0;
    QTest::newRow("without a key does nothing") << 0 << 120 << 1000.0;
}

void TestPlotterDg::wheel()
{
    QFETCH(int, key);
    QFETCH(int, delta);
    const double maxY = plot->view().maxY;
    if (key)
        QTest::keyPress(plot, Qt::Key(key));
    QWheelEvent event({300, 150}, plot->mapToGlobal(QPoint(300, 150)), {}, {0, delta}, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(plot, &event);
    QTEST(plot->view().maxX, "maxX");
    QCOMPARE(plot->view().maxY, maxY);
}

void TestPlotterDg::neededHeightGrowsWithTheRows()
{
    QCOMPARE(plot->neededHeight(), 200);
    for (int i = 3; i < 40; ++i) {
        host->addDigital(QStringLiteral("D%1").arg(i), QVector<int>(1001, 1));
        plot->addChannel(i);
    }
    QCOMPARE(plot->neededHeight(), 60 + 41 + 41 * 16);
}

// Of 5000 rows, 16 pixels apart, in a view of 300 pixels. The last one alone is off at first.
void TestPlotterDg::rowsOfATallPlotAreDrawnAsTheyComeIntoSight()
{
    constexpr int rows = 5000;
    const QVector<double> times{0, 500, 1000};
    host->setTimes(times);
    QList<int> shown;
    for (int i = 0; i < rows; ++i) {
        const int first = i == rows - 1 ? 0 : 1;
        shown.append(host->source->digitalChannels.size());
        host->addDigital(QString::number(i), {first, first, 1 - first});
    }
    plot->resetPlot();
    plot->showChannels(shown);
    plot->setupPlot();
    QCOMPARE(plot->neededHeight(), 80117);
    QScrollArea scroll;
    scroll.setWidget(plot);
    scroll.resize(860, 300);
    plot->resize(800, plot->neededHeight());
    scroll.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scroll));
    plot->refreshPixmap();
    // The base line of row k stands at 60 + 16 (k + 1).
    const auto at = [&](int x, int y) {
        const QPoint place = plot->mapTo(&scroll, QPoint(x, y));
        return scroll.grab(QRect(place, QSize(1, 1))).toImage().pixel(0, 0);
    };
    QCOMPARE(at(300, 76 - 3), band);
    for (const int row : {255, 256, 2048, 4998, 130, 0}) {
        const int y = 76 + 16 * row;
        scroll.verticalScrollBar()->setValue(y - 150);
        QCOMPARE(at(300, y - 3), band);
        QCOMPARE(at(300, y - 8), background);
    }
    scroll.verticalScrollBar()->setValue(scroll.verticalScrollBar()->maximum());
    QCOMPARE(at(300, 60 + 16 * rows), line);
    QCOMPARE(at(300, 60 + 16 * rows - 3), background);
    QCOMPARE(at(300, 80117 - 41), qRgb(255, 255, 255)); // frame

    // A picture of all of it is made of several parts.
    const QImage image = plot->grab().toImage();
    QCOMPARE(image.height(), 80117);
    for (int row = 0; row < 2000; ++row)
        QCOMPARE(image.pixel(300, 76 + 16 * row - 3), band);
}

QTEST_MAIN(TestPlotterDg)
#include "tst_plotterdg.moc"
