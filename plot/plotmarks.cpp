// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotmarks.h"

PlotMarks::PlotMarks(QWidget *plot)
    : timeLine(plot),
      timeMark(new TimeMark(plot)),
      startMarker{new PlotLine(plot, QStringLiteral("startMarker"), QStringLiteral("red"))},
      endMarker{new PlotLine(plot, QStringLiteral("endMarker"), QStringLiteral("red"))},
      cursors(plot)
{
}

void PlotMarks::place(const PlotGeometry &geometry)
{
    cursors.place(geometry);
    timeLine.refresh(geometry);
    timeMark->hide();
    startMarker.place(geometry);
    endMarker.place(geometry);
}

void PlotMarks::copy(const PlotMarks &other)
{
    for (const double time : other.cursors.times())
        cursors.add(time);
    startMarker.copy(other.startMarker);
    endMarker.copy(other.endMarker);
}
