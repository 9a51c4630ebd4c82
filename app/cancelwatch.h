// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QWidget;

// While it lives, notices when the user wants to wait no longer: presses Escape in the window or in
// the splash, or clicks on the splash. Both get these events as ever.
class CancelWatch : public QObject {
    Q_OBJECT

public:
    explicit CancelWatch(const QWidget &window);

    bool isCancelled() const;

signals:
    void escaped(); // by Escape alone

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QWidget &m_window;
    bool m_isCancelled = false;
};
