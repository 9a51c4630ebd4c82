// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "digitalruns.h"

#include <QtTest>

#include <algorithm>

class TestDigitalRuns : public QObject {
    Q_OBJECT

private slots:
    void stretches_data();
    void stretches();
    void runOf();
};

void TestDigitalRuns::stretches_data()
{
    QTest::addColumn<QVector<int>>("states");
    QTest::addColumn<QVector<int>>("starts");
    QTest::addColumn<QVector<int>>("ends");
    QTest::addColumn<QVector<int>>("on");
    using Numbers = QVector<int>;
    QTest::newRow("none") << Numbers{} << Numbers{} << Numbers{} << Numbers{};
    QTest::newRow("one sample") << Numbers{1} << Numbers{0} << Numbers{0} << Numbers{1};
    QTest::newRow("never changes") << Numbers{0, 0, 0} << Numbers{0} << Numbers{2} << Numbers{0};
    QTest::newRow("rises and falls")
        << Numbers{0, 0, 1, 1, 0} << Numbers{0, 2, 4} << Numbers{2, 4, 4} << Numbers{0, 1, 0};
    QTest::newRow("starts on") << Numbers{1, 0} << Numbers{0, 1} << Numbers{1, 1} << Numbers{1, 0};
    QTest::newRow("any state but 0 is on")
        << Numbers{0, 2, -1, 1} << Numbers{0, 1} << Numbers{1, 3} << Numbers{0, 1};
    // Of 600 samples, with a state of their own from 255, 256, 512 and 599 on.
    Numbers many(600);
    std::fill(many.begin() + 255, many.begin() + 256, 1);
    std::fill(many.begin() + 512, many.end() - 1, 1);
    QTest::newRow("many") << many << Numbers{0, 255, 256, 512, 599}
                          << Numbers{255, 256, 512, 599, 599} << Numbers{0, 1, 0, 1, 0};
    Numbers late(600, 1);
    late[511] = 0;
    QTest::newRow("many that start on")
        << late << Numbers{0, 511, 512} << Numbers{511, 512, 599} << Numbers{1, 0, 1};
    QTest::newRow("many that never change")
        << Numbers(512, -1) << Numbers{0} << Numbers{511} << Numbers{1};
}

void TestDigitalRuns::stretches()
{
    QFETCH(QVector<int>, states);
    const DigitalRuns runs(states);
    QVector<int> starts;
    QVector<int> ends;
    QVector<int> on;
    for (int run = 0; run < runs.count(); ++run) {
        starts.append(runs.start(run));
        ends.append(runs.end(run));
        on.append(runs.isOn(run) ? 1 : 0);
    }
    QTEST(starts, "starts");
    QTEST(ends, "ends");
    QTEST(on, "on");
}

void TestDigitalRuns::runOf()
{
    const DigitalRuns runs({0, 0, 1, 1, 0});
    QCOMPARE(runs.runOf(0), 0);
    QCOMPARE(runs.runOf(1), 0);
    QCOMPARE(runs.runOf(2), 1);
    QCOMPARE(runs.runOf(4), 2);
    QCOMPARE(runs.runOf(99), 2);
    QCOMPARE(DigitalRuns().runOf(0), 0);
}

QTEST_APPLESS_MAIN(TestDigitalRuns)
#include "tst_digitalruns.moc"
