// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readout.h"

#include "plotgeometry.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRect>

#include <algorithm>
#include <numeric>

namespace {

constexpr int cellPadding = 8;
constexpr int rowPadding = 4;
constexpr int margin = 4; // between the plot area, the table and the widget's border

} // namespace

QVector<int> Readout::columnWidths(const QFont &font) const
{
    const QFontMetrics metrics(font);
    QVector<int> widths(rows.isEmpty() ? 0 : rows.constFirst().size());
    for (const Row &row : rows) {
        for (int column = 0; column < row.size(); ++column)
            widths[column]
                = std::max(widths[column], metrics.horizontalAdvance(row.at(column)) + cellPadding);
    }
    return widths;
}

int Readout::neededWidth(const QFont &font) const
{
    const QVector<int> widths = columnWidths(font);
    if (widths.size() < 2)
        return 0;
    return std::accumulate(widths.cbegin(), widths.cend(), 2 * margin);
}

Readout::Layout Readout::layout(const PlotGeometry &geometry, const QFont &font) const
{
    Layout layout;
    QVector<int> widths = columnWidths(font);
    const int room = geometry.readoutWidth() - 2 * margin;
    if (widths.size() < 2 || room <= 0)
        return layout;
    if (std::accumulate(widths.cbegin(), widths.cend(), 0) > room) {
        // The columns that ask for less than an equal share keep what they need.
        int left = room;
        int unsettled = widths.size();
        QVector<int> order(widths.size());
        std::iota(order.begin(), order.end(), 0);
        std::sort(order.begin(), order.end(), [&](int a, int b) { return widths[a] < widths[b]; });
        for (const int column : qAsConst(order)) {
            widths[column] = std::min(widths[column], left / unsettled);
            left -= widths[column];
            --unsettled;
        }
    }
    layout.widths = widths;

    // Rows move together before some of them are left out.
    const QFontMetrics metrics(font);
    const int height = geometry.widgetSize().height() - PlotGeometry::top - margin;
    layout.rowHeight
        = std::clamp(height / rows.size(), metrics.height(), metrics.height() + rowPadding);
    layout.fitting = std::clamp(height / layout.rowHeight, 1, rows.size());
    return layout;
}

QRect Readout::Layout::cell(int row, int column, const PlotGeometry &geometry) const
{
    const int left = geometry.widgetSize().width() - geometry.readoutWidth() + margin;
    return {std::accumulate(widths.cbegin(), widths.cbegin() + column, left),
        PlotGeometry::top + row * rowHeight, widths.at(column), rowHeight};
}

void Readout::draw(QPainter &painter, const PlotGeometry &geometry, const QFont &font) const
{
    const Layout cells = layout(geometry, font);
    QVector<Row> shown = rows.mid(0, cells.fitting);
    if (!shown.isEmpty() && shown.size() < rows.size()) { // an ellipsis stands for those left out
        shown.last().fill(QString());
        shown.last().first() = QChar(0x2026);
    }
    const QFontMetrics metrics(font);
    painter.setFont(font);
    painter.setPen(Qt::white);
    for (int row = 0; row < shown.size(); ++row) {
        for (int column = 0; column < cells.widths.size(); ++column) {
            const QRect cell = cells.cell(row, column, geometry);
            QString text = shown.at(row).at(column);
            if (row == 0 && column > 0 && metrics.horizontalAdvance(text) > cell.width() - 2)
                text = text.section(QLatin1Char(' '), 0, 0); // the cursor without its time
            painter.drawText(
                cell, Qt::AlignCenter, metrics.elidedText(text, Qt::ElideRight, cell.width() - 2));
        }
    }
}

QString Readout::textAt(const QPoint &point, const PlotGeometry &geometry, const QFont &font) const
{
    const Layout cells = layout(geometry, font);
    for (int row = 0; row < cells.fitting; ++row) {
        for (int column = 0; column < cells.widths.size(); ++column) {
            if (!cells.cell(row, column, geometry).contains(point))
                continue;
            const QString text = rows.at(row).at(column);
            return row == 0 || column == 0 || text.isEmpty()
                ? text
                : QStringLiteral("%1, %2: %3")
                      .arg(rows.at(row).constFirst(), rows.constFirst().at(column), text);
        }
    }
    return {};
}
