// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "labeltext.h"

#include <QFont>
#include <QFontMetrics>
#include <QtTest>

class TestLabelText : public QObject {
    Q_OBJECT

private slots:
    void valueAxisText_data();
    void valueAxisText();
    void valuesThatDoNotFitAreWrittenShort();
};

void TestLabelText::valueAxisText_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("one") << 1.0 << "1";
    QTest::newRow("zero") << 0.0 << "0";
    QTest::newRow("negative zero") << -0.0 << "0";
    QTest::newRow("rounds to zero from below") << -0.0000001 << "0";
    QTest::newRow("two and a half") << 2.5 << "2.5";
    QTest::newRow("three") << 3.0 << "3";
    QTest::newRow("ten keeps its zero") << 10.0 << "10";
    QTest::newRow("a hundred thousand") << 100000.0 << "100000";
    QTest::newRow("six decimals") << 0.1234567 << "0.123457";
    QTest::newRow("inner zeros stay") << 1.0203 << "1.0203";
    QTest::newRow("negative") << -0.05 << "-0.05";
}

void TestLabelText::valueAxisText()
{
    QFETCH(double, value);
    QTEST(::valueAxisText(value), "text");
}

void TestLabelText::valuesThatDoNotFitAreWrittenShort()
{
    const QFontMetrics metrics{QFont()};
    QCOMPARE(fittingValueText(1e15, metrics, 10000), QStringLiteral("1000000000000000"));
    QCOMPARE(fittingValueText(1e15, metrics, 60), QStringLiteral("1e+15"));
}

QTEST_MAIN(TestLabelText)
#include "tst_labeltext.moc"
