// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow.h"

#include "addplotterdialog.h"
#include "applicationidentity.h"
#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "filekind.h"
#include "labeltext.h"
#include "plotvalues.h"
#include "savedialog.h"
#include "temporaryfolder.h"
#include "timeofday.h"
#include "ui_mainwindow.h"
#include "vectordialog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QDropEvent>
#include <QEventLoop>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QMovie>
#include <QPainter>
#include <QPointer>
#include <QProcess>
#include <QThread>
#include <QTimer>

#include <utility>

namespace {

constexpr int animationSize = 100;

// Draws the frames of its movie as large as itself, however many pixels of the screen that are.
class MovieLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter(this).drawPixmap(rect(), movie()->currentPixmap());
    }
};

QLabel *newLoadingAnimation(QWidget *window)
{
    auto *label = new MovieLabel(window);
    label->setAttribute(Qt::WA_DeleteOnClose);
    auto *movie = new QMovie(QStringLiteral(":/images/loading.gif"), QByteArray(), label);
    movie->setScaledSize(QSize(animationSize, animationSize) * label->devicePixelRatioF());
    label->setFixedSize(animationSize, animationSize);
    label->move(window->width() / 2 - animationSize / 2, window->height() / 2 - animationSize / 2);
    label->setMovie(movie);
    movie->start();
    label->show();
    return label;
}

QDateTime toLocalTime(const QString &date, const QString &time, const QString &dateFormat)
{
    return joinedAsUtc(date.trimmed(), dateFormat, time.trimmed()).toLocalTime();
}

// A name as it is shown. The standard allows 64 letters; millions would keep the window from its
// work.
QString shownName(const QString &name)
{
    constexpr int mostLetters = 1000;
    return name.trimmed().left(mostLetters);
}

// Names may be longer than the room for them, so each tells itself in a tool tip, too.
void addName(QListWidget &list, const QString &name)
{
    auto *item = new QListWidgetItem(shownName(name), &list);
    item->setToolTip(plainToolTip(item->text()));
}

void showName(QLabel &label, const QString &name)
{
    label.setText(shownName(name));
    label.setToolTip(plainToolTip(label.text()));
}

// The dropped file on this machine, empty where something else is dropped.
QString droppedFile(const QDropEvent &event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}

} // namespace

void MainWindow::open()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open File"), drFilesPath, tr("DR-files (*.zip *.cfg *.txt)"));
    if (!path.isEmpty())
        open(path);
}

void MainWindow::open(const QString &path)
{
    queuedPath = path;
    if (opening)
        return;
    opening = true;
    while (cfgProperties && queuedPath) {
        if (!load(*std::exchange(queuedPath, std::nullopt)))
            return; // the window is closed or gone: nothing is opened any more
    }
    opening = false;
}

bool MainWindow::load(QString path)
{
    QFile file(path);
    if (isPipeOrDevice(path))
        return showFileWarning(
            tr("Cannot read file %1:\n%2."), path, tr("It is a pipe or a device"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return showFileWarning(tr("Cannot read file %1:\n%2."), path, file.errorString());

    if (path.contains(QLatin1String(".zip"), Qt::CaseInsensitive) && !unpack(path))
        return false;

    if (path.contains(QLatin1String(".cfg"), Qt::CaseInsensitive)
        || path.contains(QLatin1String(".txt"), Qt::CaseInsensitive)) {
        isComtrade = !path.endsWith(QLatin1String(".txt"));
        const QPointer<QLabel> animation = newLoadingAnimation(this);
        clearView();
        if (!parse(path))
            return false;
        if (!cfgProperties->loaded) {
            const bool goesOn = showWarning(tr("File not supported."));
            if (animation)
                animation->close();
            return goesOn;
        }
        showRecording();
        setWindowTitle(ApplicationIdentity::applicationName() + QLatin1String(" - ")
            + QFileInfo(path).fileName());
        animation->close();
    }
    setCurrentFile(path);
    statusBar()->showMessage(tr("File loaded"), messageDuration);
    return true;
}

bool MainWindow::unpack(QString &path)
{
    const QPointer<MainWindow> self(this);
    zipBusy = true;
    startUnpacking(path);
    // An archiver that cannot be started never ends: the wait goes on until another file is asked
    // for.
    const auto isGivenUp
        = [this] { return queuedPath && zipProcess->error() == QProcess::FailedToStart; };
    while (self && zipBusy && !isGivenUp())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!self || !cfgProperties)
        return false;
    zipBusy = false;

    const QDir folder(temporaryFolder);
    const QStringList names
        = folder.entryList({QStringLiteral("*.cfg")}, QDir::Files, QDir::Unsorted);
    if (!names.isEmpty())
        path = folder.absoluteFilePath(names.first());
    return true;
}

bool MainWindow::parse(const QString &path)
{
    const QPointer<MainWindow> self(this);
    cfgProperties->filePath = path;
    QEventLoop loop;
    bool finished = false;
    connect(cfgProperties, &CFGProperties::initFinished, &loop, [&] {
        finished = true;
        loop.quit();
    });
    // A window that closes stops the thread, perhaps before the load has begun.
    connect(loaderThread, &QThread::finished, &loop, &QEventLoop::quit);
    emit initProperties();
    loop.exec();
    // The end of the application ends the loop, too: the loader may still be at work.
    return finished && self && cfgProperties;
}

bool MainWindow::showWarning(const QString &text)
{
    const QPointer<MainWindow> self(this);
    const QPointer<QMessageBox> box
        = new QMessageBox(QMessageBox::Warning, tr("Application"), text, QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
    return self && cfgProperties;
}

// The toolkit gives the reasons in English alone.
bool MainWindow::showFileWarning(const QString &text, const QString &path, const QString &error)
{
    return showWarning(
        text.arg(path, QCoreApplication::translate("QIODevice", error.toUtf8().constData())));
}

void MainWindow::startUnpacking(const QString &package)
{
    if (package.isEmpty()) {
        zipBusy = false;
        return;
    }
    if (!tempFolderUsed && QDir(temporaryFolder).exists())
        temporaryFolder = freeTemporaryFolder(temporaryFolderBase());
    removeRecursively(temporaryFolder);
    if (!QDir(temporaryFolder).exists())
        QDir().mkdir(temporaryFolder);
    archiverOutput.emplace(package);
    zipProcess->start(archiverProgram(), unpackArguments(package, temporaryFolder));
    tempFolderUsed = true;
}

void MainWindow::processZip()
{
    if (!zipBusy)
        return; // the window is closing
    const ArchiverOutput::Reaction reaction = archiverOutput->read(zipProcess->readAll());
    if (!reaction.answer.isEmpty())
        zipProcess->write(reaction.answer);
    if (!reaction.error)
        return;
    auto *box = new QMessageBox(QMessageBox::Critical, tr("Error"),
        tr("The zip file is not valid.\nPlease select another file."), QMessageBox::Close, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(true);
    box->show();
}

void MainWindow::endZip(int exitcode)
{
    Q_UNUSED(exitcode)
    zipBusy = false;
}

// What shows the recording that is about to be replaced. From here on nothing reads the model until
// the load has ended.
void MainWindow::clearView()
{
    const bool disposes = std::exchange(hasRecording, false);
    enableRecordingActions(false);
    const QList<QLabel *> values{
        ui->label4, ui->label5, ui->label9, ui->label10, ui->label11, ui->label12};
    for (QLabel *label : values)
        label->clear();
    for (QListWidget *list : {ui->listWidget, ui->listWidget2}) {
        const QSignalBlocker blocker(list);
        list->clear();
    }
    ui->label4->setToolTip(QString());
    ui->label5->setToolTip(QString());
    for (QComboBox *combo : {referenceCombo, primSecCombo}) {
        const QSignalBlocker blocker(combo);
        combo->clear();
    }
    PlotValues::shared().timesAndPositions.fill(0.0);

    addPlotterDialog->reject();
    saveDialog->close();
    saveDialog->setSampleTimes({});
    ctvtDialog->close();
    ctvtDialog->clearChannels();
    vectorDialog->setPlotter(nullptr);
    vectorDialog->setChannelNames({});
    if (disposes)
        disposePlots();
}

void MainWindow::showRecording()
{
    hasRecording = true; // the plots read the recording while they are made
    QStringList ids;
    QStringList primaries;
    QStringList secondaries;
    for (const AnalogChannel *channel : qAsConst(cfgProperties->analogChannels)) {
        ids.append(channel->id);
        primaries.append(QString::number(channel->primary, 'g', 6));
        secondaries.append(QString::number(channel->secondary, 'g', 6));
        addName(*ui->listWidget, channel->id);
    }
    for (const DigitalChannel *channel : qAsConst(cfgProperties->digitalChannels))
        addName(*ui->listWidget2, channel->id);
    ui->listWidget->setSelectionMode(QAbstractItemView::MultiSelection);
    ui->listWidget2->setSelectionMode(QAbstractItemView::MultiSelection);

    showName(*ui->label4, cfgProperties->stationName);
    showName(*ui->label5, cfgProperties->recordingDeviceId);
    if (localTimes)
        showTimesAsLocal(QStringLiteral("MM/dd/yyyy"));
    else
        showTimes();
    createPlots();
    enableRecordingActions(true);
    ctvtDialog->setChannels(ids, primaries, secondaries);
}

// The load reads the month first, the check box the day first: the two differ on purpose.
void MainWindow::showLocalTimes(bool on)
{
    localTimes = on;
    if (!hasRecording)
        return;
    if (on)
        showTimesAsLocal(QStringLiteral("dd/MM/yyyy"));
    else
        showTimes();
}

void MainWindow::showTimes()
{
    ui->label9->setText(cfgProperties->startDate.trimmed());
    ui->label10->setText(cfgProperties->startTime.trimmed());
    ui->label11->setText(cfgProperties->triggerDate.trimmed());
    ui->label12->setText(cfgProperties->triggerTime.trimmed());
}

void MainWindow::showTimesAsLocal(const QString &dateFormat)
{
    const QDateTime start
        = toLocalTime(cfgProperties->startDate, cfgProperties->startTime, dateFormat);
    const QDateTime trigger
        = toLocalTime(cfgProperties->triggerDate, cfgProperties->triggerTime, dateFormat);
    ui->label9->setText(start.toString(dateFormat));
    ui->label10->setText(start.toString(timeOfDayFormat));
    ui->label11->setText(trigger.toString(dateFormat));
    ui->label12->setText(trigger.toString(timeOfDayFormat));
}

void MainWindow::setCurrentFile(const QString &path)
{
    currentFile = path;
    setWindowModified(false);
    setWindowFilePath(path.isEmpty() ? QStringLiteral("untitled.txt") : path);
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (droppedFile(*event).isEmpty())
        return;
    // A move would let the other program delete the file.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The other program waits until this handler returns.
    QTimer::singleShot(0, this, [this, path = droppedFile(*event)] { open(path); });
}
