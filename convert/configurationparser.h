// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"
#include "sectionreader.h"

#include <functional>
#include <string_view>
#include <vector>

namespace convert {

// Told what is odd but does no harm.
using Warn = std::function<void(const std::string &)>;

// Reads a configuration by the rules of the revision that its first line names, the year missing in
// 1991. What breaks them throws a Failure with the number of the line.
class ConfigurationParser {
public:
    ConfigurationParser(SectionReader &lines, Warn warn);

    Configuration parse();

private:
    using Fields = std::vector<std::string_view>;

    Fields nextFields(const char *what);
    Fields nextFields(const char *what, size_t count);
    Failure failure(const std::string &what) const;
    Number number(std::string_view text, const char *what) const;
    std::int64_t whole(std::string_view text, const char *what, std::int64_t most) const;

    void readStation();
    void readChannels();
    AnalogDefinition readAnalog();
    StatusDefinition readStatus();
    std::int64_t channelCount(std::string_view text, char letter) const;
    void readRatio(AnalogDefinition &channel, const Fields &fields) const;
    void readRates();
    Rate readRate();
    Moment readMoment(const char *what);
    void readForm();
    void readTimeCodes();

    SectionReader &m_lines;
    const Warn m_warn;
    Configuration m_configuration;
};

} // namespace convert
