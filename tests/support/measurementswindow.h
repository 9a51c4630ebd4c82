// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "elidingcombobox.h"
#include "fakeplothost.h"
#include "measurementsdialog.h"
#include "plotter.h"

#include <QCheckBox>
#include <QPaintEvent>
#include <QTabWidget>
#include <QTableView>
#include <QtTest>

#include <cmath>
#include <memory>

namespace measurementswindow {

// Tells the dialog of the plot's redrawings, as the window does.
class Host : public FakePlotHost {
public:
    void refreshVectors() override
    {
        if (dialog)
            dialog->refresh();
    }
    int valueMode() const override
    {
        ++asked;
        return mode;
    }
    MeasurementsDialog *dialog = nullptr;
    mutable int asked = 0; // for the value mode, as often at each measuring
};

// Of the paint events of a widget, the place painted last.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget *widget) { widget->installEventFilter(this); }
    QRect painted;

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted = static_cast<QPaintEvent *>(event)->rect();
        return false;
    }
};

// Cells are told apart by bars.
inline QStringList lines(const QTableView *view)
{
    QStringList result;
    const QAbstractItemModel *model = view->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        QStringList cells{model->headerData(row, Qt::Vertical).toString()};
        for (int column = 0; column < model->columnCount(); ++column)
            cells.append(model->index(row, column).data().toString());
        result.append(cells.join(QLatin1Char('|')));
    }
    return result;
}

inline QStringList headings(const QTableView *view)
{
    QStringList result;
    for (int column = 0; column < view->model()->columnCount(); ++column)
        result.append(view->model()->headerData(column, Qt::Horizontal).toString());
    return result;
}

inline QStringList texts(const QList<const char *> &expected)
{
    QStringList result;
    for (const char *text : expected)
        result.append(QString::fromUtf8(text));
    return result;
}

} // namespace measurementswindow

// A recording of 101 samples, one each millisecond, with cycles of 20 samples: IL1 counts up from 0
// and is secondary at 400/5, IL2 counts down and is primary, Freq names no side. Their phasors are
// 10 at 30 degrees, 20 at -90, and none.
class MeasurementsWindow : public QObject {
protected:
    void openDialog();
    void closeDialog();

    template <class T> T *child(const char *name) const
    {
        return dialog->findChild<T *>(QLatin1String(name));
    }
    QTableView *view(const char *name) const { return child<QTableView>(name); }
    QStringList atCursors() const { return measurementswindow::lines(view("tableView_cursors")); }
    void tick(const char *box) { QTest::mouseClick(child<QCheckBox>(box), Qt::LeftButton); }
    void turnTo(int page) { child<QTabWidget>("tabWidget")->setCurrentIndex(page); }
    void choose(const char *box, int entry) { child<ElidingComboBox>(box)->setCurrentIndex(entry); }
    int chosen(const char *box) const { return child<ElidingComboBox>(box)->currentIndex(); }

    std::unique_ptr<measurementswindow::Host> host;
    std::unique_ptr<Plotter> plot;
    std::unique_ptr<MeasurementsDialog> dialog;
};

inline void MeasurementsWindow::openDialog()
{
    host = std::make_unique<measurementswindow::Host>();
    QVector<double> times;
    QVector<float> up;
    QVector<float> down;
    for (int i = 0; i <= 100; ++i) {
        times.append(i);
        up.append(static_cast<float>(i));
        down.append(static_cast<float>(-i));
    }
    host->setTimes(times);
    host->source->sampleRate = 1000;
    host->source->lineFrequency = 50;
    host->source->samplesPerCycle = 20;
    AnalogChannel *first = host->addAnalog(QStringLiteral("IL1"), up);
    first->ps = QStringLiteral("S");
    first->toPrimary = 80;
    first->secondary = 5;
    first->fftAngles.fill(static_cast<float>(M_PI / 6), 101);
    first->fftMagnitudes.fill(10, 101);
    AnalogChannel *second = host->addAnalog(QStringLiteral("IL2"), down, QStringLiteral("kA"));
    second->ps = QStringLiteral("P");
    second->toSecondary = 0.5;
    second->primary = 100;
    second->fftAngles.fill(static_cast<float>(-M_PI / 2), 101);
    second->fftMagnitudes.fill(20, 101);
    host->addAnalog(QStringLiteral("Freq"), up, QStringLiteral("Hz"));
    host->addDigital(QStringLiteral("TRIP"), QVector<int>(101, 1));

    plot = std::make_unique<Plotter>(nullptr);
    plot->setMainWindow(host.get());
    plot->setName(QStringLiteral("Analog"));
    plot->resize(900, 400);
    plot->addChannel(0);
    plot->addChannel(1);
    plot->setupPlot();
    plot->addCursorAt(20);
    plot->addCursorAt(50.2);

    dialog = std::make_unique<MeasurementsDialog>();
    dialog->setMainWindow(host.get());
    host->dialog = dialog.get();
    dialog->showForPlotter(plot.get());
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
}

inline void MeasurementsWindow::closeDialog()
{
    host->dialog = nullptr;
    dialog.reset();
    plot.reset();
    host.reset();
}
