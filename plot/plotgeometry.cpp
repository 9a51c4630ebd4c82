// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotgeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double farAway = 1 << 20;

} // namespace

PlotGeometry::PlotGeometry(QSize widget, int readoutWidth, const PlotSettings &view)
    : m_widget(widget), m_readoutWidth(readoutWidth), m_view(view)
{
}

QRect PlotGeometry::area() const
{
    return {QPoint(left, top), QPoint(left + plotWidth() - 3, plotHeight())};
}

double PlotGeometry::traceX(double time) const
{
    return left + (time - m_view.minX) * plotWidth() / m_view.spanX();
}

double PlotGeometry::traceY(double value) const
{
    return top + (m_view.maxY - value) * (plotHeight() - top) / m_view.spanY();
}

double PlotGeometry::lineTime(int x) const
{
    const int width = plotWidth() - 3;
    return width == 0 ? m_view.minX : m_view.minX + m_view.spanX() * (x - left) / width;
}

double PlotGeometry::traceTime(double x) const
{
    return plotWidth() == 0 ? m_view.minX : m_view.minX + m_view.spanX() * (x - left) / plotWidth();
}

double PlotGeometry::cursorX(double time) const
{
    return left + (time - m_view.minX) * (plotWidth() - 3) / m_view.spanX();
}

int PlotGeometry::pixel(double position)
{
    return static_cast<int>(std::lround(std::clamp(position, -farAway, farAway)));
}

int PlotGeometry::truncated(double value)
{
    using Limits = std::numeric_limits<int>;
    return std::isnan(value)
        ? 0
        : static_cast<int>(std::clamp<double>(value, Limits::min(), Limits::max()));
}

int PlotGeometry::rowY(int row, int rows) const
{
    const qint64 height = plotHeight() - top;
    return top + static_cast<int>((row + 1) * height / (rows + 1));
}

int PlotGeometry::rowAt(int y, int rows) const
{
    const double height = static_cast<double>(plotHeight() - top) / (rows + 1);
    const int row = height > 0 ? truncated(std::floor((y - top) / height - 0.5)) : -1;
    return row >= 0 && row < rows ? row : -1;
}
