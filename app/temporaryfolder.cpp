// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "temporaryfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <QThreadPool>
#include <QUuid>

namespace {

// Behind the path of an instance's folder.
const QLatin1String lockEnding(".lock");
const QLatin1String linkEnding(".zip");
const QLatin1String asideMark(".old-"); // before what tells several apart

// Permissions that a file or folder has, and these. No link: they would reach what it leads to.
bool allow(const QFileInfo &there, QFile::Permissions added)
{
    return QFile::setPermissions(there.filePath(), there.permissions() | added);
}

std::unique_ptr<QLockFile> lockBeside(const QString &folder)
{
    auto lock = std::make_unique<QLockFile>(folder + lockEnding);
    lock->setStaleLockTime(0); // however long an instance runs, it lives
    return lock;
}

// On another thread. The end of the program waits for it.
void removeInTheBackground(const QString &folder, Entries entries)
{
    QThreadPool::globalInstance()->start([folder, entries] { removeRecursively(folder, entries); });
}

// Takes the folder out of the way at once, whatever it holds. One that cannot be moved stays until
// it is removed.
void putAway(const QString &folder, Entries entries)
{
    if (!QFileInfo(folder).isDir())
        return;
    const QString aside = folder + asideMark + QUuid::createUuid().toString(QUuid::Id128);
    removeInTheBackground(QDir().rename(folder, aside) ? aside : folder, entries);
}

// What dead instances have left, and hidden entries that living ones let stay.
void putAwayLeftovers(const QString &base)
{
    const QString name = QFileInfo(base).fileName();
    const QDir parent = QFileInfo(base).dir();
    const QStringList locks = parent.entryList({name + QLatin1Char('*') + lockEnding}, QDir::Files);
    for (const QString &lockName : locks) {
        const QString folder = parent.filePath(lockName).chopped(lockEnding.size());
        const auto lock = lockBeside(folder);
        if (lock->tryLock()) { // its instance has died
            putAway(folder, Entries::All);
            removeRecursively(folder + linkEnding);
        }
    }
    const QStringList aside
        = parent.entryList({name + QLatin1Char('*') + asideMark + QLatin1Char('*')}, QDir::Dirs);
    for (const QString &folder : aside)
        removeInTheBackground(parent.filePath(folder), Entries::All);
}

} // namespace

TemporaryFolder::TemporaryFolder(const QString &base) : m_base(base)
{
    putAwayLeftovers(base);
    m_path = freeTemporaryFolder(base);
}

TemporaryFolder::~TemporaryFolder() = default;

QString TemporaryFolder::path() const
{
    return m_path;
}

void TemporaryFolder::renew()
{
    remove();
    QDir().mkpath(QFileInfo(m_base).path());
    Claim claimed = claim(m_path);
    for (int number = 1; claimed == Claim::Taken; ++number)
        claimed = claim(m_base + QString::number(number));
}

void TemporaryFolder::remove()
{
    if (!m_isOwn)
        return;
    putAway(m_path, Entries::Visible);
    removeRecursively(m_path + linkEnding);
    m_lock.reset();
    m_isOwn = false;
}

// A link would be followed to the file by what is unpacked, if it lay in the folder. A copy is
// write-protected where the file is.
QString TemporaryFolder::plainPath(const QString &file)
{
    QString path = m_path + linkEnding;
    const QString absolute = QFileInfo(file).absoluteFilePath();
    removeRecursively(path); // or what lies there would be taken for the file
#ifdef Q_OS_WIN
    QFile::copy(absolute, path); // a link needs rights of its own
#else
    QFile::link(absolute, path);
#endif
    return path;
}

// Other instances look for folders at the same time: what counts is who makes one, not who saw that
// it was free. A folder is locked before it is there. Where no file can be locked, it goes without.
TemporaryFolder::Claim TemporaryFolder::claim(const QString &path)
{
    m_path = path;
    auto lock = lockBeside(path);
    if (!lock->tryLock() && lock->error() == QLockFile::LockFailedError)
        return Claim::Taken;
    if (!QDir(path).exists())
        QFile::remove(path); // a file of that name is in nobody's use
    m_isOwn = QDir().mkdir(path);
    if (m_isOwn) {
        m_lock = std::move(lock);
        return Claim::Made;
    }
    return QDir(path).exists() ? Claim::Taken : Claim::Impossible;
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

void removeRecursively(const QString &path, Entries entries)
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
        if (entries == Entries::All || !name.startsWith(QLatin1Char('.')))
            removeRecursively(path + QLatin1Char('/') + name, entries);
    }
    QDir().rmdir(path);
}
