// The time line, the cursors and the save markers of a plot.

#include "plotter.h"

#include "baselayer.h"
#include "labeltext.h"
#include "plothost.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

const QColor markColor(255, 250, 80);
const QColor shadowColor(80, 80, 80);

// From the top of the plot area down to its bottom edge.
QRect lineAt(int x, const PlotGeometry &geometry)
{
    return {QPoint(x, PlotGeometry::top), QPoint(x, geometry.plotHeight())};
}

} // namespace

void Plotter::showTimeLine(int x)
{
    if (zoomStack.isEmpty())
        return;
    const PlotGeometry geometry = geometryOfView();
    timeLineTime = geometry.lineTime(x);
    timeLabel->setText(QStringLiteral("t = ") + generalText(timeLineTime));
    timeLabel->move(x + 15, 45);
    timeLabel->show();
    timeLabel->lower();
    timeLine->setGeometry(lineAt(x, geometry));
    timeLine->show();
}

void Plotter::addCursor(int x, int /*y*/)
{
    if (cursorCount >= maxCursors || zoomStack.isEmpty())
        return;
    const double time = geometryOfView().lineTime(x);
    insertCursor(time);
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter != this && !plotter->zoomStack.isEmpty())
            plotter->insertCursor(time);
    }
}

void Plotter::insertCursor(double time)
{
    if (cursorCount >= maxCursors)
        return;
    ++cursorCount;
    cursorTimes.append(time);
    cursorPixels.append(0);

    cursorLines.append(verticalLine(this, QStringLiteral("cursorLine"),
        QStringLiteral("QFrame{color: #fffa50; border-color: #fffa50;}")));

    auto *label = new CustomLabel(this);
    label->setObjectName(QStringLiteral("lineLabel"));
    label->setStyleSheet(
        QStringLiteral("QLabel{color: #fffa50; background-color: #313034; padding: 0px 2px;}"));
    label->setFont(smallFont(font()));
    label->setCursor(Qt::SizeHorCursor);
    label->setPlotter(this);
    cursorLabels.append(label);
    numberCursors();
    refreshPixmap();
}

void Plotter::numberCursors()
{
    for (int i = 0; i < cursorLabels.size(); ++i) {
        cursorLabels.at(i)->setText(QStringLiteral("P%1").arg(i + 1));
        cursorLabels.at(i)->adjustSize();
    }
}

void Plotter::moveCursor(int cursor, double time)
{
    cursorTimes[cursor] = time;
    skipBaseLayer = true;
    refreshPixmap();
    skipBaseLayer = false;
}

void Plotter::dragCursor(int x)
{
    const int cursor = cursorLabels.indexOf(draggedLabel);
    if (cursor < 0 || zoomStack.isEmpty())
        return;
    const QRect area = geometryOfView().area();
    const double time = geometryOfView().lineTime(
        std::clamp(x, area.left(), std::max(area.left(), area.right())));
    moveCursor(cursor, time);
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter != this && cursor < plotter->cursorTimes.size())
            plotter->moveCursor(cursor, time);
    }
}

void Plotter::removeCursor(int cursor)
{
    if (cursor < 0 || cursor >= cursorCount)
        return;
    --cursorCount;
    lastCursorPairTimes = {};
    cursorTimes.removeAt(cursor);
    cursorPixels.removeAt(cursor);
    delete cursorLines.takeAt(cursor);
    delete cursorLabels.takeAt(cursor);
    numberCursors();
}

// Of this plot and of the linked ones, which have the same.
void Plotter::removeCursors(int first, int last)
{
    const QList<Plotter *> others = linkedPlotters;
    for (int cursor = last - 1; cursor >= first; --cursor) {
        for (Plotter *plotter : others)
            plotter->removeCursor(cursor);
        removeCursor(cursor);
    }
    zoomIn();
}

void Plotter::clearCursors()
{
    draggingTimeLine = false;
    draggedLabel = nullptr;
    while (cursorCount > 0)
        removeCursor(cursorCount - 1);
}

// The time differences of neighbouring cursors.
void Plotter::paintOverlay()
{
    overlayPixmap = QPixmap();
    const PlotGeometry geometry = geometryOfView();
    if (zoomStack.isEmpty() || cursorTimes.size() < 2 || !geometry.isDrawable())
        return;
    overlayPixmap = clearLayer();
    QPainter painter(&overlayPixmap);
    painter.setFont(smallFont(font()));
    const QRect area = geometry.area();
    painter.setClipRect(area.left(), 0, area.width(), height());
    for (int i = 1; i < cursorTimes.size(); ++i) {
        const double from = cursorTimes.at(i - 1);
        const double to = cursorTimes.at(i);
        const double difference = std::abs(to - from);
        lastCursorPairTimes = {from, to, difference};
        const int x1 = PlotGeometry::pixel(geometry.cursorX(from));
        const int x2 = PlotGeometry::pixel(geometry.cursorX(to));
        const QString text = QStringLiteral("dT=") + generalText(difference);
        const int boxLeft = (x1 + x2) / 2 - 50;
        const auto drawMark = [&](const QColor &color, int offset) {
            painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
            painter.drawLine(x1, PlotGeometry::top, x2, PlotGeometry::top);
            painter.drawText(QRect(boxLeft + offset, 40 + offset, 100, 20), Qt::AlignCenter, text);
        };
        drawMark(shadowColor, 1);
        drawMark(markColor, 0);
    }
}

// Sets the lines of the cursors and the save markers to their places in the view.
void Plotter::placeMarks()
{
    if (zoomStack.isEmpty())
        return;
    const PlotGeometry geometry = geometryOfView();
    const QRect area = geometry.area();
    for (int i = 0; i < cursorTimes.size(); ++i) {
        const int x = PlotGeometry::pixel(geometry.cursorX(cursorTimes.at(i)));
        cursorPixels[i] = x;
        const bool isInView = x >= area.left() && x <= area.right();
        cursorLines.at(i)->setGeometry(lineAt(x, geometry));
        cursorLines.at(i)->setVisible(isInView);
        cursorLabels.at(i)->move(x + 3, area.top() + 2);
        cursorLabels.at(i)->setVisible(isInView);
    }
    const auto placeMarker = [&](QFrame *marker, bool isSet, int time) {
        const int x = PlotGeometry::pixel(geometry.traceX(time));
        marker->setGeometry(lineAt(x, geometry));
        marker->setVisible(isSet && x <= geometry.plotWidth() + 99);
    };
    placeMarker(startMarker, startMarkerSet, startMarkerTime);
    placeMarker(endMarker, endMarkerSet, endMarkerTime);
}

void Plotter::setStartPoint(double time)
{
    startMarkerTime = PlotGeometry::truncated(time);
    startMarkerSet = true;
    placeMarks();
}

void Plotter::setEndPoint(double time)
{
    endMarkerTime = PlotGeometry::truncated(time);
    endMarkerSet = true;
    placeMarks();
}

void Plotter::clearSaveMarkers()
{
    startMarkerTime = 0;
    endMarkerTime = 0;
    startMarkerSet = false;
    endMarkerSet = false;
    startMarker->hide();
    endMarker->hide();
}
