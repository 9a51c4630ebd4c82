// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "labeldrag.h"
#include "rubberband.h"
#include "viewdrag.h"

// What the mouse may drag over a plot; at most one of them at a time.
struct PlotDrags {
    explicit PlotDrags(QWidget *plot) : band(plot), view(plot) { }

    RubberBand band;
    LabelDrag label;
    ViewDrag view;
};
