// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotpair.h"

#include <QtTest>

Q_DECLARE_METATYPE(Qt::MouseButton)

// The views are 0 to 1000 ms over 703 pixels and -12 to 12 over 200 pixels.
class TestViewDrag : public QObject {
    Q_OBJECT

private slots:
    void init() { pair = std::make_unique<PlotPair>(); }
    void cleanup() { pair.reset(); }

    void allPlotsMoveInTimeOneInValue();
    void aDigitalPlotHasNoValuesToMove();
    void thereAndBackIsTheSameView();
    void oneDragIsOneStepBack();
    void onlyTheMiddleButtonInThePlotArea_data();
    void onlyTheMiddleButtonInThePlotArea();
    void aDragEndsWithItsButton_data();
    void aDragEndsWithItsButton();
    void aBandGoesOnBesideTheMiddleButton();
    void aCursorIsDraggedBesideTheMiddleButton();
    void anotherButtonDragsNothingBesideTheView_data();
    void anotherButtonDragsNothingBesideTheView();
    void aButtonBesideALabelOutOfViewDragsNothing_data();
    void aButtonBesideALabelOutOfViewDragsNothing();
    void theMarkStandsWhereADragEnds();

private:
    void press(Plotter *plot, const QPoint &point) const
    {
        QTest::mousePress(plot, Qt::MiddleButton, {}, point);
    }
    std::unique_ptr<PlotPair> pair;
};

void TestViewDrag::allPlotsMoveInTimeOneInValue()
{
    press(pair->plot, {400, 150});
    PlotPair::move(pair->plot, {300, 140}, Qt::MiddleButton);
    PlotPair::move(pair->plot, {259, 200}, Qt::MiddleButton); // 141 to the left, 50 down
    QTest::mouseRelease(pair->plot, Qt::MiddleButton, {}, {259, 200});
    for (const Plotter *each : QList<Plotter *>{pair->plot, pair->other, pair->digital}) {
        QCOMPARE(each->view().minX, 141000.0 / 703);
        QCOMPARE(each->view().maxX, 1000 + 141000.0 / 703);
    }
    QCOMPARE(pair->plot->view().minY, -6.0);
    QCOMPARE(pair->plot->view().maxY, 18.0);
    QCOMPARE(pair->other->view().minY, -12.0);
}

void TestViewDrag::aDigitalPlotHasNoValuesToMove()
{
    const PlotSettings before = pair->digital->view();
    press(pair->digital, {400, 150});
    PlotPair::move(pair->digital, {330, 250}, Qt::MiddleButton);
    QTest::mouseRelease(pair->digital, Qt::MiddleButton, {}, {330, 250});
    QVERIFY(pair->digital->view().minX > 0);
    QCOMPARE(pair->plot->view().minX, pair->digital->view().minX);
    QCOMPARE(pair->digital->view().minY, before.minY);
    QCOMPARE(pair->plot->view().minY, -12.0);
}

void TestViewDrag::thereAndBackIsTheSameView()
{
    for (int twice = 0; twice < 2; ++twice) {
        press(pair->plot, {400, 150});
        for (const int x : {420, 500, 401, 400})
            PlotPair::move(pair->plot, {x, x / 4 + 50}, Qt::MiddleButton);
        QTest::mouseRelease(pair->plot, Qt::MiddleButton, {}, {400, 150});
        QVERIFY(qAbs(pair->plot->view().minX) < 1e-9);
        QVERIFY(qAbs(pair->plot->view().maxY - 12) < 1e-9);
    }
}

void TestViewDrag::oneDragIsOneStepBack()
{
    const PlotSettings before = pair->plot->view();
    press(pair->plot, {400, 150});
    for (int x = 399; x > 350; --x)
        PlotPair::move(pair->plot, {x, 160}, Qt::MiddleButton);
    QTest::mouseRelease(pair->plot, Qt::MiddleButton, {}, {350, 160});
    QVERIFY(!(pair->plot->view() == before));
    pair->other->showPreviousView();
    QVERIFY(pair->plot->view() == before);
    QCOMPARE(pair->other->view().minX, 0.0);
    QVERIFY(!pair->plot->hasPreviousView());
}

void TestViewDrag::onlyTheMiddleButtonInThePlotArea_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("point");
    QTest::newRow("right button") << Qt::RightButton << QPoint(400, 150);
    QTest::newRow("left of the area") << Qt::MiddleButton << QPoint(50, 150);
    QTest::newRow("above it") << Qt::MiddleButton << QPoint(400, 20);
}

void TestViewDrag::onlyTheMiddleButtonInThePlotArea()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, point);
    QTest::mousePress(pair->plot, button, {}, point);
    PlotPair::move(pair->plot, point + QPoint(50, 20), button);
    QTest::mouseRelease(pair->plot, button, {}, point + QPoint(50, 20));
    QCOMPARE(pair->plot->view().minX, 0.0);
    QCOMPARE(pair->plot->view().minY, -12.0);
}

void TestViewDrag::aDragEndsWithItsButton_data()
{
    QTest::addColumn<bool>("isReleased");
    QTest::newRow("released") << true;
    QTest::newRow("hidden") << false;
}

void TestViewDrag::aDragEndsWithItsButton()
{
    QFETCH(bool, isReleased);
    press(pair->plot, {400, 150});
    QCOMPARE(pair->plot->cursor().shape(), Qt::ClosedHandCursor);
    if (isReleased) {
        QTest::mouseRelease(pair->plot, Qt::MiddleButton, {}, {400, 150});
    } else {
        pair->plot->hide();
        pair->plot->show();
    }
    QCOMPARE(pair->plot->cursor().shape(), Qt::ArrowCursor);
    PlotPair::move(pair->plot, {300, 150});
    QCOMPARE(pair->plot->view().minX, 0.0);
}

void TestViewDrag::aBandGoesOnBesideTheMiddleButton()
{
    for (int twice = 0; twice < 2; ++twice) {
        QTest::mousePress(pair->plot, Qt::LeftButton, {}, {191, 100});
        PlotPair::move(pair->plot, {400, 180}, Qt::LeftButton);
        press(pair->plot, {400, 180});
        PlotPair::move(pair->plot, {543, 200}, Qt::LeftButton | Qt::MiddleButton);
        QTest::mouseRelease(pair->plot, Qt::LeftButton, {}, {543, 200});
        PlotPair::move(pair->plot, {700, 100}, Qt::MiddleButton);
        QTest::mouseRelease(pair->plot, Qt::MiddleButton, {}, {700, 100});
        QCOMPARE(pair->plot->view().minX, 200.0);
        QCOMPARE(pair->plot->view().maxX, 800.0);
        pair->plot->customResetZoom();
    }
}

// At x = 240 stands 200 ms, at 500 stands 4000 / 7 ms.
void TestViewDrag::aCursorIsDraggedBesideTheMiddleButton()
{
    pair->digital->raise();
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {240, 150});
    const QPoint grip = PlotPair::lineLabels(pair->digital).first()->geometry().center();
    QTest::mousePress(pair->digital, Qt::LeftButton, {}, grip);
    PlotPair::move(pair->digital, {400, 180}, Qt::LeftButton);
    press(pair->digital, {400, 180});
    PlotPair::move(pair->digital, {500, 200}, Qt::LeftButton | Qt::MiddleButton);
    QTest::mouseRelease(pair->digital, Qt::LeftButton, {}, {500, 200});
    PlotPair::move(pair->digital, {700, 100}, Qt::MiddleButton);
    QTest::mouseRelease(pair->digital, Qt::MiddleButton, {}, {700, 100});
    QCOMPARE(pair->plot->cursors(), pair->digital->cursors());
    QCOMPARE(pair->digital->cursors(), QList<double>{4000.0 / 7});
    QCOMPARE(pair->digital->view().minX, 0.0);
}

void TestViewDrag::anotherButtonDragsNothingBesideTheView_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::newRow("no band") << QPoint(300, 100);
    QTest::newRow("no cursor") << QPoint();
}

// The view goes 100 pixels to the right and 50 down.
void TestViewDrag::anotherButtonDragsNothingBesideTheView()
{
    QFETCH(QPoint, point);
    pair->plot->addCursorAt(300);
    if (point.isNull())
        point = PlotPair::lineLabels(pair->digital).first()->geometry().center();
    pair->digital->raise();
    for (int twice = 0; twice < 2; ++twice) {
        pair->digital->customResetZoom();
        press(pair->digital, {400, 150});
        QTest::mousePress(pair->digital, Qt::LeftButton, {}, point);
        PlotPair::move(pair->digital, {500, 200}, Qt::LeftButton | Qt::MiddleButton);
        QTest::mouseRelease(pair->digital, Qt::LeftButton, {}, {500, 200});
        PlotPair::move(pair->digital, {450, 220}, Qt::MiddleButton);
        QTest::mouseRelease(pair->digital, Qt::MiddleButton, {}, {450, 220});
        QCOMPARE(pair->digital->view().minX, -100000.0 / 703);
        QCOMPARE(pair->digital->view().maxX, 1000 - 100000.0 / 703);
        QCOMPARE(pair->digital->cursors(), QList<double>{300});
    }
}

void TestViewDrag::aButtonBesideALabelOutOfViewDragsNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("held");
    QTest::addColumn<Qt::MouseButton>("other");
    QTest::newRow("left, then middle") << Qt::LeftButton << Qt::MiddleButton;
    QTest::newRow("middle, then left") << Qt::MiddleButton << Qt::LeftButton;
    QTest::newRow("right, then left") << Qt::RightButton << Qt::LeftButton;
}

// A label that is hidden under a pressed button takes with it what the toolkit knows of buttons: it
// tells of the press of another one, not of its release.
void TestViewDrag::aButtonBesideALabelOutOfViewDragsNothing()
{
    QFETCH(Qt::MouseButton, held);
    QFETCH(Qt::MouseButton, other);
    QWindow *window = pair->area.windowHandle();
    pair->digital->raise();
    for (int twice = 0; twice < 2; ++twice) {
        pair->digital->customResetZoom();
        pair->digital->clearCursors();
        pair->digital->addCursorAt(500);
        const QPoint grip = PlotPair::lineLabels(pair->digital).first()->geometry().center();
        QTest::mousePress(window, held, {}, grip);
        QTest::mouseMove(window, grip + QPoint(60, 0));
        pair->digital->customZoomIn();
        pair->digital->customZoomIn(); // shows 250 ms
        const PlotSettings before = pair->digital->view();
        QTest::mouseMove(window, {400, 150});
        QTest::mousePress(window, other, {}, {400, 150});
        QTest::mouseRelease(window, other, {}, {400, 150});
        QTest::mouseRelease(window, held, {}, {400, 150});
        QTest::mouseMove(window, {450, 170});
        QCOMPARE(pair->digital->view(), before);
        QVERIFY(pair->digital->cursor().shape() != Qt::ClosedHandCursor);
        QVERIFY(pair->digital->cursor().shape() != Qt::CrossCursor);
    }
}

// The plot that was pressed has the moves until the release, then the one under the pointer.
void TestViewDrag::theMarkStandsWhereADragEnds()
{
    const auto mark = [](const Plotter *plot) {
        return plot->findChild<QWidget *>(QStringLiteral("timemark"));
    };
    for (int twice = 0; twice < 2; ++twice) {
        press(pair->plot, {400, 150});
        PlotPair::move(pair->plot, {300, 150}, Qt::MiddleButton);
        QTest::mouseRelease(pair->plot, Qt::MiddleButton, {}, {300, 150});
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(pair->plot, &leave);
        QVERIFY(mark(pair->digital)->isHidden());
        QEnterEvent enter({300, 160}, {300, 160}, {300, 160});
        QApplication::sendEvent(pair->digital, &enter);
        QVERIFY(mark(pair->digital)->isHidden());
        QCOMPARE(mark(pair->plot)->geometry().center().x(), 300);
        QVERIFY(mark(pair->plot)->isVisibleTo(pair->plot));
    }
}

QTEST_MAIN(TestViewDrag)
#include "tst_viewdrag.moc"
