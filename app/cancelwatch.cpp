// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cancelwatch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSplashScreen>

CancelWatch::CancelWatch(const QWidget &window) : m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool CancelWatch::isCancelled() const
{
    return m_isCancelled;
}

bool CancelWatch::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (widget) {
        const bool isSplash = qobject_cast<const QSplashScreen *>(widget);
        const bool isClick = isSplash && event->type() == QEvent::MouseButtonPress;
        const bool isEscape = (isSplash || widget->window() == &m_window)
            && event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
        m_isCancelled = m_isCancelled || isClick || isEscape;
        if (isEscape)
            emit escaped();
    }
    return QObject::eventFilter(watched, event);
}
