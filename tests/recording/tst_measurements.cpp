// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "measurements.h"

#include "analogchannel.h"
#include "phasorlookup.h"
#include "phasors.h"

#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>

using Values = QVector<float>;

namespace {

constexpr double turn = 6.283185307179586;
const double nothing = std::numeric_limits<double>::quiet_NaN(); // in place of no result
constexpr double exact = 1e-12;
constexpr double ofFloats = 1e-5; // relative, what is kept in single precision

// To a relative error, or nothing on both sides.
bool isClose(std::optional<double> value, double expected, double error = exact)
{
    if (!value || std::isnan(expected))
        return !value && std::isnan(expected);
    return std::abs(*value - expected) <= error * std::max(1.0, std::abs(expected));
}

Values wave(int count, const std::function<double(int)> &at)
{
    Values values;
    for (int i = 0; i < count; ++i)
        values.append(static_cast<float>(at(i)));
    return values;
}

// A channel of those values with the phasors that a load gives it.
AnalogChannel channelOf(const Values &values, int samplesPerCycle)
{
    AnalogChannel channel;
    channel.a = 1;
    channel.rawValues = values;
    for (const float value : values)
        channel.appendValue(value, 1, 0);
    computePhasors(channel, samplesPerCycle);
    return channel;
}

} // namespace

class TestMeasurements : public QObject {
    Q_OBJECT

private slots:
    void aCycleHasItsRmsAndPeak_data();
    void aCycleHasItsRmsAndPeak();
    void anAngleIsWrapped_data();
    void anAngleIsWrapped();
    void aPhasorLeadsAnother_data();
    void aPhasorLeadsAnother();
    void aFactorMultipliesAPhasor();
    void phasesHaveSequenceComponents_data();
    void phasesHaveSequenceComponents();
    void harmonicsAreToldApart_data();
    void harmonicsAreToldApart();
    void harmonicsEndBelowHalfTheSamples_data();
    void harmonicsEndBelowHalfTheSamples();
    void whatIsOnlyRoundedIsNoHarmonic();
    void theFundamentalIsThatOfThePhasors();
    void aCycleMustLieWithinTheRecording_data();
    void aCycleMustLieWithinTheRecording();
    void aTimeIsCountedInCycles_data();
    void aTimeIsCountedInCycles();
};

void TestMeasurements::aCycleHasItsRmsAndPeak_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<int>("sample");
    QTest::addColumn<int>("samplesPerCycle");
    QTest::addColumn<double>("rms");
    QTest::addColumn<double>("peak");
    // A sine's RMS is its amplitude over the root of 2: 100 gives 70.710678.
    const Values sine = wave(40, [](int i) { return 100 * std::sin(turn * i / 20); });
    QTest::newRow("a sine, its first cycle") << sine << 19 << 20 << 70.7106781 << 100.0;
    QTest::newRow("a sine, from any sample") << sine << 26 << 20 << 70.7106781 << 100.0;
    QTest::newRow("a sine, the last sample") << sine << 39 << 20 << 70.7106781 << 100.0;
    // DC 30 below a sine of 40 root 2: 30^2 + 40^2 = 50^2; the peak is 30 + 56.568542.
    const Values shifted
        = wave(20, [](int i) { return 30 + 40 * std::sqrt(2.0) * std::sin(turn * i / 20); });
    QTest::newRow("with DC") << shifted << 19 << 20 << 50.0 << 86.5685425;
    // A fifth harmonic of 5 beside 12: 12^2 + 5^2 = 13^2. Both peak at a quarter cycle.
    const Values distorted = wave(20, [](int i) {
        return std::sqrt(2.0) * (12 * std::sin(turn * i / 20) + 5 * std::sin(5 * turn * i / 20));
    });
    QTest::newRow("with a harmonic") << distorted << 19 << 20 << 13.0 << 24.0416306;
    const Values square{-7, -7, 7, 7};
    QTest::newRow("a square") << square << 3 << 4 << 7.0 << 7.0;
    QTest::newRow("the peak is negative") << Values{1, -9, 3, 4} << 3 << 4 << 5.1720402 << 9.0;
    QTest::newRow("what lies before the cycle does not count")
        << Values{99, 3, 4, 3, 4} << 4 << 4 << 3.5355339 << 4.0;
    QTest::newRow("nor does what lies behind")
        << Values{3, 4, 3, 4, 99} << 3 << 4 << 3.5355339 << 4.0;
    QTest::newRow("a cycle of one sample") << Values{3, -4} << 1 << 1 << 4.0 << 4.0;
    QTest::newRow("one sample too few") << square << 2 << 4 << nothing << nothing;
    QTest::newRow("no sample") << square << -1 << 4 << nothing << nothing;
    QTest::newRow("a sample beyond the end") << square << 4 << 4 << nothing << nothing;
    QTest::newRow("no cycle") << square << 3 << 0 << nothing << nothing;
    QTest::newRow("a negative cycle") << square << 3 << -4 << nothing << nothing;
    QTest::newRow("the longest cycle")
        << square << 3 << std::numeric_limits<int>::max() << nothing << nothing;
    QTest::newRow("no values") << Values() << 0 << 1 << nothing << nothing;
}

void TestMeasurements::aCycleHasItsRmsAndPeak()
{
    QFETCH(Values, values);
    QFETCH(int, sample);
    QFETCH(int, samplesPerCycle);
    QFETCH(double, rms);
    QFETCH(double, peak);
    QVERIFY(isClose(trueRms(values, sample, samplesPerCycle), rms, 1e-6));
    QVERIFY(isClose(cyclePeak(values, sample, samplesPerCycle), peak, 1e-6));
}

void TestMeasurements::anAngleIsWrapped_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<double>("wrapped");
    QTest::newRow("none") << 0.0 << 0.0;
    QTest::newRow("ahead") << 120.0 << 120.0;
    QTest::newRow("behind") << -120.0 << -120.0;
    QTest::newRow("the other way is shorter") << 240.0 << -120.0;
    QTest::newRow("and back") << -240.0 << 120.0;
    QTest::newRow("opposite") << 180.0 << 180.0;
    QTest::newRow("opposite from below") << -180.0 << 180.0;
    QTest::newRow("just ahead of opposite") << -179.5 << -179.5;
    QTest::newRow("a turn and a half") << 540.0 << 180.0;
    QTest::newRow("a turn and a half back") << -540.0 << 180.0;
    QTest::newRow("two turns") << 730.0 << 10.0;
}

void TestMeasurements::anAngleIsWrapped()
{
    QFETCH(double, degrees);
    QTEST(wrappedDegrees(degrees), "wrapped");
}

void TestMeasurements::aPhasorLeadsAnother_data()
{
    QTest::addColumn<double>("angle"); // degrees, as the next
    QTest::addColumn<double>("reference");
    QTest::addColumn<double>("magnitude");
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("lead");
    QTest::newRow("itself") << 77.0 << 77.0 << 3.0 << 1.0 << 0.0;
    QTest::newRow("ahead") << 100.0 << 40.0 << 3.0 << 1.0 << 60.0;
    QTest::newRow("behind") << 40.0 << 100.0 << 3.0 << 1.0 << -60.0;
    QTest::newRow("ahead over the seam") << -170.0 << 170.0 << 3.0 << 1.0 << 20.0;
    QTest::newRow("behind over the seam") << 170.0 << -170.0 << 3.0 << 1.0 << -20.0;
    QTest::newRow("turned round by its factor") << 100.0 << 40.0 << 3.0 << -2.0 << -120.0;
    QTest::newRow("without a magnitude") << 100.0 << 40.0 << 0.0 << 1.0 << nothing;
    QTest::newRow("without a factor") << 100.0 << 40.0 << 3.0 << 0.0 << nothing;
    QTest::newRow("by a ratio of x to 0") << 100.0 << 40.0 << 3.0 << qInf() << nothing;
    QTest::newRow("by a ratio of 0 to 0") << 100.0 << 40.0 << 3.0 << qQNaN() << nothing;
}

void TestMeasurements::aPhasorLeadsAnother()
{
    QFETCH(double, angle);
    QFETCH(double, reference);
    QFETCH(double, magnitude);
    QFETCH(double, factor);
    QFETCH(double, lead);
    const auto phasor = [](double degrees, double size) {
        return Phasor{static_cast<float>(degrees * turn / 360), static_cast<float>(size)};
    };
    const std::complex<double> leading = complexRms(phasor(angle, magnitude), factor);
    const std::complex<double> other = complexRms(phasor(reference, 5), 1);
    QVERIFY(isClose(leadDegrees(leading, other), lead, ofFloats));
    QVERIFY(isClose(leadDegrees(other, leading), -lead, ofFloats));
}

void TestMeasurements::aFactorMultipliesAPhasor()
{
    const std::complex<double> value = complexRms({0, 10}, 80);
    QCOMPARE(value.real(), 800.0);
    QCOMPARE(value.imag(), 0.0);
    QVERIFY(
        std::abs(complexRms({static_cast<float>(turn / 4), 10}, -2) - std::complex<double>(0, -20))
        < 1e-5);
}

void TestMeasurements::phasesHaveSequenceComponents_data()
{
    using Magnitudes = QVector<double>;
    QTest::addColumn<Magnitudes>("magnitudes");
    QTest::addColumn<Magnitudes>("degrees");
    QTest::addColumn<Magnitudes>("components"); // positive, negative, zero
    QTest::addColumn<Magnitudes>("angles"); // of those that are not 0
    QTest::newRow("balanced") << Magnitudes{10, 10, 10} << Magnitudes{20, -100, 140}
                              << Magnitudes{10, 0, 0} << Magnitudes{20, 0, 0};
    QTest::newRow("the phases in reverse") << Magnitudes{10, 10, 10} << Magnitudes{20, 140, -100}
                                           << Magnitudes{0, 10, 0} << Magnitudes{0, 20, 0};
    QTest::newRow("all alike") << Magnitudes{10, 10, 10} << Magnitudes{20, 20, 20}
                               << Magnitudes{0, 0, 10} << Magnitudes{0, 0, 20};
    // A fault of one phase: each component is a third of its current.
    QTest::newRow("the first phase alone") << Magnitudes{9, 0, 0} << Magnitudes{-60, 0, 0}
                                           << Magnitudes{3, 3, 3} << Magnitudes{-60, -60, -60};
    // The second phase alone: a and a^2 turn its third by 120 degrees on and back.
    QTest::newRow("the second phase alone") << Magnitudes{0, 9, 0} << Magnitudes{0, 0, 0}
                                            << Magnitudes{3, 3, 3} << Magnitudes{120, -120, 0};
    // A fault of two phases, I2 = -I3 = 10: I1 is (a - a^2) 10 / 3 = j 5.7735027, I2 its opposite.
    QTest::newRow("the last two phases against each other")
        << Magnitudes{0, 10, 10} << Magnitudes{0, 0, 180} << Magnitudes{5.7735027, 5.7735027, 0}
        << Magnitudes{90, -90, 0};
    // 1 + 1 + 1 of each kind add up to 3, 0 and 0.
    QTest::newRow("all components alike")
        << Magnitudes{3, 0, 0} << Magnitudes{0, 0, 0} << Magnitudes{1, 1, 1} << Magnitudes{0, 0, 0};
    QTest::newRow("nothing") << Magnitudes{0, 0, 0} << Magnitudes{0, 0, 0} << Magnitudes{0, 0, 0}
                             << Magnitudes{0, 0, 0};
}

void TestMeasurements::phasesHaveSequenceComponents()
{
    QFETCH(QVector<double>, magnitudes);
    QFETCH(QVector<double>, degrees);
    QFETCH(QVector<double>, components);
    QFETCH(QVector<double>, angles);
    std::array<std::complex<double>, 3> phases;
    for (int i = 0; i < 3; ++i)
        phases[static_cast<size_t>(i)] = std::polar(magnitudes.at(i), degrees.at(i) * turn / 360);
    const SequenceComponents sequence = sequenceComponents(phases);
    const QVector<std::complex<double>> found{sequence.positive, sequence.negative, sequence.zero};
    for (int i = 0; i < 3; ++i) {
        const std::complex<double> expected
            = std::polar(components.at(i), angles.at(i) * turn / 360);
        QVERIFY2(std::abs(found.at(i) - expected) < 1e-6, qPrintable(QString::number(i)));
    }
}

void TestMeasurements::harmonicsAreToldApart_data()
{
    QTest::addColumn<int>("samplesPerCycle");
    QTest::addColumn<int>("sample");
    for (const int sample : {31, 40, 47, 95})
        QTest::addRow("64 samples, around %d", sample) << 64 << sample;
    QTest::newRow("32 samples") << 32 << 40;
    QTest::newRow("400 samples") << 400 << 300;
}

// Of amplitude 100 / k each, with its own phase, above DC.
void TestMeasurements::harmonicsAreToldApart()
{
    QFETCH(int, samplesPerCycle);
    QFETCH(int, sample);
    const AnalogChannel channel
        = channelOf(wave(2 * samplesPerCycle,
                        [&](int i) {
                            double sum = 25;
                            for (int k = 1; k <= 15; ++k)
                                sum += 100.0 / k * std::cos(k * turn * i / samplesPerCycle + k);
                            return sum;
                        }),
            samplesPerCycle);
    const Harmonics harmonics = harmonicsAround(channel, sample, samplesPerCycle);
    for (int k = 1; k <= 15; ++k)
        QVERIFY2(isClose(harmonics.at(static_cast<size_t>(k - 1)), 70.7106781 / k, ofFloats),
            qPrintable(QString::number(k)));
}

void TestMeasurements::harmonicsEndBelowHalfTheSamples_data()
{
    QTest::addColumn<int>("samplesPerCycle");
    QTest::addColumn<int>("last"); // the highest of them
    QTest::newRow("4 samples") << 4 << 1;
    QTest::newRow("20 samples") << 20 << 9;
    QTest::newRow("21 samples") << 21 << 10;
    QTest::newRow("30 samples") << 30 << 14;
    QTest::newRow("31 samples") << 31 << 15;
    QTest::newRow("32 samples") << 32 << 15;
    QTest::newRow("no samples") << 0 << 0;
}

void TestMeasurements::harmonicsEndBelowHalfTheSamples()
{
    QFETCH(int, samplesPerCycle);
    QFETCH(int, last);
    const AnalogChannel channel = channelOf(wave(100, [](int) { return 1; }), samplesPerCycle);
    const Harmonics harmonics = harmonicsAround(channel, 50, samplesPerCycle);
    for (int k = 1; k <= 15; ++k)
        QCOMPARE(harmonics.at(static_cast<size_t>(k - 1)).has_value(), k <= last);
}

void TestMeasurements::whatIsOnlyRoundedIsNoHarmonic()
{
    const AnalogChannel channel
        = channelOf(wave(128, [](int i) { return 100 * std::cos(turn * i / 64); }), 64);
    const Harmonics harmonics = harmonicsAround(channel, 60, 64);
    for (int k = 2; k <= 15; ++k)
        QCOMPARE(harmonics.at(static_cast<size_t>(k - 1)), std::optional<double>(0.0));
    const AnalogChannel third
        = channelOf(wave(128, [](int i) { return 1e-12 * std::cos(3 * turn * i / 64); }), 64);
    QVERIFY(*harmonicsAround(third, 60, 64).at(2) > 7e-13);
}

void TestMeasurements::theFundamentalIsThatOfThePhasors()
{
    AnalogChannel channel = channelOf(wave(64, [](int i) { return i % 5; }), 32);
    channel.fftMagnitudes[30] = 1234;
    QVERIFY(isClose(harmonicsAround(channel, 30, 32).at(0), 1234));
    channel.fftMagnitudes.clear();
    QVERIFY(!harmonicsAround(channel, 30, 32).at(0));
    QVERIFY(!harmonicsAround(channel, 30, 32).at(1));
}

void TestMeasurements::aCycleMustLieWithinTheRecording_data()
{
    QTest::addColumn<int>("sample");
    QTest::addColumn<bool>("isWithin");
    // 16 samples: from 7 before the sample to 8 behind it.
    QTest::newRow("no sample") << -1 << false;
    QTest::newRow("begins one too early") << 6 << false;
    QTest::newRow("begins with the recording") << 7 << true;
    QTest::newRow("ends with the recording") << 31 << true;
    QTest::newRow("ends one too late") << 32 << false;
    QTest::newRow("beyond the end") << 40 << false;
}

void TestMeasurements::aCycleMustLieWithinTheRecording()
{
    QFETCH(int, sample);
    const AnalogChannel channel
        = channelOf(wave(40, [](int i) { return std::cos(2 * turn * i / 16); }), 16);
    const Harmonics harmonics = harmonicsAround(channel, sample, 16);
    QTEST(harmonics.at(0).has_value(), "isWithin");
    QTEST(isClose(harmonics.at(1), 0.70710678, ofFloats), "isWithin");
}

void TestMeasurements::aTimeIsCountedInCycles_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("cycles");
    QTest::newRow("50 Hz") << 30.0 << 50.0 << 1.5;
    QTest::newRow("60 Hz") << 100.0 << 60.0 << 6.0;
    QTest::newRow("backwards") << -20.0 << 50.0 << -1.0;
    QTest::newRow("no frequency") << 20.0 << 0.0 << nothing;
    QTest::newRow("a negative frequency") << 20.0 << -50.0 << nothing;
    QTest::newRow("a frequency that is no number") << 20.0 << nothing << nothing;
}

void TestMeasurements::aTimeIsCountedInCycles()
{
    QFETCH(double, time);
    QFETCH(double, frequency);
    QFETCH(double, cycles);
    QVERIFY(isClose(inCycles(time, frequency), cycles));
}

QTEST_APPLESS_MAIN(TestMeasurements)
#include "tst_measurements.moc"
