// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPixmap>

class CursorMarks;
class PlotGeometry;
class QFont;
class QPainter;
class QRect;

// The upper layer of a plot: the time differences between its cursors. Its picture is only as high
// as the strip that holds them; so it costs little beside the base layer.
class Overlay {
public:
    // The ratio is that of the screen's pixels to those of the plot; the font is the plot's.
    void draw(const CursorMarks &cursors, const PlotGeometry &geometry, const QRect &title,
        const QFont &font, qreal ratio);
    void clear() { m_strip = QPixmap(); }
    // Copies the picture to its place in the plot.
    void paint(QPainter &painter) const;

    QSize pixels() const { return m_strip.size(); } // of the screen; empty where there is nothing

private:
    QPixmap m_strip;
    qreal m_top = 0; // in the plot
};
