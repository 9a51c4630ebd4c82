// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "applicationsettings.h"

#include "applicationidentity.h"
#include "brand.h"

#include <QCoreApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTranslator>

WindowPlace readWindowPlace()
{
    const QSettings settings(
        ApplicationIdentity::organisationName(), ApplicationIdentity::applicationName());
    WindowPlace place;
    place.position = settings.value(QStringLiteral("pos"), place.position).toPoint();
    place.size = settings.value(QStringLiteral("size"), place.size).toSize();
    place.maximized = settings.value(QStringLiteral("maximized"), place.maximized).toBool();
    return place;
}

void writeSettings(const WindowPlace &place, const QString &language)
{
    QSettings settings(
        ApplicationIdentity::organisationName(), ApplicationIdentity::applicationName());
    settings.setValue(QStringLiteral("pos"), place.position);
    settings.setValue(QStringLiteral("size"), place.size);
    settings.setValue(QStringLiteral("maximized"), place.maximized);
    settings.setValue(QStringLiteral("language"), language);
}

QString companionRecordingsFolder()
{
    const QString organisation = ApplicationIdentity::organisationName();
    const QString tool = brandDetails(ApplicationIdentity::brand()).companionTool;
    const QString key = QStringLiteral("SettingsDialog/DRFilesPath");
#ifdef Q_OS_WIN
    // Settings that are opened by their names make a key of the registry for the tool, though it
    // may not be there. These are the places that they would look in, in that order.
    for (const char *root : {"HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE"}) {
        const QSettings software(
            QLatin1String(root) + QLatin1String("\\Software"), QSettings::NativeFormat);
        for (const QString &application : {tool, QStringLiteral("OrganizationDefaults")}) {
            const QVariant folder = software.value(
                organisation + QLatin1Char('/') + application + QLatin1Char('/') + key);
            if (!application.isEmpty() && folder.isValid())
                return folder.toString();
        }
    }
    return QString();
#else
    return QSettings(organisation, tool).value(key).toString();
#endif
}

QStringList translationFolders()
{
    QStringList folders{
        QString(), QCoreApplication::applicationDirPath() + QLatin1String("/translations")};
    const QStringList dataFolders = QStandardPaths::locateAll(QStandardPaths::AppDataLocation,
        QStringLiteral("translations"), QStandardPaths::LocateDirectory);
    folders += dataFolders;
    folders += QStringLiteral(":/translations");
    return folders;
}

void loadTranslation(QTranslator &translator, const QString &name)
{
    // A failed load empties the translator, so the last one leaves it empty where all fail.
    for (const QString &folder : translationFolders()) {
        if (translator.load(name, folder))
            return;
    }
}
