// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "eventsdialog.h"
#include "plotmenus.h"
#include "plotswindow.h"

#include <QTableView>

// The recording lasts from 0 to 99 ms, its whole view to 100; Trip changes at 50 ms, the trigger.
class TestSideWindows : public PlotsWindow {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init()
    {
        openWindow();
        open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {QStringLiteral("Trip")});
    }
    void cleanup() { closeWindow(); }

    void eventsStandBesideThePlots();
    void anEventComesIntoView();
    void theWholeViewStays();
    void aCursorStandsAtTheVeryTime();
    void eventsFollowTheRecording();
    void eventsAreGoneWithAFailedLoad();
    void eventsThatWereClosedKeepNothing();

private:
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

QTEST_MAIN(TestSideWindows)
#include "tst_sidewindows.moc"
