// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>
#include <memory>

class DialogHost;
class QLabel;
class QLineEdit;
namespace Ui {
class CTVTDialog;
}

// Edits the transformer ratios, one row per analog channel in channel order.
class CTVTDialog : public QDialog {
    Q_OBJECT

public:
    // The factors changed are those of the parent's recording, when the parent is a DialogHost.
    explicit CTVTDialog(QWidget *parent = nullptr);
    ~CTVTDialog() override;

    // Adds the rows; parallel lists, one entry per analog channel. To be called on an empty dialog.
    // Beyond some thirty, a row is made when the dialog is first shown; of very many, when it is
    // scrolled near to.
    void setChannels(
        const QStringList &names, const QStringList &primaries, const QStringList &secondaries);
    void clearChannels();

    // The ratings last applied, as typed, parallel to the analog channels.
    const QStringList &primaryTexts() const { return m_appliedPrimaries; }
    const QStringList &secondaryTexts() const { return m_appliedSecondaries; }

public slots:
    void on_pushButton_Set_clicked();
    void on_pushButton_Close_clicked();

signals:
    void scaleChanged();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeRows(int count);
    void makeRowsInSight();
    void showNames(int first); // of the channels, to screen readers, too, from a row on

    // Of the rows that are made.
    QList<QLineEdit *> m_primaryEdits;
    QList<QLineEdit *> m_secondaryEdits;
    QList<QLabel *> m_nameLabels;
    QStringList m_appliedPrimaries;
    QStringList m_appliedSecondaries;
    std::unique_ptr<Ui::CTVTDialog> ui;
    DialogHost *mainWindow;
    QStringList m_channelNames;
};
