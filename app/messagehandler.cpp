// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "messagehandler.h"

#include <cstdio>
#include <cstdlib>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <csignal>
#endif

namespace {

void breakIntoDebugger()
{
#ifdef Q_OS_WIN
    DebugBreak();
#else
    std::raise(SIGTRAP);
#endif
}

} // namespace

void messageOutput(QtMsgType type, const char *message)
{
    switch (type) {
    case QtDebugMsg:
        std::fprintf(stderr, "Debug: %s\n", message);
        break;
    case QtWarningMsg:
        std::fprintf(stderr, "Warning: %s\n", message);
        break;
    case QtCriticalMsg:
        std::fprintf(stderr, "Critical: %s\n", message);
        break;
    case QtFatalMsg:
        std::fprintf(stderr, "Fatal: %s\n", message);
        breakIntoDebugger();
        std::abort();
    case QtInfoMsg:
        break;
    }
}
