// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotcapture.h"

#include "timeofday.h"

#include <QCoreApplication>
#include <QPainter>

#include <cstdlib>

namespace {

constexpr int darkestLight = 101;
constexpr int greyTolerance = 9;
constexpr int nearlyTransparent = 20;
constexpr QRgb black = 0xff000000;
constexpr QRgb white = 0xffffffff;

bool isLightGrey(QRgb pixel)
{
    const int r = qRed(pixel);
    const int g = qGreen(pixel);
    const int b = qBlue(pixel);
    return r >= darkestLight && g >= darkestLight && b >= darkestLight
        && std::abs(r - g) <= greyTolerance && std::abs(b - g) <= greyTolerance;
}

} // namespace

void recolour(QImage &image, CaptureTarget target)
{
    const bool isPremultiplied = image.format() == QImage::Format_ARGB32_Premultiplied;
    if (!isPremultiplied)
        image = std::move(image).convertToFormat(QImage::Format_ARGB32);
    // The colours of translucent pixels are judged as they are, without their alpha.
    const auto recoloured = [isPremultiplied, target](QRgb pixel) {
        if (isLightGrey(isPremultiplied ? qUnpremultiply(pixel) : pixel))
            return black;
        const bool isCleared
            = target == CaptureTarget::Clipboard && qAlpha(pixel) < nearlyTransparent;
        return isCleared ? white : pixel;
    };
    // Most pixels are like the one before.
    QRgb before = black;
    QRgb after = recoloured(before);
    for (int y = 0; y < image.height(); ++y) {
        auto *pixel = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (const QRgb *const end = pixel + image.width(); pixel != end; ++pixel) {
            if (*pixel != before) {
                before = *pixel;
                after = recoloured(before);
            }
            *pixel = after;
        }
    }
}

QString captureCaption(const QString &startDate, const QString &startTime)
{
    const QString text = joinedAsUtc(startDate, dateFormat, startTime)
                             .toString(dateFormat + QLatin1Char(' ') + timeOfDayFormat);
    return QCoreApplication::translate("MainWindow", "Start: %1    Trigger: %2").arg(text, text);
}

QPixmap printableCapture(const QPixmap &capture, CaptureTarget target, const QString &caption)
{
    QImage image = capture.toImage();
    recolour(image, target);
    QPixmap picture = QPixmap::fromImage(std::move(image));
    if (picture.isNull())
        return picture;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
    painter.fillRect(picture.rect(), Qt::white);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(Qt::black);
    painter.drawText(10, 20, caption);
    return picture;
}
