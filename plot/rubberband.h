// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRect>

class QPainter;
class QWidget;

// The band that the mouse draws over a plot to zoom to what is in it.
class RubberBand {
public:
    explicit RubberBand(QWidget *plot) : m_plot(plot) { }

    bool isShown() const { return m_isShown; }
    // Of the latest band, shown or not.
    QRect rect() const { return m_rect.normalized(); }

    void begin(const QPoint &corner);
    void growTo(const QPoint &corner);
    void hide();
    // Takes over the rectangle of another plot's band.
    void copy(const RubberBand &other) { m_rect = other.m_rect; }
    // Its frame, one pixel wide, in the light colour of the plot's palette.
    void paint(QPainter &painter) const;

private:
    void update() const;

    QWidget *m_plot;
    QRect m_rect;
    bool m_isShown = false;
};
