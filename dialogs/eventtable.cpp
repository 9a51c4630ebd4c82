// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "eventtable.h"

#include "cfgproperties.h"
#include "channelnames.h"
#include "labeltext.h"
#include "texttable.h"
#include "timeofday.h"

#include <limits>

namespace {

constexpr int portion = 10'000; // rows

} // namespace

void EventTable::setRecording(const CFGProperties *recording)
{
    m_readNames.clear();
    m_changing.clear();
    m_runs.clear();
    m_times.clear();
    if (recording) {
        m_times = recording->sampleTimes;
        m_triggerTime = recording->triggerOffsetMs;
        m_start = readStart(recording->startTime);
        const QList<DigitalChannel *> &channels = recording->digitalChannels;
        for (int i = 0; i < channels.size(); ++i) {
            m_readNames.append(channels.at(i)->id);
            const DigitalRuns runs
                = channels.at(i)->allZero ? DigitalRuns() : DigitalRuns(channels.at(i)->values);
            if (runs.count() < 2)
                continue;
            m_changing.append(i);
            m_runs.append(runs);
        }
    }
    makeNames();
    restart([](int) { return true; });
}

void EventTable::makeNames()
{
    m_names.clear();
    for (const QString &name : qAsConst(m_readNames))
        m_names.append(trimmedName(name));
}

void EventTable::showNames()
{
    makeNames();
    if (!m_events.isEmpty())
        emit dataChanged(index(0, Channel), index(m_events.size() - 1, Channel));
}

void EventTable::setFilter(int channel, const QString &text)
{
    restart([&](int number) {
        return (channel == allChannels || channel == number)
            && m_names.at(number).contains(text, Qt::CaseInsensitive);
    });
}

void EventTable::restart(const std::function<bool(int)> &isShown)
{
    beginResetModel();
    m_events.clear();
    m_queue = {};
    for (int i = 0; i < m_changing.size(); ++i) {
        if (isShown(m_changing.at(i)))
            m_queue.push({m_runs.at(i).start(1), i, 1});
    }
    m_hasTrigger = m_times.isEmpty();
    append(m_events, portion);
    endResetModel();
}

// The trigger comes before the first change that is not earlier.
void EventTable::append(QVector<Event> &events, int most)
{
    for (int count = 0; count < most && !isAtEnd(); ++count) {
        const bool isLast = m_queue.empty();
        const double time = isLast ? 0 : m_times.value(m_queue.top().sample);
        if (!m_hasTrigger && (isLast || time >= m_triggerTime)) {
            m_hasTrigger = true;
            events.append({m_triggerTime, trigger, false});
            continue;
        }
        Next next = m_queue.top();
        m_queue.pop();
        const DigitalRuns &runs = m_runs.at(next.changing);
        events.append({time, m_changing.at(next.changing), runs.isOn(next.run)});
        if (++next.run < runs.count()) {
            next.sample = runs.start(next.run);
            m_queue.push(next);
        }
    }
}

bool EventTable::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && !isAtEnd();
}

void EventTable::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent))
        fetch(portion);
}

void EventTable::fetchAll()
{
    if (canFetchMore({}))
        fetch(std::numeric_limits<int>::max());
}

void EventTable::fetch(int most)
{
    QVector<Event> more;
    append(more, most);
    beginInsertRows({}, m_events.size(), m_events.size() + more.size() - 1);
    m_events += more;
    endInsertRows();
}

int EventTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_events.size();
}

int EventTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EventTable::data(const QModelIndex &index, int role) const
{
    const auto column = static_cast<Column>(index.column());
    if (role == Qt::DisplayRole)
        return textAt(index.row(), column);
    if (role == Qt::ToolTipRole && column == Channel)
        return plainToolTip(textAt(index.row(), column));
    if (role == Qt::TextAlignmentRole && column < Channel)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    return QVariant();
}

QString EventTable::textAt(int row, Column column) const
{
    const Event &event = m_events.at(row);
    switch (column) {
    case Time:
        return millisecondsText(event.time);
    case Clock:
        return clockText(m_start, event.time);
    case FromTrigger:
        return millisecondsText(event.time - m_triggerTime);
    case FromBefore:
        return row > 0 ? millisecondsText(event.time - m_events.at(row - 1).time) : QString();
    case Channel:
        return event.channel == trigger ? tr("Trigger") : m_names.at(event.channel);
    case State:
        return event.channel == trigger ? QString() : QString::number(event.isOn ? 1 : 0);
    case ColumnCount:
        break;
    }
    return QString();
}

QVariant EventTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (static_cast<Column>(section)) {
    case Time:
        return tr("Time (ms)");
    case Clock:
        return tr("Clock Time");
    case FromTrigger:
        return tr("From Trigger (ms)");
    case FromBefore:
        return tr("From Row Before (ms)");
    case Channel:
        return tr("Channel");
    case State:
        return tr("State");
    case ColumnCount:
        break;
    }
    return QVariant();
}

QString EventTable::asText(const QList<int> &rows)
{
    QStringList headings;
    for (int column = 0; column < ColumnCount; ++column)
        headings.append(headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    QString text = tabSeparatedLine(headings);
    const auto addRow = [&](int row) {
        QStringList cells;
        for (int column = 0; column < ColumnCount; ++column)
            cells.append(textAt(row, static_cast<Column>(column)));
        text += tabSeparatedLine(cells);
    };
    if (rows.isEmpty()) {
        fetchAll();
        for (int row = 0; row < m_events.size(); ++row)
            addRow(row);
    }
    for (const int row : rows)
        addRow(row);
    return text;
}
