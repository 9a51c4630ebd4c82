// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timeofday.h"

#include <QtTest>

#include <limits>

class TestTimeOfDay : public QObject {
    Q_OBJECT

private slots:
    void writesClockTimes_data();
    void writesClockTimes();
    void writesMilliseconds_data();
    void writesMilliseconds();
};

void TestTimeOfDay::writesClockTimes_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<double>("ms");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *start, double ms, const char *text) {
        QTest::newRow(name) << QString::fromLatin1(start) << ms << QString::fromLatin1(text);
    };
    row("the start", "10:00:00.020", 0, "10:00:00.020000");
    row("half a millisecond", "10:00:00.020", 20.5, "10:00:00.040500");
    row("a third of one", "10:00:00.000", 1.0 / 3, "10:00:00.000333");
    row("rounded up into the next millisecond", "10:00:00.000", 0.9999996, "10:00:00.001000");
    row("an hour and a minute", "22:58:59.999", 3660000, "23:59:59.999000");
    row("across midnight", "23:59:59.990", 20, "00:00:00.010000");
    row("two midnights", "12:00:00.000", 2 * 86400000.0, "12:00:00.000000");
    row("before the start", "00:00:00.010", -20, "23:59:59.990000");
    row("blanks around the start", " 10:00:00.020 ", 0, "10:00:00.020000");
    row("no start", "", 0, "");
    row("no time of day", "25:00:00.000", 0, "");
    row("not a number", "10:00:00.020", std::numeric_limits<double>::quiet_NaN(), "");
    row("infinity", "10:00:00.020", std::numeric_limits<double>::infinity(), "");
    row("ages", "10:00:00.020", 1e300, "");
}

void TestTimeOfDay::writesClockTimes()
{
    QFETCH(QString, start);
    QFETCH(double, ms);
    QTEST(clockText(start, ms), "text");
}

void TestTimeOfDay::writesMilliseconds_data()
{
    QTest::addColumn<double>("ms");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << "0.000";
    QTest::newRow("a microsecond") << 0.001 << "0.001";
    QTest::newRow("negative") << -17.75 << "-17.750";
    QTest::newRow("next to nothing before") << -0.0004 << "0.000";
    QTest::newRow("rounded to a microsecond before") << -0.0006 << "-0.001";
    QTest::newRow("negative zero") << -0.0 << "0.000";
    QTest::newRow("a day") << 86400000.0 << "86400000.000";
    QTest::newRow("ages") << 1.25e300 << "1.25e+300";
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << "";
    QTest::newRow("infinity") << -std::numeric_limits<double>::infinity() << "";
}

void TestTimeOfDay::writesMilliseconds()
{
    QFETCH(double, ms);
    QTEST(millisecondsText(ms), "text");
}

QTEST_GUILESS_MAIN(TestTimeOfDay)
#include "tst_timeofday.moc"
