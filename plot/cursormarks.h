// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "customlabel.h"
#include "plotline.h"

#include <QList>
#include <QVector>

#include <memory>
#include <vector>

class PlotGeometry;
class QFontMetrics;
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
    double pairDifference() const { return count() < 2 ? 0 : difference(m_cursors.size() - 1); }
    // The cursor that a label belongs to; -1 for any other label.
    int cursorOf(const QLabel *label) const;
    // The label of the latest cursor; without cursors, the plot.
    QWidget *lastTabStop() const;

    void add(double time); // nothing where it is full
    void move(int cursor, double time) { m_cursors.at(static_cast<size_t>(cursor)).time = time; }
    void remove(int cursor); // nothing where there is no such cursor
    void clear();
    // For a picture for paper names are not painted, and texts have no shadow to smear them.
    void setForPaper(bool isForPaper);

    // Sets lines and labels to their places in a view. Those out of view are hidden. A label stands
    // right of its line; one that would leave the plot area there stands left of it, and so does
    // any that would run into such a one. Labels that still would overlap stand below each other,
    // beyond the height of the plot in further columns towards its middle.
    void place(const PlotGeometry &geometry);

    // The time difference of two neighbouring cursors as it is painted, in widget pixels.
    struct Difference {
        QString text;
        QRect line; // one pixel high; it may leave the plot area
        QRect place; // of the text; null where there is none for it
    };
    // Those of all pairs; the later ones first. A text stands in the middle between its cursors,
    // within the plot area. Where it would overlap another or the title it moves, staying over what
    // is seen of its line; it has no place where none is left there.
    QVector<Difference> differences(
        const PlotGeometry &geometry, const QFontMetrics &metrics, const QRect &title) const;
    // Paints them above the plot area.
    void paintDifferences(
        QPainter &painter, const PlotGeometry &geometry, const QRect &title) const;

private:
    struct Cursor {
        double time; // ms
        std::unique_ptr<PlotLine> line;
        std::unique_ptr<CustomLabel> label;
    };

    void number();
    void giveFocusBack(const Cursor &cursor); // that its label has, before that goes
    double difference(size_t later) const; // of a cursor and the one before it, ms

    QWidget *m_plot;
    std::vector<Cursor> m_cursors;
    bool m_isForPaper = false;
};
