// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "unitplots.h"

#include "analogchannel.h"
#include "cfgproperties.h"
#include "channelnames.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace {

UnitPlot fundamentals(const CFGProperties &recording, UnitPlot::Kind kind, const char *unit)
{
    const QRegularExpression multiple(
        QStringLiteral("^\\s*[numkMG\\x{b5}\\x{3bc}]?%1\\s*$").arg(QLatin1String(unit)));
    UnitPlot plot{kind, {}, {}};
    const int count = recording.analogChannels.size();
    for (int i = 0; i < count; ++i) {
        const AnalogChannel &channel = *recording.analogChannels.at(i);
        if (!channel.fftMagnitudes.isEmpty() && !channel.id.startsWith(QLatin1String("MEAS"))
            && multiple.match(recording.analogUnits.value(i)).hasMatch())
            plot.channels.append(count + i);
    }
    return plot;
}

} // namespace

QString unitPlotName(UnitPlot::Kind kind, const QString &unit)
{
    switch (kind) {
    case UnitPlot::Kind::Currents:
        return QCoreApplication::translate("MainWindow", "Currents FFT");
    case UnitPlot::Kind::Voltages:
        return QCoreApplication::translate("MainWindow", "Voltages FFT");
    case UnitPlot::Kind::Samples:
        break;
    }
    return trimmedName(unit);
}

QVector<UnitPlot> plotsByUnit(const CFGProperties &recording)
{
    QVector<UnitPlot> plots;
    for (int i = 0; i < recording.analogChannels.size(); ++i) {
        const QString unit = trimmedName(recording.analogUnits.value(i));
        auto plot = std::find_if(
            plots.begin(), plots.end(), [&](const UnitPlot &other) { return other.unit == unit; });
        if (plot == plots.end())
            plot = plots.insert(plots.end(), {UnitPlot::Kind::Samples, unit, {}});
        plot->channels.append(i);
    }
    plots.append(fundamentals(recording, UnitPlot::Kind::Currents, "A"));
    plots.append(fundamentals(recording, UnitPlot::Kind::Voltages, "V"));
    plots.erase(std::remove_if(plots.begin(), plots.end(),
                    [](const UnitPlot &plot) { return plot.channels.isEmpty(); }),
        plots.end());
    return plots;
}
