// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotmenu.h"

#include "cfgproperties.h"
#include "plotter.h"

#include <QMenu>

#include <algorithm>

void PlotMenu::add(const QString &text, bool isEnabled, const std::function<void()> &command)
{
    QAction *action = m_menu.addAction(text);
    action->setEnabled(isEnabled);
    QObject::connect(action, &QAction::triggered, &m_plot, command);
}

void PlotMenu::addViews()
{
    Plotter *plot = &m_plot;
    const PlotSettings &home = plot->home();
    const PlotSettings &view = plot->view();
    const auto turnBy = [=](double views) {
        plot->changeView([=](PlotView &now) { return now.moveTimes(views * now.live().spanX()); });
    };
    add(tr("Earlier"), view.minX > home.minX, [=] { turnBy(-0.5); });
    add(tr("Later"), view.maxX < home.maxX, [=] { turnBy(0.5); });
    add(tr("Previous View"), plot->hasPreviousView(), [=] { plot->showPreviousView(); });
    add(tr("Whole Recording"), view.minX != home.minX || view.maxX != home.maxX,
        [=] { plot->changeView([](PlotView &now) { return now.showAllTimes(); }); });
    addZoomToCursors();
}

// The outermost cursors, by their numbers, the earlier one first.
void PlotMenu::addZoomToCursors()
{
    Plotter *plot = &m_plot;
    const QList<double> times = plot->cursors();
    const auto [first, last] = std::minmax_element(times.cbegin(), times.cend());
    if (first == last) {
        add(tr("Zoom to P%1-P%2").arg(1).arg(2), false, [] {});
        return;
    }
    const double from = *first;
    const double to = *last;
    add(tr("Zoom to P%1-P%2").arg(first - times.cbegin() + 1).arg(last - times.cbegin() + 1),
        from < to,
        [=] { plot->changeView([=](PlotView &now) { return now.showTimes(from, to); }); });
}

void PlotMenu::addNewCursors(const QPoint &point)
{
    Plotter *plot = &m_plot;
    const bool hasRoom = plot->cursors().size() < CursorMarks::most;
    const double trigger = m_recording.triggerOffsetMs;
    add(tr("Cursor Here"), hasRoom, [=] { plot->addCursor(point.x(), point.y()); });
    add(tr("Cursor at Trigger"), hasRoom, [=] { plot->addCursorAt(trigger); });
}
