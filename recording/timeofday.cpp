// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timeofday.h"

QDateTime joinedAsUtc(const QString &date, const QString &dateFormat, const QString &time)
{
    const QTime timeOfDay = QTime::fromString(time, timeOfDayFormat);
    if (!timeOfDay.isValid())
        return QDateTime(); // the toolkit would take it as midnight
    return QDateTime(QDate::fromString(date, dateFormat), timeOfDay, Qt::UTC);
}
