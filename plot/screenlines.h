// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRectF>

class QColor;
class QPainter;
class QRect;

// Straight lines one pixel wide or high. They are filled rectangles, so that they stand where their
// pixel does and are seen at every scale factor of the screen. Where that is no whole number, some
// pixels of a widget cover one more of the screen's than others: lines are as thick as the thinnest
// everywhere.
void fillLine(QPainter &painter, const QRect &line, const QColor &color);
void fillFrame(QPainter &painter, const QRect &frame, const QColor &color);

// From its left or upper end on, of four pixels and gaps of two.
void fillDashedLine(QPainter &painter, const QRect &line, const QColor &color);

// What lines from the first to the last pixels of a rectangle cover.
QRectF coveredByLines(const QPainter &painter, const QRect &pixels);
