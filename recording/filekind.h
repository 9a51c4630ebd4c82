// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFileInfo>

// Whether a path leads to what is no file and no folder. Reading it could wait for ever, or never
// end.
inline bool isPipeOrDevice(const QString &path)
{
    const QFileInfo there(path);
    return there.exists() && !there.isFile() && !there.isDir();
}
