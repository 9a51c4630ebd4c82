// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "savemarker.h"

#include "plotgeometry.h"
#include "plotline.h"

void SaveMarker::set(double newTime)
{
    time = PlotGeometry::truncated(newTime);
    isSet = true;
}

void SaveMarker::clear()
{
    time = 0;
    isSet = false;
    line->hide();
}

void SaveMarker::copy(const SaveMarker &other)
{
    time = other.time;
    isSet = other.isSet;
}

void SaveMarker::place(const PlotGeometry &geometry) const
{
    const int x = PlotGeometry::pixel(geometry.traceX(time));
    line->place(x, geometry);
    line->setVisible(isSet && x <= geometry.plotWidth() + 99);
}
