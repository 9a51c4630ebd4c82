// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "vectordialog.h"

#include "dialoghost.h"
#include "plotter.h"
#include "ui_vectordialog.h"
#include "vectorwidget.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QSignalBlocker>

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
    firstPanel = new VectorWidget(this);
    firstPanel->disableRemoval();
    firstPanel->setMainWindow(mainWindow);
    ui->horizontalLayout_vectors->addWidget(firstPanel);
}

void VectorDialog::setPlotter(Plotter *source)
{
    plotter = source;
    for (VectorWidget *panel : panels())
        panel->setPlotter(source);
}

void VectorDialog::setChannelNames(const QStringList &names)
{
    channelNames = names;
    {
        const QSignalBlocker blocker(ui->comboBox_reference);
        ui->comboBox_reference->clear();
        ui->comboBox_reference->addItem(QStringLiteral("-"));
        ui->comboBox_reference->addItems(names);
    }
    // Long names widen the list, not the box.
    QAbstractItemView &list = *ui->comboBox_reference->view();
    list.setMinimumWidth(list.sizeHintForColumn(0) + 30); // a scroll bar, too
    for (VectorWidget *panel : panels())
        panel->setChannelNames(names);
    refresh();
}

QString VectorDialog::referenceName() const
{
    return ui->comboBox_reference->currentText();
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
    panel->setMainWindow(mainWindow);
    panel->setChannelNames(channelNames);
    panel->setPlotter(plotter);
    connect(panel, &VectorWidget::deleteSignal, this, &VectorDialog::deleteWidgetSlot);
    addedPanels.append(panel);
    ui->horizontalLayout_vectors->addWidget(panel);
}

void VectorDialog::deleteWidgetSlot(VectorWidget *widget)
{
    if (addedPanels.removeAll(widget) > 0)
        delete widget;
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
    return firstPanel ? QList<VectorWidget *>{firstPanel} + addedPanels : addedPanels;
}
