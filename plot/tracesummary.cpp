// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tracesummary.h"

#include <algorithm>

namespace {

constexpr int fanOut = 16;

template <typename Element> QVector<TraceExtent> blocksOf(const QVector<Element> &elements)
{
    QVector<TraceExtent> blocks((elements.size() + fanOut - 1) / fanOut);
    for (int block = 0; block < blocks.size(); ++block) {
        const int last = std::min((block + 1) * fanOut, elements.size());
        TraceExtent extent;
        for (int i = block * fanOut; i < last; ++i)
            extent.add(elements.at(i));
        blocks[block] = extent;
    }
    return blocks;
}

// Adds the elements that stand outside whole blocks and narrows the range to those blocks; at the
// topmost level, where there are no blocks above, adds all.
template <typename Element>
void addUnblocked(
    TraceExtent &extent, const QVector<Element> &elements, bool isTop, int &first, int &last)
{
    while (first < last && (isTop || first % fanOut != 0))
        extent.add(elements.at(first++));
    while (first < last && last % fanOut != 0)
        extent.add(elements.at(--last));
    first /= fanOut;
    last /= fanOut;
}

} // namespace

TraceSummary::TraceSummary(const QVector<float> &values) : m_values(values)
{
    if (values.size() <= fanOut)
        return;
    m_levels.append(blocksOf(values));
    while (m_levels.constLast().size() > fanOut)
        m_levels.append(blocksOf(m_levels.constLast()));
}

TraceExtent TraceSummary::extent(int first, int last) const
{
    TraceExtent result;
    addUnblocked(result, m_values, m_levels.isEmpty(), first, last);
    for (int level = 0; level < m_levels.size() && first < last; ++level)
        addUnblocked(result, m_levels.at(level), level + 1 == m_levels.size(), first, last);
    return result;
}
