// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotsettings.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>

namespace {

// Beyond this magnitude the difference of two ends could overflow.
constexpr double largest = 1e300;
// A range finer than this fraction of its ends leaves too few digits of a double for the grid
// steps.
constexpr double finest = 1e-12;

// As it reads. pow() of the library on Windows misses negative powers by units in the last place,
// and a grid would have an interval too many.
double powerOfTen(int exponent)
{
    return ("1e" + QByteArray::number(exponent)).toDouble();
}

} // namespace

bool PlotSettings::isUsable(double min, double max)
{
    return std::isfinite(min) && std::isfinite(max) && std::abs(min) <= largest
        && std::abs(max) <= largest && max - min > finest * std::max(std::abs(min), std::abs(max))
        && max - min > 1 / largest;
}

void PlotSettings::adjustAxis(double &min, double &max, double &ticks)
{
    if (!isUsable(min, max)) {
        min = std::isfinite(min) ? std::clamp(min, -largest / 2, largest / 2) : 0;
        max = std::isfinite(max) ? std::clamp(max, min, largest / 2) : min;
        const double room = std::max(1.0, std::max(std::abs(min), std::abs(max)) * finest * 10);
        min -= room;
        max += room;
    }
    const double grossStep = (max - min) * 0.25;
    double step = powerOfTen(static_cast<int>(std::floor(std::log10(grossStep))));
    if (grossStep > 5 * step)
        step *= 5;
    else if (grossStep > 3 * step)
        step *= 3;
    ticks = std::max(4.0, std::ceil(max / step) - std::floor(min / step));
    min = std::floor(min / step) * step;
    max = std::ceil(max / step) * step;
}

void PlotSettings::adjust()
{
    adjustAxis(minX, maxX, numXTicks);
    adjustAxis(minY, maxY, numYTicks);
}

void PlotSettings::scroll(int dx, int dy)
{
    const auto move = [](double &min, double &max, double ticks, int steps) {
        const double distance = steps * ((max - min) / ticks);
        if (steps == noScroll || !isUsable(min + distance, max + distance))
            return;
        min += distance;
        max += distance;
    };
    move(minX, maxX, numXTicks, dx);
    move(minY, maxY, numYTicks, dy);
}
