// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "temporaryfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString temporaryFolderBase()
{
    QString base = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
        + QLatin1String("/tmp/files");
    if (!QDir(base).exists())
        QDir().mkpath(base);
    return base;
}

QString freeTemporaryFolder(const QString &base)
{
    for (int number = 1;; ++number) {
        QString candidate = base + QString::number(number);
        if (!QDir(candidate).exists())
            return candidate;
    }
}

void removeRecursively(const QString &path)
{
    if (path.isEmpty())
        return;
    const QFileInfo info(path);
    if (info.isSymLink() || info.isJunction() || !info.isDir()) {
        // Windows removes a link to a folder as it does a folder.
        if (!QFile::remove(path))
            QDir().rmdir(path);
        return;
    }
    // Without QDir::System a link that leads nowhere would not be listed.
    const QStringList names = QDir(path).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        if (!name.startsWith(QLatin1Char('.')))
            removeRecursively(path + QLatin1Char('/') + name);
    }
    QDir().rmdir(path);
}
