// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "channelnames.h"

#include <QFontMetrics>

QString shownName(const QString &name)
{
    constexpr int mostCharacters = 1000;
    return name.left(mostCharacters);
}

QString fittingName(
    const QString &name, const QString &suffix, const QFontMetrics &metrics, int width)
{
    const QString shown = shownName(name);
    if (metrics.horizontalAdvance(shown + suffix) <= width)
        return shown + suffix;
    const int room = width - metrics.horizontalAdvance(suffix);
    return metrics.elidedText(shown, Qt::ElideMiddle, room) + suffix;
}

int positionOf(const QString &name, const QStringList &names, int expected)
{
    const bool isExpected = expected >= 0 && expected < names.size() && names.at(expected) == name;
    return isExpected ? expected : names.indexOf(name);
}
