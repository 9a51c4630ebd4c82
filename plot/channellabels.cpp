// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "channellabels.h"

#include "customlabel.h"
#include "labeltext.h"

#include <QEvent>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int firstX = 180;
constexpr int gap = 10;
constexpr int labelY = 20;
constexpr int labelHeight = 20;

} // namespace

// Has a colour that outlives the style sheets of its plot: each puts back the palette of the first.
class ChannelLabel : public CustomLabel {
public:
    using CustomLabel::CustomLabel;

    void setColor(const QColor &color)
    {
        m_color = color;
        QPalette colors = palette();
        colors.setColor(foregroundRole(), color);
        setPalette(colors);
    }

protected:
    void changeEvent(QEvent *event) override
    {
        CustomLabel::changeEvent(event);
        if (event->type() == QEvent::StyleChange)
            setColor(m_color);
    }

private:
    QColor m_color;
};

void ChannelLabels::show(const QVector<Entry> &entries)
{
    while (m_labels.size() > entries.size())
        delete m_labels.takeLast();
    while (m_labels.size() < entries.size()) {
        auto *label = new ChannelLabel(m_plot);
        label->setObjectName(QStringLiteral("channelLabel"));
        label->setPlotter(m_plot);
        label->setTextFormat(Qt::PlainText);
        m_labels.append(label);
    }
    QFont bold(m_plot->font());
    bold.setWeight(QFont::Bold);
    const QFontMetrics metrics(bold);
    const auto widthOf = [&](const QString &text) { return metrics.horizontalAdvance(text) + 2; };
    int needed = 0;
    for (const Entry &entry : entries)
        needed += widthOf(entry.text) + gap;
    const int room = m_plot->width() - firstX;
    const bool fits = entries.isEmpty() || needed <= room;
    const int share = fits ? room : std::max(gap, room / entries.size()) - gap;
    int x = firstX;
    for (int i = 0; i < entries.size(); ++i) {
        const Entry &entry = entries.at(i);
        ChannelLabel *label = m_labels.at(i);
        const QString shown = metrics.elidedText(entry.text, Qt::ElideMiddle, share);
        label->setColor(entry.color);
        label->setFont(bold);
        label->setText(shown);
        label->setProperty("channel", entry.channel);
        label->setToolTip(plainToolTip(entry.toolTip));
        label->setGeometry(x, labelY, widthOf(shown), labelHeight);
        label->show();
        x += (fits ? widthOf(shown) : share) + gap;
    }
}
