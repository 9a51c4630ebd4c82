// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotcolumn.h"

bool PlotColumn::focusNextPrevChild(bool next)
{
    if (!QWidget::focusNextPrevChild(next))
        return false;
    QWidget *reached = focusWidget();
    if (reached && reached != widget() && reached->hasFocus())
        ensureWidgetVisible(reached);
    return true;
}
