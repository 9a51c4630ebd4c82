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

void Plotter::zoomIn()
{
    refreshPixmap();
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter != this)
            plotter->refreshPixmap();
    }
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
    zoomIn2();
}

// Each zoom has its own rule for what a digital plot leaves to the shared view.
void Plotter::shareView(Sharing sharing)
{
    const bool shares = sharing == Sharing::Always
        || (sharing == Sharing::UnlessDigital && !plotType.contains(QLatin1String("Digital")))
        || (sharing == Sharing::IfAnalog && plotType.contains(QLatin1String("Analog")));
    if (shares)
        sharedAnalogSettings = zoomStack.constFirst();
}

bool Plotter::zoomTime(double factor, Sharing sharing)
{
    if (zoomStack.isEmpty())
        return false;
    PlotSettings zoomed = zoomStack.constFirst();
    zoomed.maxX = zoomed.minX + horizontalZoom * factor * homeSettings.maxX;
    if (!PlotSettings::isUsable(zoomed.minX, zoomed.maxX))
        return false;
    PlotSettings::adjustAxis(zoomed.minX, zoomed.maxX, zoomed.numXTicks);
    horizontalZoom *= factor;
    sharedHorizontalZoom = horizontalZoom;
    zoomStack[0] = zoomed;
    shareView(sharing);
    return true;
}

void Plotter::customZoomIn()
{
    if (!zoomTime(0.5, Sharing::Always))
        return;
    zoomIn();
    for (Plotter *plotter : qAsConst(linkedPlotters))
        plotter->customZoomIn2();
    rangeScrollBar();
}

void Plotter::customZoomOut()
{
    if (!zoomTime(2, Sharing::UnlessDigital))
        return;
    zoomIn();
    for (Plotter *plotter : qAsConst(linkedPlotters))
        plotter->customZoomOut2();
    rangeScrollBar();
}

void Plotter::customZoomIn2()
{
    if (zoomTime(0.5, Sharing::IfAnalog))
        refreshPixmap();
}

void Plotter::customZoomOut2()
{
    if (zoomTime(2, Sharing::IfAnalog))
        refreshPixmap();
}

// One unit of the scroll bar is one interval of the time grid.
void Plotter::rangeScrollBar()
{
    QScrollBar *bar = mainWindow ? mainWindow->horizontalScrollBar() : nullptr;
    if (!bar || !recording() || zoomStack.isEmpty())
        return;
    const PlotSettings &view = zoomStack.constFirst();
    const double step = view.spanX() / view.numXTicks;
    const double doubled = 2.0 * static_cast<double>(recording()->durationMs);
    const double limit = std::trunc(doubled / 100) * 100 + 100;
    const QSignalBlocker blocker(bar);
    bar->setRange(0, PlotGeometry::truncated(bar->value() + (limit - view.maxX) / step));
    bar->setValue(PlotGeometry::truncated(view.minX / step));
}

bool Plotter::zoomValues(double factor, bool keepsCentre)
{
    if (zoomStack.isEmpty())
        return false;
    PlotSettings zoomed = zoomStack.constFirst();
    const double centre = (zoomed.minY + zoomed.maxY) * 0.5;
    zoomed.minY = homeSettings.minY * verticalZoom * factor;
    zoomed.maxY = homeSettings.maxY * verticalZoom * factor;
    if (!PlotSettings::isUsable(zoomed.minY, zoomed.maxY))
        return false;
    PlotSettings::adjustAxis(zoomed.minY, zoomed.maxY, zoomed.numYTicks);
    if (keepsCentre) {
        const double shift = centre - (zoomed.minY + zoomed.maxY) * 0.5;
        zoomed.minY += shift;
        zoomed.maxY += shift;
        if (!PlotSettings::isUsable(zoomed.minY, zoomed.maxY))
            return false;
    }
    verticalZoom *= factor;
    sharedVerticalZoom = verticalZoom;
    zoomStack[0] = zoomed;
    shareView(Sharing::IfAnalog);
    return true;
}

void Plotter::customVZoomIn()
{
    if (zoomValues(0.5, true))
        zoomIn();
}

void Plotter::customVZoomOut()
{
    if (zoomValues(2, true))
        zoomIn();
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
    horizontalZoom = 1.0;
    verticalZoom = defaultVerticalZoom;
    sharedHorizontalZoom = horizontalZoom;
    sharedVerticalZoom = verticalZoom;
    if (zoomStack.isEmpty())
        return;
    zoomStack[0] = homeSettings;
    shareView(Sharing::Always);
    zoomIn();
}

// The new position itself is the number of grid intervals by which the view moves.
void Plotter::scrolling(int r)
{
    if (r == lastScrollValue)
        return;
    scrollDelta = PlotGeometry::truncated(std::abs(static_cast<double>(r) - lastScrollValue));
    scrollView(r, 0);
    lastScrollValue = r;
}

void Plotter::scrollView(int dx, int dy)
{
    if (!zoomStack.isEmpty())
        zoomStack[0].scroll(dx, dy);
    refreshPixmap();
}

// A band's pixels are turned into times and values with an offset and a scale of their own, which
// are not those of the traces.
PlotSettings Plotter::bandView(const QRect &band, bool withValues) const
{
    constexpr int offset = 50;
    constexpr int frame = 100;
    const PlotSettings before = view();
    PlotSettings zoomed = before;
    const double dx = before.spanX() / (width() - frame);
    zoomed.minX = before.minX + dx * (band.left() - offset);
    zoomed.maxX = before.minX + dx * (band.right() - offset);
    if (withValues) {
        const double dy = before.spanY() / (height() - frame);
        zoomed.minY = before.maxY - dy * (band.bottom() - offset);
        zoomed.maxY = before.maxY - dy * (band.top() - offset);
    }
    return zoomed;
}

bool Plotter::zoomToBand(bool withValues)
{
    hideBand();
    const QRect band = rubberBandRect.normalized();
    if (zoomStack.isEmpty() || band.right() - band.left() <= 2 || band.bottom() - band.top() <= 2)
        return false;
    PlotSettings zoomed = bandView(band, withValues);
    if (!PlotSettings::isUsable(zoomed.minX, zoomed.maxX))
        return false;
    // A range of values too narrow to be shown stays, and the time is zoomed alone.
    if (!PlotSettings::isUsable(zoomed.minY, zoomed.maxY)) {
        withValues = false;
        zoomed = bandView(band, withValues);
    }
    horizontalZoom = zoomed.spanX() / homeSettings.spanX();
    sharedHorizontalZoom = horizontalZoom;
    PlotSettings::adjustAxis(zoomed.minX, zoomed.maxX, zoomed.numXTicks);
    if (withValues) {
        verticalZoom = zoomed.spanY() / homeSettings.spanY();
        sharedVerticalZoom = verticalZoom;
        PlotSettings::adjustAxis(zoomed.minY, zoomed.maxY, zoomed.numYTicks);
    }
    zoomStack[0] = zoomed;
    shareView(Sharing::IfAnalog);
    zoomIn();
    return true;
}

void Plotter::applyRubberBand()
{
    zoomToBand(false);
}

void Plotter::updateBand()
{
    // The frame is drawn one pixel wide on the edges of the band.
    update(rubberBandRect.normalized().adjusted(-1, -1, 1, 1));
}

void Plotter::hideBand()
{
    rubberBandShown = false;
    updateBand();
    unsetCursor();
}
