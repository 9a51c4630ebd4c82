// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scaling.h"

#include "numbertext.h"

#include <cmath>

namespace convert {

namespace {

double factor(Side side, const AnalogDefinition &channel)
{
    if (channel.side == side)
        return 1;
    const double ratio = channel.primary.value / channel.secondary.value;
    return side == Side::Primary ? ratio : 1 / ratio;
}

void multiply(Number &number, double factor)
{
    number.value *= factor;
    number.text = numberText(number.value);
}

} // namespace

std::string referTo(Side side, Configuration &configuration)
{
    for (const AnalogDefinition &channel : configuration.analogs) {
        if (!channel.side)
            return "a recording of 1991 has no ratios of instrument transformers";
        const double wanted = factor(side, channel);
        if (!std::isfinite(wanted) || wanted == 0)
            return "analog channel " + channel.number + " has no ratio";
        if (!std::isfinite(channel.a.value * wanted) || !std::isfinite(channel.b.value * wanted))
            return "a or b of analog channel " + channel.number + " is too large for its ratio";
    }
    for (AnalogDefinition &channel : configuration.analogs) {
        if (channel.side == side)
            continue;
        const double wanted = factor(side, channel);
        multiply(channel.a, wanted);
        multiply(channel.b, wanted);
        channel.side = side;
    }
    return {};
}

} // namespace convert
