// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sidewindows.h"

#include "eventsdialog.h"
#include "plotter.h"

#include <QAction>
#include <QMenu>

void SideWindows::setRecording(const CFGProperties *recording, Plotter *plot)
{
    m_recording = recording;
    m_plot = plot;
    if (m_events)
        m_events->setRecording(m_events->isVisible() ? recording : nullptr);
}

void SideWindows::addTo(QMenu &menu)
{
    connect(menu.addAction(tr("Events...")), &QAction::triggered, this, &SideWindows::showEvents);
}

void SideWindows::showEvents()
{
    if (!m_events) {
        m_events = new EventsDialog(m_window);
        connect(m_events, &EventsDialog::timeChosen, this, [this](double time) {
            const auto centre = [time](PlotView &view) {
                return view.moveTimes(time - (view.live().minX + view.live().maxX) / 2);
            };
            if (m_plot)
                m_plot->changeView(centre);
        });
        connect(m_events, &EventsDialog::cursorWanted, this, [this](double time) {
            if (m_plot)
                m_plot->addCursorAt(time);
        });
    }
    if (!m_events->isVisible())
        m_events->setRecording(m_recording);
    m_events->show();
    m_events->raise();
    m_events->activateWindow();
}
