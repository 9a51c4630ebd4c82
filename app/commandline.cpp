// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "commandline.h"

QByteArray latin1Argument(const char *argument)
{
    return QString::fromLocal8Bit(argument).toLatin1();
}

QString pathArgument(int argc, const char *const *argv)
{
    if (argc < 2)
        return QString();
#ifdef Q_OS_WIN
    return QString::fromLatin1(argv[1]);
#else
    return QString::fromLatin1(latin1Argument(argv[1]));
#endif
}
