// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "elidingcombobox.h"

#include "channelnames.h"
#include "labeltext.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

void ElidingComboBox::setTexts(const QStringList &texts, int current)
{
    const QSignalBlocker blocker(this);
    clear();
    QList<QStandardItem *> items; // to be announced once, not each
    items.reserve(texts.size());
    for (const QString &text : texts) {
        items.append(new QStandardItem(shownName(text)));
        items.constLast()->setData(text, Qt::UserRole);
    }
    if (!items.isEmpty())
        qobject_cast<QStandardItemModel *>(model())->invisibleRootItem()->appendRows(items);
    setCurrentIndex(current);
}

void ElidingComboBox::showPopup()
{
    const int needed = view()->sizeHintForColumn(0) + 30; // a scroll bar, too
    view()->setMinimumWidth(std::min(needed, screen()->availableSize().width() * 4 / 5));
    view()->setTextElideMode(Qt::ElideMiddle);
    QComboBox::showPopup();
}

bool ElidingComboBox::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || elidedText() == currentText())
        return QComboBox::event(event);
    QStringList tip{toolTip(), currentText()};
    tip.removeAll(QString());
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
        plainToolTip(tip.join(QLatin1Char('\n'))), this);
    return true;
}

void ElidingComboBox::paintEvent(QPaintEvent *event)
{
    if (elidedText() == currentText())
        return QComboBox::paintEvent(event);
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = elidedText();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

QString ElidingComboBox::elidedText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    constexpr int frame = 2; // that styles keep free within the field, together
    return fontMetrics().elidedText(currentText(), Qt::ElideMiddle, field.width() - frame);
}
