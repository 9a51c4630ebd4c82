// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "program.h"

#include "conversion.h"
#include "failure.h"
#include "options.h"

#include <algorithm>
#include <iostream>
#include <new>

namespace convert {

namespace {

constexpr int badInput = 1;
constexpr int badUsage = 2;
constexpr int badOutput = 3;

std::string shown(const std::string &text)
{
    return QString::fromStdString(text).toLocal8Bit().toStdString();
}

// Goes on after an input that fails; the highest exit status counts.
int convertAll(const Options &options, std::ostream &errors)
{
    Conversion conversion(
        options, [&errors](const std::string &what) { errors << shown(what) << '\n'; });
    int status = 0;
    for (const QString &input : options.inputs) {
        try {
            conversion.convert(input);
        } catch (const Failure &failure) {
            errors << shown(failure.what()) << '\n';
            status
                = std::max(status, failure.cause() == Failure::Cause::Input ? badInput : badOutput);
        } catch (const std::bad_alloc &) {
            errors << shown(input.toStdString()) << ": there is too little memory\n";
            status = std::max(status, badInput);
        }
    }
    return status;
}

} // namespace

int runProgram(const QStringList &arguments, std::ostream &output, std::ostream &errors)
{
    try {
        const Options options = toOptions(arguments);
        if (options.wantsHelp)
            output << helpText;
        else if (options.wantsVersion)
            output << "wavorin-convert " WAVORIN_VERSION "\n";
        else
            return convertAll(options, errors);
        return 0;
    } catch (const BadUsage &bad) {
        errors << "wavorin-convert: " << shown(bad.what()) << "; see --help\n";
        return badUsage;
    }
}

} // namespace convert
