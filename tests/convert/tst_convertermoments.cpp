// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "moment.h"

#include <QtTest>

using convert::DateOrder;

Q_DECLARE_METATYPE(DateOrder)

// Dates and times of day, as they are written in configurations.
class TestConverterMoments : public QObject {
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void noMoments_data();
    void noMoments();
    void laterMoments_data();
    void laterMoments();
};

void TestConverterMoments::texts_data()
{
    QTest::addColumn<DateOrder>("order");
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char *name, DateOrder order, const char *date, const char *time,
                         const char *text) {
        QTest::newRow(name) << order << QByteArray(date) << QByteArray(time) << QByteArray(text);
    };
    const DateOrder day = DateOrder::DayFirst;
    const DateOrder month = DateOrder::MonthFirst;
    row("as it is", day, "31/12/2024", "23:59:59.123456", "31/12/2024,23:59:59.123456");
    row("without decimals", day, "01/02/2024", "00:00:00", "01/02/2024,00:00:00.000000");
    row("one decimal", day, "01/02/2024", "00:00:00.5", "01/02/2024,00:00:00.500000");
    row("milliseconds", day, "01/02/2024", "10:20:30.400", "01/02/2024,10:20:30.400000");
    row("nanoseconds", day, "01/02/2024", "10:20:30.123456789", "01/02/2024,10:20:30.123456");
    row("nanoseconds before a second", day, "01/02/2024", "10:20:30.999999999",
        "01/02/2024,10:20:30.999999");
    row("nanoseconds that say nothing", day, "01/02/2024", "10:20:30.123456000",
        "01/02/2024,10:20:30.123456");
    row("single digits", day, "1/2/2024", "9:8:7.0", "01/02/2024,09:08:07.000000");
    row("blanks around", day, " 01/02/2024 ", " 10:20:30 ", "01/02/2024,10:20:30.000000");
    row("leap day", day, "29/02/2024", "00:00:00", "29/02/2024,00:00:00.000000");
    row("leap second", day, "31/12/2016", "23:59:60.25", "01/01/2017,00:00:00.250000");
    row("month first", month, "02/01/1995", "10:20:30", "01/02/1995,10:20:30.000000");
    row("year 70 of two digits", month, "02/01/70", "10:20:30", "01/02/1970,10:20:30.000000");
    row("year 99 of two digits", month, "02/01/99", "10:20:30", "01/02/1999,10:20:30.000000");
    row("year 69 of two digits", month, "02/01/69", "10:20:30", "01/02/2069,10:20:30.000000");
    row("year 0 of two digits", month, "02/01/00", "10:20:30", "01/02/2000,10:20:30.000000");
}

void TestConverterMoments::texts()
{
    QFETCH(DateOrder, order);
    QFETCH(QByteArray, date);
    QFETCH(QByteArray, time);
    QFETCH(QByteArray, text);
    const auto moment = convert::toMoment(date.constData(), time.constData(), order);
    QVERIFY(moment.has_value());
    QCOMPARE(QByteArray::fromStdString(moment->text()), text);
}

void TestConverterMoments::noMoments_data()
{
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<QByteArray>("time");
    const QByteArray date = "01/02/2024";
    const QByteArray time = "10:20:30";
    const auto row = [](const char *name, const QByteArray &day, const QByteArray &clock) {
        QTest::newRow(name) << day << clock;
    };
    row("empty", "", "");
    row("no date", "", time);
    row("month 13", "01/13/2024", time);
    row("leap day of no leap year", "29/02/2023", time);
    row("year of two digits", "01/02/24", time);
    row("year of three digits", "01/02/024", time);
    row("year of five digits", "01/02/20240", time);
    row("hyphens", "01-02-2024", time);
    row("letters behind the date", "01/02/2024x", time);
    row("negative day", "-1/02/2024", time);
    row("no time", date, "");
    row("no seconds", date, "10:20");
    row("hour 24", date, "24:00:00");
    row("minute 60", date, "10:60:00");
    row("second 61", date, "10:20:61");
    row("comma of decimals", date, "10:20:30,5");
    row("point without decimals", date, "10:20:30.");
    row("ten decimals", date, "10:20:30.1234567890");
    row("three digits", date, "010:20:30");
    row("letters behind the time", date, "10:20:30.5s");
}

void TestConverterMoments::noMoments()
{
    QFETCH(QByteArray, date);
    QFETCH(QByteArray, time);
    QVERIFY(!convert::toMoment(date.constData(), time.constData(), DateOrder::DayFirst));
}

void TestConverterMoments::laterMoments_data()
{
    QTest::addColumn<qint64>("nanoseconds");
    QTest::addColumn<QByteArray>("text"); // from 28 February 2023, 23:59:59.5 on
    constexpr qint64 second = 1000000000;
    QTest::newRow("the same") << qint64(0) << QByteArray("28/02/2023,23:59:59.500000");
    QTest::newRow("before midnight") << second / 2 - 1 << QByteArray("28/02/2023,23:59:59.999999");
    QTest::newRow("midnight") << second / 2 << QByteArray("01/03/2023,00:00:00.000000");
    QTest::newRow("a day later") << 86400 * second << QByteArray("01/03/2023,23:59:59.500000");
    QTest::newRow("a little earlier") << -second << QByteArray("28/02/2023,23:59:58.500000");
    QTest::newRow("a day earlier") << -86400 * second << QByteArray("27/02/2023,23:59:59.500000");
    QTest::newRow("midnight before")
        << -86399 * second - second / 2 << QByteArray("28/02/2023,00:00:00.000000");
    QTest::newRow("just before that")
        << -86400 * second + second / 2 - 1 << QByteArray("27/02/2023,23:59:59.999999");
}

void TestConverterMoments::laterMoments()
{
    QFETCH(qint64, nanoseconds);
    QFETCH(QByteArray, text);
    const auto moment = convert::toMoment("28/02/2023", "23:59:59.5", DateOrder::DayFirst);
    QVERIFY(moment.has_value());
    QCOMPARE(QByteArray::fromStdString(moment->plus(nanoseconds).text()), text);
}

QTEST_GUILESS_MAIN(TestConverterMoments)
#include "tst_convertermoments.moc"
