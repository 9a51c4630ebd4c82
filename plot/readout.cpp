#include "readout.h"

#include "plotgeometry.h"

#include <QFontMetrics>
#include <QPainter>

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

void Readout::draw(QPainter &painter, const PlotGeometry &geometry, const QFont &font) const
{
    QVector<int> widths = columnWidths(font);
    const int room = geometry.readoutWidth() - 2 * margin;
    if (widths.size() < 2 || room <= 0)
        return;
    const int needed = std::accumulate(widths.cbegin(), widths.cend(), 0);
    if (needed > room) {
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

    // Rows move together before some of them are left out, for which an ellipsis stands.
    const QFontMetrics metrics(font);
    const int height = geometry.widgetSize().height() - PlotGeometry::top - margin;
    const int rowHeight
        = std::clamp(height / rows.size(), metrics.height(), metrics.height() + rowPadding);
    const int fitting = std::max(1, height / rowHeight);
    QVector<Row> shown = rows.mid(0, fitting);
    if (rows.size() > fitting) {
        shown.last().fill(QString());
        shown.last().first() = QChar(0x2026);
    }

    painter.setFont(font);
    painter.setPen(Qt::white);
    int y = PlotGeometry::top;
    for (const Row &row : qAsConst(shown)) {
        int x = geometry.widgetSize().width() - geometry.readoutWidth() + margin;
        for (int column = 0; column < row.size(); ++column) {
            const QRect cell(x, y, widths[column], rowHeight);
            painter.drawText(cell, Qt::AlignCenter,
                metrics.elidedText(row.at(column), Qt::ElideRight, widths[column] - 2));
            x += widths[column];
        }
        y += rowHeight;
    }
}
