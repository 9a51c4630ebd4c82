// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "startup.h"

#include "filekind.h"
#include "mainwindow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFont>
#include <QFontInfo>

#include <cstdio>

#ifdef __GLIBC__
#include <malloc.h>
#endif

void giveFreedPicturesBack()
{
#ifdef __GLIBC__
    constexpr int smallestPicture = 1 << 20; // bytes
    constexpr int stock = 8 << 20; // of smaller blocks, which come and go with every redraw
    mallopt(M_MMAP_THRESHOLD, smallestPicture);
    mallopt(M_TRIM_THRESHOLD, stock);
#endif
}

void preferApplicationFolder()
{
#ifndef Q_OS_WIN
    // Without a PATH the system searches its default one; an empty entry would be the working
    // folder.
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH",
        QFile::encodeName(QCoreApplication::applicationDirPath()) + ':'
            + (path.isEmpty() ? QByteArray("/usr/local/bin:/usr/bin:/bin") : path));
#endif
}

void useTheSystemsFont()
{
#ifdef Q_OS_WIN
    // The toolkit starts with the font of old dialogs.
    QApplication::setFont(QApplication::font("QMessageBox"));
#endif
}

void preferSimplifiedCharacters()
{
    const QFont font = QApplication::font();
    QFont::insertSubstitutions(font.family(),
        {QFontInfo(font).family(), QStringLiteral("Noto Sans CJK SC"),
            QStringLiteral("Microsoft YaHei")});
}

void openOrWait(MainWindow &window, const QString &path)
{
    constexpr qint64 splashDuration = 2000; // ms
    if (opensAtStart(path)) {
        window.open(path);
        return;
    }
    if (!path.isEmpty()) {
        const QByteArray name = path.toLocal8Bit();
        std::fprintf(stderr, "wavorin: %s: not opened: the name does not end with .cfg or .zip\n",
            name.constData());
        window.sayNotOpened(path);
    }
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < splashDuration)
        QCoreApplication::processEvents();
}
