// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <memory>

class CFGProperties;
class EventTable;
class QItemSelection;

namespace Ui {
class EventsDialog;
}

// Lists what the digital channels of a recording do, in a window that stays open beside the plots.
class EventsDialog : public QDialog {
    Q_OBJECT

public:
    explicit EventsDialog(QWidget *parent = nullptr);
    ~EventsDialog() override;

    // Null for none. The filter begins anew.
    void setRecording(const CFGProperties *recording);

public slots:
    void on_lineEdit_filter_textChanged(const QString &text);
    void on_comboBox_channel_currentIndexChanged(int index);
    void on_tableView_clicked(const QModelIndex &index);
    void on_tableView_doubleClicked(const QModelIndex &index);
    void on_pushButton_copy_clicked();

signals:
    void timeChosen(double time); // ms; to be brought into view
    void cursorWanted(double time); // ms

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showSelected(const QItemSelection &selected);
    void askForCursor(const QModelIndex &index);
    void setFilter();
    void nameEntries();
    void showNames(); // anew, in other letters
    void copy(const QList<int> &rows);
    void chooseOutermost(bool isLast); // the first or the last row

    std::unique_ptr<Ui::EventsDialog> ui;
    EventTable *m_table;
};
