// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordingpair.h"

#include <algorithm>
#include <charconv>
#include <iomanip>
#include <iostream>
#include <stdexcept>
#include <vector>

namespace {

constexpr int badUsage = 2;
constexpr int notWritten = 1;

struct NumberOption {
    std::string_view name;
    std::int64_t RecordingOptions::*field;
    std::int64_t least;
    std::int64_t most;
    const char *help;
};

constexpr std::array<NumberOption, 7> numberOptions = {{
    {"--rate", &RecordingOptions::rate, 1, 1000000, "samples per second"},
    {"--frequency", &RecordingOptions::frequency, 1, 1000, "Hz of the network"},
    {"--samples", &RecordingOptions::samples, 1, 2000000000, "samples of the recording"},
    {"--analog", &RecordingOptions::analogs, 0, 10000, "analog channels"},
    {"--digital", &RecordingOptions::digitals, 0, 10000, "digital channels"},
    {"--noise", &RecordingOptions::noise, 0, 10000, "counts of noise, to either side"},
    {"--seed", &RecordingOptions::seed, 0, 4294967295, "seed of the noise"},
}};
constexpr std::int64_t latestFault = 9999000; // ms

class BadUsage : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::ostream &describe(std::string_view name)
{
    return std::cout << "  " << std::left << std::setw(18) << name;
}

void printHelp()
{
    const RecordingOptions defaults;
    std::cout
        << "usage: makerecording [OPTION VALUE]... PATH\n\n"
           "Writes a COMTRADE pair, PATH.cfg and PATH.dat, of a feeder whose fault is tripped and\n"
           "reclosed. The same options give the same bytes everywhere.\n\n";
    for (const NumberOption &option : numberOptions)
        describe(option.name) << option.help << ", " << option.least << " to " << option.most
                              << " (" << defaults.*option.field << ")\n";
    describe("--fault") << "one of";
    for (const Fault &fault : faults)
        std::cout << ' ' << fault.name;
    std::cout << " (" << defaults.fault.name << ")\n";
    describe("--fault-at")
        << "ms from the start to the fault (200, or an eighth if that is less)\n";
    describe("--station") << "name without commas (" << defaults.station << ")\n";
    describe("--device") << "name without commas (" << defaults.device << ")\n";
    describe("--help") << "prints this text\n";
}

std::int64_t number(
    std::string_view name, std::string_view text, std::int64_t least, std::int64_t most)
{
    std::int64_t value = 0;
    const std::from_chars_result result
        = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size() || value < least
        || value > most)
        throw BadUsage{std::string(name) + " takes a number from " + std::to_string(least) + " to "
            + std::to_string(most)};
    return value;
}

Fault faultNamed(std::string_view name)
{
    const auto *found = std::find_if(
        faults.begin(), faults.end(), [name](const Fault &fault) { return fault.name == name; });
    if (found == faults.end())
        throw BadUsage{"--fault does not know " + std::string(name)};
    return *found;
}

std::string_view fieldText(std::string_view name, std::string_view text)
{
    const bool isField = std::none_of(text.begin(), text.end(),
        [](char letter) { return letter == ',' || (letter >= 0 && letter < ' '); });
    if (!isField)
        throw BadUsage{std::string(name) + " takes a name without commas and line ends"};
    return text;
}

void setOption(RecordingOptions &options, std::string_view name, std::string_view value)
{
    for (const NumberOption &option : numberOptions) {
        if (option.name == name) {
            options.*option.field = number(name, value, option.least, option.most);
            return;
        }
    }
    if (name == "--fault")
        options.fault = faultNamed(value);
    else if (name == "--fault-at")
        options.faultAt = number(name, value, 0, latestFault);
    else if (name == "--station")
        options.station = fieldText(name, value);
    else if (name == "--device")
        options.device = fieldText(name, value);
    else
        throw BadUsage{"there is no option " + std::string(name)};
}

// Sets the options that the arguments name; the path that stands among them.
std::filesystem::path readArguments(
    const std::vector<std::string_view> &arguments, RecordingOptions &options)
{
    std::filesystem::path path;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (argument->substr(0, 1) != "-") {
            if (!path.empty())
                throw BadUsage("there are two paths");
            path = *argument;
        } else {
            const auto value = std::next(argument);
            if (value == arguments.end())
                throw BadUsage(std::string(*argument) + " takes a value");
            setOption(options, *argument, *value);
            argument = value;
        }
    }
    if (path.empty())
        throw BadUsage("there is no path");
    return path;
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    if (std::find(arguments.begin(), arguments.end(), "--help") != arguments.end()) {
        printHelp();
        return 0;
    }
    RecordingOptions options;
    try {
        const std::filesystem::path path = readArguments(arguments, options);
        const std::string error = writeRecordingPair(options, path);
        if (!error.empty())
            throw std::runtime_error(error);
        return 0;
    } catch (const BadUsage &bad) {
        std::cerr << "makerecording: " << bad.what() << "; see --help\n";
        return badUsage;
    } catch (const std::exception &error) {
        std::cerr << "makerecording: " << error.what() << '\n';
        return notWritten;
    }
}
