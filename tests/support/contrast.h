// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cmath>

// Relative luminance of an sRGB colour, 0 (black) to 1 (white), as the Web Content Accessibility
// Guidelines define it.
inline double luminance(QRgb color)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color))
        + 0.0722 * linear(qBlue(color));
}

// Contrast ratio of two colours after the same guidelines, 1 to 21.
inline double contrast(QRgb a, QRgb b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

// How many pixels of two pictures of one size have at least that contrast to each other.
inline int differentPixels(const QImage &a, const QImage &b, double least)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += contrast(a.pixel(x, y), b.pixel(x, y)) >= least ? 1 : 0;
    }
    return count;
}
