// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <memory>

class Plotter;
class VectorWidget;
namespace Ui {
class VectorDialog;
}

// A row of phasor diagrams at the cursor times of one plotter, with one reference channel for all.
class VectorDialog : public QDialog {
    Q_OBJECT

public:
    explicit VectorDialog(QWidget *parent = nullptr);
    ~VectorDialog() override;

    // Makes the first panel; to be called once, before the functions below. The object is used
    // through DialogHost.
    void setMainWindow(QObject *object);
    // Null while there is no recording.
    void setPlotter(Plotter *source);
    // Also resets the reference to "-".
    void setChannelNames(const QStringList &names);

    // Of the current item, "-" for none. Of several channels of one name, the position among the
    // names given tells which it is; negative for none.
    QString referenceName() const;
    int referencePosition() const;

    // Draws all panels again in 10 ms; many requests make one drawing. Nothing while hidden.
    void refresh();

signals:
    // Of channels of one panel, by their numbers from 0 on; the reference is -1 for none.
    void measurementsWanted(const QList<int> &channels, int reference);

public slots:
    void on_toolButton_clicked();
    void deleteWidgetSlot(VectorWidget *widget);
    void on_comboBox_reference_currentIndexChanged(int index);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QList<VectorWidget *> panels() const;
    void equip(VectorWidget *panel);

    QStringList m_channelNames;
    VectorWidget *m_firstPanel = nullptr;
    std::unique_ptr<Ui::VectorDialog> ui;
    QObject *mainWindow = nullptr; // handed on to the panels
    QList<VectorWidget *> m_addedPanels;
    QPointer<Plotter> plotter;
};
