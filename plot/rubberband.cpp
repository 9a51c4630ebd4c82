// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rubberband.h"

#include "baselayer.h"

#include <QPainter>
#include <QWidget>

void RubberBand::begin(const QPoint &corner)
{
    hide(); // one whose end was not told
    m_rect = QRect(corner, corner);
    m_isShown = true;
    update();
    m_plot->setCursor(Qt::CrossCursor);
}

void RubberBand::growTo(const QPoint &corner)
{
    update();
    m_rect.setBottomRight(corner);
    update();
}

void RubberBand::hide()
{
    m_isShown = false;
    update();
    m_plot->unsetCursor();
}

void RubberBand::paint(QPainter &painter) const
{
    if (m_isShown)
        fillFrame(painter, rect(), m_plot->palette().light().color());
}

void RubberBand::update() const
{
    m_plot->update(rect().adjusted(-1, -1, 1, 1));
}
