// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The reader of text exports alone.

#include "checks.h"
#include "recordsofrun.h"
#include "texts.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const RecordsOfRun records;
    CFGProperties recording;
    readText(inputOf(bytes, size), recording, readTextExport);
    requireWholeSeries(recording);
    require(recording.sampleCount <= static_cast<int>(size), "more samples than bytes");
    require(recording.sampleCount == 0
            || recording.analogChannels.size() == recording.analogChannelCount,
        "channels that are not those of the header");
    for (const double time : qAsConst(recording.sampleTimes))
        require(std::isfinite(time), "a time that is no number");
    return 0;
}
