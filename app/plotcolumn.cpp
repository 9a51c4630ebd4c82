// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotcolumn.h"

#include <QScrollBar>

bool PlotColumn::focusNextPrevChild(bool next)
{
    const int place = verticalScrollBar()->value();
    const bool isDone = QScrollArea::focusNextPrevChild(next);
    const QWidget *reached = focusWidget();
    if (isDone && reached && (reached == widget() || !reached->hasFocus()))
        verticalScrollBar()->setValue(place);
    return isDone;
}
