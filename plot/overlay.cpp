// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "overlay.h"

#include "baselayer.h"
#include "cursormarks.h"

#include <QPainter>

#include <cmath>

void Overlay::draw(const CursorMarks &cursors, const PlotGeometry &geometry, const QRect &title,
    const QFont &font, qreal ratio)
{
    // From a whole pixel of the screen to another, or letters would change with their place in it.
    const int top = static_cast<int>(std::floor(CursorMarks::differencesTop * ratio));
    const int bottom = static_cast<int>(
        std::ceil((CursorMarks::differencesTop + CursorMarks::differencesHeight) * ratio));
    m_top = top / ratio;
    clearLayer(m_strip, {(geometry.widgetSize() * ratio).width(), bottom - top}, ratio);
    if (m_strip.isNull())
        return;
    QPainter painter(&m_strip);
    painter.translate(0, -m_top);
    painter.setFont(smallFont(font));
    cursors.paintDifferences(painter, geometry, title);
}

void Overlay::paint(QPainter &painter) const
{
    painter.drawPixmap(QPointF(0, m_top), m_strip);
}
