// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QtTest>

#include <map>

namespace {

void start(QProcess &program, int brand, const QStringList &arguments = {})
{
    program.start(
        QCoreApplication::applicationDirPath() + QStringLiteral("/wavorin_brand%1").arg(brand),
        arguments);
}

// What the program of a brand tells of itself, line by line.
QStringList toldBy(QProcess &program)
{
    program.waitForFinished();
    if (program.error() != QProcess::UnknownError || program.exitCode() != 0)
        return {QStringLiteral("failed")};
    return QString::fromUtf8(program.readAllStandardOutput())
        .remove(QLatin1Char('\r')) // which Windows adds
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

// The program itself, built for each brand.
class TestBrandBuilds : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("QT_FONT_DPI", "96"); // a scale of 1, for which there is one picture
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
            << QStringList{QStringLiteral("English drv_en* &File"),
                   QStringLiteral("Suomi drv_fi &Tiedosto"), QStringLiteral("中文 drv_zh 文件(&F)")}
            << "Setterra"
            << QStringLiteral("Created by ") + link("https://www.norvale.example", "Norvale")
            << "drv_en";
        QTest::newRow("Vanta") << 1
                               << QStringList{QStringLiteral("English drv_vanta_en* &File"),
                                      QStringLiteral("中文 drv_vanta_zh 文件(&F)")}
                               << "Tolvik"
                               << QStringLiteral("Vanta: ") + ownLink("https://www.vanta.example")
                               << "drv_vanta_en";
        QTest::newRow("Orlo") << 2
                              << QStringList{QStringLiteral("English drv_orlo_en* &File"),
                                     QStringLiteral("中文 drv_orlo_zh 文件(&F)")}
                              << "Kesto Utility Software"
                              << QStringLiteral("Orlo: ") + ownLink("https://www.orlo.example")
                              << "drv_orlo_en";
        QTest::newRow("Quill") << 3 << QStringList{QStringLiteral("English drv_quill_en* &File")}
                               << "Quill Lab"
                               << QStringLiteral("Quill: ") + ownLink("https://www.quill.example")
                               << "drv_quill_en";
        QTest::newRow("Mervic") << 4 << QStringList{QStringLiteral("English drv_mervic_en* &File")}
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
        QStringList expected{QStringLiteral("title: Wavorin"),
            QStringLiteral("icon: 256 16 24 32 48 64 128"),
            QStringLiteral("letters: noto sans cjk sc"),
            QLatin1String("recordings: /records/of/") + companion,
            QLatin1String("about: ") + about};
        for (const QString &language : languages)
            expected.append(QLatin1String("language: ") + language);
        QProcess program;
        start(program, brand, {QStringLiteral(SOURCE_DIR "/examples/earth-fault.cfg")});
        QCOMPARE(toldBy(program), expected);
        const QSettings settings(QStringLiteral("Norvale"), QStringLiteral("Wavorin"));
        QTEST(settings.value(QStringLiteral("language")).toString(), "kept");
    }

    void showsTheMakersSplashWithoutARecording_data()
    {
        QTest::addColumn<int>("brand");
        QTest::newRow("the maker") << 0;
        QTest::newRow("Vanta") << 1;
        QTest::newRow("Orlo") << 2;
        QTest::newRow("Quill") << 3;
        QTest::newRow("Mervic") << 4;
    }

    void showsTheMakersSplashWithoutARecording()
    {
        QFETCH(int, brand);
        if (m_waiting.empty()) {
            for (int each = 0; each <= 4; ++each)
                start(m_waiting[each], each);
        }
        QCOMPARE(toldBy(m_waiting[brand]).first(), QStringLiteral("splash: the maker's"));
    }

private:
    std::map<int, QProcess> m_waiting; // programs of the brands, all in their splash's two seconds
};

QTEST_GUILESS_MAIN(TestBrandBuilds)
#include "tst_brandbuilds.moc"
