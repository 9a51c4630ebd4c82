// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>
#include <QPoint>
#include <QPointer>

// The drag of a cursor's label: the press of the label, and from a distance on its move.
class LabelDrag {
public:
    void press(const QLabel *label, const QPoint &point);
    // Whether the label moves, now that the mouse is at that point.
    bool moveTo(const QPoint &point);
    // Whether the label did move.
    bool end();

    const QLabel *label() const { return m_label; } // null where none is pressed

private:
    QPointer<const QLabel> m_label; // another plot may remove its cursor
    QPoint m_press;
    bool m_isMoving = false;
};
