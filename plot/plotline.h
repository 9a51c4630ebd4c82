// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFrame>

class PlotGeometry;
class QRect;

// Has a plot drawn again where a widget of it stood, and around there: where the scale factor is no
// whole number, a place may miss a device pixel of what was shown there.
void repaintAround(QWidget &plot, const QRect &place);

// A vertical line over a plot, one pixel wide and seen at every scale factor of the screen; the
// mouse passes through it. Hidden at first.
class PlotLine : public QFrame {
    Q_OBJECT

public:
    // The colour as a style sheet writes it.
    PlotLine(QWidget *plot, const QString &name, const QString &color);

    // From the top of the plot area down to its bottom edge, at an x of the plot.
    void place(int x, const PlotGeometry &geometry);

protected:
    void paintEvent(QPaintEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void hideEvent(QHideEvent *event) override;
};
