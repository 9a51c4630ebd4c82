// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "eventsdialog.h"

#include "channelnames.h"
#include "eventtable.h"
#include "ui_eventsdialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>

EventsDialog::EventsDialog(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::EventsDialog>()), m_table(new EventTable(this))
{
    ui->setupUi(this);
    ui->tableView->setModel(m_table);
    ui->tableView->installEventFilter(this);
    ui->tableView->setFillingColumn(EventTable::Channel);
    connect(ui->tableView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &EventsDialog::showSelected);
    connect(&NameLetters::shared(), &NameLetters::changed, this, &EventsDialog::showNames);
    nameEntries();
}

EventsDialog::~EventsDialog() = default;

void EventsDialog::setRecording(const CFGProperties *recording)
{
    m_table->setRecording(recording);
    ui->comboBox_channel->setTexts({}, -1);
    nameEntries();
    ui->lineEdit_filter->clear(); // its button to clear it follows its signals
}

// A filter is of what is shown.
void EventsDialog::showNames()
{
    m_table->showNames();
    nameEntries();
    if (!ui->lineEdit_filter->text().isEmpty())
        setFilter();
}

// The first entry stands for all channels, the others for those that change.
void EventsDialog::nameEntries()
{
    QStringList entries{tr("All Channels")};
    for (const int channel : m_table->changingChannels())
        entries.append(m_table->names().at(channel));
    ui->comboBox_channel->setTexts(entries, std::max(0, ui->comboBox_channel->currentIndex()));
}

void EventsDialog::setFilter()
{
    const int entry = ui->comboBox_channel->currentIndex();
    m_table->setFilter(m_table->changingChannels().value(entry - 1, EventTable::allChannels),
        ui->lineEdit_filter->text());
}

void EventsDialog::on_lineEdit_filter_textChanged(const QString & /*text*/)
{
    setFilter();
}

void EventsDialog::on_comboBox_channel_currentIndexChanged(int /*index*/)
{
    setFilter();
}

void EventsDialog::on_tableView_clicked(const QModelIndex &index)
{
    if (index.isValid())
        emit timeChosen(m_table->timeOf(index.row()));
}

// By the arrow keys, too. Not all at once, nor the row that has just got the focus.
void EventsDialog::showSelected(const QItemSelection &selected)
{
    if (selected.size() == 1 && selected.constFirst().height() == 1)
        emit timeChosen(m_table->timeOf(selected.constFirst().top()));
}

void EventsDialog::on_tableView_doubleClicked(const QModelIndex &index)
{
    askForCursor(index);
}

void EventsDialog::askForCursor(const QModelIndex &index)
{
    if (index.isValid())
        emit cursorWanted(m_table->timeOf(index.row()));
}

void EventsDialog::on_pushButton_copy_clicked()
{
    copy({});
}

void EventsDialog::copy(const QList<int> &rows)
{
    QGuiApplication::clipboard()->setText(m_table->asText(rows));
}

void EventsDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        nameEntries();
        emit m_table->headerDataChanged(Qt::Horizontal, 0, EventTable::ColumnCount - 1);
        ui->tableView->viewport()->update(); // the row of the trigger
    }
    QDialog::changeEvent(event);
}

void EventsDialog::chooseOutermost(bool isLast)
{
    if (isLast)
        m_table->fetchAll();
    const int column = std::max(0, ui->tableView->currentIndex().column());
    ui->tableView->selectionModel()->setCurrentIndex(
        m_table->index(isLast ? m_table->rowCount() - 1 : 0, column),
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

// Return does what a double-click does, Home and End go along the rows instead of within one, and
// copying takes whole rows in their order.
bool EventsDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != ui->tableView || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    auto *press = static_cast<QKeyEvent *>(event);
    if (press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter) {
        askForCursor(ui->tableView->currentIndex());
        return true;
    }
    if (press->matches(QKeySequence::SelectAll))
        m_table->fetchAll(); // the view knows of those rows alone that are made
    const bool isEnd = press->key() == Qt::Key_End;
    if ((isEnd || press->key() == Qt::Key_Home)
        && (press->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        chooseOutermost(isEnd);
        return true;
    }
    if (press->matches(QKeySequence::Copy)) {
        QList<int> rows;
        for (const QItemSelectionRange &range : ui->tableView->selectionModel()->selection()) {
            for (int row = range.top(); row <= range.bottom(); ++row)
                rows.append(row);
        }
        std::sort(rows.begin(), rows.end());
        if (!rows.isEmpty())
            copy(rows);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}
