// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ctvtdialog.h"

#include "cfgproperties.h"
#include "channelnames.h"
#include "dialoghost.h"
#include "ui_ctvtdialog.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QShowEvent>

#include <algorithm>

namespace {

// Rows that are made at once. The first ones stand before the dialog is shown; the next ones fill
// more than a screen, and more follow as the end comes into sight.
constexpr int firstRows = 32;
constexpr int rowsOfAPortion = 256;

void setRatio(AnalogChannel &channel, double primary, double secondary)
{
    // The factor of the side the samples are on is the rating itself, not 1.
    if (channel.ps == QLatin1String("S")) {
        channel.toPrimary = (1 / secondary) * primary;
        channel.toSecondary = secondary;
    } else if (channel.ps == QLatin1String("P")) {
        channel.toPrimary = primary;
        channel.toSecondary = (1 / primary) * secondary;
    }
}

} // namespace

CTVTDialog::CTVTDialog(QWidget *parent)
    : QDialog(parent),
      ui(std::make_unique<Ui::CTVTDialog>()),
      mainWindow(qobject_cast<DialogHost *>(parent))
{
    ui->setupUi(this);
    ui->rows->setAutoFillBackground(false);
    const QScrollBar *bar = ui->scrollArea->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, &CTVTDialog::makeRowsInSight);
    connect(bar, &QScrollBar::rangeChanged, this, &CTVTDialog::makeRowsInSight);
    connect(&NameLetters::shared(), &NameLetters::changed, this, [this] { showNames(0); });
}

CTVTDialog::~CTVTDialog() = default;

void CTVTDialog::setChannels(
    const QStringList &names, const QStringList &primaries, const QStringList &secondaries)
{
    m_channelNames = names;
    m_appliedPrimaries = primaries;
    m_appliedSecondaries = secondaries;
    makeRows(isVisible() ? rowsOfAPortion : firstRows);
}

void CTVTDialog::makeRows(int count)
{
    const int first = m_nameLabels.size();
    const int end = std::min(m_channelNames.size(), first + count);
    for (int i = first; i < end; ++i) {
        m_nameLabels.append(new QLabel(this));
        m_nameLabels.last()->setTextFormat(Qt::PlainText);
        m_primaryEdits.append(new QLineEdit(m_appliedPrimaries.value(i), this));
        m_secondaryEdits.append(new QLineEdit(m_appliedSecondaries.value(i), this));
        ui->gridLayout->addWidget(m_nameLabels.last(), i + 1, 0);
        ui->gridLayout->addWidget(m_primaryEdits.last(), i + 1, 1);
        ui->gridLayout->addWidget(m_secondaryEdits.last(), i + 1, 2);
    }
    showNames(first);
    if (!m_secondaryEdits.isEmpty()) {
        setTabOrder(m_secondaryEdits.last(), ui->pushButton_Close);
        setTabOrder(m_secondaryEdits.last(), ui->pushButton_Set);
    }
}

void CTVTDialog::showNames(int first)
{
    for (int i = first; i < m_nameLabels.size(); ++i) {
        const QString name = shownName(m_channelNames.at(i));
        m_nameLabels.at(i)->setText(name);
        m_primaryEdits.at(i)->setAccessibleName(tr("%1, primary").arg(name));
        m_secondaryEdits.at(i)->setAccessibleName(tr("%1, secondary").arg(name));
    }
}

// The Tab key, too, scrolls to the row it reaches, so that it never comes to the last one before
// the next ones stand.
void CTVTDialog::makeRowsInSight()
{
    const QScrollBar *bar = ui->scrollArea->verticalScrollBar();
    if (isVisible() && m_nameLabels.size() < m_channelNames.size()
        && bar->value() + bar->pageStep() >= bar->maximum())
        makeRows(rowsOfAPortion);
}

void CTVTDialog::clearChannels()
{
    // In the order of their making: each is the first that its parent finds.
    for (int i = 0; i < m_nameLabels.size(); ++i) {
        delete m_nameLabels.at(i);
        delete m_primaryEdits.at(i);
        delete m_secondaryEdits.at(i);
    }
    m_primaryEdits.clear();
    m_secondaryEdits.clear();
    m_nameLabels.clear();
    m_channelNames.clear();
    m_appliedPrimaries.clear();
    m_appliedSecondaries.clear();
}

void CTVTDialog::on_pushButton_Set_clicked()
{
    const CFGProperties *recording = mainWindow ? mainWindow->recording() : nullptr;
    QStringList primaries;
    QStringList secondaries;
    for (int i = 0; i < m_channelNames.size(); ++i) {
        const bool isMade = i < m_nameLabels.size(); // or else nothing can have been typed
        primaries.append(isMade ? m_primaryEdits.at(i)->text() : m_appliedPrimaries.value(i));
        secondaries.append(isMade ? m_secondaryEdits.at(i)->text() : m_appliedSecondaries.value(i));
        if (AnalogChannel *channel = recording ? recording->analogChannels.value(i) : nullptr)
            setRatio(*channel, primaries.at(i).toDouble(), secondaries.at(i).toDouble());
    }
    m_appliedPrimaries = primaries;
    m_appliedSecondaries = secondaries;
    emit scaleChanged();
    if (mainWindow)
        mainWindow->refreshPlots();
}

void CTVTDialog::on_pushButton_Close_clicked()
{
    close();
}

void CTVTDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showNames(0);
    }
    QDialog::changeEvent(event);
}

void CTVTDialog::showEvent(QShowEvent *event)
{
    if (m_nameLabels.size() < rowsOfAPortion)
        makeRows(rowsOfAPortion - m_nameLabels.size());
    // A window that is only uncovered or restored keeps what is being typed.
    for (int i = 0; !event->spontaneous() && i < m_nameLabels.size(); ++i) {
        m_primaryEdits.at(i)->setText(m_appliedPrimaries.value(i));
        m_secondaryEdits.at(i)->setText(m_appliedSecondaries.value(i));
    }
    QDialog::showEvent(event);
}
