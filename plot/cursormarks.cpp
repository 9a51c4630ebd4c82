// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cursormarks.h"

#include "baselayer.h"
#include "labeltext.h"
#include "plotgeometry.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

const QColor markColor(255, 250, 80);
const QColor shadowColor(80, 80, 80);

// Whether a rectangle touches none of those that are taken; then it is one of them.
bool take(const QRect &wanted, QVector<QRect> &taken)
{
    const bool isFree = std::none_of(
        taken.cbegin(), taken.cend(), [&](const QRect &other) { return other.intersects(wanted); });
    if (isFree)
        taken.append(wanted);
    return isFree;
}

} // namespace

QList<double> CursorMarks::times() const
{
    QList<double> times;
    for (const Cursor &cursor : m_cursors)
        times.append(cursor.time);
    return times;
}

int CursorMarks::cursorOf(const QLabel *label) const
{
    const auto found = std::find_if(m_cursors.cbegin(), m_cursors.cend(),
        [&](const Cursor &cursor) { return cursor.label.get() == label; });
    return found == m_cursors.cend() ? -1 : static_cast<int>(found - m_cursors.cbegin());
}

void CursorMarks::add(double time)
{
    if (isFull())
        return;
    Cursor cursor{time,
        std::make_unique<PlotLine>(m_plot, QStringLiteral("cursorLine"), QStringLiteral("#fffa50")),
        std::make_unique<CustomLabel>(m_plot)};
    CustomLabel *label = cursor.label.get();
    label->setObjectName(QStringLiteral("lineLabel"));
    label->setStyleSheet(QStringLiteral(
        "QLabel{color: #fffa50; background-color: rgba(49, 48, 52, 70%); padding: 0px 2px;}"));
    label->setFont(smallFont(m_plot->font()));
    label->setCursor(Qt::SizeHorCursor);
    label->setPlotter(m_plot);
    m_cursors.push_back(std::move(cursor));
    number();
}

void CursorMarks::remove(int cursor)
{
    if (cursor < 0 || cursor >= count())
        return;
    m_lastPair = {};
    m_differences.clear();
    m_cursors.erase(m_cursors.begin() + cursor);
    number();
}

void CursorMarks::clear()
{
    m_lastPair = {};
    m_differences.clear();
    m_cursors.clear();
}

void CursorMarks::number()
{
    int i = 0;
    for (const Cursor &cursor : m_cursors) {
        cursor.label->setText(QStringLiteral("P%1").arg(++i));
        cursor.label->adjustSize();
    }
}

void CursorMarks::place(const PlotGeometry &geometry)
{
    constexpr int gap = 3; // between a line and its label
    const QRect area = geometry.area();
    QVector<QRect> taken;
    for (const Cursor &cursor : m_cursors) {
        const int x = PlotGeometry::pixel(geometry.cursorX(cursor.time));
        const bool isInView = x >= area.left() && x <= area.right();
        cursor.line->place(x, geometry);
        cursor.line->setVisible(isInView);
        cursor.label->setVisible(isInView);
        if (!isInView)
            continue;
        QRect place(QPoint(x + gap, area.top() + 2), cursor.label->size());
        if (place.right() > area.right())
            place.moveRight(x - gap);
        while (!take(place, taken) && place.bottom() + place.height() < area.bottom())
            place.translate(0, place.height());
        cursor.label->move(place.topLeft());
    }
}

void CursorMarks::paintDifferences(
    QPainter &painter, const PlotGeometry &geometry, const QVector<QRect> &taken)
{
    const QFontMetrics metrics(painter.font());
    const QRect area = geometry.area();
    QVector<QRect> notFree = taken;
    m_differences.clear();
    for (size_t i = m_cursors.size(); --i > 0;) {
        const double from = m_cursors.at(i - 1).time;
        const double to = m_cursors.at(i).time;
        const double difference = std::abs(to - from);
        if (i == m_cursors.size() - 1)
            m_lastPair = {from, to, difference};
        const int x1 = PlotGeometry::pixel(geometry.cursorX(from));
        const int x2 = PlotGeometry::pixel(geometry.cursorX(to));
        const QString text = QStringLiteral("dT=") + generalText(difference);
        const QRect box((x1 + x2) / 2 - 50, differencesTop, 100, 20);
        const int margin = (box.width() - metrics.horizontalAdvance(text)) / 2 - 2;
        const QRect place = box.adjusted(margin, 0, -margin, 0);
        m_differences.append(place);
        const int centre = place.center().x();
        const bool hasText = centre >= area.left() && centre <= area.right()
            && place.left() >= area.left() && place.right() < geometry.widgetSize().width()
            && take(place, notFree);
        const auto drawMark = [&](const QColor &color, int offset) {
            painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
            painter.setClipRect(area);
            painter.drawLine(x1, PlotGeometry::top, x2, PlotGeometry::top);
            painter.setClipping(false);
            if (hasText)
                painter.drawText(box.translated(offset, offset), Qt::AlignCenter, text);
        };
        drawMark(shadowColor, 1);
        drawMark(markColor, 0);
    }
}

bool CursorMarks::differencesChange(const QRect &from, const QRect &to) const
{
    return std::any_of(m_differences.cbegin(), m_differences.cend(),
        [&](const QRect &place) { return place.intersects(from) != place.intersects(to); });
}
