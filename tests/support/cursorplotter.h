// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotter.h"

// A plot whose cursors stand at times that the test chooses.
class CursorPlotter : public Plotter {
public:
    CursorPlotter(const QList<double> &times, QWidget *parent) : Plotter(parent)
    {
        resize(600, 400);
        for (const double time : times)
            addCursorAt(time);
    }
};
