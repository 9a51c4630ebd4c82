// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotpair.h"
#include "plotstyle.h"

#include <QFrame>
#include <QLabel>

#include <memory>

class TestTimeLine : public QObject {
    Q_OBJECT

private slots:
    void init() { pair = std::make_unique<PlotPair>(); }
    void cleanup() { pair.reset(); }

    void theTimeLineFollowsThePointerInAllPlots();
    void theTimeLineTellsItsTimeInAnotherView();
    void theTimeLineFollowsThePointerOverChannelLabels();
    void aLongTimeFitsItsLabel();
    void aTimeAtAnEndIsReadInFull_data();
    void aTimeAtAnEndIsReadInFull();
    void aTimeOutOfThePlotGoesWithThePointer_data();
    void aTimeOutOfThePlotGoesWithThePointer();
    void aTimeThatAPlotIsTooNarrowForGoes();
    void theTimeLabelLeavesTheBorder_data();
    void theTimeLabelLeavesTheBorder();
    void theTimeLineLetsTheMouseThrough();
    void theTimeLineStandsBelowAllElse();
    void theTimeLabelIsNoDarkBoxInALightPicture();

private:
    void doubleClick(int x) { QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {x, 150}); }

    std::unique_ptr<PlotPair> pair;
};

void TestTimeLine::theTimeLineFollowsThePointerInAllPlots()
{
    PlotPair::move(pair->plot, {450, 100});
    for (const Plotter *plotter :
        {pair->plot, pair->other, static_cast<Plotter *>(pair->digital)}) {
        const auto *line = plotter->findChild<QFrame *>(QStringLiteral("timeline"));
        const auto *label = plotter->findChild<QLabel *>(QStringLiteral("timelabel"));
        QCOMPARE(line->geometry(), QRect(QPoint(450, 60), QPoint(450, 260)));
        QCOMPARE(label->geometry(), QRect(465, 45, 70, 20));
        QCOMPARE(label->text(), QStringLiteral("t = 500"));
        QVERIFY(line->isVisibleTo(plotter));
        QVERIFY(label->isVisibleTo(plotter));
    }
    PlotPair::move(pair->other, {101, 100});
    QCOMPARE(pair->plot->findChild<QLabel *>(QStringLiteral("timelabel"))->text(),
        QStringLiteral("t = 1.42857"));
}

void TestTimeLine::theTimeLineTellsItsTimeInAnotherView()
{
    const auto text = [](const Plotter *plotter) {
        return plotter->findChild<QLabel *>(QStringLiteral("timelabel"))->text();
    };
    PlotPair::move(pair->plot, {450, 100});
    pair->plot->customZoomIn(); // 0 to 500 ms
    QCOMPARE(text(pair->plot), QStringLiteral("t = 250"));
    QCOMPARE(text(pair->digital), QStringLiteral("t = 250"));
    for (Plotter *each : {pair->plot, pair->other, static_cast<Plotter *>(pair->digital)})
        each->customResetZoom();
    QCOMPARE(text(pair->other), QStringLiteral("t = 500"));
    doubleClick(450); // the readout leaves the plot less room
    const int width = 803 - pair->plot->geometryOfView().readoutWidth() - 103;
    QCOMPARE(text(pair->plot), QStringLiteral("t = ") + QString::number(350000.0 / width, 'g', 6));
    QCOMPARE(text(pair->digital), QStringLiteral("t = 500"));
}

void TestTimeLine::theTimeLineFollowsThePointerOverChannelLabels()
{
    auto *label = pair->plot->findChild<QLabel *>(QStringLiteral("channelLabel"));
    PlotPair::move(label, {12, 5});
    QCOMPARE(pair->plot->findChild<QFrame *>(QStringLiteral("timeline"))->x(), label->x() + 12);
    QCOMPARE(pair->digital->findChild<QFrame *>(QStringLiteral("timeline"))->x(), label->x() + 12);
}

void TestTimeLine::aLongTimeFitsItsLabel()
{
    const auto *label = pair->plot->findChild<QLabel *>(QStringLiteral("timelabel"));
    PlotPair::move(pair->plot, {450, 100});
    const int usual = label->font().pixelSize();
    PlotPair::move(pair->plot, {101, 100});
    for (int i = 0; i < 16; ++i) // to hundredths of a millisecond
        pair->plot->customZoomIn();
    PlotPair::move(pair->plot, {117, 100});
    QVERIFY(label->text().size() > 12);
    QVERIFY(label->font().pixelSize() < usual);
    QVERIFY(QFontMetrics(label->font()).horizontalAdvance(label->text()) <= 70);
    pair->plot->customResetZoom();
    PlotPair::move(pair->plot, {450, 100});
    QCOMPARE(label->font().pixelSize(), usual);
}

// The label is 70 pixels wide, the plot 803 with a border of two to each side.
void TestTimeLine::aTimeAtAnEndIsReadInFull_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("left"); // of the label
    QTest::newRow("it just fits") << 718 << 733;
    QTest::newRow("one pixel is missing") << 719 << 635;
    QTest::newRow("at the last pixel") << 802 << 718;
    QTest::newRow("a little beyond it, in a drag") << 817 << 731;
    QTest::newRow("far beyond it") << 870 << 731;
    QTest::newRow("a little before the first pixel") << -15 << 2;
    QTest::newRow("far before it") << -40 << 2;
}

void TestTimeLine::aTimeAtAnEndIsReadInFull()
{
    QFETCH(int, x);
    QFETCH(int, left);
    PlotPair::move(pair->other, {x, 100});
    for (const Plotter *plotter : {pair->plot, static_cast<Plotter *>(pair->digital)}) {
        QCOMPARE(plotter->findChild<QLabel *>(QStringLiteral("timelabel"))->geometry(),
            QRect(left, 45, 70, 20));
        QCOMPARE(plotter->findChild<QFrame *>(QStringLiteral("timeline"))->x(), x);
    }
    PlotPair::move(pair->other, {450, 100});
    QCOMPARE(pair->plot->findChild<QLabel *>(QStringLiteral("timelabel"))->x(), 465);
}

void TestTimeLine::aTimeOutOfThePlotGoesWithThePointer_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<bool>("stays");
    QTest::newRow("before the first pixel") << -1 << false;
    QTest::newRow("far before it") << -146 << false;
    QTest::newRow("at the first pixel") << 0 << true;
    QTest::newRow("in the plot area") << 450 << true;
    QTest::newRow("at the last pixel") << 802 << true;
    QTest::newRow("behind it") << 803 << false;
}

void TestTimeLine::aTimeOutOfThePlotGoesWithThePointer()
{
    QFETCH(int, x);
    QFETCH(bool, stays);
    const auto isSeen = [](const Plotter *plotter, const char *name) {
        return plotter->findChild<QWidget *>(QLatin1String(name))->isVisibleTo(plotter);
    };
    for (int twice = 0; twice < 2; ++twice) {
        QTest::mousePress(pair->other, Qt::LeftButton, {}, {300, 100});
        PlotPair::move(pair->other, {x, 100}, Qt::LeftButton);
        const auto shown = [&](bool isShown) {
            for (const Plotter *plotter :
                {pair->plot, pair->other, static_cast<Plotter *>(pair->digital)}) {
                for (const char *name : {"timeline", "timelabel"})
                    QCOMPARE(isSeen(plotter, name), isShown);
            }
        };
        shown(true);
        QTest::mouseRelease(pair->other, Qt::LeftButton, {}, {x, 100});
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(pair->other, &leave);
        shown(stays);
        pair->plot->refreshPixmap();
        shown(stays);
    }
    PlotPair::move(pair->other, {450, 100});
    QVERIFY(isSeen(pair->plot, "timelabel"));
}

void TestTimeLine::aTimeThatAPlotIsTooNarrowForGoes()
{
    const QSize wide = pair->plot->size();
    for (int twice = 0; twice < 2; ++twice) {
        PlotPair::move(pair->plot, {700, 100});
        for (const int width : {701, 700, wide.width()}) {
            pair->plot->resize(width, wide.height());
            for (const char *name : {"timeline", "timelabel"}) {
                QCOMPARE(pair->plot->findChild<QWidget *>(QLatin1String(name))->isVisible(),
                    width == 701);
            }
        }
    }
    PlotPair::move(pair->plot, {700, 100});
    QVERIFY(pair->plot->findChild<QWidget *>(QStringLiteral("timelabel"))->isVisible());
    pair->digital->hide();
    pair->digital->resize(700, wide.height());
    pair->digital->show();
    for (const char *name : {"timeline", "timelabel"})
        QVERIFY(!pair->digital->findChild<QWidget *>(QLatin1String(name))->isVisible());
}

void TestTimeLine::theTimeLabelLeavesTheBorder_data()
{
    QTest::addColumn<int>("x");
    QTest::newRow("at the right") << 718;
    QTest::newRow("beyond it, in a drag") << 870;
    QTest::newRow("beyond the left, in a drag") << -40;
}

// It shows where the focus is.
void TestTimeLine::theTimeLabelLeavesTheBorder()
{
    QFETCH(int, x);
    const auto border = [](Plotter *plotter) {
        const QImage image = plotter->grab().toImage();
        QVector<QRgb> pixels;
        for (int y = 40; y < 70; ++y) {
            for (const int column : {0, 1, 801, 802})
                pixels.append(image.pixel(column, y));
        }
        return pixels;
    };
    PlotPair::move(pair->other, {450, 100});
    const QVector<QRgb> ofPlot = border(pair->plot);
    const QVector<QRgb> ofDigital = border(pair->digital);
    QCOMPARE(ofPlot.count(qRgb(49, 48, 52)), 0); // of the background
    PlotPair::move(pair->other, {x, 100});
    QCOMPARE(border(pair->plot), ofPlot);
    QCOMPARE(border(pair->digital), ofDigital);
}

void TestTimeLine::theTimeLineLetsTheMouseThrough()
{
    PlotPair::move(pair->plot, {450, 100});
    QVERIFY(!pair->plot->childAt(450, 100));
    QVERIFY(!pair->plot->childAt(470, 50));
}

void TestTimeLine::theTimeLineStandsBelowAllElse()
{
    PlotPair::move(pair->plot, {450, 100});
    QStringList names; // from the lowest
    for (const QObject *child : pair->plot->children()) {
        if (child->isWidgetType())
            names.append(child->objectName());
    }
    QCOMPARE(
        names.mid(0, 2), QStringList({QStringLiteral("timelabel"), QStringLiteral("timeline")}));
}

// The frame of the plot area, at y = 60, passes below the label.
void TestTimeLine::theTimeLabelIsNoDarkBoxInALightPicture()
{
    PlotPair::move(pair->plot, {300, 150});
    const auto *label = pair->plot->findChild<QLabel *>(QStringLiteral("timelabel"));
    const QPoint corner(label->geometry().right(), 60);
    const auto colour = [&] {
        QImage image(pair->plot->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        pair->plot->render(&image, {}, {}, QWidget::DrawChildren | QWidget::DrawWindowBackground);
        return image.pixel(corner);
    };
    QCOMPARE(colour(), qRgb(49, 48, 52));
    pair->plot->setStyleSheet(captureStyle);
    QCOMPARE(qAlpha(colour()), 0);
    pair->plot->setStyleSheet(screenStyle);
    QCOMPARE(colour(), qRgb(49, 48, 52));
}

QTEST_MAIN(TestTimeLine)
#include "tst_timeline.moc"
