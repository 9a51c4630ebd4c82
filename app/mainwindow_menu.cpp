// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window adds to the context menus of its plots.

#include "mainwindow.h"

#include "cfgproperties.h"
#include "plotmenu.h"
#include "sidewindows.h"

#include <QMenu>

void MainWindow::fillPlotMenu(QMenu &menu, Plotter &plot, const QPoint &point, int cursor)
{
    if (!m_hasRecording || cursor >= 0)
        return;
    PlotMenu entries(menu, plot, *m_cfgProperties);
    entries.addViews();
    menu.addSeparator();
    entries.addNewCursors(point);
    menu.addSeparator();
    m_sideWindows->addTo(menu);
    menu.addSeparator();
    addOutputs(menu, plot);
}
