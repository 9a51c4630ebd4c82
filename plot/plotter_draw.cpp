// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The two layers of a plot and the labels that stand on it.

#include "plotter.h"

#include "analogchannel.h"
#include "baselayer.h"
#include "cfgproperties.h"
#include "channelvalues.h"
#include "numbers.h"
#include "plothost.h"
#include "readout.h"
#include "tracepainter.h"

#include <QPainter>

#include <algorithm>
#include <utility>

void Plotter::refreshPixmap()
{
    if (!isOnScreen())
        return;
    settleReadout();
    shareReadoutWidth();
    BaseContent content = baseContent();
    if (!(content == m_drawn)) {
        m_drawn = std::move(content);
        showChannelLabels();
        paintBase();
    }
    refreshOverlay();
}

void Plotter::refreshOverlay()
{
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
    content.pixelRatio = devicePixelRatioF();
    content.font = font();
    content.trigger = triggerText(recording() ? recording()->triggerOffsetMs : 0);
    content.readout = m_readout;
    content.readoutWidth = readoutWidth;
    content.times = m_timeAxis.times();
    for (const int number : m_channelOrder) {
        const ShownChannel &shown = *channelMap.constFind(number);
        content.traces.append({number, factorOf(number), colorOf(number).rgb(), shown});
    }
    return content;
}

void Plotter::paintBase()
{
    basePixmap = clearLayer(*this);
    if (m_view.isEmpty() || basePixmap.isNull())
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
    TracePainter traces(*painter, geometry, m_timeAxis);
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
        samples.append(m_timeAxis.sampleAt(rate, times.at(i)));
    }
    table.rows.append(header);
    for (const int number : m_channelOrder) {
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

void Plotter::settleReadout()
{
    m_readout = readout();
    m_readoutNeed = m_readout.neededWidth(smallFont(font()));
}

// Linked plots keep the widest room that one of them needs, so that they line up in time; but no
// more than half of a plot.
void Plotter::shareReadoutWidth()
{
    const auto keepsRoom
        = [](const Plotter *plotter) { return !plotter->digitalFlag && plotter->isOnScreen(); };
    int widest = m_readoutNeed;
    for (const Plotter *plotter : qAsConst(linkedPlotters)) {
        if (keepsRoom(plotter))
            widest = std::max(widest, plotter->m_readoutNeed);
    }
    const auto roomIn
        = [&](const Plotter *plotter) { return std::min(plotter->width() / 2, widest); };
    if (keepsRoom(this))
        readoutWidth = roomIn(this);
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (keepsRoom(plotter)
            && std::exchange(plotter->readoutWidth, roomIn(plotter)) != plotter->readoutWidth)
            plotter->refreshPixmap();
    }
}

void Plotter::drawValueTable(QPainter *painter)
{
    const PlotGeometry geometry = geometryOfView();
    if (geometry.isDrawable())
        m_drawn.readout.draw(*painter, geometry, smallFont(font()));
}

void Plotter::showChannelLabels()
{
    if (digitalFlag)
        return;
    QVector<ChannelLabels::Entry> entries;
    for (const int number : qAsConst(m_channelOrder)) {
        const ShownChannel &shown = *channelMap.constFind(number);
        QString text = shown.id + QLatin1Char('(') + shown.unit + QLatin1Char(')');
        if (isSpectrum(number))
            text += QStringLiteral("_FFT");
        QStringList tip{text, shown.phase, shown.circuit};
        tip.removeAll(QString());
        entries.append({number, text, colorOf(number), tip.join(QLatin1Char('\n'))});
    }
    m_channelLabels.show(entries);
}
