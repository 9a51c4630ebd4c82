// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <memory>

class QLockFile;

// A folder of this instance's own among those of other instances: base + "1", base + "2", ... It is
// this instance's from the moment at which it makes it, and exists only while it is used. Beside it
// lies a file, its name with ".lock", that tells other instances whether this one lives.
class TemporaryFolder {
public:
    // Puts away what dead instances left. Chooses the first number that is no folder yet; nothing
    // is made.
    explicit TemporaryFolder(const QString &base);
    ~TemporaryFolder();

    QString path() const;

    // Makes the folder, empty. Where the chosen one is in use by now, or cannot be put away,
    // another number is taken. Where none can be made at all, path() does not exist.
    void renew();

    // Puts the folder away if this instance has made it. What is put away is out of sight at once;
    // it is removed on another thread, which takes a while where it is much.
    void remove();

    // Another path to the file, beside the folder and as plain as that is. It goes with the folder.
    QString plainPath(const QString &file);

private:
    enum class Claim { Made, Taken, Impossible };
    Claim claim(const QString &path); // which path() is from now on

    QString m_base;
    QString m_path;
    std::unique_ptr<QLockFile> m_lock; // of m_path, while that is this instance's
    bool m_isOwn = false; // made by this instance
};

// Path before the number of every instance's unpacking folder: "tmp/files" in the application's
// local data folder. A folder of that name is created where it is missing.
QString temporaryFolderBase();

// First of base + "1", base + "2", ... that is no folder yet. It is not created.
QString freeTemporaryFolder(const QString &base);

// Removes the file or folder, write-protected ones, too. Of what is in a folder, entries whose
// names begin with a dot stay, with their folders, unless all are asked for. A symbolic link or
// junction is itself removed, never what it leads to. What cannot be removed stays without a
// report; an empty path does nothing.
enum class Entries { Visible, All };
void removeRecursively(const QString &path, Entries entries = Entries::Visible);
