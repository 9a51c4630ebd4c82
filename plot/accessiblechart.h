// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

// Has screen readers call a widget a chart; otherwise they take one that paints itself for mere
// room.
void tellAsChart(QWidget &widget);
