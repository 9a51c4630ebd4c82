// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow.h"

#include "addplotterdialog.h"
#include "applicationidentity.h"
#include "applicationsettings.h"
#include "brand.h"
#include "cfgproperties.h"
#include "channelnames.h"
#include "ctvtdialog.h"
#include "elidinglist.h"
#include "loadingprogress.h"
#include "menukey.h"
#include "otherrecordings.h"
#include "packageunpacker.h"
#include "plotvalues.h"
#include "savedialog.h"
#include "sidewindows.h"
#include "statusfield.h"
#include "ui_mainwindow.h"
#include "vectordialog.h"

#include <QCloseEvent>
#include <QFile>
#include <QProcess>
#include <QStatusBar>
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
    for (QListWidget *list : {ui->listWidget, ui->listWidget2})
        elideNames(*list);
    setStyleSheet(applicationStyleSheet());
    PlotValues::shared() = PlotValues();

    m_addPlotterDialog = new AddPlotterDialog(this);
    m_vectorDialog = new VectorDialog(this);
    m_vectorDialog->setMainWindow(this);
    m_saveDialog = new SaveDialog(this);
    m_ctvtDialog = new CTVTDialog(this);
    m_sideWindows = new SideWindows(this);
    connect(m_sideWindows, &SideWindows::saved, this, &MainWindow::reportSaving);
    connect(m_vectorDialog, &VectorDialog::measurementsWanted, m_sideWindows,
        &SideWindows::showMeasurementsOf);
    m_translator = new QTranslator(this);

    for (QWidget *widget : {static_cast<QWidget *>(ui->groupBox), ui->scrollWidget}) {
        widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        widget->setFocusPolicy(Qt::WheelFocus);
    }
    m_plotLayout = new QVBoxLayout(ui->scrollWidget);
    m_otherRecordings = new OtherRecordings(ui->scrollArea->viewport(), this);
    // Later: what it was chosen from goes with the plots.
    connect(m_otherRecordings, &OtherRecordings::chosen, this,
        QOverload<const QString &>::of(&MainWindow::open), Qt::QueuedConnection);

    createActions();
    createMenus();
    createToolBars();
    statusBar()->showMessage(tr("Ready"));
    m_statusField = new StatusField(*this, statusBar());
    statusBar()->addPermanentWidget(m_statusField);
    m_loadingProgress = new LoadingProgress(statusBar());
    statusBar()->addPermanentWidget(m_loadingProgress);
    statusBar()->addPermanentWidget(m_sideWindows->noteSign());
    // Between whole pixels the bar forgets the column in which a message begins.
    connect(statusBar(), &QStatusBar::messageChanged, statusBar(),
        [bar = statusBar()] { bar->update(); });
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
    for (QListWidget *list : {ui->listWidget, ui->listWidget2}) {
        // Very many rows are laid out little by little.
        list->setLayoutMode(QListView::Batched);
        list->setBatchSize(1000);
    }
    connect(&NameLetters::shared(), &NameLetters::changed, this, &MainWindow::showNames);
    setAcceptDrops(true);
    new MenuKey(this);
    ui->listWidget->setFocus(); // not the first of the Tab order, which changes what is shown
}

MainWindow::~MainWindow()
{
    m_unpacker->stop();
    stopLoader();
    disposePlots();
}

CFGProperties *MainWindow::recording() const
{
    return m_hasRecording ? m_cfgProperties : nullptr;
}

QString MainWindow::recordingsFolder() const
{
    return m_drFilesPath;
}

void MainWindow::refreshVectors()
{
    m_vectorDialog->refresh();
    m_sideWindows->refresh();
    m_statusField->refresh();
    ui->scrollArea->pointAgain();
}

void MainWindow::pointAt(const Plotter *plot, const QPoint &point)
{
    m_statusField->pointAt(plot, point);
}

void MainWindow::slotLanguageChanged(QAction *action)
{
    m_languageFileName = action->data().toString();
    QCoreApplication::removeTranslator(m_translator);
    loadTranslation(*m_translator, m_languageFileName);
    QCoreApplication::installTranslator(m_translator);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_unpacker->stop();
    writeSettings({pos(), size(), isMaximized()}, m_languageFileName);
    event->accept();
    stopLoader();
    enableRecordingActions(false);
}

void MainWindow::readSettings()
{
    const WindowPlace place = readWindowPlace();
    m_languageFileName = brandDetails(ApplicationIdentity::brand()).defaultTranslation;
    loadTranslation(*m_translator, m_languageFileName);
    QCoreApplication::installTranslator(m_translator);
    for (QAction *action : qAsConst(languageActions)) {
        if (action->data().toString() == m_languageFileName) {
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
    m_drFilesPath = companionRecordingsFolder();
}

void MainWindow::createLoader()
{
    m_unpacker = new PackageUnpacker(this);
    connect(m_unpacker->process(), &QProcess::readyRead, this, &MainWindow::processZip);
    connect(m_unpacker->process(), QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
        this, &MainWindow::endZip);
    connect(m_unpacker, &PackageUnpacker::packageInvalid, this, &MainWindow::showInvalidPackage);

    m_loaderThread = new QThread;
    m_cfgProperties = new CFGProperties;
    m_cfgProperties->moveToThread(m_loaderThread);
    connect(this, &MainWindow::initProperties, m_cfgProperties, &CFGProperties::init);
    connect(m_loaderThread, &QThread::finished, m_cfgProperties, &QObject::deleteLater);
    m_loaderThread->start(QThread::InheritPriority);
}

void MainWindow::stopLoader()
{
    if (!m_cfgProperties)
        return;
    m_queuedPath.reset();
    m_loadingProgress->stop();
    m_loaderThread->requestInterruption();
    m_loaderThread->quit();
    m_loaderThread->wait();
    delete m_loaderThread;
    m_loaderThread = nullptr;
    m_hasRecording = false;
    m_cfgProperties = nullptr;
}
