// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QWidget;

// The keyboard as a plot has it: grabbed while the mouse moves over it, and the key held down, as
// far as this plot has seen.
class PlotKeyboard : public QObject {
public:
    explicit PlotKeyboard(QWidget *plot) : m_plot(plot) { }

    bool isGrabbed() const;
    void endGrab(); // where it is grabbed; a key stays held
    void release(); // the grab and the key

    bool isHeld(int key) const { return m_key == key; }
    // Until its release is seen, wherever that goes.
    void hold(int key);
    // Holds the key that another plot has held till now, if any.
    void takeKey(PlotKeyboard &other);
    void releaseKey() { m_key = noKey; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static constexpr int noKey = -1;

    QWidget *m_plot;
    int m_key = noKey;
};
