// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timeofday.h"

#include <cmath>

QDateTime joinedAsUtc(const QString &date, const QString &dateFormat, const QString &time)
{
    const QTime timeOfDay = QTime::fromString(time, timeOfDayFormat);
    if (!timeOfDay.isValid())
        return QDateTime(); // the toolkit would take it as midnight
    return QDateTime(QDate::fromString(date, dateFormat), timeOfDay, Qt::UTC);
}

QString clockText(const QString &startTime, double ms)
{
    constexpr qint64 perMillisecond = 1000;
    constexpr qint64 perDay = 86'400'000 * perMillisecond;
    constexpr double year = 366 * 86'400'000.0; // ms
    const QTime start = QTime::fromString(startTime.trimmed(), timeOfDayFormat);
    if (!start.isValid() || !(std::abs(ms) <= year))
        return QString();
    const qint64 micros = start.msecsSinceStartOfDay() * perMillisecond
        + std::llround(ms * static_cast<double>(perMillisecond));
    const qint64 ofDay = (micros % perDay + perDay) % perDay;
    const QTime time = QTime::fromMSecsSinceStartOfDay(static_cast<int>(ofDay / perMillisecond));
    return time.toString(timeOfDayFormat)
        + QStringLiteral("%1").arg(ofDay % perMillisecond, 3, 10, QLatin1Char('0'));
}

QString millisecondsText(double ms)
{
    constexpr double longest = 1e12;
    if (!std::isfinite(ms))
        return QString();
    return std::abs(ms) < longest ? QString::number(ms, 'f', 3) : QString::number(ms, 'g', 6);
}
