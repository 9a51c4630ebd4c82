// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotter.h"

// Shows digital channels of a recording as one row each: a line while the channel is 0, a band
// while it is 1. Channel numbers are those of the digital channels, counted from 0. The plot
// follows the time range of the others and has no value axis and no readout.
class plotterDg : public Plotter {
    Q_OBJECT

public:
    explicit plotterDg(QWidget *parent);

    void setupPlot() override;
    void drawGrid(QPainter *painter) override;
    void drawCurves(QPainter *painter) override;
    void drawValueTable(QPainter *painter) override;

    // The height that keeps every row readable.
    int neededHeight() const;

public slots:
    void customVZoomIn2() override;
    void customVZoomOut2() override;

protected:
    bool event(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    ShownChannel shownChannel(int number) const override;
    ValueExtremes prepareTraces() override;

private:
    // Of the row whose name stands at a point; empty where none does.
    QString nameTip(const QPoint &point) const;
};
