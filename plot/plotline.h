// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFrame>

class PlotGeometry;
class QRect;

// Has a plot drawn again where a widget of it stood or stands, and around there: where the scale
// factor is no whole number, the toolkit's own repaint may miss a device pixel of what is shown.
void repaintAround(QWidget &plot, const QRect &place);

// Moves a widget of a plot, which is drawn again around both places.
void moveOver(QWidget &plot, QWidget &moved, const QPoint &place);

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
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
};
