// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

class MouseMoveReceiver;

// A label placed over a plot, its parent. It keeps no mouse move to itself: each goes on to the
// plot, in the plot's coordinates and without buttons or modifiers.
class CustomLabel : public QLabel {
    Q_OBJECT

public:
    explicit CustomLabel(QWidget *parent = nullptr);

    // The plot that gets the moves; an object that is no MouseMoveReceiver counts as none. It must
    // outlive the label.
    void setPlotter(QObject *object);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    MouseMoveReceiver *plotter = nullptr;
};
