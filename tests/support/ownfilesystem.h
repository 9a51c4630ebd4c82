// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#ifdef Q_OS_LINUX
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>
#endif

// A file system in memory that this process alone sees. It needs the rights of the superuser or a
// system that gives each user a name space of his own. That one is entered before main(), while the
// process has a single thread.
class OwnFileSystem {
public:
    explicit OwnFileSystem(int bytes)
    {
#ifdef Q_OS_LINUX
        m_isMounted = s_isAlone
            && mount("none", encodedPath().constData(), "tmpfs", 0,
                   ("size=" + QByteArray::number(bytes)).constData())
                == 0;
#else
        Q_UNUSED(bytes)
#endif
    }
    ~OwnFileSystem()
    {
#ifdef Q_OS_LINUX
        if (m_isMounted)
            umount2(encodedPath().constData(), MNT_DETACH);
#endif
    }
    OwnFileSystem(const OwnFileSystem &) = delete;
    OwnFileSystem &operator=(const OwnFileSystem &) = delete;

    bool isMounted() const
    {
        return m_isMounted;
    }
    QString path(const char *name = "") const
    {
        return m_folder.filePath(QLatin1String(name));
    }

    // Leaves no room for more, by a file of that name.
    void fill(const char *name) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return;
        while (file.write(QByteArray(4096, 'x')) > 0) { }
    }

    // From now on nothing can be written, not even by the superuser.
    bool makeReadOnly() const
    {
#ifdef Q_OS_LINUX
        return mount("none", encodedPath().constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr)
            == 0;
#else
        return false;
#endif
    }

private:
    QByteArray encodedPath() const
    {
        return QFile::encodeName(m_folder.path());
    }

#ifdef Q_OS_LINUX
    static bool leaveForOwnNameSpace()
    {
        const auto tell = [](const char *file, const QByteArray &text) {
            QFile settings(QLatin1String("/proc/self/") + QLatin1String(file));
            return settings.open(QIODevice::WriteOnly) && settings.write(text) == text.size();
        };
        const QByteArray user = "0 " + QByteArray::number(geteuid()) + " 1";
        const QByteArray group = "0 " + QByteArray::number(getegid()) + " 1";
        const bool isAlone = unshare(CLONE_NEWNS) == 0
            || (unshare(CLONE_NEWNS | CLONE_NEWUSER) == 0 && tell("uid_map", user)
                && tell("setgroups", "deny") && tell("gid_map", group));
        return isAlone && mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0;
    }

    static inline const bool s_isAlone = leaveForOwnNameSpace();
#endif

    QTemporaryDir m_folder;
    bool m_isMounted = false;
};
