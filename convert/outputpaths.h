// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "options.h"

#include <QStringList>

namespace convert {

// Where a recording is written: the configuration and the data of a pair, or the one table. A
// folder that is named as output takes files with the name of the input; a file gives their name.
QStringList outputPaths(const QString &input, const Options &options);

} // namespace convert
