// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timeofday.h"

#include "numbers.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace {

constexpr qint64 microsPerMs = 1000;
constexpr qint64 microsPerDay = 86'400'000 * microsPerMs;

} // namespace

QDateTime joinedAsUtc(const QString &date, const QString &format, const QString &time)
{
    const QTime timeOfDay = QTime::fromString(time, timeOfDayFormat);
    if (!timeOfDay.isValid())
        return QDateTime(); // the toolkit would take it as midnight
    return QDateTime(QDate::fromString(date, format), timeOfDay, Qt::UTC);
}

QTime readStart(const QString &startTime)
{
    const QTime start = QTime::fromString(startTime.trimmed(), timeOfDayFormat);
    return start.isValid() ? start : QTime::fromString(startTime.trimmed(), exportedTimeFormat);
}

QString clockText(const QString &startTime, double ms)
{
    return clockText(readStart(startTime), ms);
}

QString clockText(const QTime &start, double ms)
{
    constexpr double year = 366 * 86'400'000.0; // ms
    if (!start.isValid() || !(std::abs(ms) <= year))
        return QString();
    const qint64 micros = start.msecsSinceStartOfDay() * microsPerMs
        + std::llround(ms * static_cast<double>(microsPerMs));
    const qint64 ofDay = (micros % microsPerDay + microsPerDay) % microsPerDay;
    const QTime time = QTime::fromMSecsSinceStartOfDay(static_cast<int>(ofDay / microsPerMs));
    return time.toString(timeOfDayFormat)
        + QStringLiteral("%1").arg(ofDay % microsPerMs, 3, 10, QLatin1Char('0'));
}

std::optional<double> timeFromText(const QString &text, const QString &startTime)
{
    bool isNumber = false;
    const double ms = QLocale::c().toDouble(
        text.trimmed().replace(QLatin1Char(','), QLatin1Char('.')), &isNumber);
    if (isNumber)
        return std::isfinite(ms) ? std::optional<double>(ms) : std::nullopt;

    static const QRegularExpression pattern(
        QStringLiteral("^\\s*(\\d{1,2}:\\d{2}:\\d{2})(?:[.,](\\d{1,6}))?\\s*$"));
    const QRegularExpressionMatch match = pattern.match(text);
    const QTime start = readStart(startTime);
    const QTime second = QTime::fromString(match.captured(1), QStringLiteral("h:mm:ss"));
    if (!start.isValid() || !second.isValid())
        return std::nullopt;
    const qint64 fraction = match.captured(2).leftJustified(6, QLatin1Char('0')).toLongLong();
    const qint64 micros = static_cast<qint64>(start.msecsTo(second)) * microsPerMs + fraction;
    const qint64 nearest
        = micros - std::llround(double(micros) / double(microsPerDay)) * microsPerDay;
    return static_cast<double>(nearest) / static_cast<double>(microsPerMs);
}

QString millisecondsText(double ms)
{
    constexpr double longest = 1e12;
    if (!std::isfinite(ms))
        return QString();
    return std::abs(ms) < longest ? fixedText(ms, 3) : QString::number(ms, 'g', 6);
}
