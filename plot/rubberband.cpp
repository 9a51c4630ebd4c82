// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rubberband.h"

#include "bandpreview.h"
#include "plotgeometry.h"
#include "plotview.h"
#include "screenlines.h"

#include <QPainter>
#include <QWidget>

RubberBand::RubberBand(QWidget *plot) : m_plot(plot), m_preview(new BandPreview(plot)) { }

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
    m_preview->hide();
    update();
    m_plot->unsetCursor();
}

bool RubberBand::zoom(PlotView &view, bool withValues) const
{
    const QRect band = rect();
    return band.right() - band.left() > 2 && band.bottom() - band.top() > 2
        && view.zoomToBand(band, m_plot->size(), withValues);
}

void RubberBand::preview(const PlotView &view, const PlotGeometry &geometry, bool hasValues) const
{
    PlotView zoomed = view;
    if (m_isShown && geometry.isDrawable() && zoom(zoomed, true))
        m_preview->show(zoomed.live(), hasValues, geometry, rect());
    else
        m_preview->hide();
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
