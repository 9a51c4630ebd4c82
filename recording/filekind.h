// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

// What a file is taken for, by its path. Every question has a rule of its own, on purpose: "A.CFG"
// opens from the dialog but not at start, and "data.TXT" is loaded, yet not as a text export.

// Start-up opens it: the path ends with ".zip" or ".cfg", in small letters.
bool opensAtStart(const QString &path);

// It is unpacked: ".zip" stands anywhere in the path, in any case.
bool isPackage(const QString &path);

// It is loaded as a recording: ".cfg" or ".txt" stands anywhere in the path, in any case.
bool isRecording(const QString &path);

// A recording is read as a text export, not as a configuration: the path ends with ".txt", in small
// letters.
bool isTextExport(const QString &path);

// All of a recording in one file, which the viewer does not read: the path ends with ".cff", in any
// case.
bool isSingleFile(const QString &path);

// It is neither a file nor a folder. Reading it could wait for ever, or never end.
bool isPipeOrDevice(const QString &path);

// Where a path does not exist, the file of the same folder whose name differs in case only, as
// Windows finds it by itself. Of several, one that differs in the case of its ending alone is
// nearest.
QString existingPath(const QString &path);

// The first package or recording among several files, a data file standing for the configuration
// beside it. Where there is none, the first file.
QString recordingToOpen(const QStringList &paths);
