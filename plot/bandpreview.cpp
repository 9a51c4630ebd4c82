// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bandpreview.h"

#include "baselayer.h"
#include "plotgeometry.h"
#include "screenlines.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

const QColor lineColor(0x79d7ff);
const QColor ground(0x313034); // that of the plots
constexpr int dash = 4;
constexpr int dashGap = 4;
constexpr int padding = 4; // of the text in its box
constexpr int margin = 6; // between the box and the edges of the plot area
constexpr int clearance = 12; // around the band, for the pointer at its corner

// Enough digits to tell the ends of neighbouring ranges apart. What is left of rounding where an
// end stands at 0 is no number.
QString rangeText(double from, double to)
{
    const auto text = [span = to - from](double end) {
        constexpr int digits = 12;
        return QString::number(std::abs(end) < span * 1e-9 ? 0.0 : end, 'g', digits);
    };
    return text(from) + QStringLiteral(" \u2026 ") + text(to);
}

QRegion outline(const QRect &frame)
{
    return QRegion(frame) - frame.adjusted(1, 1, -1, -1);
}

// The last times of the view are mapped to pixels beside the plot area; they stand at its edge.
int edgeX(const PlotGeometry &geometry, double time)
{
    const int x = PlotGeometry::pixel(geometry.traceX(time));
    return time > geometry.view().maxX ? x : std::min(x, geometry.area().right());
}

} // namespace

BandPreview::BandPreview(QWidget *plot) : QWidget(plot)
{
    setObjectName(QStringLiteral("bandpreview"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void BandPreview::show(
    const PlotSettings &range, bool hasValues, const PlotGeometry &geometry, const QRect &band)
{
    const QRect area = geometry.area();
    const QRegion before = drawn();
    m_frame.setLeft(edgeX(geometry, range.minX));
    m_frame.setRight(edgeX(geometry, range.maxX));
    m_frame.setTop(hasValues ? PlotGeometry::pixel(geometry.traceY(range.maxY)) : area.top());
    m_frame.setBottom(hasValues ? PlotGeometry::pixel(geometry.traceY(range.minY)) : area.bottom());
    m_text = rangeText(range.minX, range.maxX) + QStringLiteral(" ms");
    if (hasValues)
        m_text += QLatin1Char('\n') + rangeText(range.minY, range.maxY);
    m_bandFrame = outline(band);
    setFont(smallFont(parentWidget()->font()));
    // Of a plot that is taller than the window the text stands in the part that is seen.
    placeText(area & parentWidget()->visibleRegion().boundingRect());

    setGeometry(area);
    if (isHidden()) {
        raise();
        setVisible(true);
        return;
    }
    for (const QRect &rect : before + drawn())
        update(rect.adjusted(-1, -1, 1, 1).translated(-pos()));
}

QRegion BandPreview::drawn() const
{
    return (outline(m_frame) & geometry()) + m_textPlace;
}

// In the first of the corners, or else in the middle, where it is clear of the band's lines.
void BandPreview::placeText(const QRect &room)
{
    m_textPlace = QFontMetrics(font())
                      .boundingRect(room, Qt::AlignLeft, m_text)
                      .adjusted(-padding, -padding, padding, padding);
    const QRect inner = room.adjusted(margin, margin, -margin, -margin);
    if (m_textPlace.width() > inner.width() || m_textPlace.height() > inner.height()) {
        m_textPlace = QRect();
        return;
    }
    QRect place = m_textPlace;
    m_textPlace.moveTopLeft(inner.topLeft());
    const QPoint last(inner.right() + 1 - place.width(), inner.bottom() + 1 - place.height());
    for (const QPoint &corner : {inner.topLeft(), QPoint(last.x(), inner.top()),
             QPoint(inner.left(), last.y()), last, (inner.topLeft() + last) / 2}) {
        place.moveTopLeft(corner);
        if (!m_bandFrame.intersects(place.adjusted(-clearance, -clearance, clearance, clearance))) {
            m_textPlace = place;
            return;
        }
    }
}

void BandPreview::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::StyleChange)
        hide();
    QWidget::changeEvent(event);
}

// The gaps between the dashes are dark, so that the frame is seen over bright bands, too.
void BandPreview::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.translate(-pos());
    painter.setClipRegion(QRegion(geometry()) - m_bandFrame);
    for (const QRect &line : outline(m_frame) & geometry()) {
        fillLine(painter, line, ground);
        for (int x = line.left(); x <= line.right(); x += dash + dashGap) {
            for (int y = line.top(); y <= line.bottom(); y += dash + dashGap)
                fillLine(painter, QRect(x, y, dash, dash) & line, lineColor);
        }
    }
    painter.fillRect(m_textPlace, ground);
    painter.setPen(lineColor);
    if (!m_textPlace.isEmpty())
        painter.drawText(m_textPlace, Qt::AlignCenter, m_text);
}
