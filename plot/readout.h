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

    // What the columns need in a font; 0 where there is no cursor.
    int neededWidth(const QFont &font) const;

    // Paints the table into the room kept free at the right. Columns that need more than that share
    // it, with their texts elided.
    void draw(QPainter &painter, const PlotGeometry &geometry, const QFont &font) const;

    // What the cell at a point says in full, with its row's and its column's names; empty beside
    // the cells.
    QString textAt(const QPoint &point, const PlotGeometry &geometry, const QFont &font) const;

private:
    // Where the cells stand; empty where there is no table or no room for one.
    struct Layout {
        QVector<int> widths; // of the columns
        int rowHeight = 0;
        int fitting = 0; // rows
        QRect cell(int row, int column, const PlotGeometry &geometry) const;
    };

    QVector<int> columnWidths(const QFont &font) const;
    Layout layout(const PlotGeometry &geometry, const QFont &font) const;
};
