// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "measurementtables.h"

#include "analogchannel.h"
#include "channelvalues.h"
#include "digitalchannel.h"
#include "measurementsdialog.h"
#include "numbers.h"
#include "phasorlookup.h"
#include "timeofday.h"

#include <algorithm>
#include <cmath>

namespace {

const QString degrees = QStringLiteral("°");

QString textOf(Quantity quantity, const std::optional<double> &value)
{
    if (!value)
        return QString();
    return quantity == Quantity::Angle ? angleText(*value) : generalText(*value + 0.0); // no "-0"
}

QString nameOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Value:
        return MeasurementsDialog::tr("Value");
    case Quantity::FundamentalRms:
        return MeasurementsDialog::tr("RMS of fundamental");
    case Quantity::Angle:
        return MeasurementsDialog::tr("Angle");
    case Quantity::TrueRms:
        return MeasurementsDialog::tr("True RMS");
    case Quantity::Peak:
        return MeasurementsDialog::tr("Peak");
    }
    return QString();
}

QStringList namesOf(const MeasuredChannel &channel, Quantity quantity)
{
    return {channel.name, nameOf(quantity), quantity == Quantity::Angle ? degrees : channel.unit};
}

QString headingOf(const MeasuredCursor &cursor)
{
    return QStringLiteral("%1 (%2 ms)").arg(cursor.name, millisecondsText(cursor.time));
}

// The heading of the first column, which is seen in a copy alone, and what the table is of.
QString headingWith(const QString &heading, const QStringList &names)
{
    const QString all = names.join(QLatin1String(", "));
    return all.isEmpty() ? heading : heading + QLatin1String(": ") + all;
}

QString withSide(const QString &unit, const QString &side)
{
    return unit.isEmpty() ? side : QStringLiteral("%1 (%2)").arg(unit, side);
}

std::optional<double> difference(
    Quantity quantity, const std::optional<double> &from, const std::optional<double> &to)
{
    if (!from || !to)
        return std::nullopt;
    return quantity == Quantity::Angle ? wrappedDegrees(*to - *from) : *to - *from;
}

// The first sample of a run, first to last - 1, of whose extent that is true and stays true as the
// run grows.
template <typename Condition>
int firstReaching(const TraceSummary &trace, int first, int last, const Condition &reaches)
{
    int before = first;
    int end = last;
    while (end - before > 1) {
        const int middle = before + (end - before) / 2;
        (reaches(trace.extent(first, middle)) ? end : before) = middle;
    }
    return before;
}

// The smallest and the largest value between two samples, each with the time of its first sample.
QStringList extremeTexts(const MeasuredChannel &channel, int from, int to)
{
    QStringList none{QString(), QString(), QString(), QString()};
    const int first = std::min(from, to);
    const int last = std::max(from, to) + 1;
    if (first < 0 || last > channel.trace.values().size())
        return none;
    const TraceExtent extent = channel.trace.extent(first, last);
    if (extent.isEmpty())
        return none;
    const auto text = [&](float value, int sample) {
        return QStringList{textOf(Quantity::Value, static_cast<double>(value) * channel.factor),
            millisecondsText(channel.analog->times.value(sample))};
    };
    const auto isSmallest = [&](const TraceExtent &part) { return part.min == extent.min; };
    const auto isLargest = [&](const TraceExtent &part) { return part.max == extent.max; };
    const QStringList low = text(extent.min, firstReaching(channel.trace, first, last, isSmallest));
    const QStringList high = text(extent.max, firstReaching(channel.trace, first, last, isLargest));
    return channel.factor < 0 ? high + low : low + high;
}

} // namespace

// The seam of the angles is at its upper end.
QString angleText(double angle)
{
    const QString text = fixedText(angle, 2);
    return text == QLatin1String("-180.00") ? text.mid(1) : text;
}

QString recordedUnit(const QString &unit, const AnalogChannel &channel)
{
    if (channel.ps == QLatin1String("S"))
        return withSide(unit, MeasurementsDialog::tr("secondary"));
    if (channel.ps == QLatin1String("P"))
        return withSide(unit, MeasurementsDialog::tr("primary"));
    return unit;
}

QString shownUnit(const QString &unit, const AnalogChannel &channel, int valueMode)
{
    constexpr int secondaryMode = 1;
    constexpr int perUnitMode = 2;
    const bool hasSides = channel.ps == QLatin1String("P") || channel.ps == QLatin1String("S");
    if (!hasSides)
        return unit;
    if (valueMode == perUnitMode)
        return QStringLiteral("p.u.");
    const bool isOther = isMultiplied(channel, valueMode);
    if (valueMode == secondaryMode)
        return withSide(unit,
            isOther ? MeasurementsDialog::tr("S = file value x rating")
                    : MeasurementsDialog::tr("secondary"));
    return withSide(unit,
        isOther ? MeasurementsDialog::tr("P = file value x rating")
                : MeasurementsDialog::tr("primary"));
}

const QVector<float> &MeasuredChannel::values() const
{
    return isSpectrum ? analog->fftMagnitudes : analog->values;
}

std::optional<std::complex<double>> MeasuredChannel::phasorAt(int sample) const
{
    if (!analog || sample < 0 || sample >= analog->fftMagnitudes.size())
        return std::nullopt;
    return complexRms(phasorOf(*analog, sample), factor);
}

QList<Quantity> MeasuredChannel::quantities(const QList<Quantity> &wanted) const
{
    QList<Quantity> own;
    std::copy_if(wanted.cbegin(), wanted.cend(), std::back_inserter(own), [this](Quantity one) {
        return one == Quantity::Value || (one == Quantity::Angle && analog)
            || (analog && !isSpectrum);
    });
    return own;
}

std::optional<double> Measured::angle(std::complex<double> phasor, int sample) const
{
    const std::complex<double> against
        = reference ? complexRms(phasorOf(*reference, sample), referenceFactor) : 1.0;
    return leadDegrees(phasor, against);
}

std::optional<double> Measured::at(
    const MeasuredChannel &channel, Quantity quantity, int sample) const
{
    if (sample < 0)
        return std::nullopt;
    if (channel.digital) {
        const QVector<int> &states = channel.digital->values;
        return sample < states.size() ? std::optional<double>(states.at(sample)) : std::nullopt;
    }
    if (!channel.analog)
        return std::nullopt;
    const auto scaled = [&](std::optional<double> value) {
        return value ? *value * std::abs(channel.factor) : value;
    };
    const std::optional<std::complex<double>> phasor = channel.phasorAt(sample);
    switch (quantity) {
    case Quantity::Value:
        if (sample >= channel.values().size())
            return std::nullopt;
        return static_cast<double>(channel.values().at(sample)) * channel.factor;
    case Quantity::FundamentalRms:
        return phasor ? scaled(static_cast<double>(phasorOf(*channel.analog, sample).magnitude))
                      : std::nullopt;
    case Quantity::Angle:
        return phasor ? angle(*phasor, sample) : std::nullopt;
    case Quantity::TrueRms:
        return scaled(trueRms(channel.analog->values, sample, samplesPerCycle));
    case Quantity::Peak:
        return scaled(cyclePeak(channel.analog->values, sample, samplesPerCycle));
    }
    return std::nullopt;
}

TextTable cursorTable(const Measured &measured, const QVector<MeasuredChannel> &channels,
    const QList<Quantity> &quantities)
{
    TextTable table;
    table.headings = QStringList{MeasurementsDialog::tr("Channel"),
        MeasurementsDialog::tr("Quantity"), MeasurementsDialog::tr("Unit")};
    table.names = table.headings.size();
    for (const MeasuredCursor &cursor : measured.cursors)
        table.headings.append(headingOf(cursor));
    for (const MeasuredChannel &channel : channels) {
        for (const Quantity quantity : channel.quantities(quantities)) {
            QStringList row = namesOf(channel, quantity);
            for (const MeasuredCursor &cursor : measured.cursors)
                row.append(textOf(quantity, measured.at(channel, quantity, cursor.sample)));
            table.rows.append(row);
        }
    }
    return table;
}

TextTable differenceTable(const Measured &measured, const QVector<MeasuredChannel> &channels,
    const QList<Quantity> &quantities, int from, int to)
{
    const MeasuredCursor first = measured.cursors.value(from);
    const MeasuredCursor second = measured.cursors.value(to);
    TextTable table;
    table.headings = QStringList{MeasurementsDialog::tr("Channel"),
        MeasurementsDialog::tr("Quantity"), MeasurementsDialog::tr("Unit"), first.name, second.name,
        MeasurementsDialog::tr("Difference"), MeasurementsDialog::tr("Smallest"),
        MeasurementsDialog::tr("at (ms)"), MeasurementsDialog::tr("Largest"),
        MeasurementsDialog::tr("at (ms)")};
    table.names = 3;
    if (first.name.isEmpty() || second.name.isEmpty())
        return table;
    const QStringList noExtremes{QString(), QString(), QString(), QString()};
    const QString time = MeasurementsDialog::tr("Time");
    const double elapsed = second.time - first.time;
    table.rows.append(
        QStringList{time, QString(), QStringLiteral("ms"), millisecondsText(first.time),
            millisecondsText(second.time), millisecondsText(elapsed)}
        + noExtremes);
    const std::optional<double> cycles = inCycles(elapsed, measured.lineFrequency);
    table.rows.append(QStringList{time, QString(), MeasurementsDialog::tr("cycles"), QString(),
                          QString(), cycles ? fixedText(*cycles, 3) : QString()}
        + noExtremes);
    for (const MeasuredChannel &channel : channels) {
        for (const Quantity quantity : channel.quantities(quantities)) {
            const auto before = measured.at(channel, quantity, first.sample);
            const auto after = measured.at(channel, quantity, second.sample);
            table.rows.append(namesOf(channel, quantity)
                + QStringList{textOf(quantity, before), textOf(quantity, after),
                    textOf(quantity, difference(quantity, before, after))}
                + (quantity == Quantity::Value && channel.analog
                        ? extremeTexts(channel, first.sample, second.sample)
                        : noExtremes));
        }
    }
    return table;
}

TextTable sequenceTable(const Measured &measured, const std::array<MeasuredChannel, 3> &phases)
{
    TextTable table;
    QStringList channels{phases[0].name, phases[1].name, phases[2].name};
    channels.removeAll(QString());
    table.headings = QStringList{headingWith(MeasurementsDialog::tr("Component"), channels),
        MeasurementsDialog::tr("Quantity"), MeasurementsDialog::tr("Unit")};
    table.names = table.headings.size();
    const bool isOneUnit = phases[0].unit == phases[1].unit && phases[0].unit == phases[2].unit;
    const QString unit = isOneUnit ? phases[0].unit : QString();
    for (const QString &name :
        {MeasurementsDialog::tr("Positive sequence"), MeasurementsDialog::tr("Negative sequence"),
            MeasurementsDialog::tr("Zero sequence")}) {
        table.rows.append({name, MeasurementsDialog::tr("RMS"), unit});
        table.rows.append({name, nameOf(Quantity::Angle), degrees});
    }
    for (const MeasuredCursor &cursor : measured.cursors) {
        table.headings.append(headingOf(cursor));
        const auto first = phases[0].phasorAt(cursor.sample);
        const auto second = phases[1].phasorAt(cursor.sample);
        const auto last = phases[2].phasorAt(cursor.sample);
        if (!first || !second || !last) {
            for (QStringList &row : table.rows)
                row.append(QString());
            continue;
        }
        const SequenceComponents components = sequenceComponents({*first, *second, *last});
        int row = 0;
        for (const auto &component : {components.positive, components.negative, components.zero}) {
            table.rows[row++].append(textOf(Quantity::FundamentalRms, std::abs(component)));
            table.rows[row++].append(
                textOf(Quantity::Angle, measured.angle(component, cursor.sample)));
        }
    }
    return table;
}

Harmonics measuredHarmonics(
    const Measured &measured, const MeasuredChannel &channel, const MeasuredCursor &cursor)
{
    Harmonics harmonics;
    if (channel.analog)
        harmonics = harmonicsAround(*channel.analog, cursor.sample, measured.samplesPerCycle);
    for (std::optional<double> &harmonic : harmonics) {
        if (harmonic)
            *harmonic *= std::abs(channel.factor);
    }
    return harmonics;
}

TextTable harmonicTable(
    const Harmonics &harmonics, const MeasuredChannel &channel, const MeasuredCursor &cursor)
{
    TextTable table;
    const bool isOfOne = !channel.name.isEmpty() && !cursor.name.isEmpty();
    table.headings
        = QStringList{headingWith(MeasurementsDialog::tr("Harmonic"),
                          isOfOne ? QStringList{channel.name, headingOf(cursor)} : QStringList()),
            channel.unit.isEmpty() ? MeasurementsDialog::tr("RMS")
                                   : MeasurementsDialog::tr("RMS, %1").arg(channel.unit),
            MeasurementsDialog::tr("% of fundamental")};
    const double fundamental = harmonics[0].value_or(0);
    for (int order = 1; order <= harmonicCount; ++order) {
        const std::optional<double> &harmonic = harmonics.at(static_cast<size_t>(order - 1));
        table.rows.append({QString::number(order), textOf(Quantity::Value, harmonic),
            harmonic && fundamental > 0 ? fixedText(*harmonic * 100 / fundamental, 2) : QString()});
    }
    return table;
}
