// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

class PlotGeometry;
class PlotLine;
class QLabel;
class QWidget;

// The line that follows the mouse over a plot, with its time; both widgets are children of the plot
// and lie below its other children. Hidden at first.
class TimeLine {
    Q_DISABLE_COPY(TimeLine)

public:
    explicit TimeLine(QWidget *plot);

    // Stands at an x of the plot.
    void show(int x, const PlotGeometry &geometry);
    // Takes the time that stands at its place now, where it is seen.
    void refresh(const PlotGeometry &geometry);
    // A line that a drag led out of its plot, or that the plot has become too narrow for, goes with
    // its label.
    void leave();
    double time() const { return m_time; } // ms

private:
    QWidget *m_plot;
    QLabel *m_label;
    PlotLine *m_line;
    double m_time = 0;
};
