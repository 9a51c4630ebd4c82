// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotcolumn.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWindow>

#include <algorithm>

PlotColumn::PlotColumn(QWidget *parent) : QScrollArea(parent)
{
    m_again.setSingleShot(true);
    connect(&m_again, &QTimer::timeout, this, &PlotColumn::tellAgain);
}

bool PlotColumn::focusNextPrevChild(bool next)
{
    const int place = verticalScrollBar()->value();
    const bool isDone = QScrollArea::focusNextPrevChild(next);
    const QWidget *reached = focusWidget();
    if (isDone && reached && (reached == widget() || !reached->hasFocus()))
        verticalScrollBar()->setValue(place);
    return isDone;
}

// Of the window's handle, which gets every event of the mouse before any widget, and of what is
// scrolled, which hears of every change of its layout.
bool PlotColumn::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched->isWindowType())
        followPointer(*event);
    else if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::LayoutRequest)
        pointAgain();
    return QScrollArea::eventFilter(watched, event);
}

void PlotColumn::showEvent(QShowEvent *event)
{
    window()->windowHandle()->installEventFilter(this);
    QScrollArea::showEvent(event);
}

void PlotColumn::followPointer(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        m_pointer = static_cast<const QMouseEvent &>(event).windowPos();
        // A popup gets the moves; a button tells a plot of no place.
        if (event.type() == QEvent::MouseMove && !QApplication::activePopupWidget())
            m_told = placeOf(m_pointer);
        break;
    default:
        break;
    }
    // Plots that moved before had to wait for the release. Behind a menu or a dialog that closes,
    // the pointer has gone on.
    if (event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::Enter)
        pointAgain();
}

// In the window, as exactly as that has heard of it: the cursor stands at whole pixels. But the
// window hears of nothing while a dialog is open, or when it is moved itself.
QPointF PlotColumn::pointer() const
{
    constexpr int rounding = 4; // pixels, of both ways together
    const QPoint cursor = QCursor::pos();
    const QPoint way = cursor - window()->mapToGlobal(m_pointer.toPoint());
    return way.manhattanLength() <= rounding ? m_pointer : window()->mapFromGlobal(cursor);
}

PlotColumn::Place PlotColumn::placeOf(const QPointF &inWindow) const
{
    QWidget *plot = window()->childAt(inWindow.toPoint());
    while (plot && !isPlot(plot))
        plot = plot->parentWidget();
    return {plot, plot ? inWindow - plot->mapTo(window(), QPoint()) : QPointF()};
}

// The toolkit tells of a pointer when it moves, not when something changes under it.
void PlotColumn::tellAgain()
{
    const QWidget *under = QApplication::widgetAt(QCursor::pos());
    if (!under || under->window() != window() || QApplication::mouseButtons() != Qt::NoButton
        || QApplication::activePopupWidget() || QApplication::activeModalWidget())
        return;
    const QPointF inWindow = pointer();
    const Place place = placeOf(inWindow);
    if (place.plot != m_told.plot || place.point != m_told.point || !isUnderMouse(place.plot)) {
        repeatMove(inWindow);
    } else if (place.plot) { // a move would bring back a tool tip, too
        QEnterEvent enter(place.point, inWindow, QCursor::pos());
        QCoreApplication::sendEvent(place.plot, &enter);
    }
}

// The keyboard goes along with the pointer from plot to plot, but no plot takes it from elsewhere.
void PlotColumn::repeatMove(const QPointF &inWindow) const
{
    const bool isListening = isPlot(QWidget::keyboardGrabber());
    QMouseEvent move(QEvent::MouseMove, inWindow, inWindow, QCursor::pos(), Qt::NoButton,
        Qt::NoButton, QApplication::keyboardModifiers());
    QCoreApplication::sendEvent(window()->windowHandle(), &move);
    QWidget *listener = QWidget::keyboardGrabber();
    if (!isListening && isPlot(listener))
        listener->releaseKeyboard();
}

bool PlotColumn::isPlot(const QWidget *widget) const
{
    return widget && widget->parentWidget() == this->widget();
}

bool PlotColumn::isUnderMouse(const QWidget *plot) const
{
    const auto plots = widget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    return std::all_of(plots.cbegin(), plots.cend(),
        [plot](const QWidget *each) { return each->underMouse() == (each == plot); });
}
