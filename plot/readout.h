// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVector>

class PlotGeometry;
class QFont;
class QPainter;
class QPoint;
class QRect;

// The table of values at the cursors, at the right of the plot area: a header row, then a row for
// each shown channel; the names first, then a column for each cursor.
struct Readout {
    using Row = QVector<QString>;
    QVector<Row> rows; // all of one length

    // What the columns need in a font, with the header on one line; 0 where there is no cursor.
    int neededWidth(const QFont &font) const;

    // Paints the table into the room kept free at the right. Where the columns need more than that,
    // names and headers, on two lines, have what they need first, and the values share the rest. A
    // text that has too little is elided, a cursor's time left out.
    void draw(QPainter &painter, const PlotGeometry &geometry, const QFont &font) const;

    // What the cell at a point says in full, with its row's and its column's names; empty beside
    // the cells.
    QString textAt(const QPoint &point, const PlotGeometry &geometry, const QFont &font) const;

private:
    // How a cursor's header, "P1 (20.5)", is shown: without its time, with its time below, in full.
    enum class Header { Name, TwoLines, OneLine };

    // Where the cells stand; empty where there is no table or no room for one.
    struct Layout {
        QVector<int> widths; // of the columns
        Row header; // as it is shown
        int headerLines = 1;
        int rowHeight = 0; // of each of these lines, too
        int fitting = 0; // rows
        QRect cell(int row, int column, const PlotGeometry &geometry) const;
    };

    static QString headerText(QString text, Header shown);
    QVector<int> columnWidths(const QFont &font, Header shown, bool withValues, int padding) const;
    Layout layout(const PlotGeometry &geometry, const QFont &font) const;
};

// The room of a readout in its plot.
struct ReadoutRoom {
    Readout readout; // as of the last refresh
    int needed = 0; // width
    int width = 0; // kept free at the right of the plot area
};
