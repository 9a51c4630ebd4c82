// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "phasorlookup.h"

#include <QPoint>
#include <QString>
#include <QVector>

// What a phasor panel has drawn of one channel at one cursor.
struct DrawnPhasor {
    QString name;
    QString unit; // with the recorded side
    int cursor; // counted from 0
    Phasor phasor;
    QString referenceName; // empty without a reference
    Phasor reference;
    QPoint end; // of its line, from the origin of the diagram, y upwards
};

// Those of a panel in the order of drawing, which is that of the magnitude texts.
using DrawnPhasors = QVector<DrawnPhasor>;

// The one whose line passes nearest to a point, counted as the ends are; -1 where none is near.
int phasorAtLine(const DrawnPhasors &phasors, const QPoint &point);
// The one whose text stands at a point of the magnitudes' pixmap of that width; -1 where none does.
int phasorAtText(const DrawnPhasors &phasors, const QPoint &point, int pixmapWidth);

// Channel and cursor, RMS with unit and recorded side, and the angle to the reference.
QString tipOf(const DrawnPhasor &drawn);
