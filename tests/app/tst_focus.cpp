// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "contrast.h"
#include "mainwindow.h"
#include "smallrecording.h"
#include "windowtest.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QToolButton>

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

class TestFocus : public QObject {
    Q_OBJECT

    QTemporaryDir folder;
    std::unique_ptr<MainWindow> window;

    // A dialog by its name, or the main window, shown and with the keys.
    QWidget *activated(const QString &dialog) const
    {
        QWidget *shown = window.get();
        if (!dialog.isEmpty())
            shown = window->findChild<QDialog *>(dialog);
        shown->show();
        return QTest::qWaitForWindowActive(shown) ? shown : nullptr;
    }

private slots:
    void init()
    {
        startAsMaker();
        window = std::make_unique<MainWindow>();
        window->open(writeSmallRecording(folder.path(), QStringLiteral("rec")));
        for (const char *channel : {"IL1", "UL1"})
            window->addPlotter({QLatin1String(channel)});
        window->resize(1000, 800);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

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
            window->open(folder.filePath(QStringLiteral("rec.cfg")));
            QCoreApplication::processEvents();
        }
        QTEST(namesOfStops(*shown), "stops");
    }

    void tabOrderOutlivesReloadAndRemoval()
    {
        window->open(folder.filePath(QStringLiteral("rec.cfg")));
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
