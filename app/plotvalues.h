// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

// Factors, times and positions kept for all plots of the process. The window sets them at its
// construction and clears the plot values before each load; each channel's own factors rule what is
// drawn.
struct PlotValues {
    double primaryFactor = 1.0;
    double secondaryFactor = 1.0;
    std::array<double, 6> timesAndPositions{};

    static PlotValues &shared();
};
