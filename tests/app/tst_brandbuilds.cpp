#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QTest>

// The program itself, built for each brand.
class TestBrandBuilds : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QStringList tools{QStringLiteral("Setterra"), QStringLiteral("Tolvik"),
            QStringLiteral("Kesto Utility Software"), QStringLiteral("Quill Lab"),
            QStringLiteral("Ostrel")};
        for (const QString &tool : tools)
            QSettings(QStringLiteral("Norvale"), tool)
                .setValue(QStringLiteral("SettingsDialog/DRFilesPath"),
                    QLatin1String("/records/of/") + tool);
    }

    void showsItsRowOfTheTable_data()
    {
        QTest::addColumn<int>("brand");
        QTest::addColumn<QStringList>("languages");
        QTest::addColumn<QString>("companion");
        QTest::addColumn<QString>("about");
        QTest::addColumn<QString>("kept"); // language in the settings after it was closed
        const auto link = [](const char *address, const char *text) {
            return QStringLiteral("<a style=\"color:#c4eeff\" href=\"%1\">%2</a></font></p>")
                .arg(QLatin1String(address), QLatin1String(text));
        };
        const auto ownLink = [&](const char *address) { return link(address, address); };
        QTest::newRow("the maker")
            << 0
            << QStringList{QStringLiteral("English drv_en*"), QStringLiteral("Suomi drv_fi"),
                   QStringLiteral("中文 drv_zh")}
            << "Setterra"
            << QStringLiteral("Created by ") + link("https://www.norvale.example", "Norvale")
            << "drv_en";
        QTest::newRow("Vanta") << 1
                               << QStringList{QStringLiteral("English drv_vanta_en*"),
                                      QStringLiteral("中文 drv_vanta_zh")}
                               << "Tolvik"
                               << QStringLiteral("Vanta: ") + ownLink("https://www.vanta.example")
                               << "drv_vanta_en";
        QTest::newRow("Orlo") << 2
                              << QStringList{QStringLiteral("English drv_orlo_en*"),
                                     QStringLiteral("中文 drv_orlo_zh")}
                              << "Kesto Utility Software"
                              << QStringLiteral("Orlo: ") + ownLink("https://www.orlo.example")
                              << "drv_orlo_en";
        QTest::newRow("Quill") << 3 << QStringList{QStringLiteral("English drv_quill_en*")}
                               << "Quill Lab"
                               << QStringLiteral("Quill: ") + ownLink("https://www.quill.example")
                               << "drv_quill_en";
        QTest::newRow("Mervic") << 4 << QStringList{QStringLiteral("English drv_mervic_en*")}
                                << "Ostrel"
                                << QStringLiteral("Mervic: ")
                + ownLink("https://www.mervic.example")
                                << "drv_mervic_en";
    }

    void showsItsRowOfTheTable()
    {
        QFETCH(int, brand);
        QFETCH(QStringList, languages);
        QFETCH(QString, companion);
        QFETCH(QString, about);
        QProcess program;
        program.start(
            QCoreApplication::applicationDirPath() + QStringLiteral("/wavorin_brand%1").arg(brand),
            {QStringLiteral(SOURCE_DIR "/examples/earth-fault.cfg")});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 0);

        QStringList expected{QStringLiteral("title: Wavorin")};
        for (const QString &language : languages)
            expected.append(QLatin1String("language: ") + language);
        expected.append(QLatin1String("recordings: /records/of/") + companion);
        expected.append(QLatin1String("about: ") + about);
        expected.append(QString());
        QCOMPARE(
            QString::fromUtf8(program.readAllStandardOutput()), expected.join(QLatin1Char('\n')));
        const QSettings settings(QStringLiteral("Norvale"), QStringLiteral("Wavorin"));
        QTEST(settings.value(QStringLiteral("language")).toString(), "kept");
    }
};

QTEST_GUILESS_MAIN(TestBrandBuilds)
#include "tst_brandbuilds.moc"
