// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>
#include <QVector>

class CFGProperties;

// Channels that are shown together. Numbers from the count of analog channels on stand for the
// fundamental of channel (number - count).
struct UnitPlot {
    enum class Kind { Samples, Currents, Voltages }; // the two latter: their fundamentals

    Kind kind;
    QString unit; // of the samples
    QList<int> channels; // from 0
};

// One for each unit, in the order in which the recording has them, and where it has phasors one of
// all currents and one of all voltages, in whatever multiple of A and V. Measurements, which other
// lists offer no fundamentals of, have none here either.
QVector<UnitPlot> plotsByUnit(const CFGProperties &recording);

// How such a plot is named, in the present language and letters; the unit as the file has it.
QString unitPlotName(UnitPlot::Kind kind, const QString &unit);
