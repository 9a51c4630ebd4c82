// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class SideWindows;

// While it lives, notices when the user wants to wait no longer: presses Escape in the window, in
// one beside it or in the splash, or clicks on the splash. The windows beside it stay open, the
// others get these events as ever.
class CancelWatch : public QObject {
    Q_OBJECT

public:
    CancelWatch(const QWidget &window, const SideWindows &sideWindows);

    bool isCancelled() const;

signals:
    void escaped(); // by Escape alone

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QWidget &m_window;
    QPointer<const SideWindows> m_sideWindows; // they go with the window, perhaps meanwhile
    bool m_isCancelled = false;
};
