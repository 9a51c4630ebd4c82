// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window adds to the context menus of its plots.

#include "mainwindow.h"

#include "cfgproperties.h"
#include "namesmenu.h"
#include "otherrecordings.h"
#include "plotmenu.h"
#include "plotter.h"
#include "sidewindows.h"
#include "unitplots.h"

#include <QMenu>
#include <QPointer>

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
    // The keyboard reaches no buttons of tool bars.
    menu.addActions({m_actions.zoomReset, m_actions.vZoomIn, m_actions.vZoomOut});
    menu.addSeparator();
    entries.addNewCursors(point);
    menu.addSeparator();
    entries.addLook();
    menu.addSeparator();
    menu.addAction(tr("Plots &by Unit"), this, &MainWindow::addUnitPlots);
    m_sideWindows->addTo(menu, plot);
    menu.addSeparator();
    addOutputs(menu, plot);
    menu.addSeparator();
    addNamesMenu(menu, *m_cfgProperties);
    menu.addSeparator();
    m_otherRecordings->addTo(menu);
}

// Events are processed after each plot: another recording may come, or the window close or go.
void MainWindow::addUnitPlots()
{
    const QPointer<Plotter> first(m_analogPlotter);
    const QVector<UnitPlot> plots = first ? plotsByUnit(*m_cfgProperties) : QVector<UnitPlot>();
    for (const UnitPlot &plot : plots) {
        if (!first || !m_hasRecording)
            return;
        const QString unit = m_cfgProperties->analogUnits.value(plot.channels.constFirst());
        addPlot(unitPlotName(plot.kind, unit), plot.channels, &plot);
    }
}
