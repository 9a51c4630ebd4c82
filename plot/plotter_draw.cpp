// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The two layers of a plot and the labels that stand on it.

#include "plotter.h"

#include "analogsource.h"
#include "baselayer.h"
#include "cfgproperties.h"
#include "numbers.h"
#include "plothost.h"
#include "readout.h"
#include "tracepainter.h"

#include <QPainter>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

QVector<ChannelLabels::Entry> labelEntries(
    const ShownChannels &channels, const AnalogSource &source)
{
    QVector<ChannelLabels::Entry> entries;
    for (const int number : channels.order()) {
        const ShownChannel &shown = channels.at(number);
        QString text = shown.id + QLatin1Char('(') + shown.unit + QLatin1Char(')');
        if (source.isSpectrum(number))
            text += spectrumSuffix;
        QStringList tip{text, shown.phase, shown.circuit};
        tip.removeAll(QString());
        const QColor color = channels.color(number, source.firstSpectrum());
        entries.append({number, text, color, tip.join(QLatin1Char('\n'))});
    }
    return entries;
}

Readout readoutAt(const QList<double> &cursors, const TimeAxis &axis, const ShownChannels &channels,
    const AnalogSource &source)
{
    Readout table;
    if (cursors.isEmpty())
        return table;
    QVector<int> samples; // at the cursors
    Readout::Row header{Plotter::tr("Parameter")};
    for (int i = 0; i < cursors.size(); ++i) {
        header.append(QStringLiteral("P%1 (%2)").arg(i + 1).arg(generalText(cursors.at(i))));
        samples.append(axis.sampleAt(source.sampleRate(), cursors.at(i)));
    }
    table.rows.append(header);
    table.briefRows.append(header);
    for (const int number : channels.order()) {
        const ShownChannel &shown = channels.at(number);
        const QVector<float> &values = shown.trace.values();
        Readout::Row row{source.nameOf(number, shown.id)};
        Readout::Row briefRow = row;
        for (const int sample : qAsConst(samples)) {
            const bool isRecorded = sample >= 0 && sample < values.size();
            const double value
                = isRecorded ? static_cast<double>(values.at(sample)) * source.factor(number) : 0;
            row.append(isRecorded ? generalText(value) : QString());
            briefRow.append(isRecorded ? briefText(value) : QString());
        }
        table.rows.append(row);
        table.briefRows.append(briefRow);
    }
    return table;
}

} // namespace

void Plotter::refreshPixmap()
{
    if (!isOnScreen())
        return;
    settleReadout();
    shareReadoutWidth();
    BaseContent content = baseContent();
    if (!(content == m_base.content)) {
        m_base.content = std::move(content);
        if (!m_digitalFlag)
            m_channelLabels.show(labelEntries(m_channels, AnalogSource(mainWindow)));
        paintBase(visibleRegion().boundingRect());
    }
    refreshOverlay();
}

BaseContent Plotter::baseContent() const
{
    BaseContent content;
    content.view = view();
    content.size = size();
    content.pixelRatio = devicePixelRatioF();
    content.font = font();
    content.trigger = triggerText(recording() ? recording()->triggerOffsetMs : 0);
    content.readout = m_readoutRoom.readout;
    content.readoutWidth = m_readoutRoom.width;
    content.times = m_timeAxis.times();
    const AnalogSource source(mainWindow);
    const int firstSpectrum
        = m_digitalFlag ? std::numeric_limits<int>::max() : source.firstSpectrum();
    for (const int number : channels()) {
        const QColor color = m_channels.color(number, firstSpectrum);
        content.traces.append({number, source.factor(number), color.rgb(), m_channels.at(number)});
    }
    return content;
}

void Plotter::paintBase(const QRect &seen)
{
    m_base.part = layerPart(size(), seen);
    clearLayer(m_base.pixmap, m_base.part.size() * devicePixelRatioF(), devicePixelRatioF());
    m_base.bright = {};
    if (m_view.isEmpty() || m_base.pixmap.isNull())
        return;
    QPainter painter(&m_base.pixmap);
    painter.translate(-m_base.part.topLeft());
    drawGrid(&painter);
    drawCurves(&painter);
    drawTrigger(&painter);
    if (geometryOfView().isDrawable())
        drawTimeLabels(painter, geometryOfView(), font());
    drawValueTable(&painter);
}

// Of a plot that is taller than its layer, the part that comes into sight is painted now.
void Plotter::drawBase(QPainter &painter, QRect seen)
{
    if (height() <= tallestLayer) {
        painter.drawPixmap(0, 0, m_base.pixmap);
        return;
    }
    while (!seen.isEmpty()) {
        QRect strip = seen;
        strip.setHeight(std::min(seen.height(), tallestLayer));
        if (!m_base.part.contains(strip))
            paintBase(strip);
        painter.setClipRect(strip);
        painter.drawPixmap(m_base.part.topLeft(), m_base.pixmap);
        seen.setTop(strip.bottom() + 1);
    }
    painter.setClipping(false);
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
    clipToFrame(*painter, geometry);
    TracePainter traces(*painter, geometry, m_timeAxis);
    const AnalogSource source(mainWindow);
    const QMap<int, ShownChannel> &shown = qAsConst(m_channels).byNumber();
    for (auto it = shown.cbegin(); it != shown.cend(); ++it) {
        painter->setPen(QPen(m_channels.color(it.key(), source.firstSpectrum()), 0));
        traces.draw(it->trace, source.factor(it.key()));
        traces.draw(it->angle, 1.0);
    }
}

void Plotter::drawTrigger(QPainter *painter)
{
    painter->setClipping(false);
    const PlotGeometry geometry = geometryOfView();
    if (recording() && geometry.isDrawable())
        drawTriggerMark(*painter, geometry, font(), recording()->triggerOffsetMs, m_base.bright);
}

void Plotter::settleReadout()
{
    m_readoutRoom.readout = m_digitalFlag
        ? Readout()
        : readoutAt(cursors(), m_timeAxis, m_channels, AnalogSource(mainWindow));
    m_readoutRoom.needed = m_readoutRoom.readout.neededWidth(smallFont(font()));
}

// Linked plots keep the widest room that one of them needs, so that they line up in time; but no
// more than half of a plot. Where this moves one of them, all readouts are settled first; so a plot
// that is refreshed for it moves no other again.
void Plotter::shareReadoutWidth()
{
    QVector<Plotter *> sharing;
    for (Plotter *plotter : QList<Plotter *>{this} + linkedPlotters) {
        if (!plotter->m_digitalFlag && plotter->isOnScreen())
            sharing.append(plotter);
    }
    const auto moves = [&] { // the plots whose room becomes another, with its width
        int widest = 0;
        for (const Plotter *plotter : qAsConst(sharing))
            widest = std::max(widest, plotter->m_readoutRoom.needed);
        QVector<QPair<Plotter *, int>> moved;
        for (Plotter *plotter : qAsConst(sharing)) {
            const int width = std::min(plotter->width() / 2, widest);
            if (width != plotter->m_readoutRoom.width)
                moved.append({plotter, width});
        }
        return moved;
    };
    if (moves().isEmpty())
        return;
    for (Plotter *plotter : qAsConst(sharing))
        plotter->settleReadout();
    const QVector<QPair<Plotter *, int>> settled = moves();
    for (const auto &[plotter, width] : settled)
        plotter->m_readoutRoom.width = width;
    for (const auto &[plotter, width] : settled) {
        if (plotter != this)
            plotter->refreshPixmap();
    }
}

void Plotter::drawValueTable(QPainter *painter)
{
    const PlotGeometry geometry = geometryOfView();
    if (geometry.isDrawable())
        m_base.content.readout.draw(*painter, geometry, smallFont(font()));
}
