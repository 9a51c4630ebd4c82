// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotpair.h"

#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

#include <functional>
#include <limits>
#include <memory>

namespace {

using Ends = QVector<double>;

// The view to six decimals.
Ends ends(const PlotSettings &view)
{
    Ends result{view.minX, view.maxX, view.minY, view.maxY};
    for (double &end : result)
        end = std::round(end * 1e6) / 1e6;
    return result;
}

} // namespace

// The band's offsets of 50 pixels and its scale of width - 100 and height - 100 are odd on purpose:
// with a plot of 803 x 301 a band from x1 to x2 shows 1000 / 703 x (x1 - 50) ms to 1000 / 703 x (x2
// - 50) ms.
class TestPlotterInput : public QObject {
    Q_OBJECT

private slots:
    void init() { pair = std::make_unique<PlotPair>(); }
    void cleanup() { pair.reset(); }

    void aBandZoomsBothAxes_data();
    void aBandZoomsBothAxes();
    void linkedPlotsFollowInTimeOnly();
    void smallBandsDoNotZoom_data();
    void smallBandsDoNotZoom();
    void aBandBegunBesideTheAreaBeginsOnItsEdge_data();
    void aBandBegunBesideTheAreaBeginsOnItsEdge();
    void aBandBegunInTheReadoutBeginsOnTheEdge();
    void theBandIsDrawnWhileItGrows();
    void otherButtonsDrawNoBand();
    void aPressElsewhereGivesUpTheBandsOfLinkedPlots();
    void aPressElsewhereClosesTheEditorsOfLinkedPlots();
    void aBandTooNarrowInValuesZoomsTime();
    void aBandEndsWithTheWindowsActivation();
    void aBandEndsWhenAMenuOpens();
    void aDragEndsWhenAMenuOpens();
    void aBandOutlivesATurnOfTheWheel();
    void aDragEndsWhenThePlotIsHidden();
    void aDoubleClickHidesABand();
    void afterABandTheScrollBarIsRanged();
    void afterABandANewPlotIsInStep();

    void wheel_data();
    void wheel();
    void aFineWheelStepStillRepaints();
    void plainWheelActsOnOnePlot();
    void keysBeforeThePointerCameDoNotCount();
    void theLastKeyCounts();

    void keys_data();
    void keys();
    void arrowsTurnTheScrollBar();
    void otherKeysAreLeftToTheWindow();

    void thePointerGrabsTheKeyboard();
    void theGrabEndsWithTheWindowsActivation();
    void theGrabEndsWhenThePlotIsHidden();
    void noGrabWhileTheTitleIsEdited();
    void noGrabInAnInactiveWindow();
    void noGrabWhileAMenuIsOpen();
    void keysOfTheTitleEditorStayThere();
    void aKeyStaysHeldWhileThePointerIsAway();

    void returnCommitsTheTitle();
    void leavingTheEditorKeepsTheTitle();
    void theEditorBeginsWithTheTitleSelected();
    void theEndOfAnEditGivesTheKeysToThePlot_data();
    void theEndOfAnEditGivesTheKeysToThePlot();
    void anEditEndedByTheWindowGivesTheKeysToThePlot();
    void anEditEndedByAnotherControlLeavesItTheKeys();
    void escapeKeepsTheTitle();
    void anUntouchedEditorFollowsTheLanguage();

    void aChannelLabelOffersColours_data();
    void aChannelLabelOffersColours();
    void aChosenColourStays();
    void otherLabelsOfferNone();

private:
    void hold(Qt::Key key) { QTest::keyPress(pair->plot, key); }

    std::unique_ptr<PlotPair> pair;
};

void TestPlotterInput::aBandZoomsBothAxes_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::newRow("down to the right") << QPoint(191, 100) << QPoint(543, 200);
    QTest::newRow("up to the right") << QPoint(191, 200) << QPoint(543, 100);
    QTest::newRow("down to the left") << QPoint(543, 100) << QPoint(191, 200);
    QTest::newRow("up to the left") << QPoint(543, 200) << QPoint(191, 100);
}

// From x = 191 to 543: 200.57 to 701.28 ms, to steps of 100 ms. From y = 100 to 200, of 201 pixels
// for 24: 12 - 24 / 201 x 150 = -5.91 to 12 - 24 / 201 x 50 = 6.03, to steps of 1.
void TestPlotterInput::aBandZoomsBothAxes()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    PlotPair::drag(pair->plot, from, to);
    QCOMPARE(ends(pair->plot->view()), Ends({200, 800, -6, 7}));
    QCOMPARE(pair->plot->cursor().shape(), Qt::ArrowCursor);
}

void TestPlotterInput::linkedPlotsFollowInTimeOnly()
{
    PlotPair::drag(pair->plot, {191, 100}, {543, 200});
    QCOMPARE(pair->other->view().minX, 200.0);
    QCOMPARE(pair->other->view().maxX, 800.0);
    QCOMPARE(ends(pair->other->view()), Ends({200, 800, -12, 12}));
    QCOMPARE(pair->digital->view().minX, 200.0);
}

void TestPlotterInput::smallBandsDoNotZoom_data()
{
    QTest::addColumn<QPoint>("size");
    QTest::addColumn<bool>("zooms");
    QTest::newRow("2 pixels wide") << QPoint(2, 100) << false;
    QTest::newRow("3 pixels wide") << QPoint(3, 100) << true;
    QTest::newRow("2 pixels high") << QPoint(100, 2) << false;
    QTest::newRow("3 pixels high") << QPoint(100, 3) << true;
    QTest::newRow("2 pixels wide, up to the left") << QPoint(-2, -50) << false;
    QTest::newRow("3 pixels wide, up to the left") << QPoint(-3, -50) << true;
    QTest::newRow("2 pixels wide, down to the left") << QPoint(-2, 50) << false;
    QTest::newRow("3 pixels wide, down to the left") << QPoint(-3, 50) << true;
    QTest::newRow("2 pixels high, up to the right") << QPoint(50, -2) << false;
    QTest::newRow("3 pixels high, up to the right") << QPoint(50, -3) << true;
    QTest::newRow("2 pixels high, up to the left") << QPoint(-50, -2) << false;
    QTest::newRow("3 pixels high, up to the left") << QPoint(-50, -3) << true;
    QTest::newRow("a click") << QPoint(0, 0) << false;
}

void TestPlotterInput::smallBandsDoNotZoom()
{
    QFETCH(QPoint, size);
    QFETCH(bool, zooms);
    const Ends before = ends(pair->plot->view());
    PlotPair::drag(pair->plot, {300, 120}, QPoint(300, 120) + size);
    QCOMPARE(ends(pair->plot->view()) != before, zooms);
    QCOMPARE(pair->plot->cursor().shape(), Qt::ArrowCursor);
}

void TestPlotterInput::aBandBegunBesideTheAreaBeginsOnItsEdge_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("edge"); // where the band begins, where it does
    QTest::addColumn<bool>("begins");
    QTest::newRow("19 pixels above") << QPoint(400, 41) << QPoint(400, 60) << true;
    QTest::newRow("20 pixels above") << QPoint(400, 40) << QPoint() << false;
    QTest::newRow("19 pixels left") << QPoint(81, 150) << QPoint(100, 150) << true;
    QTest::newRow("20 pixels left") << QPoint(80, 150) << QPoint() << false;
    QTest::newRow("19 pixels below") << QPoint(400, 279) << QPoint(400, 260) << true;
    QTest::newRow("20 pixels below") << QPoint(400, 280) << QPoint() << false;
    QTest::newRow("beside a corner") << QPoint(85, 45) << QPoint(100, 60) << true;
    QTest::newRow("right of the edge") << QPoint(802, 150) << QPoint(800, 150) << true;
}

void TestPlotterInput::aBandBegunBesideTheAreaBeginsOnItsEdge()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, edge);
    QFETCH(bool, begins);
    QTest::mousePress(pair->plot, Qt::LeftButton, {}, from);
    QCOMPARE(pair->plot->cursor().shape() == Qt::CrossCursor, begins);
    if (!begins)
        return;
    PlotPair::move(pair->plot, {500, 200}, Qt::LeftButton);
    const QImage image = pair->plot->grab().toImage();
    const QRgb light = pair->plot->palette().light().color().rgb();
    QCOMPARE(image.pixel(edge), light);
}

// The readout leaves room right of the plot area.
void TestPlotterInput::aBandBegunInTheReadoutBeginsOnTheEdge()
{
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {300, 150});
    const int edge = 803 - pair->plot->geometryOfView().readoutWidth() - 3;
    QTest::mousePress(pair->plot, Qt::LeftButton, {}, {edge + 20, 100});
    QVERIFY(pair->plot->cursor().shape() != Qt::CrossCursor);
    QTest::mousePress(pair->plot, Qt::LeftButton, {}, {edge + 19, 100});
    QCOMPARE(pair->plot->cursor().shape(), Qt::CrossCursor);
    PlotPair::move(pair->plot, {200, 200}, Qt::LeftButton);
    const QImage image = pair->plot->grab().toImage();
    QCOMPARE(image.pixel(edge, 150), pair->plot->palette().light().color().rgb());
}

void TestPlotterInput::theBandIsDrawnWhileItGrows()
{
    QTest::mousePress(pair->plot, Qt::LeftButton, {}, {300, 100});
    PlotPair::move(pair->plot, {600, 200}, Qt::LeftButton);
    const QRgb light = pair->plot->palette().light().color().rgb();
    const auto expectFrame = [&](const QRect &frame) {
        const QImage image = pair->plot->grab().toImage();
        for (int x = frame.left() - 3; x <= frame.right() + 3; ++x)
            QCOMPARE(image.pixel(x, 150) == light, x == frame.left() || x == frame.right());
        for (int y = frame.top() - 3; y <= frame.bottom() + 3; ++y)
            QCOMPARE(image.pixel(450, y) == light, y == frame.top() || y == frame.bottom());
    };
    expectFrame(QRect(QPoint(300, 100), QPoint(600, 200)));
    PlotPair::move(pair->plot, {302, 199}, Qt::LeftButton);
    PlotPair::move(pair->plot, {600, 203}, Qt::LeftButton);
    expectFrame(QRect(QPoint(300, 100), QPoint(600, 203)));
    QTest::mouseRelease(pair->plot, Qt::LeftButton, {}, {301, 101});
}

void TestPlotterInput::otherButtonsDrawNoBand()
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mousePress(pair->plot, button, {}, {300, 100});
        QVERIFY(pair->plot->cursor().shape() != Qt::CrossCursor);
        QTest::mouseRelease(pair->plot, button, {}, {300, 100});
    }
}

void TestPlotterInput::aPressElsewhereGivesUpTheBandsOfLinkedPlots()
{
    QTest::mousePress(pair->other, Qt::LeftButton, {}, {300, 100});
    QCOMPARE(pair->other->cursor().shape(), Qt::CrossCursor);
    QTest::mousePress(pair->plot, Qt::RightButton, {}, {400, 100});
    QVERIFY(pair->other->cursor().shape() != Qt::CrossCursor);
}

void TestPlotterInput::aPressElsewhereClosesTheEditorsOfLinkedPlots()
{
    QTest::mouseDClick(pair->other, Qt::LeftButton, {}, {100, 30});
    QVERIFY(pair->other->findChild<QLineEdit *>()->isVisible());
    QTest::mousePress(pair->plot, Qt::LeftButton, {}, {50, 150}); // left of the plot area
    QVERIFY(!pair->other->findChild<QLineEdit *>()->isVisible());
    QVERIFY(!QWidget::keyboardGrabber());
}

// A digital plot does not show its range of values, and nothing but Zoom Reset widens it.
void TestPlotterInput::aBandTooNarrowInValuesZoomsTime()
{
    for (int i = 0; i < 20; ++i) {
        const double before = pair->digital->view().spanX();
        PlotPair::drag(pair->digital, {300, 120}, {500, 130});
        QVERIFY(pair->digital->view().spanX() < before);
        pair->digital->customZoomOut();
    }
}

void TestPlotterInput::aBandEndsWithTheWindowsActivation()
{
    QTest::mousePress(pair->plot, Qt::LeftButton, {}, {300, 100});
    PlotPair::move(pair->plot, {400, 150}, Qt::LeftButton);
    QEvent deactivate(QEvent::WindowDeactivate);
    QApplication::sendEvent(pair->plot, &deactivate);
    QCOMPARE(pair->plot->cursor().shape(), Qt::ArrowCursor);
    PlotPair::move(pair->plot, {500, 200});
    const QRgb light = pair->plot->palette().light().color().rgb();
    QVERIFY(pair->plot->grab().toImage().pixel(300, 150) != light);
    QTest::mouseRelease(pair->plot, Qt::LeftButton, {}, {500, 200});
    QCOMPARE(ends(pair->plot->view()), Ends({0, 1000, -12, 12}));
}

// A menu opened by keys, which has the release of the button.
void TestPlotterInput::aBandEndsWhenAMenuOpens()
{
    for (int twice = 0; twice < 2; ++twice) {
        QTest::mousePress(pair->plot, Qt::LeftButton, {}, {300, 100});
        PlotPair::move(pair->plot, {400, 150}, Qt::LeftButton);
        QCOMPARE(pair->plot->cursor().shape(), Qt::CrossCursor);
        QMenu menu;
        menu.addAction(QStringLiteral("Open"));
        menu.popup({0, 0});
        QTest::mouseRelease(&menu, Qt::LeftButton, {}, {900, 900});
        menu.close();
        PlotPair::move(pair->plot, {500, 200});
        QCOMPARE(pair->plot->cursor().shape(), Qt::ArrowCursor);
        const QRgb light = pair->plot->palette().light().color().rgb();
        QVERIFY(pair->plot->grab().toImage().pixel(300, 150) != light);
        QCOMPARE(ends(pair->plot->view()), Ends({0, 1000, -12, 12}));
    }
}

void TestPlotterInput::aDragEndsWhenAMenuOpens()
{
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {300, 150});
    const QPoint grip = PlotPair::lineLabels(pair->plot).first()->geometry().center();
    QTest::mousePress(pair->plot, Qt::LeftButton, {}, grip);
    PlotPair::move(pair->plot, grip + QPoint(50, 0), Qt::LeftButton);
    const double time = pair->plot->cursors().first();
    QMenu menu;
    menu.addAction(QStringLiteral("Open"));
    menu.popup({0, 0});
    menu.close();
    PlotPair::move(pair->plot, {200, 150});
    QCOMPARE(pair->plot->cursors().first(), time);
}

// Which gives the focus to what is behind the plots.
void TestPlotterInput::aBandOutlivesATurnOfTheWheel()
{
    for (int twice = 0; twice < 2; ++twice) {
        QTest::mousePress(pair->plot, Qt::LeftButton, {}, {191, 100});
        QVERIFY(pair->plot->hasFocus());
        PlotPair::move(pair->plot, {400, 150}, Qt::LeftButton);
        pair->area.setFocus(Qt::MouseFocusReason);
        PlotPair::move(pair->plot, {543, 200}, Qt::LeftButton);
        QTest::mouseRelease(pair->plot, Qt::LeftButton, {}, {543, 200});
        QCOMPARE(pair->plot->view().minX, 200.0);
        QCOMPARE(pair->plot->view().maxX, 800.0);
        pair->plot->customResetZoom();
    }
}

void TestPlotterInput::aDragEndsWhenThePlotIsHidden()
{
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {300, 150});
    const double time = pair->plot->cursors().first();
    QTest::mousePress(pair->plot, Qt::LeftButton, {},
        PlotPair::lineLabels(pair->plot).first()->geometry().center());
    pair->plot->hide();
    pair->plot->show();
    PlotPair::move(pair->plot, {400, 150});
    QCOMPARE(pair->plot->cursors().first(), time);
}

void TestPlotterInput::aDoubleClickHidesABand()
{
    for (const int cursors : {1, 20}) {
        while (pair->plot->cursors().size() < cursors - 1)
            pair->plot->addCursor(150 + 20 * pair->plot->cursors().size(), 150);
        QTest::mousePress(pair->plot, Qt::LeftButton, {}, {300, 180});
        QCOMPARE(pair->plot->cursor().shape(), Qt::CrossCursor);
        QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(350, 200), Qt::RightButton,
            Qt::LeftButton | Qt::RightButton, {});
        QApplication::sendEvent(pair->plot, &event);
        QCOMPARE(pair->plot->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(pair->plot->cursors().size(), cursors);
    }
    const int refreshes = pair->host.vectorRefreshes;
    QTest::mousePress(pair->plot, Qt::LeftButton, {}, {300, 180});
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {350, 200});
    QCOMPARE(pair->plot->cursors().size(), 20);
    QCOMPARE(pair->plot->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(pair->host.vectorRefreshes, refreshes);
}

void TestPlotterInput::afterABandTheScrollBarIsRanged()
{
    PlotPair::drag(pair->plot, {191, 100}, {543, 200});
    QCOMPARE(pair->host.bar->value(), 2); // 200 ms at 100 ms a unit
}

void TestPlotterInput::afterABandANewPlotIsInStep()
{
    PlotPair::drag(pair->plot, {191, 100}, {543, 200});
    Plotter added(&pair->area);
    added.setMainWindow(&pair->host);
    added.addChannel(1);
    added.setupPlot();
    added.followFromNowOn(*pair->plot);
    pair->plot->customZoomIn2();
    added.customZoomIn2();
    QCOMPARE(added.view().minX, pair->plot->view().minX);
    QCOMPARE(added.view().maxX, pair->plot->view().maxX);
}

void TestPlotterInput::wheel_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QPoint>("delta");
    QTest::addColumn<Ends>("view");
    const int ctrl = Qt::Key_Control;
    const int shift = Qt::Key_Shift;
    QTest::newRow("120 with Ctrl zooms time in")
        << ctrl << QPoint(0, 120) << Ends({0, 500, -12, 12});
    QTest::newRow("119 with Ctrl zooms time out")
        << ctrl << QPoint(0, 119) << Ends({0, 2100, -12, 12});
    QTest::newRow("60 with Ctrl zooms time out")
        << ctrl << QPoint(0, 60) << Ends({0, 2100, -12, 12});
    QTest::newRow("-120 with Ctrl zooms time out")
        << ctrl << QPoint(0, -120) << Ends({0, 2100, -12, 12});
    QTest::newRow("120 with Shift zooms values in")
        << shift << QPoint(0, 120) << Ends({0, 1000, -6, 6});
    QTest::newRow("119 with Shift zooms values out")
        << shift << QPoint(0, 119) << Ends({0, 1000, -30, 30});
    QTest::newRow("60 with Shift zooms values out")
        << shift << QPoint(0, 60) << Ends({0, 1000, -30, 30});
    QTest::newRow("-120 with Shift zooms values out")
        << shift << QPoint(0, -120) << Ends({0, 1000, -30, 30});
    QTest::newRow("120 scrolls up an interval") << 0 << QPoint(0, 120) << Ends({0, 1000, -9, 15});
    QTest::newRow("-120 scrolls down an interval")
        << 0 << QPoint(0, -120) << Ends({0, 1000, -15, 9});
    QTest::newRow("-119 scrolls by none") << 0 << QPoint(0, -119) << Ends({0, 1000, -12, 12});
    QTest::newRow("-240 scrolls down two") << 0 << QPoint(0, -240) << Ends({0, 1000, -18, 6});
    QTest::newRow("60 scrolls by none") << 0 << QPoint(0, 60) << Ends({0, 1000, -12, 12});
    QTest::newRow("119 scrolls by none") << 0 << QPoint(0, 119) << Ends({0, 1000, -12, 12});
    QTest::newRow("sideways scrolls time by the vertical delta")
        << 0 << QPoint(120, 120) << Ends({100, 1100, -12, 12});
    QTest::newRow("sideways alone scrolls by none")
        << 0 << QPoint(120, 0) << Ends({0, 1000, -12, 12});
}

void TestPlotterInput::wheel()
{
    QFETCH(int, key);
    QFETCH(QPoint, delta);
    if (key)
        hold(Qt::Key(key));
    PlotPair::wheel(pair->plot, delta);
    QTEST(ends(pair->plot->view()), "view");
}

void TestPlotterInput::aFineWheelStepStillRepaints()
{
    const int refreshes = pair->host.vectorRefreshes;
    PlotPair::wheel(pair->plot, {0, 60});
    QCOMPARE(pair->host.vectorRefreshes, refreshes + 1);
}

void TestPlotterInput::plainWheelActsOnOnePlot()
{
    const Ends before = ends(pair->other->view());
    PlotPair::wheel(pair->plot, {0, 120});
    QCOMPARE(ends(pair->other->view()), before);
}

void TestPlotterInput::keysBeforeThePointerCameDoNotCount()
{
    QTest::keyPress(&pair->area, Qt::Key_Control);
    QTest::keyRelease(&pair->area, Qt::Key_Control);
    PlotPair::wheel(pair->plot, {0, 120});
    QCOMPARE(ends(pair->plot->view()), Ends({0, 1000, -9, 15}));

    hold(Qt::Key_Control);
    QTest::keyRelease(pair->plot, Qt::Key_Control);
    PlotPair::wheel(pair->plot, {0, -120});
    QCOMPARE(ends(pair->plot->view()), Ends({0, 1000, -12, 12}));
}

// Until any key is released, as another one that is still held is not known.
void TestPlotterInput::theLastKeyCounts()
{
    hold(Qt::Key_Control);
    hold(Qt::Key_Shift);
    PlotPair::wheel(pair->plot, {0, 120});
    QCOMPARE(ends(pair->plot->view()), Ends({0, 1000, -6, 6}));
    hold(Qt::Key_A);
    PlotPair::wheel(pair->plot, {0, 120});
    QCOMPARE(ends(pair->plot->view()), Ends({0, 1000, -5, 7}));
    hold(Qt::Key_Control);
    QTest::keyRelease(pair->plot, Qt::Key_A);
    PlotPair::wheel(pair->plot, {0, -120});
    QCOMPARE(ends(pair->plot->view()), Ends({0, 1000, -6, 6}));
}

void TestPlotterInput::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Ends>("view");
    QTest::addColumn<Ends>("linked");
    QTest::newRow("plus") << int(Qt::Key_Plus) << Ends({0, 500, -12, 12})
                          << Ends({0, 500, -12, 12});
    QTest::newRow("minus") << int(Qt::Key_Minus) << Ends({0, 2100, -12, 12})
                           << Ends({0, 2100, -12, 12});
    QTest::newRow("up") << int(Qt::Key_Up) << Ends({0, 1000, -15, 9}) << Ends({0, 1000, -15, 9});
    QTest::newRow("down") << int(Qt::Key_Down) << Ends({0, 1000, -9, 15})
                          << Ends({0, 1000, -9, 15});
}

void TestPlotterInput::keys()
{
    QFETCH(int, key);
    QTest::keyClick(pair->plot, Qt::Key(key));
    QTEST(ends(pair->plot->view()), "view");
    QTEST(ends(pair->other->view()), "linked");
}

void TestPlotterInput::arrowsTurnTheScrollBar()
{
    const int refreshes = pair->host.vectorRefreshes;
    QTest::keyClick(pair->plot, Qt::Key_Right);
    QCOMPARE(pair->host.bar->value(), 1);
    QCOMPARE(pair->host.vectorRefreshes, refreshes + 1); // of this plot, though it did not move
    QTest::keyClick(pair->plot, Qt::Key_Right);
    QCOMPARE(pair->host.bar->value(), 2);
    QTest::keyClick(pair->plot, Qt::Key_Left);
    QCOMPARE(pair->host.bar->value(), 1);
    // A zoom far in makes a bar as long as numbers go.
    const int longest = std::numeric_limits<int>::max();
    pair->host.bar->setRange(0, longest);
    pair->host.bar->setValue(longest);
    QTest::keyClick(pair->plot, Qt::Key_Right);
    QCOMPARE(pair->host.bar->value(), longest);
}

void TestPlotterInput::otherKeysAreLeftToTheWindow()
{
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QApplication::sendEvent(pair->plot, &event);
    QVERIFY(!event.isAccepted());
}

void TestPlotterInput::thePointerGrabsTheKeyboard()
{
    PlotPair::move(pair->plot, {300, 100});
    QCOMPARE(QWidget::keyboardGrabber(), pair->plot);
    hold(Qt::Key_Control);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(pair->plot, &leave);
    QVERIFY(!QWidget::keyboardGrabber());
}

void TestPlotterInput::theGrabEndsWithTheWindowsActivation()
{
    PlotPair::move(pair->plot, {300, 100});
    QEvent deactivate(QEvent::WindowDeactivate);
    QApplication::sendEvent(&pair->area, &deactivate);
    QVERIFY(!QWidget::keyboardGrabber());
}

void TestPlotterInput::theGrabEndsWhenThePlotIsHidden()
{
    PlotPair::move(pair->plot, {300, 100});
    pair->plot->hide();
    QVERIFY(!QWidget::keyboardGrabber());
    PlotPair::move(pair->other, {300, 100});
    delete pair->other;
    QVERIFY(!QWidget::keyboardGrabber());
    pair->plot->setLinkedPlotters({});
    pair->digital->setLinkedPlotters({});
}

void TestPlotterInput::noGrabWhileTheTitleIsEdited()
{
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {100, 30});
    PlotPair::move(pair->plot, {300, 100});
    QCOMPARE(QWidget::keyboardGrabber(), pair->plot->findChild<QLineEdit *>());
}

void TestPlotterInput::noGrabInAnInactiveWindow()
{
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    PlotPair::move(pair->plot, {300, 100});
    QVERIFY(!QWidget::keyboardGrabber());
}

void TestPlotterInput::noGrabWhileAMenuIsOpen()
{
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {300, 150});
    PlotPair::move(pair->plot, {350, 150});
    QCOMPARE(QWidget::keyboardGrabber(), pair->plot);
    QContextMenuEvent event(
        QContextMenuEvent::Keyboard, PlotPair::lineLabels(pair->plot).first()->geometry().center());
    QApplication::sendEvent(pair->plot, &event);
    QVERIFY(pair->plot->findChild<QMenu *>());
    QVERIFY(QWidget::keyboardGrabber() != pair->plot);
}

void TestPlotterInput::keysOfTheTitleEditorStayThere()
{
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {100, 30});
    auto *editor = pair->plot->findChild<QLineEdit *>();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Control})
        QTest::keyPress(editor, key);
    PlotPair::wheel(pair->other, {0, 60});
    QCOMPARE(ends(pair->plot->view()), Ends({0, 1000, -12, 12}));
    QCOMPARE(ends(pair->other->view()), Ends({0, 1000, -12, 12}));
    PlotPair::move(pair->other, {300, 100}); // the plot beside it leaves the keyboard to it
    QCOMPARE(QWidget::keyboardGrabber(), editor);
    QTest::keyClick(editor, Qt::Key_Return);
    PlotPair::wheel(pair->plot, {0, 120});
    QCOMPARE(ends(pair->plot->view()), Ends({0, 1000, -9, 15}));
}

void TestPlotterInput::aKeyStaysHeldWhileThePointerIsAway()
{
    const auto awayAndBack = [&](const std::function<void()> &meanwhile) {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(pair->plot, &leave);
        meanwhile();
        PlotPair::move(pair->plot, {300, 100});
        PlotPair::wheel(pair->plot, {0, 120});
    };
    PlotPair::move(pair->plot, {300, 100});
    hold(Qt::Key_Control);
    awayAndBack([] {});
    QCOMPARE(ends(pair->plot->view()), Ends({0, 500, -12, 12}));
    awayAndBack([&] { QTest::keyRelease(&pair->area, Qt::Key_Control); });
    QCOMPARE(ends(pair->plot->view()), Ends({0, 500, -9, 15}));
}

void TestPlotterInput::returnCommitsTheTitle()
{
    auto *editor = pair->plot->findChild<QLineEdit *>();
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {100, 30});
    QVERIFY(editor->isVisible());
    QCOMPARE(editor->geometry(), QRect(70, 20, 100, 20));
    QTest::keyClicks(editor, QStringLiteral("Feeder"));
    QTest::keyClick(editor, Qt::Key_Return);
    QVERIFY(!editor->isVisible());
    QVERIFY(!QWidget::keyboardGrabber());
    const auto *title = pair->plot->findChild<QLabel *>(QStringLiteral("Plotter Label"));
    QCOMPARE(title->text(), QStringLiteral("Feeder"));
    QCOMPARE(pair->plot->name(), QStringLiteral("Analog"));
    pair->plot->setupPlot();
    QCOMPARE(title->text(), QStringLiteral("Feeder"));
}

void TestPlotterInput::leavingTheEditorKeepsTheTitle()
{
    auto *editor = pair->plot->findChild<QLineEdit *>();
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {100, 30});
    QTest::keyClicks(editor, QStringLiteral("Feeder"));
    QFocusEvent leave(QEvent::FocusOut);
    QApplication::sendEvent(editor, &leave);
    QVERIFY(!editor->isVisible());
    QVERIFY(!QWidget::keyboardGrabber());
    QCOMPARE(pair->plot->findChild<QLabel *>(QStringLiteral("Plotter Label"))->text(),
        QStringLiteral("Analog Plotter"));
}

void TestPlotterInput::theEditorBeginsWithTheTitleSelected()
{
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {100, 30});
    QCOMPARE(
        pair->plot->findChild<QLineEdit *>()->selectedText(), QStringLiteral("Analog Plotter"));
}

void TestPlotterInput::theEndOfAnEditGivesTheKeysToThePlot_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Escape") << Qt::Key_Escape;
}

void TestPlotterInput::theEndOfAnEditGivesTheKeysToThePlot()
{
    QFETCH(Qt::Key, key);
    auto *editor = pair->plot->findChild<QLineEdit *>();
    for (int i = 0; i < 2; ++i) {
        QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {90, 25});
        QTRY_VERIFY(editor->hasFocus());
        QTest::keyClick(editor, key);
        QVERIFY(!editor->isVisible());
        QVERIFY(pair->plot->hasFocus());
        QVERIFY(QWidget::keyboardGrabber() != editor);
    }
}

// The window is left, for another one or for a dialog, and comes back.
void TestPlotterInput::anEditEndedByTheWindowGivesTheKeysToThePlot()
{
    auto *editor = pair->plot->findChild<QLineEdit *>();
    QWidget elsewhere;
    for (int i = 0; i < 2; ++i) {
        QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {90, 25});
        QTRY_VERIFY(editor->hasFocus());
        elsewhere.show();
        elsewhere.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
        QVERIFY(!editor->isVisible());
        QVERIFY(QWidget::keyboardGrabber() != editor);
        elsewhere.hide();
        pair->area.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&pair->area));
        QVERIFY(pair->plot->hasFocus());
    }
}

void TestPlotterInput::anEditEndedByAnotherControlLeavesItTheKeys()
{
    auto *editor = pair->plot->findChild<QLineEdit *>();
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {90, 25});
    QTRY_VERIFY(editor->hasFocus());
    pair->other->setFocus();
    QVERIFY(!editor->isVisible());
    QVERIFY(pair->other->hasFocus());
}

void TestPlotterInput::escapeKeepsTheTitle()
{
    auto *editor = pair->plot->findChild<QLineEdit *>();
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {90, 25});
    QTest::keyClicks(editor, QStringLiteral("Feeder"));
    QTest::keyClick(editor, Qt::Key_Escape);
    QCOMPARE(pair->plot->findChild<QLabel *>(QStringLiteral("Plotter Label"))->text(),
        QStringLiteral("Analog Plotter"));
}

// The window names its plots anew before the news of a language reaches them.
void TestPlotterInput::anUntouchedEditorFollowsTheLanguage()
{
    auto *editor = pair->plot->findChild<QLineEdit *>();
    QEvent change(QEvent::LanguageChange);
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {90, 25});
    pair->plot->setName(QStringLiteral("Analoginen"));
    QApplication::sendEvent(pair->plot, &change);
    QCOMPARE(editor->text(), QStringLiteral("Analoginen Plotter"));
    QCOMPARE(editor->selectedText(), editor->text());

    QTest::keyClicks(editor, QStringLiteral("Feeder"));
    pair->plot->setName(QStringLiteral("Analog"));
    QApplication::sendEvent(pair->plot, &change);
    QCOMPARE(editor->text(), QStringLiteral("Feeder"));
}

void TestPlotterInput::aChannelLabelOffersColours_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QColor>("color");
    QTest::newRow("chosen") << true << QColor(1, 2, 3);
    QTest::newRow("cancelled") << false << QColor(245, 30, 18);
}

void TestPlotterInput::aChannelLabelOffersColours()
{
    QFETCH(bool, accepted);
    auto *label = pair->plot->findChild<QLabel *>(QStringLiteral("channelLabel"));
    QVERIFY(label);
    QVERIFY(!pair->plot->findChild<QColorDialog *>()); // dear to make, and hardly ever asked for
    for (int twice = 0; twice < 2; ++twice) {
        QColor initial;
        QTimer::singleShot(0, this, [&] {
            auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            initial = dialog->currentColor();
            dialog->setCurrentColor(QColor(1, 2, 3));
            accepted ? dialog->accept() : dialog->reject();
        });
        QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, label->geometry().center());
        QCOMPARE(initial, QColor(Qt::white));
        QTEST(label->palette().color(label->foregroundRole()), "color");
    }
    QVERIFY(pair->plot->cursors().isEmpty());
}

void TestPlotterInput::aChosenColourStays()
{
    const QColor chosen(1, 250, 3);
    const auto traces = [&] {
        const QImage image = pair->plot->grab().toImage();
        int found = 0;
        for (int x = 101; x < 800; ++x) {
            for (int y = 61; y < 260; ++y)
                found += image.pixel(x, y) == chosen.rgb();
        }
        return found;
    };
    QCOMPARE(traces(), 0);
    QTimer::singleShot(0, this, [&] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QVERIFY(QWidget::keyboardGrabber() != pair->plot);
        dialog->setCurrentColor(chosen);
        dialog->accept();
    });
    PlotPair::move(pair->plot, {300, 100});
    QTest::mouseDClick(pair->plot, Qt::LeftButton, {},
        pair->plot->findChild<QLabel *>(QStringLiteral("channelLabel"))->geometry().center());
    QVERIFY(traces() > 700);
    pair->plot->showChannels({1});
    pair->plot->refreshPixmap();
    QCOMPARE(traces(), 0);
    pair->plot->showChannels({0});
    pair->plot->refreshPixmap();
    QVERIFY(traces() > 700);
}

void TestPlotterInput::otherLabelsOfferNone()
{
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {300, 150});
    pair->digital->raise();
    const QPoint grip = PlotPair::lineLabels(pair->digital).first()->geometry().center();
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, grip);
    QCOMPARE(pair->digital->cursors().size(), 1);
}

QTEST_MAIN(TestPlotterInput)
#include "tst_plotter_input.moc"
