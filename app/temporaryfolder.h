// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// A folder of this instance's own among those of other instances: base + "1", base + "2", ... It is
// this instance's from the moment at which it makes it, and exists only while it is used.
class TemporaryFolder {
public:
    // Chooses the first number that is no folder yet; nothing is made.
    explicit TemporaryFolder(const QString &base);

    QString path() const;

    // Makes the folder, empty. Where the chosen one is in use by now, or holds what cannot be
    // removed, another number is taken. Where none can be made at all, path() does not exist.
    void renew();

    // Removes the folder if this instance has made it.
    void remove();

private:
    bool claim(); // the chosen number

    QString m_base;
    QString m_path;
    bool m_isOwn = false; // made by this instance
};

// Path before the number of every instance's unpacking folder: "tmp/files" in the application's
// local data folder. A folder of that name is created where it is missing.
QString temporaryFolderBase();

// First of base + "1", base + "2", ... that is no folder yet. It is not created.
QString freeTemporaryFolder(const QString &base);

// Removes the file or folder, write-protected ones, too, except entries whose names begin with "."
// and so the folders that hold such. A symbolic link or junction is itself removed, never what it
// leads to. What cannot be removed stays without a report; an empty path does nothing.
void removeRecursively(const QString &path);
