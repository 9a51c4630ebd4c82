// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// A time of day as configuration files have it, to the millisecond.
inline const QString timeOfDayFormat = QStringLiteral("hh:mm:ss.zzz");
// As text exports have it.
inline const QString exportedTimeFormat = QStringLiteral("hh:mm:ss:zzz");
inline const QString dateFormat = QStringLiteral("dd/MM/yyyy");

// Date and time of day are read apart and joined as UTC, so that no hour falls into the gap that
// daylight saving leaves in local time. Invalid where one of them does not read.
QDateTime joinedAsUtc(const QString &date, const QString &format, const QString &time);

// The time of day, to the microsecond, at a time of a recording that starts at startTime (as
// timeOfDayFormat has it): "10:00:00.020500" for 20.5 ms after 10 o'clock. It begins anew at
// midnight. Empty where the start is no time of day or the time lies more than a year away.
QString clockText(const QString &startTime, double ms);
// The same for many times, with the start read once; reading takes longer than all the rest.
QTime readStart(const QString &startTime);
QString clockText(const QTime &start, double ms);

// A time or a difference of times in ms with three decimals; with six digits where that would be
// very long, empty where it is no number.
QString millisecondsText(double ms);

// A time of a recording as a person writes it: a number of ms, with a point or a comma, or the time
// of day, with or without fractions of a second, less than 12 hours from the start.
std::optional<double> timeFromText(const QString &text, const QString &startTime);
