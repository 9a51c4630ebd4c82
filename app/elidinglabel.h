// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

// A label of one line of plain text that ends a text too long for it with an ellipsis.
class ElidingLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override; // room for the ellipsis alone

protected:
    void paintEvent(QPaintEvent *event) override;
};
