// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "texttable.h"

#include "labeltext.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace {

QString joined(const TextTable &table, const std::function<QString(const QStringList &)> &lineOf)
{
    QString text = lineOf(table.headings);
    for (const QStringList &row : table.rows)
        text += lineOf(row);
    return text;
}

QString quoted(QString cell)
{
    static const QString marks = QStringLiteral(",\"\r\n");
    const auto isMark = [](QChar c) { return marks.contains(c); };
    if (std::none_of(cell.cbegin(), cell.cend(), isMark))
        return cell;
    const QString quote = QStringLiteral("\"");
    return quote + cell.replace(quote, quote + quote) + quote;
}

QString commaSeparatedLine(QStringList cells)
{
    for (QString &cell : cells)
        cell = quoted(cell);
    return cells.join(QLatin1Char(',')) + QStringLiteral("\r\n");
}

} // namespace

QString tabSeparatedLine(QStringList cells)
{
    for (QString &cell : cells)
        cell = cell.simplified();
    return cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

QString TextTable::tabSeparated() const
{
    return joined(*this, tabSeparatedLine);
}

QByteArray TextTable::commaSeparated() const
{
    return "\xEF\xBB\xBF" + joined(*this, commaSeparatedLine).toUtf8();
}

void TextTableModel::setTable(const TextTable &table)
{
    const bool isAsLarge = table.rows.size() == m_table.rows.size()
        && table.headings.size() == m_table.headings.size() && table.names == m_table.names;
    if (!isAsLarge) {
        beginResetModel();
        m_table = table;
        endResetModel();
        return;
    }
    const TextTable before = std::exchange(m_table, table);
    bool isNamedAnew = table.headings != before.headings;
    for (int row = 0; row < rowCount(); ++row) {
        const QStringList &now = table.rows.at(row);
        for (int place = 0; place < now.size(); ++place) {
            if (now.at(place) == before.rows.at(row).at(place))
                continue;
            const QModelIndex cell = index(row, place - table.names);
            if (cell.isValid())
                emit dataChanged(cell, cell);
            else
                isNamedAnew = true;
        }
    }
    if (isNamedAnew)
        emit namesChanged();
}

int TextTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_table.rows.size();
}

int TextTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : std::max(0, m_table.headings.size() - m_table.names);
}

QVariant TextTableModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DisplayRole)
        return m_table.rows.at(index.row()).at(m_table.names + index.column());
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    return QVariant();
}

QVariant TextTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isColumn = orientation == Qt::Horizontal;
    if (role == Qt::TextAlignmentRole && !isColumn)
        return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return QVariant();
    QStringList texts = isColumn
        ? m_table.headings.mid(m_table.names + section, 1)
        : static_cast<QStringList>(m_table.rows.at(section).mid(0, m_table.names));
    texts.removeAll(QString());
    const QString text = texts.join(QStringLiteral(", "));
    return role == Qt::ToolTipRole ? plainToolTip(text) : text;
}
