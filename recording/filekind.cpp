// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filekind.h"

#include <QFileInfo>

namespace {

const QLatin1String package(".zip");
const QLatin1String configuration(".cfg");
const QLatin1String text(".txt");

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

bool isPipeOrDevice(const QString &path)
{
    const QFileInfo there(path);
    return there.exists() && !there.isFile() && !there.isDir();
}
