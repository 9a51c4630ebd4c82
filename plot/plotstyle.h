// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The style sheet of a plot on the screen, and the one with which it is taken into a picture.
inline const QString screenStyle = QStringLiteral(
    "Plotter{background-color: #313034; border: 2px outset qlineargradient(x1: 0, y1: 0, x2: 0, "
    "y2: 1, stop: 0 #616064, stop: 1 #313034);}");
constexpr int borderWidth = 2; // of a plot on the screen
inline const QString captureStyle = QStringLiteral("Plotter{background-color: transparent;}");
