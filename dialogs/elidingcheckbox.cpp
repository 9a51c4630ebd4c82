// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "elidingcheckbox.h"

#include "channelnames.h"
#include "labeltext.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

QString withoutShortcut(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

ElidingCheckBox::ElidingCheckBox(QWidget *parent) : QCheckBox(parent)
{
    connect(&NameLetters::shared(), &NameLetters::changed, this, [this] { setName(m_readName); });
}

void ElidingCheckBox::setName(const QString &name)
{
    m_readName = name;
    m_name = shownName(name);
    setText(withoutShortcut(m_name));
    setToolTip(plainToolTip(m_name));
}

void ElidingCheckBox::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).width();
    option.text = withoutShortcut(fontMetrics().elidedText(m_name, Qt::ElideMiddle, room));
    painter.drawControl(QStyle::CE_CheckBox, option);
}
