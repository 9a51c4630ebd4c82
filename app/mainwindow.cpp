// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow.h"

#include "addplotterdialog.h"
#include "applicationidentity.h"
#include "applicationsettings.h"
#include "brand.h"
#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "packageunpacker.h"
#include "plotvalues.h"
#include "savedialog.h"
#include "ui_mainwindow.h"
#include "vectordialog.h"

#include <QCloseEvent>
#include <QFile>
#include <QProcess>
#include <QThread>
#include <QTranslator>

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
    ui->listWidget->setFocus(); // not the first of the Tab order, which changes what is shown
}

MainWindow::~MainWindow()
{
    unpacker->stop();
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
    unpacker->stop();
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
    unpacker = new PackageUnpacker(this);
    connect(unpacker->process(), &QProcess::readyRead, this, &MainWindow::processZip);
    connect(unpacker->process(), QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
        this, &MainWindow::endZip);
    connect(unpacker, &PackageUnpacker::packageInvalid, this, &MainWindow::showInvalidPackage);

    loaderThread = new QThread;
    cfgProperties = new CFGProperties;
    cfgProperties->moveToThread(loaderThread);
    connect(this, &MainWindow::initProperties, cfgProperties, &CFGProperties::init);
    connect(loaderThread, &QThread::finished, cfgProperties, &QObject::deleteLater);
    loaderThread->start(QThread::InheritPriority);
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
