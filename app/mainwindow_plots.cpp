// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The plots of the recording on screen, and what chooses what they show.

#include "mainwindow.h"

#include "addplotterdialog.h"
#include "analogsource.h"
#include "cfgproperties.h"
#include "channelnames.h"
#include "ctvtdialog.h"
#include "elidingcombobox.h"
#include "plotterdg.h"
#include "savedialog.h"
#include "sidewindows.h"
#include "ui_mainwindow.h"
#include "unitplots.h"
#include "vectordialog.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QPointer>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <numeric>

namespace {

constexpr int smallestPlotHeight = 200;
constexpr int largestPlotHeight = 1000;
// What an analog plot gets where the column is taller than the window, so that it scrolls anyway.
constexpr int scrolledPlotHeight = 320;
constexpr char numberOfUnnamed[] = "numberOfUnnamed"; // property of a plot that was given no name
constexpr char kindOfUnit[] = "kindOfUnit"; // property of one that shows what has the same unit

QStringList analogNames(const CFGProperties &recording)
{
    QStringList names;
    for (const AnalogChannel *channel : recording.analogChannels)
        names.append(channel->id);
    return names;
}

// Both go by ranges of rows: there may be a hundred thousand.
void select(QListWidget &list, QList<int> rows)
{
    std::sort(rows.begin(), rows.end());
    const QAbstractItemModel *model = list.model();
    QItemSelection selection;
    for (int i = 0, end = 0; i < rows.size(); i = end) {
        while (end < rows.size() && rows.at(end) - rows.at(i) == end - i)
            ++end;
        selection.append(
            QItemSelectionRange(model->index(rows.at(i), 0), model->index(rows.at(end - 1), 0)));
    }
    const QSignalBlocker blocker(&list);
    list.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QList<int> selectedRows(const QListWidget &list)
{
    QList<int> rows;
    const QItemSelection selection = list.selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

// Makes a plot show the channels that are selected; false where it does so already.
bool showSelection(const QListWidget &list, Plotter &plot)
{
    const QList<int> rows = selectedRows(list);
    if (rows == plot.channels())
        return false;
    plot.showChannels(rows);
    return true;
}

} // namespace

QScrollBar *MainWindow::horizontalScrollBar() const
{
    return m_horizontalScroll;
}

int MainWindow::valueMode() const
{
    return m_mode;
}

int MainWindow::referenceIndex() const
{
    return std::max(0, m_referenceCombo->currentIndex());
}

bool MainWindow::showsAngles() const
{
    return m_anglesShown;
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
    m_horizontalScroll = new QScrollBar(Qt::Horizontal, this);
    m_horizontalScroll->setRange(0, 0);
    ui->verticalLayout_2->addWidget(m_horizontalScroll);
    m_horizontalScroll->show();

    const QStringList names = analogNames(*m_cfgProperties);
    const bool isSecondary = !m_cfgProperties->analogChannels.isEmpty()
        && m_cfgProperties->analogChannels.constFirst()->ps == QLatin1String("S");
    m_mode = isSecondary ? 1 : 0;
    m_referenceCombo->setNames(QStringList(QStringLiteral("-")) + names, 0);

    m_analogPlotter = new Plotter(ui->scrollWidget);
    m_analogPlotter->setMaximumHeight(largestPlotHeight);
    m_digitalPlotter = new plotterDg(ui->scrollWidget);
    // The first to hear of a change of the views, which each plot makes by itself.
    for (const QAction *zoom : {m_actions.zoomIn, m_actions.zoomOut, m_actions.zoomReset,
             m_actions.vZoomIn, m_actions.vZoomOut})
        connect(zoom, &QAction::triggered, m_analogPlotter, &Plotter::noteViews);
    connect(m_horizontalScroll, &QScrollBar::valueChanged, m_analogPlotter, &Plotter::noteViews);
    for (Plotter *plot : {m_analogPlotter, static_cast<Plotter *>(m_digitalPlotter)}) {
        equip(plot);
        m_plotLayout->addWidget(plot);
    }
    retranslatePlots();
    linkPlots();

    const int shown = std::min(m_firstPlotChannels, m_cfgProperties->analogChannels.size());
    for (int i = 0; i < shown; ++i)
        m_analogPlotter->addChannel(i);
    for (int i = 0; i < m_cfgProperties->digitalChannels.size(); ++i) {
        if (!m_cfgProperties->digitalChannels.at(i)->allZero)
            m_digitalPlotter->addChannel(i);
    }
    m_analogPlotter->setupPlot();
    m_digitalPlotter->setupPlot();
    m_analogPlotter->show();
    showChosenChannels();
    m_vectorDialog->setPlotter(m_analogPlotter);
    m_vectorDialog->setChannelNames(names);
    m_analogPlotter->setFocus();
}

void MainWindow::retranslatePlots()
{
    if (!m_analogPlotter)
        return;
    m_analogPlotter->setName(tr("Analog"));
    m_digitalPlotter->setName(tr("Digital"));
    m_horizontalScroll->setAccessibleName(tr("Time in view"));
    for (Plotter *plot : qAsConst(m_addedPlotters)) {
        const int number = plot->property(numberOfUnnamed).toInt();
        if (number > 0)
            plot->setName(tr("Graph %1").arg(number));
        else if (plot->property(kindOfUnit).isValid())
            plot->setName(
                unitPlotName(static_cast<UnitPlot::Kind>(plot->property(kindOfUnit).toInt()),
                    m_cfgProperties->analogUnits.value(plot->channels().value(0))));
    }
    m_primSecCombo->setTexts({tr("P"), tr("S"), tr("Per Unit")}, m_mode);
}

void MainWindow::disposePlots()
{
    if (!m_analogPlotter)
        return;
    m_sideWindows->setRecording(nullptr, nullptr);
    for (Plotter *plot : plots()) // the pointer enters others while one goes
        plot->setLinkedPlotters({});
    m_analogPlotter->resetPlot(); // plots of the next recording begin at the full view
    for (Plotter *plot : plots())
        delete plot;
    m_analogPlotter = nullptr;
    m_digitalPlotter = nullptr;
    m_addedPlotters.clear();
    ui->scrollWidget->setMinimumHeight(0);
    m_graphCount = 0;
    delete m_horizontalScroll;
    m_horizontalScroll = nullptr;
}

// The digital plot and the added ones hear of time zooms through the first plot, never from the
// actions.
void MainWindow::equip(Plotter *plot)
{
    plot->setMainWindow(this);
    plot->setMinimumHeight(smallestPlotHeight);
    connect(m_actions.zoomReset, &QAction::triggered, plot, &Plotter::customResetZoom);
    if (plot == m_analogPlotter) {
        connect(m_actions.zoomOut, &QAction::triggered, plot, &Plotter::customZoomOut);
        connect(m_actions.zoomIn, &QAction::triggered, plot, &Plotter::customZoomIn);
    }
    if (plot != m_digitalPlotter) {
        connect(m_actions.vZoomOut, &QAction::triggered, plot, &Plotter::customVZoomOut);
        connect(m_actions.vZoomIn, &QAction::triggered, plot, &Plotter::customVZoomIn);
        connect(m_ctvtDialog, &CTVTDialog::scaleChanged, plot, &Plotter::refreshSlot);
    }
    connect(m_saveDialog, &SaveDialog::setStartPoint, plot, &Plotter::setStartPoint);
    connect(m_saveDialog, &SaveDialog::setEndPoint, plot, &Plotter::setEndPoint);
    connect(m_saveDialog, &SaveDialog::clearPoints, plot, &Plotter::clearSaveMarkers);
    connect(m_horizontalScroll, &QScrollBar::valueChanged, plot, &Plotter::scrolling);
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
    select(*ui->listWidget, m_analogPlotter->channels());
    select(*ui->listWidget2, m_digitalPlotter->channels());
    m_digitalPlotter->setMinimumHeight(m_digitalPlotter->neededHeight());
    m_digitalPlotter->setVisible(!m_digitalPlotter->channels().isEmpty());
    setColumnHeight();
}

// A digital plot with many rows would leave the analog plots no more than their smallest height.
void MainWindow::setColumnHeight()
{
    const int rows = m_digitalPlotter->neededHeight();
    const int analogPlots = 1 + m_addedPlotters.size();
    ui->scrollWidget->setMinimumHeight(
        rows > smallestPlotHeight ? rows + analogPlots * scrolledPlotHeight : 0);
    // The column would lay out the plots in its old size first, and each would be drawn twice.
    QEvent request(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(ui->scrollArea, &request);
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
    if (!m_analogPlotter || !showSelection(*ui->listWidget, *m_analogPlotter))
        return;
    m_analogPlotter->setupPlot();
    m_analogPlotter->refreshPixmap();
}

void MainWindow::setRequiredDigitalChannels()
{
    if (!m_digitalPlotter || !showSelection(*ui->listWidget2, *m_digitalPlotter))
        return;
    showChosenChannels();
    m_digitalPlotter->refreshPixmap();
}

void MainWindow::setAnalogChannels()
{
    if (!m_hasRecording)
        return;
    const QStringList ids = analogNames(*m_cfgProperties);
    QStringList offered = ids;
    QVector<int> channels(ids.size()); // of the names offered
    std::iota(channels.begin(), channels.end(), 0);
    for (int i = 0; hasPhasors() && i < ids.size(); ++i) {
        if (!ids.at(i).startsWith(QLatin1String("MEAS"))) {
            offered.append(ids.at(i) + spectrumSuffix);
            channels.append(i);
        }
    }
    m_addPlotterDialog->setChannelNames(offered);
    if (m_addPlotterDialog->exec() != QDialog::Accepted || !m_hasRecording)
        return;
    QList<int> chosen;
    for (const int number : m_addPlotterDialog->selectedNumbers())
        chosen.append(channels.at(number));
    addPlot(m_addPlotterDialog->selectedChannels(), chosen);
}

void MainWindow::addPlotter(const QList<QString> &AnCheckedChannels)
{
    if (m_hasRecording)
        addPlot(AnCheckedChannels, {});
}

void MainWindow::addPlot(const QStringList &names, const QList<int> &channels)
{
    const QStringList ids = analogNames(*m_cfgProperties);
    QList<int> numbers;
    for (int i = 0; i < names.size(); ++i) {
        const bool isSpectrum = names.at(i).endsWith(spectrumSuffix);
        const QString id = isSpectrum ? names.at(i).chopped(spectrumSuffix.size()) : names.at(i);
        const int number = positionOf(id, ids, channels.value(i, -1));
        if (number >= 0)
            numbers.append(isSpectrum ? ids.size() + number : number);
    }
    if (!numbers.isEmpty())
        addPlot(m_addPlotterDialog->graphName().trimmed(), numbers);
}

void MainWindow::addPlot(const QString &name, const QList<int> &numbers, const UnitPlot *unit)
{
    m_actions.removePlotter->setEnabled(true);
    auto *plot = new Plotter(ui->scrollWidget);
    if (name.isEmpty())
        plot->setProperty(numberOfUnnamed, ++m_graphCount);
    else if (unit)
        plot->setProperty(kindOfUnit, static_cast<int>(unit->kind));
    plot->setName(name.isEmpty() ? tr("Graph %1").arg(m_graphCount) : name);
    equip(plot);
    m_plotLayout->insertWidget(m_plotLayout->indexOf(m_digitalPlotter), plot);
    const Plotter *above
        = m_addedPlotters.isEmpty() ? m_analogPlotter : m_addedPlotters.constLast();
    setTabOrder(above->lastTabStop(), plot);
    m_addedPlotters.append(plot);
    linkPlots();

    for (const int number : numbers)
        plot->addChannel(number);
    plot->setupPlot();
    plot->show(); // at the time of any plot on screen, which may not be that of the first
    setColumnHeight();
    plot->followFromNowOn(*m_analogPlotter);
    plot->refreshPixmap();

    // The scroll area knows the plot's place only after its layout was done.
    constexpr int settleTime = 50; // ms
    const QPointer<Plotter> added(plot);
    QTimer waking; // to look at the time where no event comes
    waking.start(settleTime / 5);
    QElapsedTimer timer;
    timer.start();
    while (added && timer.elapsed() < settleTime)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (added)
        ui->scrollArea->ensureWidgetVisible(added, 0, 0);
}

void MainWindow::removePlotter()
{
    if (!m_addedPlotters.isEmpty()) {
        Plotter *removed = m_addedPlotters.takeLast();
        const QWidget *focused = focusWidget();
        if (focused == removed || removed->isAncestorOf(focused))
            (m_addedPlotters.isEmpty() ? m_analogPlotter : m_addedPlotters.constLast())->setFocus();
        for (Plotter *plot : plots())
            plot->removeLinkedPlotter(removed->name());
        m_plotLayout->removeWidget(removed);
        m_sideWindows->leave(removed);
        delete removed;
        setColumnHeight();
        m_analogPlotter->refreshAll(); // the widest readout may have gone
        ui->scrollWidget->repaint();
    }
    if (m_addedPlotters.isEmpty())
        m_actions.removePlotter->setEnabled(false);
}

void MainWindow::removeCursors()
{
    for (Plotter *plot : plots())
        plot->clearCursors();
    if (m_analogPlotter)
        m_analogPlotter->refreshAll();
}

void MainWindow::refreshPlots()
{
    for (Plotter *plot : plots())
        plot->rescaleValues();
    if (m_analogPlotter)
        m_analogPlotter->refreshAll();
}

void MainWindow::primSecChanged(int index)
{
    m_mode = index;
    refreshPlots();
}

void MainWindow::referenceChanged(int /*index*/)
{
    if (m_anglesShown)
        refreshSpectra();
}

void MainWindow::showAnglesSlot(bool on)
{
    m_anglesShown = on;
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
