// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shownchannels.h"

#include <QSet>

#include <array>
#include <iterator>

namespace {

const std::array<QColor, 13> channelColors{QColor(245, 30, 18), QColor(220, 220, 0),
    QColor(66, 66, 255), QColor(0, 255, 0), QColor(223, 105, 209), QColor(250, 140, 20),
    QColor(80, 150, 180), QColor(193, 137, 62), QColor(60, 150, 0), QColor(0, 255, 255),
    QColor(112, 146, 190), QColor(200, 191, 231), QColor(177, 177, 177)};

} // namespace

void ShownChannels::add(int number, const ShownChannel &channel)
{
    m_channels.insert(number, channel);
    m_order.append(number);
}

void ShownChannels::arrange(const QList<int> &numbers)
{
    const QSet<int> kept(numbers.cbegin(), numbers.cend());
    for (const int number : qAsConst(m_order)) {
        if (!kept.contains(number))
            m_channels.remove(number);
    }
    m_order = numbers;
}

void ShownChannels::clear()
{
    m_channels.clear();
    m_order.clear();
}

QColor ShownChannels::color(int number, int firstSpectrum) const
{
    if (m_chosenColors.contains(number))
        return m_chosenColors.value(number);
    int index = number;
    if (number >= firstSpectrum) {
        const auto place = std::distance(m_channels.cbegin(), m_channels.constFind(number));
        index = firstSpectrum + static_cast<int>(place);
    }
    return channelColors.at(static_cast<size_t>(index) % channelColors.size());
}
