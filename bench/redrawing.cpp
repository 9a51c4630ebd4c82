// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Redrawing eight traces of noise at 1600 x 400.

#include "analogchannel.h"
#include "cfgproperties.h"
#include "figures.h"
#include "noisyplot.h"
#include "tracepainter.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int rounds = 51;
constexpr int fullRounds = 3;
constexpr int million = 1000000;

template <typename Draw> void paintTrace(const PlotGeometry &geometry, Draw &&draw)
{
    QPixmap pixmap(geometry.widgetSize());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setClipRect(geometry.area());
    painter.setPen(QPen(Qt::red, 0));
    draw(painter);
}

} // namespace

Ratio redrawingAgainstRedrawing(int samples, int fewerSamples)
{
    const NoisyPlots many(1, samples);
    const NoisyPlots few(1, fewerSamples);
    return timesInTurn(
        rounds, [&] { many.redraw(); }, [&] { few.redraw(); });
}

Ratio redrawingWithAStepBackAgainstWithout()
{
    const NoisyPlots steppingBack(1, million, {1600, 400}, 1);
    const NoisyPlots ascending(1, million);
    return timesInTurn(
        rounds, [&] { steppingBack.redraw(); }, [&] { ascending.redraw(); });
}

Ratio zoomingThirtyPlotsAgainstOne()
{
    constexpr int zooms = 11;
    const NoisyPlots many(30, 20000, {1700, 320});
    const NoisyPlots one(1, 20000, {1700, 320});
    for (const NoisyPlots *plots : {&many, &one}) {
        plots->first().addCursorAt(100);
        plots->first().addCursorAt(300);
    }
    const auto zoom = [](Plotter &plot) {
        plot.customZoomIn();
        plot.customZoomOut();
    };
    return timesInTurn(
        zooms, [&] { zoom(many.first()); }, [&] { zoom(one.first()); });
}

Ratio drawingInFullAgainstThinned()
{
    const NoisyPlots plots(1, million);
    const PlotGeometry geometry = plots.first().geometryOfView();
    const TimeAxis axis(plots.recording().sampleTimes);
    const TraceSummary trace(plots.recording().analogChannels.constFirst()->values);
    return timesInTurn(
        fullRounds,
        [&] {
            paintTrace(geometry, [&](QPainter &painter) {
                TracePainter(painter, geometry, axis).drawAll(trace.values(), 1);
            });
        },
        [&] {
            paintTrace(geometry,
                [&](QPainter &painter) { TracePainter(painter, geometry, axis).draw(trace, 1); });
        });
}

Ratio redrawingAgainstPointing()
{
    const NoisyPlots plots(8, million);
    Plotter &plot = plots.first();
    int x = 0;
    return timesInTurn(
        rounds, [&] { plots.redraw(); },
        [&] {
            const QPointF position(200 + 10 * (++x % 100), 200);
            QMouseEvent move(
                QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(&plot, &move);
            QApplication::processEvents();
        });
}
