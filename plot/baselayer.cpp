// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "baselayer.h"

#include "channelnames.h"
#include "digitalruns.h"
#include "labeltext.h"
#include "numbers.h"
#include "screenlines.h"
#include "timeaxis.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPixmap>
#include <QRegion>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QColor gridColor(150, 150, 150);
const QColor rowColor(20, 150, 20);
const QColor bandColor(240, 255, 240);

constexpr int labelGap = 6; // between the plot area and a label beside it
constexpr int bandReach = 5; // of a band above and below its base line

// The room of texts in the left margin, inside the widget's border.
constexpr int marginStart = 4;
constexpr int marginWidth = PlotGeometry::left - labelGap - marginStart;

// The x of a time in view. The last times of a view are mapped to pixels beside the plot area; what
// marks one stands at the area's edge.
int markX(const PlotGeometry &geometry, double time)
{
    return std::min(PlotGeometry::pixel(geometry.traceX(time)), geometry.area().right());
}

bool isInView(const PlotGeometry &geometry, double time)
{
    return time >= geometry.view().minX && time <= geometry.view().maxX;
}

// The time of a grid line. What is left of rounding where a line stands at 0 is no time.
double gridTime(const PlotSettings &view, int line)
{
    const double step = view.spanX() / view.numXTicks;
    const double time = view.minX + line * view.spanX() / view.numXTicks;
    return std::abs(time) < step * 1e-9 ? 0 : time;
}

// A stretch of a digital channel: its line, one pixel high, and the band around it while it is on.
struct Stretch {
    QRect line;
    bool isOn;

    QRect band() const { return line.adjusted(0, -bandReach, 0, bandReach); }
    QRect bandInside() const { return band().adjusted(1, 1, -1, -1); }
};

// The stretches of a digital channel around the base line y, in the order of drawing.
class DigitalRow {
public:
    DigitalRow(const PlotGeometry &geometry, const TimeAxis &axis, const DigitalRuns &runs, int y)
        : m_geometry(geometry), m_axis(axis), m_runs(runs), m_y(y)
    {
        if (runs.count() == 0 || runs.end(runs.count() - 1) >= axis.times().size())
            return;
        if (axis.runs().isEmpty())
            addAll();
        for (const TimeAxis::Run &ascending : axis.runs())
            add(ascending);
    }

    const QVector<Stretch> &stretches() const { return m_stretches; }

private:
    void addAll()
    {
        for (int run = 0; run < m_runs.count(); ++run)
            add(run, m_runs.isOn(run));
    }

    // The stretches that begin in a run of ascending times. Those within one pixel column are drawn
    // as one, on if any of them is; the last one may lead back.
    void add(const TimeAxis::Run &ascending)
    {
        if (!hasColumn(ascending.first))
            return;
        const int last = m_runs.runOf(ascending.last - 1);
        int run = m_runs.runOf(m_axis.firstAtOrAfter(m_geometry.view().minX, ascending) - 1);
        if (m_runs.start(run) < ascending.first)
            ++run;
        for (; run <= last; ++run) {
            const int x = columnOf(m_runs.start(run));
            if (x > m_geometry.area().right())
                run = last;
            bool isOn = m_runs.isOn(run);
            if (run < last && columnOf(m_runs.end(run)) == x) {
                const int entered = m_runs.runOf(columnEnd(x, m_runs.end(run), ascending.last) - 1);
                isOn = isOn || entered > run + 1;
                run = std::max(run, entered - 1);
            }
            add(run, isOn);
        }
    }

    void add(int run, bool isOn)
    {
        if (!hasColumn(m_runs.start(run)) || !hasColumn(m_runs.end(run)))
            return;
        const int from = columnOf(m_runs.start(run));
        const int to = columnOf(m_runs.end(run));
        if (from == to && from == m_drawnX && isOn == m_drawnOn)
            return;
        m_drawnX = from == to ? from : nowhere;
        m_drawnOn = isOn;
        m_stretches.append(
            {QRect(QPoint(std::min(from, to), m_y), QPoint(std::max(from, to), m_y)), isOn});
    }

    double timeOf(int sample) const { return m_axis.times().at(sample); }
    bool hasColumn(int sample) const { return !std::isnan(timeOf(sample)); }
    int columnOf(int sample) const
    {
        return PlotGeometry::pixel(m_geometry.traceX(timeOf(sample)));
    }
    // The first of the samples from one on that stands right of a column; last where none does.
    int columnEnd(int x, int first, int last) const
    {
        const auto times = m_axis.times().cbegin();
        const auto isRight = [this](int column, double time) {
            return column < PlotGeometry::pixel(m_geometry.traceX(time));
        };
        return static_cast<int>(std::upper_bound(times + first, times + last, x, isRight) - times);
    }

    static constexpr int nowhere = std::numeric_limits<int>::min();

    const PlotGeometry &m_geometry;
    const TimeAxis &m_axis;
    const DigitalRuns &m_runs;
    const int m_y;
    int m_drawnX = nowhere; // of the last stretch, where it stood within one pixel column
    bool m_drawnOn = false;
    QVector<Stretch> m_stretches;
};

} // namespace

QRect layerPart(const QSize &plot, const QRect &seen)
{
    // From a whole pixel of the screen, or letters would change with their place in it.
    constexpr int raster = 4;
    const int height = std::min(plot.height(), tallestLayer);
    const int middle = seen.top() + (seen.height() - height) / 2;
    const int top = std::clamp(middle, 0, plot.height() - height) / raster * raster;
    return {0, top, plot.width(), std::min(plot.height() - top, tallestLayer + raster - 1)};
}

void clearLayer(QPixmap &layer, const QSize &pixels, qreal ratio)
{
    constexpr double reserve = 1.25;
    const QSize kept = layer.size().expandedTo(pixels).boundedTo(pixels * reserve);
    if (layer.size() != kept) {
        layer = QPixmap(); // before the next one is made
        layer = QPixmap(pixels);
    }
    layer.setDevicePixelRatio(ratio);
    layer.fill(Qt::transparent);
}

QFont smallFont(const QFont &font)
{
    QFont small(font);
    small.setPixelSize(10);
    return small;
}

void drawTimeGrid(QPainter &painter, const PlotGeometry &geometry)
{
    const QRect area = geometry.area();
    for (int i = 0; i <= geometry.view().numXTicks; ++i) {
        const int x = markX(geometry, gridTime(geometry.view(), i));
        fillLine(painter, {x, area.top(), 1, area.height()}, gridColor);
    }
}

void drawTimeLabels(QPainter &painter, const PlotGeometry &geometry, const QFont &font)
{
    const QFontMetrics metrics(font);
    const int rightmost = geometry.widgetSize().width() - geometry.readoutWidth() - marginStart;
    int free = 0; // x from which on no label stands yet
    painter.setFont(font);
    painter.setPen(Qt::white);
    for (int i = 0; i <= geometry.view().numXTicks; ++i) {
        const double time = gridTime(geometry.view(), i);
        const int x = PlotGeometry::pixel(geometry.traceX(time));
        const QString text = generalText(time);
        QRect box(0, geometry.plotHeight() + labelGap, metrics.horizontalAdvance(text) + 2,
            metrics.height());
        box.moveLeft(std::min(x - box.width() / 2, rightmost - box.width()));
        if (box.left() < free)
            continue;
        painter.drawText(box, Qt::AlignHCenter | Qt::AlignTop, text);
        free = box.right() + labelGap;
    }
}

void drawValueGrid(QPainter &painter, const PlotGeometry &geometry, const QFont &font)
{
    const PlotSettings &view = geometry.view();
    const QRect area = geometry.area();
    const QFont small = smallFont(font);
    const QFontMetrics metrics(small);
    int free = geometry.widgetSize().height(); // y down to which no label stands yet
    painter.setFont(small);
    painter.setPen(Qt::white);
    for (int i = 0; i <= view.numYTicks; ++i) {
        const double value = view.minY + i * view.spanY() / view.numYTicks;
        const int y = PlotGeometry::pixel(geometry.traceY(value));
        fillLine(painter, {area.left(), y, area.width(), 1}, gridColor);

        QRect box(marginStart, 0, marginWidth, metrics.height());
        box.moveTop(y - box.height() / 2);
        if (box.bottom() >= free)
            continue;
        painter.drawText(
            box, Qt::AlignRight | Qt::AlignVCenter, fittingValueText(value, metrics, marginWidth));
        free = box.top();
    }
}

void drawFrame(QPainter &painter, const PlotGeometry &geometry)
{
    fillFrame(painter, geometry.area(), Qt::white);
}

void clipToFrame(QPainter &painter, const PlotGeometry &geometry)
{
    painter.setClipRect(coveredByLines(painter, geometry.area()));
}

QString triggerText(int time)
{
    return QCoreApplication::translate("Plotter", "Trigger: %1 ms").arg(time);
}

QRect triggerTextBox(const PlotGeometry &geometry, const QFont &font, int time)
{
    if (!isInView(geometry, time))
        return {};
    const QRect area = geometry.area();
    const int x = markX(geometry, time);
    const QFontMetrics metrics(font);
    QRect box(x + labelGap, 0, metrics.horizontalAdvance(triggerText(time)) + 2, metrics.height());
    box.moveBottom(area.bottom() - 2);
    if (box.right() > area.right())
        box.moveRight(x - labelGap);
    return box;
}

void drawTriggerMark(QPainter &painter, const PlotGeometry &geometry, const QFont &font, int time,
    const QRegion &bright)
{
    if (!isInView(geometry, time))
        return;
    const QRect area = geometry.area();
    const int x = markX(geometry, time);
    fillDashedLine(painter, {x, area.top(), 1, area.height()}, Qt::white);

    const auto drawText = [&](const QColor &color) {
        painter.setPen(color);
        painter.drawText(triggerTextBox(geometry, font, time), Qt::AlignLeft | Qt::AlignVCenter,
            triggerText(time));
    };
    painter.setFont(font);
    drawText(Qt::white);
    if (bright.isEmpty())
        return;
    painter.setClipRegion(bright);
    drawText(Qt::black);
    painter.setClipping(false);
}

void drawDigitalRow(QPainter &painter, const PlotGeometry &geometry, const TimeAxis &axis,
    const DigitalRuns &runs, int y)
{
    const DigitalRow row(geometry, axis, runs, y);
    for (const Stretch &stretch : row.stretches()) {
        if (stretch.isOn) {
            painter.fillRect(stretch.band().adjusted(0, 0, -1, -1), bandColor);
            fillFrame(painter, stretch.band(), rowColor);
        } else {
            fillLine(painter, stretch.line, rowColor);
        }
    }
}

QRegion digitalBands(const PlotGeometry &geometry, const TimeAxis &axis, const DigitalRuns &runs,
    int y, const QRect &within)
{
    QRegion bands;
    if (within.top() > y + bandReach || within.bottom() < y - bandReach)
        return bands;
    const DigitalRow row(geometry, axis, runs, y);
    for (const Stretch &stretch : row.stretches()) {
        if (stretch.isOn)
            bands += stretch.bandInside() & within;
    }
    return bands;
}

void drawRowLabel(QPainter &painter, const QFont &font, const QString &text, int y)
{
    const QFont small = smallFont(font);
    const QFontMetrics metrics(small);
    QRect box(marginStart, 0, marginWidth, metrics.height());
    box.moveTop(y - box.height() / 2);
    painter.setFont(small);
    painter.setPen(Qt::white);
    painter.drawText(
        box, Qt::AlignRight | Qt::AlignVCenter, fittingName(text, QString(), metrics, marginWidth));
}
