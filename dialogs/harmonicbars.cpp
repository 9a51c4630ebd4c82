// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "harmonicbars.h"

#include "accessiblechart.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

const QColor background(0x31, 0x30, 0x34);
const QColor barColor(0x00, 0xb9, 0xf2);
constexpr int margin = 6;
constexpr int leastLetters = 6; // pixels of a font that can just be read

// Smaller where a text is wider than its room.
QFont fittingFont(QFont font, const QString &text, int width)
{
    for (int size = QFontInfo(font).pixelSize();
         size > leastLetters && QFontMetrics(font).horizontalAdvance(text) > width; --size)
        font.setPixelSize(size - 1);
    return font;
}

} // namespace

HarmonicBars::HarmonicBars(QWidget *parent) : QWidget(parent)
{
    tellAsChart(*this);
}

void HarmonicBars::setHarmonics(const Harmonics &harmonics, const QString &otherwise)
{
    m_harmonics = harmonics;
    m_otherwise = otherwise;
    m_largest = 0;
    for (const std::optional<double> &harmonic : harmonics) {
        if (harmonic && std::isfinite(*harmonic))
            m_largest = std::max(m_largest, *harmonic);
    }
    update();
}

int HarmonicBars::textHeight() const
{
    return fontMetrics().height();
}

QRect HarmonicBars::column(int order) const
{
    const int room = width() - 2 * margin;
    const int left = margin + room * (order - 1) / harmonicCount;
    const int right = margin + room * order / harmonicCount;
    return {left, margin, right - left, height() - 2 * margin};
}

QRect HarmonicBars::bar(int order) const
{
    const std::optional<double> &harmonic = m_harmonics.at(static_cast<size_t>(order - 1));
    if (!harmonic || !std::isfinite(*harmonic) || !(m_largest > 0))
        return {};
    const int gap = std::max(1, column(order).width() / 6);
    const QRect room = column(order).adjusted(gap, textHeight(), -gap, -textHeight());
    const int barHeight = qRound(std::max(0, room.height()) * *harmonic / m_largest);
    return {room.left(), room.bottom() + 1 - barHeight, room.width(), barHeight};
}

QSize HarmonicBars::minimumSizeHint() const
{
    const int order = fontMetrics().horizontalAdvance(QStringLiteral("15"));
    return {harmonicCount * (order + margin) + 2 * margin, 6 * textHeight()};
}

QSize HarmonicBars::sizeHint() const
{
    return 2 * minimumSizeHint();
}

void HarmonicBars::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), background);
    painter.setPen(Qt::white);
    if (!m_harmonics[0]) {
        painter.drawText(rect().adjusted(margin, margin, -margin, -margin),
            Qt::AlignCenter | Qt::TextWordWrap, m_otherwise);
        return;
    }
    for (int order = 1; order <= harmonicCount; ++order) {
        const QRect whole = column(order);
        painter.drawText(whole, Qt::AlignHCenter | Qt::AlignBottom, QString::number(order));
        if (!m_harmonics.at(static_cast<size_t>(order - 1)))
            continue;
        const QRect shown = bar(order);
        painter.fillRect(shown, barColor);
        const double percent
            = *m_harmonics.at(static_cast<size_t>(order - 1)) * 100 / *m_harmonics[0];
        const QString text = QString::number(percent, 'f', percent < 9.95 ? 1 : 0);
        const int top = (shown.isEmpty() ? whole.bottom() + 1 - textHeight() : shown.top());
        const QFont small = fittingFont(font(), text, whole.width());
        if (std::isfinite(percent)
            && QFontMetrics(small).horizontalAdvance(text) <= whole.width()) {
            painter.setFont(small);
            painter.drawText(QRect(whole.left(), top - textHeight(), whole.width(), textHeight()),
                Qt::AlignCenter, text);
            painter.setFont(font());
        }
    }
}
