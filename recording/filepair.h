// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>

class QFileDevice;

// A file as it is to be. The function writes all of its contents, by writeAll(); it may be called
// once or never.
struct NewFile {
    QString path;
    std::function<void(QFileDevice &)> write;
};

// What became of files to be written. One that could not be opened is passed over in silence; of
// one that could be opened but not written in full, the path and the error are told.
struct WriteOutcome {
    QString failedFile;
    QString error;
    bool hasFailed() const { return !failedFile.isEmpty(); }
};

// Writes a text, but nothing behind one that did not fit.
void writeAll(QFileDevice &file, const char *text, qint64 size);

// Replaces a file or makes a new one, as a whole or not at all. That it cannot be opened is told,
// too.
WriteOutcome replaceFile(const QString &path, const QByteArray &contents);

// Writes two files that belong together. Where both are there already, either both are replaced or
// neither is; where one is missing, the other may be written alone. A file takes its place when
// both are complete. Only in a folder that takes no new file the contents are exchanged in place,
// so that a write that fails leaves a part. The first file should be the smaller one.
WriteOutcome writePair(const NewFile &first, const NewFile &second);
