// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analogsource.h"

#include "analogchannel.h"
#include "cfgproperties.h"
#include "channelnames.h"
#include "channelvalues.h"
#include "plothost.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// The largest or smallest of a channel, or of its finite samples where some are not.
double finiteExtreme(float extreme, float ofFiniteSamples)
{
    return static_cast<double>(std::isfinite(extreme) ? extreme : ofFiniteSamples);
}

void widen(ValueExtremes &extremes, double value)
{
    if (std::isfinite(value)) {
        extremes.lowest = std::min(extremes.lowest, value);
        extremes.highest = std::max(extremes.highest, value);
    }
}

} // namespace

AnalogSource::AnalogSource(const PlotHost *host)
    : m_host(host),
      m_recording(host ? host->recording() : nullptr),
      m_valueMode(host ? host->valueMode() : 0)
{
}

double AnalogSource::sampleRate() const
{
    return m_recording ? m_recording->sampleRate : 0;
}

int AnalogSource::firstSpectrum() const
{
    return m_recording ? m_recording->analogChannels.size() : std::numeric_limits<int>::max();
}

QString AnalogSource::nameOf(int number, const QString &channelName) const
{
    return isSpectrum(number) ? channelName + QStringLiteral(" FFT") : channelName;
}

const AnalogChannel *AnalogSource::channel(int number) const
{
    if (!m_recording)
        return nullptr;
    return m_recording->analogChannels.value(
        isSpectrum(number) ? number - firstSpectrum() : number, nullptr);
}

double AnalogSource::factor(int number) const
{
    const AnalogChannel *source = channel(number);
    return source ? valueFactor(*source, m_valueMode) : 1.0;
}

ShownChannel AnalogSource::shown(int number) const
{
    ShownChannel shown;
    const AnalogChannel *source = channel(number);
    if (!source)
        return shown;
    const int row = number % firstSpectrum();
    shown.id = shownName(source->id);
    shown.unit = shownName(m_recording->analogUnits.value(row));
    shown.phase = shownName(m_recording->analogPhases.value(row));
    shown.circuit = shownName(m_recording->analogCircuits.value(row));
    shown.trace = TraceSummary(isSpectrum(number) ? source->fftMagnitudes : source->values);
    return shown;
}

ValueExtremes AnalogSource::prepare(QMap<int, ShownChannel> &channels) const
{
    const bool showsAngles = m_host && m_host->showsAngles();
    const AnalogChannel *reference
        = m_host && m_host->referenceIndex() > 0 ? channel(m_host->referenceIndex() - 1) : nullptr;
    ValueExtremes extremes;
    for (auto it = channels.begin(); it != channels.end(); ++it) {
        const AnalogChannel *source = channel(it.key());
        if (!source)
            continue;
        const double scale = factor(it.key());
        const TraceExtent extent = it->trace.extent(0, it->trace.values().size());
        if (!isSpectrum(it.key())) {
            widen(extremes, finiteExtreme(source->minValue, extent.min) * scale);
            widen(extremes, finiteExtreme(source->maxValue, extent.max) * scale);
            continue;
        }
        widen(extremes, finiteExtreme(source->maxMagnitude, extent.max) * scale);
        it->angle = TraceSummary();
        if (showsAngles) {
            it->angle = TraceSummary(
                angleTrace(source->fftAngles, reference ? &reference->fftAngles : nullptr));
            extremes.angles = reference ? fullTurnRadians : fullTurnDegrees;
            widen(extremes, extremes.angles);
        }
    }
    return extremes;
}
