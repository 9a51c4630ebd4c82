// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sidewindows.h"

#include "cfgproperties.h"
#include "eventsdialog.h"
#include "measurementsdialog.h"
#include "notesdialog.h"
#include "notesign.h"
#include "plotter.h"

#include <QAction>
#include <QMenu>

namespace {

void bringUp(QWidget &window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

SideWindows::SideWindows(QWidget *window)
    : QObject(window), m_window(window), m_noteSign(new NoteSign(window))
{
    connect(m_noteSign, &NoteSign::clicked, this, &SideWindows::showNotes);
}

QWidget *SideWindows::noteSign() const
{
    return m_noteSign;
}

void SideWindows::setRecording(const CFGProperties *recording, Plotter *plot)
{
    m_recording = recording;
    m_plot = plot;
    if (m_events)
        m_events->setRecording(m_events->isVisible() ? recording : nullptr);
    if (m_measurements)
        m_measurements->setPlotter(m_measurements->isVisible() ? plot : nullptr);
    if (m_notes)
        m_notes->setRecording(m_notes->isVisible() ? recording : nullptr);
    m_noteSign->showCount(recording ? recording->notes.size() : 0);
}

void SideWindows::addTo(QMenu &menu, Plotter &plot)
{
    connect(menu.addAction(tr("E&vents...")), &QAction::triggered, this, &SideWindows::showEvents);
    connect(menu.addAction(tr("Meas&urements...")), &QAction::triggered, &plot,
        [this, &plot] { showMeasurements(&plot); });
    QAction *notes = menu.addAction(tr("Notes..."));
    notes->setEnabled(m_recording && !m_recording->notes.isEmpty());
    connect(notes, &QAction::triggered, this, &SideWindows::showNotes);
}

void SideWindows::refresh()
{
    if (m_measurements)
        m_measurements->refresh();
}

bool SideWindows::has(const QWidget *window) const
{
    return window && (window == m_events || window == m_measurements || window == m_notes);
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
    bringUp(*m_events);
}

void SideWindows::showNotes()
{
    if (!m_notes)
        m_notes = new NotesDialog(m_window);
    if (!m_notes->isVisible())
        m_notes->setRecording(m_recording);
    bringUp(*m_notes);
}

MeasurementsDialog *SideWindows::measurements()
{
    if (!m_measurements) {
        m_measurements = new MeasurementsDialog(m_window);
        m_measurements->setMainWindow(m_window);
        connect(m_measurements, &MeasurementsDialog::saved, this, &SideWindows::saved);
    }
    return m_measurements;
}

void SideWindows::showMeasurements(Plotter *plot)
{
    measurements()->showForPlotter(plot);
}

void SideWindows::leave(const Plotter *plot)
{
    if (m_measurements && m_measurements->plotter() == plot)
        m_measurements->setPlotter(m_plot);
}

void SideWindows::showMeasurementsOf(const QList<int> &channels, int reference)
{
    if (m_plot)
        measurements()->showForChannels(m_plot, channels, reference);
}
