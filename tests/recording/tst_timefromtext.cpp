// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timeofday.h"

#include <QtTest>

class TestTimeFromText : public QObject {
    Q_OBJECT

private slots:
    void times_data();
    void times();
    void aTextExportHasAColonBeforeItsMilliseconds();
};

// Not a number where the text is no time.
void TestTimeFromText::times_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("ms");

    const auto row = [](const char *name, const char *text, double ms) {
        QTest::newRow(name) << QString::fromLatin1(text) << ms;
    };
    row("whole number", "45", 45);
    row("point", "45.125", 45.125);
    row("comma", "45,125", 45.125);
    row("blanks around", " 45 ", 45);
    row("negative", "-3.5", -3.5);
    row("exponent", "1e3", 1000);
    row("the start", "10:00:00.020", 0);
    row("without fraction", "10:00:01", 980);
    row("one hour digit", "9:59:59", -1020);
    row("tenth", "10:00:00.1", 80);
    row("microseconds", "10:00:00.020500", 0.5);
    row("comma before the fraction", "10:00:00,0205", 0.5);
    row("after midnight is before the start", "00:00:00", -36000020);
    row("in the evening it is, too", "23:00:00.020", -39600000);
    row("less than 12 hours", "21:59:59.020", 43199000);
    row("nothing", "", qQNaN());
    row("a word", "now", qQNaN());
    row("infinite", "inf", qQNaN());
    row("not a number", "nan", qQNaN());
    row("two commas", "1,234,5", qQNaN());
    row("no such minute", "10:60:00", qQNaN());
    row("no such hour", "24:00:00", qQNaN());
    row("no seconds", "10:00", qQNaN());
    row("too fine", "10:00:00.0200001", qQNaN());
    row("more behind", "10:00:00.020 ms", qQNaN());
}

void TestTimeFromText::times()
{
    QFETCH(QString, text);
    QTEST(timeFromText(text, QStringLiteral("10:00:00.020")).value_or(qQNaN()), "ms");
    QCOMPARE(timeFromText(text, QString()).has_value(),
        !text.contains(QLatin1Char(':')) && timeFromText(text, QStringLiteral("10:00:00.020")));
}

void TestTimeFromText::aTextExportHasAColonBeforeItsMilliseconds()
{
    QCOMPARE(
        timeFromText(QStringLiteral("10:00:00.5"), QStringLiteral("10:00:00:250")).value(), 250.0);
    QCOMPARE(clockText(QStringLiteral("10:00:00:250"), 1.5), QStringLiteral("10:00:00.251500"));
    // Over midnight the nearer way.
    QCOMPARE(
        timeFromText(QStringLiteral("0:00:01"), QStringLiteral("23:59:59.000")).value(), 2000.0);
}

QTEST_GUILESS_MAIN(TestTimeFromText)
#include "tst_timefromtext.moc"
