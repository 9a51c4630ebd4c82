// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotsettings.h"
#include "readout.h"
#include "shownchannel.h"

#include <QFont>
#include <QPixmap>
#include <QRect>
#include <QRegion>
#include <QRgb>
#include <QSize>
#include <QVector>

// All that the base layer of a plot is drawn from. The layer is drawn again only when some of it
// has changed: most refreshes reach a plot through the ones linked to it, and change nothing.
// Series are compared by what they hold; those that share their data, as nearly all do, at once.
struct BaseContent {
    struct Trace {
        int channel;
        double factor;
        QRgb color;
        ShownChannel shown;

        bool operator==(const Trace &other) const
        {
            return channel == other.channel && factor == other.factor && color == other.color
                && shown == other.shown;
        }
    };

    PlotSettings view;
    QSize size; // of the plot
    qreal pixelRatio = 0;
    QFont font;
    QString trigger; // text of its mark, which tells its time
    Readout readout;
    int readoutWidth = 0;
    QVector<double> times;
    QVector<Trace> traces;

    bool operator==(const BaseContent &other) const
    {
        return view == other.view && size == other.size && pixelRatio == other.pixelRatio
            && font == other.font && trigger == other.trigger && readout == other.readout
            && readoutWidth == other.readoutWidth && times == other.times && traces == other.traces;
    }
};

// The base layer of a plot, and what it shows.
struct BaseLayer {
    BaseContent content;
    QRect part; // of the plot, which the pixmap covers
    QPixmap pixmap;
    QRegion bright; // what of it white letters would be lost on

    // Whether the pixmap holds some of a row of a digital plot around this y of the plot.
    bool holdsRow(int y) const
    {
        constexpr int reach = 20; // of a row with its name, to both sides, and more
        return y >= part.top() - reach && y <= part.bottom() + reach;
    }
};
