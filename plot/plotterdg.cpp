// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotterdg.h"

#include "baselayer.h"
#include "cfgproperties.h"
#include "channelnames.h"
#include "labeltext.h"
#include "plotsearch.h"
#include "plottitle.h"
#include "timeofday.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int smallestHeight = 200;
constexpr int smallestRowHeight = 16;

} // namespace

plotterDg::plotterDg(QWidget *parent) : Plotter(parent)
{
    plotType = QStringLiteral("Digital");
    m_digitalFlag = 1;
}

void plotterDg::setupPlot()
{
    setHome();
    plotterLabel->place(30);
    plotterLabel->setLineWidth(2);
    plotterLabel->setFrameStyle(QFrame::Box);
}

ShownChannel plotterDg::shownChannel(int number) const
{
    ShownChannel shown;
    const DigitalChannel *channel
        = recording() ? recording()->digitalChannels.value(number) : nullptr;
    if (channel) {
        shown.id = shownName(channel->id);
        shown.runs = DigitalRuns(channel->values);
    }
    return shown;
}

ValueExtremes plotterDg::prepareTraces()
{
    return {0, 1};
}

int plotterDg::neededHeight() const
{
    return std::max(smallestHeight,
        PlotGeometry::top + PlotGeometry::bottomMargin
            + smallestRowHeight * (m_channels.count() + 1));
}

void plotterDg::drawGrid(QPainter *painter)
{
    const PlotGeometry geometry = geometryOfView();
    if (!geometry.isDrawable())
        return;
    drawTimeGrid(*painter, geometry);
    drawFrame(*painter, geometry);
    int row = 0;
    for (const ShownChannel &shown : qAsConst(m_channels).byNumber()) {
        const int y = geometry.rowY(row++, m_channels.count());
        if (m_base.holdsRow(y))
            drawRowLabel(*painter, font(), shown.id, y);
    }
}

void plotterDg::drawCurves(QPainter *painter)
{
    const PlotGeometry geometry = geometryOfView();
    if (!geometry.isDrawable())
        return;
    clipToFrame(*painter, geometry);
    const QRect trigger
        = triggerTextBox(geometry, font(), recording() ? recording()->triggerOffsetMs : 0);
    int row = 0;
    for (const ShownChannel &shown : qAsConst(m_channels).byNumber()) {
        const int y = geometry.rowY(row++, m_channels.count());
        if (!m_base.holdsRow(y))
            continue;
        drawDigitalRow(*painter, geometry, m_timeAxis, shown.runs, y);
        m_base.bright += digitalBands(geometry, m_timeAxis, shown.runs, y, trigger);
    }
}

void plotterDg::drawValueTable(QPainter * /*painter*/) { }

void plotterDg::customVZoomIn2() { }

void plotterDg::customVZoomOut2() { }

void plotterDg::mouseReleaseEvent(QMouseEvent *event)
{
    Plotter::mouseReleaseEvent(event);
}

bool plotterDg::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QString tip = nameTip(help->pos());
        if (!tip.isEmpty()) {
            QToolTip::showText(help->globalPos(), plainToolTip(tip), this);
            return true;
        }
    }
    return Plotter::event(event);
}

// The names stand beside the times; the nearest of these is the first one in view.
QString plotterDg::nameTip(const QPoint &point) const
{
    const int row = point.x() < PlotGeometry::left ? rowAt(*this, point) : -1;
    if (row < 0 || !recording())
        return QString();
    const double time = view().minX;
    const int sample = sampleTimes().sampleAt(recording()->sampleRate, time);
    const QString state = stateText(shownChannels().at(row), sample);
    return sample < 0 ? state : tr("%1 at %2 ms").arg(state, millisecondsText(time));
}

void plotterDg::wheelEvent(QWheelEvent *event)
{
    if (m_keyboard.isHeld(Qt::Key_Control)) {
        Plotter::wheelEvent(event);
        return;
    }
    event->accept();
}
