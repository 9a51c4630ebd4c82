// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The data reader alone, under a configuration of so many channels as the first two bytes say.

#include "checks.h"
#include "recordsofrun.h"
#include "texts.h"

namespace {

// A promised count, of 0 to 15 channels that are defined or of more that are not.
int promised(uint8_t byte)
{
    return byte < 0xf8 ? byte % 16 : (byte - 0xfb) * 1000;
}

void define(CFGProperties &recording)
{
    for (int k = 0; k < recording.analogChannelCount && k < 16; ++k) {
        recording.analogIndexes.append(k + 1);
        recording.analogA.append(k == 2 ? -0.5F : 2.0F);
        recording.analogB.append(static_cast<float>(k));
    }
    for (int j = recording.analogChannelCount; j < recording.totalChannelCount && j < 32; ++j)
        recording.digitalIndexes.append(j + 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    if (size < 2)
        return -1; // not to be kept
    const RecordsOfRun records;
    CFGProperties recording;
    recording.analogChannelCount = promised(bytes[0]);
    recording.totalChannelCount = recording.analogChannelCount + promised(bytes[1]);
    define(recording);
    readText(inputOf(bytes + 2, size - 2), recording, readData);
    requireWholeSeries(recording);
    require(recording.sampleCount <= static_cast<int>(size), "more samples than bytes");
    return 0;
}
