// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "feederfault.h"

#include <filesystem>
#include <optional>

struct RecordingOptions {
    std::int64_t rate = 2000; // Hz
    std::int64_t frequency = 50; // Hz
    std::int64_t samples = 3200;
    std::int64_t analogs = FeederFault::channelCount; // those beyond the eight measure them again
    std::int64_t digitals = static_cast<std::int64_t>(relaySignals.size()); // beyond: square waves
    std::int64_t noise = 2; // counts to either side
    std::int64_t seed = 1; // of the noise
    Fault fault = faults.front();
    std::optional<std::int64_t>
        faultAt; // ms; 200, or an eighth of a shorter recording, where empty
    std::string_view station = "Harju 110/20 kV";
    std::string_view device = "Feeder J07";
};

// Writes a pair in the ASCII form of IEEE C37.111-1999, line by line: base.cfg and base.dat. The
// error to report, or empty.
std::string writeRecordingPair(const RecordingOptions &options, const std::filesystem::path &base);
