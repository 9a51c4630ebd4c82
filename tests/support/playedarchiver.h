// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <csignal>
#endif

// Puts the program of archiverplayer.cpp, which does what these lines say, in the archiver's place:
// before all others of the search path.
inline void playArchiver(const QByteArray &lines, const QByteArray &searchPath)
{
    const QDir folder(QCoreApplication::applicationDirPath() + QLatin1String("/../played"));
    qputenv("WAVORIN_PLAY", lines);
    qputenv("PATH",
        QFile::encodeName(QDir::toNativeSeparators(folder.absolutePath()))
            + QDir::listSeparator().toLatin1() + searchPath);
}

// Whether the process of the number that a file holds is no more; false where it holds none.
inline bool hasEnded(const QString &file)
{
    QFile text(file);
    const int number = text.open(QIODevice::ReadOnly) ? text.readAll().trimmed().toInt() : 0;
    if (number <= 0)
        return false;
#ifdef Q_OS_WIN
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(number));
    const bool ended = !process || WaitForSingleObject(process, 0) == WAIT_OBJECT_0;
    CloseHandle(process);
    return ended;
#else
    return kill(number, 0) != 0;
#endif
}
