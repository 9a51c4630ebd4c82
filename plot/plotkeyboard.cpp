// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotkeyboard.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

bool PlotKeyboard::isGrabbed() const
{
    return QWidget::keyboardGrabber() == m_plot;
}

void PlotKeyboard::endGrab()
{
    if (isGrabbed())
        m_plot->releaseKeyboard();
}

void PlotKeyboard::release()
{
    endGrab();
    releaseKey();
}

void PlotKeyboard::hold(int key)
{
    m_key = key;
    qApp->installEventFilter(this);
}

void PlotKeyboard::takeKey(PlotKeyboard &other)
{
    if (other.m_key != noKey)
        hold(std::exchange(other.m_key, noKey));
}

// Sees the release of a key wherever it goes: it may reach another widget than the press did.
bool PlotKeyboard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyRelease) {
        releaseKey();
        qApp->removeEventFilter(this);
    }
    return QObject::eventFilter(watched, event);
}
