// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "addplotterdialog.h"
#include "recordingbuilder.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <algorithm>

// A recording of 100 samples, 1 ms apart, with the analog channels named and digital ones that are
// 1 from sample 50 on, but for those whose names end with "0".
inline QString writeRecording(const QString &folder, const QStringList &analog,
    const QStringList &digital, const QByteArray &flag = "P")
{
    ConfigurationText text;
    text.station = "Harju,J07,1999";
    for (const QString &name : analog)
        text.addAnalog(name.toLatin1() + ",A,line,A,1,0,0,-99,99,400,5," + flag);
    for (const QString &name : digital)
        text.addDigital(name.toLatin1());
    text.rates = QByteArrayList{"1000,100"};
    text.trigger = "15/03/2024,10:00:00.050000";
    const QByteArray data = dataLines(100, 1000, [&](int i) {
        QByteArrayList values;
        for (int k = 1; k <= analog.size(); ++k)
            values += QByteArray::number((i % 20 - 10) * k);
        for (const QString &name : digital)
            values += i >= 50 && !name.endsWith(QLatin1Char('0')) ? "1" : "0";
        return values;
    });
    return writePair(folder + QStringLiteral("/recording"), text.text(), data);
}

inline QStringList texts(const QListWidget *list)
{
    QStringList result;
    for (int row = 0; row < list->count(); ++row)
        result.append(list->item(row)->text());
    return result;
}

inline QStringList texts(const QComboBox *combo)
{
    QStringList result;
    for (int i = 0; i < combo->count(); ++i)
        result.append(combo->itemText(i));
    return result;
}

// For tests of the plots in a window of 1200 x 900.
class PlotsWindow : public WindowFixture {
protected:
    void openWindow() { WindowFixture::openWindow(1200, 900); }
    void open(const QStringList &analog, const QStringList &digital, const QByteArray &flag = "P")
    {
        window->open(writeRecording(folder->path(), analog, digital, flag));
        QVERIFY(window->recording());
    }
    void openUsual()
    {
        open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {QStringLiteral("Trip")});
    }
    // In the order in which they stand, the first analog plot first.
    QList<Plotter *> plots() const
    {
        QList<Plotter *> found = window->findChildren<Plotter *>();
        std::sort(found.begin(), found.end(),
            [](const Plotter *a, const Plotter *b) { return a->y() < b->y(); });
        return found;
    }
    Plotter *plot(const QString &name) const { return plotNamed(name); }
    Plotter *analog() const { return plot(QStringLiteral("Analog")); }
    Plotter *digital() const { return plot(QStringLiteral("Digital")); }
    // Composes a plot through the dialog; without channels, accepts an empty choice.
    void compose(
        const QStringList &channels, const QString &name = QString(), bool accepted = true);
    // Of all plots; not a number where they are not in step.
    QPair<double, double> times() const
    {
        QPair<double, double> shown(analog()->view().minX, analog()->view().maxX);
        for (const Plotter *each : plots()) {
            if (each->view().minX != shown.first || each->view().maxX != shown.second)
                shown.first = qQNaN();
        }
        return shown;
    }
    QListWidget *list(const char *name) const { return child<QListWidget>(name); }
    void click(QListWidget *widget, int row)
    {
        const QRect rect = widget->visualItemRect(widget->item(row));
        QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, rect.center());
    }
    QComboBox *combo(const char *name) const { return child<QComboBox>(name); }

    QStringList offered;
};

inline void PlotsWindow::compose(const QStringList &channels, const QString &name, bool accepted)
{
    QTimer::singleShot(0, window.get(), [&] {
        auto *dialog = qobject_cast<AddPlotterDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        auto *left = dialog->findChild<QListWidget *>(QStringLiteral("listWidget_unSelected"));
        offered = texts(left);
        for (const QString &channel : channels) {
            left->clearSelection();
            for (QListWidgetItem *item : left->findItems(channel, Qt::MatchExactly))
                item->setSelected(true);
            dialog->findChild<QPushButton *>(QStringLiteral("pushButton_add"))->click();
        }
        dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_graphName"))->setText(name);
        accepted ? dialog->accept() : dialog->reject();
    });
    action("&Add Plotter")->trigger();
}
