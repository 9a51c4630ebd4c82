// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timemark.h"

#include "plotgeometry.h"
#include "plotline.h"

#include <QPainter>

namespace {

constexpr int halfWidth = 4;

} // namespace

TimeMark::TimeMark(QWidget *plot) : QWidget(plot)
{
    setObjectName(QStringLiteral("timemark"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(2 * halfWidth + 1, halfWidth + 2);
    hide();
}

void TimeMark::show(double time, const PlotGeometry &geometry)
{
    const QRect area = geometry.area();
    const int x = PlotGeometry::pixel(geometry.cursorX(time));
    moveOver(*parentWidget(), *this, {x - halfWidth, area.bottom() + 1});
    setVisible(geometry.isDrawable() && x >= area.left() && x <= area.right());
}

// A triangle that points up at the time.
void TimeMark::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x79d7ff));
    const double middle = width() / 2.0;
    const QPointF corners[]{
        {middle, 0.0}, {0.0, double(height())}, {double(width()), double(height())}};
    painter.drawConvexPolygon(corners, 3);
}
