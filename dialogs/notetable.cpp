// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "notetable.h"

#include "cfgproperties.h"
#include "channelnames.h"
#include "labeltext.h"
#include "numbers.h"
#include "texttable.h"
#include "timeofday.h"

#include <cmath>

namespace {

using Kind = ReadingNote::Kind;

QString whole(double number)
{
    return fixedText(number, 0);
}

// Whether a note is of something that may occur again and again.
bool isCounted(Kind kind)
{
    switch (kind) {
    case Kind::SeveralRates:
    case Kind::OtherLetters:
    case Kind::FieldCounts:
    case Kind::EqualTimes:
    case Kind::TimeJumps:
    case Kind::TimeSteppedBack:
    case Kind::MissingValues:
        return true;
    default:
        return false;
    }
}

} // namespace

void NoteTable::setRecording(const CFGProperties *recording)
{
    beginResetModel();
    m_notes = recording ? recording->notes : QVector<ReadingNote>();
    m_names = recording ? recording->analogIds : QStringList();
    endResetModel();
}

QString NoteTable::asText() const
{
    QStringList headings;
    for (int column = 0; column < ColumnCount; ++column)
        headings.append(headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    QString text = tabSeparatedLine(headings);
    for (int row = 0; row < m_notes.size(); ++row) {
        QStringList cells;
        for (int column = 0; column < ColumnCount; ++column)
            cells.append(textAt(row, static_cast<Column>(column)));
        text += tabSeparatedLine(cells);
    }
    return text;
}

int NoteTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_notes.size();
}

int NoteTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant NoteTable::data(const QModelIndex &index, int role) const
{
    const auto column = static_cast<Column>(index.column());
    if (role == Qt::DisplayRole)
        return textAt(index.row(), column);
    if (role == Qt::ToolTipRole && column == What)
        return plainToolTip(textAt(index.row(), column));
    if (role == Qt::TextAlignmentRole && column >= Line)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    return QVariant();
}

QVariant NoteTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (static_cast<Column>(section)) {
    case What:
        return tr("Note");
    case File:
        return tr("File");
    case Line:
        return tr("Line");
    case Count:
        return tr("How Many");
    case ColumnCount:
        break;
    }
    return QVariant();
}

QString NoteTable::textAt(int row, Column column) const
{
    const ReadingNote &note = m_notes.at(row);
    switch (column) {
    case What: {
        const QString text = whatOfConfiguration(note);
        return text.isEmpty() ? whatOfData(note) : text;
    }
    case File:
        return note.file == ReadingNote::File::Data ? tr("Data") : tr("Configuration");
    case Line:
        return QString::number(note.line);
    case Count:
        return isCounted(note.kind) ? QString::number(note.count) : QString();
    case ColumnCount:
        break;
    }
    return QString();
}

QString NoteTable::whatOfConfiguration(const ReadingNote &note) const
{
    switch (note.kind) {
    case Kind::LaterRevision:
        return tr("Written by the revision of %1, read by the rules of 1999")
            .arg(whole(note.amount));
    case Kind::ChannelCounts:
        return tr("The total of %1 channels is not the sum of analog and digital ones, %2")
            .arg(note.count)
            .arg(whole(note.amount));
    case Kind::NoRates:
        return tr(
            "No sampling rates announced; where a rate line follows, it is read as the start");
    case Kind::SeveralRates:
        return tr("Several lines of sampling rates; the last one, %1 Hz, is taken for all")
            .arg(generalText(note.amount));
    case Kind::TriggerOnOtherDay:
        return tr("Start and trigger lie on two days; the trigger is placed by time of day alone");
    case Kind::NotAscii:
        return tr("Data of type %1, read as ASCII").arg(shownName(note.word));
    case Kind::OtherLetters:
        return tr("The names seem to be in %1; see Names As in the menu of the plots")
            .arg(note.word);
    case Kind::FewerSamples:
        return tr("Fewer samples than the last rate line promises: %1 of %2")
            .arg(note.count)
            .arg(whole(note.amount));
    case Kind::MoreSamples:
        return tr("More samples than the last rate line promises: %1 instead of %2")
            .arg(note.count)
            .arg(whole(note.amount));
    default:
        return QString();
    }
}

QString NoteTable::whatOfData(const ReadingNote &note) const
{
    switch (note.kind) {
    case Kind::EndedAtLine:
        return tr("A blank or short line ended the reading before the end of the file");
    case Kind::LimitReached:
        return tr("Too long a line, or too many samples for the file: not read from here on");
    case Kind::FieldCounts:
        return (note.amount < 0
                ? tr("Too few or too many fields; in the first such line %1 too few")
                : tr("Too few or too many fields; in the first such line %1 too many"))
            .arg(whole(std::abs(note.amount)));
    case Kind::EqualTimes:
        return tr("All time stamps are the same: %1 ms").arg(millisecondsText(note.amount));
    case Kind::TimeJumps:
        return tr("Time jumps ahead by %1 ms, at most by %2 ms")
            .arg(millisecondsText(note.amount), millisecondsText(note.largest));
    case Kind::TimeSteppedBack:
        return tr("Time steps back by %1 ms, at most by %2 ms")
            .arg(millisecondsText(note.amount), millisecondsText(note.largest));
    case Kind::MissingValues:
        return tr("%1: marks of missing values, read as numbers")
            .arg(trimmedName(m_names.value(note.channel)));
    default:
        return QString();
    }
}
