// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "digitalruns.h"

#include <algorithm>

DigitalRuns::DigitalRuns(const QVector<int> &states)
    : m_lastSample(states.size() - 1), m_startsOn(!states.isEmpty() && states.constFirst() != 0)
{
    constexpr int blockSize = 256; // samples
    const int *const values = states.constData();
    if (!states.isEmpty())
        m_starts.append(0);
    bool isOn = m_startsOn;
    for (int begin = 0, end = 0; begin < states.size(); begin = end) {
        end = std::min(begin + blockSize, states.size());
        // Most blocks hold no change, which can be seen of many samples at a time.
        int others = 0;
        for (int i = begin; i < end; ++i)
            others += (values[i] != 0) != isOn ? 1 : 0;
        for (int i = begin; i < end && others > 0; ++i) {
            if ((values[i] != 0) != isOn) {
                m_starts.append(i);
                isOn = !isOn;
            }
        }
    }
    m_starts.squeeze();
}

int DigitalRuns::runOf(int sample) const
{
    const auto after = std::upper_bound(m_starts.cbegin(), m_starts.cend(), sample);
    return std::max(0, static_cast<int>(after - m_starts.cbegin()) - 1);
}
