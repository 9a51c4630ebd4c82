// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRect>

class BandPreview;
class PlotGeometry;
class PlotView;
class QPainter;
class QWidget;

// The band that the mouse draws over a plot to zoom to what is in it. A preview of what its release
// will give comes and goes with it.
class RubberBand {
    Q_DISABLE_COPY(RubberBand)

public:
    explicit RubberBand(QWidget *plot);

    bool isShown() const { return m_isShown; }
    // Of the latest band, shown or not.
    QRect rect() const { return m_rect.normalized(); }

    void begin(const QPoint &corner);
    void growTo(const QPoint &corner);
    void hide();
    // Takes over the rectangle of another plot's band.
    void copy(const RubberBand &other) { m_rect = other.m_rect; }
    // Zooms a view of the plot to the latest band; false where that is too small or the view could
    // not be shown.
    bool zoom(PlotView &view, bool withValues) const;
    // While the band is shown: previews what its release makes of the view, with or without values.
    void preview(const PlotView &view, const PlotGeometry &geometry, bool hasValues) const;
    // Its frame, one pixel wide, in the light colour of the plot's palette.
    void paint(QPainter &painter) const;

private:
    void update() const;

    QWidget *m_plot;
    BandPreview *m_preview;
    QRect m_rect;
    bool m_isShown = false;
};
