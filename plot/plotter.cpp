// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotter.h"

#include "analogchannel.h"
#include "baselayer.h"
#include "cfgproperties.h"
#include "channelvalues.h"
#include "labeltext.h"
#include "plothost.h"
#include "plotline.h"
#include "plotstyle.h"

#include <QApplication>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>
#include <QStyleOptionFocusRect>

#include <algorithm>
#include <cmath>

double Plotter::sharedHorizontalZoom = 1.0;
double Plotter::sharedVerticalZoom = 1.0;
PlotSettings Plotter::sharedAnalogSettings;

namespace {

constexpr int titleX = 70;
constexpr int titleWidth = 100;
constexpr int titleHeight = 20;
constexpr int smallestTitleFont = 9; // pixels

} // namespace

Plotter::Plotter(QWidget *parent)
    : QWidget(parent),
      plotType(QStringLiteral("Analog")),
      plotterLabel(new QLabel(this)),
      timeLabel(new QLabel(this)),
      timeLine(new PlotLine(this, QStringLiteral("timeline"), QStringLiteral("white"))),
      labelEditor(new QLineEdit(this)),
      startMarker(new PlotLine(this, QStringLiteral("startMarker"), QStringLiteral("red"))),
      endMarker(new PlotLine(this, QStringLiteral("endMarker"), QStringLiteral("red"))),
      cursorMarks(this),
      hostWidget(parent),
      colorDialog(new QColorDialog(Qt::white, this)),
      channelColors({QColor(245, 30, 18), QColor(220, 220, 0), QColor(66, 66, 255),
          QColor(0, 255, 0), QColor(223, 105, 209), QColor(250, 140, 20), QColor(80, 150, 180),
          QColor(193, 137, 62), QColor(60, 150, 0), QColor(0, 255, 255), QColor(112, 146, 190),
          QColor(200, 191, 231), QColor(177, 177, 177)})
{
    setObjectName(QStringLiteral("Plotter"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    plotterLabel->setObjectName(QStringLiteral("Plotter Label"));
    plotterLabel->setStyleSheet(QStringLiteral("QLabel{border: 1px solid #00b9f2; color:white;}"));
    plotterLabel->setTextFormat(Qt::PlainText);

    timeLabel->setObjectName(QStringLiteral("timelabel"));
    timeLabel->setStyleSheet(QStringLiteral("QLabel{color: white;}"));
    timeLabel->setFont(smallFont(font()));
    timeLabel->resize(70, 20);
    timeLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    timeLabel->hide();
    timeLabel->lower();
    timeLine->lower();

    labelEditor->setWindowFlags(labelEditor->windowFlags() | Qt::FramelessWindowHint);
    labelEditor->setStyleSheet(QStringLiteral("QLineEdit{background-color: black; color: white;}"));
    labelEditor->hide();
    connect(labelEditor, &QLineEdit::editingFinished, this, &Plotter::labelEditFinished);
    connect(labelEditor, &QLineEdit::returnPressed, this, &Plotter::labelEditConfirm);

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
    plotName = name;
}

void Plotter::placeTitle(int y)
{
    plotterLabel->setGeometry(titleX, y, titleWidth, titleHeight);
    if (plotTitle.isEmpty())
        setTitleByName();
    plotterLabel->show();
}

void Plotter::setTitleByName()
{
    titleByName = tr("%1 Plotter").arg(plotName);
    setTitle(titleByName);
}

// A title that someone has typed stays.
void Plotter::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        if (!plotTitle.isEmpty() && plotTitle == titleByName)
            setTitleByName();
        colorDialog->setWindowTitle(QColorDialog::tr("Select Color"));
        refreshPixmap();
    }
    QWidget::changeEvent(event);
}

// The title's place is fixed: a long text gets a smaller font, and one that is too long even then
// shows its beginning.
void Plotter::setTitle(const QString &title)
{
    constexpr int room = titleWidth - 6;
    const QFont titleFont = fittingFont(font(), title, room, smallestTitleFont);
    const bool fits = QFontMetrics(titleFont).horizontalAdvance(title) <= room;
    plotterLabel->setFont(titleFont);
    plotterLabel->setText(title);
    plotterLabel->setAlignment(fits ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    plotterLabel->setToolTip(fits ? QString() : plainToolTip(title));
    plotTitle = title;
}

void Plotter::setLinkedPlotters(const QList<Plotter *> &plotters)
{
    linkedPlotters = plotters;
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
    if (chosenColors.contains(number))
        return chosenColors.value(number);
    int index = number;
    if (isSpectrum(number)) {
        const auto position = std::distance(channelMap.cbegin(), channelMap.constFind(number));
        index = recording()->analogChannels.size() + static_cast<int>(position);
    }
    return channelColors.at(index % channelColors.size());
}

ShownChannel Plotter::shownChannel(int number) const
{
    ShownChannel shown;
    const AnalogChannel *channel = channelOf(number);
    if (!channel)
        return shown;
    const CFGProperties *source = recording();
    const int row = number % source->analogChannels.size();
    shown.id = channel->id;
    shown.unit = source->analogUnits.value(row);
    shown.phase = source->analogPhases.value(row);
    shown.circuit = source->analogCircuits.value(row);
    shown.trace = TraceSummary(isSpectrum(number) ? channel->fftMagnitudes : channel->values);
    return shown;
}

void Plotter::addChannel(int number)
{
    if (number < 0 || channelMap.contains(number))
        return;
    channelMap.insert(number, shownChannel(number));
    channelOrder.append(number);
}

void Plotter::showChannels(const QList<int> &numbers)
{
    for (const int number : qAsConst(channelOrder)) {
        if (!numbers.contains(number))
            channelMap.remove(number);
    }
    for (const int number : numbers)
        addChannel(number);
    channelOrder = numbers;
}

void Plotter::readTimes()
{
    const CFGProperties *source = recording();
    const QVector<double> times = source ? source->sampleTimes : QVector<double>();
    if (times.constData() != timeAxis.times().constData()
        || times.size() != timeAxis.times().size())
        timeAxis = TimeAxis(times);
}

void Plotter::setHome(double minY, double maxY)
{
    homeSettings.minX = timeAxis.smallest();
    homeSettings.maxX = timeAxis.largest();
    homeSettings.minY = minY;
    homeSettings.maxY = maxY;
    homeSettings.adjust();
    if (zoomStack.isEmpty()) {
        zoomStack.append(homeSettings);
        return;
    }
    verticalZoom = defaultVerticalZoom;
    zoomStack[0].minY = homeSettings.minY;
    zoomStack[0].maxY = homeSettings.maxY;
    zoomStack[0].numYTicks = homeSettings.numYTicks;
}

void Plotter::setupPlot()
{
    readTimes();
    const bool showsAngles = mainWindow && mainWindow->showsAngles();
    const AnalogChannel *reference = mainWindow && mainWindow->referenceIndex() > 0
        ? channelOf(mainWindow->referenceIndex() - 1)
        : nullptr;
    double minY = 0;
    double maxY = 0;
    const auto widen = [&](double value) {
        if (std::isfinite(value)) {
            minY = std::min(minY, value);
            maxY = std::max(maxY, value);
        }
    };
    for (auto it = channelMap.begin(); it != channelMap.end(); ++it) {
        const AnalogChannel *channel = channelOf(it.key());
        if (!channel)
            continue;
        const double factor = factorOf(it.key());
        if (!isSpectrum(it.key())) {
            widen(static_cast<double>(channel->minValue) * factor);
            widen(static_cast<double>(channel->maxValue) * factor);
            continue;
        }
        widen(static_cast<double>(channel->maxMagnitude) * factor);
        it->angle = TraceSummary();
        if (showsAngles) {
            it->angle = TraceSummary(
                angleTrace(channel->fftAngles, reference ? &reference->fftAngles : nullptr));
            widen(reference ? fullTurnRadians : fullTurnDegrees);
        }
    }
    lowestValue = minY;
    highestValue = maxY;
    setHome(minY, maxY);
    placeTitle(20);
}

PlotSettings Plotter::view() const
{
    return zoomStack.isEmpty() ? PlotSettings() : zoomStack.constFirst();
}

PlotGeometry Plotter::geometryOfView() const
{
    return {size(), readoutWidth, view()};
}

void Plotter::followFromNowOn(const Plotter &other)
{
    if (zoomStack.isEmpty() || other.zoomStack.isEmpty())
        return;
    for (const double time : other.cursors())
        insertCursor(time);
    startMarkerSet = other.startMarkerSet;
    startMarkerTime = other.startMarkerTime;
    endMarkerSet = other.endMarkerSet;
    endMarkerTime = other.endMarkerTime;
    lastScrollValue = other.lastScrollValue;
    scrollDelta = other.scrollDelta;
    const PlotSettings source = other.view();
    zoomStack[0].minX = source.minX;
    zoomStack[0].maxX = source.maxX;
    zoomStack[0].numXTicks = source.numXTicks;
    horizontalZoom = sharedHorizontalZoom;
}

void Plotter::rescaleValues()
{
    if (zoomStack.isEmpty())
        return;
    const PlotSettings before = view();
    const bool wasWhole = before.minY == homeSettings.minY && before.maxY == homeSettings.maxY;
    const double lowestBefore = lowestValue;
    const double heightBefore = highestValue - lowestValue;
    const double zoomBefore = verticalZoom;
    setupPlot();
    const double ratio = (highestValue - lowestValue) / heightBefore;
    const double shift = lowestValue - lowestBefore * ratio;
    const double minY = before.minY * ratio + shift;
    const double maxY = before.maxY * ratio + shift;
    // Channels whose factors differ, or turn them upside down, take other places. A whole view
    // stays a whole one then.
    const bool isInPlace = std::abs(shift) <= (highestValue - lowestValue) * 1e-9;
    if (!PlotSettings::isUsable(minY, maxY) || (wasWhole && !isInPlace))
        return;
    zoomStack[0].minY = minY;
    zoomStack[0].maxY = maxY;
    zoomStack[0].numYTicks = before.numYTicks;
    verticalZoom = zoomBefore;
    if (!isInPlace)
        PlotSettings::adjustAxis(zoomStack[0].minY, zoomStack[0].maxY, zoomStack[0].numYTicks);
}

void Plotter::resetPlot()
{
    customResetZoom();
    channelMap.clear();
    channelOrder.clear();
    zoomStack.clear();
    homeSettings = PlotSettings();
    zoomLevel = 0;
    lastScrollValue = 0;
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
    if (rubberBandShown) {
        painter.setPen(palette().light().color());
        painter.drawRect(rubberBandRect.normalized().adjusted(0, 0, -1, -1));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect frame;
        frame.initFrom(this);
        frame.backgroundColor = palette().dark().color();
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
    }
}

void Plotter::resizeEvent(QResizeEvent * /*event*/)
{
    refreshPixmap();
}

void Plotter::showEvent(QShowEvent * /*event*/)
{
    refreshPixmap();
}

void Plotter::hideEvent(QHideEvent * /*event*/)
{
    letGo();
}
