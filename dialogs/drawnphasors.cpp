// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "drawnphasors.h"

#include "channelnames.h"
#include "measurements.h"
#include "measurementtables.h"
#include "numbers.h"
#include "phasordiagram.h"
#include "plotsearch.h"
#include "vectorwidget.h"

#include <QRect>
#include <QStringList>

int phasorAtLine(const DrawnPhasors &phasors, const QPoint &point)
{
    constexpr double reach = 4; // pixels
    double nearest = reach;
    int found = -1;
    for (int i = 0; i < phasors.size(); ++i) {
        const double distance = distanceToLine(point, QPointF(), phasors.at(i).end);
        if (!phasors.at(i).end.isNull() && distance < nearest) {
            nearest = distance;
            found = i;
        }
    }
    return found;
}

int phasorAtText(const DrawnPhasors &phasors, const QPoint &point, int pixmapWidth)
{
    constexpr int height = 15; // of a row of texts
    constexpr int descent = 3; // of a text below its base line
    const int width = magnitudeTextWidth(pixmapWidth);
    for (int i = 0; i < phasors.size(); ++i) {
        const QPoint base = magnitudeTextPosition(i, pixmapWidth);
        if (QRect(base.x(), base.y() + descent - height, width, height).contains(point))
            return i;
    }
    return -1;
}

QString tipOf(const DrawnPhasor &drawn)
{
    QString magnitude = generalText(static_cast<double>(drawn.phasor.magnitude));
    if (!drawn.unit.isEmpty())
        magnitude += QLatin1Char(' ') + drawn.unit;
    QStringList lines{
        VectorWidget::tr("%1 at P%2").arg(shownName(drawn.name), QString::number(drawn.cursor + 1)),
        VectorWidget::tr("RMS: %1").arg(magnitude)};
    const bool hasReference = !drawn.referenceName.isEmpty();
    const Phasor right{0, 1}; // what points to the right without a reference
    const auto angle = leadDegrees(
        complexRms(drawn.phasor, 1), complexRms(hasReference ? drawn.reference : right, 1));
    if (angle) {
        const QString degrees = angleText(*angle);
        lines.append(hasReference
                ? VectorWidget::tr("Angle to %1: %2°").arg(shownName(drawn.referenceName), degrees)
                : VectorWidget::tr("Angle: %1°").arg(degrees));
    }
    return lines.join(QLatin1Char('\n'));
}
