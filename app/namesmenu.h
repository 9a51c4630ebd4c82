// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class CFGProperties;
class QMenu;

// Adds a submenu that chooses the letters in which names are shown. Letters in which they read far
// better than as they were read are recommended.
void addNamesMenu(QMenu &menu, const CFGProperties &recording);

// What was chosen last for recordings of a device comes into force for this one.
void chooseLettersOf(const CFGProperties &recording);
