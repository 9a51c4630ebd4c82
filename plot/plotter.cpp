// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotter.h"

#include "accessiblechart.h"
#include "analogsource.h"
#include "cfgproperties.h"
#include "channelnames.h"
#include "plothost.h"
#include "plotstyle.h"
#include "plottitle.h"

#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QStyleOption>
#include <QStyleOptionFocusRect>

SharedView Plotter::s_shared;

Plotter::Plotter(QWidget *parent)
    : QWidget(parent),
      plotType(QStringLiteral("Analog")),
      plotterLabel(new PlotTitle(this)),
      m_marks(this),
      m_drags(this),
      m_channelLabels(this),
      hostWidget(parent)
{
    setObjectName(QStringLiteral("Plotter"));
    tellAsChart(*this);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    connect(plotterLabel->editor(), &QLineEdit::editingFinished, this, &Plotter::labelEditFinished);
    connect(plotterLabel->editor(), &QLineEdit::returnPressed, this, &Plotter::labelEditConfirm);

    connect(&NameLetters::shared(), &NameLetters::changed, this, [this] {
        QMap<int, ShownChannel> &shown = m_channels.byNumber();
        for (auto it = shown.begin(); it != shown.end(); ++it)
            it->takeNames(shownChannel(it.key()));
        plotterLabel->retranslate();
        refreshPixmap();
    });

    setStyleSheet(screenStyle);
}

Plotter::~Plotter()
{
    m_keyboard.endGrab();
    s_shared.history.forget(this);
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

bool Plotter::showsSpectrum() const
{
    return !m_digitalFlag && m_channels.count() > 0
        && AnalogSource(mainWindow).isSpectrum(m_channels.byNumber().lastKey());
}

ShownChannel Plotter::shownChannel(int number) const
{
    return AnalogSource(mainWindow).shown(number);
}

void Plotter::addChannel(int number)
{
    if (number >= 0 && !m_channels.contains(number))
        m_channels.add(number, shownChannel(number));
}

void Plotter::showChannels(const QList<int> &numbers)
{
    for (const int number : numbers)
        addChannel(number);
    m_channels.arrange(numbers);
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
    return AnalogSource(mainWindow).prepare(m_channels.byNumber());
}

void Plotter::rescaleValues()
{
    m_view.rescale(prepareTraces());
}

void Plotter::followFromNowOn(const Plotter &other)
{
    m_marks.copy(other.m_marks);
    follow(other);
}

void Plotter::resetPlot()
{
    customResetZoom();
    m_channels.clear();
    m_view.clear();
    zoomLevel = 0;
    scrollDelta = 0;
    m_restX = 0;
    m_restY = 0;
    clearCursors();
}

void Plotter::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    QStyleOption background;
    background.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &background, &painter, this);
    drawBase(painter, event->rect());
    m_overlay.paint(painter);
    m_drags.band.paint(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect frame;
        frame.initFrom(this);
        frame.backgroundColor = palette().dark().color();
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
    }
}
