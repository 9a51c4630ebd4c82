// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotvalues.h"
#include "windowfixture.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>
#include <QTranslator>
#include <QVBoxLayout>

#include <memory>

namespace {

// Puts "~" before every text of the main window.
class MarkingTranslator : public QTranslator {
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "MainWindow") == 0 ? QLatin1Char('~') + QString::fromUtf8(text)
                                                   : QString();
    }
    bool isEmpty() const override { return false; }
};

QString iconPath(const char *name)
{
    return *name ? QLatin1String(":/images/") + QLatin1String(name) : QString();
}

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions) {
        texts.append(action->isSeparator() ? QStringLiteral("-")
                : action->menu()           ? QLatin1Char('>') + action->menu()->title()
                                           : action->text());
    }
    return texts;
}

} // namespace

class TestMainWindow : public WindowFixture {
    Q_OBJECT

    // The actions of the window in the order of their creation.
    QList<QAction *> actions() const
    {
        return window->findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    }

    QMenu *menu(int number) const { return menus().value(number); }

    QList<QMenu *> menus() const
    {
        QList<QMenu *> result;
        for (const QAction *entry : window->menuBar()->actions()) {
            if (entry->menu())
                result.append(entry->menu());
        }
        return result;
    }

    QMenu *languageMenu() const { return menu(2)->actions().last()->menu(); }

private slots:
    void init()
    {
        startAsMaker();
        makeWindow();
    }
    void cleanup() { closeWindow(); }

    // Form

    void sizes()
    {
        QCOMPARE(window->minimumSize(), QSize(0, 0));
        QCOMPARE(window->maximumSize(), QSize(16777215, 16777215));
        QCOMPARE(child<QWidget>("centralWidget")->minimumSize(), QSize(1000, 600));
        QCOMPARE(child<QGroupBox>("groupBox")->maximumHeight(), 101);
        QCOMPARE(child<QWidget>("V_listWidget")->minimumWidth(), 120);
        QCOMPARE(child<QWidget>("V_listWidget")->maximumWidth(), 101);
        QCOMPARE(child<QWidget>("V_listWidget")->maximumHeight(), 16777215);
        QCOMPARE(child<QListWidget>("listWidget")->minimumWidth(), 100);
        QCOMPARE(child<QListWidget>("listWidget2")->minimumWidth(), 100);
        QCOMPARE(child<QLabel>("label_4")->minimumWidth(), 110);
        QCOMPARE(child<QLabel>("label_6")->minimumWidth(), 110);
    }

    void layouts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("margin");
        QTest::newRow("whole window") << QStringLiteral("verticalLayout") << 11;
        QTest::newRow("device information") << QStringLiteral("gridLayout") << 11;
        QTest::newRow("lists beside plots") << QStringLiteral("horizontalLayout") << 0;
        QTest::newRow("lists") << QStringLiteral("V_list") << 11;
        QTest::newRow("plots") << QStringLiteral("verticalLayout_2") << 0;
    }

    void layouts()
    {
        QFETCH(QString, name);
        QFETCH(int, margin);
        const auto *layout = window->findChild<QLayout *>(name);
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(margin, margin, margin, margin));
        const auto *grid = qobject_cast<const QGridLayout *>(layout);
        QCOMPARE(grid ? grid->horizontalSpacing() : layout->spacing(), 6);
    }

    void informationPanel_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("text");
        QTest::newRow("location") << "label" << 0 << 0 << "Location:";
        QTest::newRow("location's value") << "label4" << 0 << 1 << "";
        QTest::newRow("start date") << "label_7" << 0 << 2 << "Start Date:";
        QTest::newRow("start date's value") << "label9" << 0 << 3 << "";
        QTest::newRow("start time") << "label_8" << 0 << 4 << "Start Time:";
        QTest::newRow("start time's value") << "label10" << 0 << 5 << "";
        QTest::newRow("local times")
            << "checkBox_convertToLocal" << 0 << 6 << "Convert To Localtime";
        QTest::newRow("device") << "label_2" << 1 << 0 << "Device:";
        QTest::newRow("device's value") << "label5" << 1 << 1 << "";
        QTest::newRow("trigger date") << "label_9" << 1 << 2 << "Trigger Date:";
        QTest::newRow("trigger date's value") << "label11" << 1 << 3 << "";
        QTest::newRow("trigger time") << "label_10" << 1 << 4 << "Trigger Time:";
        QTest::newRow("trigger time's value") << "label12" << 1 << 5 << "";
    }

    void informationPanel()
    {
        QFETCH(QString, name);
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, text);
        QWidget *cell = window->findChild<QWidget *>(name);
        QVERIFY(cell);
        QCOMPARE(cell->property("text").toString(), text);
        QCOMPARE(child<QGridLayout>("gridLayout")->itemAtPosition(row, column)->widget(), cell);
    }

    void captions()
    {
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin"));
        QCOMPARE(child<QGroupBox>("groupBox")->title(), QStringLiteral("Device Information"));
        QCOMPARE(child<QLabel>("label_4")->text(), QStringLiteral("Analog Channels:"));
        QCOMPARE(child<QLabel>("label_6")->text(), QStringLiteral("Digital Channels:"));
    }

    void listsStandInOrder()
    {
        const auto *lists = child<QVBoxLayout>("V_list");
        QStringList names;
        for (int i = 0; i < lists->count(); ++i)
            names.append(lists->itemAt(i)->widget()->objectName());
        QCOMPARE(
            names.join(QLatin1Char(' ')), QStringLiteral("label_4 listWidget label_6 listWidget2"));
    }

    void plotArea()
    {
        const auto *area = child<QScrollArea>("scrollArea");
        QVERIFY(area->widgetResizable());
        QCOMPARE(area->styleSheet(),
            QStringLiteral(
                "QScrollArea{background-color:transparent; border: 1px solid #00b9f2;}"));
        QCOMPARE(area->widget()->objectName(), QStringLiteral("scrollWidget"));
        QCOMPARE(area->widget()->styleSheet(),
            QStringLiteral("#scrollWidget{background-color:transparent;}"));
    }

    void policies()
    {
        for (const char *name : {"groupBox", "scrollWidget"}) {
            const auto *widget = child<QWidget>(name);
            QCOMPARE(widget->sizePolicy(),
                QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding,
                    widget->sizePolicy().controlType()));
            QCOMPARE(widget->focusPolicy(), Qt::WheelFocus);
        }
    }

    void styleSheets()
    {
        QFile sheet(QStringLiteral(":/style/wavorin.qss"));
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        QVERIFY(!window->styleSheet().isEmpty());
        QCOMPARE(window->styleSheet(), QString::fromUtf8(sheet.readAll()));
        QCOMPARE(child<QCheckBox>("checkBox_convertToLocal")->styleSheet(),
            QStringLiteral("color: white;"));
    }

    void startWithoutFile()
    {
        QCOMPARE(window->windowFilePath(), QStringLiteral("untitled.txt"));
        QVERIFY(!window->isWindowModified());
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("Ready"));
        QVERIFY(!window->recording());
    }

    void sharedPlotValuesAtStart()
    {
        PlotValues::shared() = {2.0, 3.0, {1, 2, 3, 4, 5, 6}};
        const MainWindow another;
        QCOMPARE(PlotValues::shared().primaryFactor, 1.0);
        QCOMPARE(PlotValues::shared().secondaryFactor, 1.0);
        for (const double value : PlotValues::shared().timesAndPositions)
            QCOMPARE(value, 0.0);
    }

    // Actions

    void actionTable_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tip");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QList<QKeySequence>>("shortcuts");
        QTest::addColumn<bool>("enabled");
        // Some platforms, as that without a display, have no key for it; the walkthrough presses
        // it.
        const QList<QKeySequence> quitKeys = QKeySequence::keyBindings(QKeySequence::Quit);
        const auto row = [](const char *text, const char *tip, const char *icon, bool enabled,
                             const QList<QKeySequence> &keys = {}) {
            QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(tip)
                                << iconPath(icon) << keys << enabled;
        };
        row("&Open...", "Open an existing file.", "open.png", true,
            QKeySequence::keyBindings(QKeySequence::Open));
        row("&Save As..", "Save recording to file.", "save.png", false);
        row("Save As &Primary", "Save as a primary type.", "save.png", false);
        row("&Add Plotter", "Add analog plotter.", "Plus.png", false);
        row("&Remove Plotter", "Remoe analog plotter.", "minus.png", false);
        row("&Remove All Cursors", "Remove all cursors.", "RemoveCursors.png", false);
        row("&Show Vectors", "Show vectors dialog.", "vector.png", true);
        row("Rescale CTVT", "Set CTVT ratios.", "", false);
        row("&Save screenshot", "Save screenshot.", "screenshot.png", true);
        row("&Copy to clipboard", "Copy to clipboard.", "clipboard.png", true);
        row("Zoom In", "Zoom in.", "zoomin.png", true);
        row("Zoom Out", "Zoom out.", "zoomout.png", true);
        row("Zoom Reset", "Zoom reset.", "zoomreset.png", true);
        row("Vertical Zoom In", "Vertical zoom in.", "zoominh.png", true);
        row("Vertical Zoom Out", "Vertical zoom out.", "zoomouth.png", true);
        row("E&xit", "Exit the application.", "", true, quitKeys);
        row("&About Wavorin", "About Wavorin", "", true);
    }

    void actionTable()
    {
        QFETCH(QString, text);
        QFETCH(QString, tip);
        QFETCH(QString, icon);
        QFETCH(QList<QKeySequence>, shortcuts);
        QFETCH(bool, enabled);
        const QAction *found = action(text.toLatin1().constData());
        QVERIFY(found);
        QCOMPARE(found->statusTip(), tip);
        QCOMPARE(found->shortcuts(), shortcuts);
        QCOMPARE(found->isEnabled(), enabled);
        QVERIFY(found->isVisible());
        QCOMPARE(found->icon().isNull(), icon.isEmpty());
        if (!icon.isEmpty()) {
            QVERIFY2(QFile::exists(icon), qPrintable(icon));
            QCOMPARE(found->icon().pixmap(24).toImage(), QIcon(icon).pixmap(24).toImage());
            QString grey = icon;
            grey.replace(QLatin1String(".png"), QLatin1String("disabled.png"));
            QVERIFY(enabled || QFile::exists(grey));
            if (!enabled)
                QCOMPARE(found->icon().pixmap(24, QIcon::Disabled).toImage(),
                    QIcon(grey).pixmap(24).toImage());
        }
    }

    void actionsInOrder()
    {
        QCOMPARE(textsOf(actions()).join(QLatin1Char('|')),
            QStringLiteral("&Open...|&Save As..|Save As &Primary|&Add Plotter|&Remove Plotter|"
                           "&Remove All Cursors|&Show Vectors|Rescale CTVT|&Save screenshot|"
                           "&Copy to clipboard|Zoom In|Zoom Out|Zoom Reset|Vertical Zoom In|"
                           "Vertical Zoom Out|E&xit|&About Wavorin"));
    }

    void menuEntries()
    {
        QStringList titles;
        for (const QAction *entry : window->menuBar()->actions())
            titles.append(entry->isSeparator() ? QStringLiteral("-") : entry->menu()->title());
        QCOMPARE(titles.join(QLatin1Char('|')), QStringLiteral("&File|&Edit|&Tools|-|&Help"));
        QCOMPARE(textsOf(menu(0)->actions()).join(QLatin1Char('|')),
            QStringLiteral("&Open...|&Save As..|Save As &Primary|-|E&xit"));
        QCOMPARE(textsOf(menu(1)->actions()).join(QLatin1Char('|')),
            QStringLiteral("&Copy to clipboard|&Save screenshot"));
        QCOMPARE(textsOf(menu(2)->actions()).join(QLatin1Char('|')),
            QStringLiteral("&Add Plotter|&Remove Plotter|&Remove All Cursors|&Show Vectors|"
                           "Rescale CTVT|>Language"));
        QCOMPARE(
            textsOf(menu(3)->actions()).join(QLatin1Char('|')), QStringLiteral("&About Wavorin"));
    }

    void toolBars()
    {
        const QList<QToolBar *> bars
            = window->findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
        QStringList titles;
        for (const QToolBar *bar : bars)
            titles.append(bar->windowTitle());
        QCOMPARE(titles.join(QLatin1Char('|')), QStringLiteral("File|Edit|Tools|FFT|Prim/Sec"));
        QCOMPARE(textsOf(bars[0]->actions()).join(QLatin1Char('|')), QStringLiteral("&Open..."));
        QCOMPARE(textsOf(bars[1]->actions()).join(QLatin1Char('|')),
            QStringLiteral("&Copy to clipboard|&Save screenshot"));
        QCOMPARE(textsOf(bars[2]->actions()).join(QLatin1Char('|')),
            QStringLiteral("&Add Plotter|&Remove Plotter|&Remove All Cursors|&Show Vectors|Zoom In|"
                           "Zoom Out|Zoom Reset|Vertical Zoom In|Vertical Zoom Out"));
        QCOMPARE(bars[3]->widgetForAction(bars[3]->actions().at(0)),
            child<QWidget>("checkBox_showAngles"));
        QCOMPARE(bars[3]->widgetForAction(bars[3]->actions().at(1)),
            child<QWidget>("comboBox_mainReference"));
        QCOMPARE(
            bars[4]->widgetForAction(bars[4]->actions().at(1)), child<QWidget>("comboBox_primSec"));
        const auto *label
            = qobject_cast<QLabel *>(bars[4]->widgetForAction(bars[4]->actions().at(0)));
        QVERIFY(label);
        QCOMPARE(label->text(), QStringLiteral("Primary/Secondary:"));
        QCOMPARE(label->styleSheet(), QStringLiteral("QLabel{color:white;}"));
    }

    // Side by side on the screen, in the order of their making.
    void toolBarsFromLeftToRight()
    {
        window->resize(1900, 700);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        int right = -1;
        for (const QToolBar *bar :
            window->findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly)) {
            QVERIFY(bar->isVisible());
            QVERIFY2(bar->x() > right, qPrintable(bar->windowTitle()));
            right = bar->x();
        }
    }

    void toolBarWidgetsAtStart()
    {
        const auto *angles = child<QCheckBox>("checkBox_showAngles");
        QCOMPARE(angles->text(), QStringLiteral("Show FFT Angles"));
        QVERIFY(!angles->isEnabled());
        QVERIFY(!angles->isChecked());
        const auto *reference = child<QComboBox>("comboBox_mainReference");
        QVERIFY(!reference->isEnabled());
        QCOMPARE(reference->count(), 0);
        QCOMPARE(child<QComboBox>("comboBox_primSec")->count(), 0);
    }

    void showVectorsShowsTheDialog()
    {
        action("&Show Vectors")->trigger();
        const auto *dialog = child<QDialog>("VectorDialog");
        QVERIFY(dialog);
        QVERIFY(dialog->isVisible());
    }

    void exitCloses()
    {
        window->show();
        action("E&xit")->trigger();
        QVERIFY(!window->isVisible());
    }

    void aboutBox()
    {
        BoxReader reader;
        action("&About Wavorin")->trigger();
        const QList<BoxReader::Box> boxes = reader.take();
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].title, QStringLiteral("About Wavorin"));
        QCOMPARE(boxes[0].text,
            QStringLiteral("<font size=4>Wavorin</font> v1.5.4-1-g56f75d81<br/>Created by "
                           "<a style=\"color:#c4eeff\" href=\"https://www.norvale.example\">"
                           "Norvale</a></font></p>"));
    }

    void statusTipIsShown()
    {
        action("Zoom In")->hover();
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("Ready"));
        QStatusTipEvent event(action("Zoom In")->statusTip());
        QCoreApplication::sendEvent(window.get(), &event);
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("Zoom in."));
    }

    // Language

    void languageEntries_data()
    {
        QTest::addColumn<int>("brand");
        QTest::addColumn<QString>("files"); // of all three entries, hidden ones in brackets
        QTest::addColumn<QString>("checked");
        QTest::newRow("the maker offers three") << 0 << "drv_en drv_fi drv_zh"
                                                << "drv_en";
        QTest::newRow("Vanta hides Finnish") << 1 << "drv_vanta_en (drv_fi) drv_vanta_zh"
                                             << "drv_vanta_en";
        QTest::newRow("Orlo hides Finnish") << 2 << "drv_orlo_en (drv_fi) drv_orlo_zh"
                                            << "drv_orlo_en";
        QTest::newRow("Quill offers English only") << 3 << "drv_quill_en (drv_fi) (drv_zh)"
                                                   << "drv_quill_en";
        QTest::newRow("Mervic offers English only") << 4 << "drv_mervic_en (drv_fi) (drv_zh)"
                                                    << "drv_mervic_en";
        QTest::newRow("an unknown brand checks none") << 5 << "drv_en drv_fi drv_zh"
                                                      << "";
    }

    void languageEntries()
    {
        QFETCH(int, brand);
        QFETCH(QString, files);
        QFETCH(QString, checked);
        ApplicationIdentity::setBrand(brand);
        window = std::make_unique<MainWindow>();
        QStringList shown;
        QStringList ticked;
        for (const QAction *entry : languageMenu()->actions()) {
            const QString file = entry->data().toString();
            QVERIFY(entry->isCheckable());
            shown.append(entry->isVisible() ? file : QLatin1Char('(') + file + QLatin1Char(')'));
            if (entry->isChecked())
                ticked.append(file);
        }
        QCOMPARE(shown.join(QLatin1Char(' ')), files);
        QCOMPARE(ticked.join(QLatin1Char(' ')), checked);
        QCOMPARE(textsOf(languageMenu()->actions()),
            QStringList(
                {QStringLiteral("English"), QStringLiteral("Suomi"), QStringLiteral("中文")}));
    }

    void choosingALanguageIsExclusiveAndKept()
    {
        languageMenu()->actions().at(1)->trigger();
        QVERIFY(languageMenu()->actions().at(1)->isChecked());
        QVERIFY(!languageMenu()->actions().at(0)->isChecked());
        window->close();
        QCOMPARE(QSettings(QStringLiteral("Norvale"), QStringLiteral("Wavorin"))
                     .value(QStringLiteral("language"))
                     .toString(),
            QStringLiteral("drv_fi"));
        window = std::make_unique<MainWindow>();
        QVERIFY(languageMenu()->actions().at(0)->isChecked());
    }

    void retranslation()
    {
        child<QLabel>("label4")->setText(QStringLiteral("Harju"));
        window->setWindowTitle(QStringLiteral("Wavorin - rec.cfg"));
        MarkingTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QCoreApplication::processEvents();
        for (const QAction *entry : actions()) {
            QVERIFY2(entry->text().startsWith(QLatin1Char('~')), qPrintable(entry->text()));
            QVERIFY2(entry->statusTip().startsWith(QLatin1Char('~')), qPrintable(entry->text()));
        }
        QStringList titles;
        for (const QMenu *entry : menus())
            titles.append(entry->title());
        QCOMPARE(titles.join(QLatin1Char('|')), QStringLiteral("~&File|~&Edit|~&Tools|~&Help"));
        QCOMPARE(languageMenu()->title(), QStringLiteral("~Language"));
        QCOMPARE(
            child<QCheckBox>("checkBox_showAngles")->text(), QStringLiteral("~Show FFT Angles"));
        QCOMPARE(child<QGroupBox>("groupBox")->title(), QStringLiteral("~Device Information"));
        QCOMPARE(child<QLabel>("label")->text(), QStringLiteral("~Location:"));

        // What stays
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - rec.cfg"));
        QCOMPARE(child<QLabel>("label4")->text(), QStringLiteral("Harju"));
        titles.clear();
        for (const QToolBar *bar : window->findChildren<QToolBar *>())
            titles.append(bar->windowTitle());
        QCOMPARE(titles.join(QLatin1Char('|')), QStringLiteral("File|Edit|Tools|FFT|Prim/Sec"));
        QCOMPARE(window->findChildren<QToolBar *>().last()->findChild<QLabel *>()->text(),
            QStringLiteral("Primary/Secondary:"));
        QCOMPARE(languageMenu()->actions().first()->text(), QStringLiteral("English"));
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("Ready"));
        QCoreApplication::removeTranslator(&translator);
    }

    void otherChangesDoNotRetranslate()
    {
        child<QLabel>("label")->setText(QStringLiteral("changed"));
        for (const QEvent::Type type : {QEvent::LocaleChange, QEvent::StyleChange,
                 QEvent::FontChange, QEvent::WindowTitleChange}) {
            QEvent event(type);
            QCoreApplication::sendEvent(window.get(), &event);
        }
        QCOMPARE(child<QLabel>("label")->text(), QStringLiteral("changed"));
    }

    // Settings

    void firstStartIsEnlargedByTheForm()
    {
        QCOMPARE(window->pos(), QPoint(300, 300));
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QCOMPARE(window->width(), 1000);
        QVERIFY2(window->height() > 600 && window->height() < 760,
            qPrintable(QString::number(window->height())));
    }

    void placeIsKept()
    {
        window->resize(1200, 800);
        window->move(20, 40);
        window->close();
        window = std::make_unique<MainWindow>();
        QCOMPARE(window->pos(), QPoint(20, 40));
        QCOMPARE(window->size(), QSize(1200, 800));
        QVERIFY(!window->isMaximized());
    }

    void maximisedIsKept()
    {
        window->showMaximized();
        window->close();
        window = std::make_unique<MainWindow>();
        QVERIFY(window->isMaximized());
    }

    void openDialogStartsInTheCompanionFolder()
    {
        QSettings companion(QStringLiteral("Norvale"), QStringLiteral("Setterra"));
        companion.setValue(QStringLiteral("SettingsDialog/DRFilesPath"), QDir::tempPath());
        companion.sync();
        window = std::make_unique<MainWindow>();
        QCOMPARE(window->recordingsFolder(), QDir::tempPath());
    }
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
