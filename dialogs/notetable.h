// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readingnote.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

class CFGProperties;

// What the readers noticed in the files of a recording, a note a row, in the words of the
// language chosen. Nothing of the recording is read after setRecording().
class NoteTable : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { What, File, Line, Count, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setRecording(const CFGProperties *recording); // null for none
    QString asText() const; // headers and rows with tabs between the columns

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString textAt(int row, Column column) const;
    QString whatOfConfiguration(const ReadingNote &note) const;
    QString whatOfData(const ReadingNote &note) const;

    QVector<ReadingNote> m_notes;
    QStringList m_names; // of the analog channels, as read
};
