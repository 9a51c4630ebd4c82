// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "phasordiagram.h"

#include "numbers.h"

#include <algorithm>
#include <cmath>

namespace {

int toPixel(double value)
{
    // Far outside every label; keeps the conversion defined and the painter's work small.
    constexpr double limit = 10000;
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, -limit, limit));
}

double roundedUp(double value)
{
    const auto digits = QString::number(std::trunc(value), 'f', 0).size();
    const double step = std::pow(10.0, digits - 2);
    return step * std::ceil(value / step);
}

// The value of axis label k, counted from the axis' negative end. The order of the divisions gives
// an exact 0 in the middle.
QString axisText(double maximum, int k)
{
    return generalText(maximum / ((5 * maximum) / ((k - 5) * maximum)));
}

} // namespace

PhasorDiagram::PhasorDiagram(double extreme, const QSize &labelSize)
    : m_labelSize(labelSize),
      m_maximum(roundedUp(extreme * 1.05)),
      m_scale(static_cast<float>((width() * 0.5) / m_maximum))
{
}

int PhasorDiagram::gridLine(int k) const
{
    return toPixel(offset(k));
}

QString PhasorDiagram::verticalText(int k) const
{
    return axisText(m_maximum, lineCount - 1 - k);
}

QString PhasorDiagram::horizontalText(int k) const
{
    return axisText(m_maximum, k);
}

QRect PhasorDiagram::verticalTextRect(int k) const
{
    return {0, toPixel(offset(k) - 4), 30, 10};
}

QRect PhasorDiagram::horizontalTextRect(int k) const
{
    // One cell to the right: that makes up for the grid's left margin.
    return {toPixel(offset(k + 1) - 14), m_labelSize.height() - 50, 30, 10};
}

QPoint PhasorDiagram::origin() const
{
    return {width() / 2 + 30, height() / 2 + 20};
}

QPoint PhasorDiagram::lineEnd(const Phasor &phasor, float referenceAngle) const
{
    const double angle = phasor.angle - referenceAngle;
    return {toPixel(std::cos(angle) * phasor.magnitude * m_scale),
        toPixel(m_scale * phasor.magnitude * std::sin(angle))};
}

double PhasorDiagram::offset(int k) const
{
    const double position = 2 * (k * m_maximum / 10) * m_scale;
    return std::isfinite(position) ? position : k * width() / 10.0;
}

int magnitudeTextWidth(int pixmapWidth)
{
    return pixmapWidth / 3;
}

QPoint magnitudeTextPosition(int number, int pixmapWidth)
{
    return {magnitudeTextWidth(pixmapWidth) * (number % 3), (number / 3 + 1) * 15};
}
