// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "letters.h"

#include <QtTest>

Q_DECLARE_METATYPE(Letters)

namespace {

QString read(const char *hex)
{
    return QString::fromLatin1(QByteArray::fromHex(hex));
}

} // namespace

class TestLetters : public QObject {
    Q_OBJECT

private slots:
    void textsInLetters_data();
    void textsInLetters();
    void beginnings_data();
    void beginnings();
    void everyByteOrNone();
    void likely_data();
    void likely();
    void likelyOfVeryMany();
};

void TestLetters::textsInLetters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Letters>("letters");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *hex, Letters letters, const char *expected) {
        QTest::newRow(name) << read(hex) << letters << QString::fromUtf8(expected);
    };
    row("as read", "d2eeea", Letters::AsRead, "Òîê");
    row("Windows-1251", "d2eeea20f4e0e7fb20c0", Letters::Windows1251, "Ток фазы А");
    row("Windows-1251, signs", "b931b0", Letters::Windows1251, "№1°");
    row("IBM 866", "92aeaa20e4a0a7eb2080", Letters::Ibm866, "Ток фазы А");
    row("GBK", "41cfe0b5e7d1b9", Letters::Gbk, "A相电压");
    row("Windows-1252", "313020809685", Letters::Windows1252, "10 €–…");
    row("UTF-8", "48c3a4697269c3b6", Letters::Utf8, "Häiriö");
    row("UTF-8 of three bytes", "e794b5e6b581", Letters::Utf8, "电流");
    row("UTF-8 that begins with a mark", "efbbbfc3a4", Letters::Utf8, "ä");
    row("ASCII as UTF-8", "496c31", Letters::Utf8, "Il1");
    row("ASCII as GBK", "496c31", Letters::Gbk, "Il1");
    row("empty", "", Letters::Gbk, "");
    row("no UTF-8", "48e4697269f6", Letters::Utf8, "Häiriö");
    row("half a letter of UTF-8", "48c3", Letters::Utf8, "HÃ");
    row("half a letter of GBK", "cfe0b5", Letters::Gbk, "Ïàµ");
#ifdef Q_OS_WIN // where the toolkit has no other library's table, in which every byte has a letter
    row("no letter of Windows-1251", "d2ee98", Letters::Windows1251, "Òî\u0098");
#else
    row("no letter of Windows-1251", "d2ee98", Letters::Windows1251, "То\u0098");
#endif
    row("no letter of Windows-1252", "8141", Letters::Windows1252,
        "\u0081"
        "A");
    QTest::newRow("not read as Latin-1")
        << QStringLiteral("Häiriö 电") << Letters::Windows1251 << QStringLiteral("Häiriö 电");
}

void TestLetters::textsInLetters()
{
    QFETCH(QString, text);
    QFETCH(Letters, letters);
    QTEST(inLetters(text, letters), "expected");
}

void TestLetters::beginnings_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Letters>("letters");
    QTest::addColumn<QString>("expected");
    QTest::newRow("UTF-8") << read("48c3a4c3") << Letters::Utf8 << QStringLiteral("Hä");
    QTest::newRow("UTF-8, two of three bytes")
        << read("e794b5e6b5") << Letters::Utf8 << QStringLiteral("电");
    QTest::newRow("GBK") << read("b5e7c1") << Letters::Gbk << QStringLiteral("电");
    QTest::newRow("whole") << read("b5e7c1f7") << Letters::Gbk << QStringLiteral("电流");
    QTest::newRow("no UTF-8 before its end")
        << read("e448c3") << Letters::Utf8 << QStringLiteral("äHÃ");
}

void TestLetters::beginnings()
{
    QFETCH(QString, text);
    QFETCH(Letters, letters);
    QTEST(inLetters(text, letters, true), "expected");
}

// No byte is lost: what is shown is as long as what was read, in letters of one byte.
void TestLetters::everyByteOrNone()
{
    for (const Letters letters : {Letters::Windows1251, Letters::Ibm866, Letters::Windows1252}) {
        for (int byte = 1; byte < 256; ++byte) {
            const QString text = QString(QChar(byte)) + QLatin1Char('A');
            const QString shown = inLetters(text, letters);
            QCOMPARE(shown.size(), 2);
            QCOMPARE(shown.at(1), QLatin1Char('A'));
            QVERIFY(shown.at(0) != QChar::ReplacementCharacter);
            if (byte < 128)
                QCOMPARE(shown, text);
        }
    }
    QCOMPARE(codecName(Letters::AsRead), QString());
    QCOMPARE(codecName(Letters::Windows1252), QStringLiteral("windows-1252"));
    QCOMPARE(lettersName(Letters::AsRead), QString());
    QCOMPARE(lettersName(Letters::Ibm866), QStringLiteral("IBM 866"));
}

void TestLetters::likely_data()
{
    QTest::addColumn<QString>("texts"); // between bars
    QTest::addColumn<Letters>("letters");
    const auto row = [](const char *name, const char *hex, Letters letters) {
        QTest::newRow(name) << read(hex) << letters;
    };
    const auto western = [](const char *name, const char *texts) {
        QTest::newRow(name) << QString::fromUtf8(texts) << Letters::AsRead;
    };
    western("nothing", "");
    western("ASCII", "Harju|Feeder J07|IL1|UL1");
    western("Finnish", "Häiriö|Lähtö 7|Jännite|Öljyn lämpötila °C|Ylä- ja alaraja|Äänimerkki");
    western("German", "Überstrom|Auslösung|Rückfall|Temperatur °C|Süd");
    western("French", "Déclenchement|Départ à côté|Île|Réenclenchement|à");
    western("signs", "Ia|²|°C|µA|±5");
    western("two vowels", "Jää|Pääte");
    row("UTF-8",
        "48c3a4697269c3b6"
        "7c"
        "496c31",
        Letters::Utf8);
    row("UTF-8, Chinese", "e794b5e6b581", Letters::Utf8);
    row("UTF-8 and what is not",
        "48c3a4"
        "7c"
        "48e4",
        Letters::AsRead);
    // "Ток фазы А", "ПУСК", "ф.А", "Отключение"
    row("Russian",
        "d2eeea20f4e0e7fb20c0"
        "7c"
        "cfd3d1ca"
        "7c"
        "f42ec0"
        "7c"
        "cef2eaebfef7e5ede8e5",
        Letters::Windows1251);
    row("Russian in capitals", "cfd3d1ca", Letters::Windows1251);
    row("Russian of DOS",
        "92aeaa20e4a0a7eb2080"
        "7c"
        "8f93918a"
        "7c"
        "e42e80"
        "7c"
        "8ee2aaabeee7a5ada8a5",
        Letters::Ibm866);
    row("Russian of DOS in capitals", "8f93918a", Letters::Ibm866);
    // "A相电压", "跳闸", "变电站", "零序电流", "高压侧"
    row("Chinese",
        "41cfe0b5e7d1b9"
        "7c"
        "ccf8d5a2"
        "7c"
        "b1e4b5e7d5be"
        "7c"
        "c1e3d0f2b5e7c1f7"
        "7c"
        "b8dfd1b9b2e0",
        Letters::Gbk);
    row("Chinese, one word", "b5e7c1f7", Letters::Gbk);
    row("Chinese beside ASCII", "4941cfe0", Letters::Gbk);
    row("a sign of Windows-1252", "31302080", Letters::Windows1252);
    row("lone letters",
        "c0"
        "7c"
        "c2"
        "7c"
        "d1",
        Letters::AsRead);
    row("noise", "ff81ad9dfe90", Letters::AsRead);
    QTest::newRow("already more than Latin-1") << QStringLiteral("电流|电压") << Letters::AsRead;
}

void TestLetters::likely()
{
    QFETCH(QString, texts);
    QTEST(likelyLetters(texts.split(QLatin1Char('|'))), "letters");
}

void TestLetters::likelyOfVeryMany()
{
    QStringList texts;
    for (int i = 0; i < 200'000; ++i)
        texts.append(QString::fromLatin1("\xd2\xee\xea %1").arg(i));
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(likelyLetters(texts), Letters::Windows1251);
    QVERIFY(likelyLetters({QString(10'000'000, QChar(0xb0))}) != Letters::Utf8);
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(TestLetters)
#include "tst_letters.moc"
