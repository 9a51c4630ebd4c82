// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "valuepart.h"

#include "plotsettings.h"

#include <cmath>

namespace {

// What multiplies all extremes; 0 where no one factor does.
double commonFactor(const ValueExtremes &from, const ValueExtremes &to)
{
    constexpr double rounding = 1e-9;
    if (!(from.height() > 0) || !(to.height() > 0) || from.angles != to.angles)
        return 0;
    const double factor = to.height() / from.height();
    const bool isCommon = std::abs(to.lowest - from.lowest * factor) <= rounding * to.height();
    return isCommon ? factor : 0;
}

} // namespace

ValueRange ValueRange::adjusted(double min, double max)
{
    ValueRange range{min, max};
    PlotSettings::adjustAxis(range.min, range.max, range.ticks);
    return range;
}

ValuePart::ValuePart(const ValueExtremes &extremes)
    : m_extremes(extremes),
      m_from(extremes.lowest),
      m_to(extremes.highest),
      m_shown(ValueRange::adjusted(m_from, m_to))
{
}

ValuePart::ValuePart(const ValueExtremes &extremes, double from, double to)
    : m_extremes(extremes),
      m_isWhole(false),
      m_from(from),
      m_to(to),
      m_shown(ValueRange::adjusted(from, to))
{
}

// The value that lies at the same share of other extremes.
double ValuePart::shared(double value, const ValueExtremes &extremes) const
{
    const double share = m_extremes.height() > 0 ? extremes.height() / m_extremes.height() : 1;
    return extremes.lowest + (value - m_extremes.lowest) * share;
}

ValueRange ValuePart::at(const ValueExtremes &extremes) const
{
    if (extremes == m_extremes)
        return m_shown;
    const double factor = commonFactor(m_extremes, extremes);
    if (PlotSettings::isUsable(m_shown.min * factor, m_shown.max * factor))
        return {m_shown.min * factor, m_shown.max * factor, m_shown.ticks};
    const double from = shared(m_from, extremes);
    const double to = shared(m_to, extremes);
    return m_isWhole || !PlotSettings::isUsable(from, to)
        ? ValueRange::adjusted(extremes.lowest, extremes.highest)
        : ValueRange::adjusted(from, to);
}

bool ValuePart::move(const ValueExtremes &extremes, double distance)
{
    if (distance == 0)
        return true; // the whole stays the whole
    ValuePart moved(*this);
    moved.m_shown = at(extremes);
    moved.m_shown.min += distance;
    moved.m_shown.max += distance;
    if (!PlotSettings::isUsable(moved.m_shown.min, moved.m_shown.max))
        return false;
    moved.m_from = shared(m_from, extremes) + distance;
    moved.m_to = shared(m_to, extremes) + distance;
    moved.m_extremes = extremes;
    moved.m_isWhole = false;
    *this = moved;
    return true;
}
