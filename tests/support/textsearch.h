// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

// Finds texts in pictures. Letters are looked for as they were drawn in white without antialiasing,
// so the text must have been drawn with a font of crispFont().

inline QFont crispFont(int pixelSize)
{
    QFont font;
    font.setPixelSize(pixelSize);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

inline bool isInk(const QImage &picture, int x, int y)
{
    return picture.rect().contains(x, y) && picture.pixel(x, y) == qRgb(255, 255, 255);
}

// The smallest rectangle around all ink within an area; null where there is none.
inline QRect inkRect(const QImage &picture, const QRect &area)
{
    QRect found;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (isInk(picture, x, y))
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

// The ink of a text that begins at a part of a pixel (0 to 1), cut to it.
inline QImage textInk(const QString &text, const QFont &font, double offset)
{
    const QFontMetrics metrics(font);
    QImage image(
        metrics.horizontalAdvance(text) + 20, metrics.height() + 20, QImage::Format_ARGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(10 + offset, 10 + metrics.ascent()), text);
    painter.end();
    return image.copy(inkRect(image, image.rect()));
}

// Whether exactly this ink stands at a place, with none close to it.
inline bool standsAt(const QImage &picture, const QImage &ink, const QPoint &place)
{
    constexpr int gap = 4; // beside it; above and below, one pixel
    for (int y = -1; y <= ink.height(); ++y) {
        for (int x = -gap; x < ink.width() + gap; ++x) {
            if (isInk(picture, place.x() + x, place.y() + y) != isInk(ink, x, y))
                return false;
        }
    }
    return true;
}

// The ink of the first place in an area where a text stands by itself; null where there is none.
// Centred texts begin between pixels, which moves some of their letters.
inline QRect findText(
    const QImage &picture, const QString &text, const QFont &font, const QRect &area)
{
    const QRect searched = inkRect(picture, area);
    QList<QImage> tried;
    for (int i = 0; i < 64; ++i) {
        const QImage ink = textInk(text, font, i / 64.0);
        if (tried.contains(ink))
            continue;
        tried.append(ink);
        const int probe = inkRect(ink, QRect(0, 0, 1, ink.height())).top();
        for (int y = searched.top(); y <= searched.bottom() - ink.height() + 1; ++y) {
            for (int x = searched.left(); x <= searched.right() - ink.width() + 1; ++x) {
                if (isInk(picture, x, y + probe) && standsAt(picture, ink, {x, y}))
                    return {QPoint(x, y), ink.size()};
            }
        }
    }
    return {};
}

inline QRect findText(const QImage &picture, const QString &text, const QFont &font)
{
    return findText(picture, text, font, picture.rect());
}
