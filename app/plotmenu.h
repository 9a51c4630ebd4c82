// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>

#include <functional>
#include <optional>

class Plotter;
class PlotHost;
class QMenu;
class QPoint;

// The outermost cursors of a plot: their numbers (from 1) and times (ms), the earlier one first. Of
// fewer than two there are none, and the numbers are those that entries about them are named with.
struct OuterCursors {
    bool exist = false;
    int first = 1;
    int last = 2;
    double from = 0;
    double to = 0;

    explicit OuterCursors(const Plotter &plot);
};

// Fills the context menu of a plot with what concerns the plots alone: their views, cursors and
// look. It may go once the menu is filled. The host must hold a recording.
class PlotMenu {
    Q_DECLARE_TR_FUNCTIONS(PlotMenu)

public:
    PlotMenu(QMenu &menu, Plotter &plot, const PlotHost &host)
        : m_menu(menu), m_plot(plot), m_host(host)
    {
    }

    void addViews();
    // Cursors at a point of the plot and at times of the recording.
    void addNewCursors(const QPoint &point);
    // The title and, of an analog plot, the colours of its channels.
    void addLook();
    // Moves of a cursor, whose label then has the keys.
    void addMoves(int cursor);

private:
    void add(const QString &text, bool isEnabled, const std::function<void()> &command);
    void addZoomToCursors();
    void addChanges(const QPoint &point);
    void addExtremes(const QPoint &point);
    // An entry that sets a cursor at a time, if there is one and room for a cursor.
    void addCursorAt(const QString &text, const std::optional<double> &time);
    QString nameOf(int channel) const; // of an analog plot
    QString inEntry(const QString &name) const; // as it stands there
    QString inBrackets(const QString &name) const;

    QMenu &m_menu;
    Plotter &m_plot;
    const PlotHost &m_host;
};
