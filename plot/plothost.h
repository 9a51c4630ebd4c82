// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtPlugin>

class CFGProperties;
class Plotter;
class QMenu;
class QPoint;
class QScrollBar;

// What a plot needs of the window that holds it. The window implements it; a plot finds it with
// qobject_cast, which gives null for any other object. Every plot survives a null host.
class PlotHost {
public:
    virtual ~PlotHost() = default;

    // The recording that the plots show, null while none is loaded.
    virtual CFGProperties *recording() const = 0;

    // The horizontal scroll bar shared by all plots, null while no plots exist. One unit is one
    // interval of the time grid.
    virtual QScrollBar *horizontalScrollBar() const = 0;

    // 0 primary, 1 secondary, 2 per unit.
    virtual int valueMode() const = 0;

    // The choice in the reference combo box: 0 none, otherwise the 1-based analog channel number.
    virtual int referenceIndex() const = 0;

    // Whether a spectrum trace also draws its angle.
    virtual bool showsAngles() const = 0;

    // Asks the windows that follow the cursors, such as the phasor dialog, to draw again; cheap
    // while they are hidden.
    virtual void refreshVectors() = 0;

    // The pointer has come to a point of a plot or, with null, has left the plot.
    virtual void pointAt(const Plotter * /*plot*/, const QPoint & /*point*/) { }

    // Adds what the window offers at a point of a plot to the plot's context menu. The cursor is
    // that of the label at the point, -1 where none is there.
    virtual void fillPlotMenu(
        QMenu & /*menu*/, Plotter & /*plot*/, const QPoint & /*point*/, int /*cursor*/)
    {
    }
};

Q_DECLARE_INTERFACE(PlotHost, "wavorin.PlotHost/1.0")
