// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reportpicture.h"

#include "cfgproperties.h"
#include "channelnames.h"
#include "timeofday.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr QRgb white = 0xffffffff;
constexpr int margin = 10; // around the texts, pixels
constexpr int columnGap = 20;

// The intensity of light that a channel of an sRGB colour stands for, 0 to 1, and back.
double linear(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

int encoded(double light)
{
    const double c = light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
    return static_cast<int>(c * 255); // never brighter than asked for
}

// By the relative luminance and the contrast of the Web Content Accessibility Guidelines: what may
// stand on white, and what black may stand on.
constexpr double leastContrast = 4.5;
constexpr double brightest = 1.05 / leastContrast - 0.05;
constexpr double darkest = 0.05 * leastContrast - 0.05;

using Light = std::array<double, 3>;

Light lightOf(QRgb color)
{
    return {linear(qRed(color)), linear(qGreen(color)), linear(qBlue(color))};
}

double luminanceOf(const Light &light)
{
    return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

QRgb darkened(QRgb color)
{
    const Light light = lightOf(color);
    const double luminance = luminanceOf(light);
    if (luminance <= brightest)
        return color;
    const double factor = brightest / luminance;
    return qRgb(encoded(light[0] * factor), encoded(light[1] * factor), encoded(light[2] * factor));
}

QRgb lightened(QRgb color)
{
    const Light light = lightOf(color);
    const double luminance = luminanceOf(light);
    if (luminance >= darkest)
        return color;
    const double share = (brightest - luminance) / (1 - luminance);
    const auto mixed = [share](double part) { return encoded(part + (1 - part) * share); };
    return qRgb(mixed(light[0]), mixed(light[1]), mixed(light[2]));
}

QVector<int> columnWidths(const QVector<QStringList> &table, const QFontMetrics &metrics)
{
    QVector<int> widths;
    for (const QStringList &row : table) {
        widths.resize(row.size());
        for (int i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], metrics.horizontalAdvance(row.at(i)) + columnGap);
    }
    return widths;
}

} // namespace

void darkenForPaper(QImage &image)
{
    image = std::move(image).convertToFormat(QImage::Format_RGB32);
    // Most pixels are like the one before.
    QRgb before = white;
    QRgb after = white;
    for (int y = 0; y < image.height(); ++y) {
        auto *pixel = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (const QRgb *const end = pixel + image.width(); pixel != end; ++pixel) {
            if (*pixel != before) {
                before = *pixel;
                after = before == white ? white : darkened(before);
            }
            *pixel = after;
        }
    }
}

void lightenForName(QImage &image, const QRect &place)
{
    const QRect part = place & image.rect();
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            image.setPixel(x, y, lightened(image.pixel(x, y)));
    }
}

ReportPicture::ReportPicture(const CFGProperties &recording, const QString &fileName,
    const QString &side, const QList<double> &cursors)
{
    const QString start
        = tr("Start: %1 %2")
              .arg(trimmedName(recording.startDate), trimmedName(recording.startTime));
    const QString trigger = tr("Trigger at %1 ms").arg(recording.triggerOffsetMs);
    const QString gap(4, QLatin1Char(' '));
    heading = QStringList{
        trimmedName(recording.stationName) + gap + trimmedName(recording.recordingDeviceId),
        fileName, QStringList({start, trigger, side}).join(gap)};
    if (cursors.isEmpty())
        return;
    table.append({tr("Cursor"), tr("Time (ms)"), tr("Clock Time"), tr("From Trigger (ms)"),
        tr("From Cursor Before (ms)")});
    for (int i = 0; i < cursors.size(); ++i) {
        const double time = cursors.at(i);
        table.append({QStringLiteral("P%1").arg(i + 1), millisecondsText(time),
            clockText(recording.startTime, time),
            millisecondsText(time - recording.triggerOffsetMs),
            i > 0 ? millisecondsText(time - cursors.at(i - 1)) : QString()});
    }
}

QPixmap ReportPicture::around(const QPixmap &plots, const QFont &font) const
{
    QImage image = plots.toImage();
    const double ratio = image.devicePixelRatio();
    darkenForPaper(image);
    for (const Name &name : names) {
        const QRectF place(
            QPointF(name.place.topLeft()) * ratio, QSizeF(name.place.size()) * ratio);
        lightenForName(image, place.toAlignedRect());
    }
    const QFontMetrics metrics(font);
    const int line = metrics.lineSpacing();
    const QSize size = plots.size() / ratio;
    const int above = 2 * margin + heading.size() * line;
    const int below = table.isEmpty() ? 0 : 2 * margin + table.size() * line;

    QPixmap picture(QSize(size.width(), above + size.height() + below) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.drawImage(0, above, image);
    painter.setPen(Qt::black);
    for (const Name &name : names) {
        QFont sharp = name.font;
        sharp.setStyleStrategy(QFont::NoAntialias); // smooth edges would be too pale
        painter.setFont(sharp);
        painter.drawText(name.place.translated(0, above), Qt::AlignCenter, name.text);
    }
    painter.setFont(font);
    const int width = size.width() - 2 * margin;
    int base = margin + metrics.ascent();
    for (const QString &text : heading) {
        painter.drawText(margin, base, metrics.elidedText(text, Qt::ElideMiddle, width));
        base += line;
    }
    base = above + size.height() + margin + metrics.ascent();
    const QVector<int> widths = columnWidths(table, metrics);
    for (const QStringList &row : table) {
        int right = margin;
        for (int i = 0; i < row.size(); ++i) {
            right += widths.at(i);
            const int textWidth = metrics.horizontalAdvance(row.at(i));
            painter.drawText(i == 0 ? margin : right - textWidth, base, row.at(i));
        }
        base += line;
    }
    return picture;
}
