// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Zooming and scrolling of a plot and of those that are linked to it.

#include "plotter.h"

#include "cfgproperties.h"
#include "plothost.h"

#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

// A plot that was hidden takes no part in what the others do.
bool Plotter::isOnScreen() const
{
    return !isHidden() || !testAttribute(Qt::WA_WState_ExplicitShowHide);
}

void Plotter::refreshAll()
{
    settleReadout();
    for (Plotter *plotter : qAsConst(linkedPlotters))
        plotter->settleReadout();
    refreshPixmap();
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter != this)
            plotter->refreshPixmap();
    }
}

void Plotter::zoomIn()
{
    refreshAll();
}

void Plotter::zoomIn2()
{
    refreshPixmap();
}

void Plotter::zoomOut()
{
    if (zoomLevel <= 0)
        return;
    zoomOut2();
    for (Plotter *plotter : qAsConst(linkedPlotters))
        plotter->zoomOut2();
}

void Plotter::zoomOut2()
{
    if (zoomLevel <= 0)
        return;
    --zoomLevel;
    refreshPixmap();
}

void Plotter::refreshSlot()
{
    refreshPixmap();
}

// The linked plots show the time range of this one from here on; one that is hidden follows when it
// is shown.
void Plotter::leadLinked()
{
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter->isOnScreen())
            plotter->follow(*this);
    }
}

void Plotter::follow(const Plotter &leader)
{
    m_view.follow(leader.m_view);
    s_shared.takeLive(m_view, plotType, SharedView::Rule::IfAnalog);
}

// Of a plot that was hidden or is new.
void Plotter::followLinked()
{
    for (const Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter->isOnScreen()) {
            follow(*plotter);
            return;
        }
    }
}

bool Plotter::changeView(const ViewChange &change)
{
    noteViews();
    return lead(change);
}

bool Plotter::lead(const ViewChange &change)
{
    if (!change(m_view))
        return false;
    s_shared.timeZoom = m_view.timeZoom();
    s_shared.takeLive(m_view, plotType, SharedView::Rule::IfAnalog);
    leadLinked();
    rangeScrollBar();
    refreshAll();
    return true;
}

// By a way in pixels; a digital plot has no values to move.
void Plotter::dragView(const QPoint &way)
{
    const PlotGeometry geometry = geometryOfView();
    if (!geometry.isDrawable())
        return;
    const double time = -way.x() * view().spanX() / geometry.plotWidth();
    const double value = way.y() * view().spanY() / (geometry.plotHeight() - PlotGeometry::top);
    lead([&](PlotView &now) { return now.moveBy(time, m_digitalFlag ? 0 : value); });
}

// One that is hidden has a view of an earlier moment.
ViewHistory::Views Plotter::views() const
{
    ViewHistory::Views views{{this, m_view}};
    for (const Plotter *plotter : linkedPlotters) {
        if (plotter->isOnScreen())
            views.insert(plotter, plotter->m_view);
    }
    return views;
}

// A plot that was hidden or not yet there at that time follows now, one that is hidden now when it
// is shown.
void Plotter::showPreviousView()
{
    const ViewHistory::Views previous = s_shared.history.goBack(views());
    for (Plotter *plotter : QList<Plotter *>{this} + linkedPlotters) {
        if (!previous.contains(plotter))
            continue;
        plotter->m_view = previous.value(plotter);
        s_shared.takeLive(plotter->m_view, plotter->plotType, SharedView::Rule::IfAnalog);
    }
    s_shared.timeZoom = m_view.timeZoom();
    s_shared.valueZoom = m_view.valueZoom();
    rangeScrollBar();
    refreshAll();
}

bool Plotter::zoomTime(double factor, SharedView::Rule sharing)
{
    if (!m_view.zoomTime(factor))
        return false;
    s_shared.timeZoom = m_view.timeZoom();
    s_shared.takeLive(m_view, plotType, sharing);
    return true;
}

void Plotter::customZoomIn()
{
    zoomLinked(0.5, SharedView::Rule::Always);
}

void Plotter::customZoomOut()
{
    zoomLinked(2, SharedView::Rule::UnlessDigital);
}

void Plotter::zoomLinked(double factor, SharedView::Rule sharing)
{
    if (!zoomTime(factor, sharing))
        return;
    leadLinked();
    refreshAll();
    rangeScrollBar();
}

void Plotter::customZoomIn2()
{
    if (zoomTime(0.5, SharedView::Rule::IfAnalog))
        refreshPixmap();
}

void Plotter::customZoomOut2()
{
    if (zoomTime(2, SharedView::Rule::IfAnalog))
        refreshPixmap();
}

// One unit of the scroll bar is one interval of the time grid.
void Plotter::rangeScrollBar()
{
    QScrollBar *bar = mainWindow ? mainWindow->horizontalScrollBar() : nullptr;
    if (!bar || !recording() || m_view.isEmpty())
        return;
    const double step = view().spanX() / view().numXTicks;
    const double doubled = 2.0 * static_cast<double>(recording()->durationMs);
    const double limit = std::trunc(doubled / 100) * 100 + 100;
    const QSignalBlocker blocker(bar);
    bar->setRange(0, PlotGeometry::truncated(bar->value() + (limit - view().maxX) / step));
    bar->setValue(PlotGeometry::truncated(view().minX / step));
    takeBarPosition();
}

// From here on the bar's position counts as that of the views, which it moves only by turning on.
void Plotter::takeBarPosition()
{
    const QScrollBar *bar = mainWindow ? mainWindow->horizontalScrollBar() : nullptr;
    if (!bar)
        return;
    m_view.setBarPosition(bar->value());
    for (Plotter *plotter : qAsConst(linkedPlotters))
        plotter->m_view.setBarPosition(bar->value());
}

bool Plotter::zoomValues(double factor, bool keepsCentre)
{
    if (!m_view.zoomValues(factor, keepsCentre))
        return false;
    s_shared.valueZoom = m_view.valueZoom();
    s_shared.takeLive(m_view, plotType, SharedView::Rule::IfAnalog);
    return true;
}

void Plotter::customVZoomIn()
{
    if (zoomValues(0.5, true))
        refreshAll();
}

void Plotter::customVZoomOut()
{
    if (zoomValues(2, true))
        refreshAll();
}

void Plotter::customVZoomIn2()
{
    if (zoomValues(0.5, false))
        refreshPixmap();
}

void Plotter::customVZoomOut2()
{
    if (zoomValues(2, false))
        refreshPixmap();
}

void Plotter::customResetZoom()
{
    m_view.reset();
    s_shared.timeZoom = m_view.timeZoom();
    s_shared.valueZoom = m_view.valueZoom();
    if (m_view.isEmpty())
        return;
    s_shared.takeLive(m_view, plotType, SharedView::Rule::Always);
    leadLinked();
    if (QScrollBar *bar = mainWindow ? mainWindow->horizontalScrollBar() : nullptr) {
        const QSignalBlocker blocker(bar);
        bar->setValue(0);
    }
    rangeScrollBar();
    refreshAll();
}

// The new position itself is the number of grid intervals by which the view moves.
void Plotter::scrolling(int r)
{
    const int before = m_view.barPosition();
    if (r == before || !isOnScreen())
        return;
    scrollDelta = PlotGeometry::truncated(std::abs(static_cast<double>(r) - before));
    m_view.turnTo(r);
    refreshPixmap();
}

void Plotter::scrollView(int dx, int dy)
{
    m_view.scroll(dx, dy);
    refreshPixmap();
}

bool Plotter::zoomToBand(bool withValues)
{
    m_drags.band.hide();
    if (!m_drags.band.zoom(m_view, withValues))
        return false;
    s_shared.timeZoom = m_view.timeZoom();
    if (withValues)
        s_shared.valueZoom = m_view.valueZoom();
    s_shared.takeLive(m_view, plotType, SharedView::Rule::IfAnalog);
    return true;
}

void Plotter::applyRubberBand()
{
    if (zoomToBand(false))
        refreshPixmap();
}
