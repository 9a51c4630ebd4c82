// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "channelvalues.h"

#include "analogchannel.h"

#include <algorithm>

namespace {

// The angle traces use pi with these digits and no more.
constexpr double shortPi = 3.1415926;

} // namespace

double valueFactor(const AnalogChannel &channel, int valueMode)
{
    switch (valueMode) {
    case 0:
        return channel.toPrimary;
    case 1:
        return channel.toSecondary;
    case 2:
        if (channel.ps == QLatin1String("S"))
            return 1 / channel.secondary;
        return channel.ps == QLatin1String("P") ? 1 / channel.primary : 1.0;
    default:
        return 1.0;
    }
}

bool isMultiplied(const AnalogChannel &channel, int valueMode)
{
    const bool isRecordedThere = (valueMode == 0 && channel.ps == QLatin1String("P"))
        || (valueMode == 1 && channel.ps == QLatin1String("S"));
    return isRecordedThere && valueFactor(channel, valueMode) != 1;
}

double angleDegrees(double radians)
{
    const double degrees = radians * (180 / shortPi);
    return degrees < 0 ? degrees + fullTurnDegrees : degrees;
}

double angleAhead(double channel, double reference)
{
    const double difference = angleDegrees(channel) - angleDegrees(reference);
    return (difference < 0 ? difference + fullTurnDegrees : difference) * (shortPi / 180);
}

QVector<float> angleTrace(const QVector<float> &channel, const QVector<float> *reference)
{
    QVector<float> angles(reference ? std::min(channel.size(), reference->size()) : channel.size());
    for (int i = 0; i < angles.size(); ++i) {
        const double angle = static_cast<double>(channel.at(i));
        angles[i] = static_cast<float>(reference
                ? angleAhead(angle, static_cast<double>(reference->at(i)))
                : angleDegrees(angle));
    }
    return angles;
}
