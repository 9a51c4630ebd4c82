// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotgeometry.h"

#include <QRegion>

class DigitalRuns;
class QColor;
class QFont;
class QPainter;
class QPixmap;
class TimeAxis;

// Makes a transparent picture of so many pixels of the screen, of which each pixel of a plot is a
// ratio. One that is as large or a little larger is cleared and kept as it is: plots change their
// size by little and back when another one comes, and memory given back and taken anew costs time.
void clearLayer(QPixmap &layer, const QSize &pixels, qreal ratio);

// The part of a plot that its base layer covers when some of it is seen: all of it, but of a plot
// with very many rows only what lies around what is seen, at most so tall.
constexpr int tallestLayer = 4096; // widget pixels
QRect layerPart(const QSize &plot, const QRect &seen);

// The passes that paint the base layer of a plot. Colours and pens are their own; the painter's
// clip must be off, but for drawDigitalRow(), which leaves it to the caller.

// The lines of the time grid, and the times below them. Labels that would overlap one drawn before
// are left out.
void drawTimeGrid(QPainter &painter, const PlotGeometry &geometry);
void drawTimeLabels(QPainter &painter, const PlotGeometry &geometry, const QFont &font);

// The lines of the value grid with the values left of them, of which likewise none overlap.
void drawValueGrid(QPainter &painter, const PlotGeometry &geometry, const QFont &font);

void drawFrame(QPainter &painter, const PlotGeometry &geometry);

// Leaves what lies within the frame, and the frame itself, to be painted on.
void clipToFrame(QPainter &painter, const PlotGeometry &geometry);

// What stands at the trigger mark of a time (ms).
QString triggerText(int time);

// The trigger mark at a time (ms), when that lies in view, and the place of its text, which is
// empty when it does not. The text is white, but black over what is bright.
QRect triggerTextBox(const PlotGeometry &geometry, const QFont &font, int time);
void drawTriggerMark(QPainter &painter, const PlotGeometry &geometry, const QFont &font, int time,
    const QRegion &bright = {});

// One digital channel around the base line y.
void drawDigitalRow(QPainter &painter, const PlotGeometry &geometry, const TimeAxis &axis,
    const DigitalRuns &runs, int y);

// The insides of its bands, as far as they lie within a rectangle.
QRegion digitalBands(const PlotGeometry &geometry, const TimeAxis &axis, const DigitalRuns &runs,
    int y, const QRect &within);

// A row's name in the left margin, elided where it is too long.
void drawRowLabel(QPainter &painter, const QFont &font, const QString &text, int y);

// The font of the value labels and row names.
QFont smallFont(const QFont &font);
