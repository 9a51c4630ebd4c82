// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QString>

// A time of day as configuration files have it, to the millisecond.
inline const QString timeOfDayFormat = QStringLiteral("hh:mm:ss.zzz");

// Date and time of day are read apart and joined as UTC, so that no hour falls into the gap that
// daylight saving leaves in local time. Invalid where one of them does not read.
QDateTime joinedAsUtc(const QString &date, const QString &dateFormat, const QString &time);
