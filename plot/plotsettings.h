// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// One view of a plot: the shown range of time (ms) and value with their grid. The numbers of grid
// intervals are whole numbers, at least 4.
struct PlotSettings {
    double minX = 0;
    double maxX = 0;
    double numXTicks = 4;
    double minY = 0;
    double maxY = 0;
    double numYTicks = 4;

    // A step count that leaves the axis alone in scroll().
    static constexpr int noScroll = -100;

    bool operator==(const PlotSettings &other) const
    {
        return minX == other.minX && maxX == other.maxX && numXTicks == other.numXTicks
            && minY == other.minY && maxY == other.maxY && numYTicks == other.numYTicks;
    }

    double spanX() const { return maxX - minX; }
    double spanY() const { return maxY - minY; }

    // Adjusts both axes.
    void adjust();

    // Moves the view by whole grid intervals.
    void scroll(int dx, int dy);

    // Whether a range can be shown: finite, of positive span, and not finer than doubles tell
    // apart.
    static bool isUsable(double min, double max);

    // Widens a range to whole steps of 1, 3 or 5 times a power of ten and counts them. A range that
    // is not usable is made so first.
    static void adjustAxis(double &min, double &max, double &ticks);
};
