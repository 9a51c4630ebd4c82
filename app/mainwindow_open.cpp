// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// From a path to a recording on screen: by the dialog, the command line or a drop.

#include "mainwindow.h"

#include "applicationidentity.h"
#include "cancelwatch.h"
#include "cfgproperties.h"
#include "filekind.h"
#include "filewarning.h"
#include "labeltext.h"
#include "loadinganimation.h"
#include "loadingprogress.h"
#include "otherrecordings.h"
#include "packageunpacker.h"
#include "statusfield.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QEventLoop>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QStatusBar>
#include <QThread>
#include <QTimer>

#include <utility>

namespace {

// A file's name as part of a title, in which the toolkit takes "[*]" for the place of the mark of
// unsaved changes, and two of them for one that is meant.
QString asTitle(QString name)
{
    const QString mark = QStringLiteral("[*]");
    return name.replace(mark, mark + mark);
}

// Of the dropped files on this machine the one to open, empty where none is dropped.
QString droppedFile(const QDropEvent &event)
{
    QStringList files;
    for (const QUrl &url : event.mimeData()->urls()) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return recordingToOpen(files);
}

// Whether it is worth giving up another load for it.
bool canBeLoaded(const QString &path)
{
    return (isRecording(path) || isPackage(path)) && !isPipeOrDevice(path)
        && QFile(path).open(QIODevice::ReadOnly);
}

// The data file that belongs to a configuration, by its name where both lie in one folder. They do
// not where ".cfg" stands in the name of a folder, too.
QString dataFileName(const QString &path, const CFGProperties &recording)
{
    const QString data = existingPath(recording.filePath);
    const QFileInfo file(data);
    return file.path() == QFileInfo(path).path() ? file.fileName() : data;
}

// Why the recording was not loaded from path.
QString reasonText(const QString &path, const CFGProperties &recording)
{
    using Failure = CFGProperties::Failure;
    switch (recording.failure()) {
    case Failure::NoDataFile:
        return MainWindow::tr("There is no data file %1.").arg(dataFileName(path, recording));
    case Failure::NoAccess:
        return MainWindow::tr("The data file %1 cannot be read.")
            .arg(dataFileName(path, recording));
    case Failure::NotAscii:
        return MainWindow::tr("Its data are not ASCII.");
    case Failure::NoDataLine:
        return MainWindow::tr("Its data file holds no sample.");
    case Failure::ReadError:
        return MainWindow::tr("A file of it cannot be read to its end.");
    case Failure::LittleMemory:
        return MainWindow::tr("There is too little memory for it.");
    case Failure::GivenUp:
    case Failure::None:
        break;
    }
    return QString();
}

// Binary data, a type word that is not at its place, and single files. Nobody has looked whether
// the converter knows the type, or whether the file is whole.
bool canBeConverted(const QString &path, CFGProperties::Failure failure)
{
    return failure == CFGProperties::Failure::NotAscii || isSingleFile(path);
}

// What is said of a recording that is not supported, which may lie in the package that was asked
// for.
QString failureText(const QString &asked, const QString &path, const CFGProperties &recording)
{
    const QString inPackage = QStringLiteral("%1 (%2)").arg(asked, QFileInfo(path).fileName());
    QStringList lines{asked == path ? path : inPackage, reasonText(path, recording)};
    if (canBeConverted(path, recording.failure()))
        lines.append(MainWindow::tr("wavorin-convert may turn it into a recording that opens."));
    return lines.join(QLatin1Char('\n'));
}

// Below the text of a message; names of files may look like rich text.
void setDetails(QMessageBox &box, const QString &details)
{
    box.setInformativeText(breakableText(details));
    for (QLabel *label : box.findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
}

} // namespace

void MainWindow::open()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open File"), m_drFilesPath, tr("DR-files (*.zip *.cfg *.txt)"));
    if (!path.isEmpty())
        open(path);
}

void MainWindow::open(const QString &path)
{
    m_queuedPath = path;
    if (m_opening) {
        if (canBeLoaded(path))
            m_loadingProgress->giveUp();
        return;
    }
    m_opening = true;
    const QPointer<MainWindow> self(this);
    while (self && m_cfgProperties && m_queuedPath)
        load(*std::exchange(m_queuedPath, std::nullopt));
    if (self)
        m_opening = false;
}

void MainWindow::sayNotOpened(const QString &path)
{
    m_statusField->showNotOpened(path);
}

void MainWindow::load(QString path)
{
    const QString asked = path;
    QFile tried(path); // only to see that it can be read; it stays open to the end
    if (isPipeOrDevice(path)) {
        showWarning(
            fileWarning(tr("Cannot read file %1:\n%2."), path, tr("It is a pipe or a device")));
        return;
    }
    if (!tried.open(QIODevice::ReadOnly | QIODevice::Text)) {
        showWarning(fileWarning(tr("Cannot read file %1:\n%2."), path, tried.errorString()));
        return;
    }
    if (isPackage(path) && !unpack(path))
        return;
    if (isRecording(path)) {
        if (!loadRecording(path, asked))
            return;
        m_otherRecordings->remember();
    } else if (isSingleFile(path)) {
        sayNotOpened(path);
    }
    setCurrentFile(path);
    statusBar()->showMessage(tr("File loaded"), messageDuration);
}

bool MainWindow::unpack(QString &path)
{
    const QPointer<MainWindow> self(this);
    const CancelWatch watch(*this, *m_sideWindows);
    m_unpacker->start(path);
    // The archiver may never end, or never start.
    const auto isGivenUp = [&] { return m_queuedPath || watch.isCancelled(); };
    while (self && m_unpacker->isBusy() && !isGivenUp())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!self || !m_cfgProperties)
        return false;
    if (m_unpacker->isBusy()) {
        m_unpacker->stop();
        return false;
    }
    const QString configuration = m_unpacker->configuration();
    if (!configuration.isEmpty())
        path = configuration;
    return true;
}

bool MainWindow::loadRecording(const QString &path, const QString &asked)
{
    m_isComtrade = !isTextExport(path);
    const QPointer<QLabel> animation = newLoadingAnimation(this);
    m_otherRecordings->leaveArea(asked);
    clearView();
    if (!parse(path))
        return false;
    const bool isGivenUp = m_loadingProgress->isGivenUp(); // perhaps when it had just ended
    const bool isLoaded = m_cfgProperties->loaded != 0 && !isGivenUp;
    if (isLoaded) {
        showRecording();
        const QString name = QFileInfo(path).fileName();
        setWindowTitle(
            ApplicationIdentity::applicationName() + QLatin1String(" - ") + asTitle(name));
        m_statusField->showFile(name);
    } else {
        m_otherRecordings->offerInArea();
        if (!isGivenUp)
            showWarning(tr("File not supported."), failureText(asked, path, *m_cfgProperties));
    }
    if (animation)
        animation->close();
    return isLoaded;
}

bool MainWindow::parse(const QString &path)
{
    const QPointer<MainWindow> self(this);
    m_cfgProperties->filePath = path;
    QEventLoop loop;
    connect(m_cfgProperties, &CFGProperties::initFinished, &loop, &QEventLoop::quit);
    // A window that closes stops the thread, perhaps before the load has begun.
    connect(m_loaderThread, &QThread::finished, &loop, &QEventLoop::quit);
    const CancelWatch watch(*this, *m_sideWindows);
    connect(&watch, &CancelWatch::escaped, m_loadingProgress, &LoadingProgress::giveUp);
    m_loadingProgress->start(m_cfgProperties->progress(),
        isTextExport(path) ? LoadProgress::Stage::Reading : LoadProgress::Stage::Phasors);
    emit initProperties();
    loop.exec();
    if (self)
        m_loadingProgress->stop();
    // The end of the application ends the loop, too: the loader may still be at work.
    return self && m_cfgProperties && m_cfgProperties->progress().hasEnded();
}

void MainWindow::processZip()
{
    m_unpacker->readOutput();
}

void MainWindow::endZip(int /*exitcode*/)
{
    m_unpacker->end();
}

void MainWindow::showInvalidPackage(const QString &package)
{
    auto *box = new QMessageBox(QMessageBox::Critical, tr("Error"),
        tr("The zip file is not valid.\nPlease select another file."), QMessageBox::Close, this);
    setDetails(*box, package);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(true);
    box->show();
}

void MainWindow::showWarning(const QString &text, const QString &details)
{
    const QPointer<QMessageBox> box = new QMessageBox(
        QMessageBox::Warning, tr("Application"), breakableText(text), QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    if (!details.isEmpty())
        setDetails(*box, details);
    box->exec();
    delete box; // unless the window has gone with it
}

void MainWindow::setCurrentFile(const QString &path)
{
    m_currentFile = path;
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
    const QString path = droppedFile(*event);
    if (path.isEmpty()) // the other program has ended what it began
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The other program waits until this handler returns.
    QTimer::singleShot(0, this, [this, path] { open(path); });
}
