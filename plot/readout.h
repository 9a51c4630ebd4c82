#pragma once

#include <QString>
#include <QVector>

class PlotGeometry;
class QFont;
class QPainter;

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

private:
    QVector<int> columnWidths(const QFont &font) const;
};
