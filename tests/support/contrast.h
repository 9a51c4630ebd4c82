// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

// Relative luminance of an sRGB colour, 0 (black) to 1 (white), as the Web Content Accessibility
// Guidelines define it.
inline double luminance(QRgb color)
{
    static const auto linear = [] { // of each value of a channel: whole pictures are compared
        std::array<double, 256> table;
        for (std::size_t channel = 0; channel < table.size(); ++channel) {
            const double c = static_cast<double>(channel) / 255.0;
            table[channel] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        }
        return table;
    }();
    const auto part = [](int channel) { return linear[static_cast<std::size_t>(channel)]; };
    return 0.2126 * part(qRed(color)) + 0.7152 * part(qGreen(color)) + 0.0722 * part(qBlue(color));
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
