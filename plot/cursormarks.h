// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "customlabel.h"
#include "plotline.h"

#include <QList>
#include <QVector>

#include <array>
#include <memory>
#include <vector>

class PlotGeometry;
class QPainter;

// The cursors of a plot: times, each with a line and with a label to drag it by, both children of
// the plot. Cursors count from 0, in the order in which they were set; their labels count from 1.
class CursorMarks {
public:
    static constexpr int most = 20;
    // The strip that holds all that is painted of the differences, in widget pixels.
    static constexpr int differencesTop = 40;
    static constexpr int differencesHeight = 24;

    explicit CursorMarks(QWidget *plot) : m_plot(plot) { }

    int count() const { return static_cast<int>(m_cursors.size()); }
    bool isFull() const { return count() >= most; }
    QList<double> times() const; // ms
    // The time difference of the last neighbouring pair, ms; 0 with fewer than two.
    double pairDifference() const { return m_lastPair[2]; }
    // The cursor that a label belongs to; -1 for any other label.
    int cursorOf(const QLabel *label) const;

    void add(double time); // nothing where it is full
    void move(int cursor, double time) { m_cursors.at(static_cast<size_t>(cursor)).time = time; }
    void remove(int cursor); // nothing where there is no such cursor
    void clear();

    // Sets lines and labels to their places in a view. Those out of view are hidden; labels that
    // would overlap stand below each other.
    void place(const PlotGeometry &geometry);

    // Paints the time differences of neighbouring cursors above the plot area; there must be two or
    // more. All pairs get their line; a text that would be cut off, or overlap that of a later pair
    // or one of the rectangles that are taken, is left out.
    void paintDifferences(
        QPainter &painter, const PlotGeometry &geometry, const QVector<QRect> &taken);
    // Whether the texts to be left out are others when something moves over them.
    bool differencesChange(const QRect &from, const QRect &to) const;

private:
    struct Cursor {
        double time; // ms
        std::unique_ptr<PlotLine> line;
        std::unique_ptr<CustomLabel> label;
    };

    void number();

    QWidget *m_plot;
    std::vector<Cursor> m_cursors;
    std::array<double, 3> m_lastPair{}; // both times and their difference, ms
    QVector<QRect> m_differences; // places of their texts, of those left out as well
};
