// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window shows of a recording beside its plots, and the change from one to the next.

#include "mainwindow.h"

#include "addplotterdialog.h"
#include "cfgproperties.h"
#include "channelnames.h"
#include "ctvtdialog.h"
#include "elidingcombobox.h"
#include "labeltext.h"
#include "namesmenu.h"
#include "numbers.h"
#include "plotvalues.h"
#include "savedialog.h"
#include "sidewindows.h"
#include "statusfield.h"
#include "timeofday.h"
#include "ui_mainwindow.h"
#include "vectordialog.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include <limits>
#include <utility>

namespace {

enum class DateOrder { MonthFirst, DayFirst };

// Names may be longer than the room for them, so each tells itself in a tool tip, too. There may be
// a hundred thousand: what the list need not hear of each is kept from it.
template <typename Channel> void listNames(QListWidget &list, const QList<Channel *> &channels)
{
    QStringList names;
    names.reserve(channels.size());
    for (const Channel *channel : channels)
        names.append(trimmedName(channel->id));
    const bool isNew = list.count() == 0;
    if (isNew)
        list.addItems(names);
    const QSignalBlocker blocker(list.model());
    for (int row = 0; row < names.size(); ++row) {
        if (!isNew)
            list.item(row)->setText(names.at(row));
        list.item(row)->setToolTip(plainToolTip(names.at(row)));
    }
    if (!isNew)
        list.doItemsLayout(); // with other widths
}

// The texts of a rating of each channel. Neighbours mostly share it, and its text then.
QStringList ratingTexts(const QList<AnalogChannel *> &channels, double AnalogChannel::*rating)
{
    QStringList texts;
    double last = std::numeric_limits<double>::quiet_NaN();
    for (const AnalogChannel *channel : channels) {
        const double value = channel->*rating;
        texts.append(value == last ? texts.constLast() : generalText(value));
        last = value;
    }
    return texts;
}

void showName(QLabel &label, const QString &name)
{
    label.setText(trimmedName(name));
    label.setToolTip(plainToolTip(label.text()));
}

void showStamp(QLabel &date, QLabel &time, const QString &dateText, const QString &timeText)
{
    date.setText(trimmedName(dateText));
    time.setText(trimmedName(timeText));
    date.setToolTip(QString());
    time.setToolTip(QString());
}

void showTimes(const Ui::MainWindow &ui, const CFGProperties &recording)
{
    showStamp(*ui.label9, *ui.label10, recording.startDate, recording.startTime);
    showStamp(*ui.label11, *ui.label12, recording.triggerDate, recording.triggerTime);
}

// Empty where the stamp does not read; why, the tool tips tell.
void showStampAsLocal(
    QLabel &date, QLabel &time, const QString &dateText, const QString &timeText, DateOrder order)
{
    const bool isMonthFirst = order == DateOrder::MonthFirst;
    const QString format = isMonthFirst ? QStringLiteral("MM/dd/yyyy") : dateFormat;
    const QDateTime local
        = joinedAsUtc(dateText.trimmed(), format, timeText.trimmed()).toLocalTime();
    showStamp(date, time, local.toString(format), local.toString(timeOfDayFormat));
    if (local.isValid())
        return;
    const QString tip = isMonthFirst
        ? MainWindow::tr("%1 %2 cannot be read as month/day/year and time of day")
        : MainWindow::tr("%1 %2 cannot be read as day/month/year and time of day");
    for (QLabel *label : {&date, &time})
        label->setToolTip(plainToolTip(tip.arg(trimmedName(dateText), trimmedName(timeText))));
}

void showTimesAsLocal(const Ui::MainWindow &ui, const CFGProperties &recording, DateOrder order)
{
    showStampAsLocal(*ui.label9, *ui.label10, recording.startDate, recording.startTime, order);
    showStampAsLocal(*ui.label11, *ui.label12, recording.triggerDate, recording.triggerTime, order);
}

} // namespace

// What shows the recording that is about to be replaced. From here on nothing reads the model until
// the load has ended.
void MainWindow::clearView()
{
    const bool disposes = std::exchange(m_hasRecording, false);
    ui->listWidget->setFocus(); // as at the start
    enableRecordingActions(false);
    const QList<QLabel *> values{
        ui->label4, ui->label5, ui->label9, ui->label10, ui->label11, ui->label12};
    for (QLabel *label : values) {
        label->clear();
        label->setToolTip(QString());
    }
    for (QListWidget *list : {ui->listWidget, ui->listWidget2}) {
        const QSignalBlocker blocker(list);
        list->clear();
    }
    for (ElidingComboBox *combo : {m_referenceCombo, m_primSecCombo})
        combo->setTexts({}, -1);
    PlotValues::shared().timesAndPositions.fill(0.0);

    m_addPlotterDialog->reject();
    m_saveDialog->close();
    m_saveDialog->setSampleTimes({});
    m_ctvtDialog->close();
    m_ctvtDialog->clearChannels();
    m_vectorDialog->setPlotter(nullptr);
    m_vectorDialog->setChannelNames({});
    m_statusField->showFile(QString());
    if (disposes)
        disposePlots();
    m_showAnglesCheckBox->setChecked(false); // reaches no plot any more
}

void MainWindow::showRecording()
{
    chooseLettersOf(*m_cfgProperties);
    m_hasRecording = true; // the plots read the recording while they are made
    QStringList ids;
    for (const AnalogChannel *channel : qAsConst(m_cfgProperties->analogChannels))
        ids.append(channel->id);
    showNames();
    ui->listWidget->setSelectionMode(QAbstractItemView::MultiSelection);
    ui->listWidget2->setSelectionMode(QAbstractItemView::MultiSelection);

    if (m_localTimes)
        showTimesAsLocal(*ui, *m_cfgProperties, DateOrder::MonthFirst);
    else
        showTimes(*ui, *m_cfgProperties);
    createPlots();
    enableRecordingActions(true);
    m_ctvtDialog->setChannels(ids,
        ratingTexts(m_cfgProperties->analogChannels, &AnalogChannel::primary),
        ratingTexts(m_cfgProperties->analogChannels, &AnalogChannel::secondary));
    m_sideWindows->setRecording(m_cfgProperties, m_analogPlotter);
}

// At the load and, in other letters, anew.
void MainWindow::showNames()
{
    if (!m_hasRecording)
        return;
    listNames(*ui->listWidget, m_cfgProperties->analogChannels);
    listNames(*ui->listWidget2, m_cfgProperties->digitalChannels);
    showName(*ui->label4, m_cfgProperties->stationName);
    showName(*ui->label5, m_cfgProperties->recordingDeviceId);
    retranslatePlots();
}

// The load reads the month first, the check box the day first: the two differ on purpose.
void MainWindow::showLocalTimes(bool on)
{
    m_localTimes = on;
    if (!m_hasRecording)
        return;
    if (on)
        showTimesAsLocal(*ui, *m_cfgProperties, DateOrder::DayFirst);
    else
        showTimes(*ui, *m_cfgProperties);
}
