// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLatin1String>

// The style sheet of a plot on the screen, and the one with which it is taken into a picture.
constexpr QLatin1String screenStyle("Plotter{background-color: #313034; border: 2px outset "
                                    "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                                    "stop: 0 #616064, stop: 1 #313034);}");
constexpr QLatin1String captureStyle("Plotter{background-color: transparent;}");
