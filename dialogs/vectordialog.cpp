// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "vectordialog.h"

#include "dialoghost.h"
#include "plotter.h"
#include "ui_vectordialog.h"
#include "vectorwidget.h"

#include <QEvent>

#include <algorithm>

VectorDialog::VectorDialog(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::VectorDialog>())
{
    ui->setupUi(this);
    ui->panels->setAutoFillBackground(false);
}

VectorDialog::~VectorDialog() = default;

void VectorDialog::setMainWindow(QObject *object)
{
    mainWindow = qobject_cast<DialogHost *>(object) ? object : nullptr;
    m_firstPanel = new VectorWidget(this);
    m_firstPanel->disableRemoval();
    equip(m_firstPanel);
    ui->horizontalLayout_vectors->addWidget(m_firstPanel);
}

void VectorDialog::equip(VectorWidget *panel)
{
    panel->setMainWindow(mainWindow);
    connect(panel, &VectorWidget::measurementsWanted, this, [this](const QList<int> &channels) {
        emit measurementsWanted(channels, referencePosition());
    });
}

void VectorDialog::setPlotter(Plotter *source)
{
    plotter = source;
    for (VectorWidget *panel : panels())
        panel->setPlotter(source);
}

void VectorDialog::setChannelNames(const QStringList &names)
{
    m_channelNames = names;
    ui->comboBox_reference->setNames(QStringList(QStringLiteral("-")) + names, 0);
    for (VectorWidget *panel : panels())
        panel->setChannelNames(names);
    refresh();
}

QString VectorDialog::referenceName() const
{
    return ui->comboBox_reference->currentData().toString();
}

int VectorDialog::referencePosition() const
{
    return ui->comboBox_reference->currentIndex() - 1;
}

void VectorDialog::refresh()
{
    if (!isVisible())
        return;
    for (VectorWidget *panel : panels())
        panel->requestRedraw();
}

void VectorDialog::on_toolButton_clicked()
{
    auto *panel = new VectorWidget(this);
    equip(panel);
    panel->setChannelNames(m_channelNames);
    panel->setPlotter(plotter);
    connect(panel, &VectorWidget::deleteSignal, this, &VectorDialog::deleteWidgetSlot);
    m_addedPanels.append(panel);
    ui->horizontalLayout_vectors->addWidget(panel);
}

void VectorDialog::deleteWidgetSlot(VectorWidget *widget)
{
    const int place = m_addedPanels.indexOf(widget);
    if (place < 0)
        return;
    const bool hadFocus = widget->isAncestorOf(focusWidget());
    m_addedPanels.removeAll(widget);
    delete widget;
    if (hadFocus && m_addedPanels.isEmpty())
        ui->toolButton->setFocus();
    else if (hadFocus)
        m_addedPanels.at(std::min(place, m_addedPanels.size() - 1))->focusRemoval();
}

void VectorDialog::on_comboBox_reference_currentIndexChanged(int)
{
    for (VectorWidget *panel : panels())
        panel->requestRedraw();
}

void VectorDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QDialog::changeEvent(event);
}

void VectorDialog::resizeEvent(QResizeEvent *) { }

void VectorDialog::showEvent(QShowEvent *) { }

QList<VectorWidget *> VectorDialog::panels() const
{
    return m_firstPanel ? QList<VectorWidget *>{m_firstPanel} + m_addedPanels : m_addedPanels;
}
