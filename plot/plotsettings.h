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

    double spanX() const { return maxX - minX; }
    double spanY() const { return maxY - minY; }

    // Adjusts both axes.
    void adjust();

    // Moves the view by whole grid intervals.
    void scroll(int dx, int dy);

    // Widens a range to tidy steps of 1, 3 or 5 times a power of ten. A range that no step of a double
    // can divide (not finite, too fine) is widened to one that it can.
    static void adjustAxis(double &min, double &max, double &ticks);
};
