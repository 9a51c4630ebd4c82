#include "elidinglabel.h"

#include <QStylePainter>

void ElidingLabel::paintEvent(QPaintEvent * /*event*/)
{
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    QStylePainter painter(this);
    painter.drawItemText(rect(), int(alignment()), palette(), isEnabled(), shown, foregroundRole());
}
