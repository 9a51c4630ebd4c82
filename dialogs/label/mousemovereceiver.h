// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtPlugin>

class QMouseEvent;

// Something that follows the mouse also while it is over a child that covers it. The position of
// the event is in the receiver's own coordinates; the event lives for the duration of the call.
class MouseMoveReceiver {
public:
    virtual ~MouseMoveReceiver() = default;

    virtual void receiveMouseMove(QMouseEvent *event) = 0;
};

Q_DECLARE_INTERFACE(MouseMoveReceiver, "wavorin.MouseMoveReceiver/1.0")
