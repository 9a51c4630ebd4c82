// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVector>

class AnalogChannel;

// What a scaled value is multiplied by before it is shown: to the primary value (mode 0), to the
// secondary value (1), to a fraction of the channel's rating (2, by its P/S flag); 1 otherwise.
double valueFactor(const AnalogChannel &channel, int valueMode);

// Whether a channel recorded on the side of a mode, primary (0) or secondary (1), shows other
// values there than the file's, as it does once its ratings were set.
bool isMultiplied(const AnalogChannel &channel, int valueMode);

// The angle traces of a spectrum. fullTurnDegrees and fullTurnRadians bound their values.
constexpr double fullTurnDegrees = 360;
constexpr double fullTurnRadians = 6.2831852;

// An angle (radians) in degrees from 0 to 360.
double angleDegrees(double radians);

// The angle of a channel ahead of a reference, both in radians, from 0 to a full turn in radians.
double angleAhead(double channel, double reference);

// The angles of all samples: in degrees without a reference, else in radians ahead of it.
QVector<float> angleTrace(const QVector<float> &channel, const QVector<float> *reference);
