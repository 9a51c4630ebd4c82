// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow.h"

#include "applicationidentity.h"
#include "brand.h"
#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "filekind.h"
#include "filewarning.h"
#include "overwritequestion.h"
#include "plotcapture.h"
#include "plotmenu.h"
#include "plotstyle.h"
#include "plotterdg.h"
#include "recordingwriter.h"
#include "reportpicture.h"
#include "savedialog.h"
#include "statusfield.h"
#include "ui_mainwindow.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QSaveFile>

#include <algorithm>

namespace {

void smoothLetters(const QList<Plotter *> &plots, bool smooth)
{
    for (Plotter *plot : plots) {
        const QList<QWidget *> widgets = plot->findChildren<QWidget *>() << plot;
        for (QWidget *widget : widgets) {
            QFont font = widget->font();
            font.setStyleStrategy(smooth ? QFont::PreferDefault : QFont::NoAntialias);
            widget->setFont(font);
        }
        plot->refreshSlot();
    }
}

void stylePlots(const QList<Plotter *> &plots, const QString &styleSheet)
{
    for (Plotter *plot : plots)
        plot->setStyleSheet(styleSheet);
}

void setForPaper(const QList<Plotter *> &plots, bool isForPaper)
{
    for (Plotter *plot : plots)
        plot->setForPaper(isForPaper);
}

// Hides the line that follows the pointer, with its time; what was hidden.
QList<QWidget *> hidePointer(const QList<Plotter *> &plots)
{
    QList<QWidget *> hidden;
    for (const Plotter *plot : plots) {
        for (const char *name : {"timeline", "timelabel"}) {
            auto *widget = plot->findChild<QWidget *>(QLatin1String(name));
            if (widget->isHidden())
                continue;
            widget->hide();
            hidden.append(widget);
        }
    }
    return hidden;
}

// The names of cursors, with their places in a widget around the plots.
QVector<ReportPicture::Name> cursorNames(const QList<Plotter *> &plots, const QWidget &around)
{
    QVector<ReportPicture::Name> names;
    for (const Plotter *plot : plots) {
        for (const QLabel *label : plot->findChildren<QLabel *>(QStringLiteral("lineLabel"))) {
            if (label->isVisibleTo(&around))
                names.append({label->text(), QRect(label->mapTo(&around, QPoint()), label->size()),
                    label->font()});
        }
    }
    return names;
}

// What stood there goes only where all of the picture can be written. A file that cannot be
// replaced is written in its place.
void savePicture(const QPixmap &picture, const QString &path, const QString &format)
{
    const QByteArray name = format.toLatin1();
    QSaveFile file(path);
    if (!isPipeOrDevice(path) && file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        && (!picture.save(&file, name.constData()) || file.commit()))
        return;
    picture.save(path, name.constData());
}

// A folder is none of them: it is never replaced.
QStringList existing(QStringList files)
{
    const auto isNew = [](const QString &file) { return !QFileInfo(file).isFile(); };
    files.erase(std::remove_if(files.begin(), files.end(), isNew), files.end());
    return files;
}

} // namespace

QList<Plotter *> MainWindow::plots() const
{
    QList<Plotter *> all{m_digitalPlotter, m_analogPlotter};
    all += m_addedPlotters;
    all.removeAll(nullptr);
    return all;
}

QPixmap MainWindow::capture(CaptureTarget target, const QString &caption)
{
    stylePlots(plots(), captureStyle);
    // The smooth edges of letters would turn as black as the letters and fill their holes.
    smoothLetters(plots(), false);
    if (m_digitalPlotter)
        m_digitalPlotter->repaint();
    // The frame of what takes the keys belongs to the screen.
    QWidget *focused = focusWidget();
    const bool isFramed
        = focused && (focused == ui->scrollWidget || qobject_cast<Plotter *>(focused));
    if (isFramed)
        focused->clearFocus();
    const QPixmap captured = ui->scrollWidget->grab(ui->scrollWidget->rect());
    if (isFramed)
        focused->setFocus();
    smoothLetters(plots(), true);
    return printableCapture(captured, target, caption);
}

QString MainWindow::caption() const
{
    const CFGProperties *loaded = recording();
    return loaded ? captureCaption(loaded->startDate, loaded->startTime)
                  : captureCaption(QString(), QString());
}

// A cancelled dialog leaves the plots in the style of the capture, on purpose.
void MainWindow::saveScreenShot()
{
    if (saveByDialog(capture(CaptureTarget::File, caption())))
        stylePlots(plots(), screenStyle);
}

bool MainWindow::saveByDialog(const QPixmap &picture)
{
    const QString format = QStringLiteral("png");
    const QString path = QFileDialog::getSaveFileName(this, tr("Save As"),
        QDir::currentPath() + QLatin1String("/untitled.") + format,
        tr("%1 Files (*.%2);;All Files (*)").arg(format.toUpper(), format));
    if (!path.isEmpty())
        savePicture(picture, path, format);
    return !path.isEmpty();
}

void MainWindow::copyToClipboard()
{
    QGuiApplication::clipboard()->setPixmap(capture(CaptureTarget::Clipboard, caption()));
    stylePlots(plots(), screenStyle);
}

QPixmap MainWindow::report()
{
    // Not the window's file path: that may be of a file that was passed over.
    ReportPicture report(*m_cfgProperties, m_statusField->file(), m_statusField->sideText(),
        m_analogPlotter->cursors());
    report.names = cursorNames(plots(), *ui->scrollWidget);
    setForPaper(plots(), true);
    const QList<QWidget *> pointer = hidePointer(plots());
    const QPixmap picture = report.around(capture(CaptureTarget::File, QString()), font());
    for (QWidget *widget : pointer)
        widget->show();
    setForPaper(plots(), false);
    stylePlots(plots(), screenStyle);
    return picture;
}

void MainWindow::addOutputs(QMenu &menu, Plotter &plot)
{
    connect(menu.addAction(tr("Cop&y Picture with Heading")), &QAction::triggered, this,
        [this] { QGuiApplication::clipboard()->setPixmap(report()); });
    connect(menu.addAction(tr("&Save Picture with Heading...")), &QAction::triggered, this,
        [this] { saveByDialog(report()); });
    const OuterCursors outer(plot);
    QAction *part = menu.addAction(tr("Save P%1 to P%2...").arg(outer.first).arg(outer.last));
    part->setEnabled(outer.exist);
    connect(part, &QAction::triggered, this, [this, outer] {
        showSaveDialog();
        m_saveDialog->chooseSpan(outer.from, outer.to);
    });
}

void MainWindow::about()
{
    QMessageBox::about(this, tr("About Wavorin"),
        aboutText(ApplicationIdentity::applicationName(), ApplicationIdentity::brand()));
}

RecordingWriter MainWindow::recordingWriter() const
{
    return RecordingWriter(
        *m_cfgProperties, m_ctvtDialog->primaryTexts(), m_ctvtDialog->secondaryTexts());
}

void MainWindow::reportSaving(const QString &failedFile, const QString &error)
{
    if (failedFile.isEmpty())
        statusBar()->showMessage(tr("File saved."), messageDuration);
    else
        showWarning(fileWarning(tr("Cannot write file %1:\n%2."), failedFile, error));
}

void MainWindow::saveRecording(const QString &path, double start, double end)
{
    if (!m_hasRecording)
        return;
    const RecordingWriter::Outcome outcome = recordingWriter().write(path, start, end);
    reportSaving(outcome.failedFile, outcome.error);
}

void MainWindow::saveAsPrimary()
{
    const auto mayReplace = [this](const QStringList &files) {
        return files.isEmpty() || mayOverwrite(this, styleSheet(), files);
    };
    // The file dialog knows the name as typed alone, and would ask for nothing else.
    QString path = recordingsFolder();
    do {
        path = QFileDialog::getSaveFileName(this, tr("Save recording"), path, QString(), nullptr,
            QFileDialog::DontConfirmOverwrite);
    } while (!path.isEmpty() && !mayReplace(existing(RecordingWriter::filesFor(path))));
    if (path.isEmpty() || !m_hasRecording)
        return;
    const RecordingWriter::Outcome outcome = recordingWriter().writeAsPrimary(path);
    reportSaving(outcome.failedFile, outcome.error);
}

void MainWindow::showSaveDialog()
{
    if (!m_hasRecording)
        return;
    m_saveDialog->setSampleTimes(m_cfgProperties->sampleTimes);
    m_saveDialog->show();
}

void MainWindow::showCTVTDialog()
{
    m_ctvtDialog->show();
}
