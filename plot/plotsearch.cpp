// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotsearch.h"

#include "analogsource.h"
#include "plotter.h"

#include <QLineF>
#include <QPoint>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace {

constexpr int reach = 3; // pixels to both sides of a point within which a trace passes it

// In pixels; infinite where the trace does not pass.
double distanceToTrace(const QPoint &point, const PlotGeometry &geometry, const TimeAxis &axis,
    const QVector<float> &values, double factor)
{
    const double from = geometry.traceTime(point.x() - reach);
    const double to = geometry.traceTime(point.x() + reach);
    double nearest = std::numeric_limits<double>::infinity();
    for (const TimeAxis::Run &part : axis.around(from, to)) {
        const int last = std::min(part.last, values.size());
        QPointF before(qQNaN(), qQNaN());
        for (int i = part.first; i < last; ++i) {
            const QPointF sample(geometry.traceX(axis.times().at(i)),
                geometry.traceY(static_cast<double>(values.at(i)) * factor));
            if (std::min(before.x(), sample.x()) <= point.x() + reach
                && std::max(before.x(), sample.x()) >= point.x() - reach) {
                const double distance = distanceToLine(point, before, sample);
                if (distance < nearest) // false where one of them is no number
                    nearest = distance;
            }
            before = sample;
        }
    }
    return nearest;
}

// The time nearest to the one given of those changes that lie on the wanted side of it.
std::optional<double> nearestChange(const QVector<DigitalRuns> &channels, const TimeAxis &axis,
    const std::function<bool(double, double)> &isNearer, double time)
{
    std::optional<double> nearest;
    for (const DigitalRuns &runs : channels) {
        for (int run = 1; run < runs.count() && runs.start(run) < axis.times().size(); ++run) {
            const double change = axis.times().at(runs.start(run));
            if (isNearer(time, change) && (!nearest || isNearer(change, *nearest)))
                nearest = change;
        }
    }
    return nearest;
}

} // namespace

double distanceToLine(const QPointF &point, const QPointF &from, const QPointF &to)
{
    const QPointF along = to - from;
    const double length = QPointF::dotProduct(along, along);
    const double share = length > 0 ? QPointF::dotProduct(point - from, along) / length : 0;
    return QLineF(point, from + std::clamp(share, 0.0, 1.0) * along).length();
}

int traceAt(const Plotter &plot, const AnalogSource &source, const QPoint &point)
{
    const PlotGeometry geometry = plot.geometryOfView();
    const QMap<int, ShownChannel> &channels = plot.shownChannels().byNumber();
    int nearest = -1;
    double distance = std::numeric_limits<double>::infinity();
    for (auto it = channels.cbegin(); it != channels.cend(); ++it) {
        const double other = distanceToTrace(
            point, geometry, plot.sampleTimes(), it->trace.values(), source.factor(it.key()));
        if (other < distance) {
            nearest = it.key();
            distance = other;
        }
    }
    return nearest;
}

std::optional<double> timeOfExtreme(
    const Plotter &plot, const AnalogSource &source, int channel, bool isLargest)
{
    const PlotSettings &view = plot.view();
    const TimeAxis &axis = plot.sampleTimes();
    const QVector<float> &values = plot.shownChannels().at(channel).trace.values();
    const double sign = (isLargest ? 1 : -1) * source.factor(channel);
    double highest = -std::numeric_limits<double>::infinity();
    std::optional<double> found;
    for (const TimeAxis::Run &part : axis.around(view.minX, view.maxX)) {
        const int last = std::min(part.last, values.size());
        for (int i = part.first; i < last; ++i) {
            const double time = axis.times().at(i);
            const double height = static_cast<double>(values.at(i)) * sign;
            if (time >= view.minX && time <= view.maxX && std::isfinite(height)
                && height > highest) {
                highest = height;
                found = time;
            }
        }
    }
    return found;
}

int rowAt(const Plotter &plot, const QPoint &point)
{
    const QList<int> numbers = plot.shownChannels().byNumber().keys();
    return numbers.value(plot.geometryOfView().rowAt(point.y(), numbers.size()), -1);
}

QString stateText(const ShownChannel &channel, int sample)
{
    return sample < 0 || channel.runs.count() == 0
        ? channel.id
        : QStringLiteral("%1 = %2").arg(
            channel.id, QString::number(channel.runs.isOn(channel.runs.runOf(sample)) ? 1 : 0));
}

std::optional<double> changeAfter(
    double time, const QVector<DigitalRuns> &channels, const TimeAxis &axis)
{
    return nearestChange(channels, axis, std::less<>(), time);
}

std::optional<double> changeBefore(
    double time, const QVector<DigitalRuns> &channels, const TimeAxis &axis)
{
    return nearestChange(channels, axis, std::greater<>(), time);
}

void stepCursor(Plotter &plot, int cursor, bool isForward)
{
    const TimeAxis &axis = plot.sampleTimes();
    const double now = plot.cursors().at(cursor);
    const std::optional<double> time = isForward ? axis.timeAfter(now) : axis.timeBefore(now);
    if (!time)
        return;
    if (*time < plot.view().minX || *time > plot.view().maxX) {
        plot.changeView([=](PlotView &view) {
            const double half = view.live().spanX() / 2;
            return view.moveTimes(*time - (view.live().minX + half));
        });
    }
    plot.moveCursor(cursor, *time);
    plot.refreshAll();
}
