// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotter.h"

#include "analogchannel.h"
#include "cfgproperties.h"
#include "channelnames.h"
#include "channelvalues.h"
#include "labeltext.h"
#include "plothost.h"
#include "plotline.h"
#include "plotstyle.h"
#include "plottitle.h"

#include <QApplication>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>
#include <QStyleOptionFocusRect>

#include <algorithm>
#include <array>
#include <cmath>

SharedView Plotter::s_shared;

namespace {

const std::array<QColor, 13> channelColors{QColor(245, 30, 18), QColor(220, 220, 0),
    QColor(66, 66, 255), QColor(0, 255, 0), QColor(223, 105, 209), QColor(250, 140, 20),
    QColor(80, 150, 180), QColor(193, 137, 62), QColor(60, 150, 0), QColor(0, 255, 255),
    QColor(112, 146, 190), QColor(200, 191, 231), QColor(177, 177, 177)};

// The largest or smallest of a channel, or of its finite samples where some are not.
double finiteExtreme(float extreme, float ofFiniteSamples)
{
    return static_cast<double>(std::isfinite(extreme) ? extreme : ofFiniteSamples);
}

} // namespace

Plotter::Plotter(QWidget *parent)
    : QWidget(parent),
      plotType(QStringLiteral("Analog")),
      plotterLabel(new PlotTitle(this)),
      timeLine(this),
      startMarker{new PlotLine(this, QStringLiteral("startMarker"), QStringLiteral("red"))},
      endMarker{new PlotLine(this, QStringLiteral("endMarker"), QStringLiteral("red"))},
      m_cursorMarks(this),
      m_rubberBand(this),
      m_channelLabels(this),
      colorDialog(new QColorDialog(Qt::white, this)),
      hostWidget(parent)
{
    setObjectName(QStringLiteral("Plotter"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    connect(plotterLabel->editor(), &QLineEdit::editingFinished, this, &Plotter::labelEditFinished);
    connect(plotterLabel->editor(), &QLineEdit::returnPressed, this, &Plotter::labelEditConfirm);

    setStyleSheet(screenStyle);
}

Plotter::~Plotter()
{
    releaseGrab();
}

void Plotter::setMainWindow(QObject *window)
{
    mainWindow = qobject_cast<PlotHost *>(window);
}

CFGProperties *Plotter::recording() const
{
    return mainWindow ? mainWindow->recording() : nullptr;
}

void Plotter::setName(const QString &name)
{
    plotterLabel->setName(name);
}

QString Plotter::name() const
{
    return plotterLabel->name();
}

void Plotter::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        plotterLabel->retranslate();
        colorDialog->setWindowTitle(QColorDialog::tr("Select Color"));
        refreshPixmap();
    }
    QWidget::changeEvent(event);
}

void Plotter::removeLinkedPlotter(const QString &name)
{
    if (linkedPlotters.isEmpty())
        return;
    int found = 0;
    for (int i = 0; i < linkedPlotters.size(); ++i) {
        if (linkedPlotters.at(i)->name() == name)
            found = i;
    }
    linkedPlotters.removeAt(found);
}

bool Plotter::isSpectrum(int number) const
{
    return recording() && number >= recording()->analogChannels.size();
}

bool Plotter::showsSpectrum() const
{
    return !digitalFlag && !channelMap.isEmpty() && isSpectrum(channelMap.lastKey());
}

const AnalogChannel *Plotter::channelOf(int number) const
{
    const CFGProperties *source = recording();
    if (!source)
        return nullptr;
    const int count = source->analogChannels.size();
    return source->analogChannels.value(number < count ? number : number - count, nullptr);
}

double Plotter::factorOf(int number) const
{
    const AnalogChannel *channel = channelOf(number);
    return channel ? valueFactor(*channel, mainWindow->valueMode()) : 1.0;
}

QColor Plotter::colorOf(int number) const
{
    if (m_chosenColors.contains(number))
        return m_chosenColors.value(number);
    int index = number;
    if (isSpectrum(number)) {
        const auto position = std::distance(channelMap.cbegin(), channelMap.constFind(number));
        index = recording()->analogChannels.size() + static_cast<int>(position);
    }
    return channelColors.at(static_cast<size_t>(index) % channelColors.size());
}

ShownChannel Plotter::shownChannel(int number) const
{
    ShownChannel shown;
    const AnalogChannel *channel = channelOf(number);
    if (!channel)
        return shown;
    const CFGProperties *source = recording();
    const int row = number % source->analogChannels.size();
    shown.id = shownName(channel->id);
    shown.unit = shownName(source->analogUnits.value(row));
    shown.phase = shownName(source->analogPhases.value(row));
    shown.circuit = shownName(source->analogCircuits.value(row));
    shown.trace = TraceSummary(isSpectrum(number) ? channel->fftMagnitudes : channel->values);
    return shown;
}

void Plotter::addChannel(int number)
{
    if (number < 0 || channelMap.contains(number))
        return;
    channelMap.insert(number, shownChannel(number));
    m_channelOrder.append(number);
}

void Plotter::showChannels(const QList<int> &numbers)
{
    for (const int number : qAsConst(m_channelOrder)) {
        if (!numbers.contains(number))
            channelMap.remove(number);
    }
    for (const int number : numbers)
        addChannel(number);
    m_channelOrder = numbers;
}

// The full view of what is shown, with all of its values; the time range of a live view stays.
void Plotter::setHome()
{
    const CFGProperties *source = recording();
    const QVector<double> times = source ? source->sampleTimes : QVector<double>();
    if (times != m_timeAxis.times())
        m_timeAxis = TimeAxis(times);
    m_view.setHome(m_timeAxis.smallest(), m_timeAxis.largest(), prepareTraces());
}

void Plotter::setupPlot()
{
    setHome();
    plotterLabel->place(20);
}

ValueExtremes Plotter::prepareTraces()
{
    const bool showsAngles = mainWindow && mainWindow->showsAngles();
    const AnalogChannel *reference = mainWindow && mainWindow->referenceIndex() > 0
        ? channelOf(mainWindow->referenceIndex() - 1)
        : nullptr;
    ValueExtremes extremes;
    const auto widen = [&](double value) {
        if (std::isfinite(value)) {
            extremes.lowest = std::min(extremes.lowest, value);
            extremes.highest = std::max(extremes.highest, value);
        }
    };
    for (auto it = channelMap.begin(); it != channelMap.end(); ++it) {
        const AnalogChannel *channel = channelOf(it.key());
        if (!channel)
            continue;
        const double factor = factorOf(it.key());
        const TraceExtent extent = it->trace.extent(0, it->trace.values().size());
        if (!isSpectrum(it.key())) {
            widen(finiteExtreme(channel->minValue, extent.min) * factor);
            widen(finiteExtreme(channel->maxValue, extent.max) * factor);
            continue;
        }
        widen(finiteExtreme(channel->maxMagnitude, extent.max) * factor);
        it->angle = TraceSummary();
        if (showsAngles) {
            it->angle = TraceSummary(
                angleTrace(channel->fftAngles, reference ? &reference->fftAngles : nullptr));
            extremes.angles = reference ? fullTurnRadians : fullTurnDegrees;
            widen(extremes.angles);
        }
    }
    return extremes;
}

void Plotter::rescaleValues()
{
    m_view.rescale(prepareTraces());
}

void Plotter::followFromNowOn(const Plotter &other)
{
    for (const double time : other.cursors())
        m_cursorMarks.add(time);
    startMarker.copy(other.startMarker);
    endMarker.copy(other.endMarker);
    follow(other);
}

void Plotter::resetPlot()
{
    customResetZoom();
    channelMap.clear();
    m_channelOrder.clear();
    m_view.clear();
    zoomLevel = 0;
    scrollDelta = 0;
    restX = 0;
    restY = 0;
    clearCursors();
}

void Plotter::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    QStyleOption background;
    background.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &background, &painter, this);
    painter.drawPixmap(0, 0, basePixmap);
    painter.drawPixmap(0, 0, overlayPixmap);
    m_rubberBand.paint(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect frame;
        frame.initFrom(this);
        frame.backgroundColor = palette().dark().color();
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
    }
}
