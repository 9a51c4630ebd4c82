// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QList>
#include <QString>
#include <QVector>
#include <memory>

class DialogHost;
class QSlider;
namespace Ui {
class SaveDialog;
}

// Chooses a path and the first and last sample of the part of a recording that is to be saved.
// Times are ms of recording time.
class SaveDialog : public QDialog {
    Q_OBJECT

public:
    // Saves through the parent, when it is a DialogHost.
    explicit SaveDialog(QWidget *parent = nullptr);
    ~SaveDialog() override;

    // The times to choose from, in sample order; to be set before the dialog is shown.
    void setSampleTimes(const QVector<double> &times);
    // Chooses the samples nearest to two times, of a dialog that is shown.
    void chooseSpan(double start, double end);

signals:
    void setStartPoint(double time);
    void setEndPoint(double time);
    void clearPoints();

public slots:
    void on_toolButton_Browse_clicked();
    void on_pushButton_Save_clicked();
    void on_pushButton_Cancel_clicked();
    void on_horizontalSlider_StartPoint_sliderMoved(int position);
    void on_horizontalSlider_EndPoint_sliderMoved(int position);
    void on_lineEdit_FilePath_textChanged();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool event(QEvent *event) override;

private:
    void followKeyboardAndWheel(QSlider *slider, void (SaveDialog::*choose)(int));
    void reset();
    void letGo();
    void chooseStart(int sample);
    void chooseEnd(int sample);
    void updateExistenceLabel();
    void tellObstacle();
    bool mayWrite();

    QString filePath;
    DialogHost *mainWindow;
    QList<const double *> sampleTimes; // into m_times
    std::unique_ptr<Ui::SaveDialog> ui;
    QVector<double> m_times;
};
