// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tracepainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// Lines are cut to a square so far beyond any plot that rounding their ends does not turn them, and
// still small enough for painting.
constexpr double farAway = 1 << 20;

// Positions are kept so small that what is computed of two of them is finite.
constexpr double farthest = 1e100;

bool isNear(const QPointF &point)
{
    return std::abs(point.x()) <= farAway && std::abs(point.y()) <= farAway;
}

// Cuts a line to the square; false where none of it lies in there.
bool cutToSquare(QPointF &from, QPointF &to)
{
    const QPointF start = from;
    const QPointF way = to - from;
    double enters = 0; // as shares of the way
    double leaves = 1;
    const auto cut = [&](double position, double step) {
        if (step == 0)
            return std::abs(position) <= farAway;
        const double low = (-farAway - position) / step;
        const double high = (farAway - position) / step;
        enters = std::max(enters, std::min(low, high));
        leaves = std::min(leaves, std::max(low, high));
        return enters <= leaves;
    };
    if (!cut(start.x(), way.x()) || !cut(start.y(), way.y()))
        return false;
    if (enters > 0)
        from = start + enters * way;
    if (leaves < 1)
        to = start + leaves * way;
    return true;
}

double kept(double position)
{
    return std::clamp(position, -farthest, farthest);
}

} // namespace

TracePainter::TracePainter(QPainter &painter, const PlotGeometry &geometry, const TimeAxis &axis)
    : m_painter(painter),
      m_geometry(geometry),
      m_axis(axis),
      m_ratio(painter.device()->devicePixelRatioF())
{
}

double TracePainter::xOf(double time) const
{
    return kept(m_geometry.traceX(time) * m_ratio);
}

double TracePainter::yOf(float value, double factor) const
{
    return kept(m_geometry.traceY(static_cast<double>(value) * factor) * m_ratio);
}

void TracePainter::draw(const TraceSummary &series, double factor)
{
    if (!std::isfinite(factor))
        return;
    const int count = std::min(series.values().size(), m_axis.times().size());
    if (!m_axis.runs().isEmpty() && count > 2 * m_ratio * m_geometry.plotWidth())
        drawThinned(series, factor);
    else
        drawAll(series.values(), factor);
}

void TracePainter::drawAll(const QVector<float> &values, double factor)
{
    const QVector<double> &times = m_axis.times();
    const int count = std::min(values.size(), times.size());
    const double minX = m_geometry.view().minX;
    const double right = m_ratio * (m_geometry.area().right() + 1);
    const bool isAscending = m_axis.isAscending();
    const int first = isAscending ? m_axis.firstAtOrAfter(minX, {0, times.size()}) : 0;
    for (int i = first; i < count; ++i) {
        if (!(times[i] >= minX))
            continue;
        const double x = xOf(times[i]);
        if (std::isfinite(values[i]))
            addPoint({x, yOf(values[i], factor)});
        else
            endLine();
        if (x > right && isAscending)
            break;
    }
    paintLines();
}

void TracePainter::drawThinned(const TraceSummary &series, double factor)
{
    if (m_columns.isEmpty())
        m_columns = m_axis.columns(m_geometry, m_ratio);
    const int count = series.values().size();
    for (const TimeAxis::Column &column : qAsConst(m_columns)) {
        if (column.first < count)
            addColumn(series, factor, column.x, column.first, std::min(column.last, count));
    }
    paintLines();
}

// All samples stand on one column, so the line covers it from the smallest to the largest; it
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
        const QVector<double> &times = m_axis.times();
        addPoint({xOf(times.at(first)), yOf(series.values().at(first), factor)});
        addLine({double(x), yOf(extent.min, factor)}, {double(x), yOf(extent.max, factor)}, true);
        m_end = {xOf(times.at(last - 1)), yOf(series.values().at(last - 1), factor)};
    }
}

// Lines of their own rather than one polyline: each then covers both of its ends, and the picture
// does not depend on which points of a column are joined in between.
void TracePainter::addPoint(const QPointF &point)
{
    addLine(m_isInLine ? m_end : point, point, !m_isInLine);
    m_end = point;
    m_isInLine = true;
}

void TracePainter::addLine(QPointF from, QPointF to, bool evenIfPoint)
{
    if (!(isNear(from) && isNear(to)) && !cutToSquare(from, to))
        return;
    const QLine line(PlotGeometry::pixel(from.x()), PlotGeometry::pixel(from.y()),
        PlotGeometry::pixel(to.x()), PlotGeometry::pixel(to.y()));
    if (evenIfPoint || line.p1() != line.p2())
        m_lines.append(line);
}

void TracePainter::endLine()
{
    m_isInLine = false;
}

void TracePainter::paintLines()
{
    m_painter.save();
    m_painter.scale(1 / m_ratio, 1 / m_ratio);
    m_painter.drawLines(m_lines);
    m_painter.restore();
    m_lines.clear();
    m_isInLine = false;
}
