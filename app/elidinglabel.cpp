// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "elidinglabel.h"

#include <QStylePainter>

QSize ElidingLabel::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(QChar(0x2026)), QLabel::minimumSizeHint().height()};
}

void ElidingLabel::paintEvent(QPaintEvent * /*event*/)
{
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    QStylePainter painter(this);
    painter.drawItemText(rect(), int(alignment()), palette(), isEnabled(), shown, foregroundRole());
}
