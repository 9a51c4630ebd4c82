// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The configuration reader alone.

#include "fuzzing.h"
#include "texts.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    CFGProperties recording;
    readText(inputOf(bytes, size), recording, readConfiguration);
    const int analog = recording.analogIndexes.size();
    for (const QStringList *list : {&recording.analogIds, &recording.analogPhases,
             &recording.analogCircuits, &recording.analogUnits, &recording.psFlags})
        require(list->size() == analog, "texts of analog channels that are not parallel");
    require(recording.analogA.size() == analog && recording.analogB.size() == analog
            && recording.primaryValues.size() == analog
            && recording.secondaryValues.size() == analog,
        "numbers of analog channels that are not parallel");
    require(recording.toPrimary.size() == recording.toSecondary.size()
            && recording.toPrimary.size() <= analog,
        "factors that are not parallel");
    require(recording.digitalIds.size() <= recording.digitalIndexes.size(), "too many digitals");
    require(recording.startTime.size() <= static_cast<int>(size), "a time longer than its file");
    return 0;
}
