// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewhistory.h"

#include <algorithm>

namespace {

bool showSame(const ViewHistory::Views &a, const ViewHistory::Views &b)
{
    return a.keys() == b.keys()
        && std::equal(a.cbegin(), a.cend(), b.cbegin(),
            [](const PlotView &x, const PlotView &y) { return x.live() == y.live(); });
}

ViewHistory::Views returned(ViewHistory::Views now, const ViewHistory::Views &step)
{
    const PlotView *known = nullptr;
    for (auto it = now.begin(); it != now.end(); ++it) {
        if (!step.contains(it.key()))
            continue;
        *it = it->returnedTo(*step.constFind(it.key()));
        if (!it->isEmpty())
            known = &*it;
    }
    for (auto it = now.begin(); known && it != now.end(); ++it) {
        if (!step.contains(it.key()))
            it->follow(*known);
    }
    return now;
}

} // namespace

void ViewHistory::note(const Views &views)
{
    if (!m_steps.isEmpty() && showSame(m_steps.constLast(), views))
        return;
    if (m_steps.size() == most)
        m_steps.removeFirst();
    m_steps.append(views);
}

bool ViewHistory::canGoBack(const Views &now) const
{
    return std::any_of(m_steps.cbegin(), m_steps.cend(),
        [&](const Views &step) { return !showSame(returned(now, step), now); });
}

ViewHistory::Views ViewHistory::goBack(const Views &now)
{
    while (!m_steps.isEmpty()) {
        const Views earlier = returned(now, m_steps.takeLast());
        if (!showSame(earlier, now))
            return earlier;
    }
    return now;
}

void ViewHistory::forget(const QObject *plot)
{
    for (Views &step : m_steps)
        step.remove(plot);
    m_steps.erase(std::remove_if(m_steps.begin(), m_steps.end(),
                      [](const Views &step) { return step.isEmpty(); }),
        m_steps.end());
}
