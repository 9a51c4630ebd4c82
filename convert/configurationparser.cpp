// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configurationparser.h"

#include "fields.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace convert {

namespace {

constexpr std::int64_t mostChannels = 999999; // clause 5.3.2
constexpr std::int64_t mostSamples = 9999999999; // ten digits

bool isControl(char letter)
{
    return letter >= 0 && letter < ' ' && letter != '\t';
}

// The number of one or two digits.
std::optional<std::int64_t> fromDigits(std::string_view text)
{
    const bool areDigits = text.find_first_not_of("0123456789") == std::string_view::npos;
    return areDigits && text.size() <= 2 ? toInteger(text) : std::nullopt;
}

// A difference from world time, such as there are: "0", "-4", "+10h30".
bool isTimeCode(std::string_view text)
{
    const bool isBehind = !text.empty() && text.front() == '-';
    if (isBehind || (!text.empty() && text.front() == '+'))
        text.remove_prefix(1);
    const size_t letter = text.find('h');
    const std::optional<std::int64_t> hours = fromDigits(text.substr(0, letter));
    const std::optional<std::int64_t> minutes = letter == std::string_view::npos
        ? std::optional<std::int64_t>(0)
        : fromDigits(text.substr(letter + 1));
    const std::int64_t mostHours = isBehind ? 12 : 14;
    return hours && minutes && *minutes < 60 && *hours * 60 + *minutes <= mostHours * 60;
}

} // namespace

ConfigurationParser::ConfigurationParser(SectionReader &lines, Warn warn)
    : m_lines(lines), m_warn(std::move(warn))
{
}

Configuration ConfigurationParser::parse()
{
    readStation();
    readChannels();
    m_configuration.frequency = trimmed(nextFields("line frequency", 1)[0]);
    if (!m_configuration.frequency.empty())
        number(m_configuration.frequency, "line frequency");
    readRates();
    m_configuration.start = readMoment("first sample");
    m_configuration.trigger = readMoment("trigger");
    readForm();
    if (m_configuration.revision != Revision::Of1991) {
        m_configuration.timeMultiplier
            = number(nextFields("time multiplier", 1)[0], "time multiplier").value;
        if (m_configuration.timeMultiplier <= 0)
            throw failure("the time multiplier is not above 0");
    }
    if (m_configuration.revision == Revision::Of2013)
        readTimeCodes();
    for (std::string_view line; m_lines.nextLine(line);) {
        if (!trimmed(line).empty()) {
            m_warn(m_lines.file().place() + "warning: this line is beyond the end and is left out");
            break;
        }
    }
    return std::move(m_configuration);
}

ConfigurationParser::Fields ConfigurationParser::nextFields(const char *what)
{
    std::string_view line;
    if (!m_lines.nextLine(line))
        throw failure(std::string("the configuration ends before the line of the ") + what);
    if (std::any_of(line.begin(), line.end(), isControl))
        throw failure("a control character is in the line");
    return split(line);
}

ConfigurationParser::Fields ConfigurationParser::nextFields(const char *what, size_t count)
{
    Fields fields = nextFields(what);
    if (fields.size() != count) {
        throw failure("the line of the " + std::string(what) + " has "
            + std::to_string(fields.size()) + " fields instead of " + std::to_string(count));
    }
    return fields;
}

Failure ConfigurationParser::failure(const std::string &what) const
{
    return m_lines.file().failureOfLine(what);
}

Number ConfigurationParser::number(std::string_view text, const char *what) const
{
    const std::optional<double> value = toNumber(text);
    if (!value)
        throw failure("the " + std::string(what) + " is no number: " + std::string(text));
    return {std::string(trimmed(text)), *value};
}

std::int64_t ConfigurationParser::whole(
    std::string_view text, const char *what, std::int64_t most) const
{
    const std::optional<std::int64_t> value = toInteger(text);
    if (!value || *value < 0 || *value > most) {
        throw failure("the " + std::string(what) + " is no whole number from 0 to "
            + std::to_string(most) + ": " + std::string(text));
    }
    return *value;
}

void ConfigurationParser::readStation()
{
    Fields fields = nextFields("station");
    fields[0] = withoutByteOrderMark(fields[0]);
    if (fields.size() != 2 && fields.size() != 3)
        throw failure("the first line is not station, device and, since 1999, revision year");
    m_configuration.station = fields[0];
    m_configuration.device = fields[1];
    const std::string_view year = fields.size() == 3 ? trimmed(fields[2]) : std::string_view();
    if (year.empty() || year == "1991")
        m_configuration.revision = Revision::Of1991;
    else if (year == "1999")
        m_configuration.revision = Revision::Of1999;
    else if (year == "2013")
        m_configuration.revision = Revision::Of2013;
    else
        throw failure("the revision year is none of 1991, 1999, 2013: " + std::string(year));
}

void ConfigurationParser::readChannels()
{
    const Fields fields = nextFields("numbers of channels", 3);
    const std::int64_t total = whole(fields[0], "number of channels", mostChannels);
    const std::int64_t analogs = channelCount(fields[1], 'A');
    const std::int64_t states = channelCount(fields[2], 'D');
    if (total != analogs + states) {
        throw failure(std::to_string(analogs) + " analog and " + std::to_string(states)
            + " status channels are not " + std::to_string(total) + " channels");
    }
    if (total == 0)
        throw failure("there are no channels");
    for (std::int64_t k = 0; k < analogs; ++k)
        m_configuration.analogs.push_back(readAnalog());
    for (std::int64_t j = 0; j < states; ++j)
        m_configuration.states.push_back(readStatus());
}

// A count with its letter behind it.
std::int64_t ConfigurationParser::channelCount(std::string_view text, char letter) const
{
    text = trimmed(text);
    if (text.empty() || std::toupper(static_cast<unsigned char>(text.back())) != letter)
        throw failure("a number with the letter " + std::string(1, letter)
            + " behind it is expected: " + std::string(text));
    text.remove_suffix(1);
    return whole(text, "number of channels", mostChannels);
}

AnalogDefinition ConfigurationParser::readAnalog()
{
    const bool has1991Layout = m_configuration.revision == Revision::Of1991;
    const Fields fields = nextFields("analog channel", has1991Layout ? 10 : 13);
    AnalogDefinition channel;
    whole(fields[0], "number of the channel", mostChannels);
    channel.number = trimmed(fields[0]);
    channel.name = fields[1];
    channel.phase = fields[2];
    channel.circuit = fields[3];
    channel.unit = fields[4];
    channel.a = number(fields[5], "factor a");
    channel.b = number(fields[6], "offset b");
    channel.skew = trimmed(fields[7]);
    if (!channel.skew.empty())
        number(channel.skew, "skew");
    channel.least = number(fields[8], "least value");
    channel.most = number(fields[9], "greatest value");
    if (has1991Layout)
        channel.primary = channel.secondary = {"1", 1};
    else
        readRatio(channel, fields);
    return channel;
}

void ConfigurationParser::readRatio(AnalogDefinition &channel, const Fields &fields) const
{
    channel.primary = number(fields[10], "primary rating");
    channel.secondary = number(fields[11], "secondary rating");
    const std::string_view flag = trimmed(fields[12]);
    if (areSameWords(flag, "P"))
        channel.side = Side::Primary;
    else if (areSameWords(flag, "S"))
        channel.side = Side::Secondary;
    else
        throw failure("the flag is neither P nor S: " + std::string(flag));
}

StatusDefinition ConfigurationParser::readStatus()
{
    const bool has1991Layout = m_configuration.revision == Revision::Of1991;
    const Fields fields = nextFields("status channel", has1991Layout ? 3 : 5);
    StatusDefinition channel;
    whole(fields[0], "number of the channel", mostChannels);
    channel.number = trimmed(fields[0]);
    channel.name = fields[1];
    if (!has1991Layout) {
        channel.phase = fields[2];
        channel.circuit = fields[3];
    }
    channel.normalState = trimmed(fields.back());
    if (channel.normalState != "0" && channel.normalState != "1" && !channel.normalState.empty())
        throw failure("the normal state is neither 0 nor 1: " + channel.normalState);
    return channel;
}

// Where there are no rates, a line "0,last" stands nevertheless.
void ConfigurationParser::readRates()
{
    constexpr std::int64_t mostRates = 999;
    const std::int64_t count
        = whole(nextFields("number of rates", 1)[0], "number of rates", mostRates);
    if (count == 0) {
        const Rate none = readRate();
        if (none.perSecond.value != 0)
            throw failure("there are no rates, but one of " + none.perSecond.text);
        m_configuration.promisedSamples = none.lastSample;
    }
    for (std::int64_t k = 0; k < count; ++k) {
        const Rate rate = readRate();
        if (rate.lastSample < m_configuration.promisedSamples)
            throw failure("the last sample of a rate is before that of the rate before");
        m_configuration.promisedSamples = rate.lastSample;
        m_configuration.rates.push_back(rate);
    }
}

Rate ConfigurationParser::readRate()
{
    const Fields fields = nextFields("rate", 2);
    Rate rate;
    rate.perSecond = number(fields[0], "rate");
    if (rate.perSecond.value < 0)
        throw failure("the rate is negative: " + rate.perSecond.text);
    rate.lastSample = whole(fields[1], "last sample", mostSamples);
    return rate;
}

Moment ConfigurationParser::readMoment(const char *what)
{
    const Fields fields = nextFields(what, 2);
    const bool isMonthFirst = m_configuration.revision == Revision::Of1991;
    const std::optional<Moment> moment = toMoment(
        fields[0], fields[1], isMonthFirst ? DateOrder::MonthFirst : DateOrder::DayFirst);
    if (!moment) {
        throw failure("the " + std::string(what) + " is no "
            + (isMonthFirst ? "mm/dd/yy,hh:mm:ss.ssssss" : "dd/mm/yyyy,hh:mm:ss.ssssss") + ": "
            + std::string(fields[0]) + ',' + std::string(fields[1]));
    }
    return *moment;
}

void ConfigurationParser::readForm()
{
    struct Word {
        const char *text;
        DataForm form;
        Revision since;
    };
    constexpr std::array<Word, 4> words{{
        {"ASCII", DataForm::Ascii, Revision::Of1991},
        {"BINARY", DataForm::Binary, Revision::Of1991},
        {"BINARY32", DataForm::Binary32, Revision::Of2013},
        {"FLOAT32", DataForm::Float32, Revision::Of2013},
    }};
    const std::string_view text = trimmed(nextFields("file type", 1)[0]);
    const auto *const word = std::find_if(words.begin(), words.end(), [&](const Word &one) {
        return areSameWords(text, one.text) && m_configuration.revision >= one.since;
    });
    if (word == words.end())
        throw failure("the file type is not known in this revision: " + std::string(text));
    m_configuration.form = word->form;
}

// They say how the times of this revision stand to world time, and how good the clock was. They are
// checked alone: the layout that is written has no place for them.
void ConfigurationParser::readTimeCodes()
{
    const Fields codes = nextFields("time codes", 2);
    const std::string_view local = trimmed(codes[1]);
    if (!isTimeCode(trimmed(codes[0])) || (!isTimeCode(local) && !areSameWords(local, "x")))
        throw failure("these are no time codes");
    const Fields quality = nextFields("clock quality", 2);
    const std::string_view digit = trimmed(quality[0]);
    if (digit.size() != 1 || std::isxdigit(static_cast<unsigned char>(digit[0])) == 0)
        throw failure("the clock quality is no digit from 0 to F: " + std::string(digit));
    constexpr std::int64_t mostLeapSecond = 3;
    whole(quality[1], "leap second", mostLeapSecond);
}

} // namespace convert
