// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotvalues.h"

PlotValues &PlotValues::shared()
{
    static PlotValues values;
    return values;
}
