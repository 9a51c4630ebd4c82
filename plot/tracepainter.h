// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotgeometry.h"
#include "timeaxis.h"
#include "tracesummary.h"

#include <QLine>
#include <QPointF>

class QPainter;

// Draws a series times a factor as one line in the painter's pen, which must be a cosmetic one,
// from the left edge of the view on. Every point stands on a whole device pixel. Samples that are
// not finite break the line; a sample alone between two breaks is drawn as a point. The painter's
// clip is the caller's.
class TracePainter {
public:
    TracePainter(QPainter &painter, const PlotGeometry &geometry, const TimeAxis &axis);

    // The series, parallel to the times of the axis, thinned where many samples share a column of
    // device pixels. The picture is that of drawAll().
    void draw(const TraceSummary &series, double factor);

    // The series with every sample in view.
    void drawAll(const QVector<float> &values, double factor);

private:
    void drawThinned(const TraceSummary &series, double factor);
    void addColumn(const TraceSummary &series, double factor, int x, int first, int last);
    void addPoint(const QPointF &point);
    void addLine(QPointF from, QPointF to, bool evenIfPoint);
    void endLine();
    void paintLines();
    double xOf(double time) const;
    double yOf(float value, double factor) const;

    QPainter &m_painter;
    const PlotGeometry m_geometry;
    const TimeAxis &m_axis;
    const double m_ratio; // device pixels to a widget pixel
    QVector<TimeAxis::Column> m_columns; // made once for all series that share the times
    QVector<QLine> m_lines; // in device pixels
    QPointF m_end; // of the last line, in device pixels, before rounding
    bool m_isInLine = false; // whether the next point goes on from there
};
