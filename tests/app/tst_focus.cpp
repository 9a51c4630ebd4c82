// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "contrast.h"
#include "plotter.h"
#include "smallrecording.h"
#include "windowfixture.h"

#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QWindow>

#include <algorithm>
#include <memory>

namespace {

// What Tab reaches, in turn, from the first that a window offers until it comes round.
QList<QWidget *> tabStops(QWidget &window)
{
    if (window.focusWidget())
        window.focusWidget()->clearFocus();
    QList<QWidget *> stops;
    for (;;) {
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Tab);
        QWidget *stop = window.focusWidget();
        if (!stop || stops.contains(stop))
            return stops;
        stops.append(stop);
    }
}

// The object's name, or in brackets what a nameless one shows.
QString nameOf(const QWidget *widget)
{
    if (widget->inherits("Plotter"))
        return QStringLiteral("[%1]").arg(
            widget->findChild<QLabel *>(QStringLiteral("Plotter Label"))->text());
    return widget->objectName().isEmpty()
        ? QStringLiteral("[%1]").arg(widget->property("text").toString())
        : widget->objectName();
}

QString namesOfStops(QWidget &window)
{
    QStringList names;
    for (const QWidget *stop : tabStops(window))
        names.append(nameOf(stop));
    return names.join(QLatin1Char(' '));
}

} // namespace

class TestFocus : public WindowFixture {
    Q_OBJECT

    // A dialog by its name, or the main window, shown and with the keys.
    QWidget *activated(const QString &dialog) const
    {
        QWidget *shown = window.get();
        if (!dialog.isEmpty())
            shown = window->findChild<QDialog *>(dialog);
        shown->show();
        return QTest::qWaitForWindowActive(shown) ? shown : nullptr;
    }

    // After another window has closed, which is for a window manager to do.
    bool reactivated() const
    {
        window->activateWindow();
        return QTest::qWaitForWindowActive(window.get());
    }

    // Through the shortcut and the dialog.
    void openByKeys(const QString &path)
    {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isActiveWindow())
                return;
            timer.stop();
            auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            edit->setText(path);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        timer.start(10);
        QTest::keyClick(window->windowHandle(), Qt::Key_O, Qt::ControlModifier);
    }

    // What is chosen of the values: mode, reference, angles, channels.
    QString measured() const
    {
        QString text = QStringLiteral("%1 %2 %3")
                           .arg(window->valueMode())
                           .arg(window->referenceIndex())
                           .arg(window->showsAngles());
        for (const char *name : {"listWidget", "listWidget2"}) {
            const auto *list = window->findChild<QListWidget *>(QLatin1String(name));
            for (int row = 0; row < list->count(); ++row)
                text += list->item(row)->isSelected() ? QLatin1Char('+') : QLatin1Char('-');
        }
        return text;
    }

private slots:
    void init()
    {
        startAsMaker();
        makeWindow();
        window->open(writeSmallRecording(folder->path(), QStringLiteral("rec")));
        for (const char *channel : {"IL1", "UL1"})
            window->addPlotter({QLatin1String(channel)});
        window->resize(1000, 800);
        showActive();
    }

    void cleanup() { closeWindow(); }

    void tabFollowsTheReadingOrder_data()
    {
        QTest::addColumn<QString>("dialog"); // none for the main window
        QTest::addColumn<QString>("stops");
        QTest::newRow("main window")
            << QString()
            << "checkBox_showAngles comboBox_mainReference comboBox_primSec groupBox "
               "checkBox_convertToLocal listWidget listWidget2 scrollWidget "
               "[Analog Plotter] [Graph 1 Plotter] [Graph 2 Plotter] [Digital Plotter]";
        QTest::newRow("saving")
            << "SaveDialog"
            << "lineEdit_FilePath toolButton_Browse horizontalSlider_StartPoint "
               "horizontalSlider_EndPoint pushButton_Save pushButton_Cancel";
        QTest::newRow("ratios") << "CTVTDialog"
                                << "[400] [1] [20000] [100] pushButton_Set pushButton_Close";
        QTest::newRow("own plot") << "AddPlotterDialog"
                                  << "lineEdit_graphName listWidget_unSelected pushButton_add "
                                     "pushButton_remove listWidget_Selected [OK] [Cancel]";
        QTest::newRow("phasors") << "VectorDialog"
                                 << "comboBox_reference toolButton [IL1] [UL1] "
                                    "toolButton [IL1] [UL1]";
    }

    void tabFollowsTheReadingOrder()
    {
        QFETCH(QString, dialog);
        QWidget *shown = activated(dialog);
        QVERIFY(shown);
        if (dialog == QLatin1String("VectorDialog")) {
            // A second panel; then new channels in both.
            QTest::mouseClick(shown->findChild<QToolButton *>(
                                  QStringLiteral("toolButton"), Qt::FindDirectChildrenOnly),
                Qt::LeftButton);
            window->open(path("rec.cfg"));
            QCoreApplication::processEvents();
        }
        QTEST(namesOfStops(*shown), "stops");
    }

    void tabOrderOutlivesReloadAndRemoval()
    {
        window->open(path("rec.cfg"));
        for (int i = 0; i < 2; ++i)
            window->addPlotter({QStringLiteral("IL1")});
        window->removePlotter();
        window->addPlotter({QStringLiteral("UL1")});
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QCOMPARE(namesOfStops(*window),
            QStringLiteral(
                "checkBox_showAngles comboBox_mainReference comboBox_primSec groupBox "
                "checkBox_convertToLocal listWidget listWidget2 scrollWidget "
                "[Analog Plotter] [Graph 1 Plotter] [Graph 3 Plotter] [Digital Plotter]"));
    }

    // A plot that is reached comes into view; the column itself and the lists move nothing.
    void tabScrollsTheColumnToPlotsAlone()
    {
        window->open(path("rec.cfg"));
        for (int i = 0; i < 4; ++i)
            window->addPlotter({QStringLiteral("IL1")});
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QCoreApplication::processEvents();
        QScrollBar *bar = child<QScrollArea>("scrollArea")->verticalScrollBar();
        QVERIFY(bar->maximum() > 500);
        auto *lowest = plotNamed(QStringLiteral("Digital"));
        for (int twice = 0; twice < 2; ++twice) {
            plotNamed(QStringLiteral("Analog"))->setFocus();
            bar->setValue(0);
            for (const char *reached : {"scrollWidget", "listWidget2", "listWidget"}) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
                QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(reached));
                QCOMPARE(bar->value(), 0);
            }
            for (int i = 0; i < 4; ++i)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(bar->value(), 0);
            for (int i = 0; i < 4 && !lowest->hasFocus(); ++i)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(bar->value() > 500);
        }
    }

    // A cursor has a name in each plot.
    void tabReachesTheNamesOfCursorsAfterTheirPlot()
    {
        window->findChild<Plotter *>()->addCursorAt(10);
        window->findChild<Plotter *>()->addCursorAt(20);
        for (int i = 0; i < 2; ++i)
            window->addPlotter({QStringLiteral("IL1")});
        window->findChild<Plotter *>()->addCursorAt(30);
        QVERIFY(reactivated());
        QStringList names;
        for (const QWidget *stop : tabStops(*window)) {
            const bool isLabel = stop->objectName() == QLatin1String("lineLabel");
            if (isLabel || stop->inherits("Plotter"))
                names.append(isLabel ? stop->property("text").toString() : nameOf(stop));
        }
        QCOMPARE(names.join(QLatin1Char(' ')),
            QStringLiteral("[Analog Plotter] P1 P2 P3 [Graph 1 Plotter] P1 P2 P3 "
                           "[Graph 2 Plotter] P1 P2 P3 [Graph 3 Plotter] P1 P2 P3 "
                           "[Graph 4 Plotter] P1 P2 P3 [Digital Plotter] P1 P2 P3"));
    }

    // Where the keys go

    void keysGoToTheAnalogListAtTheStart()
    {
        window = std::make_unique<MainWindow>();
        showActive();
        QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("listWidget"));
        // Another window comes and goes.
        for (int i = 0; i < 2; ++i) {
            auto *phasors = activated(QStringLiteral("VectorDialog"));
            QVERIFY(phasors);
            phasors->close();
            QVERIFY(reactivated());
            QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("listWidget"));
        }
    }

    void keysGoToTheFirstPlotOfARecordingOpenedBeforeTheWindowIsShown()
    {
        window = std::make_unique<MainWindow>();
        window->open(path("rec.cfg"));
        showActive();
        QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("[Analog Plotter]"));
    }

    void keysAfterOpeningChangeNothingMeasured_data()
    {
        QTest::addColumn<QString>("before"); // has the focus before; empty for the second plot
        for (const char *name : {"checkBox_showAngles", "comboBox_mainReference",
                 "comboBox_primSec", "listWidget", "listWidget2", ""})
            QTest::newRow(*name ? name : "plot") << QString::fromLatin1(name);
    }

    void keysAfterOpeningChangeNothingMeasured()
    {
        QFETCH(QString, before);
        for (int i = 0; i < 2; ++i) {
            window->addPlotter({QStringLiteral("IL1")});
            QWidget *widget = before.isEmpty() ? window->findChildren<Plotter *>().last()
                                               : window->findChild<QWidget *>(before);
            widget->setFocus();
            QVERIFY(widget->hasFocus());
            openByKeys(path("rec.cfg"));
            QVERIFY(reactivated());
            QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("[Analog Plotter]"));
            const QString shown = measured();
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Space, Qt::Key_Up, Qt::Key_Right,
                     Qt::Key_Left, Qt::Key_PageDown, Qt::Key_S})
                QTest::keyClick(window->windowHandle(), key);
            QCOMPARE(measured(), shown);
        }
    }

    void keysAfterAFailedLoadChangeNothing()
    {
        BoxReader boxes;
        const QString broken = path("broken.cfg");
        QVERIFY(writeTextFile(broken, smallConfiguration())); // without data
        for (int i = 0; i < 2; ++i) {
            for (const char *name : {"comboBox_primSec", "checkBox_showAngles"}) {
                window->findChild<QWidget *>(QLatin1String(name))->setFocus();
                window->open(broken);
                QVERIFY(!window->recording());
                QVERIFY(reactivated());
                QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("listWidget"));
                window->open(path("rec.cfg"));
                QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("[Analog Plotter]"));
            }
        }
        QCOMPARE(boxes.count(), 4);
    }

    void keysOfARemovedPlotGoToTheOneBefore()
    {
        window->open(writeSmallRecording(folder->path(), QStringLiteral("analog"),
            smallConfiguration().replace("3,2A,1D", "2,2A,0D")));
        for (int i = 0; i < 2; ++i) {
            for (int k = 0; k < 2; ++k)
                window->addPlotter({QStringLiteral("IL1")});
            QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("[Analog Plotter]"));
            plotNamed(QStringLiteral("Graph %1").arg(2 * i + 2))->setFocus();
            window->removePlotter();
            QCOMPARE(nameOf(QApplication::focusWidget()),
                QStringLiteral("[Graph %1 Plotter]").arg(2 * i + 1));
            window->removePlotter();
            QCOMPARE(nameOf(QApplication::focusWidget()), QStringLiteral("[Analog Plotter]"));
        }
    }

    // Neither a plot added nor another one removed takes them.
    void keysStayWhereTheyAreOtherwise()
    {
        auto *list = window->findChild<QWidget *>(QStringLiteral("listWidget"));
        list->setFocus();
        window->addPlotter({QStringLiteral("IL1")});
        QVERIFY(list->hasFocus());
        window->removePlotter();
        QVERIFY(list->hasFocus());
    }

    void shiftF10OpensTheContextMenu_data()
    {
        QTest::addColumn<QString>("dialog"); // none for the main window
        QTest::addColumn<QString>("stop"); // has the focus
        QTest::addColumn<QString>("entry"); // the first of the menu
        QTest::newRow("plot") << QString() << "[Graph 1 Plotter]"
                              << "&Earlier";
        QTest::newRow("name of a cursor") << QString() << "lineLabel"
                                          << "Remove Cursor";
        QTest::newRow("phasors") << "VectorDialog"
                                 << "[IL1]"
                                 << "Measurements...";
        QTest::newRow("field") << "SaveDialog"
                               << "lineEdit_FilePath"
                               << "&Undo\tCtrl+Z";
    }

    void shiftF10OpensTheContextMenu()
    {
        QFETCH(QString, dialog);
        QFETCH(QString, stop);
        window->findChild<Plotter *>()->addCursorAt(10);
        QWidget *shown = activated(dialog);
        QVERIFY(shown);
        const QList<QWidget *> stops = tabStops(*shown);
        const auto found = std::find_if(stops.cbegin(), stops.cend(),
            [&](const QWidget *widget) { return nameOf(widget) == stop; });
        QVERIFY(found != stops.cend());
        QWidget *widget = *found;
        widget->setFocus();
        for (int i = 0; i < 2; ++i) {
            QTest::keyClick(widget, Qt::Key_F10); // the key of menu bars
            QVERIFY(!QApplication::activePopupWidget());
            QTest::keyClick(widget, Qt::Key_F10, Qt::ShiftModifier);
            QWidget *menu = QApplication::activePopupWidget();
            QVERIFY(menu);
            QTEST(menu->actions().constFirst()->text(), "entry");
            QTest::keyPress(menu, Qt::Key_Escape); // it is gone before a release
            QVERIFY(!QApplication::activePopupWidget());
            QCOMPARE(shown->focusWidget(), widget);
        }
    }

    void focusIsSeen_data() { tabFollowsTheReadingOrder_data(); }
    void focusIsSeen()
    {
        QFETCH(QString, dialog);
        QWidget *shown = activated(dialog);
        QVERIFY(shown);
        for (QWidget *stop : tabStops(*shown)) {
            if (stop->objectName() == QLatin1String("toolButton_Browse"))
                continue; // grows lighter by its own style sheet
            window->findChild<QScrollArea *>(QStringLiteral("scrollArea"))
                ->ensureWidgetVisible(stop);
            const QRect place(stop->mapTo(shown, QPoint()), stop->size());
            stop->setFocus(Qt::TabFocusReason);
            QCoreApplication::processEvents();
            const QImage with = shown->grab(place).toImage();
            stop->clearFocus();
            QCoreApplication::processEvents();
            const QImage without = shown->grab(place).toImage();
            const int seen = differentPixels(with, without, 2);
            QVERIFY2(seen >= 80, qPrintable(nameOf(stop) + QStringLiteral(": %1").arg(seen)));
        }
    }
};

QTEST_MAIN(TestFocus)
#include "tst_focus.moc"
