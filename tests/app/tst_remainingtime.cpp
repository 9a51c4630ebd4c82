// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remainingtime.h"

#include <QtTest>

#include <utility>

using Moments = QVector<std::pair<qint64, double>>; // ms, part that is done

Q_DECLARE_METATYPE(Moments)

class TestRemainingTime : public QObject {
    Q_OBJECT

private slots:
    void saysSeconds_data();
    void saysSeconds();
};

void TestRemainingTime::saysSeconds_data()
{
    QTest::addColumn<Moments>("moments");
    QTest::addColumn<QVector<int>>("seconds"); // said after each
    const auto row = [](const char *name, const Moments &moments, const QVector<int> &seconds) {
        QTest::newRow(name) << moments << seconds;
    };
    row("before anything is known", {}, {});
    row("nothing in the first second", {{0, 0.9}, {999, 0.5}, {1000, 0.5}}, {0, 0, 1});
    row("nothing of a small part", {{2000, 0}, {2000, 0.04}, {2000, 0.05}}, {0, 0, 40});
    row("of a smaller part after a while", {{4999, 0.01}, {5000, 0.009}, {5000, 0.01}},
        {0, 0, 540});
    row("nothing while nothing is done", {{100000, 0}}, {0});
    row("one by one up to ten, rounded up", {{3000, 0.25}}, {9});
    row("ten", {{10000, 0.5}}, {10});
    row("in fives from ten", {{10500, 0.5}}, {15});
    row("in fives up to sixty", {{20000, 0.25}}, {60});
    row("in minutes from sixty", {{20400, 0.25}}, {120});
    row("hours", {{7200000, 0.5}}, {7200});
    row("beyond all measure", {{qint64(1) << 53, 0.05}}, {359940});
    row("at least a second to the end", {{10000, 0.99}, {10000, 1}}, {1, 1});
    row("down as the work goes on", {{4000, 0.5}, {5000, 0.625}, {6000, 0.75}, {7000, 0.875}},
        {4, 3, 2, 1});
    row("at once down where the work goes faster", {{10000, 0.25}, {11000, 0.5}}, {30, 15});
    row("not up where the work goes a little slower",
        {{10000, 0.5}, {12000, 0.5}, {15000, 0.5}, {12000, 0.625}}, {10, 10, 10, 8});
    row("up where it goes far slower", {{10000, 0.5}, {15001, 0.5}}, {10, 20});
    row("not to and fro", {{20000, 0.5}, {21000, 0.5}, {20000, 0.5}, {21000, 0.5}},
        {20, 20, 20, 20});
}

void TestRemainingTime::saysSeconds()
{
    QFETCH(Moments, moments);
    QFETCH(QVector<int>, seconds);
    RemainingTime time;
    QCOMPARE(time.seconds(), 0);
    QVector<int> said;
    for (const auto &[elapsed, done] : qAsConst(moments)) {
        time.update(elapsed, done);
        said.append(time.seconds());
    }
    QCOMPARE(said, seconds);
}

QTEST_GUILESS_MAIN(TestRemainingTime)
#include "tst_remainingtime.moc"
