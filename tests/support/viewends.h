// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotsettings.h"

#include <QVector>

#include <cmath>

// The ends of both axes of a view and the intervals of their grids: minX, maxX, numXTicks, minY,
// maxY, numYTicks.
using Ends = QVector<double>;

// Six decimals: the ends of a band are no round numbers.
inline double rounded(double value)
{
    return std::round(value * 1e6) / 1e6;
}

inline Ends ends(const PlotSettings &view)
{
    return {rounded(view.minX), rounded(view.maxX), view.numXTicks, rounded(view.minY),
        rounded(view.maxY), view.numYTicks};
}
