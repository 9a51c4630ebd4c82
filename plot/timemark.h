// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class PlotGeometry;

// A small mark on the time axis of a plot, at the time of the pointer in another one. The mouse
// passes through it. Hidden at first.
class TimeMark : public QWidget {
    Q_OBJECT

public:
    explicit TimeMark(QWidget *plot);

    // Hides it where the time (ms) is out of view.
    void show(double time, const PlotGeometry &geometry);

protected:
    void paintEvent(QPaintEvent *event) override;
};
