// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QWidget>

// Opens the context menu at a point of a plot; null where there is none.
inline QMenu *contextMenuAt(QWidget *plot, const QPoint &point)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, plot->mapToGlobal(point));
    QApplication::sendEvent(plot, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

// Without the marks of letters; "&&" is shown as "&".
inline QString shownText(const QString &text)
{
    QString shown;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&'))
            ++i;
        shown += text.mid(i, 1);
    }
    return shown;
}

// By a text with or without such marks.
inline QAction *entryOf(const QMenu *menu, const QString &text)
{
    const QList<QAction *> actions = menu ? menu->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (shownText(action->text()) == shownText(text))
            return action;
    }
    return nullptr;
}

// Whether there is such an entry at a point of a plot, and it can be chosen.
inline bool offers(QWidget *plot, const QString &text, const QPoint &point = {300, 150})
{
    QMenu *menu = contextMenuAt(plot, point);
    const QAction *entry = entryOf(menu, text);
    const bool isOffered = entry && entry->isEnabled();
    delete menu;
    return isOffered;
}

// Chooses an entry; false where it cannot be chosen.
inline bool choose(QWidget *plot, const QString &text, const QPoint &point = {300, 150})
{
    const QPointer<QMenu> menu = contextMenuAt(plot, point); // a dialog closes it
    QAction *entry = entryOf(menu, text);
    const bool isChosen = entry && entry->isEnabled();
    if (isChosen)
        entry->trigger();
    delete menu;
    return isChosen;
}
