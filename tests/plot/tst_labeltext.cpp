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
    void longNamesBreak_data();
    void longNamesBreak();
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

// A star stands for 39 letters, "|" for the sign that breaks.
void TestLabelText::longNamesBreak_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("broken");
    const auto row = [](const char *name, const QString &text, const QString &broken) {
        const auto whole = [](QString shortened) {
            return shortened.replace(QLatin1Char('*'), QString(39, QLatin1Char('n')));
        };
        QTest::newRow(name) << whole(text) << whole(broken);
    };
    const auto latin = [](const char *text) { return QString::fromLatin1(text); };
    row("short", latin("a/b.cfg:\nno."), latin("a/b.cfg:\nno."));
    row("just short", latin("*/*"), latin("*/*"));
    row("long", latin("/*n*n.cfg"), latin("/*n|*n|.cfg"));
    row("two lines", latin("*n\n*n"), latin("*n|\n*n|"));
    row("blanks and hyphens", latin("* *-*"), latin("* *-*"));
    row("hyphens and slashes before digits", latin("*-1*/2n/*"), latin("*-|1*|/2n/*"));
    row("a letter of two units stays whole", QStringLiteral("*\U0001F5F2n"),
        QStringLiteral("*\U0001F5F2|n"));
    row("what looks like a place in the pattern", latin("\\0\\1"), latin("\\0\\1"));
}

void TestLabelText::longNamesBreak()
{
    QFETCH(QString, text);
    QTEST(breakableText(text).replace(QChar(0x200B), QLatin1Char('|')), "broken");
}

QTEST_MAIN(TestLabelText)
#include "tst_labeltext.moc"
