// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Recolouring the capture of a large plot column.

#include "figures.h"
#include "plotcapture.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int rounds = 11;
constexpr QSize size(4000, 3000);

// Transparent with a grid of grey, traces in colours and white texts, as plots are captured.
QImage captured()
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (int x = 0; x < size.width(); x += 100)
        painter.fillRect(x, 0, 1, size.height(), QColor(150, 150, 150));
    for (int y = 0; y < size.height(); y += 100)
        painter.fillRect(0, y, size.width(), 1, QColor(150, 150, 150, 128));
    for (int trace = 0; trace < 8; ++trace) {
        painter.setPen(QColor::fromHsv(trace * 40, 255, 255));
        for (int x = 0; x < size.width(); ++x)
            painter.drawLine(x, 350 * trace, x, 350 * trace + x * 37 % 300);
    }
    painter.setPen(Qt::white);
    for (int y = 20; y < size.height(); y += 20)
        painter.drawText(10, y, QStringLiteral("0.0 20.0 40.0 60.0 80.0 100.0 ms"));
    return image;
}

// A pass that reads each pixel and writes it changed.
void passOver(QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        auto *pixel = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (const QRgb *const end = pixel + image.width(); pixel != end; ++pixel)
            *pixel = ~*pixel;
    }
}

} // namespace

Ratio recolouringAgainstAPass()
{
    const QImage capture = captured();
    QImage recoloured = capture.copy();
    QImage passed = capture.copy();
    return timesInTurn(
        rounds, [&] { recolour(recoloured, CaptureTarget::Clipboard); }, [&] { passOver(passed); },
        [&] { std::copy_n(capture.constBits(), capture.sizeInBytes(), recoloured.bits()); });
}
