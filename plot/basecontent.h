// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotsettings.h"
#include "readout.h"

#include <QFont>
#include <QRgb>
#include <QSize>
#include <QVector>

// All that the base layer of a plot is drawn from. The layer is drawn again only when some of it
// has changed: most refreshes reach a plot through the ones linked to it, and change nothing.
struct BaseContent {
    struct Trace {
        int channel;
        double factor;
        QRgb color;
        const void *samples;
        const void *angles;

        bool operator==(const Trace &other) const
        {
            return channel == other.channel && factor == other.factor && color == other.color
                && samples == other.samples && angles == other.angles;
        }
    };

    PlotSettings view;
    QSize size; // of the plot
    QSize layerSize;
    qreal pixelRatio = 0;
    QFont font;
    QString trigger; // text of its mark, which tells its time
    Readout readout;
    QVector<Trace> traces;

    bool operator==(const BaseContent &other) const
    {
        return view == other.view && size == other.size && layerSize == other.layerSize
            && pixelRatio == other.pixelRatio && font == other.font && trigger == other.trigger
            && readout.rows == other.readout.rows && traces == other.traces;
    }
};
