// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window shows of a recording beside its plots, and the change from one to the next.

#include "mainwindow.h"

#include "addplotterdialog.h"
#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "labeltext.h"
#include "plotvalues.h"
#include "savedialog.h"
#include "timeofday.h"
#include "ui_mainwindow.h"
#include "vectordialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>

#include <utility>

namespace {

QDateTime toLocalTime(const QString &date, const QString &time, const QString &dateFormat)
{
    return joinedAsUtc(date.trimmed(), dateFormat, time.trimmed()).toLocalTime();
}

// A name as it is shown. The standard allows 64 letters; millions would keep the window from its
// work.
QString shownName(const QString &name)
{
    constexpr int mostLetters = 1000;
    return name.trimmed().left(mostLetters);
}

// Names may be longer than the room for them, so each tells itself in a tool tip, too.
void addName(QListWidget &list, const QString &name)
{
    auto *item = new QListWidgetItem(shownName(name), &list);
    item->setToolTip(plainToolTip(item->text()));
}

void showName(QLabel &label, const QString &name)
{
    label.setText(shownName(name));
    label.setToolTip(plainToolTip(label.text()));
}

void showTimes(const Ui::MainWindow &ui, const CFGProperties &recording)
{
    ui.label9->setText(recording.startDate.trimmed());
    ui.label10->setText(recording.startTime.trimmed());
    ui.label11->setText(recording.triggerDate.trimmed());
    ui.label12->setText(recording.triggerTime.trimmed());
}

void showTimesAsLocal(
    const Ui::MainWindow &ui, const CFGProperties &recording, const QString &dateFormat)
{
    const QDateTime start = toLocalTime(recording.startDate, recording.startTime, dateFormat);
    const QDateTime trigger = toLocalTime(recording.triggerDate, recording.triggerTime, dateFormat);
    ui.label9->setText(start.toString(dateFormat));
    ui.label10->setText(start.toString(timeOfDayFormat));
    ui.label11->setText(trigger.toString(dateFormat));
    ui.label12->setText(trigger.toString(timeOfDayFormat));
}

} // namespace

// What shows the recording that is about to be replaced. From here on nothing reads the model until
// the load has ended.
void MainWindow::clearView()
{
    const bool disposes = std::exchange(hasRecording, false);
    ui->listWidget->setFocus(); // as at the start
    enableRecordingActions(false);
    const QList<QLabel *> values{
        ui->label4, ui->label5, ui->label9, ui->label10, ui->label11, ui->label12};
    for (QLabel *label : values)
        label->clear();
    for (QListWidget *list : {ui->listWidget, ui->listWidget2}) {
        const QSignalBlocker blocker(list);
        list->clear();
    }
    ui->label4->setToolTip(QString());
    ui->label5->setToolTip(QString());
    for (QComboBox *combo : {referenceCombo, primSecCombo}) {
        const QSignalBlocker blocker(combo);
        combo->clear();
    }
    PlotValues::shared().timesAndPositions.fill(0.0);

    addPlotterDialog->reject();
    saveDialog->close();
    saveDialog->setSampleTimes({});
    ctvtDialog->close();
    ctvtDialog->clearChannels();
    vectorDialog->setPlotter(nullptr);
    vectorDialog->setChannelNames({});
    if (disposes)
        disposePlots();
    showAnglesCheckBox->setChecked(false); // reaches no plot any more
}

void MainWindow::showRecording()
{
    hasRecording = true; // the plots read the recording while they are made
    QStringList ids;
    QStringList primaries;
    QStringList secondaries;
    for (const AnalogChannel *channel : qAsConst(cfgProperties->analogChannels)) {
        ids.append(channel->id);
        primaries.append(QString::number(channel->primary, 'g', 6));
        secondaries.append(QString::number(channel->secondary, 'g', 6));
        addName(*ui->listWidget, channel->id);
    }
    for (const DigitalChannel *channel : qAsConst(cfgProperties->digitalChannels))
        addName(*ui->listWidget2, channel->id);
    ui->listWidget->setSelectionMode(QAbstractItemView::MultiSelection);
    ui->listWidget2->setSelectionMode(QAbstractItemView::MultiSelection);

    showName(*ui->label4, cfgProperties->stationName);
    showName(*ui->label5, cfgProperties->recordingDeviceId);
    if (localTimes)
        showTimesAsLocal(*ui, *cfgProperties, QStringLiteral("MM/dd/yyyy"));
    else
        showTimes(*ui, *cfgProperties);
    createPlots();
    enableRecordingActions(true);
    ctvtDialog->setChannels(ids, primaries, secondaries);
}

// The load reads the month first, the check box the day first: the two differ on purpose.
void MainWindow::showLocalTimes(bool on)
{
    localTimes = on;
    if (!hasRecording)
        return;
    if (on)
        showTimesAsLocal(*ui, *cfgProperties, QStringLiteral("dd/MM/yyyy"));
    else
        showTimes(*ui, *cfgProperties);
}
