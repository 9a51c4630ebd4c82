// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "channelnames.h"

#include <QFont>
#include <QFontMetrics>
#include <QtTest>

class TestChannelNames : public QObject {
    Q_OBJECT

private slots:
    void namesAreCut_data();
    void namesAreCut();
    void namesThatDoNotFitAreElidedInTheMiddle_data();
    void namesThatDoNotFitAreElidedInTheMiddle();
    void namesInTheLettersChosen_data();
    void namesInTheLettersChosen();
    void aChoiceIsToldOnce();
    void namesAreFound_data();
    void namesAreFound();
};

void TestChannelNames::namesAreCut_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    const auto letters = [](int count) { return QString(count, QLatin1Char('W')); };
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("usual") << QStringLiteral(" IL1 ") << QStringLiteral(" IL1 ");
    QTest::newRow("a line end") << QStringLiteral("IL1 \n") << QStringLiteral("IL1 ");
    QTest::newRow("nothing but a line end") << QStringLiteral("\r\n") << QString();
    QTest::newRow("a line end within") << QStringLiteral("I\nL") << QStringLiteral("I\nL");
    QTest::newRow("64 characters") << letters(64) << letters(64);
    QTest::newRow("1000 characters") << letters(1000) << letters(1000);
    QTest::newRow("1001 characters") << letters(1001) << letters(1000);
    QTest::newRow("a million") << letters(1000000) << letters(1000);
}

void TestChannelNames::namesAreCut()
{
    QFETCH(QString, name);
    QTEST(shownName(name), "shown");
}

void TestChannelNames::namesThatDoNotFitAreElidedInTheMiddle_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("fits");
    QTest::newRow("short") << QStringLiteral("IL1") << true;
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("31 characters") << QStringLiteral("Phase current IL1 of feeder K07") << false;
    QTest::newRow("a million") << QString(1000000, QLatin1Char('W')) << false;
}

void TestChannelNames::namesThatDoNotFitAreElidedInTheMiddle()
{
    QFETCH(QString, name);
    QFETCH(bool, fits);
    QFont font;
    font.setPixelSize(9);
    const QFontMetrics metrics(font);
    const QString suffix = QStringLiteral(": 1.23457e+06");
    const QString text = fittingName(name, suffix, metrics, 121);
    QVERIFY(metrics.horizontalAdvance(text) <= 121);
    QVERIFY(text.endsWith(suffix));
    if (fits) {
        QCOMPARE(text, name + suffix);
        return;
    }
    const QStringList ends = text.chopped(suffix.size()).split(QChar(0x2026));
    QCOMPARE(ends.size(), 2);
    QVERIFY(!ends.first().isEmpty() && name.startsWith(ends.first()));
    QVERIFY(!ends.last().isEmpty() && name.endsWith(ends.last()));
}

void TestChannelNames::namesInTheLettersChosen_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("trimmed");
    QTest::newRow("ASCII") << QByteArray(" IL1 ") << QStringLiteral(" IL1 ")
                           << QStringLiteral("IL1");
    // The last bytes are a blank and a line end in Latin-1.
    QTest::newRow("ends like a blank")
        << QByteArray("\xd0\xa0") << QStringLiteral("Р") << QStringLiteral("Р");
    QTest::newRow("ends like a line end")
        << QByteArray(" \xd1\x85 ") << QStringLiteral(" х ") << QStringLiteral("х");
    QTest::newRow("no UTF-8") << QByteArray(" \xc4\xe4ni") << QStringLiteral(" Ääni")
                              << QStringLiteral("Ääni");
    QTest::newRow("cut within a letter")
        << QByteArray("\xe7\x94\xb5").repeated(400) << QString(333, QChar(0x7535))
        << QString(333, QChar(0x7535)); // a thousand bytes
}

void TestChannelNames::namesInTheLettersChosen()
{
    QFETCH(QByteArray, bytes);
    const QString read = QString::fromLatin1(bytes);
    NameLetters::shared().choose(Letters::Utf8);
    QTEST(shownName(read), "shown");
    QTEST(trimmedName(read), "trimmed");
    QCOMPARE(cutText(read), read.left(1000));
    const QFontMetrics metrics((QFont()));
    QCOMPARE(fittingName(read, QString(), metrics, 1'000'000), read.left(1000));
    NameLetters::shared().choose(Letters::AsRead);
    QCOMPARE(shownName(read), read.left(1000));
}

void TestChannelNames::aChoiceIsToldOnce()
{
    const QSignalSpy spy(&NameLetters::shared(), &NameLetters::changed);
    for (const Letters letters : {Letters::Gbk, Letters::Gbk, Letters::AsRead, Letters::AsRead})
        NameLetters::shared().choose(letters);
    QCOMPARE(spy.count(), 2);
}

void TestChannelNames::namesAreFound_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("expected");
    QTest::addColumn<int>("position"); // in A, B, A, ""
    const auto letter = [](const char *name) { return QString::fromLatin1(name); };
    QTest::newRow("the first of two") << letter("A") << 0 << 0;
    QTest::newRow("the second of two") << letter("A") << 2 << 2;
    QTest::newRow("not where it was expected") << letter("A") << 1 << 0;
    QTest::newRow("expected nowhere") << letter("A") << -1 << 0;
    QTest::newRow("expected behind the end") << letter("B") << 4 << 1;
    QTest::newRow("unknown") << letter("C") << 1 << -1;
    QTest::newRow("unknown and expected nowhere") << letter("C") << -1 << -1;
    QTest::newRow("empty") << letter("") << 3 << 3;
    QTest::newRow("empty and expected nowhere") << letter("") << -1 << 3;
}

void TestChannelNames::namesAreFound()
{
    QFETCH(QString, name);
    QFETCH(int, expected);
    const QStringList names{
        QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("A"), QString()};
    QTEST(positionOf(name, names, expected), "position");
}

QTEST_MAIN(TestChannelNames)
#include "tst_channelnames.moc"
