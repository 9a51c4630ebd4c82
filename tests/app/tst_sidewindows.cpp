// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "customlabel.h"
#include "eventsdialog.h"
#include "measurementsdialog.h"
#include "plotmenus.h"
#include "plotswindow.h"
#include "vectordialog.h"
#include "vectorwidget.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>

// The recording lasts from 0 to 99 ms, its whole view to 100; Trip changes at 50 ms, the trigger.
class TestSideWindows : public PlotsWindow {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init()
    {
        openWindow();
        openUsual();
    }
    void cleanup() { closeWindow(); }

    void eventsStandBesideThePlots();
    void anEventComesIntoView();
    void theWholeViewStays();
    void aCursorStandsAtTheVeryTime();
    void eventsFollowTheRecording();
    void eventsAreGoneWithAFailedLoad();
    void eventsThatWereClosedKeepNothing();
    void eventsHaveRoomForTheirNames_data();
    void eventsHaveRoomForTheirNames();

    void measurementsStandBesideThePlots();
    void measurementsFollowADraggedCursor();
    void measurementsFollowTheValueMode();
    void measurementsFollowTheRecording();
    void measurementsAreGoneWithAFailedLoad();
    void measurementsOfARemovedPlotAreThoseOfTheFirst();
    void measurementsOpenFromAPhasorPanel();
    void measurementsAreSavedAndReported();

    void phasorsTakeAColorByTheKeys();

private:
    MeasurementsDialog *measurements() const { return window->findChild<MeasurementsDialog *>(); }
    // Of the first page: the names of the rows, or the cells of a row.
    QStringList measured(int row = -1) const
    {
        const QAbstractItemModel *model
            = measurements()->findChild<QTableView *>(QStringLiteral("tableView_cursors"))->model();
        QStringList texts;
        for (int i = 0; row < 0 && i < model->rowCount(); ++i)
            texts.append(model->headerData(i, Qt::Vertical).toString());
        for (int i = 0; row >= 0 && i < model->columnCount(); ++i)
            texts.append(model->index(row, i).data().toString());
        return texts;
    }
    void showMeasurements(Plotter *plot)
    {
        QVERIFY(choose(plot, QStringLiteral("Measurements...")));
        QVERIFY(QTest::qWaitForWindowExposed(measurements()));
    }

    EventsDialog *events() const { return window->findChild<EventsDialog *>(); }
    QTableView *table() const { return events()->findChild<QTableView *>(); }
    int rows() const { return table()->model()->rowCount(); }
    QPoint placeOf(int row) const
    {
        return table()->visualRect(table()->model()->index(row, 0)).center();
    }
    void doubleClick(int row) const
    {
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, placeOf(row));
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, placeOf(row));
    }
    void showEvents()
    {
        QVERIFY(choose(analog(), QStringLiteral("Events...")));
        QVERIFY(QTest::qWaitForWindowExposed(events()));
    }
};

void TestSideWindows::eventsStandBesideThePlots()
{
    QVERIFY(!events());
    showEvents();
    QVERIFY(!events()->isModal());
    QCOMPARE(rows(), 2);
    QCOMPARE(table()->model()->index(1, 4).data().toString(), QStringLiteral("Trip"));
    choose(digital(), QStringLiteral("Events...")); // the same again
    QCOMPARE(window->findChildren<EventsDialog *>().size(), 1);
}

void TestSideWindows::anEventComesIntoView()
{
    showEvents();
    for (int time = 0; time < 3; ++time)
        QTest::keyClick(analog(), Qt::Key_Plus);
    QCOMPARE(analog()->view().maxX, 15.0);
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, placeOf(1));
    for (const Plotter *each : plots()) {
        QCOMPARE(each->view().minX, 42.5);
        QCOMPARE(each->view().maxX, 57.5);
    }
    QVERIFY(choose(analog(), QStringLiteral("Previous View"))); // one step, of two that said so
    QCOMPARE(analog()->view().minX, 0.0);
    QCOMPARE(analog()->view().maxX, 15.0);
}

void TestSideWindows::theWholeViewStays()
{
    showEvents();
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, placeOf(1));
    QCOMPARE(analog()->view(), analog()->home());
}

void TestSideWindows::aCursorStandsAtTheVeryTime()
{
    showEvents();
    doubleClick(1);
    for (const Plotter *each : plots())
        QCOMPARE(each->cursors(), QList<double>{50});
}

void TestSideWindows::eventsFollowTheRecording()
{
    showEvents();
    for (int time = 0; time < 2; ++time) {
        open({QStringLiteral("Ia")},
            {QStringLiteral("Start"), QStringLiteral("Trip"), QStringLiteral("Idle0")});
        QCOMPARE(rows(), 3);
        QCOMPARE(table()->model()->index(1, 4).data().toString(), QStringLiteral("Start"));
        doubleClick(2);
        QCOMPARE(analog()->cursors(), QList<double>{50});
    }
}

void TestSideWindows::eventsAreGoneWithAFailedLoad()
{
    showEvents();
    QVERIFY(writeTextFile(path("bad.cfg"), "x"));
    {
        const BoxReader boxes;
        window->open(path("bad.cfg"));
    }
    QCOMPARE(rows(), 0);
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, {20, 40});
    open({QStringLiteral("Ia")}, {QStringLiteral("Trip")});
    QCOMPARE(rows(), 2);
}

void TestSideWindows::eventsThatWereClosedKeepNothing()
{
    showEvents();
    events()->close();
    open({QStringLiteral("Ia")}, {QStringLiteral("Start"), QStringLiteral("Trip")});
    QCOMPARE(rows(), 0);
    showEvents();
    QCOMPARE(rows(), 3);
}

void TestSideWindows::eventsHaveRoomForTheirNames_data()
{
    QTest::addColumn<int>("points"); // of the font
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("entry"); // of the context menu
    const auto rows = [](const char *language, const char *entry) {
        for (const int points : {10, 12, 14})
            QTest::addRow("%s at %d points", language, points)
                << points << QString::fromUtf8(language) << QString::fromUtf8(entry);
    };
    rows("English", "Events...");
    rows("Suomi", "Tapahtumat...");
    rows("中文", "事件(V)...");
}

// Whatever the others need; on a small screen the table scrolls.
void TestSideWindows::eventsHaveRoomForTheirNames()
{
    QFETCH(int, points);
    QFETCH(QString, language);
    QFETCH(QString, entry);
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPointSize(points);
    QApplication::setFont(font);
    closeWindow();
    openWindow();
    const QString name = QStringLiteral("CB Q0 closed");
    open({QStringLiteral("Ia")}, {name});
    Plotter *first = analog(); // its name is another one then
    for (QAction *action : window->findChildren<QAction *>()) {
        if (action->text() == language)
            action->trigger();
    }
    QCoreApplication::processEvents();
    QVERIFY(choose(first, entry));
    QVERIFY(QTest::qWaitForWindowExposed(events()));
    QApplication::setFont(before);
    const QRect screen = events()->screen()->availableGeometry();
    QVERIFY(events()->width() <= screen.width());
    const QFontMetrics metrics = table()->fontMetrics();
    QTRY_VERIFY(table()->columnWidth(4) > metrics.horizontalAdvance(name));
    QTRY_VERIFY(
        table()->columnWidth(1) > metrics.horizontalAdvance(QStringLiteral("10:00:00.050000")));
    int columns = 0;
    for (int column = 0; column < 6; ++column)
        columns += table()->columnWidth(column);
    QTRY_COMPARE(
        table()->horizontalScrollBar()->maximum() > 0, columns > table()->viewport()->width());
    QVERIFY(
        events()->width() >= screen.width() * 8 / 10 || columns <= table()->viewport()->width());
}

// Ia counts from -10 to 9 in each 20 ms, Ib twice that.
void TestSideWindows::measurementsStandBesideThePlots()
{
    QVERIFY(!measurements());
    showMeasurements(analog());
    QVERIFY(!measurements()->isModal());
    QCOMPARE(measured(),
        QStringList(
            {QStringLiteral("Ia, Value, A (primary)"), QStringLiteral("Ib, Value, A (primary)")}));
    QCOMPARE(measured(0), QStringList());
    analog()->addCursorAt(25);
    digital()->addCursorAt(50);
    QTRY_COMPARE(measured(0), QStringList({QStringLiteral("-5"), QStringLiteral("0")}));
    QCOMPARE(measured(1), QStringList({QStringLiteral("-10"), QStringLiteral("0")}));
    showMeasurements(digital());
    QTRY_COMPARE(measured(), QStringList({QStringLiteral("Trip, Value")}));
    QCOMPARE(measured(0), QStringList({QStringLiteral("0"), QStringLiteral("1")}));
    QCOMPARE(window->findChildren<MeasurementsDialog *>().size(), 1);
    window->removeCursors();
    QTRY_COMPARE(measured(0), QStringList());
}

void TestSideWindows::measurementsFollowADraggedCursor()
{
    analog()->addCursorAt(25);
    showMeasurements(analog());
    QCOMPARE(measured(0), QStringList({QStringLiteral("-5")}));
    const auto *label = analog()->findChild<CustomLabel *>(QStringLiteral("lineLabel"));
    const QPoint from = label->geometry().center();
    QTest::mousePress(analog(), Qt::LeftButton, {}, from);
    QStringList shown{measured(0)};
    for (int step = 1; step <= 5; ++step) {
        const QPoint to = from + QPoint(100 * step, 0);
        QMouseEvent move(QEvent::MouseMove, to, analog()->mapToGlobal(to), Qt::NoButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(analog(), &move);
        const int sample = qRound(analog()->cursors().at(0));
        QTRY_COMPARE(measured(0), QStringList(QString::number(sample % 20 - 10)));
        shown += measured(0);
    }
    QTest::mouseRelease(analog(), Qt::LeftButton, {}, from + QPoint(500, 0));
    QVERIFY(shown.removeDuplicates() < 4);
}

void TestSideWindows::measurementsFollowTheValueMode()
{
    analog()->addCursorAt(25);
    showMeasurements(analog());
    combo("comboBox_primSec")->setCurrentIndex(1);
    QTRY_COMPARE(measured(),
        QStringList({QStringLiteral("Ia, Value, A (secondary)"),
            QStringLiteral("Ib, Value, A (secondary)")}));
    QCOMPARE(measured(1), QStringList({QStringLiteral("-0.125")})); // of -10 at 400/5
    combo("comboBox_primSec")->setCurrentIndex(2);
    QTRY_COMPARE(measured(),
        QStringList({QStringLiteral("Ia, Value, p.u."), QStringLiteral("Ib, Value, p.u.")}));
    QCOMPARE(measured(1), QStringList({QStringLiteral("-0.025")}));
    combo("comboBox_primSec")->setCurrentIndex(0);
    QTRY_COMPARE(measured(1), QStringList({QStringLiteral("-10")}));
    QTest::mouseClick(list("listWidget")->viewport(), Qt::LeftButton, {},
        list("listWidget")->visualItemRect(list("listWidget")->item(0)).center());
    QTRY_COMPARE(measured(), QStringList({QStringLiteral("Ib, Value, A (primary)")}));
}

void TestSideWindows::measurementsFollowTheRecording()
{
    showMeasurements(analog());
    for (int time = 0; time < 2; ++time) {
        open({QStringLiteral("Ic")}, {}, "S");
        analog()->addCursorAt(12);
        QTRY_COMPARE(measured(), QStringList({QStringLiteral("Ic, Value, A (secondary)")}));
        QTRY_COMPARE(measured(0), QStringList({QStringLiteral("2")}));
    }
    measurements()->close();
    open({QStringLiteral("Id")}, {});
    QVERIFY(!measurements()->plotter()); // a window that is closed keeps nothing
    showMeasurements(analog());
    QCOMPARE(measured(), QStringList({QStringLiteral("Id, Value, A (primary)")}));
}

void TestSideWindows::measurementsAreGoneWithAFailedLoad()
{
    showMeasurements(analog());
    QVERIFY(writeTextFile(path("bad.cfg"), "x"));
    {
        const BoxReader boxes;
        window->open(path("bad.cfg"));
    }
    QTRY_COMPARE(measured(), QStringList());
    open({QStringLiteral("Ic")}, {});
    QTRY_COMPARE(measured().size(), 1);
}

void TestSideWindows::measurementsOfARemovedPlotAreThoseOfTheFirst()
{
    compose({QStringLiteral("Ib"), QStringLiteral("Ib_FFT")}, QStringLiteral("Mine"));
    showMeasurements(plot(QStringLiteral("Mine")));
    QCOMPARE(measured(),
        QStringList({QStringLiteral("Ib, Value, A (primary)"),
            QStringLiteral("Ib FFT, Value, A (primary)")}));
    QCOMPARE(measurements()->windowTitle(), QStringLiteral("Measurements: Mine"));
    window->removePlotter();
    QCOMPARE(measurements()->plotter(), analog());
    QTRY_COMPARE(measured(),
        QStringList(
            {QStringLiteral("Ia, Value, A (primary)"), QStringLiteral("Ib, Value, A (primary)")}));
}

void TestSideWindows::measurementsOpenFromAPhasorPanel()
{
    analog()->addCursorAt(50);
    trigger("&Show Vectors");
    auto *vectors = window->findChild<VectorDialog *>();
    QVERIFY(QTest::qWaitForWindowExposed(vectors));
    vectors->findChild<QToolButton *>(QStringLiteral("toolButton"), Qt::FindDirectChildrenOnly)
        ->click(); // a second panel
    for (VectorWidget *panel : vectors->findChildren<VectorWidget *>()) {
        QTRY_VERIFY(panel->isVisible());
        const QPoint diagram = panel->findChild<QLabel *>(QStringLiteral("labelVector"))
                                   ->mapTo(panel, QPoint(50, 50));
        QVERIFY(!offers(panel, QStringLiteral("Measurements..."), diagram)); // nothing is ticked
        QCheckBox *box = panel->findChildren<QCheckBox *>().at(1);
        box->setChecked(true);
        vectors->findChild<QComboBox *>(QStringLiteral("comboBox_reference"))->setCurrentIndex(1);
        QVERIFY(!contextMenuAt(panel, box->mapTo(panel, box->rect().center()))); // its colour
        QVERIFY(choose(panel, QStringLiteral("Measurements..."), diagram));
        QCOMPARE(measured(), QStringList({QStringLiteral("Ib, Value, A (primary)")}));
        QCOMPARE(measured(0), QStringList({QStringLiteral("0")}));
        const auto *reference
            = measurements()->findChild<QComboBox *>(QStringLiteral("comboBox_reference"));
        QCOMPARE(reference->currentText(), QStringLiteral("Ia"));
        measurements()->close();
    }
}

// From Show Vectors on, as someone without a mouse does.
void TestSideWindows::phasorsTakeAColorByTheKeys()
{
    trigger("&Show Vectors");
    auto *vectors = window->findChild<VectorDialog *>();
    vectors->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(vectors));
    QCheckBox *box = vectors->findChild<VectorWidget *>()->findChildren<QCheckBox *>().at(1);
    for (int tab = 0; tab < 10 && !box->hasFocus(); ++tab)
        QTest::keyClick(vectors->windowHandle(), Qt::Key_Tab);
    QVERIFY(box->hasFocus());
    for (int time = 0; time < 2; ++time) {
        QTest::keyClick(vectors->windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
        QWidget *menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            timer.stop();
            dialog->setCurrentColor(QColor(10, 20, time));
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        timer.start(10);
        QTest::keyClick(menu, Qt::Key_Up); // the last one
        QTest::keyPress(menu, Qt::Key_Return); // it is gone before a release
        QTRY_COMPARE(
            box->styleSheet(), QStringLiteral("QCheckBox{color: rgb(10,20,%1);}").arg(time));
        vectors->activateWindow(); // which is for a window manager to do
        QVERIFY(QTest::qWaitForWindowActive(vectors));
        QVERIFY(box->hasFocus());
    }
}

void TestSideWindows::measurementsAreSavedAndReported()
{
    showMeasurements(analog());
    BoxReader boxes;
    measurements()->saveTable(path("values.csv"));
    QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File saved."));
    QVERIFY(QFile::exists(path("values.csv")));
    QCOMPARE(boxes.count(), 0);
    measurements()->saveTable(path("none/values.csv"));
    QCOMPARE(boxes.count(), 1);
    QVERIFY(boxes.take().at(0).text.startsWith(QLatin1String("Cannot write file ")));
}

QTEST_MAIN(TestSideWindows)
#include "tst_sidewindows.moc"
