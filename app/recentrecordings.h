// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

// The recordings that were on screen, in this run and earlier ones, in the program's memory file.

// At most ten absolute paths, none twice, the latest first. The files may be gone by now.
QStringList recentRecordings();

// A recording has come on screen; for one from a package, the path is that of the package.
void rememberRecording(const QString &path);

// False where a file is gone. Of files on other computers that is not asked: it could take long.
bool isStillThere(const QString &path);
