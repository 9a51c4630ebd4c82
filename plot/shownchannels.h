// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shownchannel.h"

#include <QColor>
#include <QList>
#include <QMap>

// The channels that a plot shows, with their colours. A colour that was chosen stays that of its
// number, whether the channel is shown or not.
class ShownChannels {
public:
    bool contains(int number) const { return m_channels.contains(number); }
    int count() const { return m_channels.size(); }
    // The numbers in the order in which they were added.
    const QList<int> &order() const { return m_order; }
    const ShownChannel &at(int number) const { return *m_channels.constFind(number); }
    // In the order of the numbers.
    const QMap<int, ShownChannel> &byNumber() const { return m_channels; }
    QMap<int, ShownChannel> &byNumber() { return m_channels; }

    void add(int number, const ShownChannel &channel);
    // Drops the channels that are not among these numbers, and takes on their order.
    void arrange(const QList<int> &numbers);
    void clear();

    void chooseColor(int number, const QColor &color) { m_chosenColors.insert(number, color); }
    // Where none was chosen, that of the number or, from firstSpectrum on, of the place among the
    // numbers shown.
    QColor color(int number, int firstSpectrum) const;

private:
    QMap<int, ShownChannel> m_channels;
    QList<int> m_order;
    QMap<int, QColor> m_chosenColors;
};
