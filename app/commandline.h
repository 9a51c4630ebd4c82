// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

// The argument from the locale's encoding to 8-bit text that reads right as Latin-1; letters
// outside Latin-1 become "?". Needs the application object, which sets the locale.
QByteArray latin1Argument(const char *argument);

// The path on the command line, argument 1 read as Latin-1; null where there is none. The Windows
// start-up code has turned the arguments into 8-bit text before; elsewhere it is done here.
QString pathArgument(int argc, const char *const *argv);

// Whether argument 1 asks for help or for the version.
bool isQuestion(int argc, const char *const *argv);

// Prints what argument 1 asks for and ends the process; no display is needed. On Windows a box
// tells it where there is no console.
[[noreturn]] void answerQuestion(int argc, char **argv);
