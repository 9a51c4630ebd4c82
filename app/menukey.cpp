// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "menukey.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QWidget>

MenuKey::MenuKey(QObject *parent) : QObject(parent)
{
    if (QGuiApplication::platformName() != QLatin1String("windows")) // which does so by itself
        qApp->installEventFilter(this);
}

// The first widget that is told of the key has the focus, or has grabbed the keyboard. The menu
// stands where the toolkit puts that of the Menu key.
bool MenuKey::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::KeyPress || !widget || QApplication::activePopupWidget())
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_F10 || key->modifiers() != Qt::ShiftModifier)
        return QObject::eventFilter(watched, event);
    const QPoint place = widget->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent request(QContextMenuEvent::Keyboard, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &request);
    return true;
}
