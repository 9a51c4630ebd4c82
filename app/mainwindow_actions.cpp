// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow.h"

#include "applicationidentity.h"
#include "brand.h"
#include "cfgproperties.h"
#include "elidingcombobox.h"
#include "elidinglabel.h"
#include "ui_mainwindow.h"
#include "vectordialog.h"

#include <QActionGroup>
#include <QCheckBox>
#include <QEvent>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>
#include <QToolBar>

namespace {

// In 24 and, for large icons and sharp screens, in 48 pixels. The images of actions that start
// disabled have grey ones beside them: the toolkit's own greying follows a light palette and would
// leave them almost white.
QIcon actionIcon(QLatin1String name)
{
    QIcon icon;
    for (const char *size : {"", "@2x"}) {
        const QString path = QStringLiteral(":/images/%1%2%3.png");
        icon.addFile(path.arg(name, QString(), QLatin1String(size)));
        const QString grey = path.arg(name, QLatin1String("disabled"), QLatin1String(size));
        if (QFile::exists(grey))
            icon.addFile(grey, QSize(), QIcon::Disabled);
    }
    return icon;
}

// For the tool tip: "Open" of "&Open...", and of "Open(&O)...", as menus of Chinese have it.
QString withoutMnemonic(QString text)
{
    static const QRegularExpression pattern(QStringLiteral("\\(&\\w\\)|&|\\.+$"));
    return text.remove(pattern);
}

} // namespace

struct MainWindow::ActionEntry {
    QAction *MainWindow::*action;
    const char *text;
    const char *statusTip;
    const char *icon; // image of this name, empty for none
    void (MainWindow::*slot)() = nullptr; // null: connected elsewhere
    bool enabled = true; // at start
    QKeySequence::StandardKey shortcut = QKeySequence::UnknownKey;
};

const QList<MainWindow::ActionEntry> &MainWindow::actionEntries()
{
    using W = MainWindow;
    static const QList<ActionEntry> entries{
        {&W::openAct, QT_TR_NOOP("&Open..."), QT_TR_NOOP("Open an existing file."), "open",
            &W::open, true, QKeySequence::Open},
        {&W::saveAsAct, QT_TR_NOOP("&Save As.."), QT_TR_NOOP("Save recording to file."), "save",
            &W::showSaveDialog, false},
        {&W::saveAsPrimaryAct, QT_TR_NOOP("Save As &Primary"),
            QT_TR_NOOP("Save as a primary type."), "save", &W::saveAsPrimary, false},
        {&W::addPlotterAct, QT_TR_NOOP("&Add Plotter"), QT_TR_NOOP("Add analog plotter."), "Plus",
            &W::setAnalogChannels, false},
        {&W::removePlotterAct, QT_TR_NOOP("&Remove Plotter"), QT_TR_NOOP("Remoe analog plotter."),
            "minus", &W::removePlotter, false},
        {&W::removeCursorsAct, QT_TR_NOOP("&Remove All Cursors"), QT_TR_NOOP("Remove all cursors."),
            "RemoveCursors", &W::removeCursors, false},
        {&W::showVectorsAct, QT_TR_NOOP("&Show Vectors"), QT_TR_NOOP("Show vectors dialog."),
            "vector"},
        {&W::rescaleAct, QT_TR_NOOP("Rescale CTVT"), QT_TR_NOOP("Set CTVT ratios."), "",
            &W::showCTVTDialog, false},
        {&W::screenshotAct, QT_TR_NOOP("&Save screenshot"), QT_TR_NOOP("Save screenshot."),
            "screenshot", &W::saveScreenShot},
        {&W::clipboardAct, QT_TR_NOOP("&Copy to clipboard"), QT_TR_NOOP("Copy to clipboard."),
            "clipboard", &W::copyToClipboard},
        {&W::zoomInAct, QT_TR_NOOP("Zoom In"), QT_TR_NOOP("Zoom in."), "zoomin"},
        {&W::zoomOutAct, QT_TR_NOOP("Zoom Out"), QT_TR_NOOP("Zoom out."), "zoomout"},
        {&W::zoomResetAct, QT_TR_NOOP("Zoom Reset"), QT_TR_NOOP("Zoom reset."), "zoomreset"},
        {&W::vZoomInAct, QT_TR_NOOP("Vertical Zoom In"), QT_TR_NOOP("Vertical zoom in."),
            "zoominh"},
        {&W::vZoomOutAct, QT_TR_NOOP("Vertical Zoom Out"), QT_TR_NOOP("Vertical zoom out."),
            "zoomouth"},
        {&W::exitAct, QT_TR_NOOP("E&xit"), QT_TR_NOOP("Exit the application."), "", nullptr, true,
            QKeySequence::Quit},
        {&W::aboutAct, QT_TR_NOOP("&About Wavorin"), QT_TR_NOOP("About Wavorin"), "", &W::about},
    };
    return entries;
}

void MainWindow::createActions()
{
    for (const ActionEntry &entry : actionEntries()) {
        auto *action = new QAction(this);
        if (*entry.icon)
            action->setIcon(actionIcon(QLatin1String(entry.icon)));
        if (entry.shortcut != QKeySequence::UnknownKey)
            action->setShortcuts(entry.shortcut);
        action->setEnabled(entry.enabled);
        if (entry.slot)
            connect(action, &QAction::triggered, this, entry.slot);
        this->*entry.action = action;
    }
    connect(showVectorsAct, &QAction::triggered, vectorDialog, &QWidget::show);
    connect(exitAct, &QAction::triggered, this, &QWidget::close);
    createToolBarWidgets();
    createLanguageMenu();
}

void MainWindow::createToolBarWidgets()
{
    showAnglesCheckBox = new QCheckBox(this);
    showAnglesCheckBox->setObjectName(QStringLiteral("checkBox_showAngles"));
    showAnglesCheckBox->setEnabled(false);
    connect(showAnglesCheckBox, &QCheckBox::toggled, this, &MainWindow::showAnglesSlot);

    referenceCombo = new ElidingComboBox(this);
    referenceCombo->setObjectName(QStringLiteral("comboBox_mainReference"));
    referenceCombo->setEnabled(false);
    // Long channel names widen the list, not the tool bar, which just fits the window.
    referenceCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    referenceCombo->setMinimumContentsLength(5);
    connect(referenceCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &MainWindow::referenceChanged);

    primSecLabel = new ElidingLabel(tr("Primary/Secondary:"), this);
    primSecLabel->setStyleSheet(QStringLiteral("QLabel{color:white;}"));

    primSecCombo = new ElidingComboBox(this);
    primSecCombo->setObjectName(QStringLiteral("comboBox_primSec"));
    primSecCombo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(primSecCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &MainWindow::primSecChanged);
}

void MainWindow::createLanguageMenu()
{
    languageMenu = new QMenu(this);
    auto *group = new QActionGroup(this);
    group->setExclusive(true);
    connect(group, &QActionGroup::triggered, this, &MainWindow::slotLanguageChanged);
    for (const LanguageEntry &entry : brandDetails(ApplicationIdentity::brand()).languages) {
        QAction *action = group->addAction(entry.text);
        action->setCheckable(true);
        action->setData(entry.fileName);
        action->setVisible(entry.visible);
        languageMenu->addAction(action);
        languageActions.append(action);
    }
}

void MainWindow::createMenus()
{
    fileMenu = menuBar()->addMenu(QString());
    fileMenu->addActions({openAct, saveAsAct, saveAsPrimaryAct});
    fileMenu->addSeparator();
    fileMenu->addAction(exitAct);

    editMenu = menuBar()->addMenu(QString());
    editMenu->addActions({clipboardAct, screenshotAct});

    toolsMenu = menuBar()->addMenu(QString());
    toolsMenu->addActions(
        {addPlotterAct, removePlotterAct, removeCursorsAct, showVectorsAct, rescaleAct});
    toolsMenu->addMenu(languageMenu);

    menuBar()->addSeparator();
    helpMenu = menuBar()->addMenu(QString());
    helpMenu->addAction(aboutAct);
    retranslateTexts();
}

void MainWindow::createToolBars()
{
    addToolBar(tr("File"))->addAction(openAct);
    addToolBar(tr("Edit"))->addActions({clipboardAct, screenshotAct});
    addToolBar(tr("Tools"))
        ->addActions({addPlotterAct, removePlotterAct, removeCursorsAct, showVectorsAct, zoomInAct,
            zoomOutAct, zoomResetAct, vZoomInAct, vZoomOutAct});

    QToolBar *spectrumBar = addToolBar(tr("FFT"));
    spectrumBar->addWidget(showAnglesCheckBox);
    spectrumBar->addWidget(referenceCombo);

    QToolBar *sideBar = addToolBar(tr("Prim/Sec"));
    sideBar->addWidget(primSecLabel);
    sideBar->addWidget(primSecCombo);

    // The Tab key goes from the tool bars through the form, then on to the plots. The group box
    // comes last here: the form's first widget follows the last one anyway, and would not be moved.
    const QList<QWidget *> stops{primSecCombo, ui->checkBox_convertToLocal, ui->listWidget,
        ui->listWidget2, ui->scrollWidget};
    for (int i = 1; i < stops.size(); ++i)
        setTabOrder(stops.at(i - 1), stops.at(i));
    setTabOrder(primSecCombo, ui->groupBox);
}

void MainWindow::enableRecordingActions(bool enabled)
{
    for (QAction *action :
        {saveAsAct, saveAsPrimaryAct, addPlotterAct, removeCursorsAct, rescaleAct})
        action->setEnabled(enabled);
    if (!enabled)
        removePlotterAct->setEnabled(false); // adding a plot enables it

    const bool phasors = enabled && hasPhasors();
    showAnglesCheckBox->setEnabled(phasors);
    referenceCombo->setEnabled(phasors);
}

void MainWindow::retranslateTexts()
{
    fileMenu->setTitle(tr("&File"));
    editMenu->setTitle(tr("&Edit"));
    toolsMenu->setTitle(tr("&Tools"));
    helpMenu->setTitle(tr("&Help"));
    for (const ActionEntry &entry : actionEntries()) {
        QAction *action = this->*entry.action;
        const QString text = tr(entry.text);
        action->setText(text);
        action->setToolTip(withoutMnemonic(text));
        action->setStatusTip(tr(entry.statusTip));
    }
    showAnglesCheckBox->setText(tr("Show FFT Angles"));
    showAnglesCheckBox->setToolTip(tr("Draw the angles of spectrum traces, too"));
    referenceCombo->setToolTip(tr("Reference channel of the FFT angles"));
    primSecLabel->setToolTip(tr("Values of the primary or the secondary side, or per unit"));
    primSecCombo->setToolTip(primSecLabel->toolTip());
    languageMenu->setTitle(tr("Language"));
}

// Tool-bar titles, the label in the tool bar, the languages and the message in the status bar keep
// the language they were made in.
void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        retranslateTexts();
        retranslatePlots();
    }
    QMainWindow::changeEvent(event);
}
