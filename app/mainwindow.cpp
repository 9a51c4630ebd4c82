// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow.h"

#include "addplotterdialog.h"
#include "applicationidentity.h"
#include "applicationsettings.h"
#include "brand.h"
#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "plotvalues.h"
#include "savedialog.h"
#include "temporaryfolder.h"
#include "ui_mainwindow.h"
#include "vectordialog.h"

#include <QCloseEvent>
#include <QFile>
#include <QProcess>
#include <QThread>
#include <QTranslator>

#include <utility>

namespace {

QString applicationStyleSheet()
{
    QFile file(QStringLiteral(":/style/wavorin.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent), ui(std::make_unique<Ui::MainWindow>())
{
    ui->setupUi(this);
    setStyleSheet(applicationStyleSheet());
    PlotValues::shared() = PlotValues();

    addPlotterDialog = new AddPlotterDialog(this);
    vectorDialog = new VectorDialog(this);
    vectorDialog->setMainWindow(this);
    saveDialog = new SaveDialog(this);
    ctvtDialog = new CTVTDialog(this);
    translator = new QTranslator(this);

    for (QWidget *widget : {static_cast<QWidget *>(ui->groupBox), ui->scrollWidget}) {
        widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        widget->setFocusPolicy(Qt::WheelFocus);
    }
    plotLayout = new QVBoxLayout(ui->scrollWidget);

    createActions();
    createMenus();
    createToolBars();
    statusBar()->showMessage(tr("Ready"));
    readSettings();
    setCurrentFile(QString());
    setUnifiedTitleAndToolBarOnMac(true);

    createLoader();
    connect(ui->checkBox_convertToLocal, &QCheckBox::toggled, this, &MainWindow::showLocalTimes);
    ui->checkBox_convertToLocal->setStyleSheet(QStringLiteral("color: white;"));
    connect(ui->listWidget, &QListWidget::itemSelectionChanged, this,
        &MainWindow::setRequiredAnChannels);
    connect(ui->listWidget2, &QListWidget::itemSelectionChanged, this,
        &MainWindow::setRequiredDigitalChannels);
    setAcceptDrops(true);
}

MainWindow::~MainWindow()
{
    stopUnpacking();
    stopLoader();
    disposePlots();
}

CFGProperties *MainWindow::recording() const
{
    return hasRecording ? cfgProperties : nullptr;
}

QString MainWindow::recordingsFolder() const
{
    return drFilesPath;
}

void MainWindow::refreshVectors()
{
    vectorDialog->refresh();
}

void MainWindow::slotLanguageChanged(QAction *action)
{
    languageFileName = action->data().toString();
    QCoreApplication::removeTranslator(translator);
    loadTranslation(*translator, languageFileName);
    QCoreApplication::installTranslator(translator);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    stopUnpacking();
    writeSettings({pos(), size(), isMaximized()}, languageFileName);
    event->accept();
    stopLoader();
    enableRecordingActions(false);
}

void MainWindow::readSettings()
{
    const WindowPlace place = readWindowPlace();
    languageFileName = brandDetails(ApplicationIdentity::brand()).defaultTranslation;
    loadTranslation(*translator, languageFileName);
    QCoreApplication::installTranslator(translator);
    for (QAction *action : qAsConst(languageActions)) {
        if (action->data().toString() == languageFileName) {
            action->setChecked(true);
            break;
        }
    }
    if (place.maximized) {
        setWindowState(Qt::WindowMaximized);
    } else {
        resize(place.size);
        move(place.position);
    }
    drFilesPath = companionRecordingsFolder();
}

void MainWindow::createLoader()
{
    zipProcess = new QProcess(this);
    zipProcess->setProcessChannelMode(QProcess::MergedChannels);
    connect(zipProcess, &QProcess::readyRead, this, &MainWindow::processZip);
    connect(zipProcess, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
        &MainWindow::endZip);

    loaderThread = new QThread;
    cfgProperties = new CFGProperties;
    cfgProperties->moveToThread(loaderThread);
    connect(this, &MainWindow::initProperties, cfgProperties, &CFGProperties::init);
    connect(loaderThread, &QThread::finished, cfgProperties, &QObject::deleteLater);
    loaderThread->start(QThread::InheritPriority);

    temporaryFolder = freeTemporaryFolder(temporaryFolderBase());
}

void MainWindow::stopUnpacking()
{
    zipBusy = false;
    if (zipProcess->state() != QProcess::NotRunning) {
        zipProcess->kill();
        zipProcess->waitForFinished();
    }
    if (std::exchange(tempFolderUsed, false))
        removeRecursively(temporaryFolder);
}

void MainWindow::stopLoader()
{
    if (!cfgProperties)
        return;
    queuedPath.reset();
    loaderThread->requestInterruption();
    loaderThread->quit();
    loaderThread->wait();
    delete loaderThread;
    loaderThread = nullptr;
    hasRecording = false;
    cfgProperties = nullptr;
}
