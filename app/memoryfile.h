// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QJsonValue>
#include <QString>

// What the program keeps from run to run beside its settings: values by key, in a file of its own
// in the application's local data folder. Each call reads the file anew, so that what another
// instance has kept under another key stays.

QString memoryFilePath();

// Undefined where nothing is kept under the key. A file that is missing, cannot be read, holds more
// than a megabyte or is not what was written counts as empty.
QJsonValue remembered(const QString &key);

// Replaces the file as a whole; where that cannot be, all stays as it was, in silence. So it does
// where a file is there that cannot be opened, for what else it keeps would be lost.
void remember(const QString &key, const QJsonValue &value);
