// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recentrecordings.h"

#include "memoryfile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace {

constexpr int mostRecordings = 10;
const QString key = QStringLiteral("recordings");

// As the system tells names apart.
bool isSame(const QString &path, const QString &other)
{
#ifdef Q_OS_WIN
    constexpr Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive;
#else
    constexpr Qt::CaseSensitivity sensitivity = Qt::CaseSensitive;
#endif
    return path.compare(other, sensitivity) == 0;
}

void addNew(QStringList &paths, const QString &path)
{
    const auto isThis = [&](const QString &other) { return isSame(other, path); };
    if (paths.size() < mostRecordings && std::none_of(paths.cbegin(), paths.cend(), isThis))
        paths.append(path);
}

} // namespace

// Whoever has written the file: no path is taken that the viewer would not have kept.
QStringList recentRecordings()
{
    constexpr int mostLetters = 4096;
    QStringList paths;
    const QJsonArray kept = remembered(key).toArray();
    for (const QJsonValue &value : kept) {
        const QString path = value.toString();
        if (path.size() <= mostLetters && QDir::isAbsolutePath(path))
            addNew(paths, path);
    }
    return paths;
}

void rememberRecording(const QString &path)
{
    QStringList paths{QDir::cleanPath(QFileInfo(path).absoluteFilePath())};
    for (const QString &earlier : recentRecordings())
        addNew(paths, earlier);
    remember(key, QJsonArray::fromStringList(paths));
}

bool isStillThere(const QString &path)
{
    return path.startsWith(QLatin1String("//")) || QFileInfo(path).isFile();
}
