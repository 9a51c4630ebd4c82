// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tracepainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

TracePainter::TracePainter(QPainter &painter, const PlotGeometry &geometry, const TimeAxis &axis)
    : m_painter(painter), m_geometry(geometry), m_axis(axis)
{
}

int TracePainter::yOf(float value, double factor) const
{
    return PlotGeometry::pixel(m_geometry.traceY(static_cast<double>(value) * factor));
}

void TracePainter::draw(const TraceSummary &series, double factor)
{
    if (!std::isfinite(factor))
        return;
    const int count = std::min(series.values().size(), m_axis.times().size());
    if (m_axis.isAscending() && count > 2 * m_geometry.plotWidth())
        drawThinned(series, factor);
    else
        drawAll(series.values(), factor);
}

void TracePainter::drawAll(const QVector<float> &values, double factor)
{
    const QVector<double> &times = m_axis.times();
    const int count = std::min(values.size(), times.size());
    const double minX = m_geometry.view().minX;
    const int right = m_geometry.area().right();
    for (int i = m_axis.isAscending() ? m_axis.firstAtOrAfter(minX) : 0; i < count; ++i) {
        if (!(times[i] >= minX))
            continue;
        const int x = PlotGeometry::pixel(m_geometry.traceX(times[i]));
        if (std::isfinite(values[i]))
            addPoint(x, yOf(values[i], factor));
        else
            endLine();
        if (x > right && m_axis.isAscending())
            break;
    }
    paintLines();
}

void TracePainter::drawThinned(const TraceSummary &series, double factor)
{
    if (m_columns.isEmpty())
        m_columns = m_axis.columns(m_geometry);
    const int count = series.values().size();
    for (const TimeAxis::Column &column : qAsConst(m_columns)) {
        if (column.first < count)
            addColumn(series, factor, column.x, column.first, std::min(column.last, count));
    }
    paintLines();
}

// All samples stand on one pixel column, so the line covers it from the smallest to the largest; it
// enters at the first and leaves at the last. A run with gaps is halved until its parts have none.
void TracePainter::addColumn(const TraceSummary &series, double factor, int x, int first, int last)
{
    const TraceExtent extent = series.extent(first, last);
    if (extent.isEmpty()) {
        endLine();
    } else if (extent.broken) {
        const int middle = first + (last - first) / 2;
        addColumn(series, factor, x, first, middle);
        addColumn(series, factor, x, middle, last);
    } else {
        addPoint(x, yOf(series.values().at(first), factor));
        m_lines.append({x, yOf(extent.min, factor), x, yOf(extent.max, factor)});
        m_end = {x, yOf(series.values().at(last - 1), factor)};
    }
}

// Lines of their own rather than one polyline: each then covers both of its ends, and the picture
// does not depend on which points of a column are joined in between.
void TracePainter::addPoint(int x, int y)
{
    const QPoint point(x, y);
    if (!m_isInLine)
        m_lines.append({point, point});
    else if (point != m_end)
        m_lines.append({m_end, point});
    m_end = point;
    m_isInLine = true;
}

void TracePainter::endLine()
{
    m_isInLine = false;
}

void TracePainter::paintLines()
{
    m_painter.drawLines(m_lines);
    m_lines.clear();
    m_isInLine = false;
}
