// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "notesdialog.h"

#include "channelnames.h"
#include "notetable.h"
#include "ui_notesdialog.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>

NotesDialog::NotesDialog(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::NotesDialog>()), m_table(new NoteTable(this))
{
    ui->setupUi(this);
    ui->tableView->setModel(m_table);
    ui->tableView->setFillingColumn(NoteTable::What);
    connect(&NameLetters::shared(), &NameLetters::changed, this, &NotesDialog::showTexts);
}

NotesDialog::~NotesDialog() = default;

void NotesDialog::setRecording(const CFGProperties *recording)
{
    m_table->setRecording(recording);
}

void NotesDialog::on_pushButton_copy_clicked()
{
    QGuiApplication::clipboard()->setText(m_table->asText());
}

void NotesDialog::showTexts()
{
    emit m_table->headerDataChanged(Qt::Horizontal, 0, NoteTable::ColumnCount - 1);
    if (m_table->rowCount() > 0)
        emit m_table->dataChanged(m_table->index(0, 0),
            m_table->index(m_table->rowCount() - 1, NoteTable::ColumnCount - 1));
}

void NotesDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showTexts();
    }
    QDialog::changeEvent(event);
}
