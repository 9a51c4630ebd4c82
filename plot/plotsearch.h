// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVector>

#include <optional>

class AnalogSource;
class DigitalRuns;
class Plotter;
class QPoint;
class QPointF;
class TimeAxis;
struct ShownChannel;

// Of a point from the stretch between two others.
double distanceToLine(const QPointF &point, const QPointF &from, const QPointF &to);

// What stands at a place of a plot, and the exact times (ms) of what is looked for.

// Of an analog plot, the number of the channel whose trace passes nearest to a point; -1 where none
// passes above or below it.
int traceAt(const Plotter &plot, const AnalogSource &source, const QPoint &point);
// The time of the largest or the smallest sample that a plot shows of a channel, the first of
// several; none where no sample is in view.
std::optional<double> timeOfExtreme(
    const Plotter &plot, const AnalogSource &source, int channel, bool isLargest);

// Of a digital plot, the channel of the row at a point; -1 where there is no row.
int rowAt(const Plotter &plot, const QPoint &point);
// "Trip = 1" at a sample of a digital channel; the name alone for -1.
QString stateText(const ShownChannel &channel, int sample);
// The nearest change of any of the channels after, or before, a time.
std::optional<double> changeAfter(
    double time, const QVector<DigitalRuns> &channels, const TimeAxis &axis);
std::optional<double> changeBefore(
    double time, const QVector<DigitalRuns> &channels, const TimeAxis &axis);

// Moves a cursor to the next sample, or the one before, and the views along where that is not in
// view. A cursor beyond the samples stays.
void stepCursor(Plotter &plot, int cursor, bool isForward);
