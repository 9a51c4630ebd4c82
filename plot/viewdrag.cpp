// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewdrag.h"

#include <QWidget>

#include <utility>

void ViewDrag::begin(const QPoint &point)
{
    m_last = point;
    m_plot->setCursor(Qt::ClosedHandCursor);
}

QPoint ViewDrag::moveTo(const QPoint &point)
{
    return point - std::exchange(m_last, point).value_or(point);
}

bool ViewDrag::end()
{
    if (!std::exchange(m_last, std::nullopt))
        return false;
    m_plot->unsetCursor();
    return true;
}
