// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"

#include <QStringList>

#include <cstdint>
#include <optional>
#include <stdexcept>

class QTextCodec;

namespace convert {

// What the command line asks for that does not make sense.
class BadUsage : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class Format { Pair, Csv };

struct Options {
    Format format = Format::Pair;
    bool mayReplace = false;
    std::optional<Side> side;
    std::optional<std::int64_t> from; // in nanoseconds of the recording's time, as is the end
    std::optional<std::int64_t> to;
    QTextCodec *encoding = nullptr; // of the texts that are read, where it is named
    QStringList inputs; // patterns are resolved
    QString output; // file or folder, where it is named
    bool wantsHelp = false;
    bool wantsVersion = false;
};

// Reads the arguments behind the program's name. Throws BadUsage.
Options toOptions(const QStringList &arguments);

extern const char *const helpText;

} // namespace convert
