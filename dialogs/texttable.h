// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

// The cells of a row with tabs between them, as spreadsheets paste it; none holds a tab or a line
// end of its own.
QString tabSeparatedLine(QStringList cells);

// A table of texts. The columns at the left name the row, the others are its cells.
struct TextTable {
    QStringList headings; // one for each column
    int names = 1; // columns that name the row
    QVector<QStringList> rows; // each as long as the headings

    // Headings and rows, each as a line with tabs.
    QString tabSeparated() const;
    // Headings and rows with commas, by RFC 4180, in UTF-8 with the mark that spreadsheets know it
    // by.
    QByteArray commaSeparated() const;
};

// Shows a table: its cells, with the names of a row as its header.
class TextTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    // Another table of the same size keeps what is selected, and only what differs is shown anew.
    void setTable(const TextTable &table);
    const TextTable &table() const { return m_table; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(
        int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

signals:
    // Of columns or rows, while their number stays. The model's own signals for this have a view
    // lay out and paint all of its cells again.
    void namesChanged();

private:
    TextTable m_table;
};
