// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screenlines.h"

#include <QPainter>

#include <algorithm>

void fillLine(QPainter &painter, const QRect &line, const QColor &color)
{
    painter.fillRect(coveredByLines(painter, line), color);
}

void fillFrame(QPainter &painter, const QRect &frame, const QColor &color)
{
    fillLine(painter, {frame.topLeft(), frame.topRight()}, color);
    fillLine(painter, {frame.bottomLeft(), frame.bottomRight()}, color);
    fillLine(painter, {frame.topLeft(), frame.bottomLeft()}, color);
    fillLine(painter, {frame.topRight(), frame.bottomRight()}, color);
}

void fillDashedLine(QPainter &painter, const QRect &line, const QColor &color)
{
    constexpr int length = 4;
    constexpr int gap = 2;
    const bool isLevel = line.width() > line.height();
    const QPoint step = isLevel ? QPoint(length + gap, 0) : QPoint(0, length + gap);
    QRect dash(line.topLeft(), isLevel ? QSize(length, 1) : QSize(1, length));
    for (; dash.intersects(line); dash.translate(step))
        fillLine(painter, dash & line, color);
}

QRectF coveredByLines(const QPainter &painter, const QRect &pixels)
{
    const QTransform &toScreen = painter.deviceTransform();
    const int more = std::max(0, static_cast<int>(toScreen.m11()) - 1);
    const QPoint first = toScreen.map(QPointF(pixels.topLeft())).toPoint();
    const QPoint last = toScreen.map(QPointF(pixels.bottomRight())).toPoint() + QPoint(more, more);
    constexpr double less
        = 1e-3; // a hair, or a clip takes what is left of rounding for a pixel more
    return toScreen.inverted().mapRect(
        QRectF(QRect(first, last)).adjusted(less, less, -less, -less));
}
