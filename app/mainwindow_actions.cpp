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
    QAction *WindowActions::*action;
    const char *text;
    const char *statusTip;
    const char *icon; // image of this name, empty for none
    void (MainWindow::*slot)() = nullptr; // null: connected elsewhere
    bool enabled = true; // at start
    QKeySequence::StandardKey shortcut = QKeySequence::UnknownKey;
};

const QList<MainWindow::ActionEntry> &MainWindow::actionEntries()
{
    using A = WindowActions;
    using W = MainWindow;
    static const QList<ActionEntry> entries{
        {&A::open, QT_TR_NOOP("&Open..."), QT_TR_NOOP("Open an existing file."), "open", &W::open,
            true, QKeySequence::Open},
        {&A::saveAs, QT_TR_NOOP("&Save As.."), QT_TR_NOOP("Save recording to file."), "save",
            &W::showSaveDialog, false},
        {&A::saveAsPrimary, QT_TR_NOOP("Save As &Primary"), QT_TR_NOOP("Save as a primary type."),
            "save", &W::saveAsPrimary, false},
        {&A::addPlotter, QT_TR_NOOP("&Add Plotter"), QT_TR_NOOP("Add analog plotter."), "Plus",
            &W::setAnalogChannels, false},
        {&A::removePlotter, QT_TR_NOOP("&Remove Plotter"), QT_TR_NOOP("Remoe analog plotter."),
            "minus", &W::removePlotter, false},
        {&A::removeCursors, QT_TR_NOOP("&Remove All Cursors"), QT_TR_NOOP("Remove all cursors."),
            "RemoveCursors", &W::removeCursors, false},
        {&A::showVectors, QT_TR_NOOP("&Show Vectors"), QT_TR_NOOP("Show vectors dialog."),
            "vector"},
        {&A::rescale, QT_TR_NOOP("Rescale CTVT"), QT_TR_NOOP("Set CTVT ratios."), "",
            &W::showCTVTDialog, false},
        {&A::screenshot, QT_TR_NOOP("&Save screenshot"), QT_TR_NOOP("Save screenshot."),
            "screenshot", &W::saveScreenShot},
        {&A::clipboard, QT_TR_NOOP("&Copy to clipboard"), QT_TR_NOOP("Copy to clipboard."),
            "clipboard", &W::copyToClipboard},
        {&A::zoomIn, QT_TR_NOOP("Zoom In"), QT_TR_NOOP("Zoom in."), "zoomin"},
        {&A::zoomOut, QT_TR_NOOP("Zoom Out"), QT_TR_NOOP("Zoom out."), "zoomout"},
        {&A::zoomReset, QT_TR_NOOP("Zoom Reset"), QT_TR_NOOP("Zoom reset."), "zoomreset"},
        {&A::vZoomIn, QT_TR_NOOP("Vertical Zoom In"), QT_TR_NOOP("Vertical zoom in."), "zoominh"},
        {&A::vZoomOut, QT_TR_NOOP("Vertical Zoom Out"), QT_TR_NOOP("Vertical zoom out."),
            "zoomouth"},
        {&A::exit, QT_TR_NOOP("E&xit"), QT_TR_NOOP("Exit the application."), "", nullptr, true,
            QKeySequence::Quit},
        {&A::about, QT_TR_NOOP("&About Wavorin"), QT_TR_NOOP("About Wavorin"), "", &W::about},
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
        m_actions.*entry.action = action;
    }
    connect(m_actions.showVectors, &QAction::triggered, m_vectorDialog, &QWidget::show);
    connect(m_actions.exit, &QAction::triggered, this, &QWidget::close);
    createToolBarWidgets();
    createLanguageMenu();
}

void MainWindow::createToolBarWidgets()
{
    m_showAnglesCheckBox = new QCheckBox(this);
    m_showAnglesCheckBox->setObjectName(QStringLiteral("checkBox_showAngles"));
    m_showAnglesCheckBox->setEnabled(false);
    connect(m_showAnglesCheckBox, &QCheckBox::toggled, this, &MainWindow::showAnglesSlot);

    m_referenceCombo = new ElidingComboBox(this);
    m_referenceCombo->setObjectName(QStringLiteral("comboBox_mainReference"));
    m_referenceCombo->setEnabled(false);
    // Long channel names widen the list, not the tool bar, which just fits the window.
    m_referenceCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_referenceCombo->setMinimumContentsLength(5);
    connect(m_referenceCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &MainWindow::referenceChanged);

    m_primSecLabel = new ElidingLabel(tr("Primary/Secondary:"), this);
    m_primSecLabel->setStyleSheet(QStringLiteral("QLabel{color:white;}"));

    m_primSecCombo = new ElidingComboBox(this);
    m_primSecCombo->setObjectName(QStringLiteral("comboBox_primSec"));
    m_primSecCombo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_primSecLabel->setBuddy(m_primSecCombo);
    connect(m_primSecCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &MainWindow::primSecChanged);
}

void MainWindow::createLanguageMenu()
{
    m_languageMenu = new QMenu(this);
    auto *group = new QActionGroup(this);
    group->setExclusive(true);
    connect(group, &QActionGroup::triggered, this, &MainWindow::slotLanguageChanged);
    for (const LanguageEntry &entry : brandDetails(ApplicationIdentity::brand()).languages) {
        QAction *action = group->addAction(entry.text);
        action->setCheckable(true);
        action->setData(entry.fileName);
        action->setVisible(entry.visible);
        m_languageMenu->addAction(action);
        languageActions.append(action);
    }
}

void MainWindow::createMenus()
{
    m_fileMenu = menuBar()->addMenu(QString());
    m_fileMenu->addActions({m_actions.open, m_actions.saveAs, m_actions.saveAsPrimary});
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_actions.exit);

    m_editMenu = menuBar()->addMenu(QString());
    m_editMenu->addActions({m_actions.clipboard, m_actions.screenshot});

    m_toolsMenu = menuBar()->addMenu(QString());
    m_toolsMenu->addActions({m_actions.addPlotter, m_actions.removePlotter, m_actions.removeCursors,
        m_actions.showVectors, m_actions.rescale});
    m_toolsMenu->addMenu(m_languageMenu);

    menuBar()->addSeparator();
    m_helpMenu = menuBar()->addMenu(QString());
    m_helpMenu->addAction(m_actions.about);
    retranslateTexts();
}

void MainWindow::createToolBars()
{
    addToolBar(tr("File"))->addAction(m_actions.open);
    addToolBar(tr("Edit"))->addActions({m_actions.clipboard, m_actions.screenshot});
    addToolBar(tr("Tools"))
        ->addActions({m_actions.addPlotter, m_actions.removePlotter, m_actions.removeCursors,
            m_actions.showVectors, m_actions.zoomIn, m_actions.zoomOut, m_actions.zoomReset,
            m_actions.vZoomIn, m_actions.vZoomOut});

    QToolBar *spectrumBar = addToolBar(tr("FFT"));
    spectrumBar->addWidget(m_showAnglesCheckBox);
    spectrumBar->addWidget(m_referenceCombo);

    QToolBar *sideBar = addToolBar(tr("Prim/Sec"));
    sideBar->addWidget(m_primSecLabel);
    sideBar->addWidget(m_primSecCombo);

    // The Tab key goes from the tool bars through the form, then on to the plots. The group box
    // comes last here: the form's first widget follows the last one anyway, and would not be moved.
    const QList<QWidget *> stops{m_primSecCombo, ui->checkBox_convertToLocal, ui->listWidget,
        ui->listWidget2, ui->scrollWidget};
    for (int i = 1; i < stops.size(); ++i)
        setTabOrder(stops.at(i - 1), stops.at(i));
    setTabOrder(m_primSecCombo, ui->groupBox);
}

void MainWindow::enableRecordingActions(bool enabled)
{
    for (QAction *action : {m_actions.saveAs, m_actions.saveAsPrimary, m_actions.addPlotter,
             m_actions.removeCursors, m_actions.rescale})
        action->setEnabled(enabled);
    if (!enabled)
        m_actions.removePlotter->setEnabled(false); // adding a plot enables it

    const bool phasors = enabled && hasPhasors();
    m_showAnglesCheckBox->setEnabled(phasors);
    m_referenceCombo->setEnabled(phasors);
}

void MainWindow::retranslateTexts()
{
    m_fileMenu->setTitle(tr("&File"));
    m_editMenu->setTitle(tr("&Edit"));
    m_toolsMenu->setTitle(tr("&Tools"));
    m_helpMenu->setTitle(tr("&Help"));
    for (const ActionEntry &entry : actionEntries()) {
        QAction *action = m_actions.*entry.action;
        const QString text = tr(entry.text);
        action->setText(text);
        action->setToolTip(withoutMnemonic(text));
        action->setStatusTip(tr(entry.statusTip));
    }
    m_showAnglesCheckBox->setText(tr("Show FFT Angles"));
    m_showAnglesCheckBox->setToolTip(tr("Draw the angles of spectrum traces, too"));
    m_referenceCombo->setToolTip(tr("Reference channel of the FFT angles"));
    m_primSecLabel->setToolTip(tr("Values of the primary or the secondary side, or per unit"));
    m_primSecCombo->setToolTip(m_primSecLabel->toolTip());
    m_referenceCombo->setAccessibleName(m_referenceCombo->toolTip());
    m_languageMenu->setTitle(tr("Language"));
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
