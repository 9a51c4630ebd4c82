// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "baselayer.h"
#include "plotpair.h"
#include "textsearch.h"

#include <QFrame>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QToolTip>

#include <memory>

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

// Text is smoothed, so its pixels are shades between its colour and what is behind.
bool isYellow(QRgb pixel)
{
    return qRed(pixel) > 120 && qGreen(pixel) > 120 && qBlue(pixel) < qRed(pixel) - 40;
}

} // namespace

class TestPlotterCursors : public QObject {
    Q_OBJECT

private slots:
    void init() { pair = std::make_unique<PlotPair>(); }
    void cleanup() { pair.reset(); }

    void aDoubleClickSetsACursorAtOneTimeInAllPlots();
    void atMostTwentyCursors();
    void noTimeDifferenceForOneCursor();
    void timeDifferencesOfNeighbours();
    void timeDifferencesAreNeverNegative();
    void timeDifferencesStayWithinThePlotArea();
    void cursorsOutOfViewAreHidden();
    void theReadoutTakesRoomInAnalogPlotsOnly();
    void theReadoutTakesHalfOfThePlotAtMost();
    void labelsOfCloseCursorsStandApart();
    void aLabelStandsOverTheLinesOfOtherCursors();
    void aLabelAtTheRightEdgeStandsLeftOfItsLine();
    void timeDifferencesThatWouldOverlapAreLeftOut();
    void noTimeDifferenceIsBehindTheTitle();
    void theTimeLabelCoversWhatIsBelowIt();
    void noTimeDifferenceIsCutOff();
    void cursorsInAnyOrderHaveTheirTimeDifferences();
    void theReadoutTellsItsCellsInFull();
    void theReadoutsNumbersAreBriefBeforeTheyAreCut();
    void theReadoutsEllipsisListsWhatIsLeftOut();
    void aDraggedLabelMovesTheCursorEverywhere();
    void theReleaseOfALabelLetsItGo_data();
    void theReleaseOfALabelLetsItGo();
    void aDragCutShortIsInTheReadout();
    void aDragEndsWhenItsCursorLeavesTheView_data();
    void aDragEndsWhenItsCursorLeavesTheView();
    void aPressOnALabelMovesNothing_data();
    void aPressOnALabelMovesNothing();
    void aDragBeginsAfterItsDistance();
    void aDoubleClickOnALabelSetsNoCursor();
    void aDraggedLabelStopsAtTheEdges_data();
    void aDraggedLabelStopsAtTheEdges();
    void aNewPlotTakesOverCursorsAndMarkers();
    void theMenuRemovesOneCursor();
    void aDragOutlivesItsCursor_data();
    void aDragOutlivesItsCursor();
    void theMenuRemovesAllCursors();

private:
    void doubleClick(int x) { QTest::mouseDClick(pair->plot, Qt::LeftButton, {}, {x, 150}); }
    // Yellow pixels of the time differences, in the strip above the plot area.
    static int markPixels(Plotter *plot, int fromX, int toX)
    {
        const QImage image = plot->grab().toImage();
        int found = 0;
        for (int y = 42; y < 59; ++y) {
            for (int x = fromX; x < toX; ++x)
                found += isYellow(image.pixel(x, y));
        }
        return found;
    }

    std::unique_ptr<PlotPair> pair;
};

void TestPlotterCursors::aDoubleClickSetsACursorAtOneTimeInAllPlots()
{
    const int refreshes = pair->host.vectorRefreshes;
    doubleClick(450);
    QCOMPARE(pair->plot->cursors(), QList<double>{500});
    QCOMPARE(pair->other->cursors(), QList<double>{500});
    QCOMPARE(pair->digital->cursors(), QList<double>{500});
    QVERIFY(pair->host.vectorRefreshes > refreshes);
    // The digital plot has no readout, so its cursor stands where the double-click was.
    QCOMPARE(PlotPair::lineLabels(pair->digital).first()->text(), QStringLiteral("P1"));
    const auto *line = pair->digital->findChild<QFrame *>(QStringLiteral("cursorLine"));
    QCOMPARE(line->geometry(), QRect(QPoint(450, 60), QPoint(450, 260)));
    const int width = 803 - 100 - pair->plot->geometryOfView().readoutWidth() - 3;
    QCOMPARE(pair->plot->findChild<QFrame *>(QStringLiteral("cursorLine"))->x(),
        qRound(100 + 0.5 * width));
}

void TestPlotterCursors::atMostTwentyCursors()
{
    for (int i = 0; i < 21; ++i)
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {110 + 30 * i, 150});
    QCOMPARE(pair->digital->cursors().size(), 20);
    QCOMPARE(pair->plot->cursors().size(), 20);
    QCOMPARE(pair->other->cursors().size(), 20);
    QCOMPARE(PlotPair::lineLabels(pair->plot).size(), 20);
    pair->plot->addCursor(300, 100);
    QCOMPARE(pair->plot->cursors().size(), 20);
}

void TestPlotterCursors::noTimeDifferenceForOneCursor()
{
    doubleClick(450);
    QCOMPARE(markPixels(pair->plot, 100, 560), 0);
}

// In the digital plot pixels and times keep their relation, whatever the number of cursors.
void TestPlotterCursors::timeDifferencesOfNeighbours()
{
    for (const int x : {200, 400, 700})
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
    const QImage image = pair->digital->grab().toImage();
    QCOMPARE(image.pixel(250, 60), qRgb(255, 250, 80));
    QCOMPARE(image.pixel(650, 60), qRgb(255, 250, 80));
    QCOMPARE(image.pixel(699, 60), qRgb(255, 250, 80));
    QVERIFY(!isYellow(image.pixel(702, 60))); // where a trace would have the time
    QCOMPARE(pair->digital->pairDifference(), 3000.0 / 7); // of the last pair
    QVERIFY(markPixels(pair->digital, 255, 345) > 20); // between the first and the second
    QVERIFY(markPixels(pair->digital, 505, 595) > 20); // between the second and the third
    QCOMPARE(markPixels(pair->digital, 405, 495), 0); // none between the first and the third
}

void TestPlotterCursors::timeDifferencesAreNeverNegative()
{
    pair->plot->addCursor(700, 100);
    pair->plot->addCursor(300, 100);
    QCOMPARE(pair->plot->pairDifference(), pair->plot->cursors()[0] - pair->plot->cursors()[1]);
    QVERIFY(pair->plot->pairDifference() > 0);
}

void TestPlotterCursors::timeDifferencesStayWithinThePlotArea()
{
    doubleClick(200);
    doubleClick(600);
    pair->plot->customZoomIn();
    pair->plot->customZoomIn(); // the second cursor is right of the view
    const QImage image = pair->plot->grab().toImage();
    const QRect area = pair->plot->geometryOfView().area();
    QVERIFY(isYellow(image.pixel(area.right() - 1, 60)));
    QVERIFY(!isYellow(image.pixel(area.right() + 1, 60)));
}

void TestPlotterCursors::cursorsOutOfViewAreHidden()
{
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {700, 150});
    const auto *line = pair->digital->findChild<QFrame *>(QStringLiteral("cursorLine"));
    QVERIFY(line->isVisibleTo(pair->digital));
    pair->digital->customZoomIn(); // 0 to 500 ms
    QVERIFY(!line->isVisibleTo(pair->digital));
    QVERIFY(!PlotPair::lineLabels(pair->digital).first()->isVisibleTo(pair->digital));
    pair->digital->customResetZoom();
    QVERIFY(line->isVisibleTo(pair->digital));
}

void TestPlotterCursors::theReadoutTakesRoomInAnalogPlotsOnly()
{
    QCOMPARE(pair->plot->geometryOfView().readoutWidth(), 0);
    doubleClick(450);
    const int one = pair->plot->geometryOfView().readoutWidth();
    QVERIFY(one > 60);
    doubleClick(300);
    QVERIFY(pair->plot->geometryOfView().readoutWidth() > one);
    QCOMPARE(pair->digital->geometryOfView().readoutWidth(), 0);
    pair->plot->clearCursors();
    pair->other->clearCursors();
    pair->plot->zoomIn();
    QCOMPARE(pair->plot->geometryOfView().readoutWidth(), 0);
}

void TestPlotterCursors::theReadoutTakesHalfOfThePlotAtMost()
{
    for (int i = 0; i < 20; ++i)
        doubleClick(110 + 10 * i);
    QCOMPARE(pair->plot->geometryOfView().readoutWidth(), 401);
    pair->plot->resize(400, 301);
    pair->plot->grab();
    QCOMPARE(pair->plot->geometryOfView().readoutWidth(), 200);
}

void TestPlotterCursors::labelsOfCloseCursorsStandApart()
{
    for (int i = 0; i < 20; ++i)
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {200 + 7 * i, 250});
    const QList<CustomLabel *> labels = PlotPair::lineLabels(pair->digital);
    QCOMPARE(labels.size(), 20);
    const QRect area = pair->digital->geometryOfView().area();
    for (int i = 0; i < labels.size(); ++i) {
        QCOMPARE(labels.at(i)->x(), 200 + 7 * i + 3); // beside its line
        QVERIFY(area.contains(labels.at(i)->geometry()));
        for (int k = 0; k < i; ++k)
            QVERIFY(!labels.at(i)->geometry().intersects(labels.at(k)->geometry()));
    }
}

void TestPlotterCursors::aLabelStandsOverTheLinesOfOtherCursors()
{
    for (const int x : {300, 310}) // the second line runs through the first label
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
    const QRect place = PlotPair::lineLabels(pair->digital).first()->geometry();
    QVERIFY(place.left() < 310 && place.right() > 310);
    const QImage picture = pair->digital->grab().toImage();
    QVERIFY(picture.pixel(310, place.top()) != qRgb(255, 250, 80)); // above the text
    QCOMPARE(picture.pixel(310, 200), qRgb(255, 250, 80));
}

void TestPlotterCursors::aLabelAtTheRightEdgeStandsLeftOfItsLine()
{
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {795, 150});
    const QRect place = PlotPair::lineLabels(pair->digital).first()->geometry();
    QCOMPARE(place.right(), 795 - 3);
    QCOMPARE(place.top(), 62);
}

// The text of the latest pair stays.
void TestPlotterCursors::timeDifferencesThatWouldOverlapAreLeftOut()
{
    for (const int x : {600, 610, 620, 300})
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
    QVERIFY(markPixels(pair->digital, 410, 510) > 20); // of 620 and 300
    const int one = markPixels(pair->digital, 560, 660); // of 610 and 620
    QVERIFY(one > 20);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, // removes the cursor at 600
        PlotPair::lineLabels(pair->digital).first()->geometry().center());
    QApplication::sendEvent(pair->digital, &event);
    pair->digital->findChild<QMenu *>()->actions().first()->trigger();
    QCOMPARE(markPixels(pair->digital, 560, 660), one);
    QCOMPARE(pair->digital->grab().toImage().pixel(605, 60), qRgb(255, 250, 80));
}

// The title of a digital plot reaches into the strip of the time differences.
void TestPlotterCursors::noTimeDifferenceIsBehindTheTitle()
{
    for (const int x : {110, 190}) // the text would stand from about 120 to 180
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
    QCOMPARE(markPixels(pair->digital, 71, 300), 0);
    QCOMPARE(pair->digital->grab().toImage().pixel(150, 60), qRgb(255, 250, 80));
}

// The text stands from about 380 to 440, the label from 395 to 464.
void TestPlotterCursors::theTimeLabelCoversWhatIsBelowIt()
{
    for (const int x : {400, 420})
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
    PlotPair::move(pair->digital, {600, 150});
    const int all = markPixels(pair->digital, 340, 480);
    const int before = markPixels(pair->digital, 340, 395);
    QVERIFY(before > 0);
    QVERIFY(all > before + 20);
    PlotPair::move(pair->digital, {380, 150});
    QCOMPARE(markPixels(pair->digital, 395, 465), 0);
    QCOMPARE(markPixels(pair->digital, 340, 395), before);
    QCOMPARE(pair->digital->grab().toImage().pixel(463, 50), qRgb(0x31, 0x30, 0x34));
    PlotPair::move(pair->digital, {600, 150});
    QCOMPARE(markPixels(pair->digital, 340, 480), all);
}

// The plot area of the digital plot ends at 800.
void TestPlotterCursors::noTimeDifferenceIsCutOff()
{
    for (const int x : {770, 794})
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
    QVERIFY(markPixels(pair->digital, 730, 801) > 20);
    QCOMPARE(markPixels(pair->digital, 801, 803), 0);
}

// The text of the second and the third stands left of that of the first and the second.
void TestPlotterCursors::cursorsInAnyOrderHaveTheirTimeDifferences()
{
    for (const int x : {360, 620, 300})
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
    const QImage image = pair->digital->grab().toImage();
    int texts = 0; // stretches of ink between gaps of seven columns
    int empty = 7;
    for (int x = 300; x <= 620; ++x) {
        int ink = 0;
        for (int y = 42; y < 59; ++y)
            ink += isYellow(image.pixel(x, y)) ? 1 : 0;
        texts += ink > 0 && empty >= 7 ? 1 : 0;
        empty = ink > 0 ? 0 : empty + 1;
    }
    QCOMPARE(texts, 2);
}

void TestPlotterCursors::theReadoutTellsItsCellsInFull()
{
    doubleClick(450); // the sample of 500 ms is 7
    const int right = 803 - 10;
    QHelpEvent event(QEvent::ToolTip, {right, 60 + 26}, pair->plot->mapToGlobal({right, 60 + 26}));
    QApplication::sendEvent(pair->plot, &event);
    QCOMPARE(QToolTip::text(), QStringLiteral("Ia, P1 (500): 7"));
    QHelpEvent beside(QEvent::ToolTip, {300, 150}, pair->plot->mapToGlobal({300, 150}));
    QApplication::sendEvent(pair->plot, &beside);
    QTRY_COMPARE(QToolTip::text(), QString());
}

// One cursor has room for six digits, eight have it for four.
void TestPlotterCursors::theReadoutsNumbersAreBriefBeforeTheyAreCut()
{
    PlotPair::Series series = PlotPair::ordinary();
    series.values.fill(-1.23456F);
    pair = std::make_unique<PlotPair>(true, series);
    const QFont font = crispFont(10);
    const auto isRead = [&](const char *text) {
        const QImage image = pair->plot->grab().toImage();
        return !findText(image, QLatin1String(text), smallFont(font)).isNull();
    };
    for (Plotter *plot : {pair->plot, pair->other})
        plot->setFont(font);
    for (int twice = 0; twice < 2; ++twice) {
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {150, 150});
        QVERIFY(isRead("-1.23456") && !isRead("-1.235"));
        for (int i = 1; i < 8; ++i)
            QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {150 + 80 * i, 150});
        QVERIFY(isRead("-1.235") && !isRead("-1.23456"));
        for (Plotter *plot : {pair->plot, pair->other, static_cast<Plotter *>(pair->digital)})
            plot->clearCursors();
    }
}

// With the header there are 32 rows of at least 11 pixels in a height of 301 - 60 - 4; the
// ellipsis stands on the last line.
void TestPlotterCursors::theReadoutsEllipsisListsWhatIsLeftOut()
{
    for (int i = 2; i <= 31; ++i)
        pair->host.addAnalog(QStringLiteral("I%1").arg(i), QVector<float>(1001, float(i) / 4));
    for (int i = 2; i <= 31; ++i)
        pair->plot->addChannel(i);
    pair->plot->setupPlot();
    pair->plot->refreshPixmap();
    doubleClick(450); // the sample of 500 ms is 7
    const int height = QFontMetrics(smallFont(pair->plot->font())).height();
    const int lines = (301 - 60 - 4) / height;
    QVERIFY(lines < 32);
    QStringList tip{QStringLiteral("Parameter: P1 (500)")};
    for (int i = lines - 1; i <= 31; ++i) // the first line is the header, the second that of Ia
        tip.append(QStringLiteral("I%1: %2").arg(i).arg(i / 4.0));
    const auto tipAt = [&](int y) {
        QHelpEvent event(QEvent::ToolTip, {793, y}, pair->plot->mapToGlobal({793, y}));
        QApplication::sendEvent(pair->plot, &event);
        return QToolTip::text();
    };
    for (int twice = 0; twice < 2; ++twice) {
        QCOMPARE(tipAt(60 + lines * height - 6), tip.join(QLatin1Char('\n')));
        QCOMPARE(tipAt(60 + height + 6), QStringLiteral("Ia, P1 (500): 7"));
    }
}

void TestPlotterCursors::aDraggedLabelMovesTheCursorEverywhere()
{
    pair->digital->raise();
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {200, 150});
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {600, 150});
    CustomLabel *label = PlotPair::lineLabels(pair->digital).first();
    const QPoint grip = label->geometry().center();
    const int refreshes = pair->host.vectorRefreshes;
    QTest::mousePress(pair->digital, Qt::LeftButton, {}, grip);
    QVERIFY(pair->digital->cursor().shape() != Qt::CrossCursor); // no band begins
    PlotPair::move(label, label->mapFromParent(QPoint(450, 80)), Qt::LeftButton);
    QCOMPARE(pair->digital->cursors().first(), 500.0);
    QCOMPARE(pair->plot->cursors().first(), 500.0);
    QVERIFY(pair->host.vectorRefreshes > refreshes);
    QTest::mouseRelease(pair->digital, Qt::LeftButton, {}, {450, 80});
    PlotPair::move(pair->digital, {300, 80});
    QCOMPARE(pair->digital->cursors(), QList<double>({500, 5000.0 / 7}));
    QCOMPARE(pair->other->cursors(), pair->digital->cursors());
}

void TestPlotterCursors::theReleaseOfALabelLetsItGo_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<int>("way"); // pixels
    QTest::newRow("a click") << Qt::LeftButton << 0;
    QTest::newRow("a drag") << Qt::LeftButton << 70;
    QTest::newRow("the middle button") << Qt::MiddleButton << 70;
}

// As the window gets them: press and release go to the label, which hands them to its plot.
void TestPlotterCursors::theReleaseOfALabelLetsItGo()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(int, way);
    QWindow *window = pair->area.windowHandle();
    doubleClick(440);
    QList<double> before = pair->plot->cursors();
    for (Plotter *plot : QList<Plotter *>{pair->plot, pair->digital, pair->plot}) {
        plot->raise();
        const QPoint grip = PlotPair::lineLabels(plot).first()->geometry().center();
        QTest::mousePress(window, button, {}, grip);
        QTest::mouseMove(window, grip + QPoint(way, 5));
        QTest::mouseRelease(window, button, {}, grip + QPoint(way, 5));
        QCOMPARE(plot->cursors() != before, way != 0);
        before = plot->cursors();
        QTest::mouseMove(window, grip + QPoint(way + 90, 60));
        QCOMPARE(plot->cursors(), before);
    }
}

void TestPlotterCursors::aDragCutShortIsInTheReadout()
{
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {200, 150});
    QTest::mousePress(pair->digital, Qt::LeftButton, {},
        PlotPair::lineLabels(pair->digital).first()->geometry().center());
    PlotPair::move(pair->digital, {450, 150}, Qt::LeftButton);
    QEvent deactivate(QEvent::WindowDeactivate);
    QApplication::sendEvent(pair->digital, &deactivate);
    QHelpEvent event(QEvent::ToolTip, {793, 86}, pair->plot->mapToGlobal({793, 86}));
    QApplication::sendEvent(pair->plot, &event);
    QCOMPARE(QToolTip::text(), QStringLiteral("Ia, P1 (500): 7"));
}

void TestPlotterCursors::aDragEndsWhenItsCursorLeavesTheView_data()
{
    QTest::addColumn<int>("x"); // to which the label is dragged; a pixel is 10 / 7 ms
    QTest::addColumn<double>("time");
    QTest::addColumn<QString>("cell");
    QTest::newRow("dragged") << 520 << 600.0 << QStringLiteral("Ia, P1 (600): 2");
    QTest::newRow("only pressed") << 0 << 500.0 << QStringLiteral("Ia, P1 (500): 7");
}

// A label that is hidden under the pressed button does not hear of the release.
void TestPlotterCursors::aDragEndsWhenItsCursorLeavesTheView()
{
    QFETCH(int, x);
    QFETCH(double, time);
    QFETCH(QString, cell);
    for (int twice = 0; twice < 2; ++twice) {
        for (Plotter *plot : QList<Plotter *>{pair->plot, pair->other, pair->digital})
            plot->clearCursors();
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {450, 150});
        QTest::mousePress(pair->digital, Qt::LeftButton, {},
            PlotPair::lineLabels(pair->digital).first()->geometry().center());
        if (x > 0)
            PlotPair::move(pair->digital, {x, 150}, Qt::LeftButton);
        pair->digital->customZoomIn();
        pair->digital->customZoomIn(); // shows 250 ms
        PlotPair::move(pair->digital, {300, 150});
        PlotPair::move(pair->digital, {400, 150});
        QCOMPARE(pair->digital->cursors(), QList<double>{time});
        QHelpEvent event(QEvent::ToolTip, {793, 86}, pair->plot->mapToGlobal({793, 86}));
        QApplication::sendEvent(pair->plot, &event);
        QCOMPARE(QToolTip::text(), cell);
        pair->digital->customResetZoom();
    }
}

void TestPlotterCursors::aPressOnALabelMovesNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("way"); // to and fro before the release; below 10 pixels
    QTest::newRow("left button, no move") << Qt::LeftButton << QPoint();
    QTest::newRow("left button, one pixel") << Qt::LeftButton << QPoint(1, 0);
    QTest::newRow("left button, nine pixels") << Qt::LeftButton << QPoint(-5, 4);
    QTest::newRow("middle button, one pixel") << Qt::MiddleButton << QPoint(0, 1);
    QTest::newRow("right button, one pixel") << Qt::RightButton << QPoint(-1, 0);
}

void TestPlotterCursors::aPressOnALabelMovesNothing()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, way);
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {450, 150});
    const QPoint grip = PlotPair::lineLabels(pair->digital).first()->geometry().center();
    for (int twice = 0; twice < 2; ++twice) {
        QTest::mousePress(pair->digital, button, {}, grip);
        PlotPair::move(pair->digital, grip + way, button);
        QTest::mouseRelease(pair->digital, button, {}, grip + way);
        QCOMPARE(pair->digital->cursors(), QList<double>{500});
    }
    PlotPair::move(pair->digital, grip + QPoint(50, 50)); // the button is up
    QCOMPARE(pair->digital->cursors(), QList<double>{500});
    QCOMPARE(pair->plot->cursors(), QList<double>{500});
}

// From then on it goes on to the pointer, back to where it began as well.
void TestPlotterCursors::aDragBeginsAfterItsDistance()
{
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {440, 150});
    const QPoint grip(450, PlotPair::lineLabels(pair->digital).first()->geometry().center().y());
    const QList<double> before = pair->digital->cursors();
    const int distance = QApplication::startDragDistance();
    QTest::mousePress(pair->digital, Qt::LeftButton, {}, grip);
    PlotPair::move(pair->digital, grip - QPoint(distance - 1, 0), Qt::LeftButton);
    QCOMPARE(pair->digital->cursors(), before);
    PlotPair::move(pair->digital, {800, 200}, Qt::LeftButton);
    QCOMPARE(pair->digital->cursors(), QList<double>{1000});
    PlotPair::move(pair->digital, grip, Qt::LeftButton);
    QCOMPARE(pair->digital->cursors(), QList<double>{500});
    QTest::mouseRelease(pair->digital, Qt::LeftButton, {}, grip);
    QCOMPARE(pair->digital->cursors(), QList<double>{500});
    QCOMPARE(pair->plot->cursors(), QList<double>{500});
}

// As a person's hand does it: the pointer moves by a pixel between press and release.
void TestPlotterCursors::aDoubleClickOnALabelSetsNoCursor()
{
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {450, 150});
    const QPoint grip = PlotPair::lineLabels(pair->digital).first()->geometry().center();
    QTest::mousePress(pair->digital, Qt::LeftButton, {}, grip);
    PlotPair::move(pair->digital, grip - QPoint(1, 1), Qt::LeftButton);
    QTest::mouseRelease(pair->digital, Qt::LeftButton, {}, grip - QPoint(1, 1));
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, grip - QPoint(1, 1));
    QCOMPARE(pair->digital->cursors(), QList<double>{500});
    QCOMPARE(pair->plot->cursors(), QList<double>{500});
}

void TestPlotterCursors::aDraggedLabelStopsAtTheEdges_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<double>("time");
    QTest::newRow("past the left end") << -300 << 0.0;
    QTest::newRow("past the right end") << 5000 << 1000.0;
}

void TestPlotterCursors::aDraggedLabelStopsAtTheEdges()
{
    QFETCH(int, x);
    QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {200, 150});
    QTest::mousePress(pair->digital, Qt::LeftButton, {},
        PlotPair::lineLabels(pair->digital).first()->geometry().center());
    PlotPair::move(pair->digital, {x, 100}, Qt::LeftButton);
    QTest::mouseRelease(pair->digital, Qt::LeftButton, {}, {x, 100});
    QTEST(pair->digital->cursors().first(), "time");
}

void TestPlotterCursors::aNewPlotTakesOverCursorsAndMarkers()
{
    doubleClick(300);
    doubleClick(500);
    pair->plot->setEndPoint(700);
    Plotter added(&pair->area);
    added.setMainWindow(&pair->host);
    added.addChannel(1);
    added.setupPlot();
    added.followFromNowOn(*pair->plot);
    added.resize(803, 301);
    added.refreshPixmap();
    QCOMPARE(added.cursors(), pair->plot->cursors());
    QCOMPARE(PlotPair::lineLabels(&added).size(), 2);
    QVERIFY(added.findChild<QFrame *>(QStringLiteral("endMarker"))->isVisibleTo(&added));
    QVERIFY(!added.findChild<QFrame *>(QStringLiteral("startMarker"))->isVisibleTo(&added));
}

void TestPlotterCursors::theMenuRemovesOneCursor()
{
    for (const int x : {200, 400, 600})
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
    const QPoint grip = PlotPair::lineLabels(pair->digital).at(1)->geometry().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, grip, pair->digital->mapToGlobal(grip));
    QApplication::sendEvent(pair->digital, &event);
    const QList<QMenu *> menus = pair->digital->findChildren<QMenu *>();
    QCOMPARE(menus.size(), 1);
    QCOMPARE(menus.first()->actions().first()->text(), QStringLiteral("Remove Cursor"));
    const int readout = pair->plot->geometryOfView().readoutWidth();
    menus.first()->actions().first()->trigger();
    QVERIFY(pair->plot->geometryOfView().readoutWidth() < readout);
    QCOMPARE(pair->digital->cursors(), QList<double>({1000.0 / 7, 5000.0 / 7}));
    QCOMPARE(pair->plot->cursors(), pair->digital->cursors());
    QCOMPARE(pair->other->cursors(), pair->digital->cursors());
    QCOMPARE(PlotPair::lineLabels(pair->digital).at(1)->text(), QStringLiteral("P2"));
}

// By the Menu key, while the button is held down.
void TestPlotterCursors::aDragOutlivesItsCursor_data()
{
    QTest::addColumn<bool>("isMoving");
    QTest::newRow("dragged") << true;
    QTest::newRow("only pressed") << false;
}

void TestPlotterCursors::aDragOutlivesItsCursor()
{
    QFETCH(bool, isMoving);
    for (int twice = 0; twice < 2; ++twice) {
        for (const int x : {200, 400})
            QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
        const QPoint grip = PlotPair::lineLabels(pair->digital).first()->geometry().center();
        QTest::mousePress(pair->digital, Qt::LeftButton, {}, grip);
        if (isMoving)
            PlotPair::move(pair->digital, {300, 150}, Qt::LeftButton);
        QContextMenuEvent event(QContextMenuEvent::Keyboard,
            PlotPair::lineLabels(pair->other).first()->geometry().center());
        QApplication::sendEvent(pair->other, &event);
        const std::unique_ptr<QMenu> menu(pair->other->findChild<QMenu *>());
        menu->actions().first()->trigger();
        PlotPair::move(pair->digital, {600, 150}, Qt::LeftButton);
        QTest::mouseRelease(pair->digital, Qt::LeftButton, {}, {600, 150});
        for (const Plotter *plot : QList<Plotter *>{pair->plot, pair->other, pair->digital})
            QCOMPARE(plot->cursors(), QList<double>{3000.0 / 7});
        PlotPair::move(pair->digital, {500, 150});
        QCOMPARE(pair->digital->cursors(), QList<double>{3000.0 / 7});
        for (Plotter *plot : QList<Plotter *>{pair->plot, pair->other, pair->digital})
            plot->clearCursors();
    }
}

void TestPlotterCursors::theMenuRemovesAllCursors()
{
    for (const int x : {200, 400, 600})
        QTest::mouseDClick(pair->digital, Qt::LeftButton, {}, {x, 150});
    const QPoint grip = PlotPair::lineLabels(pair->digital).first()->geometry().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, grip, pair->digital->mapToGlobal(grip));
    QApplication::sendEvent(pair->digital, &event);
    const QList<QMenu *> menus = pair->digital->findChildren<QMenu *>();
    QCOMPARE(menus.size(), 1);
    QCOMPARE(menus.first()->actions().last()->text(), QStringLiteral("Remove All Cursors"));
    menus.first()->actions().last()->trigger();
    QVERIFY(pair->digital->cursors().isEmpty());
    QVERIFY(pair->plot->cursors().isEmpty());
    QVERIFY(PlotPair::lineLabels(pair->plot).isEmpty());
}

QTEST_MAIN(TestPlotterCursors)
#include "tst_plotter_cursors.moc"
