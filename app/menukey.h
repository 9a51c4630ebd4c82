// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

// Shift+F10 opens context menus as the Menu key does, which many keyboards lack. Serves the windows
// of the whole application while it exists.
class MenuKey : public QObject {
public:
    explicit MenuKey(QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
