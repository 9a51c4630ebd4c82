// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotgeometry.h"
#include "timeaxis.h"
#include "tracesummary.h"

#include <QLine>

class QPainter;

// Draws a series times a factor as one line in the painter's pen, from the left edge of the view
// on. Every point stands on a whole pixel. Samples that are not finite break the line; a sample
// alone between two breaks is drawn as a point. The painter's clip is the caller's.
class TracePainter {
public:
    TracePainter(QPainter &painter, const PlotGeometry &geometry, const TimeAxis &axis);

    // The series, parallel to the times of the axis, thinned where many samples share a pixel
    // column. The picture is that of drawAll().
    void draw(const TraceSummary &series, double factor);

    // The series with every sample in view.
    void drawAll(const QVector<float> &values, double factor);

private:
    void drawThinned(const TraceSummary &series, double factor);
    void addColumn(const TraceSummary &series, double factor, int x, int first, int last);
    void addPoint(int x, int y);
    void endLine();
    void paintLines();
    int yOf(float value, double factor) const;

    QPainter &m_painter;
    const PlotGeometry m_geometry;
    const TimeAxis &m_axis;
    QVector<TimeAxis::Column> m_columns; // made once for all series that share the times
    QVector<QLine> m_lines;
    QPoint m_end; // of the last line
    bool m_isInLine = false; // whether the next point goes on from there
};
