// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The time line, the cursors and the save markers of a plot.

#include "plotter.h"

#include "plothost.h"
#include "plottitle.h"

#include <QLabel>

#include <algorithm>

// The line stands at the same place in all plots, the mark at the time of this one in the others.
void Plotter::showPointer(const QPoint &point, bool withLine)
{
    const auto show = [&](Plotter *plotter) {
        if (plotter->m_view.isEmpty())
            return;
        if (withLine)
            plotter->m_marks.timeLine.show(point.x(), plotter->geometryOfView());
        if (plotter == this)
            m_marks.timeMark->hide();
        else if (!m_view.isEmpty())
            plotter->m_marks.timeMark->show(
                geometryOfView().lineTime(point.x()), plotter->geometryOfView());
    };
    show(this);
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter != this)
            show(plotter);
    }
    if (mainWindow)
        mainWindow->pointAt(this, point);
}

void Plotter::addCursor(int x, int /*y*/)
{
    if (!m_view.isEmpty())
        addCursorAt(geometryOfView().lineTime(x));
}

void Plotter::addCursorAt(double time)
{
    if (m_marks.cursors.isFull())
        return;
    m_marks.cursors.add(time);
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter != this)
            plotter->m_marks.cursors.add(time);
    }
    refreshAll();
}

void Plotter::dragCursor(int x)
{
    const int cursor = m_marks.cursors.cursorOf(m_drags.label.label());
    if (cursor < 0 || m_view.isEmpty())
        return;
    const QRect area = geometryOfView().area();
    moveCursor(cursor,
        geometryOfView().lineTime(std::clamp(x, area.left(), std::max(area.left(), area.right()))));
}

void Plotter::moveCursor(int cursor, double time)
{
    const auto move = [&](Plotter *plotter) {
        plotter->m_marks.cursors.move(cursor, time);
        plotter->refreshOverlay();
    };
    move(this);
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter != this && cursor < plotter->m_marks.cursors.count())
            move(plotter);
    }
}

// Of this plot and of the linked ones, which have the same.
void Plotter::removeCursors(int first, int last)
{
    for (int cursor = last - 1; cursor >= first; --cursor) {
        for (Plotter *plotter : qAsConst(linkedPlotters))
            plotter->m_marks.cursors.remove(cursor);
        m_marks.cursors.remove(cursor);
    }
    refreshAll();
}

void Plotter::clearCursors()
{
    m_drags.label.end();
    m_marks.cursors.clear();
}

void Plotter::setForPaper(bool isForPaper)
{
    m_marks.cursors.setForPaper(isForPaper);
    refreshOverlay();
}

void Plotter::refreshOverlay()
{
    const PlotGeometry geometry = geometryOfView();
    if (m_view.isEmpty() || m_marks.cursors.count() < 2 || !geometry.isDrawable())
        m_overlay.clear();
    else
        m_overlay.draw(
            m_marks.cursors, geometry, plotterLabel->geometry(), font(), devicePixelRatioF());
    placeMarks();
    update();
    if (mainWindow)
        mainWindow->refreshVectors();
}

void Plotter::placeMarks()
{
    if (m_view.isEmpty())
        return;
    m_marks.place(geometryOfView());
    m_drags.band.preview(m_view, geometryOfView(), !m_digitalFlag);
    const QLabel *dragged = m_drags.label.label();
    if (dragged && dragged->isHidden()) // by a zoom; it would not be told of its release
        endDrag();
}

void Plotter::setStartPoint(double time)
{
    m_marks.startMarker.set(time);
    placeMarks();
}

void Plotter::setEndPoint(double time)
{
    m_marks.endMarker.set(time);
    placeMarks();
}

void Plotter::clearSaveMarkers()
{
    m_marks.startMarker.clear();
    m_marks.endMarker.clear();
}
