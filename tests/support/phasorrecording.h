// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cfgproperties.h"

#include <memory>
#include <vector>

// A recording of 101 samples, 0 to 100 ms at 1000 samples per second, whose phasors the test
// chooses.
struct PhasorRecording {
    // A channel with the same phasor at every sample. The extreme is that of both parts.
    AnalogChannel &add(const QString &id, float angle, float magnitude, float extreme)
    {
        auto channel = std::make_unique<AnalogChannel>();
        channel->id = id;
        channel->sampleRate = 1000;
        for (int i = 0; i <= 100; ++i)
            channel->times.append(i);
        channel->fftAngles.fill(angle, 101);
        channel->fftMagnitudes.fill(magnitude, 101);
        channel->maxReal = extreme;
        channel->maxImaginary = extreme;
        properties->analogIds.append(id);
        properties->analogChannels.append(channel.get());
        channels.push_back(std::move(channel));
        return *channels.back();
    }

    std::vector<std::unique_ptr<AnalogChannel>> channels;
    std::unique_ptr<CFGProperties> properties = std::make_unique<CFGProperties>();
};
