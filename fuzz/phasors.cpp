// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// A pair is read, and its phasors are computed.

#include "checks.h"
#include "recordsofrun.h"
#include "texts.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QByteArrayList texts = textsOf(inputOf(bytes, size));
    if (texts.size() < 2)
        return -1; // not to be kept
    const RecordsOfRun records;
    CFGProperties recording;
    if (!load(texts, recording))
        return 0;
    requireWholeSeries(recording);
    recording.fftTransform();
    for (const AnalogChannel *channel : qAsConst(recording.analogChannels)) {
        require(channel->fftAngles.size() == recording.sampleCount, "not one angle a sample");
        require(channel->fftMagnitudes.size() == recording.sampleCount, "not one magnitude");
        require(channel->maxMagnitude > 0, "a largest magnitude that cannot be divided by");
        for (const float angle : channel->fftAngles)
            require(std::isnan(angle) || std::abs(angle) < 3.1416F, "an angle beyond half a turn");
    }
    return 0;
}
