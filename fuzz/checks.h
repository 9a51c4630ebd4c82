// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cfgproperties.h"
#include "fuzzing.h"

#include <cmath>

// What holds of every recording that was read, whatever was in the file.
inline void requireWholeSeries(const CFGProperties &recording)
{
    const int count = recording.sampleCount;
    require(recording.sampleTimes.size() == count, "not one time for each sample");
    for (const AnalogChannel *channel : recording.analogChannels) {
        require(channel->values.size() == count, "not one value for each sample");
        require(channel->rawValues.size() == count, "not one raw value for each sample");
        require(channel->times.size() == count, "not one time for each sample of a channel");
        require(channel->minValue <= 0 && channel->maxValue >= 0, "bounds that leave zero out");
        for (const float value : channel->values) {
            require(std::isnan(value) || (value >= channel->minValue && value <= channel->maxValue),
                "a value beyond the bounds of its channel");
        }
    }
    for (const DigitalChannel *channel : recording.digitalChannels) {
        require(channel->values.size() == count, "not one state for each sample");
        require(channel->times.size() == count, "not one time for each sample of a digital");
        require(channel->allZero == (channel->values.count(0) == count), "a state overlooked");
    }
}
