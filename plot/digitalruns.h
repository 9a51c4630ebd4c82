// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVector>

// The stretches of equal state of a digital channel: any state but 0 counts as 1.
class DigitalRuns {
public:
    DigitalRuns() = default;
    explicit DigitalRuns(const QVector<int> &states);

    bool operator==(const DigitalRuns &other) const
    {
        return m_starts == other.m_starts && m_lastSample == other.m_lastSample
            && m_startsOn == other.m_startsOn;
    }

    int count() const { return m_starts.size(); }
    // The first sample of a stretch, counted from 0.
    int start(int run) const { return m_starts.at(run); }
    // Where a stretch ends: the first sample of the next one, or the last sample of the channel.
    int end(int run) const { return run + 1 < count() ? m_starts.at(run + 1) : m_lastSample; }
    bool isOn(int run) const { return (run % 2 != 0) != m_startsOn; }
    // The stretch that holds a sample.
    int runOf(int sample) const;

private:
    QVector<int> m_starts;
    int m_lastSample = 0;
    bool m_startsOn = false;
};
