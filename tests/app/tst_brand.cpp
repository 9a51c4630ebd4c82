// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "brand.h"

#include <QTranslator>
#include <QtTest>

class TestBrand : public QObject {
    Q_OBJECT

private slots:
    void translationsAndCompanion_data();
    void translationsAndCompanion();
    void languageMenu_data();
    void languageMenu();
    void aboutBox_data();
    void aboutBox();
    void aboutBoxIsTranslated();
    void everyWebSiteIsAReservedExampleAddress();
};

void TestBrand::translationsAndCompanion_data()
{
    QTest::addColumn<int>("brand");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("companion");
    QTest::newRow("the maker") << 0 << QStringLiteral("drv_en") << QStringLiteral("Setterra");
    QTest::newRow("Vanta") << 1 << QStringLiteral("drv_vanta_en") << QStringLiteral("Tolvik");
    QTest::newRow("Orlo") << 2 << QStringLiteral("drv_orlo_en")
                          << QStringLiteral("Kesto Utility Software");
    QTest::newRow("Quill") << 3 << QStringLiteral("drv_quill_en") << QStringLiteral("Quill Lab");
    QTest::newRow("Mervic") << 4 << QStringLiteral("drv_mervic_en") << QStringLiteral("Ostrel");
    QTest::newRow("a brand below the table has neither") << -1 << QString() << QString();
    QTest::newRow("a brand above the table has neither") << 5 << QString() << QString();
}

void TestBrand::translationsAndCompanion()
{
    QFETCH(int, brand);
    QTEST(brandDetails(brand).defaultTranslation, "translation");
    QTEST(brandDetails(brand).companionTool, "companion");
}

void TestBrand::languageMenu_data()
{
    QTest::addColumn<int>("brand");
    QTest::addColumn<QStringList>("fileNames");
    QTest::addColumn<QString>("hidden"); // one letter per entry: h hidden, v visible
    const QStringList maker{
        QStringLiteral("drv_en"), QStringLiteral("drv_fi"), QStringLiteral("drv_zh")};
    QTest::newRow("the maker offers three languages") << 0 << maker << QStringLiteral("vvv");
    QTest::newRow("Vanta hides Finnish")
        << 1
        << QStringList{QStringLiteral("drv_vanta_en"), QStringLiteral("drv_fi"),
               QStringLiteral("drv_vanta_zh")}
        << QStringLiteral("vhv");
    QTest::newRow("Orlo hides Finnish")
        << 2
        << QStringList{QStringLiteral("drv_orlo_en"), QStringLiteral("drv_fi"),
               QStringLiteral("drv_orlo_zh")}
        << QStringLiteral("vhv");
    QTest::newRow("Quill offers English alone")
        << 3
        << QStringList{QStringLiteral("drv_quill_en"), QStringLiteral("drv_fi"),
               QStringLiteral("drv_zh")}
        << QStringLiteral("vhh");
    QTest::newRow("Mervic offers English alone")
        << 4
        << QStringList{QStringLiteral("drv_mervic_en"), QStringLiteral("drv_fi"),
               QStringLiteral("drv_zh")}
        << QStringLiteral("vhh");
    QTest::newRow("a brand below the table offers the maker's")
        << -1 << maker << QStringLiteral("vvv");
    QTest::newRow("a brand above the table offers the maker's")
        << 5 << maker << QStringLiteral("vvv");
}

void TestBrand::languageMenu()
{
    QFETCH(int, brand);
    QStringList texts;
    QStringList fileNames;
    QString hidden;
    const QVector<LanguageEntry> languages = brandDetails(brand).languages;
    for (const LanguageEntry &entry : languages) {
        texts << entry.text;
        fileNames << entry.fileName;
        hidden += QLatin1Char(entry.visible ? 'v' : 'h');
    }
    const QStringList expectedTexts{
        QStringLiteral("English"), QStringLiteral("Suomi"), QStringLiteral("\u4e2d\u6587")};
    QCOMPARE(texts, expectedTexts);
    QTEST(fileNames, "fileNames");
    QTEST(hidden, "hidden");
}

void TestBrand::aboutBox_data()
{
    QTest::addColumn<int>("brand");
    QTest::addColumn<QString>("text");
    const QString maker = QStringLiteral(
        "<font size=4>Wavorin</font> v1.5.4-1-g56f75d81<br/>Created by "
        "<a style=\"color:#c4eeff\" href=\"https://www.norvale.example\">Norvale</a></font></p>");
    QTest::newRow("the maker's line names the maker") << 0 << maker;
    QTest::newRow("Vanta's line shows the address")
        << 1
        << QStringLiteral(
               "<font size=4>Wavorin</font> v1.5.4-1-g56f75d81<br/>Vanta: "
               "<a style=\"color:#c4eeff\" "
               "href=\"https://www.vanta.example\">https://www.vanta.example</a></font></p>");
    QTest::newRow("Orlo's line shows the address")
        << 2
        << QStringLiteral(
               "<font size=4>Wavorin</font> v1.5.4-1-g56f75d81<br/>Orlo: "
               "<a style=\"color:#c4eeff\" "
               "href=\"https://www.orlo.example\">https://www.orlo.example</a></font></p>");
    QTest::newRow("Quill's line shows the address")
        << 3
        << QStringLiteral(
               "<font size=4>Wavorin</font> v1.5.4-1-g56f75d81<br/>Quill: "
               "<a style=\"color:#c4eeff\" "
               "href=\"https://www.quill.example\">https://www.quill.example</a></font></p>");
    QTest::newRow("Mervic's line shows the address")
        << 4
        << QStringLiteral(
               "<font size=4>Wavorin</font> v1.5.4-1-g56f75d81<br/>Mervic: "
               "<a style=\"color:#c4eeff\" "
               "href=\"https://www.mervic.example\">https://www.mervic.example</a></font></p>");
    QTest::newRow("a brand above the table keeps the maker's line") << 5 << maker;
    QTest::newRow("a brand below the table keeps the maker's line") << -1 << maker;
}

void TestBrand::aboutBox()
{
    QFETCH(int, brand);
    QTEST(aboutText(QStringLiteral("Wavorin"), brand), "text");
}

void TestBrand::aboutBoxIsTranslated()
{
    class Translator : public QTranslator {
    public:
        QString translate(
            const char *context, const char *sourceText, const char *, int) const override
        {
            const bool known
                = qstrcmp(context, "MainWindow") == 0 && qstrcmp(sourceText, "Created by ") == 0;
            return known ? QStringLiteral("Tekij\u00e4: ") : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    QVERIFY(
        aboutText(QStringLiteral("Wavorin"), 0).contains(QStringLiteral("<br/>Tekij\u00e4: <a ")));
}

void TestBrand::everyWebSiteIsAReservedExampleAddress()
{
    QSet<QString> sites;
    for (int brand = 0; brand < 5; ++brand) {
        const QString site = brandDetails(brand).webSite;
        QVERIFY(site.startsWith(QStringLiteral("https://www.")));
        QVERIFY(site.endsWith(QStringLiteral(".example")));
        sites.insert(site);
    }
    QCOMPARE(sites.size(), 5);
}

QTEST_GUILESS_MAIN(TestBrand)
#include "tst_brand.moc"
