// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cursormarks.h"

#include "baselayer.h"
#include "numbers.h"
#include "plotgeometry.h"
#include "plotstyle.h"
#include "screenlines.h"
#include "textrow.h"

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

QWidget *CursorMarks::lastTabStop() const
{
    return m_cursors.empty() ? m_plot : m_cursors.back().label.get();
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
    label->setStyleSheet(cursorNameStyle);
    label->setFont(smallFont(m_plot->font()));
    label->setCursor(Qt::SizeHorCursor);
    label->setPlotter(m_plot);
    label->setFocusPolicy(Qt::TabFocus); // the arrow keys then move its cursor
    QWidget::setTabOrder(lastTabStop(), label);
    m_cursors.push_back(std::move(cursor));
    number();
}

void CursorMarks::remove(int cursor)
{
    if (cursor < 0 || cursor >= count())
        return;
    giveFocusBack(m_cursors.at(static_cast<size_t>(cursor)));
    m_cursors.erase(m_cursors.begin() + cursor);
    number();
}

void CursorMarks::giveFocusBack(const Cursor &cursor)
{
    if (m_plot->window()->focusWidget() == cursor.label.get())
        m_plot->setFocus();
}

void CursorMarks::clear()
{
    for (const Cursor &cursor : m_cursors)
        giveFocusBack(cursor);
    m_cursors.clear();
}

void CursorMarks::setForPaper(bool isForPaper)
{
    m_isForPaper = isForPaper;
    for (const Cursor &cursor : m_cursors)
        cursor.label->setStyleSheet(isForPaper ? cursorNamePaperStyle : cursorNameStyle);
}

void CursorMarks::number()
{
    int i = 0;
    for (const Cursor &cursor : m_cursors) {
        cursor.label->setText(QStringLiteral("P%1").arg(++i));
        cursor.label->adjustSize();
        cursor.label->raise(); // no line may hide a digit of it
    }
}

void CursorMarks::place(const PlotGeometry &geometry)
{
    struct Mark {
        int x;
        CustomLabel *label;
        QRect place; // of the label
    };
    constexpr int gap = 3; // between a line and its label
    const QRect area = geometry.area();
    std::vector<Mark> marks; // in view
    for (const Cursor &cursor : m_cursors) {
        const int x = PlotGeometry::pixel(geometry.cursorX(cursor.time));
        const bool isInView = x >= area.left() && x <= area.right();
        cursor.line->place(x, geometry);
        cursor.line->setVisible(isInView);
        if (!isInView)
            giveFocusBack(cursor);
        cursor.label->setVisible(isInView);
        cursor.label->setAccessibleDescription( // for those who cannot see the table
            QStringLiteral("%1 ms").arg(cursor.time, 0, 'f', 3));
        if (isInView)
            marks.push_back({x, cursor.label.get(),
                QRect(QPoint(x + gap, area.top() + 2), cursor.label->size())});
    }

    std::vector<Mark *> fromRight;
    fromRight.reserve(marks.size());
    for (Mark &mark : marks)
        fromRight.push_back(&mark);
    std::stable_sort(fromRight.begin(), fromRight.end(),
        [](const Mark *a, const Mark *b) { return a->x > b->x; });
    int limit = area.right(); // where the labels that stand left of their lines begin
    for (Mark *mark : fromRight) {
        if (mark->place.right() <= limit)
            continue;
        mark->place.moveLeft(std::max(area.left(), mark->x - gap - mark->place.width() + 1));
        limit = std::min(limit, mark->place.left() - 1);
    }

    QVector<QRect> taken;
    for (Mark &mark : marks) {
        const int width = mark.place.width();
        const int toTheMiddle = mark.place.left() < area.center().x() ? width : -width;
        for (QRect place = mark.place; area.intersects(place);) {
            if (take(place, taken)) {
                mark.place = place;
                break;
            }
            place.translate(0, place.height());
            if (place.bottom() >= area.bottom())
                place.moveTopLeft({place.left() + toTheMiddle, mark.place.top()});
        }
        moveOver(*m_plot, *mark.label, mark.place.topLeft());
    }
}

double CursorMarks::difference(size_t later) const
{
    return std::abs(m_cursors.at(later).time - m_cursors.at(later - 1).time);
}

QVector<CursorMarks::Difference> CursorMarks::differences(
    const PlotGeometry &geometry, const QFontMetrics &metrics, const QRect &title) const
{
    constexpr int boxWidth = 100;
    constexpr int boxHeight = 20;
    constexpr int padding = 4; // at both sides of a text
    const QRect area = geometry.area();
    QVector<Difference> differences;
    QVector<RowText> texts;
    const QRect strip(area.left(), differencesTop, area.width(), boxHeight);
    if (strip.intersects(title))
        texts.append({title.width(), title.left(), title.left(), title.left()});
    for (size_t i = m_cursors.size(); i-- > 1;) {
        const int x1 = PlotGeometry::pixel(geometry.cursorX(m_cursors.at(i - 1).time));
        const int x2 = PlotGeometry::pixel(geometry.cursorX(m_cursors.at(i).time));
        const QString text = QStringLiteral("dT=") + generalText(difference(i));
        const QRect line(QPoint(std::min(x1, x2), PlotGeometry::top),
            QPoint(std::max(x1, x2), PlotGeometry::top));
        const QRect box((x1 + x2) / 2 - boxWidth / 2, differencesTop, boxWidth, boxHeight);
        const int margin = (boxWidth - metrics.horizontalAdvance(text)) / 2 - padding;
        const QRect place = box.adjusted(margin, 0, -margin, 0);
        differences.append({text, line, place});

        // Over its line is a text with its middle over it, and one that covers it.
        const QRect seen = line & area;
        const int width = place.width();
        const int lowest
            = std::max(area.left(), std::min(seen.left() - width / 2, seen.right() + 1 - width));
        const int highest = seen.isEmpty()
            ? lowest - 1
            : std::min(area.right() + 1 - width, std::max(seen.right() - width / 2, seen.left()));
        texts.append(
            {width, std::clamp(place.left(), lowest, std::max(lowest, highest)), lowest, highest});
    }
    const QVector<std::optional<int>> places
        = placeTexts(texts).mid(texts.size() - differences.size());
    for (int i = 0; i < differences.size(); ++i) {
        if (places.at(i))
            differences[i].place.moveLeft(*places.at(i));
        else
            differences[i].place = QRect();
    }
    return differences;
}

void CursorMarks::paintDifferences(
    QPainter &painter, const PlotGeometry &geometry, const QRect &title) const
{
    const QFontMetrics metrics(painter.font());
    for (const Difference &difference : differences(geometry, metrics, title)) {
        fillLine(painter, difference.line & geometry.area(), markColor);
        if (difference.place.isNull())
            continue;
        if (!m_isForPaper) {
            painter.setPen(shadowColor);
            painter.drawText(difference.place.translated(1, 1), Qt::AlignCenter, difference.text);
        }
        painter.setPen(markColor);
        painter.drawText(difference.place, Qt::AlignCenter, difference.text);
    }
}
