// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QScrollArea>

// A scroll area that asks for all the room its contents need, so that no scroll bar shows as long
// as the screen is large enough: at most four fifths of it.
class FittingScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit FittingScrollArea(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    QSize fitted(const QSize &contents) const;
};
