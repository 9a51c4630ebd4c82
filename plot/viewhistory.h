// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "plotview.h"

#include <QMap>
#include <QVector>

class QObject;

// What plots showed before each change of their views, to go back to.
class ViewHistory {
public:
    static constexpr int most = 200; // steps; the oldest ones are given up

    // The views of several plots at one moment.
    using Views = QMap<const QObject *, PlotView>;

    // Nothing where the latest step shows the same.
    void note(const Views &views);
    // Whether a step shows something else than these views.
    bool canGoBack(const Views &now) const;
    // Takes back the steps up to the latest one that shows something else than these views, and
    // gives what it showed. A plot that it does not know keeps its values and follows the others in
    // time. The same views where there is no such step.
    Views goBack(const Views &now);
    // Drops a plot that is about to go.
    void forget(const QObject *plot);

private:
    QVector<Views> m_steps;
};
