// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "phasorlookup.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

// The arithmetic of one phasor diagram: a grid of 10 by 10 cells that reaches from -axisMaximum()
// to +axisMaximum() in both directions, 30 pixels from the left and 20 from the top of its label.
// Lines and texts are numbered 0 to 10, from the left and from the top. Pixel coordinates are
// truncated toward zero; one that is not a number is 0.
class PhasorDiagram {
public:
    static constexpr int lineCount = 11;

    // extreme is the largest absolute real or imaginary part to be shown; 0 gives an axis without
    // numbers.
    PhasorDiagram(double extreme, const QSize &labelSize);

    int width() const { return m_labelSize.width() - 60; }
    int height() const { return m_labelSize.height() - 60; }
    double axisMaximum() const { return m_maximum; }

    // Distance of grid line k from the first one, the same in both directions.
    int gridLine(int k) const;

    // The axis labels; the rectangles count from the label's left edge and the grid's top edge.
    QString verticalText(int k) const;
    QString horizontalText(int k) const;
    QRect verticalTextRect(int k) const;
    QRect horizontalTextRect(int k) const;

    // The grid's centre in the label.
    QPoint origin() const;

    // End of a phasor's line, from the origin, with y upwards. Angles are in radians.
    QPoint lineEnd(const Phasor &phasor, float referenceAngle) const;

private:
    double offset(int k) const;

    QSize m_labelSize;
    double m_maximum; // largest value of the axes, two significant digits
    float m_scale; // pixels per unit
};

// The room of a magnitude text in a pixmap of that width, three texts a row, and the base point of
// the one with this 0-based number.
int magnitudeTextWidth(int pixmapWidth);
QPoint magnitudeTextPosition(int number, int pixmapWidth);
