// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "temporaryfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// Permissions that a file or folder has, and these. No link: they would reach what it leads to.
bool allow(const QFileInfo &there, QFile::Permissions added)
{
    return QFile::setPermissions(there.filePath(), there.permissions() | added);
}

} // namespace

TemporaryFolder::TemporaryFolder(const QString &base)
    : m_base(base), m_path(freeTemporaryFolder(base))
{
}

QString TemporaryFolder::path() const
{
    return m_path;
}

void TemporaryFolder::renew()
{
    remove();
    QDir().mkpath(QFileInfo(m_base).path());
    // A folder that is not there and yet cannot be made is being made by another instance at this
    // instant; where that seems to go on, none can be made at all.
    constexpr int mostAttempts = 100;
    for (int attempt = 0; !claim() && attempt < mostAttempts; ++attempt)
        m_path = freeTemporaryFolder(m_base);
}

void TemporaryFolder::remove()
{
    if (m_isOwn)
        removeRecursively(m_path);
    m_isOwn = false;
}

// Other instances look for folders at the same time: what counts is who makes one, not who saw that
// it was free.
bool TemporaryFolder::claim()
{
    if (!QDir(m_path).exists())
        QFile::remove(m_path); // a file of that name is in nobody's use
    m_isOwn = QDir().mkdir(m_path);
    return m_isOwn;
}

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
    if (info.isSymLink() || info.isJunction()) {
        // Windows removes a link to a folder as it does a folder.
        if (!QFile::remove(path))
            QDir().rmdir(path);
        return;
    }
    if (!info.isDir()) {
        if (!QFile::remove(path) && allow(info, QFile::WriteOwner))
            QFile::remove(path);
        return;
    }
    allow(info, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // Without QDir::System a link that leads nowhere would not be listed.
    const QStringList names = QDir(path).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        if (!name.startsWith(QLatin1Char('.')))
            removeRecursively(path + QLatin1Char('/') + name);
    }
    QDir().rmdir(path);
}
