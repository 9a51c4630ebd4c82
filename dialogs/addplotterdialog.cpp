// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "addplotterdialog.h"

#include "channelnames.h"
#include "elidinglist.h"
#include "labeltext.h"
#include "ui_addplotterdialog.h"

#include <QEvent>

namespace {

void moveSelectedItems(QListWidget &source, QListWidget &target)
{
    for (QListWidgetItem *item : source.selectedItems())
        target.addItem(source.takeItem(source.row(item)));
}

} // namespace

AddPlotterDialog::AddPlotterDialog(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::AddPlotterDialog>())
{
    ui->setupUi(this);
    for (QListWidget *list : {ui->listWidget_unSelected, ui->listWidget_Selected})
        elideNames(*list);
    connect(ui->listWidget_unSelected, &QListWidget::itemDoubleClicked, ui->pushButton_add,
        &QPushButton::click);
    connect(ui->listWidget_Selected, &QListWidget::itemDoubleClicked, ui->pushButton_remove,
        &QPushButton::click);
}

AddPlotterDialog::~AddPlotterDialog() = default;

void AddPlotterDialog::setChannelNames(const QStringList &names)
{
    ui->listWidget_unSelected->clear();
    ui->listWidget_Selected->clear();
    m_channelNames = names;
    for (int i = 0; i < names.size(); ++i) {
        auto *item = new QListWidgetItem(shownName(names.at(i)), ui->listWidget_unSelected);
        item->setData(Qt::UserRole, i);
        item->setToolTip(plainToolTip(item->text()));
    }
    // The earlier name stays, to be typed over.
    ui->lineEdit_graphName->setFocus();
    ui->lineEdit_graphName->selectAll();
}

QString AddPlotterDialog::graphName() const
{
    return ui->lineEdit_graphName->text();
}

QStringList AddPlotterDialog::selectedChannels() const
{
    QStringList names;
    for (const int number : selectedNumbers())
        names.append(m_channelNames.at(number));
    return names;
}

QList<int> AddPlotterDialog::selectedNumbers() const
{
    // Row by row: the wildcard search of the list leaves out names with a slash.
    QList<int> numbers;
    for (int row = 0; row < ui->listWidget_Selected->count(); ++row)
        numbers.append(ui->listWidget_Selected->item(row)->data(Qt::UserRole).toInt());
    return numbers;
}

void AddPlotterDialog::on_pushButton_add_clicked()
{
    moveSelectedItems(*ui->listWidget_unSelected, *ui->listWidget_Selected);
}

void AddPlotterDialog::on_pushButton_remove_clicked()
{
    moveSelectedItems(*ui->listWidget_Selected, *ui->listWidget_unSelected);
}

void AddPlotterDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QDialog::changeEvent(event);
}
