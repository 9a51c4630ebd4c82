// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <memory>

class CFGProperties;
class NoteTable;

namespace Ui {
class NotesDialog;
}

// Lists what the readers noticed in the files of a recording, in a window that stays open beside
// the plots.
class NotesDialog : public QDialog {
    Q_OBJECT

public:
    explicit NotesDialog(QWidget *parent = nullptr);
    ~NotesDialog() override;

    void setRecording(const CFGProperties *recording); // null for none

public slots:
    void on_pushButton_copy_clicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showTexts(); // anew, in another language or other letters

    std::unique_ptr<Ui::NotesDialog> ui;
    NoteTable *m_table;
};
