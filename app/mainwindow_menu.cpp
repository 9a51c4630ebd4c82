// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window adds to the context menus of its plots.

#include "mainwindow.h"

#include "plotmenu.h"
#include "sidewindows.h"

#include <QMenu>

void MainWindow::fillPlotMenu(QMenu &menu, Plotter &plot, const QPoint &point, int cursor)
{
    if (!m_hasRecording)
        return;
    PlotMenu entries(menu, plot, *this);
    if (cursor >= 0) {
        menu.addSeparator();
        entries.addMoves(cursor);
        return;
    }
    entries.addViews();
    menu.addSeparator();
    entries.addNewCursors(point);
    menu.addSeparator();
    m_sideWindows->addTo(menu, plot);
    menu.addSeparator();
    addOutputs(menu, plot);
}
