// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class PlotGeometry;
class PlotLine;

// One end of the range to be saved, as a line over a plot, which owns the line.
struct SaveMarker {
    PlotLine *line;
    bool isSet = false;
    int time = 0; // ms

    void set(double newTime); // cut to whole milliseconds
    void clear();
    // Takes over the time of another plot's marker.
    void copy(const SaveMarker &other);
    // Hidden where it lies right of the plot area, but not left of it.
    void place(const PlotGeometry &geometry) const;
};
