// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "measurements.h"
#include "texttable.h"
#include "tracesummary.h"

#include <QList>

#include <array>
#include <optional>

class AnalogChannel;
class DigitalChannel;

// What can be told of a channel at a cursor. Spectra have but the first and the angle, digital
// channels the first alone.
enum class Quantity { Value, FundamentalRms, Angle, TrueRms, Peak };

// A channel as it is measured.
struct MeasuredChannel {
    QString name;
    QString unit; // with the side
    const AnalogChannel *analog = nullptr; // null for a digital channel
    const DigitalChannel *digital = nullptr; // null for an analog one
    bool isSpectrum = false; // the value is the RMS of the fundamental
    double factor = 1; // of the value mode
    TraceSummary trace; // of the values, before the factor; needed for extremes alone

    // As many as there are samples.
    const QVector<float> &values() const;
    // The phasor under the factor; nothing without phasors or outside the recording.
    std::optional<std::complex<double>> phasorAt(int sample) const;
    QList<Quantity> quantities(const QList<Quantity> &wanted) const; // of these, what it has
};

struct MeasuredCursor {
    QString name;
    double time = 0; // ms
    int sample = -1; // the nearest; -1 outside the recording
};

// The unit of a channel's values in the file, with the side.
QString recordedUnit(const QString &unit, const AnalogChannel &channel);
// That of what is shown of it in a value mode (0 primary, 1 secondary, 2 per unit), with the side
// or, where the file's values are multiplied on their own side, with what they are there.
QString shownUnit(const QString &unit, const AnalogChannel &channel, int valueMode);
// Degrees above -180 and up to 180, however they are rounded.
QString angleText(double angle);

// What is measured, and against what.
struct Measured {
    QVector<MeasuredCursor> cursors;
    const AnalogChannel *reference = nullptr; // of the angles, with its factor; null for none
    double referenceFactor = 1;
    int samplesPerCycle = 0;
    double lineFrequency = 0; // Hz

    std::optional<double> at(const MeasuredChannel &channel, Quantity quantity, int sample) const;
    // Of a phasor at a sample, against the reference; in degrees.
    std::optional<double> angle(std::complex<double> phasor, int sample) const;
};

// A column for each cursor, and for each channel a row for each of the quantities.
TextTable cursorTable(const Measured &measured, const QVector<MeasuredChannel> &channels,
    const QList<Quantity> &quantities);

// The same at two cursors, by their positions, with the differences from the first to the second,
// of their times, too, and the extremes of the samples from one to the other, both inclusive. An
// angle's difference is that of the shorter way.
TextTable differenceTable(const Measured &measured, const QVector<MeasuredChannel> &channels,
    const QList<Quantity> &quantities, int from, int to);

// The symmetrical components of three analog channels at each cursor.
TextTable sequenceTable(const Measured &measured, const std::array<MeasuredChannel, 3> &phases);

// The harmonics of the cycle around a cursor under the channel's factor, and these as a table.
Harmonics measuredHarmonics(
    const Measured &measured, const MeasuredChannel &channel, const MeasuredCursor &cursor);
TextTable harmonicTable(
    const Harmonics &harmonics, const MeasuredChannel &channel, const MeasuredCursor &cursor);
