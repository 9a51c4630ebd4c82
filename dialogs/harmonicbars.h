// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "measurements.h"

#include <QWidget>

// The harmonics of a cycle as bars, the highest as high as the room allows. Below each stands its
// order, above it what it is in per cent of the fundamental, in smaller letters where the columns
// are narrow.
class HarmonicBars : public QWidget {
    Q_OBJECT

public:
    explicit HarmonicBars(QWidget *parent = nullptr);

    // Where there is none of them, the text is shown in their place.
    void setHarmonics(const Harmonics &harmonics, const QString &otherwise);

    // The place of the bar of an order, from 1 on; empty where there is none.
    QRect bar(int order) const;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect column(int order) const; // from the row of orders at its foot to the top
    int textHeight() const;

    Harmonics m_harmonics;
    QString m_otherwise;
    double m_largest = 0;
};
