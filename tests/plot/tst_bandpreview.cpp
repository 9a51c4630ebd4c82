// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bandpreview.h"
#include "contrast.h"
#include "plotpair.h"
#include "plotstyle.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QRandomGenerator>
#include <QScrollArea>

#include <functional>
#include <memory>

namespace {

using Action = std::function<void(PlotPair &)>;

void pull(QWidget *plot, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(plot, Qt::LeftButton, {}, from);
    PlotPair::move(plot, to, Qt::LeftButton);
}

BandPreview *preview(const Plotter *plot)
{
    return plot->findChild<BandPreview *>();
}

// The ends in a line of the text, of which the first one has a unit.
QVector<double> ends(const BandPreview *preview, int line)
{
    QString text = preview->text().section(QLatin1Char('\n'), line, line);
    if (line == 0 && text.endsWith(QLatin1String(" ms")))
        text.chop(3);
    QVector<double> numbers;
    const QStringList parts = text.split(QStringLiteral(" \u2026 "));
    for (const QString &number : parts) {
        bool isNumber = false;
        numbers.append(number.toDouble(&isNumber));
        if (!isNumber)
            return {};
    }
    return numbers;
}

bool areAlike(const QVector<double> &texts, double from, double to)
{
    const double least = (to - from) * 1e-8;
    return texts.size() == 2 && std::abs(texts.first() - from) < least
        && std::abs(texts.last() - to) < least;
}

// Where the time axis of a plot puts a time: from x = 100 over what the readout leaves, and at the
// edge of the plot area, three pixels before, at the latest while it is in view.
int xOf(double time, const PlotSettings &view, int width)
{
    const int x = qRound(100 + (time - view.minX) * width / (view.maxX - view.minX));
    return time <= view.maxX ? std::min(x, 100 + width - 3) : x;
}

// Compares what is foretold of a band that is drawn with what its release gives. The fault, empty
// where there is none.
QString faultOfForetold(Plotter *plot, const QPoint &end, bool hasValues)
{
    const PlotSettings before = plot->view();
    const int width = 803 - 100 - plot->geometryOfView().readoutWidth();
    const BandPreview *shown = preview(plot);
    const bool isForetold = shown->isVisible();
    const QVector<double> times = ends(shown, 0);
    const QVector<double> values = ends(shown, 1);
    const QRect frame = shown->frame();
    QTest::mouseRelease(plot, Qt::LeftButton, {}, end);
    const PlotSettings after = plot->view();
    if (shown->isVisible())
        return QStringLiteral("it stayed");
    if (!isForetold)
        return before == after ? QString() : QStringLiteral("nothing was foretold");
    if (!areAlike(times, after.minX, after.maxX))
        return QStringLiteral("other times");
    if (frame.left() != xOf(after.minX, before, width)
        || frame.right() != xOf(after.maxX, before, width))
        return QStringLiteral("the frame is elsewhere in time");
    if (!hasValues)
        return values.isEmpty() && frame.top() == 60 && frame.bottom() == 260
            ? QString()
            : QStringLiteral("values where there are none");
    if (!areAlike(values, after.minY, after.maxY))
        return QStringLiteral("other values");
    const auto y = [&](double value) {
        return qRound(60 + (before.maxY - value) * 200 / (before.maxY - before.minY));
    };
    return frame.top() == y(after.maxY) && frame.bottom() == y(after.minY)
        ? QString()
        : QStringLiteral("the frame is elsewhere in value");
}

} // namespace

Q_DECLARE_METATYPE(Action)

// The plots are 803 x 301, their areas from (100, 60) to (800, 260); readouts take from the width.
class TestBandPreview : public QObject {
    Q_OBJECT

private slots:
    void init() { pair = std::make_unique<PlotPair>(); }
    void cleanup() { pair.reset(); }

    void theRangeAndItsPlace_data();
    void theRangeAndItsPlace();
    void theReleaseGivesIt_data();
    void theReleaseGivesIt();
    void theReleaseGivesItAtRandom();
    void aBandThatDoesNotZoomHasNone_data();
    void aBandThatDoesNotZoomHasNone();
    void itFollowsAViewThatChanges_data();
    void itFollowsAViewThatChanges();
    void itGoesWithTheBand_data();
    void itGoesWithTheBand();
    void theMousePassesThrough();
    void noPictureShowsIt();
    void theBandIsSeenInFull();
    void theTextIsReadable_data();
    void theTextIsReadable();
    void aNarrowPlotHasNoText();
    void inATallPlotTheTextIsSeen();

private:
    std::unique_ptr<PlotPair> pair;
};

// The band is 50 pixels left of the range: 1000 / 703 x 141 = 200.6 ms to 1000 / 703 x 493 = 701
// ms, widened to 200 to 800 ms; 12 - 24 / 201 x 50 = 6.03 down to 12 - 24 / 201 x 150 = -5.91,
// widened to 7 and -6. They lie at 100 + 703 x 0.2 and 0.8, and at 60 + 200 x 5 / 24 and 18 / 24.
void TestBandPreview::theRangeAndItsPlace_data()
{
    QTest::addColumn<bool>("isDigital");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRect>("frame");
    QTest::newRow("analog") << false << QStringLiteral("200 \u2026 800 ms\n-6 \u2026 7")
                            << QRect(QPoint(241, 102), QPoint(662, 210));
    QTest::newRow("digital") << true << QStringLiteral("200 \u2026 800 ms")
                             << QRect(QPoint(241, 60), QPoint(662, 260));
}

void TestBandPreview::theRangeAndItsPlace()
{
    QFETCH(bool, isDigital);
    Plotter *plot = isDigital ? pair->digital : pair->plot;
    for (int twice = 0; twice < 2; ++twice) {
        plot->raise();
        pull(plot, {191, 100}, {543, 200});
        QVERIFY(preview(plot)->isVisible());
        QTEST(preview(plot)->text(), "text");
        QTEST(preview(plot)->frame(), "frame");
        QVERIFY(!preview(pair->other)->isVisibleTo(pair->other));
        QTest::mouseRelease(plot, Qt::LeftButton, {}, {543, 200});
        plot->customResetZoom();
    }
}

void TestBandPreview::theReleaseGivesIt_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<Action>("prepare");
    const Action none = [](PlotPair &) {};
    const Action cursors = [](PlotPair &plots) {
        plots.plot->addCursorAt(300);
        plots.plot->addCursorAt(600);
    };
    const Action zoomed = [](PlotPair &plots) {
        plots.plot->customZoomIn();
        plots.plot->customVZoomIn();
    };
    QTest::newRow("from the upper left corner") << QPoint(81, 41) << QPoint(400, 150) << none;
    QTest::newRow("from the lower right corner") << QPoint(802, 279) << QPoint(500, 150) << none;
    QTest::newRow("the whole area") << QPoint(100, 60) << QPoint(800, 260) << none;
    QTest::newRow("out of the plot") << QPoint(300, 100) << QPoint(1500, 900) << none;
    QTest::newRow("out of the plot to the left") << QPoint(300, 100) << QPoint(-600, -80) << none;
    QTest::newRow("where it shows negative times") << QPoint(100, 70) << QPoint(104, 90) << none;
    QTest::newRow("tiny") << QPoint(300, 100) << QPoint(303, 103) << none;
    QTest::newRow("into the readout") << QPoint(300, 100) << QPoint(780, 200) << cursors;
    QTest::newRow("beside the readout") << QPoint(120, 100) << QPoint(300, 200) << cursors;
    QTest::newRow("zoomed in") << QPoint(200, 80) << QPoint(600, 240) << zoomed;
    QTest::newRow("zoomed in, tiny") << QPoint(604, 204) << QPoint(600, 200) << zoomed;
}

void TestBandPreview::theReleaseGivesIt()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(Action, prepare);
    prepare(*pair);
    for (Plotter *plot : {pair->plot, static_cast<Plotter *>(pair->digital)}) {
        pull(plot, from, to);
        QVERIFY(preview(plot)->isVisibleTo(plot));
        QCOMPARE(faultOfForetold(plot, to, plot == pair->plot), QString());
    }
}

// One band after another, so that the views get narrow, and all times and values from time to time.
void TestBandPreview::theReleaseGivesItAtRandom()
{
    QRandomGenerator random(15);
    int zooms = 0;
    for (int i = 0; i < 300; ++i) {
        Plotter *plot = i % 3 ? pair->plot : pair->digital;
        if (i % 7 == 0)
            plot->customResetZoom();
        if (i % 60 == 59)
            plot->addCursorAt(random.bounded(1000));
        const QPoint from(random.bounded(100, 600), random.bounded(60, 260));
        const QPoint to(random.bounded(-100, 1000), random.bounded(0, 400));
        const PlotSettings before = plot->view();
        pull(plot, from, to);
        QCOMPARE(faultOfForetold(plot, to, plot == pair->plot), QString());
        zooms += before == plot->view() ? 0 : 1;
    }
    QVERIFY2(zooms > 200, qPrintable(QString::number(zooms)));
}

void TestBandPreview::aBandThatDoesNotZoomHasNone_data()
{
    QTest::addColumn<QPoint>("size");
    QTest::newRow("a click") << QPoint(0, 0);
    QTest::newRow("2 pixels wide") << QPoint(2, 50);
    QTest::newRow("2 pixels high") << QPoint(50, 2);
    QTest::newRow("2 pixels wide, up to the left") << QPoint(-2, -50);
}

void TestBandPreview::aBandThatDoesNotZoomHasNone()
{
    QFETCH(QPoint, size);
    const QPoint from(300, 150);
    const PlotSettings before = pair->plot->view();
    pull(pair->plot, from, from + QPoint(100, 60));
    QVERIFY(preview(pair->plot)->isVisible());
    PlotPair::move(pair->plot, from + size, Qt::LeftButton);
    QVERIFY(!preview(pair->plot)->isVisible());
    QTest::mouseRelease(pair->plot, Qt::LeftButton, {}, from + size);
    QVERIFY(pair->plot->view() == before);
}

void TestBandPreview::itFollowsAViewThatChanges_data()
{
    QTest::addColumn<Action>("change");
    QTest::newRow("zoom") << Action([](PlotPair &plots) { plots.plot->customZoomIn(); });
    QTest::newRow("zoom of another plot")
        << Action([](PlotPair &plots) { plots.other->customZoomIn(); });
    QTest::newRow("wheel") << Action([](PlotPair &plots) {
        PlotPair::wheel(plots.plot, {0, 120});
    });
    QTest::newRow("resize and back") << Action([](PlotPair &plots) {
        plots.plot->resize(600, 280);
        plots.plot->resize(803, 301);
    });
    QTest::newRow("a cursor") << Action([](PlotPair &plots) { plots.plot->addCursorAt(100); });
    QTest::newRow("reset") << Action([](PlotPair &plots) {
        plots.plot->customVZoomIn();
        plots.plot->customResetZoom();
    });
}

void TestBandPreview::itFollowsAViewThatChanges()
{
    QFETCH(Action, change);
    pull(pair->plot, {300, 100}, {500, 200});
    change(*pair);
    QVERIFY(preview(pair->plot)->isVisible());
    QCOMPARE(faultOfForetold(pair->plot, {500, 200}, true), QString());
}

void TestBandPreview::itGoesWithTheBand_data()
{
    QTest::addColumn<Action>("end");
    QTest::newRow("release") << Action([](PlotPair &plots) {
        QTest::mouseRelease(plots.plot, Qt::LeftButton, {}, {500, 200});
    });
    QTest::newRow("hidden and shown") << Action([](PlotPair &plots) {
        plots.plot->hide();
        plots.plot->show();
    });
    QTest::newRow("window deactivated") << Action([](PlotPair &plots) {
        QEvent deactivate(QEvent::WindowDeactivate);
        QApplication::sendEvent(plots.plot, &deactivate);
    });
    QTest::newRow("a menu by keys") << Action([](PlotPair &) {
        QMenu menu;
        menu.addAction(QStringLiteral("Open"));
        menu.popup({0, 0});
        menu.close();
    });
    QTest::newRow("the context menu") << Action([](PlotPair &plots) {
        plots.plot->addCursorAt(500);
        const QPoint label = PlotPair::lineLabels(plots.plot).first()->geometry().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, label, plots.plot->mapToGlobal(label));
        QApplication::sendEvent(plots.plot, &event);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QApplication::activePopupWidget()->close();
    });
    QTest::newRow("a press in another plot") << Action([](PlotPair &plots) {
        QTest::mousePress(plots.other, Qt::RightButton, {}, {400, 100});
    });
    QTest::newRow("a double click") << Action([](PlotPair &plots) {
        QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(350, 200), Qt::RightButton,
            Qt::LeftButton | Qt::RightButton, {});
        QApplication::sendEvent(plots.plot, &event);
    });
    QTest::newRow("focus taken by keys")
        << Action([](PlotPair &plots) { plots.other->setFocus(Qt::TabFocusReason); });
}

void TestBandPreview::itGoesWithTheBand()
{
    QFETCH(Action, end);
    for (int twice = 0; twice < 2; ++twice) {
        pair->plot->setFocus();
        pull(pair->plot, {300, 100}, {500, 200});
        QVERIFY(preview(pair->plot)->isVisible());
        end(*pair);
        QVERIFY(!preview(pair->plot)->isVisibleTo(pair->plot));
        PlotPair::move(pair->plot, {450, 180});
        pair->plot->refreshPixmap();
        QVERIFY(!preview(pair->plot)->isVisibleTo(pair->plot));
        pair->plot->customResetZoom();
    }
}

void TestBandPreview::theMousePassesThrough()
{
    pull(pair->plot, {300, 100}, {500, 200});
    const BandPreview *shown = preview(pair->plot);
    QVERIFY(!shown->textPlace().isEmpty());
    QVERIFY(pair->plot->childAt(shown->textPlace().center()) != shown);
    QVERIFY(pair->plot->childAt(shown->frame().topLeft()) != shown);
}

// A picture is taken in a style of its own.
void TestBandPreview::noPictureShowsIt()
{
    pair->plot->setStyleSheet(captureStyle);
    const QImage plain = pair->plot->grab().toImage();
    pair->plot->setStyleSheet(screenStyle);
    for (int twice = 0; twice < 2; ++twice) {
        QTest::mousePress(pair->plot, Qt::LeftButton, {}, {300, 100});
        PlotPair::move(pair->plot, {500, 200}, Qt::LeftButton);
        QVERIFY(preview(pair->plot)->isVisible());
        const QRect text = preview(pair->plot)->textPlace();
        const qreal ratio = plain.devicePixelRatio();
        const QRect place(text.topLeft() * ratio, text.size() * ratio);
        pair->plot->setStyleSheet(captureStyle);
        QVERIFY(!preview(pair->plot)->isVisible());
        QCOMPARE(pair->plot->grab().toImage().copy(place), plain.copy(place));
        pair->plot->setStyleSheet(screenStyle);
        PlotPair::move(pair->plot, {501, 200}, Qt::LeftButton);
        QVERIFY(preview(pair->plot)->isVisible());
        PlotPair::move(pair->plot, {300, 100}, Qt::LeftButton);
        QTest::mouseRelease(pair->plot, Qt::LeftButton, {}, {300, 100});
    }
}

// Whatever lies under its lines.
void TestBandPreview::theBandIsSeenInFull()
{
    QRandomGenerator random(7);
    for (int i = 0; i < 40; ++i) {
        const QPoint from(random.bounded(100, 800), random.bounded(60, 260));
        const QPoint to(random.bounded(100, 800), random.bounded(60, 260));
        pull(pair->plot, from, to);
        PlotPair::move(pair->plot, to, Qt::LeftButton);
        const QImage with = pair->plot->grab().toImage();
        preview(pair->plot)->hide();
        const QImage without = pair->plot->grab().toImage();
        const QRgb light = pair->plot->palette().light().color().rgb();
        int lost = 0;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x)
                lost += without.pixel(x, y) == light && with.pixel(x, y) != light
                    && QRect(from, to).normalized().contains(
                        QPoint(x, y) / with.devicePixelRatio());
        }
        const QRect band = QRect(from, to).normalized();
        const QRect text = preview(pair->plot)->textPlace();
        QVERIFY(text.isEmpty() || QRect(106, 66, 689, 189).contains(text));
        QVERIFY(!text.intersects(band) || band.contains(text));
        QVERIFY2(lost == 0, qPrintable(QStringLiteral("band %1: %2").arg(i).arg(lost)));
        PlotPair::move(pair->plot, from, Qt::LeftButton);
        QTest::mouseRelease(pair->plot, Qt::LeftButton, {}, from);
    }
}

void TestBandPreview::theTextIsReadable_data()
{
    QTest::addColumn<bool>("isDigital");
    QTest::newRow("over traces") << false;
    QTest::newRow("over a bright row") << true;
}

// On the dark ground of the plots, without anything of what lies below it.
void TestBandPreview::theTextIsReadable()
{
    QFETCH(bool, isDigital);
    Plotter *plot = isDigital ? pair->digital : pair->plot;
    plot->raise();
    pull(plot, {300, 140}, {500, 200});
    const QRect text = preview(plot)->textPlace();
    QVERIFY(!text.isEmpty());
    const QImage image = plot->grab().toImage();
    const qreal ratio = image.devicePixelRatio();
    const QRgb ground = qRgb(0x31, 0x30, 0x34);
    int letters = 0;
    int strange = 0; // neither ground nor towards the light blue of the letters
    for (int y = qCeil(text.top() * ratio); y < qFloor((text.bottom() + 1) * ratio); ++y) {
        for (int x = qCeil(text.left() * ratio); x < qFloor((text.right() + 1) * ratio); ++x) {
            const QRgb pixel = image.pixel(x, y);
            letters += contrast(pixel, ground) >= 4.5 ? 1 : 0;
            strange += qRed(pixel) > 0x79 || qBlue(pixel) < 0x34 ? 1 : 0;
        }
    }
    QVERIFY2(letters > 60 * ratio, qPrintable(QString::number(letters)));
    QCOMPARE(strange, 0);
}

void TestBandPreview::aNarrowPlotHasNoText()
{
    pair->plot->resize(170, 301);
    pull(pair->plot, {110, 100}, {150, 200});
    QVERIFY(preview(pair->plot)->isVisible());
    QVERIFY(preview(pair->plot)->textPlace().isEmpty());
    pair->plot->resize(803, 301);
    QVERIFY(!preview(pair->plot)->textPlace().isEmpty());
}

void TestBandPreview::inATallPlotTheTextIsSeen()
{
    QScrollArea window;
    window.resize(900, 400);
    pair->digital->setParent(nullptr);
    pair->digital->resize(803, 3000);
    window.setWidget(pair->digital); // which is deleted with the window
    pair->plot->setLinkedPlotters({});
    pair->other->setLinkedPlotters({});
    pair->digital->setLinkedPlotters({});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.ensureVisible(0, 1700);
    pull(pair->digital, {200, 1600}, {400, 1650});
    const QRect text = preview(pair->digital)->textPlace();
    QVERIFY(!text.isEmpty());
    QVERIFY(pair->digital->visibleRegion().boundingRect().contains(text));
}

QTEST_MAIN(TestBandPreview)
#include "tst_bandpreview.moc"
