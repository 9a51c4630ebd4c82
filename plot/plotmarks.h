// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cursormarks.h"
#include "savemarker.h"
#include "timeline.h"
#include "timemark.h"

class PlotGeometry;
class QWidget;

// The lines that stand over a plot at times of the recording, children of the plot.
struct PlotMarks {
    Q_DISABLE_COPY(PlotMarks)

    explicit PlotMarks(QWidget *plot);

    TimeLine timeLine;
    TimeMark *timeMark;
    SaveMarker startMarker;
    SaveMarker endMarker;
    CursorMarks cursors;

    // Sets all of them to their places in a view; but the mark goes till the plot is told of the
    // pointer again.
    void place(const PlotGeometry &geometry);
    // Takes over the cursors and the range to be saved of another plot.
    void copy(const PlotMarks &other);
};
