// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>
#include <memory>

namespace Ui {
class AddPlotterDialog;
}

// Composes a new graph: its name and an ordered choice of channels.
class AddPlotterDialog : public QDialog {
    Q_OBJECT

public:
    explicit AddPlotterDialog(QWidget *parent = nullptr);
    ~AddPlotterDialog() override;

    // The names to choose from; forgets the earlier choice.
    void setChannelNames(const QStringList &names);

    QString graphName() const; // may be empty
    QStringList selectedChannels() const; // in the graph's order; may be empty
    QList<int> selectedNumbers() const; // their positions among the names given

public slots:
    void on_pushButton_add_clicked();
    void on_pushButton_remove_clicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::AddPlotterDialog> ui;
    QStringList m_channelNames;
};
