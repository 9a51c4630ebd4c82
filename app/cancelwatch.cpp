// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cancelwatch.h"

#include "sidewindows.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSplashScreen>

CancelWatch::CancelWatch(const QWidget &window, const SideWindows &sideWindows)
    : m_window(window), m_sideWindows(&sideWindows)
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
    if (!widget)
        return QObject::eventFilter(watched, event);
    const bool isSplash = qobject_cast<const QSplashScreen *>(widget);
    const bool isBeside = m_sideWindows && m_sideWindows->has(widget->window());
    const bool isClick = isSplash && event->type() == QEvent::MouseButtonPress;
    const bool isEscape = (isSplash || isBeside || widget->window() == &m_window)
        && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    m_isCancelled = m_isCancelled || isClick || isEscape;
    if (isEscape)
        emit escaped();
    return (isEscape && isBeside) || QObject::eventFilter(watched, event);
}
