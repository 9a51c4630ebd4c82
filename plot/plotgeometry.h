// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotsettings.h"

#include <QRect>
#include <QSize>

// Where times and values of a view stand in a plot, in widget pixels. The three conversions between
// times and pixels differ by a few pixels on purpose and are not to be unified: traceX() for
// traces, grid and save markers, lineTime() for the time line and new cursors, cursorX() for
// cursors.
class PlotGeometry {
public:
    static constexpr int left = 100; // x of the left edge of the plot area
    static constexpr int top = 60; // y of its top edge
    static constexpr int bottomMargin = 41; // from its bottom edge to the bottom of the widget

    PlotGeometry() = default;
    PlotGeometry(QSize widget, int readoutWidth, const PlotSettings &view);

    // The widths and heights of the drawing rules: from the left edge of the plot area to the
    // readout, and from the top of the widget to the bottom edge of the plot area.
    int plotWidth() const { return m_widget.width() - left - m_readoutWidth; }
    int plotHeight() const { return m_widget.height() - bottomMargin; }
    QSize widgetSize() const { return m_widget; }
    int readoutWidth() const { return m_readoutWidth; }
    const PlotSettings &view() const { return m_view; }

    // The frame of the plot area, edges included.
    QRect area() const;
    bool isDrawable() const { return plotWidth() > 2 && plotHeight() > 59; }

    double traceX(double time) const;
    double traceY(double value) const;
    double lineTime(int x) const;
    double cursorX(double time) const;
    double traceTime(double x) const; // the inverse of traceX()

    // The nearest whole pixel, kept within what painting can take. The argument must not be NaN.
    static int pixel(double position);
    // Cut toward zero, and kept within the range of an integer; 0 for NaN.
    static int truncated(double value);

    // The row's base line in a digital plot of the given number of rows; row counts from 0.
    int rowY(int row, int rows) const;
    // The row around a height; -1 above the first and below the last one.
    int rowAt(int y, int rows) const;

private:
    QSize m_widget;
    int m_readoutWidth = 0;
    PlotSettings m_view;
};
