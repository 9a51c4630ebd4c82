// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

// Writes a toolkit message to the standard error stream under its rank; information messages are
// dropped. A fatal one ends the process. Not installed: the toolkit's own output stays in force.
void messageOutput(QtMsgType type, const char *message);
