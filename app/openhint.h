// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

// Says in an area without plots how to open a recording. It covers the area, takes no mouse, and
// lies beside the plot column, so that no picture of that shows it.
class OpenHint : public QLabel {
    Q_OBJECT

public:
    explicit OpenHint(QWidget *area);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
};
