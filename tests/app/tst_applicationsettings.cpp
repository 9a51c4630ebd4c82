// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "applicationidentity.h"
#include "applicationsettings.h"
#include "windowtest.h"

#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <optional>

#ifdef Q_OS_UNIX
#include "filesizelimit.h"
#endif

namespace {

// A translation file that translates nothing: the bytes that every one begins with.
const QByteArray emptyTranslation = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(bytes);
}

} // namespace

class TestApplicationSettings : public QObject {
    Q_OBJECT

private slots:
    void init() { startAsMaker(); }

    void placeWithoutSettings()
    {
        const WindowPlace place = readWindowPlace();
        QCOMPARE(place.position, QPoint(300, 300));
        QCOMPARE(place.size, QSize(400, 400));
        QCOMPARE(place.maximized, false);
    }

    void placeIsKept()
    {
        writeSettings({{12, 34}, {1200, 800}, true}, QStringLiteral("drv_fi"));
        const WindowPlace place = readWindowPlace();
        QCOMPARE(place.position, QPoint(12, 34));
        QCOMPARE(place.size, QSize(1200, 800));
        QCOMPARE(place.maximized, true);
    }

    void placeThatCannotBeWritten_data()
    {
        QTest::addColumn<bool>("isFull");
        QTest::newRow("the disk is full") << true;
        QTest::newRow("a folder stands in its place") << false;
    }

    void placeThatCannotBeWritten()
    {
#ifdef Q_OS_UNIX
        QFETCH(bool, isFull);
        writeSettings({{12, 34}, {1200, 800}, true}, QStringLiteral("drv_fi"));
        const QString name
            = QSettings(QStringLiteral("Norvale"), QStringLiteral("Wavorin")).fileName();
        const QString aside = name + QLatin1String(".aside");
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray before = file.readAll();
        QVERIFY(before.contains("12 34"));
        file.close();
        if (!isFull)
            QVERIFY(QFile::rename(name, aside) && QDir().mkdir(name));
        {
            std::optional<FileSizeLimit> limit;
            if (isFull)
                limit.emplace(0);
            writeSettings({{56, 78}, {900, 700}, false}, QStringLiteral("drv_en"));
        }
        if (!isFull)
            QVERIFY(QDir().rmdir(name) && QFile::rename(aside, name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), before);
        writeSettings({{56, 78}, {900, 700}, false}, QStringLiteral("drv_en"));
        QCOMPARE(readWindowPlace().position, QPoint(56, 78));
#else
        QSKIP("the registry is no file");
#endif
    }

    void keysInTheOwnSettings()
    {
        writeSettings({{12, 34}, {1200, 800}, true}, QStringLiteral("drv_fi"));
        QSettings settings(QStringLiteral("Norvale"), QStringLiteral("Wavorin"));
        QCOMPARE(settings.allKeys(),
            QStringList({QStringLiteral("language"), QStringLiteral("maximized"),
                QStringLiteral("pos"), QStringLiteral("size")}));
        QCOMPARE(settings.value(QStringLiteral("pos")), QVariant(QPoint(12, 34)));
        QCOMPARE(settings.value(QStringLiteral("size")), QVariant(QSize(1200, 800)));
        QCOMPARE(settings.value(QStringLiteral("maximized")).toBool(), true);
        QCOMPARE(settings.value(QStringLiteral("language")).toString(), QStringLiteral("drv_fi"));
    }

    void valuesOfAnotherTypeConvert()
    {
        QSettings settings(QStringLiteral("Norvale"), QStringLiteral("Wavorin"));
        settings.setValue(QStringLiteral("pos"), QStringLiteral("left"));
        settings.setValue(QStringLiteral("maximized"), QStringLiteral("true"));
        settings.sync();
        const WindowPlace place = readWindowPlace();
        QCOMPARE(place.position, QPoint(0, 0));
        QCOMPARE(place.maximized, true);
    }

    void companionFolder_data()
    {
        QTest::addColumn<int>("brand");
        QTest::addColumn<QString>("application");
        QTest::newRow("the maker's tool") << 0 << QStringLiteral("Setterra");
        QTest::newRow("Vanta's tool") << 1 << QStringLiteral("Tolvik");
        QTest::newRow("Orlo's tool") << 2 << QStringLiteral("Kesto Utility Software");
        QTest::newRow("Quill's tool") << 3 << QStringLiteral("Quill Lab");
        QTest::newRow("Mervic's tool") << 4 << QStringLiteral("Ostrel");
    }

    void companionFolder()
    {
        QFETCH(int, brand);
        QFETCH(QString, application);
        ApplicationIdentity::setBrand(brand);
        QSettings settings(QStringLiteral("Norvale"), application);
        settings.clear();
        QCOMPARE(companionRecordingsFolder(), QString());
        settings.setValue(QStringLiteral("DRFilesPath"), QStringLiteral("/outside/the/group"));
        settings.sync();
        QCOMPARE(companionRecordingsFolder(), QString());
        settings.setValue(
            QStringLiteral("SettingsDialog/DRFilesPath"), QStringLiteral("/home/me/records"));
        settings.sync();
        QCOMPARE(companionRecordingsFolder(), QStringLiteral("/home/me/records"));
        settings.clear();
    }

    void unknownBrandHasNoCompanionFolder()
    {
        QSettings ofTheMaker(QStringLiteral("Norvale"), QStringLiteral("Setterra"));
        ofTheMaker.setValue(
            QStringLiteral("SettingsDialog/DRFilesPath"), QStringLiteral("/home/me/records"));
        ofTheMaker.sync();
        ApplicationIdentity::setBrand(5);
        const QString folder = companionRecordingsFolder();
        ofTheMaker.clear();
        QCOMPARE(folder, QString());
    }

    void readingLeavesNoSettingsOfTheCompanionBehind()
    {
#ifdef Q_OS_WIN
        QSettings maker(
            QStringLiteral("HKEY_CURRENT_USER\\Software\\Norvale"), QSettings::NativeFormat);
        maker.remove(QStringLiteral("Setterra"));
        QCOMPARE(companionRecordingsFolder(), QString());
        QVERIFY2(!maker.childGroups().contains(QStringLiteral("Setterra")),
            qPrintable(maker.childGroups().join(QLatin1Char(' '))));
#else
        const QString file
            = QSettings(QStringLiteral("Norvale"), QStringLiteral("Setterra")).fileName();
        QFile::remove(file);
        QCOMPARE(companionRecordingsFolder(), QString());
        QVERIFY(!QFile::exists(file));
#endif
    }

    // One name in every place: the place that is taken is removed, and the next one has its turn.
    void translationsAreLookedForInThisOrder()
    {
        const QTemporaryDir workingFolder;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(workingFolder.path()));
        const QString beside
            = QCoreApplication::applicationDirPath() + QLatin1String("/translations/");
        const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
            + QLatin1String("/translations/");
        for (const QString &folder : {QString(), beside, data}) {
            if (!folder.isEmpty())
                QVERIFY(QDir().mkpath(folder));
            writeFile(folder + QLatin1String("drv_test.qm"), emptyTranslation);
        }
        for (const QString &folder : {QString(), beside, data}) {
            QTranslator translator;
            loadTranslation(translator, QStringLiteral("drv_test"));
            QCOMPARE(translator.filePath(), folder + QLatin1String("drv_test.qm"));
            QVERIFY(QFile::remove(folder + QLatin1String("drv_test.qm")));
        }
        QDir::setCurrent(before);
    }

    void translationsLieInTheResourcesLast()
    {
        QCOMPARE(translationFolders().first(), QString());
        QCOMPARE(translationFolders().last(), QStringLiteral(":/translations"));
    }

    void missingTranslationEmptiesTheTranslator()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("drv_some.qm"));
        writeFile(path, emptyTranslation);
        QTranslator translator;
        QVERIFY(translator.load(path));
        loadTranslation(translator, QStringLiteral("drv_of_nobody"));
        QVERIFY(translator.isEmpty());
        QCOMPARE(translator.filePath(), QString());
    }
};

QTEST_MAIN(TestApplicationSettings)
#include "tst_applicationsettings.moc"
