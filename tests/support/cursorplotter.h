#pragma once

#include "plotter.h"

// A plot whose cursors stand at times that the test chooses.
class CursorPlotter : public Plotter {
public:
    explicit CursorPlotter(const QList<double> &times) : Plotter(nullptr) { cursorTimes = times; }
};
