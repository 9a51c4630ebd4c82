// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "moment.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace convert {

enum class Revision { Of1991 = 1991, Of1999 = 1999, Of2013 = 2013 };
enum class DataForm { Ascii, Binary, Binary32, Float32 };
enum class Side { Primary, Secondary };

// A number with the text that it was read from, which keeps digits that the number does not.
struct Number {
    std::string text;
    double value = 0;
};

// Texts of channels and of the station are the bytes of the file, or UTF-8 after decodeTexts().
struct AnalogDefinition {
    std::string number;
    std::string name;
    std::string phase;
    std::string circuit;
    std::string unit;
    Number a; // a sample x stands for a x + b
    Number b;
    std::string skew;
    Number least; // range of the samples
    Number most;
    Number primary; // ratio of the instrument transformer; 1991 has none
    Number secondary;
    std::optional<Side> side; // to which a x + b refers; 1991 does not tell
};

struct StatusDefinition {
    std::string number;
    std::string name;
    std::string phase;
    std::string circuit;
    std::string normalState;
};

struct Rate {
    Number perSecond;
    std::int64_t lastSample = 0; // counted from 1 on
};

// What the configuration of a recording says.
struct Configuration {
    Revision revision = Revision::Of1991;
    std::string station;
    std::string device;
    std::vector<AnalogDefinition> analogs;
    std::vector<StatusDefinition> states;
    std::string frequency; // of the line, as written
    std::vector<Rate> rates; // none where every sample has a stamp instead
    std::int64_t promisedSamples = 0;
    Moment start; // of the first sample
    Moment trigger;
    DataForm form = DataForm::Ascii;
    double timeMultiplier = 1;

    // Nanoseconds for which a stamp counts before it is multiplied.
    std::int64_t stampUnit() const
    {
        constexpr int microsecondDecimals = 6;
        const bool isFine = revision == Revision::Of2013 && start.decimals > microsecondDecimals;
        return isFine ? 1 : 1000;
    }
};

// The sample that an ASCII recording of this revision has where it has none.
constexpr double missingMark(Revision revision)
{
    return revision == Revision::Of1991 ? 999999 : 99999;
}

// Whether the range of a channel leaves a value out.
inline bool isBeyondRange(const AnalogDefinition &channel, double value)
{
    return value < channel.least.value || value > channel.most.value;
}

} // namespace convert
