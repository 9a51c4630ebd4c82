// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "customlabel.h"

#include "mousemovereceiver.h"

#include <QMouseEvent>

CustomLabel::CustomLabel(QWidget *parent) : QLabel(parent)
{
    setMouseTracking(true);
    // A label that takes the focus would else keep the release of a button whose press it let go.
    setTextInteractionFlags(Qt::NoTextInteraction);
}

void CustomLabel::setPlotter(QObject *object)
{
    plotter = qobject_cast<MouseMoveReceiver *>(object);
}

void CustomLabel::mouseMoveEvent(QMouseEvent *event)
{
    if (!plotter)
        return;
    QMouseEvent move(QEvent::MouseMove, event->localPos().toPoint() + pos(), Qt::NoButton,
        Qt::NoButton, Qt::NoModifier);
    plotter->receiveMouseMove(&move);
}
