// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotmenus.h"
#include "plotswindow.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QPointer>
#include <QScrollBar>
#include <QWheelEvent>

#include <random>

namespace {

const QString earlier = QStringLiteral("Earlier");
const QString later = QStringLiteral("Later");
const QString previous = QStringLiteral("Previous View");
const QString whole = QStringLiteral("Whole Recording");

} // namespace

// The recording lasts from 0 to 99 ms, its whole view to 100; its trigger lies at 50 ms.
class TestPlotMenu : public PlotsWindow {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init()
    {
        openWindow();
        openUsual();
    }
    void cleanup() { closeWindow(); }

    void nothingIsOfferedOfTheWholeView();
    void viewsEarlierAndLater();
    void zoomToTheOutermostCursors();
    void zoomsOfTheToolBar();
    void oneStepBackForEachGesture_data();
    void oneStepBackForEachGesture();
    void manyStepsBackAndNoMore_data();
    void manyStepsBackAndNoMore();
    void aHiddenPlotIsInStepWhenItIsShown();
    void whatAHiddenPlotShowedDoesNotComeBack();
    void nothingIsKeptOfAnotherRecording();
    void cursorsAtExactTimes();
    void noRoomForMoreCursors();
    void cursorsAtATimeThatIsTyped_data();
    void cursorsAtATimeThatIsTyped();
    void timesThatAreNotTaken_data();
    void timesThatAreNotTaken();
    void whatIsProposedIsTaken();
    void aQuestionEndsWithItsRecording();
    void cursorsAtChanges();
    void cursorsAtChangesOfTheRow();
    void cursorsAtExtremes();
    void namesDoNotPartTheirEntries();
    void labelsKeepTheirOwnMenu();
    void movesOfACursor();
    void noPointerStandsInAReport();

private:
    void wheel(Plotter *plot, const QPoint &delta) const
    {
        const QPoint position(400, 150);
        QWheelEvent event(position, plot->mapToGlobal(position), {}, delta, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(plot, &event);
    }
    void drawBand(Plotter *plot, const QPoint &from, const QPoint &to) const
    {
        QTest::mousePress(plot, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, plot->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
            Qt::NoModifier);
        QApplication::sendEvent(plot, &move);
        QTest::mouseRelease(plot, Qt::LeftButton, {}, to);
    }
    void make(const QString &gesture);
    QVector<PlotSettings> views() const
    {
        QVector<PlotSettings> views;
        for (const Plotter *each : plots())
            views.append(each->view());
        return views;
    }
};

void TestPlotMenu::make(const QString &gesture)
{
    if (gesture == QLatin1String("time zoom by key"))
        QTest::keyClick(analog(), Qt::Key_Plus);
    else if (gesture == QLatin1String("time zoom by button"))
        trigger("Zoom In");
    else if (gesture == QLatin1String("value zoom by button"))
        trigger("Vertical Zoom In");
    else if (gesture == QLatin1String("reset by button"))
        trigger("Zoom Reset");
    else if (gesture == QLatin1String("scroll by wheel"))
        wheel(analog(), {0, 120});
    else if (gesture == QLatin1String("scroll by wheel, sideways"))
        wheel(analog(), {120, 120});
    else if (gesture == QLatin1String("scroll by key"))
        QTest::keyClick(analog(), Qt::Key_Up);
    else if (gesture == QLatin1String("scroll by bar"))
        window->horizontalScrollBar()->setValue(window->horizontalScrollBar()->value() + 1);
    else if (gesture == QLatin1String("band"))
        drawBand(analog(), {250, 90}, {500, 140});
    else if (gesture == QLatin1String("band on rows"))
        drawBand(digital(), {250, 90}, {500, 140});
    else if (!choose(analog(), gesture))
        QVERIFY(gesture == earlier || gesture == later || gesture == whole);
}

void TestPlotMenu::nothingIsOfferedOfTheWholeView()
{
    for (Plotter *each : plots()) {
        for (const QString &text : {earlier, later, previous, whole})
            QVERIFY2(!offers(each, text), qPrintable(text));
        QVERIFY(!offers(each, QStringLiteral("Zoom to P1-P2")));
    }
}

void TestPlotMenu::viewsEarlierAndLater()
{
    using Times = QPair<double, double>;
    analog()->addCursorAt(20);
    analog()->addCursorAt(60);
    for (Plotter *each : plots()) {
        QVERIFY(choose(each, QStringLiteral("Zoom to P1-P2")));
        QCOMPARE(times(), Times(20, 60));
        QVERIFY(choose(each, later));
        QCOMPARE(times(), Times(40, 80));
        QVERIFY(choose(each, earlier));
        QVERIFY(choose(each, earlier));
        QCOMPARE(times(), Times(0, 40));
        QVERIFY(!offers(each, earlier));
        for (int i = 0; i < 3; ++i)
            QVERIFY(choose(each, later));
        QCOMPARE(times(), Times(60, 100));
        QVERIFY(!offers(each, later));
        QVERIFY(choose(each, whole));
        QCOMPARE(times(), Times(0, 100));
        QVERIFY(!offers(each, whole));
    }
}

// To the very times, whatever their order; the cursors at the edges are in view.
void TestPlotMenu::zoomToTheOutermostCursors()
{
    using Times = QPair<double, double>;
    analog()->addCursorAt(31.25);
    QVERIFY(!offers(analog(), QStringLiteral("Zoom to P1-P2")));
    analog()->addCursorAt(17.5);
    QVERIFY(choose(analog(), QStringLiteral("Zoom to P2-P1")));
    QCOMPARE(times(), Times(17.5, 31.25));
    for (Plotter *each : plots()) {
        for (const QLabel *label : each->findChildren<QLabel *>(QStringLiteral("lineLabel")))
            QVERIFY(!label->isHidden());
    }
    analog()->addCursorAt(70.125);
    QVERIFY(choose(analog(), QStringLiteral("Zoom to P2-P3")));
    QCOMPARE(times(), Times(17.5, 70.125));

    window->removeCursors();
    for (int i = 0; i < 2; ++i)
        analog()->addCursorAt(40);
    QVERIFY(!offers(analog(), QStringLiteral("Zoom to P1-P2")));
}

// Without a mouse there is no other way to them. They act as the buttons do, from any plot.
void TestPlotMenu::zoomsOfTheToolBar()
{
    const QVector<PlotSettings> all = views();
    const double span = all.first().spanY();
    for (Plotter *each : plots()) {
        QVERIFY(choose(each, QStringLiteral("Vertical Zoom In")));
        const double zoomed = analog()->view().spanY();
        QVERIFY2(zoomed < span, qPrintable(QString::number(zoomed)));
        QVERIFY(choose(each, QStringLiteral("Vertical Zoom In")));
        QVERIFY(analog()->view().spanY() < zoomed);
        QVERIFY(choose(each, QStringLiteral("Vertical Zoom Out")));
        QCOMPARE(analog()->view().spanY(), zoomed);
        trigger("Zoom In");
        QCOMPARE(times(), qMakePair(0.0, 50.0));
        QVERIFY(choose(each, QStringLiteral("Zoom Reset")));
        QCOMPARE(times(), qMakePair(0.0, 100.0));
        QCOMPARE(analog()->view().spanY(), span);
    }
}

void TestPlotMenu::oneStepBackForEachGesture_data()
{
    QTest::addColumn<QString>("gesture");
    for (const char *gesture : {"time zoom by key", "time zoom by button", "value zoom by button",
             "reset by button", "scroll by wheel", "scroll by wheel, sideways", "scroll by key",
             "scroll by bar", "band", "band on rows", "Earlier", "Later", "Whole Recording"})
        QTest::newRow(gesture) << QString::fromLatin1(gesture);
}

// The plot added last is one that the zooms reach by itself, and one that they reach through
// others.
void TestPlotMenu::oneStepBackForEachGesture()
{
    QFETCH(QString, gesture);
    compose({QStringLiteral("Ib")});
    trigger("Zoom In");
    trigger("Vertical Zoom In");
    analog()->changeView([](PlotView &view) { return view.moveTimes(10); });
    for (int twice = 0; twice < 2; ++twice) {
        const QVector<PlotSettings> before = views();
        make(gesture);
        QVERIFY(!(views() == before));
        QVERIFY(choose(digital(), previous));
        QVERIFY(views() == before);
    }
}

void TestPlotMenu::manyStepsBackAndNoMore_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 6; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

// With changes of the value mode, of what is shown and of the window's size in between, each taken
// back at once.
void TestPlotMenu::manyStepsBackAndNoMore()
{
    QFETCH(uint, seed);
    std::mt19937 random(seed);
    const QStringList gestures{QStringLiteral("time zoom by key"),
        QStringLiteral("time zoom by button"), QStringLiteral("value zoom by button"),
        QStringLiteral("reset by button"), QStringLiteral("scroll by wheel"),
        QStringLiteral("scroll by key"), QStringLiteral("scroll by bar"), QStringLiteral("band"),
        QStringLiteral("band on rows"), earlier, later, whole};
    QVector<QVector<PlotSettings>> seen;
    for (int i = 0; i < 25; ++i) {
        const QVector<PlotSettings> before = views();
        make(gestures.at(int(random() % uint(gestures.size()))));
        if (!(views() == before))
            seen.append(before);
        switch (random() % 8) {
        case 0:
            combo("comboBox_primSec")->setCurrentIndex(2);
            combo("comboBox_primSec")->setCurrentIndex(0);
            break;
        case 1:
            window->resize(1100, 800);
            window->resize(1200, 900);
            break;
        case 2:
            click(list("listWidget2"), 0);
            click(list("listWidget2"), 0);
            break;
        default:
            break;
        }
    }
    QVERIFY(seen.size() > 5);
    while (!seen.isEmpty()) {
        QVERIFY(choose(analog(), previous));
        QVERIFY(views() == seen.takeLast());
    }
    QVERIFY(!offers(analog(), previous));
}

void TestPlotMenu::aHiddenPlotIsInStepWhenItIsShown()
{
    using Times = QPair<double, double>;
    QTest::keyClick(analog(), Qt::Key_Plus);
    const Times zoomed = times();
    click(list("listWidget2"), 0);
    QVERIFY(digital()->isHidden());
    QTest::keyClick(analog(), Qt::Key_Plus);
    QVERIFY(choose(analog(), previous));
    click(list("listWidget2"), 0);
    QCOMPARE(times(), zoomed);
    QVERIFY(choose(digital(), previous));
    QCOMPARE(times(), Times(0, 100));
}

// Each step leads on, and all plots go to the same times.
void TestPlotMenu::whatAHiddenPlotShowedDoesNotComeBack()
{
    for (int twice = 0; twice < 2; ++twice) {
        click(list("listWidget2"), 0);
        QVERIFY(digital()->isHidden());
        trigger("Zoom In");
        trigger("Zoom In");
        QCOMPARE(analog()->view().maxX, 25.0);
        click(list("listWidget2"), 0);
        QCOMPARE(times(), qMakePair(0.0, 25.0));
        QVERIFY(choose(analog(), previous));
        QCOMPARE(times(), qMakePair(0.0, 50.0));
        QVERIFY(choose(digital(), previous));
        QCOMPARE(times(), qMakePair(0.0, 100.0));
        QVERIFY(!offers(analog(), previous));
    }
}

void TestPlotMenu::nothingIsKeptOfAnotherRecording()
{
    trigger("Zoom In");
    for (int twice = 0; twice < 2; ++twice) {
        open({QStringLiteral("Ia")}, {QStringLiteral("Trip")});
        QVERIFY(!offers(analog(), previous));
        trigger("Zoom In");
        QVERIFY(offers(analog(), previous));
    }
}

// Whatever the view.
void TestPlotMenu::cursorsAtExactTimes()
{
    const QString atTrigger = QStringLiteral("Cursor at Trigger");
    QVERIFY(choose(analog(), atTrigger));
    analog()->changeView([](PlotView &view) { return view.showTimes(10.3, 20.7); });
    QVERIFY(choose(digital(), atTrigger));
    const double here = analog()->geometryOfView().lineTime(400);
    QVERIFY(choose(analog(), QStringLiteral("Cursor Here"), {400, 150}));
    for (const Plotter *each : plots())
        QCOMPARE(each->cursors(), QList<double>({50, 50, here}));
}

void TestPlotMenu::noRoomForMoreCursors()
{
    for (int i = 0; i < CursorMarks::most; ++i) {
        QVERIFY(offers(analog(), QStringLiteral("Cursor Here")));
        analog()->addCursorAt(i);
    }
    QVERIFY(!offers(analog(), QStringLiteral("Cursor Here")));
    QVERIFY(!offers(analog(), QStringLiteral("Cursor at Trigger")));
}

void TestPlotMenu::cursorsAtATimeThatIsTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("time");
    QTest::newRow("ms") << QStringLiteral("33.125") << 33.125;
    QTest::newRow("ms, comma") << QStringLiteral("33,125") << 33.125;
    QTest::newRow("time of day") << QStringLiteral("10:00:00.0455") << 45.5;
    QTest::newRow("between the samples and the end of the view") << QStringLiteral("100") << 100.0;
}

void TestPlotMenu::cursorsAtATimeThatIsTyped()
{
    QFETCH(QString, text);
    QFETCH(double, time);
    analog()->changeView([](PlotView &view) { return view.showTimes(10, 20); });
    QVERIFY(choose(digital(), QStringLiteral("Cursor at Time...")));
    auto *dialog = digital()->findChild<QInputDialog *>();
    QVERIFY(dialog);
    QVERIFY(!dialog->findChild<QLineEdit *>()->text().isEmpty());
    dialog->findChild<QLineEdit *>()->selectAll();
    QTest::keyClicks(dialog->findChild<QLineEdit *>(), text);
    QTest::keyClick(dialog, Qt::Key_Return);
    for (const Plotter *each : plots())
        QCOMPARE(each->cursors(), QList<double>{time});
}

void TestPlotMenu::timesThatAreNotTaken_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", "soon", "100.5", "-0.5", "11:00:00", "10:00"})
        QTest::addRow("'%s'", text) << QString::fromLatin1(text);
}

void TestPlotMenu::timesThatAreNotTaken()
{
    QFETCH(QString, text);
    QVERIFY(choose(analog(), QStringLiteral("Cursor at Time...")));
    auto *dialog = analog()->findChild<QInputDialog *>();
    auto *edit = dialog->findChild<QLineEdit *>();
    const auto *ok = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    QVERIFY(ok->isEnabled());
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
    QVERIFY(!ok->isEnabled());
    QTest::keyClick(dialog, Qt::Key_Return);
    QVERIFY(analog()->cursors().isEmpty());
    edit->setText(QStringLiteral("50"));
    QVERIFY(ok->isEnabled());
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(analog()->cursors().isEmpty());
}

// The view may lie beyond the recording, which ends at 100 ms.
void TestPlotMenu::whatIsProposedIsTaken()
{
    analog()->changeView([](PlotView &view) { return view.moveBy(90, 0); });
    QVERIFY(analog()->view().minX > 80);
    QVERIFY(choose(analog(), QStringLiteral("Cursor at Time...")));
    QTest::keyClick(analog()->findChild<QInputDialog *>(), Qt::Key_Return);
    QCOMPARE(analog()->cursors(), QList<double>{100});
}

void TestPlotMenu::aQuestionEndsWithItsRecording()
{
    QVERIFY(choose(analog(), QStringLiteral("Cursor at Time...")));
    const QPointer<QInputDialog> dialog = analog()->findChild<QInputDialog *>();
    open({QStringLiteral("Ia")}, {});
    QVERIFY(!dialog);
    QVERIFY(analog()->cursors().isEmpty());
}

// Of "Trip", which is 1 from 50 ms on, and the only one shown; the menu is opened at 29 and 65 ms.
void TestPlotMenu::cursorsAtChanges()
{
    const QString next = QStringLiteral("Cursor at Next Change");
    const QString before = QStringLiteral("Cursor at Previous Change");
    const auto at
        = [&](double time) { return QPoint(int(analog()->geometryOfView().cursorX(time)), 100); };
    QVERIFY(!offers(analog(), before, at(29)));
    QVERIFY(choose(analog(), next, at(29)));
    QVERIFY(!offers(analog(), next, at(65)));
    QVERIFY(choose(analog(), before, at(65)));
    for (const Plotter *each : plots())
        QCOMPARE(each->cursors(), QList<double>({50, 50}));
    click(list("listWidget2"), 0);
    QVERIFY(digital()->isHidden());
    QVERIFY(!offers(analog(), next, at(29)));
}

void TestPlotMenu::cursorsAtChangesOfTheRow()
{
    const int row = digital()->geometryOfView().rowY(0, 1);
    QVERIFY(choose(digital(), QStringLiteral("Cursor at Next Change (Trip)"), {200, row}));
    QVERIFY(
        choose(digital(), QStringLiteral("Cursor at Next Change"), {200, 10})); // above the rows
    QCOMPARE(analog()->cursors(), QList<double>({50, 50}));
    QVERIFY(!offers(digital(), QStringLiteral("Cursor at Maximum in View"), {200, row}));
}

// "Ia" swings from -10 at 0, 20, 40 ms to 9 at 19, 39, 59 ms; "Ib" is twice that.
void TestPlotMenu::cursorsAtExtremes()
{
    analog()->changeView([](PlotView &view) { return view.showTimes(25, 45); });
    const auto at = [&](double value) {
        const PlotGeometry geometry = analog()->geometryOfView();
        return QPoint(int(geometry.traceX(38)), int(geometry.traceY(value)));
    };
    QVERIFY(choose(analog(), QStringLiteral("Cursor at Maximum in View (Ia)"), at(8)));
    QVERIFY(choose(analog(), QStringLiteral("Cursor at Minimum in View (Ia)"), at(8)));
    QVERIFY(choose(analog(), QStringLiteral("Cursor at Maximum in View (Ib)"), at(16)));
    QCOMPARE(digital()->cursors(), QList<double>({39, 40, 39}));
}

void TestPlotMenu::namesDoNotPartTheirEntries()
{
    open({QStringLiteral("I\ta & b")}, {QStringLiteral("Trip\t1")});
    const PlotGeometry geometry = analog()->geometryOfView();
    const QPoint onTrace(int(geometry.traceX(38)), int(geometry.traceY(8)));
    QVERIFY(offers(analog(), QStringLiteral("Cursor at Maximum in View (I a && b)"), onTrace));
    const QPoint onRow(200, digital()->geometryOfView().rowY(0, 1));
    QVERIFY(offers(digital(), QStringLiteral("Cursor at Next Change (Trip 1)"), onRow));
}

void TestPlotMenu::labelsKeepTheirOwnMenu()
{
    analog()->addCursorAt(50);
    const auto *label = analog()->findChild<QLabel *>(QStringLiteral("lineLabel"));
    const QPoint point = label->geometry().center();
    QVERIFY(offers(analog(), QStringLiteral("Remove Cursor"), point));
    QVERIFY(!offers(analog(), QStringLiteral("Cursor Here"), point));
    QVERIFY(!offers(analog(), QStringLiteral("Remove Cursor")));
}

void TestPlotMenu::movesOfACursor()
{
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    analog()->addCursorAt(20);
    analog()->addCursorAt(50);
    const auto labels = digital()->findChildren<QLabel *>(QStringLiteral("lineLabel"));
    const auto point = [&] { return labels.at(1)->geometry().center(); };
    QVERIFY(choose(digital(), QStringLiteral("Move to Time..."), point()));
    auto *dialog = digital()->findChild<QInputDialog *>();
    QCOMPARE(dialog->findChild<QLineEdit *>()->text(), QStringLiteral("50"));
    QTest::keyClick(dialog->findChild<QLineEdit *>(), Qt::Key_End); // it was selected
    QTest::keyClicks(dialog->findChild<QLineEdit *>(), QStringLiteral(".25"));
    QTest::keyClick(dialog, Qt::Key_Return);
    for (const Plotter *each : plots())
        QCOMPARE(each->cursors(), QList<double>({20, 50.25}));
    QVERIFY(choose(digital(), QStringLiteral("Step to Next Sample"), point()));
    QVERIFY(choose(digital(), QStringLiteral("Step to Next Sample"), point()));
    QVERIFY(choose(digital(), QStringLiteral("Step to Previous Sample"), point()));
    QCOMPARE(analog()->cursors(), QList<double>({20, 51}));
    QCOMPARE(window->focusWidget(), labels.at(1));
    QTest::keyClick(window->focusWidget(), Qt::Key_Left);
    QCOMPARE(analog()->cursors(), QList<double>({20, 50}));
    QVERIFY(choose(digital(), QStringLiteral("Remove Cursor"), point()));
    QCOMPARE(window->focusWidget(), digital());
}

// It is on screen again afterwards.
void TestPlotMenu::noPointerStandsInAReport()
{
    const auto copied = [&] {
        return choose(digital(), QStringLiteral("Copy Picture with Heading"))
            ? QGuiApplication::clipboard()->image()
            : QImage();
    };
    const QImage without = copied();
    QVERIFY(!without.isNull());
    const QPoint place(300, 150);
    QMouseEvent move(QEvent::MouseMove, place, analog()->mapToGlobal(place), Qt::NoButton,
        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(analog(), &move);
    for (int twice = 0; twice < 2; ++twice) {
        for (const char *name : {"timeline", "timelabel"})
            QVERIFY(analog()->findChild<QWidget *>(QLatin1String(name))->isVisible());
        QCOMPARE(copied(), without);
    }
    for (Plotter *each : plots()) {
        const auto *line = each->findChild<QWidget *>(QStringLiteral("timeline"));
        QVERIFY(line->isVisible());
        QCOMPARE(line->x(), place.x());
    }
}

QTEST_MAIN(TestPlotMenu)
#include "tst_plotmenu.moc"
