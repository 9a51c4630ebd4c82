// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotsettings.h"
#include "valuepart.h"

class QRect;
class QSize;

// What a plot shows: the full view of its recording, the live view, and which share of the whole
// the zooms have left of it. Times are ms. A change that would lead to a view that cannot be shown
// is not made. The functions that change the view or a zoom give whether they did.
class PlotView {
public:
    bool isEmpty() const { return m_isEmpty; } // before setHome()
    const PlotSettings &home() const { return m_home; }
    const PlotSettings &live() const { return m_live; } // all zero while empty
    // The fractions of the full time span and of the full value range that are shown.
    double timeZoom() const { return m_timeZoom; }
    double valueZoom() const { return m_valueZoom; }

    // Sets the full view and shows all of its values, but keeps the time range of a live view.
    bool setHome(double firstTime, double lastTime, const ValueExtremes &extremes);
    // The same values under other factors, or with other angle traces beside them: a part that was
    // zoomed to stays that part.
    bool rescale(const ValueExtremes &extremes);

    // Each multiplies the share that is shown. The time range keeps its beginning; the value range
    // keeps its centre or returns to that of the whole.
    bool zoomTime(double factor);
    bool zoomValues(double factor, bool keepsCentre);
    // Zooms to a band in a widget of that size, both in pixels; without values to its times alone.
    // A range of values too narrow to be shown stays, and the time is zoomed alone.
    bool zoomToBand(const QRect &band, const QSize &widget, bool withValues);
    // Moves by whole grid intervals; PlotSettings::noScroll leaves an axis alone.
    bool scroll(int timeSteps, int valueSteps);
    bool reset();
    bool clear();
    // Shows exactly these times, with a grid as fine as that of the times around them; or all.
    bool showTimes(double from, double to);
    bool showAllTimes();
    // Moves by a time in ms, but no further beyond the full view than it is there already.
    bool moveTimes(double distance);
    // Moves by a time and a value; a range that could not be shown there stays.
    bool moveBy(double time, double value);

    // This view gone back to the times and the part of the values that an earlier one showed.
    PlotView returnedTo(const PlotView &earlier) const;

    // Takes over the time range, its zoom and the scroll bar's position from another plot.
    bool follow(const PlotView &other);

    // The position of the scroll bar that this view belongs to. A turn to another one moves the
    // view by as many grid intervals as that position says.
    int barPosition() const { return m_barPosition; }
    void setBarPosition(int position) { m_barPosition = position; }
    bool turnTo(int position);

private:
    static constexpr double wholeValues = 1.0; // zoom of the whole

    bool show(const PlotSettings &view);

    PlotSettings m_home;
    PlotSettings m_live;
    bool m_isEmpty = true;
    double m_timeZoom = 1.0;
    double m_valueZoom = wholeValues;
    ValueExtremes m_extremes;
    ValuePart m_part; // of the values
    int m_barPosition = 0;
};
