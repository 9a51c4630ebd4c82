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
constexpr int cellBorder = 2; // of the padding, what stays free where room is short
constexpr int rowPadding = 4;
constexpr int margin = 4; // between the plot area, the table and the widget's border
constexpr int mostLinesOfTip = 25; // besides its ends, so that it fits a screen

int textWidth(const QFontMetrics &metrics, const QString &text)
{
    int width = 0;
    for (const QString &line : text.split(QLatin1Char('\n')))
        width = std::max(width, metrics.horizontalAdvance(line));
    return width;
}

int sum(const QVector<int> &widths)
{
    return std::accumulate(widths.cbegin(), widths.cend(), 0);
}

// Where the needs exceed the room, those below an equal share keep what they need.
QVector<int> shared(QVector<int> needs, int room)
{
    int unsettled = needs.size();
    QVector<int> order(needs.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](int a, int b) { return needs[a] < needs[b]; });
    for (const int column : qAsConst(order)) {
        needs[column] = std::min(needs[column], room / unsettled);
        room -= needs[column];
        --unsettled;
    }
    return needs;
}

} // namespace

QString Readout::headerText(QString text, Header shown)
{
    if (shown == Header::Name)
        return text.section(QLatin1Char(' '), 0, 0);
    return shown == Header::OneLine ? text : text.replace(QLatin1Char(' '), QLatin1Char('\n'));
}

const QString &Readout::briefText(int row, int column) const
{
    return (briefRows.isEmpty() ? rows : briefRows).at(row).at(column);
}

QVector<int> Readout::columnWidths(
    const QFont &font, Header shown, Values values, int padding) const
{
    const QFontMetrics metrics(font);
    QVector<int> widths(rows.isEmpty() ? 0 : rows.constFirst().size());
    for (int column = 0; column < widths.size(); ++column) {
        const int counted = column == 0 || values != Values::None ? rows.size() : 1;
        for (int row = 0; row < counted; ++row) {
            QString text = values == Values::Brief ? briefText(row, column) : rows[row][column];
            if (row == 0 && column > 0)
                text = headerText(text, shown);
            widths[column] = std::max(widths[column], textWidth(metrics, text) + padding);
        }
    }
    return widths;
}

int Readout::neededWidth(const QFont &font) const
{
    const QVector<int> widths = columnWidths(font, Header::OneLine, Values::Full, cellPadding);
    return widths.size() < 2 ? 0 : sum(widths) + 2 * margin;
}

Readout::Layout Readout::layout(const PlotGeometry &geometry, const QFont &font) const
{
    Layout layout;
    const int columns = rows.isEmpty() ? 0 : rows.constFirst().size();
    const int room = geometry.readoutWidth() - 2 * margin;
    if (columns < 2 || room <= 0)
        return layout;
    // Names give way to times, but only where all of these can be shown for it.
    const QVector<int> times = columnWidths(font, Header::TwoLines, Values::None, cellPadding);
    const QVector<int> fair = shared(times, room);
    const bool timesFit = std::equal(times.cbegin() + 1, times.cend(), fair.cbegin() + 1);
    const Header least = timesFit ? Header::TwoLines : Header::Name;
    layout.widths.resize(columns);
    QVector<QVector<int>> needs{
        timesFit ? times : columnWidths(font, least, Values::None, cellBorder)};
    if (!briefRows.isEmpty())
        needs.append(columnWidths(font, least, Values::Brief, cellBorder));
    for (const Header header : {least, Header::TwoLines, Header::OneLine})
        needs.append(columnWidths(font, header, Values::Full, cellPadding));
    for (QVector<int> &lacking : needs) {
        for (int column = 0; column < columns; ++column)
            lacking[column] = std::max(0, lacking[column] - layout.widths[column]);
        lacking = shared(lacking, room - sum(layout.widths));
        for (int column = 0; column < columns; ++column)
            layout.widths[column] += lacking[column];
    }

    const QFontMetrics metrics(font);
    layout.header = rows.constFirst();
    for (int column = 1; column < columns; ++column) {
        const int width = layout.widths[column] - cellBorder;
        for (const Header shown : {Header::OneLine, Header::TwoLines, Header::Name}) {
            layout.header[column] = headerText(rows.constFirst().at(column), shown);
            if (textWidth(metrics, layout.header[column]) <= width)
                break;
        }
        if (layout.header[column].contains(QLatin1Char('\n')))
            layout.headerLines = 2;
    }

    // Rows move together before some of them are left out.
    const int height = geometry.widgetSize().height() - PlotGeometry::top - margin;
    const int more = layout.headerLines - 1;
    layout.rowHeight = std::clamp(
        height / (rows.size() + more), metrics.height(), metrics.height() + rowPadding);
    layout.fitting = std::clamp(height / layout.rowHeight - more, 1, rows.size());
    return layout;
}

QRect Readout::Layout::cell(int row, int column, const PlotGeometry &geometry) const
{
    const int left = geometry.widgetSize().width() - geometry.readoutWidth() + margin;
    const int line = row == 0 ? 0 : row + headerLines - 1;
    return {std::accumulate(widths.cbegin(), widths.cbegin() + column, left),
        PlotGeometry::top + line * rowHeight, widths.at(column),
        row == 0 ? headerLines * rowHeight : rowHeight};
}

bool Readout::isEllipsis(int row, const Layout &cells) const
{
    return row >= 0 && row == cells.fitting - 1 && cells.fitting < rows.size();
}

QString Readout::leftOut(const Layout &cells) const
{
    const auto asLine = [](const Row &row) {
        return row.constFirst() + QLatin1String(": ")
            + row.mid(1).toList().join(QLatin1String(", "));
    };
    const int first = std::max(cells.fitting - 1, 1);
    const int listed = std::min(rows.size() - first, mostLinesOfTip);
    QStringList lines{asLine(rows.constFirst())};
    for (const Row &row : rows.mid(first, listed))
        lines.append(asLine(row));
    if (first + listed < rows.size())
        lines.append(QStringLiteral("\u2026 +%1").arg(rows.size() - first - listed));
    return lines.join(QLatin1Char('\n'));
}

void Readout::draw(QPainter &painter, const PlotGeometry &geometry, const QFont &font) const
{
    const Layout cells = layout(geometry, font);
    QVector<Row> shown = rows.mid(0, cells.fitting);
    if (!shown.isEmpty())
        shown.first() = cells.header;
    if (isEllipsis(cells.fitting - 1, cells)) {
        shown.last().fill(QString());
        shown.last().first() = QChar(0x2026);
    }
    const QFontMetrics metrics(font);
    painter.setFont(font);
    painter.setPen(Qt::white);
    for (int row = 0; row < shown.size(); ++row) {
        for (int column = 0; column < cells.widths.size(); ++column) {
            const QRect cell = cells.cell(row, column, geometry);
            const auto elide = column == 0 ? Qt::ElideMiddle : Qt::ElideRight;
            const int width = cell.width() - cellBorder;
            QString text = shown.at(row).at(column);
            if (row > 0 && column > 0 && metrics.horizontalAdvance(text) > width
                && metrics.horizontalAdvance(briefText(row, column)) <= width)
                text = briefText(row, column);
            QStringList lines = text.split(QLatin1Char('\n'));
            for (QString &line : lines) {
                if (metrics.horizontalAdvance(line) > width)
                    line = metrics.elidedText(line, elide, width);
            }
            painter.drawText(cell, Qt::AlignCenter, lines.join(QLatin1Char('\n')));
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
            if (isEllipsis(row, cells))
                return leftOut(cells);
            const QString text = rows.at(row).at(column);
            return row == 0 || column == 0 || text.isEmpty()
                ? text
                : QStringLiteral("%1, %2: %3")
                      .arg(rows.at(row).constFirst(), rows.constFirst().at(column), text);
        }
    }
    return {};
}
