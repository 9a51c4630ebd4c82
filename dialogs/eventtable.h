// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "digitalruns.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QTime>
#include <QVector>

#include <functional>
#include <queue>
#include <vector>

class CFGProperties;

// The changes of the digital channels of a recording, in the order of its samples, with the trigger
// among them by its time. Rows are made in portions, from the stretches of equal state. Nothing of
// the recording is read after setRecording().
class EventTable : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Time, Clock, FromTrigger, FromBefore, Channel, State, ColumnCount };
    static constexpr int allChannels = -1;

    using QAbstractTableModel::QAbstractTableModel;

    // Null for none. Shows all of its channels.
    void setRecording(const CFGProperties *recording);
    void showNames(); // anew, in other letters
    // Those that change, by their position among the digital channels, and all names.
    const QList<int> &changingChannels() const { return m_changing; }
    const QStringList &names() const { return m_names; }
    // Shows the changes of one channel, or of all, whose names contain a text in whatever case.
    // The trigger stays.
    void setFilter(int channel, const QString &text);

    double timeOf(int row) const { return m_events.at(row).time; } // ms
    // Headers and rows with tabs between the columns; all rows where none are given.
    QString asText(const QList<int> &rows);
    void fetchAll(); // the rows that are not made yet

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

private:
    static constexpr int trigger = -1; // in place of a channel

    struct Event {
        double time = 0;
        int channel = trigger;
        bool isOn = false;
    };
    // The next change of a channel; the earliest is the top of the queue.
    struct Next {
        int sample = 0;
        int changing = 0; // position among the channels that change
        int run = 0;
        bool operator>(const Next &other) const
        {
            return sample != other.sample ? sample > other.sample : changing > other.changing;
        }
    };

    void makeNames(); // in the letters chosen
    void restart(const std::function<bool(int)> &isShown);
    void append(QVector<Event> &events, int most);
    void fetch(int most); // one row at least is left
    bool isAtEnd() const { return m_queue.empty() && m_hasTrigger; }
    QString textAt(int row, Column column) const;

    QStringList m_readNames; // of all digital channels, as the file has them
    QStringList m_names; // as they are shown
    QList<int> m_changing;
    QVector<DigitalRuns> m_runs; // of these
    QVector<double> m_times;
    double m_triggerTime = 0; // ms
    QTime m_start; // of the clock
    std::priority_queue<Next, std::vector<Next>, std::greater<>> m_queue;
    bool m_hasTrigger = true; // among the rows, or there is none
    QVector<Event> m_events; // rows so far
};
