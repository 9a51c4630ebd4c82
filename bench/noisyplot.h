// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "fakeplothost.h"
#include "plotter.h"

#include <QWidget>

// Linked plots, one over the other, each of which shows the same eight channels of noise over
// 1000 ms.
class NoisyPlots {
public:
    static constexpr int channels = 8;

    // The second half of the times begins earlier than the first half ends, by so many
    // milliseconds.
    NoisyPlots(int plots, int samples, const QSize &size = {1600, 400}, double stepBack = 0);

    Plotter &first() const { return *m_plots.constFirst(); }
    // Draws the base layer of the first plot, with the trigger at another time than before: a layer
    // of which nothing has changed would not be drawn again.
    void redraw() const;
    const CFGProperties &recording() const { return *m_host.source; }

private:
    FakePlotHost m_host;
    QWidget m_area;
    QList<Plotter *> m_plots;
};
