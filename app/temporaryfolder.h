// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Path before the number of every instance's unpacking folder: "tmp/files" in the application's
// local data folder. A folder of that name is created where it is missing.
QString temporaryFolderBase();

// First of base + "1", base + "2", ... that is no folder yet. It is not created.
QString freeTemporaryFolder(const QString &base);

// Removes the file or folder, except entries whose names begin with "." and so the folders that
// hold such. A symbolic link or junction is itself removed, never what it leads to. What cannot be
// removed stays without a report; an empty path does nothing.
void removeRecursively(const QString &path);
