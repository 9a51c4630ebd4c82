// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

class QFontMetrics;

// A text of a file, such as the name of a channel, as it is shown. The standard allows 64
// characters; millions would keep the window from its work.
QString shownName(const QString &name);

// A name and what follows it. Where both do not fit a width, the name is elided in the middle.
QString fittingName(
    const QString &name, const QString &suffix, const QFontMetrics &metrics, int width);

// The position of a name: the expected one where the name stands there, else its first; -1 where it
// has none. So each of several channels of one name is found, as long as two lists agree.
int positionOf(const QString &name, const QStringList &names, int expected);
