// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>

#include <functional>

class CFGProperties;
class Plotter;
class QMenu;
class QPoint;

// Fills the context menu of a plot with what concerns the plots alone: their views and cursors. All
// of it may go once the menu is filled, but for the plot, whose end is that of the menu.
class PlotMenu {
    Q_DECLARE_TR_FUNCTIONS(PlotMenu)

public:
    PlotMenu(QMenu &menu, Plotter &plot, const CFGProperties &recording)
        : m_menu(menu), m_plot(plot), m_recording(recording)
    {
    }

    void addViews();
    // Cursors at a point of the plot and at times of the recording.
    void addNewCursors(const QPoint &point);

private:
    void add(const QString &text, bool isEnabled, const std::function<void()> &command);
    void addZoomToCursors();

    QMenu &m_menu;
    Plotter &m_plot;
    const CFGProperties &m_recording;
};
