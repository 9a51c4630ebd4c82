// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "labeldrag.h"

#include <QApplication>

#include <utility>

void LabelDrag::press(const QLabel *label, const QPoint &point)
{
    m_label = label;
    m_press = point;
}

bool LabelDrag::moveTo(const QPoint &point)
{
    if (m_label && (point - m_press).manhattanLength() >= QApplication::startDragDistance())
        m_isMoving = true;
    return m_isMoving;
}

bool LabelDrag::end()
{
    m_label = nullptr;
    return std::exchange(m_isMoving, false);
}
