// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>

#include <optional>

class QWidget;

// The drag of a plot's view with the middle button.
class ViewDrag {
public:
    explicit ViewDrag(QWidget *plot) : m_plot(plot) { }

    void begin(const QPoint &point);
    bool isActive() const { return m_last.has_value(); }
    // The way, in pixels, since the latest move.
    QPoint moveTo(const QPoint &point);
    // Whether there was one.
    bool end();

private:
    QWidget *m_plot;
    std::optional<QPoint> m_last;
};
