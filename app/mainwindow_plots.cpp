// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The plots of the recording on screen, and what chooses what they show.

#include "mainwindow.h"

#include "addplotterdialog.h"
#include "cfgproperties.h"
#include "channelnames.h"
#include "ctvtdialog.h"
#include "elidingcombobox.h"
#include "plotterdg.h"
#include "savedialog.h"
#include "ui_mainwindow.h"
#include "vectordialog.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QPointer>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <numeric>

namespace {

constexpr int smallestPlotHeight = 200;
constexpr int largestPlotHeight = 1000;
// What an analog plot gets where the column is taller than the window, so that it scrolls anyway.
constexpr int scrolledPlotHeight = 320;
constexpr char numberOfUnnamed[] = "numberOfUnnamed"; // property of a plot that was given no name
const QString spectrumSuffix = QStringLiteral("_FFT");

void select(QListWidget &list, const QList<int> &rows)
{
    const QSignalBlocker blocker(&list);
    for (int row = 0; row < list.count(); ++row)
        list.item(row)->setSelected(rows.contains(row));
}

// Makes a plot show the channels that are selected; false where it does so already.
bool showSelection(const QListWidget &list, Plotter &plot)
{
    QList<int> rows;
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->isSelected())
            rows.append(row);
    }
    if (rows == plot.channels())
        return false;
    plot.showChannels(rows);
    return true;
}

} // namespace

QScrollBar *MainWindow::horizontalScrollBar() const
{
    return horizontalScroll;
}

int MainWindow::valueMode() const
{
    return mode;
}

int MainWindow::referenceIndex() const
{
    return std::max(0, referenceCombo->currentIndex());
}

bool MainWindow::showsAngles() const
{
    return anglesShown;
}

QStringList MainWindow::analogNames() const
{
    QStringList names;
    for (const AnalogChannel *channel : qAsConst(cfgProperties->analogChannels))
        names.append(channel->id);
    return names;
}

bool MainWindow::hasPhasors() const
{
    const CFGProperties *loaded = recording();
    return loaded
        && std::any_of(loaded->analogChannels.cbegin(), loaded->analogChannels.cend(),
            [](const AnalogChannel *channel) { return !channel->fftMagnitudes.isEmpty(); });
}

void MainWindow::createPlots()
{
    horizontalScroll = new QScrollBar(Qt::Horizontal, this);
    horizontalScroll->setRange(0, 0);
    ui->verticalLayout_2->addWidget(horizontalScroll);
    horizontalScroll->show();

    const QStringList names = analogNames();
    const bool isSecondary = !cfgProperties->analogChannels.isEmpty()
        && cfgProperties->analogChannels.constFirst()->ps == QLatin1String("S");
    mode = isSecondary ? 1 : 0;
    referenceCombo->setTexts(QStringList(QStringLiteral("-")) + names, 0);

    analogPlotter = new Plotter(ui->scrollWidget);
    analogPlotter->setMaximumHeight(largestPlotHeight);
    digitalPlotter = new plotterDg(ui->scrollWidget);
    for (Plotter *plot : {analogPlotter, static_cast<Plotter *>(digitalPlotter)}) {
        equip(plot);
        plotLayout->addWidget(plot);
    }
    retranslatePlots();
    linkPlots();

    const int shown = std::min(firstPlotChannels, cfgProperties->analogChannels.size());
    for (int i = 0; i < shown; ++i)
        analogPlotter->addChannel(i);
    for (int i = 0; i < cfgProperties->digitalChannels.size(); ++i) {
        if (!cfgProperties->digitalChannels.at(i)->allZero)
            digitalPlotter->addChannel(i);
    }
    analogPlotter->setupPlot();
    digitalPlotter->setupPlot();
    analogPlotter->show();
    showChosenChannels();
    vectorDialog->setPlotter(analogPlotter);
    vectorDialog->setChannelNames(names);
    analogPlotter->setFocus();
}

void MainWindow::retranslatePlots()
{
    if (!analogPlotter)
        return;
    analogPlotter->setName(tr("Analog"));
    digitalPlotter->setName(tr("Digital"));
    for (Plotter *plot : qAsConst(addedPlotters)) {
        const int number = plot->property(numberOfUnnamed).toInt();
        if (number > 0)
            plot->setName(tr("Graph %1").arg(number));
    }
    primSecCombo->setTexts({tr("P"), tr("S"), tr("Per Unit")}, mode);
}

void MainWindow::disposePlots()
{
    if (!analogPlotter)
        return;
    analogPlotter->setLinkedPlotters({});
    analogPlotter->resetPlot(); // plots of the next recording begin at the full view
    for (Plotter *plot : plots())
        delete plot;
    analogPlotter = nullptr;
    digitalPlotter = nullptr;
    addedPlotters.clear();
    ui->scrollWidget->setMinimumHeight(0);
    graphCount = 0;
    delete horizontalScroll;
    horizontalScroll = nullptr;
}

// The digital plot and the added ones hear of time zooms through the first plot, never from the
// actions.
void MainWindow::equip(Plotter *plot)
{
    plot->setMainWindow(this);
    plot->setMinimumHeight(smallestPlotHeight);
    connect(zoomResetAct, &QAction::triggered, plot, &Plotter::customResetZoom);
    if (plot == analogPlotter) {
        connect(zoomOutAct, &QAction::triggered, plot, &Plotter::customZoomOut);
        connect(zoomInAct, &QAction::triggered, plot, &Plotter::customZoomIn);
    }
    if (plot != digitalPlotter) {
        connect(vZoomOutAct, &QAction::triggered, plot, &Plotter::customVZoomOut);
        connect(vZoomInAct, &QAction::triggered, plot, &Plotter::customVZoomIn);
        connect(ctvtDialog, &CTVTDialog::scaleChanged, plot, &Plotter::refreshSlot);
    }
    connect(saveDialog, &SaveDialog::setStartPoint, plot, &Plotter::setStartPoint);
    connect(saveDialog, &SaveDialog::setEndPoint, plot, &Plotter::setEndPoint);
    connect(saveDialog, &SaveDialog::clearPoints, plot, &Plotter::clearSaveMarkers);
    connect(horizontalScroll, &QScrollBar::valueChanged, plot, &Plotter::scrolling);
}

void MainWindow::linkPlots()
{
    for (Plotter *plot : plots()) {
        QList<Plotter *> others = plots();
        others.removeAll(plot);
        plot->setLinkedPlotters(others);
    }
}

// After the first analog or the digital plot got other channels: the lists show which, and the
// digital plot stands only where it has some.
void MainWindow::showChosenChannels()
{
    select(*ui->listWidget, analogPlotter->channels());
    select(*ui->listWidget2, digitalPlotter->channels());
    digitalPlotter->setMinimumHeight(digitalPlotter->neededHeight());
    digitalPlotter->setVisible(!digitalPlotter->channels().isEmpty());
    setColumnHeight();
}

// A digital plot with many rows would leave the analog plots no more than their smallest height.
void MainWindow::setColumnHeight()
{
    const int rows = digitalPlotter->neededHeight();
    const int analogPlots = 1 + addedPlotters.size();
    ui->scrollWidget->setMinimumHeight(
        rows > smallestPlotHeight ? rows + analogPlots * scrolledPlotHeight : 0);
}

// A selection changes by clicks, but also by keys and by dragging over the rows; whatever brings
// the news first changes the plot.
void MainWindow::on_listWidget_clicked(const QModelIndex & /*index*/)
{
    setRequiredAnChannels();
}

void MainWindow::on_listWidget2_clicked(const QModelIndex & /*index*/)
{
    setRequiredDigitalChannels();
}

void MainWindow::setRequiredAnChannels()
{
    if (!analogPlotter || !showSelection(*ui->listWidget, *analogPlotter))
        return;
    analogPlotter->setupPlot();
    analogPlotter->refreshPixmap();
}

void MainWindow::setRequiredDigitalChannels()
{
    if (!digitalPlotter || !showSelection(*ui->listWidget2, *digitalPlotter))
        return;
    showChosenChannels();
    digitalPlotter->refreshPixmap();
}

void MainWindow::setAnalogChannels()
{
    if (!hasRecording)
        return;
    const QStringList ids = analogNames();
    QStringList offered = ids;
    QVector<int> channels(ids.size()); // of the names offered
    std::iota(channels.begin(), channels.end(), 0);
    for (int i = 0; hasPhasors() && i < ids.size(); ++i) {
        if (!ids.at(i).startsWith(QLatin1String("MEAS"))) {
            offered.append(ids.at(i) + spectrumSuffix);
            channels.append(i);
        }
    }
    addPlotterDialog->setChannelNames(offered);
    if (addPlotterDialog->exec() != QDialog::Accepted || !hasRecording)
        return;
    QList<int> chosen;
    for (const int number : addPlotterDialog->selectedNumbers())
        chosen.append(channels.at(number));
    addPlot(addPlotterDialog->selectedChannels(), chosen);
}

void MainWindow::addPlotter(const QList<QString> &AnCheckedChannels)
{
    if (hasRecording)
        addPlot(AnCheckedChannels, {});
}

void MainWindow::addPlot(const QStringList &names, const QList<int> &channels)
{
    const QStringList ids = analogNames();
    QList<int> numbers;
    for (int i = 0; i < names.size(); ++i) {
        const bool isSpectrum = names.at(i).endsWith(spectrumSuffix);
        const QString id = isSpectrum ? names.at(i).chopped(spectrumSuffix.size()) : names.at(i);
        const int number = positionOf(id, ids, channels.value(i, -1));
        if (number >= 0)
            numbers.append(isSpectrum ? ids.size() + number : number);
    }
    if (numbers.isEmpty())
        return;
    removePlotterAct->setEnabled(true);
    const QString given = addPlotterDialog->graphName().trimmed();
    const QPointer<Plotter> plot = new Plotter(ui->scrollWidget);
    if (given.isEmpty())
        plot->setProperty(numberOfUnnamed, ++graphCount);
    plot->setName(given.isEmpty() ? tr("Graph %1").arg(graphCount) : given);
    equip(plot);
    plotLayout->insertWidget(plotLayout->indexOf(digitalPlotter), plot);
    setTabOrder(addedPlotters.isEmpty() ? analogPlotter : addedPlotters.constLast(), plot);
    addedPlotters.append(plot);
    setColumnHeight();
    linkPlots();

    for (const int number : qAsConst(numbers))
        plot->addChannel(number);
    plot->setupPlot();
    plot->followFromNowOn(*analogPlotter);
    plot->show();

    // The scroll area knows the plot's place only after its layout was done.
    constexpr int settleTime = 50; // ms
    QElapsedTimer timer;
    timer.start();
    while (plot && timer.elapsed() < settleTime)
        QCoreApplication::processEvents(QEventLoop::AllEvents, settleTime);
    if (plot)
        ui->scrollArea->ensureWidgetVisible(plot, 0, 0);
}

void MainWindow::removePlotter()
{
    if (!addedPlotters.isEmpty()) {
        Plotter *removed = addedPlotters.takeLast();
        const QWidget *focused = focusWidget();
        if (focused == removed || removed->isAncestorOf(focused))
            (addedPlotters.isEmpty() ? analogPlotter : addedPlotters.constLast())->setFocus();
        for (Plotter *plot : plots())
            plot->removeLinkedPlotter(removed->name());
        plotLayout->removeWidget(removed);
        delete removed;
        setColumnHeight();
        ui->scrollWidget->repaint();
    }
    if (addedPlotters.isEmpty())
        removePlotterAct->setEnabled(false);
}

void MainWindow::removeCursors()
{
    for (Plotter *plot : plots())
        plot->clearCursors();
    if (analogPlotter)
        analogPlotter->zoomIn(); // which refreshes all plots
}

void MainWindow::refreshPlots()
{
    for (Plotter *plot : plots())
        plot->rescaleValues();
    if (analogPlotter)
        analogPlotter->zoomIn();
}

void MainWindow::primSecChanged(int index)
{
    mode = index;
    refreshPlots();
}

void MainWindow::referenceChanged(int /*index*/)
{
    if (anglesShown)
        refreshSpectra();
}

void MainWindow::showAnglesSlot(bool on)
{
    anglesShown = on;
    refreshSpectra();
}

// After another choice of what is drawn of the angles.
void MainWindow::refreshSpectra()
{
    for (Plotter *plot : plots()) {
        if (plot->showsSpectrum()) {
            plot->rescaleValues();
            plot->refreshPixmap();
        }
    }
}
