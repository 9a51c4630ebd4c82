// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointer>
#include <QWidget>

class CFGProperties;
class EventsDialog;
class MeasurementsDialog;
class NoteSign;
class NotesDialog;
class Plotter;
class QMenu;

// The windows that stand beside the plots. Each is made when it is first shown, and goes with the
// main window.
class SideWindows : public QObject {
    Q_OBJECT

public:
    explicit SideWindows(QWidget *window);

    // Tells that there are notes on the recording, and opens them; for the status bar.
    QWidget *noteSign() const;

    // The recording on screen and a plot that stays as long; null before they go.
    void setRecording(const CFGProperties *recording, Plotter *plot);
    // Offers the windows in the context menu of a plot.
    void addTo(QMenu &menu, Plotter &plot);
    // After a change of cursors, channels or values; cheap while no window shows them.
    void refresh();
    bool has(const QWidget *window) const; // whether it is one of these
    // Before a plot is removed: its measurements become those of the plot given with the recording.
    void leave(const Plotter *plot);
    // Of analog channels (0-based), against a reference (-1 for none).
    void showMeasurementsOf(const QList<int> &channels, int reference);

signals:
    // Of what a window was told to save; the path and the reason where that failed, else empty.
    void saved(const QString &failedFile, const QString &error);

private:
    void showEvents();
    void showNotes();
    MeasurementsDialog *measurements();
    void showMeasurements(Plotter *plot);

    QWidget *m_window;
    const CFGProperties *m_recording = nullptr;
    QPointer<Plotter> m_plot; // through which all plots are moved
    EventsDialog *m_events = nullptr;
    MeasurementsDialog *m_measurements = nullptr;
    NotesDialog *m_notes = nullptr;
    NoteSign *m_noteSign;
};
