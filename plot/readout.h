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
    QVector<Row> briefRows; // the same with numbers of fewer digits; empty where there are none

    bool operator==(const Readout &other) const
    {
        return rows == other.rows && briefRows == other.briefRows;
    }

    // What the columns need in a font, with the header on one line; 0 where there is no cursor.
    int neededWidth(const QFont &font) const;

    // Paints the table into the room kept free at the right. Where the columns need more than that,
    // names and headers, on two lines, have what they need first, and the values share the rest. A
    // value that has too little is brief, if that fits. Other texts are elided, a cursor's time is
    // left out.
    void draw(QPainter &painter, const PlotGeometry &geometry, const QFont &font) const;

    // What the cell at a point says in full, with its row's and its column's names; of an ellipsis
    // the rows that it stands for, each on a line. Empty beside the cells.
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
        int fitting = 0; // rows, with that of the ellipsis
        QRect cell(int row, int column, const PlotGeometry &geometry) const;
    };

    // What of the values decides on the width of a column.
    enum class Values { None, Brief, Full };

    static QString headerText(QString text, Header shown);
    const QString &briefText(int row, int column) const;
    QVector<int> columnWidths(const QFont &font, Header shown, Values values, int padding) const;
    Layout layout(const PlotGeometry &geometry, const QFont &font) const;
    bool isEllipsis(int row, const Layout &cells) const;
    QString leftOut(const Layout &cells) const;
};

// The room of a readout in its plot.
struct ReadoutRoom {
    Readout readout; // as of the last refresh
    int needed = 0; // width
    int width = 0; // kept free at the right of the plot area
};
