// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotview.h"

#include <QRect>
#include <QSize>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

PlotSettings withRange(PlotSettings view, const ValueRange &range)
{
    view.minY = range.min;
    view.maxY = range.max;
    view.numYTicks = range.ticks;
    return view;
}

} // namespace

// True where that changes what is shown.
bool PlotView::show(const PlotSettings &view)
{
    const PlotSettings before = std::exchange(m_live, view);
    return std::exchange(m_isEmpty, false) || !(before == m_live);
}

bool PlotView::setHome(double firstTime, double lastTime, const ValueExtremes &extremes)
{
    m_home.minX = firstTime;
    m_home.maxX = lastTime;
    PlotSettings::adjustAxis(m_home.minX, m_home.maxX, m_home.numXTicks);
    m_extremes = extremes;
    m_part = ValuePart(extremes);
    m_valueZoom = wholeValues;
    m_home = withRange(m_home, m_part.at(extremes));
    return show(m_isEmpty ? m_home : withRange(m_live, m_part.at(extremes)));
}

bool PlotView::rescale(const ValueExtremes &extremes)
{
    if (m_isEmpty)
        return false;
    m_extremes = extremes;
    m_home = withRange(m_home, ValuePart(extremes).at(extremes));
    return show(withRange(m_live, m_part.at(extremes)));
}

bool PlotView::zoomTime(double factor)
{
    PlotSettings zoomed = m_live;
    zoomed.maxX = zoomed.minX + m_timeZoom * factor * m_home.maxX;
    if (m_isEmpty || !PlotSettings::isUsable(zoomed.minX, zoomed.maxX))
        return false;
    PlotSettings::adjustAxis(zoomed.minX, zoomed.maxX, zoomed.numXTicks);
    m_timeZoom *= factor;
    show(zoomed);
    return true;
}

bool PlotView::zoomValues(double factor, bool keepsCentre)
{
    const double minY = m_home.minY * m_valueZoom * factor;
    const double maxY = m_home.maxY * m_valueZoom * factor;
    if (m_isEmpty || !PlotSettings::isUsable(minY, maxY))
        return false;
    ValuePart part(m_extremes, minY, maxY);
    if (keepsCentre) {
        const ValueRange zoomed = part.at(m_extremes);
        const double centre = (m_live.minY + m_live.maxY) * 0.5;
        if (!part.move(m_extremes, centre - (zoomed.min + zoomed.max) * 0.5))
            return false;
    }
    m_valueZoom *= factor;
    m_part = part;
    show(withRange(m_live, m_part.at(m_extremes)));
    return true;
}

// A band's pixels are turned into times and values with an offset and a scale of their own, which
// are not those of the traces.
bool PlotView::zoomToBand(const QRect &band, const QSize &widget, bool withValues)
{
    constexpr int offset = 50;
    constexpr int frame = 100;
    PlotSettings zoomed = m_live;
    const double dx = m_live.spanX() / (widget.width() - frame);
    zoomed.minX = m_live.minX + dx * (band.left() - offset);
    zoomed.maxX = m_live.minX + dx * (band.right() - offset);
    if (m_isEmpty || !PlotSettings::isUsable(zoomed.minX, zoomed.maxX))
        return false;
    m_timeZoom = zoomed.spanX() / m_home.spanX();
    PlotSettings::adjustAxis(zoomed.minX, zoomed.maxX, zoomed.numXTicks);

    const double dy = m_live.spanY() / (widget.height() - frame);
    const double minY = m_live.maxY - dy * (band.bottom() - offset);
    const double maxY = m_live.maxY - dy * (band.top() - offset);
    if (withValues && PlotSettings::isUsable(minY, maxY)) {
        m_valueZoom = (maxY - minY) / m_home.spanY();
        m_part = ValuePart(m_extremes, minY, maxY);
        zoomed = withRange(zoomed, m_part.at(m_extremes));
    }
    show(zoomed);
    return true;
}

bool PlotView::scroll(int timeSteps, int valueSteps)
{
    if (m_isEmpty)
        return false;
    PlotSettings scrolled = m_live;
    scrolled.scroll(timeSteps, PlotSettings::noScroll);
    if (valueSteps != PlotSettings::noScroll
        && m_part.move(m_extremes, valueSteps * (m_live.spanY() / m_live.numYTicks)))
        scrolled = withRange(scrolled, m_part.at(m_extremes));
    return show(scrolled);
}

bool PlotView::turnTo(int position)
{
    if (position == m_barPosition)
        return false;
    m_barPosition = position;
    return scroll(position, 0);
}

bool PlotView::showTimes(double from, double to)
{
    if (m_isEmpty || !PlotSettings::isUsable(from, to))
        return false;
    PlotSettings view = m_live;
    view.minX = from;
    view.maxX = to;
    PlotSettings::adjustAxis(from, to, view.numXTicks);
    m_timeZoom = view.spanX() / m_home.spanX();
    return show(view);
}

bool PlotView::showAllTimes()
{
    PlotSettings view = m_live;
    view.minX = m_home.minX;
    view.maxX = m_home.maxX;
    view.numXTicks = m_home.numXTicks;
    m_timeZoom = 1.0;
    return !m_isEmpty && show(view);
}

bool PlotView::moveTimes(double distance)
{
    PlotSettings view = m_live;
    const double room = distance < 0 ? view.minX - m_home.minX : m_home.maxX - view.maxX;
    const double moved = std::copysign(std::clamp(room, 0.0, std::abs(distance)), distance);
    view.minX += moved;
    view.maxX += moved;
    return !m_isEmpty && PlotSettings::isUsable(view.minX, view.maxX) && show(view);
}

bool PlotView::moveBy(double time, double value)
{
    if (m_isEmpty)
        return false;
    PlotSettings view = m_live;
    if (PlotSettings::isUsable(view.minX + time, view.maxX + time)) {
        view.minX += time;
        view.maxX += time;
    }
    if (m_part.move(m_extremes, value))
        view = withRange(view, m_part.at(m_extremes));
    return show(view);
}

PlotView PlotView::returnedTo(const PlotView &earlier) const
{
    PlotView view(*this);
    if (m_isEmpty || earlier.m_isEmpty)
        return view;
    view.m_timeZoom = earlier.m_timeZoom;
    view.m_valueZoom = earlier.m_valueZoom;
    view.m_part = earlier.m_part;
    view.m_live = withRange(earlier.m_live, view.m_part.at(m_extremes));
    return view;
}

bool PlotView::reset()
{
    m_timeZoom = 1.0;
    m_valueZoom = wholeValues;
    m_part = ValuePart(m_extremes);
    return !m_isEmpty && show(m_home);
}

bool PlotView::clear()
{
    const bool wasEmpty = m_isEmpty;
    *this = PlotView();
    return !wasEmpty;
}

bool PlotView::follow(const PlotView &other)
{
    m_barPosition = other.m_barPosition;
    if (m_isEmpty || other.m_isEmpty)
        return false;
    m_timeZoom = other.m_timeZoom;
    PlotSettings view = m_live;
    view.minX = other.m_live.minX;
    view.maxX = other.m_live.maxX;
    view.numXTicks = other.m_live.numXTicks;
    return show(view);
}
