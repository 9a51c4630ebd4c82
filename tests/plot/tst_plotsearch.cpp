// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotsearch.h"

#include "analogsource.h"
#include "plotpair.h"

#include <QLabel>
#include <QtTest>

class TestPlotSearch : public QObject {
    Q_OBJECT

private slots:
    void init() { pair = std::make_unique<PlotPair>(); }
    void cleanup() { pair.reset(); }

    void rowsByHeight_data();
    void rowsByHeight();
    void tracesAreWhereTheirTimesStand();
    void samplesBesideATime_data();
    void samplesBesideATime();
    void samplesAround();
    void changes_data();
    void changes();
    void theNearestTrace_data();
    void theNearestTrace();
    void extremesInView();
    void extremesOfAChannelThatIsNoNumber();
    void rowsOfADigitalPlot();

    void stepsOfACursor();
    void stepsStopAtTheEnds();
    void aStepOutOfViewTakesTheViewsAlong();
    void arrowsStepTheLabelThatHasTheKeys();
    void theTabKeyReachesTheLabels();
    void thePlotTakesTheKeysOfALabelThatGoes_data();
    void thePlotTakesTheKeysOfALabelThatGoes();

private:
    std::unique_ptr<PlotPair> pair;
};

// Three rows of 50 pixels from y = 85 on, around base lines at 110, 160 and 210.
void TestPlotSearch::rowsByHeight_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("row");
    QTest::newRow("above") << 84 << -1;
    QTest::newRow("first") << 85 << 0;
    QTest::newRow("first, at its line") << 110 << 0;
    QTest::newRow("first, below") << 134 << 0;
    QTest::newRow("second") << 135 << 1;
    QTest::newRow("third") << 234 << 2;
    QTest::newRow("below") << 235 << -1;
    QTest::newRow("far above") << -1000000 << -1;
}

void TestPlotSearch::rowsByHeight()
{
    QFETCH(int, y);
    const PlotGeometry geometry({803, 301}, 0, pair->plot->view());
    QCOMPARE(geometry.rowY(0, 3), 110);
    QCOMPARE(geometry.rowY(2, 3), 210);
    QTEST(geometry.rowAt(y, 3), "row");
    QCOMPARE(geometry.rowAt(y, 0), -1);
    QCOMPARE(PlotGeometry({803, 90}, 0, pair->plot->view()).rowAt(y, 3), -1);
}

void TestPlotSearch::tracesAreWhereTheirTimesStand()
{
    const PlotGeometry geometry = pair->plot->geometryOfView();
    QCOMPARE(geometry.traceTime(100), 0.0);
    QCOMPARE(geometry.traceTime(803), 1000.0);
    QCOMPARE(geometry.traceTime(geometry.traceX(123.4)), 123.4);
}

// Not a number where there is none.
void TestPlotSearch::samplesBesideATime_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<double>("before");
    QTest::addColumn<double>("after");
    QTest::newRow("at a sample") << 2.0 << 1.5 << 3.0;
    QTest::newRow("between") << 1.7 << 1.5 << 2.0;
    QTest::newRow("at the first") << 0.0 << qQNaN() << 1.0;
    QTest::newRow("at the last") << 3.0 << 2.0 << qQNaN();
    QTest::newRow("beyond") << 9.0 << 3.0 << qQNaN();
}

void TestPlotSearch::samplesBesideATime()
{
    QFETCH(double, time);
    for (const QVector<double> &times :
        {QVector<double>{0, 1, 1.5, 2, 3}, QVector<double>{1, 2, 0, qQNaN(), 1.5, 3, 2, 2}}) {
        const TimeAxis axis(times);
        QTEST(axis.timeBefore(time).value_or(qQNaN()), "before");
        QTEST(axis.timeAfter(time).value_or(qQNaN()), "after");
    }
    QVERIFY(!TimeAxis().timeAfter(time));
    QVERIFY(!TimeAxis().timeBefore(time));
}

void TestPlotSearch::samplesAround()
{
    QVector<double> times;
    for (int run = 0; run < 2; ++run) {
        for (int i = 0; i < 50; ++i)
            times.append(i);
    }
    const QVector<TimeAxis::Run> parts = TimeAxis(times).around(10.5, 12);
    QCOMPARE(parts.size(), 2);
    QCOMPARE(parts.first().first, 10);
    QCOMPARE(parts.first().last, 13);
    QCOMPARE(parts.last().first, 60);
    QCOMPARE(parts.last().last, 63);
    QCOMPARE(TimeAxis(times).around(-5, 100).last().last, 100);
}

// One channel is 1 from 200 to 400 ms, the other from 300 ms on.
void TestPlotSearch::changes_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<double>("before");
    QTest::addColumn<double>("after");
    QTest::newRow("before all") << 100.0 << qQNaN() << 200.0;
    QTest::newRow("at a change") << 300.0 << 200.0 << 400.0;
    QTest::newRow("between two channels") << 250.5 << 200.0 << 300.0;
    QTest::newRow("after all") << 500.0 << 400.0 << qQNaN();
}

void TestPlotSearch::changes()
{
    QFETCH(double, time);
    QVector<int> first(1001, 0);
    QVector<int> second(1001, 0);
    std::fill(first.begin() + 200, first.begin() + 400, 1);
    std::fill(second.begin() + 300, second.end(), 1);
    const TimeAxis &axis = pair->plot->sampleTimes();
    for (const QVector<DigitalRuns> &channels :
        {QVector<DigitalRuns>{DigitalRuns(first), DigitalRuns(second)},
            QVector<DigitalRuns>{DigitalRuns(second), DigitalRuns(), DigitalRuns(first)}}) {
        QTEST(changeBefore(time, channels, axis).value_or(qQNaN()), "before");
        QTEST(changeAfter(time, channels, axis).value_or(qQNaN()), "after");
    }
    QVERIFY(!changeAfter(time, {DigitalRuns(QVector<int>(1001, 1))}, axis));
    QVERIFY(!changeAfter(time, {}, axis));
}

// One channel stays at 5, one at -8. The values from 12 to -12 stand from y = 60 to 260, so 5
// stands at 118 and -8 at 227.
void TestPlotSearch::theNearestTrace_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("channel");
    QTest::newRow("on one") << QPoint(300, 118) << 2;
    QTest::newRow("a little below one") << QPoint(300, 122) << 2;
    QTest::newRow("on the other") << QPoint(300, 227) << 3;
    QTest::newRow("nearer to the other") << QPoint(300, 180) << 3;
    QTest::newRow("nearer to the one") << QPoint(300, 165) << 2;
    QTest::newRow("left of all samples") << QPoint(90, 118) << -1;
}

void TestPlotSearch::theNearestTrace()
{
    QFETCH(QPoint, point);
    pair->host.addAnalog(QStringLiteral("five"), QVector<float>(1001, 5));
    pair->host.addAnalog(QStringLiteral("minus eight"), QVector<float>(1001, -8));
    pair->plot->showChannels({2, 3});
    pair->plot->setupPlot();
    pair->plot->changeView([](PlotView &view) {
        view.rescale({-10, 10});
        return true;
    });
    QTEST(traceAt(*pair->plot, AnalogSource(&pair->host), point), "channel");
}

// The swing is -10 at 0, 21, 42 ms and 10 at 20, 41, 62 ms.
void TestPlotSearch::extremesInView()
{
    const AnalogSource source(&pair->host);
    Plotter &plot = *pair->plot;
    QCOMPARE(timeOfExtreme(plot, source, 0, true).value(), 20.0);
    QCOMPARE(timeOfExtreme(plot, source, 0, false).value(), 0.0);
    plot.changeView([](PlotView &view) { return view.showTimes(20.5, 50); });
    QCOMPARE(timeOfExtreme(plot, source, 0, true).value(), 41.0);
    QCOMPARE(timeOfExtreme(plot, source, 0, false).value(), 21.0);
    plot.changeView([](PlotView &view) { return view.showTimes(22, 30); });
    QCOMPARE(timeOfExtreme(plot, source, 0, true).value(), 30.0);
    QCOMPARE(timeOfExtreme(plot, source, 0, false).value(), 22.0);
    plot.changeView([](PlotView &view) { return view.showTimes(22.25, 22.75); });
    QVERIFY(!timeOfExtreme(plot, source, 0, true));
    pair->host.source->analogChannels.first()->toPrimary = -1; // turned over
    plot.changeView([](PlotView &view) { return view.showTimes(22, 30); });
    QCOMPARE(timeOfExtreme(plot, source, 0, true).value(), 22.0);
}

void TestPlotSearch::extremesOfAChannelThatIsNoNumber()
{
    pair->host.addAnalog(QStringLiteral("none"), QVector<float>(1001, float(qQNaN())));
    pair->plot->showChannels({2});
    pair->plot->setupPlot();
    const AnalogSource source(&pair->host);
    QVERIFY(!timeOfExtreme(*pair->plot, source, 2, true));
    QCOMPARE(traceAt(*pair->plot, source, {300, 160}), -1);
}

void TestPlotSearch::rowsOfADigitalPlot()
{
    QCOMPARE(rowAt(*pair->digital, {300, 160}), 0);
    QCOMPARE(rowAt(*pair->digital, {300, 20}), -1);
    pair->host.addDigital(QStringLiteral("a"), {});
    pair->host.addDigital(QStringLiteral("b"), {});
    pair->digital->showChannels({2, 1});
    QCOMPARE(rowAt(*pair->digital, {300, 127}), 1); // in the order of the numbers
    QCOMPARE(rowAt(*pair->digital, {300, 193}), 2);
}

void TestPlotSearch::stepsOfACursor()
{
    pair->plot->addCursorAt(300.25);
    pair->plot->addCursorAt(500);
    stepCursor(*pair->digital, 0, true);
    for (const Plotter *plot : QList<Plotter *>{pair->plot, pair->other, pair->digital})
        QCOMPARE(plot->cursors(), QList<double>({301, 500}));
    stepCursor(*pair->plot, 0, false);
    stepCursor(*pair->plot, 1, false);
    for (const Plotter *plot : QList<Plotter *>{pair->plot, pair->other, pair->digital})
        QCOMPARE(plot->cursors(), QList<double>({300, 499}));
}

void TestPlotSearch::stepsStopAtTheEnds()
{
    pair->plot->addCursorAt(0);
    pair->plot->addCursorAt(1000);
    stepCursor(*pair->plot, 0, false);
    stepCursor(*pair->plot, 1, true);
    QCOMPARE(pair->plot->cursors(), QList<double>({0, 1000}));
}

void TestPlotSearch::aStepOutOfViewTakesTheViewsAlong()
{
    pair->plot->changeView([](PlotView &view) { return view.showTimes(200, 300); });
    pair->plot->addCursorAt(300);
    stepCursor(*pair->plot, 0, true);
    for (const Plotter *plot : QList<Plotter *>{pair->plot, pair->other, pair->digital}) {
        QCOMPARE(plot->view().minX, 251.0);
        QCOMPARE(plot->view().maxX, 351.0);
        QCOMPARE(plot->cursors(), QList<double>{301});
    }
}

void TestPlotSearch::arrowsStepTheLabelThatHasTheKeys()
{
    pair->plot->addCursorAt(300);
    pair->plot->addCursorAt(500);
    const int position = pair->host.bar->value();
    CustomLabel *label = PlotPair::lineLabels(pair->plot).at(1);
    label->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(label->hasFocus());
    QTest::keyClick(label, Qt::Key_Right);
    QTest::keyClick(label, Qt::Key_Right);
    QTest::keyClick(label, Qt::Key_Left);
    QTest::keyClick(pair->plot, Qt::Key_Right); // to which the keys go while the mouse is over it
    QCOMPARE(pair->other->cursors(), QList<double>({300, 502}));
    for (Plotter *plot : {pair->other, static_cast<Plotter *>(pair->digital)}) // or over these
        QTest::keyClick(plot, Qt::Key_Left);
    QCOMPARE(pair->plot->cursors(), QList<double>({300, 500}));
    QTest::keyClick(pair->other, Qt::Key_Right);
    QTest::keyClick(pair->digital, Qt::Key_Right);
    QCOMPARE(pair->digital->cursors(), QList<double>({300, 502}));
    QCOMPARE(pair->host.bar->value(), position);
    pair->plot->setFocus();
    pair->host.bar->setRange(0, 9);
    QTest::keyClick(pair->plot, Qt::Key_Right);
    QCOMPARE(pair->host.bar->value(), position + 1);
    QCOMPARE(pair->other->cursors(), QList<double>({300, 502}));
}

void TestPlotSearch::theTabKeyReachesTheLabels()
{
    pair->plot->addCursorAt(300);
    pair->plot->addCursorAt(500);
    pair->plot->setFocus();
    QTRY_VERIFY(pair->plot->hasFocus());
    const QList<CustomLabel *> labels = PlotPair::lineLabels(pair->plot);
    QTest::keyClick(pair->plot, Qt::Key_Tab);
    QVERIFY(labels.at(0)->hasFocus());
    QTest::keyClick(labels.at(0), Qt::Key_Tab);
    QVERIFY(labels.at(1)->hasFocus());
    QTest::keyClick(labels.at(1), Qt::Key_Tab);
    QVERIFY(pair->other->hasFocus());
}

void TestPlotSearch::thePlotTakesTheKeysOfALabelThatGoes_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("out of view") << 0;
    QTest::newRow("cleared") << 1;
}

void TestPlotSearch::thePlotTakesTheKeysOfALabelThatGoes()
{
    QFETCH(int, way);
    for (int twice = 0; twice < 2; ++twice) {
        pair->plot->clearCursors();
        pair->plot->addCursorAt(300);
        CustomLabel *label = PlotPair::lineLabels(pair->plot).first();
        label->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(label->hasFocus());
        if (way == 0)
            pair->plot->changeView(
                [=](PlotView &view) { return view.showTimes(400, 500 + twice); });
        else
            pair->plot->clearCursors();
        QVERIFY(pair->plot->hasFocus());
        pair->plot->changeView([](PlotView &view) { return view.showAllTimes(); });
    }
}

QTEST_MAIN(TestPlotSearch)
#include "tst_plotsearch.moc"
