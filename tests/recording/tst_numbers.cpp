// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "numbers.h"

#include "oddfields.h"

#include <QtTest>

#include <array>
#include <limits>

namespace {

const double infinite = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

class TestNumbers : public QObject {
    Q_OBJECT

private slots:
    void aFieldReadsAsADouble_data();
    void aFieldReadsAsADouble();
    void aFieldReadsAsAFloat_data();
    void aFieldReadsAsAFloat();
    void aFieldReadsAsAnInteger_data();
    void aFieldReadsAsAnInteger();
    void anyFieldReadsAsTheToolkitReadsIt_data();
    void anyFieldReadsAsTheToolkitReadsIt();
    void doublesNarrowToFloats_data();
    void doublesNarrowToFloats();
    void doublesRoundToIntegers_data();
    void doublesRoundToIntegers();
    void doublesTruncateToWideIntegers_data();
    void doublesTruncateToWideIntegers();
    void aNumberIsWritten_data();
    void aNumberIsWritten();
    void briefTexts_data();
    void briefTexts();
    void wideIntegersAreWritten();
};

void TestNumbers::aFieldReadsAsADouble_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<double>("expected");

    QTest::newRow("an empty field is 0") << QByteArray("") << 0.0;
    QTest::newRow("a whole number") << QByteArray("1500") << 1500.0;
    QTest::newRow("a sign before") << QByteArray("-77500") << -77500.0;
    QTest::newRow("a plus sign before") << QByteArray("+000025") << 25.0;
    QTest::newRow("a decimal") << QByteArray("0.1") << 0.1;
    QTest::newRow("decimals after many digits")
        << QByteArray("123456789.123456") << 123456789.123456;
    QTest::newRow("no digit before the point") << QByteArray(".5") << 0.5;
    QTest::newRow("no digit after the point") << QByteArray("5.") << 5.0;
    QTest::newRow("an exponent") << QByteArray("1.5e3") << 1500.0;
    QTest::newRow("minus zero keeps its sign") << QByteArray("-0") << -0.0;
    QTest::newRow("blanks around it") << QByteArray("  12 ") << 12.0;
    QTest::newRow("a carriage return after it") << QByteArray("12\r") << 12.0;
    QTest::newRow("a blank inside is no number") << QByteArray("1 2") << 0.0;
    QTest::newRow("two signs are no number") << QByteArray("--5") << 0.0;
    QTest::newRow("two points are no number") << QByteArray("1.2.3") << 0.0;
    QTest::newRow("hexadecimal is no number") << QByteArray("0x10") << 0.0;
    QTest::newRow("a word is no number") << QByteArray("n/a") << 0.0;
    QTest::newRow("more digits than a double holds")
        << QByteArray("12345678901234567890") << 12345678901234567890.0;
    QTest::newRow("infinity") << QByteArray("inf") << infinite;
    QTest::newRow("infinity below") << QByteArray("-inf") << -infinite;
    QTest::newRow("not a number") << QByteArray("nan") << notANumber;
    QTest::newRow("overflow is infinite, as the toolkit has it") << QByteArray("1e400") << infinite;
    QTest::newRow("underflow is 0") << QByteArray("1e-400") << 0.0;
}

void TestNumbers::aFieldReadsAsADouble()
{
    QFETCH(QByteArray, field);
    QFETCH(double, expected);
    const double actual = fieldToDouble(field.cbegin(), field.cend());
    QVERIFY2(sameBits(actual, expected), qPrintable(QString::number(actual, 'g', 17)));
}

void TestNumbers::aFieldReadsAsAFloat_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<float>("expected");

    const float infiniteFloat = std::numeric_limits<float>::infinity();
    QTest::newRow("an empty field is 0") << QByteArray("") << 0.0F;
    QTest::newRow("a whole number") << QByteArray("-32767") << -32767.0F;
    QTest::newRow("a decimal") << QByteArray("0.1") << 0.1F;
    QTest::newRow("the first whole number a float cannot hold")
        << QByteArray("16777217") << 16777216.0F;
    QTest::newRow("the next one it can hold") << QByteArray("16777218") << 16777218.0F;
    QTest::newRow("the marker of a missing value") << QByteArray("99999") << 99999.0F;
    QTest::newRow("the largest float")
        << QByteArray("3.4028234e38") << std::numeric_limits<float>::max();
    QTest::newRow("overflow is infinite, as the toolkit has it")
        << QByteArray("1e39") << infiniteFloat;
    QTest::newRow("overflow below") << QByteArray("-1e39") << -infiniteFloat;
    QTest::newRow("a word is no number") << QByteArray("abc") << 0.0F;
}

void TestNumbers::aFieldReadsAsAFloat()
{
    QFETCH(QByteArray, field);
    QFETCH(float, expected);
    const float actual = fieldToFloat(field.cbegin(), field.cend());
    QVERIFY2(sameBits(actual, expected),
        qPrintable(QString::number(static_cast<double>(actual), 'g', 9)));
}

void TestNumbers::aFieldReadsAsAnInteger_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<int>("expected");

    QTest::newRow("an empty field is 0") << QByteArray("") << 0;
    QTest::newRow("a digit") << QByteArray("1") << 1;
    QTest::newRow("a number") << QByteArray("-42") << -42;
    QTest::newRow("a plus sign") << QByteArray("+1") << 1;
    QTest::newRow("blanks around it") << QByteArray(" 1 ") << 1;
    QTest::newRow("a carriage return after it") << QByteArray("1\r") << 1;
    QTest::newRow("leading zeros are decimal") << QByteArray("010") << 10;
    QTest::newRow("a decimal point is no integer") << QByteArray("1.0") << 0;
    QTest::newRow("an exponent is no integer") << QByteArray("1e3") << 0;
    QTest::newRow("the largest one") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("one more does not convert") << QByteArray("2147483648") << 0;
    QTest::newRow("the smallest one")
        << QByteArray("-2147483648") << std::numeric_limits<int>::min();
}

void TestNumbers::aFieldReadsAsAnInteger()
{
    QFETCH(QByteArray, field);
    QFETCH(int, expected);
    QCOMPARE(fieldToInt(field.cbegin(), field.cend()), expected);
}

void TestNumbers::anyFieldReadsAsTheToolkitReadsIt_data()
{
    QTest::addColumn<bool>("plain");
    QTest::newRow("generated plain decimals") << true;
    QTest::newRow("generated odd fields") << false;
}

void TestNumbers::anyFieldReadsAsTheToolkitReadsIt()
{
    QFETCH(bool, plain);
    std::mt19937 random(20240315);
    for (int i = 0; i < 200000; ++i) {
        const QByteArray field = plain ? plainField(random) : oddField(random);
        const QString text = QString::fromLatin1(field);
        QVERIFY2(sameBits(fieldToDouble(field.cbegin(), field.cend()), text.toDouble()),
            field.constData());
        QVERIFY2(sameBits(fieldToFloat(field.cbegin(), field.cend()), text.toFloat()),
            field.constData());
        QVERIFY2(fieldToInt(field.cbegin(), field.cend()) == text.toInt(), field.constData());
    }
}

void TestNumbers::doublesNarrowToFloats_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<float>("expected");

    const float infiniteFloat = std::numeric_limits<float>::infinity();
    QTest::newRow("the nearest float") << 0.1 << 0.1F;
    QTest::newRow("the largest float") << static_cast<double>(std::numeric_limits<float>::max())
                                       << std::numeric_limits<float>::max();
    QTest::newRow("nearer to the largest float than to the next power of 2")
        << 3.4028235e38 << std::numeric_limits<float>::max();
    QTest::newRow("the same below 0") << -3.4028235e38 << -std::numeric_limits<float>::max();
    QTest::newRow("the last that is") << 0x1.fffffefffffffp127 << std::numeric_limits<float>::max();
    QTest::newRow("the first that is not") << 0x1.ffffffp127 << infiniteFloat;
    QTest::newRow("too large") << 1e39 << infiniteFloat;
    QTest::newRow("too large below 0") << -1e39 << -infiniteFloat;
    QTest::newRow("infinite") << infinite << infiniteFloat;
    QTest::newRow("not a number") << notANumber << std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("too small") << 1e-60 << 0.0F;
}

void TestNumbers::doublesNarrowToFloats()
{
    QFETCH(double, value);
    QFETCH(float, expected);
    QVERIFY(sameBits(narrowed(value), expected));
}

void TestNumbers::doublesRoundToIntegers_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");

    QTest::newRow("below a half") << 20.4 << 20;
    QTest::newRow("a half") << 20.5 << 21;
    QTest::newRow("1250 by 60") << 1250.0 / 60.0 << 21;
    QTest::newRow("a negative half goes upwards") << -2.5 << -2;
    QTest::newRow("beyond a negative half") << -2.6 << -3;
    QTest::newRow("a small negative half") << -0.5 << 0;
    QTest::newRow("not a number") << notANumber << 0;
    QTest::newRow("infinite") << infinite << 2147483647;
    QTest::newRow("infinite below") << -infinite << std::numeric_limits<int>::min();
    QTest::newRow("too large") << 3e9 << 2147483647;
    QTest::newRow("too small") << -3e9 << std::numeric_limits<int>::min();
    QTest::newRow("the largest with a half") << 2147483646.5 << 2147483647;
    QTest::newRow("the smallest but one, with a part") << -2147483647.4 << -2147483647;
}

void TestNumbers::doublesRoundToIntegers()
{
    QFETCH(double, value);
    QFETCH(int, expected);
    QCOMPARE(roundedToInt(value), expected);
}

void TestNumbers::doublesTruncateToWideIntegers_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("expected");

    QTest::newRow("above") << 1499.999 << qint64(1499);
    QTest::newRow("below") << -1499.999 << qint64(-1499);
    QTest::newRow("beyond 32 bits") << 2e12 + 0.5 << qint64(2000000000000);
    QTest::newRow("not a number") << notANumber << qint64(0);
    QTest::newRow("infinite") << infinite << std::numeric_limits<qint64>::max();
    QTest::newRow("infinite below") << -infinite << std::numeric_limits<qint64>::min();
    QTest::newRow("too large") << 1e19 << std::numeric_limits<qint64>::max();
    QTest::newRow("too small") << -1e19 << std::numeric_limits<qint64>::min();
}

void TestNumbers::doublesTruncateToWideIntegers()
{
    QFETCH(double, value);
    QFETCH(qint64, expected);
    QCOMPARE(truncatedToInt64(value), expected);
}

void TestNumbers::aNumberIsWritten_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("inGeneral");
    QTest::addColumn<QString>("withSixDecimals");
    QTest::addColumn<QByteArray>("whole");
    const auto row = [](const char *name, double value, const char *inGeneral,
                         const char *withSixDecimals, const char *whole) {
        QTest::newRow(name) << value << QString::fromLatin1(inGeneral)
                            << QString::fromLatin1(withSixDecimals) << QByteArray(whole);
    };
    row("zero", 0, "0", "0.000000", "0");
    row("minus zero has no sign", -0.0, "0", "0.000000", "0");
    row("a digit", 7, "7", "7.000000", "7");
    row("a half goes up", 2.5, "2.5", "2.500000", "3");
    row("a half below zero goes down", -2.5, "-2.5", "-2.500000", "-3");
    row("less than a half", 0.49999999, "0.5", "0.500000", "0");
    row("what rounds to zero has no sign", -0.0000004, "-4e-07", "0.000000", "0");
    row("the smallest with a sign", -0.0000006, "-6e-07", "-0.000001", "0");
    row("six digits", 1234.5678, "1234.57", "1234.567800", "1235");
    row("a million", 1000000, "1e+06", "1000000.000000", "1000000");
    row("seven digits", 1234567, "1.23457e+06", "1234567.000000", "1234567");
    row("more digits than a double has", 1e22, "1e+22", "10000000000000000000000.000000",
        "10000000000000000000000");
    row("without end", infinite, "inf", "inf", "inf");
    row("no number", notANumber, "nan", "nan", "nan");
}

void TestNumbers::aNumberIsWritten()
{
    QFETCH(double, value);
    QTEST(generalText(value), "inGeneral");
    QTEST(sixDecimals(value), "withSixDecimals");
    std::array<char, mostDigitsOfDouble> text{};
    const char *const end = writeWhole(text.data(), value);
    QTEST(QByteArray(text.data(), static_cast<int>(end - text.data())), "whole");
}

void TestNumbers::briefTexts_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("brief");
    QTest::newRow("four digits") << -1.23456 << QStringLiteral("-1.235");
    QTest::newRow("rounded once, not from six digits") << 0.1234498 << QStringLiteral("0.1234");
    QTest::newRow("zeros are dropped") << 12.5 << QStringLiteral("12.5");
    QTest::newRow("nothing") << 0.0 << QStringLiteral("0");
    QTest::newRow("rounded up to four digits") << 999.96 << QStringLiteral("1000");
    QTest::newRow("no point") << -1234.56 << QStringLiteral("-1235");
    QTest::newRow("five digits") << 12345.6 << QStringLiteral("12346");
    QTest::newRow("rounded up to five digits") << 9999.7 << QStringLiteral("10000");
    QTest::newRow("six digits") << 123456.7 << QStringLiteral("123457");
    QTest::newRow("exponent") << 999999.5 << QStringLiteral("1e+06");
    QTest::newRow("large") << -1234567.0 << QStringLiteral("-1.235e+06");
    QTest::newRow("small") << 0.0000123456 << QStringLiteral("1.235e-05");
}

void TestNumbers::briefTexts()
{
    QFETCH(double, value);
    QTEST(briefText(value), "brief");
}

void TestNumbers::wideIntegersAreWritten()
{
    const auto written = [](qint64 value) {
        std::array<char, mostDigitsOfDouble> text{};
        return QByteArray(
            text.data(), static_cast<int>(writeWhole(text.data(), value) - text.data()));
    };
    QCOMPARE(written(0), QByteArray("0"));
    QCOMPARE(written(10), QByteArray("10"));
    QCOMPARE(written(-1), QByteArray("-1"));
    QCOMPARE(written(std::numeric_limits<qint64>::max()), QByteArray("9223372036854775807"));
    QCOMPARE(written(std::numeric_limits<qint64>::min()), QByteArray("-9223372036854775808"));
    // The largest double has 309 digits.
    std::array<char, mostDigitsOfDouble> text{};
    QCOMPARE(writeWhole(text.data(), -std::numeric_limits<double>::max()) - text.data(), 310L);
}

QTEST_APPLESS_MAIN(TestNumbers)
#include "tst_numbers.moc"
