// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "digitalruns.h"
#include "tracesummary.h"

#include <QString>

// A channel as a plot shows it. Analog plots use the traces, digital plots the runs.
struct ShownChannel {
    QString id;
    QString unit;
    QString phase;
    QString circuit;
    TraceSummary trace; // scaled values, or the magnitudes of a spectrum
    TraceSummary angle; // of a spectrum whose angle is drawn, else empty
    DigitalRuns runs;

    void takeNames(const ShownChannel &other)
    {
        id = other.id;
        unit = other.unit;
        phase = other.phase;
        circuit = other.circuit;
    }
    bool operator==(const ShownChannel &other) const
    {
        return id == other.id && unit == other.unit && phase == other.phase
            && circuit == other.circuit && trace.values() == other.trace.values()
            && angle.values() == other.angle.values() && runs == other.runs;
    }
};
