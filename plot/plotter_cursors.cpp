// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The time line, the cursors and the save markers of a plot.

#include "plotter.h"

#include "baselayer.h"
#include "labeltext.h"
#include "plothost.h"
#include "plotline.h"
#include "plottitle.h"

#include <QLabel>
#include <QPainter>

#include <algorithm>

void Plotter::showTimeLine(int x)
{
    if (!m_view.isEmpty())
        timeLine.show(x, geometryOfView());
}

void Plotter::addCursor(int x, int /*y*/)
{
    if (!m_view.isEmpty())
        addCursorAt(geometryOfView().lineTime(x));
}

void Plotter::addCursorAt(double time)
{
    if (m_cursorMarks.isFull())
        return;
    m_cursorMarks.add(time);
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter != this)
            plotter->m_cursorMarks.add(time);
    }
    refreshAll();
}

void Plotter::moveCursor(int cursor, double time)
{
    m_cursorMarks.move(cursor, time);
    refreshOverlay();
}

void Plotter::dragCursor(int x)
{
    const int cursor = m_cursorMarks.cursorOf(draggedLabel);
    if (cursor < 0 || m_view.isEmpty())
        return;
    const QRect area = geometryOfView().area();
    const double time = geometryOfView().lineTime(
        std::clamp(x, area.left(), std::max(area.left(), area.right())));
    moveCursor(cursor, time);
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter != this && cursor < plotter->m_cursorMarks.count())
            plotter->moveCursor(cursor, time);
    }
}

// Of this plot and of the linked ones, which have the same.
void Plotter::removeCursors(int first, int last)
{
    for (int cursor = last - 1; cursor >= first; --cursor) {
        for (Plotter *plotter : qAsConst(linkedPlotters))
            plotter->m_cursorMarks.remove(cursor);
        m_cursorMarks.remove(cursor);
    }
    refreshAll();
}

void Plotter::clearCursors()
{
    draggingTimeLine = false;
    draggedLabel = nullptr;
    m_cursorMarks.clear();
}

void Plotter::paintOverlay()
{
    const PlotGeometry geometry = geometryOfView();
    if (m_view.isEmpty() || m_cursorMarks.count() < 2 || !geometry.isDrawable()) {
        overlayPixmap = QPixmap();
        return;
    }
    if (overlayPixmap.size() != size() * devicePixelRatioF())
        overlayPixmap = clearLayer(*this);
    QPainter painter(&overlayPixmap);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(
        0, CursorMarks::differencesTop, width(), CursorMarks::differencesHeight, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setFont(smallFont(font()));
    m_cursorMarks.paintDifferences(painter, geometry, plotterLabel->geometry());
}

// Sets the lines of the cursors and the save markers to their places in the view.
void Plotter::placeMarks()
{
    if (m_view.isEmpty())
        return;
    const PlotGeometry geometry = geometryOfView();
    m_cursorMarks.place(geometry);
    timeLine.refresh(geometry);
    startMarker.place(geometry);
    endMarker.place(geometry);
    if (draggedLabel && draggedLabel->isHidden()) // by a zoom; it would not be told of its release
        endDrag();
}

void Plotter::setStartPoint(double time)
{
    startMarker.set(time);
    placeMarks();
}

void Plotter::setEndPoint(double time)
{
    endMarker.set(time);
    placeMarks();
}

void Plotter::clearSaveMarkers()
{
    startMarker.clear();
    endMarker.clear();
}
