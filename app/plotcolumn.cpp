// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotcolumn.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>

PlotColumn::PlotColumn(QWidget *parent) : QScrollArea(parent)
{
    m_moved.setSingleShot(true);
    connect(&m_moved, &QTimer::timeout, this, &PlotColumn::tellOfPointer);
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

// Of what is scrolled, which hears of every change of its layout.
bool PlotColumn::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
        m_moved.start();
        break;
    default:
        break;
    }
    return QScrollArea::eventFilter(watched, event);
}

// The toolkit tells of a pointer when it moves, not when something moves under it.
void PlotColumn::tellOfPointer()
{
    if (QApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget())
        return;
    const QPoint pointer = QCursor::pos();
    QWidget *plot = QApplication::widgetAt(pointer);
    while (plot && plot->parentWidget() != widget())
        plot = plot->parentWidget();
    const QWidget *listener = QWidget::keyboardGrabber(); // where the pointer was
    const bool isListening = listener && listener->parentWidget() == widget();
    const auto plots = widget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *left : plots) {
        QEvent leave(QEvent::Leave);
        if (left != plot && left->underMouse())
            QApplication::sendEvent(left, &leave);
    }
    if (!plot)
        return;
    const QPointF point = plot->mapFromGlobal(pointer);
    QEnterEvent enter(point, plot->window()->mapFromGlobal(pointer), pointer);
    QApplication::sendEvent(plot, &enter);
    QMouseEvent move(QEvent::MouseMove, point, pointer, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    if (isListening)
        QApplication::sendEvent(plot, &move);
}
