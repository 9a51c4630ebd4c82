// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filekind.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QLatin1String package(".zip");
const QLatin1String configuration(".cfg");
const QLatin1String text(".txt");
const QLatin1String data(".dat");
const QLatin1String single(".cff");

} // namespace

bool opensAtStart(const QString &path)
{
    return path.endsWith(package) || path.endsWith(configuration);
}

bool isPackage(const QString &path)
{
    return path.contains(package, Qt::CaseInsensitive);
}

bool isRecording(const QString &path)
{
    return path.contains(configuration, Qt::CaseInsensitive)
        || path.contains(text, Qt::CaseInsensitive);
}

bool isTextExport(const QString &path)
{
    return path.endsWith(text);
}

bool isSingleFile(const QString &path)
{
    return path.endsWith(single, Qt::CaseInsensitive);
}

bool isPipeOrDevice(const QString &path)
{
    const QFileInfo there(path);
    return there.exists() && !there.isFile() && !there.isDir();
}

QString existingPath(const QString &path)
{
    const QFileInfo wanted(path);
    if (wanted.exists())
        return path;
    const QDir folder = wanted.dir();
    QString found;
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        const bool isAlike = name.compare(wanted.fileName(), Qt::CaseInsensitive) == 0;
        if (isAlike && (found.isEmpty() || name.startsWith(wanted.completeBaseName())))
            found = name;
    }
    return found.isEmpty() ? path : folder.filePath(found);
}

QString recordingToOpen(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (isPackage(path) || isRecording(path))
            return path;
        if (!path.endsWith(data, Qt::CaseInsensitive))
            continue;
        QString beside = existingPath(path.chopped(data.size()) + configuration);
        if (QFileInfo::exists(beside))
            return beside;
    }
    return paths.value(0);
}
