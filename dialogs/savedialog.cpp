// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "savedialog.h"

#include "dialoghost.h"
#include "overwritequestion.h"
#include "recordingwriter.h"
#include "ui_savedialog.h"

#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QShowEvent>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace {

QString wholeMilliseconds(double time)
{
    return QString::number(time, 'f', 0);
}

bool fileExists(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isDir();
}

// Why nothing would be saved at a path; empty where nothing is known against it.
QString obstacleTo(const QString &path)
{
    if (path.isEmpty())
        return QString();
    for (const QString &file : RecordingWriter::filesFor(path)) {
        const QFileInfo info(file);
        const QFileInfo folder(info.path());
        if (!folder.isDir())
            return SaveDialog::tr("There is no such folder");
        if (info.exists() && !info.isWritable())
            return SaveDialog::tr("The file that is there may not be replaced");
        if (!info.exists() && !folder.isWritable())
            return SaveDialog::tr("The folder may not be written to");
    }
    return QString();
}

} // namespace

SaveDialog::SaveDialog(QWidget *parent)
    : QDialog(parent),
      mainWindow(qobject_cast<DialogHost *>(parent)),
      ui(std::make_unique<Ui::SaveDialog>())
{
    ui->setupUi(this);
    ui->label_FileExists->hide();
    followKeyboardAndWheel(ui->horizontalSlider_StartPoint, &SaveDialog::chooseStart);
    followKeyboardAndWheel(ui->horizontalSlider_EndPoint, &SaveDialog::chooseEnd);
}

SaveDialog::~SaveDialog() = default;

void SaveDialog::setSampleTimes(const QVector<double> &times)
{
    m_times = times;
    sampleTimes.clear();
    sampleTimes.reserve(times.size());
    for (const double &time : qAsConst(m_times))
        sampleTimes.append(&time);
}

void SaveDialog::chooseSpan(double start, double end)
{
    const auto nearest = [this](double time) {
        const auto isNearer
            = [time](double a, double b) { return std::abs(a - time) < std::abs(b - time); };
        return static_cast<int>(
            std::min_element(m_times.cbegin(), m_times.cend(), isNearer) - m_times.cbegin());
    };
    const int first = nearest(start);
    const int last = nearest(end);
    ui->horizontalSlider_StartPoint->setValue(first);
    ui->horizontalSlider_EndPoint->setValue(last);
    chooseStart(first);
    chooseEnd(last);
}

void SaveDialog::on_toolButton_Browse_clicked()
{
    filePath = QFileDialog::getSaveFileName(
        this, tr("Save recording"), mainWindow ? mainWindow->recordingsFolder() : QString());
    ui->lineEdit_FilePath->setText(filePath);
    updateExistenceLabel();
}

void SaveDialog::on_pushButton_Save_clicked()
{
    if (!mayWrite())
        return;
    const double start = ui->lineEdit_Start->text().toDouble();
    const double end = ui->lineEdit_End->text().toDouble();
    if (mainWindow)
        mainWindow->saveRecording(filePath, start, end);
    emit clearPoints();
    close();
}

void SaveDialog::on_pushButton_Cancel_clicked()
{
    emit clearPoints();
    close();
}

void SaveDialog::on_horizontalSlider_StartPoint_sliderMoved(int position)
{
    chooseStart(position);
}

void SaveDialog::on_horizontalSlider_EndPoint_sliderMoved(int position)
{
    chooseEnd(position);
}

void SaveDialog::on_lineEdit_FilePath_textChanged()
{
    filePath = ui->lineEdit_FilePath->text();
    updateExistenceLabel();
    tellObstacle();
}

void SaveDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        tellObstacle();
    }
    QDialog::changeEvent(event);
}

// Not in reject(), which closing through the title bar calls, too.
void SaveDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        ui->pushButton_Cancel->click();
    else
        QDialog::keyPressEvent(event);
}

void SaveDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) // a window that is only restored keeps what was chosen
        reset();
    QDialog::showEvent(event);
}

bool SaveDialog::event(QEvent *event)
{
    if (event->type() == QEvent::Hide || event->type() == QEvent::WindowBlocked)
        letGo();
    return QDialog::event(event);
}

// The release of the button never reaches a slider that is hidden or behind another dialog: what is
// held would go on, with the mouse or by its own repetition, also when it can be used again.
void SaveDialog::letGo()
{
    for (QSlider *slider : {ui->horizontalSlider_StartPoint, ui->horizontalSlider_EndPoint}) {
        QMouseEvent release(QEvent::MouseButtonRelease, slider->rect().center(), Qt::LeftButton,
            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(slider, &release);
    }
}

void SaveDialog::reset()
{
    const int last = sampleTimes.size() - 1;
    filePath.clear();
    ui->lineEdit_FilePath->clear();
    ui->lineEdit_FilePath->setFocus();
    ui->horizontalSlider_StartPoint->setRange(0, last);
    ui->horizontalSlider_EndPoint->setRange(0, last);
    ui->horizontalSlider_StartPoint->setValue(0);
    ui->horizontalSlider_EndPoint->setValue(last);
    ui->lineEdit_Start->clear();
    ui->lineEdit_End->clear();
    if (!sampleTimes.isEmpty()) {
        ui->lineEdit_Start->setText(wholeMilliseconds(*sampleTimes.first()));
        ui->lineEdit_End->setText(wholeMilliseconds(*sampleTimes.last()));
        emit setStartPoint(*sampleTimes.first());
        emit setEndPoint(*sampleTimes.last());
    }
}

void SaveDialog::chooseStart(int sample)
{
    if (sample >= sampleTimes.size())
        return;
    ui->lineEdit_Start->setText(wholeMilliseconds(*sampleTimes.at(sample)));
    emit setStartPoint(*sampleTimes.at(sample));
}

void SaveDialog::chooseEnd(int sample)
{
    if (sample >= sampleTimes.size())
        return;
    ui->lineEdit_End->setText(wholeMilliseconds(*sampleTimes.at(sample)));
    emit setEndPoint(*sampleTimes.at(sample));
}

// sliderMoved is the mouse's alone; the other ways to move a slider show up as actions.
void SaveDialog::followKeyboardAndWheel(QSlider *slider, void (SaveDialog::*choose)(int))
{
    connect(slider, &QSlider::actionTriggered, this, [this, slider, choose] {
        if (!slider->isSliderDown())
            (this->*choose)(slider->sliderPosition());
    });
}

void SaveDialog::updateExistenceLabel()
{
    ui->label_FileExists->setVisible(!QFileInfo(filePath).isDir()
        && (fileExists(filePath) || fileExists(filePath + QStringLiteral(".cfg"))));
}

// Saving itself says nothing of a file that cannot be opened.
void SaveDialog::tellObstacle()
{
    QLineEdit *field = ui->lineEdit_FilePath;
    field->setToolTip(obstacleTo(filePath));
    field->setProperty("hasObstacle", !field->toolTip().isEmpty()); // for the style sheet
    field->style()->unpolish(field);
    field->style()->polish(field);
}

// Asks before a file is overwritten; only the path as typed counts.
bool SaveDialog::mayWrite()
{
    return !fileExists(filePath)
        || mayOverwrite(this, parentWidget() ? parentWidget()->styleSheet() : QString());
}
