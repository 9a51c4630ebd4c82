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
    connect(&m_again, &QTimer::timeout, this, &PlotColumn::repeatMove);
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
    case QEvent::Enter:
        m_pointer = static_cast<const QEnterEvent &>(event).windowPos();
        break;
    case QEvent::MouseButtonRelease:
        pointAgain(); // plots that moved before had to wait for it
        [[fallthrough]];
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
        m_pointer = static_cast<const QMouseEvent &>(event).windowPos();
        break;
    default:
        break;
    }
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

// The toolkit tells of a pointer when it moves, not when something moves under it. The keyboard
// goes along with it from plot to plot, but no plot takes it from elsewhere.
void PlotColumn::repeatMove()
{
    if (QApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget()
        || QApplication::activeModalWidget())
        return;
    const QWidget *under = QApplication::widgetAt(QCursor::pos());
    const QPointF there = pointer();
    if (!under || under->window() != window() || !concernsPlots(there))
        return;
    const bool isListening = isPlot(QWidget::keyboardGrabber());
    QMouseEvent move(QEvent::MouseMove, there, there, QCursor::pos(), Qt::NoButton, Qt::NoButton,
        QApplication::keyboardModifiers());
    QCoreApplication::sendEvent(window()->windowHandle(), &move);
    QWidget *listener = QWidget::keyboardGrabber();
    if (!isListening && isPlot(listener))
        listener->releaseKeyboard();
}

bool PlotColumn::isPlot(const QWidget *widget) const
{
    return widget && widget->parentWidget() == this->widget();
}

// Also where a plot has not been told that the pointer has left it.
bool PlotColumn::concernsPlots(const QPointF &inWindow) const
{
    const auto plots = widget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    return viewport()->rect().contains(viewport()->mapFrom(window(), inWindow.toPoint()))
        || std::any_of(
            plots.cbegin(), plots.cend(), [](const QWidget *plot) { return plot->underMouse(); });
}
