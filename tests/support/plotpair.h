// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "fakeplothost.h"
#include "plotter.h"
#include "plotterdg.h"

#include <QApplication>
#include <QWheelEvent>
#include <QtTest>

#include <memory>

// A plot that never refreshes its picture, for the sake of long sequences of actions. Without
// cursors its view is that of a plot that does.
template <typename Plot> class Unpainted : public Plot {
public:
    using Plot::Plot;
    void refreshPixmap() override { }
};

// Two linked analog plots and a digital one, one over the other in a host of 803 x 301, over a
// recording of 1000 ms unless told otherwise. Without cursors, the time line and the cursors have
// 700 pixels for the 1000 ms, from x = 100 on; the traces have 703. The views are 0 to 1000 ms and
// -12 to 12.
class PlotPair {
public:
    // What both analog channels have sampled, at which times in ms.
    struct Series {
        QVector<double> times;
        QVector<float> values;
    };
    static Series ordinary()
    {
        Series series;
        for (int i = 0; i <= 1000; ++i) {
            series.times.append(i);
            series.values.append(float(i % 21 - 10));
        }
        return series;
    }

    explicit PlotPair(bool isPainted = true, const Series &series = ordinary())
    {
        host.setTimes(series.times);
        host.source->durationMs = 1000;
        host.source->sampleRate = 1000;
        host.addAnalog(QStringLiteral("Ia"), series.values);
        host.addAnalog(QStringLiteral("Ib"), series.values);
        host.addDigital(QStringLiteral("Trip"), QVector<int>(series.times.size(), 1));

        area.resize(803, 301);
        plot = add<Plotter>(QStringLiteral("Analog"), isPainted);
        other = add<Plotter>(QStringLiteral("Graph 1"), isPainted);
        digital = add<plotterDg>(QStringLiteral("Digital"), isPainted);
        plot->setLinkedPlotters({other, digital});
        other->setLinkedPlotters({plot, digital});
        digital->setLinkedPlotters({plot, other});
        plot->raise();
        area.show();
        area.activateWindow();
        (void)QTest::qWaitForWindowActive(&area);
    }

    static void move(
        QWidget *widget, const QPoint &position, Qt::MouseButtons buttons = Qt::NoButton)
    {
        QMouseEvent event(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton,
            buttons, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }

    static void wheel(QWidget *widget, const QPoint &delta)
    {
        const QPoint position(400, 150);
        QWheelEvent event(position, widget->mapToGlobal(position), {}, delta, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
    }

    static void drag(QWidget *widget, const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(widget, Qt::LeftButton, {}, from);
        move(widget, to, Qt::LeftButton);
        QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
    }

    // The labels of the cursors in the order of the cursors.
    static QList<CustomLabel *> lineLabels(const Plotter *plotter)
    {
        return plotter->findChildren<CustomLabel *>(QStringLiteral("lineLabel"));
    }

    FakePlotHost host;
    QWidget area;
    Plotter *plot = nullptr;
    Plotter *other = nullptr;
    plotterDg *digital = nullptr;

private:
    template <typename Plot> Plot *add(const QString &name, bool isPainted)
    {
        Plot *created = isPainted ? new Plot(&area) : new Unpainted<Plot>(&area);
        created->setMainWindow(&host);
        created->setName(name);
        created->resize(803, 301);
        created->addChannel(0);
        created->setupPlot();
        return created;
    }
};
