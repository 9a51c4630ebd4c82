// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "digitalruns.h"

#include <algorithm>

DigitalRuns::DigitalRuns(const QVector<int> &states)
    : m_lastSample(states.size() - 1), m_startsOn(!states.isEmpty() && states.constFirst() != 0)
{
    for (int i = 0; i < states.size(); ++i) {
        if (i == 0 || (states.at(i) != 0) != (states.at(i - 1) != 0))
            m_starts.append(i);
    }
    m_starts.squeeze();
}

int DigitalRuns::runOf(int sample) const
{
    const auto after = std::upper_bound(m_starts.cbegin(), m_starts.cend(), sample);
    return std::max(0, static_cast<int>(after - m_starts.cbegin()) - 1);
}
