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

// The style sheet of a cursor's name on the screen, and the one that leaves its place to the
// picture for paper.
inline const QString cursorNameStyle = QStringLiteral(
    "QLabel{color: #fffa50; background-color: rgba(49, 48, 52, 70%); padding: 0px 2px;}"
    "QLabel:focus{color: #313034; background-color: #fffa50;}");
inline const QString cursorNamePaperStyle = QStringLiteral(
    "QLabel{color: transparent; background-color: transparent; padding: 0px 2px;}");
