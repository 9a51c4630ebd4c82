// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The two layers of a plot and the labels that stand on it.

#include "plotter.h"

#include "analogchannel.h"
#include "baselayer.h"
#include "cfgproperties.h"
#include "channelvalues.h"
#include "labeltext.h"
#include "plothost.h"
#include "readout.h"
#include "tracepainter.h"

#include <QLabel>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int firstLabelX = 180;
constexpr int labelGap = 10;
constexpr int labelY = 20;
constexpr int labelHeight = 20;

} // namespace

// That of the widget that holds the plots.
QSize Plotter::layerSize() const
{
    return hostWidget ? hostWidget->size() : size();
}

QPixmap Plotter::clearLayer() const
{
    const qreal ratio = devicePixelRatioF();
    QPixmap layer(layerSize() * ratio);
    layer.setDevicePixelRatio(ratio);
    layer.fill(Qt::transparent);
    return layer;
}

void Plotter::refreshPixmap()
{
    if (!skipBaseLayer) {
        BaseContent content = baseContent();
        if (!(content == drawnContent)) {
            drawnContent = std::move(content);
            placeChannelLabels();
            paintBase();
        }
    }
    paintOverlay();
    placeMarks();
    update();
    if (mainWindow)
        mainWindow->refreshVectors();
}

BaseContent Plotter::baseContent() const
{
    BaseContent content;
    content.view = view();
    content.size = size();
    content.layerSize = layerSize();
    content.pixelRatio = devicePixelRatioF();
    content.font = font();
    content.trigger = triggerText(recording() ? recording()->triggerOffsetMs : 0);
    content.readout = readout();
    for (const int number : channelOrder) {
        const ShownChannel &shown = *channelMap.constFind(number);
        content.traces.append({number, factorOf(number), colorOf(number).rgb(),
            shown.trace.values().constData(), shown.angle.values().constData()});
    }
    return content;
}

void Plotter::paintBase()
{
    // At least half of the plot stays plot.
    readoutWidth = std::clamp(
        width() / 2 - PlotGeometry::left, 0, drawnContent.readout.neededWidth(smallFont(font())));
    basePixmap = clearLayer();
    if (zoomStack.isEmpty() || basePixmap.isNull())
        return;
    QPainter painter(&basePixmap);
    drawGrid(&painter);
    drawCurves(&painter);
    drawTrigger(&painter);
    drawTimeLabels(&painter);
    drawValueTable(&painter);
}

void Plotter::drawGrid(QPainter *painter)
{
    const PlotGeometry geometry = geometryOfView();
    if (!geometry.isDrawable())
        return;
    drawTimeGrid(*painter, geometry);
    drawValueGrid(*painter, geometry, font());
    drawFrame(*painter, geometry);
}

void Plotter::drawCurves(QPainter *painter)
{
    const PlotGeometry geometry = geometryOfView();
    if (!geometry.isDrawable())
        return;
    painter->setClipRect(geometry.area());
    TracePainter traces(*painter, geometry, timeAxis);
    for (auto it = channelMap.cbegin(); it != channelMap.cend(); ++it) {
        painter->setPen(QPen(colorOf(it.key()), 0));
        traces.draw(it->trace, factorOf(it.key()));
        traces.draw(it->angle, 1.0);
    }
}

void Plotter::drawTrigger(QPainter *painter)
{
    painter->setClipping(false);
    const PlotGeometry geometry = geometryOfView();
    if (recording() && geometry.isDrawable())
        drawTriggerMark(*painter, geometry, font(), recording()->triggerOffsetMs);
}

void Plotter::drawTimeLabels(QPainter *painter)
{
    const PlotGeometry geometry = geometryOfView();
    if (geometry.isDrawable())
        ::drawTimeLabels(*painter, geometry, font());
}

Readout Plotter::readout() const
{
    Readout table;
    const QList<double> times = cursors();
    if (times.isEmpty() || digitalFlag)
        return table;
    const double rate = recording() ? recording()->sampleRate : 0;
    QVector<int> samples; // at the cursors
    Readout::Row header{tr("Parameter")};
    for (int i = 0; i < times.size(); ++i) {
        header.append(QStringLiteral("P%1 (%2)").arg(i + 1).arg(generalText(times.at(i))));
        samples.append(timeAxis.sampleAt(rate, times.at(i)));
    }
    table.rows.append(header);
    for (const int number : channelOrder) {
        const ShownChannel &shown = *channelMap.constFind(number);
        const QVector<float> &values = shown.trace.values();
        Readout::Row row{isSpectrum(number) ? shown.id + QStringLiteral(" FFT") : shown.id};
        for (const int sample : qAsConst(samples)) {
            row.append(sample < 0 || sample >= values.size()
                    ? QString()
                    : generalText(static_cast<double>(values.at(sample)) * factorOf(number)));
        }
        table.rows.append(row);
    }
    return table;
}

void Plotter::drawValueTable(QPainter *painter)
{
    const PlotGeometry geometry = geometryOfView();
    if (geometry.isDrawable())
        drawnContent.readout.draw(*painter, geometry, smallFont(font()));
}

// The labels are reused from one refresh to the next. Where they need more room than there is, each
// is elided to an equal share.
void Plotter::placeChannelLabels()
{
    if (digitalFlag)
        return;
    while (channelLabels.size() > channelMap.size())
        delete channelLabels.takeLast();
    while (channelLabels.size() < channelMap.size()) {
        auto *label = new CustomLabel(this);
        label->setObjectName(QStringLiteral("channelLabel"));
        label->setPlotter(this);
        label->setTextFormat(Qt::PlainText);
        channelLabels.append(label);
    }
    QFont bold(font());
    bold.setWeight(QFont::Bold);
    const QFontMetrics metrics(bold);
    const int count = channelMap.size();
    QStringList texts;
    int needed = 0;
    for (const int number : qAsConst(channelOrder)) {
        const ShownChannel &shown = *channelMap.constFind(number);
        QString text = shown.id + QLatin1Char('(') + shown.unit + QLatin1Char(')');
        if (isSpectrum(number))
            text += QStringLiteral("_FFT");
        texts.append(text);
        needed += metrics.horizontalAdvance(text) + 2 + labelGap;
    }
    const int room = width() - firstLabelX;
    const int share
        = count == 0 || needed <= room ? room : std::max(labelGap, room / count) - labelGap;
    int x = firstLabelX;
    for (int i = 0; i < count; ++i) {
        const int number = channelOrder.at(i);
        const ShownChannel &shownChannel = *channelMap.constFind(number);
        QLabel *label = channelLabels.at(i);
        const QString shown = metrics.elidedText(texts.at(i), Qt::ElideRight, share);
        QPalette colors = label->palette();
        colors.setColor(label->foregroundRole(), colorOf(number));
        label->setPalette(colors);
        label->setFont(bold);
        label->setText(shown);
        label->setProperty("channel", number);
        QStringList tip{texts.at(i)};
        tip << shownChannel.phase << shownChannel.circuit;
        tip.removeAll(QString());
        label->setToolTip(plainToolTip(tip.join(QLatin1Char('\n'))));
        const int width = metrics.horizontalAdvance(shown) + 2;
        label->setGeometry(x, labelY, width, labelHeight);
        label->show();
        x += (needed <= room ? width : share) + labelGap;
    }
}
