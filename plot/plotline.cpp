// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotline.h"

#include "plotgeometry.h"
#include "screenlines.h"

#include <QMoveEvent>
#include <QPainter>

void repaintAround(QWidget &plot, const QRect &place)
{
    plot.update(place.adjusted(-1, -1, 1, 1));
}

void moveOver(QWidget &plot, QWidget &moved, const QPoint &place)
{
    if (place == moved.pos())
        return;
    repaintAround(plot, moved.geometry());
    moved.move(place);
    repaintAround(plot, moved.geometry());
}

PlotLine::PlotLine(QWidget *plot, const QString &name, const QString &color) : QFrame(plot)
{
    setObjectName(name);
    setFrameShape(QFrame::VLine);
    setFrameShadow(QFrame::Plain);
    setLineWidth(1);
    setStyleSheet(QStringLiteral("QFrame{color: %1; border-color: %1;}").arg(color));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void PlotLine::place(int x, const PlotGeometry &geometry)
{
    setGeometry(QRect(QPoint(x, PlotGeometry::top), QPoint(x, geometry.plotHeight())));
}

// The frame's own line may miss the device pixels of a widget one pixel wide where the scale factor
// is no whole number.
void PlotLine::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    fillLine(painter, rect(), palette().color(foregroundRole()));
}

void PlotLine::moveEvent(QMoveEvent *event)
{
    repaintAround(*parentWidget(), QRect(event->oldPos(), size()));
    repaintAround(*parentWidget(), geometry());
}

void PlotLine::showEvent(QShowEvent * /*event*/)
{
    repaintAround(*parentWidget(), geometry());
}

void PlotLine::hideEvent(QHideEvent * /*event*/)
{
    repaintAround(*parentWidget(), geometry());
}
