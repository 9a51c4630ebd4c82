// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointer>
#include <QWidget>

class CFGProperties;
class EventsDialog;
class Plotter;
class QMenu;

// The windows that stand beside the plots. Each is made when it is first shown, and goes with the
// main window.
class SideWindows : public QObject {
    Q_OBJECT

public:
    explicit SideWindows(QWidget *window) : QObject(window), m_window(window) { }

    // The recording on screen and any of its plots; null before another one is loaded.
    void setRecording(const CFGProperties *recording, Plotter *plot);
    // Offers the windows in the context menu of a plot.
    void addTo(QMenu &menu);

private:
    void showEvents();

    QWidget *m_window;
    const CFGProperties *m_recording = nullptr;
    QPointer<Plotter> m_plot; // through which all plots are moved
    EventsDialog *m_events = nullptr;
};
