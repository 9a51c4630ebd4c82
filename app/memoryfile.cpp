// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memoryfile.h"

#include "filekind.h"
#include "filepair.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace {

QJsonObject contents()
{
    constexpr qint64 mostBytes = 1'000'000;
    QFile file(memoryFilePath());
    if (isPipeOrDevice(file.fileName()) || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.read(mostBytes + 1);
    return bytes.size() > mostBytes ? QJsonObject() : QJsonDocument::fromJson(bytes).object();
}

} // namespace

QString memoryFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
        + QLatin1String("/memory.json");
}

QJsonValue remembered(const QString &key)
{
    return contents().value(key);
}

void remember(const QString &key, const QJsonValue &value)
{
    const QString path = memoryFilePath();
    if (isPipeOrDevice(path) || (QFile::exists(path) && !QFile(path).open(QIODevice::ReadOnly)))
        return;
    QJsonObject kept = contents();
    kept.insert(key, value);
    QDir().mkpath(QFileInfo(path).path());
    replaceFile(path, QJsonDocument(kept).toJson());
}
