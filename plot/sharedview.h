// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "viewhistory.h"

#include <QString>

#include <functional>

// Gives whether the view was changed.
using ViewChange = std::function<bool(PlotView &)>;

// What all plots have in common: the last analog view, the last zooms, as fractions shown, and the
// views to go back to.
struct SharedView {
    // Each zoom has its own rule for the plots whose view is taken over, by their type.
    enum class Rule { Always, UnlessDigital, IfAnalog };

    PlotSettings analog;
    double timeZoom = 1.0;
    double valueZoom = 1.0;
    ViewHistory history;

    void takeLive(const PlotView &view, const QString &plotType, Rule rule);
};
