// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QStringRef>
#include <QVector>

class QIODevice;

// The next line with its line end. Empty at the end of the device and where the line is longer than
// mostLineBytes, which is told then. Throws a ReadError where the device fails.
QByteArray nextLine(QIODevice &device, bool &isTooLong);

// Throws a ReadError where a device that gave nothing more is not at its end.
void requireEnd(QIODevice &device);

// The first fields of a line that is split at its commas, at most so many. They refer to the line.
QVector<QStringRef> firstFields(const QString &line, int most);
