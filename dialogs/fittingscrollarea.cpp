// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fittingscrollarea.h"

#include <QEvent>
#include <QScreen>
#include <QScrollBar>

FittingScrollArea::FittingScrollArea(QWidget *parent) : QScrollArea(parent)
{
    viewport()->setAutoFillBackground(false);
    setFocusPolicy(Qt::NoFocus); // what stands inside takes it, and is scrolled to
}

QSize FittingScrollArea::sizeHint() const
{
    return fitted(widget() ? widget()->sizeHint() : QSize());
}

QSize FittingScrollArea::minimumSizeHint() const
{
    return fitted(widget() ? widget()->minimumSizeHint() : QSize());
}

bool FittingScrollArea::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry(); // the contents have changed
    return QScrollArea::event(event);
}

QSize FittingScrollArea::fitted(const QSize &contents) const
{
    const QSize most = screen()->availableSize() * 4 / 5;
    QSize size = contents + QSize(2 * frameWidth(), 2 * frameWidth());
    if (size.height() > most.height())
        size.rwidth() += verticalScrollBar()->sizeHint().width();
    if (size.width() > most.width())
        size.rheight() += horizontalScrollBar()->sizeHint().height();
    return size.boundedTo(most);
}
