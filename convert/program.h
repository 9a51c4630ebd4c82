// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include <iosfwd>

namespace convert {

// Does what the arguments behind the program's name ask for; the exit status.
int runProgram(const QStringList &arguments, std::ostream &output, std::ostream &errors);

} // namespace convert
