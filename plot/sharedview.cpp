// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sharedview.h"

void SharedView::takeLive(const PlotView &view, const QString &plotType, Rule rule)
{
    const bool isTaken = rule == Rule::Always
        || (rule == Rule::UnlessDigital && !plotType.contains(QLatin1String("Digital")))
        || (rule == Rule::IfAnalog && plotType.contains(QLatin1String("Analog")));
    if (isTaken)
        analog = view.live();
}
