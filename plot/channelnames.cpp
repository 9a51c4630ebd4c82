// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "channelnames.h"

#include <QFontMetrics>

NameLetters &NameLetters::shared()
{
    static NameLetters letters;
    return letters;
}

void NameLetters::choose(Letters letters)
{
    if (m_letters == letters)
        return;
    m_letters = letters;
    emit changed();
}

QString shownName(const QString &name)
{
    const QString cut = cutText(name);
    QString shown = inLetters(cut, NameLetters::shared().letters(), cut.size() < name.size());
    while (shown.endsWith(QLatin1Char('\n')) || shown.endsWith(QLatin1Char('\r')))
        shown.chop(1);
    return shown;
}

QString trimmedName(const QString &name)
{
    return shownName(name).trimmed();
}

QString cutText(const QString &text)
{
    constexpr int mostCharacters = 1000;
    return text.left(mostCharacters);
}

QString fittingName(
    const QString &shown, const QString &suffix, const QFontMetrics &metrics, int width)
{
    const QString cut = cutText(shown);
    if (metrics.horizontalAdvance(cut + suffix) <= width)
        return cut + suffix;
    const int room = width - metrics.horizontalAdvance(suffix);
    return metrics.elidedText(cut, Qt::ElideMiddle, room) + suffix;
}

int positionOf(const QString &name, const QStringList &names, int expected)
{
    const bool isExpected = expected >= 0 && expected < names.size() && names.at(expected) == name;
    return isExpected ? expected : names.indexOf(name);
}
