// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "phasors.h"

#include "recordingbuilder.h"

#include <QtTest>

#include <cmath>
#include <complex>
#include <functional>
#include <limits>
#include <random>

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double rootOfTwo = 1.41421356237309504880;
constexpr float smallestMagnitude = 0.000001F;

QVector<float> series(int samples, const std::function<double(int)> &value)
{
    QVector<float> values;
    for (int i = 0; i < samples; ++i)
        values.append(static_cast<float>(value(i)));
    return values;
}

AnalogChannel channelOf(const QVector<float> &raw, float a = 1)
{
    AnalogChannel channel;
    channel.rawValues = raw;
    channel.a = a;
    return channel;
}

bool isNear(float actual, double expected, double tolerance)
{
    return std::abs(static_cast<double>(actual) - expected) <= tolerance;
}

bool isSameAngle(float actual, double expected, double tolerance)
{
    return std::abs(std::remainder(static_cast<double>(actual) - expected, 2 * pi)) <= tolerance;
}

QString shown(float value)
{
    return QString::number(static_cast<double>(value), 'g', 9);
}

} // namespace

class TestPhasors : public QObject {
    Q_OBJECT

private slots:
    void aSineReadsItsRmsWhereverACycleIsFull_data();
    void aSineReadsItsRmsWhereverACycleIsFull();
    void anglesCountFromTheStartOfTheWindow_data();
    void anglesCountFromTheStartOfTheWindow();
    void whatIsNotTheFundamentalReadsNothing_data();
    void whatIsNotTheFundamentalReadsNothing();
    void harmonicsDoNotDisturbTheFundamental();
    void windowsWorkedOutByHand_data();
    void windowsWorkedOutByHand();
    void aStepIsHalfwayInTheMiddleOfItsWindow();
    void bothEndsReadLow();
    void theMultiplierScalesAndItsSignTurns();
    void aChannelOfZerosKeepsTheSmallestMagnitude();
    void tinyMagnitudesDoNotLowerTheSmallest();
    void cyclesWithoutMeaningGiveZeros_data();
    void cyclesWithoutMeaningGiveZeros();
    void aCycleLongerThanTheRecordingIsPadded();
    void aLongCycleThatIsNearlyFilledReadsTheRms_data();
    void aLongCycleThatIsNearlyFilledReadsTheRms();
    void aLoneValueIsFoundInEveryCycleAroundIt_data();
    void aLoneValueIsFoundInEveryCycleAroundIt();
    void zerosHaveNoAngle();
    void valuesBeyondAllBoundsAreSurvived_data();
    void valuesBeyondAllBoundsAreSurvived();
    void anySeriesIsTheDefinitionWrittenOut_data();
    void anySeriesIsTheDefinitionWrittenOut();
    void aLoadTransformsEveryChannel();
    void anotherTransformAppends();
};

void TestPhasors::aSineReadsItsRmsWhereverACycleIsFull_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("amplitude");
    QTest::newRow("50 Hz at 1 kHz") << 20 << 100.0;
    QTest::newRow("60 Hz at 1.2 kHz") << 20 << 5.0;
    QTest::newRow("60 Hz at 7.68 kHz") << 128 << 100.0;
    QTest::newRow("50 Hz at 20 kHz") << 400 << 0.25;
    QTest::newRow("four samples a cycle") << 4 << 100.0;
    QTest::newRow("a prime quarter") << 92 << 1e6;
}

void TestPhasors::aSineReadsItsRmsWhereverACycleIsFull()
{
    QFETCH(int, size);
    QFETCH(double, amplitude);
    AnalogChannel channel = channelOf(
        series(3 * size + 7, [&](int i) { return amplitude * std::sin(2 * pi * i / size); }));
    computePhasors(channel, size);
    const int samples = channel.rawValues.size();
    QCOMPARE(channel.fftMagnitudes.size(), samples);
    QCOMPARE(channel.fftAngles.size(), samples);
    const int half = size / 2;
    for (int s = half - 1; s + half < samples; ++s)
        QVERIFY2(isNear(channel.fftMagnitudes.at(s), amplitude / rootOfTwo, amplitude * 1e-6),
            qPrintable(shown(channel.fftMagnitudes.at(s))));
    QVERIFY(isNear(channel.maxMagnitude, amplitude / rootOfTwo, amplitude * 1e-6));
    // The phasor turns through both axes.
    QVERIFY(isNear(channel.maxReal, amplitude / rootOfTwo, amplitude * 1e-6));
    QVERIFY(isNear(channel.maxImaginary, amplitude / rootOfTwo, amplitude * 1e-6));
}

void TestPhasors::anglesCountFromTheStartOfTheWindow_data()
{
    QTest::addColumn<double>("phase"); // of a cosine at sample 0
    QTest::addColumn<int>("sample");
    QTest::addColumn<double>("angle");
    // Twenty samples a cycle: the window of sample 9 begins with sample 0.
    QTest::newRow("a cosine at its peak") << 0.0 << 9 << 0.0;
    QTest::newRow("a sine lags by a quarter") << -pi / 2 << 9 << -pi / 2;
    QTest::newRow("a cosine in its trough") << pi << 9 << pi;
    QTest::newRow("a falling zero crossing leads by a quarter") << pi / 2 << 9 << pi / 2;
    QTest::newRow("one sample later") << 0.0 << 10 << pi / 10;
    QTest::newRow("a quarter cycle later") << 0.0 << 14 << pi / 2;
    QTest::newRow("a cycle later") << 0.0 << 29 << 0.0;
    QTest::newRow("a third lag") << -2 * pi / 3 << 29 << -2 * pi / 3;
}

void TestPhasors::anglesCountFromTheStartOfTheWindow()
{
    QFETCH(double, phase);
    QFETCH(int, sample);
    QFETCH(double, angle);
    AnalogChannel channel
        = channelOf(series(60, [&](int i) { return 100 * std::cos(2 * pi * i / 20 + phase); }));
    computePhasors(channel, 20);
    const float actual = channel.fftAngles.at(sample);
    QVERIFY2(isSameAngle(actual, angle, 1e-6), qPrintable(shown(actual)));
    QVERIFY(std::abs(actual) <= static_cast<float>(pi));
}

void TestPhasors::whatIsNotTheFundamentalReadsNothing_data()
{
    QTest::addColumn<int>("harmonic");
    QTest::newRow("direct current") << 0;
    QTest::newRow("the second harmonic") << 2;
    QTest::newRow("the third harmonic") << 3;
    QTest::newRow("the fifth harmonic") << 5;
    QTest::newRow("half the sampling rate") << 10;
}

void TestPhasors::whatIsNotTheFundamentalReadsNothing()
{
    QFETCH(int, harmonic);
    AnalogChannel channel = channelOf(
        series(60, [&](int i) { return 100 * std::cos(2 * pi * harmonic * i / 20 + 0.3); }));
    computePhasors(channel, 20);
    for (int s = 9; s < 50; ++s)
        QVERIFY2(
            channel.fftMagnitudes.at(s) < 1e-4F, qPrintable(shown(channel.fftMagnitudes.at(s))));
}

void TestPhasors::harmonicsDoNotDisturbTheFundamental()
{
    AnalogChannel channel = channelOf(series(60, [](int i) {
        const double angle = 2 * pi * i / 20;
        return 250 + 100 * std::cos(angle) + 60 * std::sin(2 * angle) - 40 * std::cos(7 * angle);
    }));
    computePhasors(channel, 20);
    QVERIFY(isNear(channel.fftMagnitudes.at(29), 100 / rootOfTwo, 1e-4));
    QVERIFY(isSameAngle(channel.fftAngles.at(29), 0, 1e-6));
}

void TestPhasors::windowsWorkedOutByHand_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QVector<float>>("raw");
    QTest::addColumn<int>("sample");
    QTest::addColumn<double>("magnitude");
    QTest::addColumn<double>("angle");
    using Values = QVector<float>;
    const double root3 = std::sqrt(3.0);

    // Four samples: the window is s - 1 to s + 2, the sum (x0 - x2) + i (x3 - x1), halved.
    QTest::newRow("four samples, all inside")
        << 4 << Values{3, 1, -1, 5} << 1 << std::sqrt(32.0) / 2 / rootOfTwo << pi / 4;
    QTest::newRow("four samples, the first missing")
        << 4 << Values{5, 5, 5} << 0 << 2.5 / rootOfTwo << pi;
    QTest::newRow("four samples, the last missing")
        << 4 << Values{5, 5, 5} << 1 << 2.5 / rootOfTwo << -pi / 2;
    QTest::newRow("four samples, the last two missing")
        << 4 << Values{5, 5, 5} << 2 << std::sqrt(50.0) / 2 / rootOfTwo << -pi / 4;
    QTest::newRow("a single sample is the second of its window")
        << 4 << Values{6} << 0 << 3 / rootOfTwo << -pi / 2;
    // Two samples: the window is s and s + 1, the sum x0 - x1.
    QTest::newRow("two samples a cycle") << 2 << Values{3, -1} << 0 << 4 / rootOfTwo << 0.0;
    QTest::newRow("two samples a cycle, rising") << 2 << Values{-1, 3} << 0 << 4 / rootOfTwo << pi;
    QTest::newRow("two samples a cycle, the last one")
        << 2 << Values{-1, 3} << 1 << 3 / rootOfTwo << 0.0;
    // Three samples: the window is s and s + 1 and a zero, the sum x0 + x1 (-1 - i root 3) / 2.
    QTest::newRow("three samples a cycle: the last of the window is 0")
        << 3 << Values{1, 1, 1} << 0 << 1 / rootOfTwo << -pi / 3;
    QTest::newRow("three samples a cycle, unequal")
        << 3 << Values{0, 2, 9} << 0 << 2 / rootOfTwo << std::atan2(-root3, -1.0);
    // Five samples: the window is s - 1 to s + 2 and a zero, halved by 2, not by 2.5.
    QTest::newRow("five samples a cycle, one of them not 0")
        << 5 << Values{0, 0, 8, 0, 0} << 1 << 4 / rootOfTwo << -4 * pi / 5;
    QTest::newRow("five samples a cycle: the fifth does not count")
        << 5 << Values{0, 0, 0, 0, 8} << 1 << 0.0 << 0.0;
}

void TestPhasors::windowsWorkedOutByHand()
{
    QFETCH(int, size);
    QFETCH(QVector<float>, raw);
    QFETCH(int, sample);
    QFETCH(double, magnitude);
    QFETCH(double, angle);
    AnalogChannel channel = channelOf(raw);
    computePhasors(channel, size);
    const float actual = channel.fftMagnitudes.at(sample);
    QVERIFY2(isNear(actual, magnitude, 1e-6), qPrintable(shown(actual)));
    QVERIFY2(isSameAngle(channel.fftAngles.at(sample), angle, 1e-6),
        qPrintable(shown(channel.fftAngles.at(sample))));
}

void TestPhasors::aStepIsHalfwayInTheMiddleOfItsWindow()
{
    // The amplitude rises from 100 to 200 with sample 60. The window of sample 59 holds half a
    // cycle of each, and over half a cycle the squares of a cosine sum to a quarter of N while its
    // products with the sine cancel.
    AnalogChannel channel = channelOf(
        series(120, [](int i) { return (i < 60 ? 100 : 200) * std::cos(2 * pi * i / 20 + 0.7); }));
    computePhasors(channel, 20);
    for (int s = 9; s <= 49; ++s)
        QVERIFY(isNear(channel.fftMagnitudes.at(s), 100 / rootOfTwo, 1e-4));
    QVERIFY2(isNear(channel.fftMagnitudes.at(59), 150 / rootOfTwo, 1e-4),
        qPrintable(shown(channel.fftMagnitudes.at(59))));
    for (int s = 69; s <= 109; ++s)
        QVERIFY(isNear(channel.fftMagnitudes.at(s), 200 / rootOfTwo, 1e-4));
    for (int s = 50; s < 69; ++s)
        QVERIFY(channel.fftMagnitudes.at(s) > 70 && channel.fftMagnitudes.at(s) < 142);
}

void TestPhasors::bothEndsReadLow()
{
    AnalogChannel channel
        = channelOf(series(100, [](int i) { return 100 * std::cos(2 * pi * i / 20 + 0.2); }));
    computePhasors(channel, 20);
    for (int s = 0; s < 9; ++s)
        QVERIFY2(channel.fftMagnitudes.at(s) < 70.7F, qPrintable(QString::number(s)));
    for (int s = 90; s < 100; ++s)
        QVERIFY2(channel.fftMagnitudes.at(s) < 70.7F, qPrintable(QString::number(s)));
    // Behind the last sample half the window is empty.
    QVERIFY(isNear(channel.fftMagnitudes.at(99), 50 / rootOfTwo, 1e-4));
}

void TestPhasors::theMultiplierScalesAndItsSignTurns()
{
    AnalogChannel channel
        = channelOf(series(40, [](int i) { return 100 * std::cos(2 * pi * i / 20); }), -0.5F);
    computePhasors(channel, 20);
    QVERIFY(isNear(channel.fftMagnitudes.at(9), 50 / rootOfTwo, 1e-4));
    QVERIFY(isSameAngle(channel.fftAngles.at(9), pi, 1e-6));
    QVERIFY(isNear(channel.maxMagnitude, 50 / rootOfTwo, 1e-4));
}

void TestPhasors::aChannelOfZerosKeepsTheSmallestMagnitude()
{
    AnalogChannel channel = channelOf(QVector<float>(60, 0.0F));
    computePhasors(channel, 20);
    QCOMPARE(channel.fftMagnitudes, QVector<float>(60, 0.0F));
    QCOMPARE(channel.fftAngles, QVector<float>(60, 0.0F));
    QVERIFY(channel.maxMagnitude == smallestMagnitude);
    QVERIFY(channel.maxReal == 0.0F);
    QVERIFY(channel.maxImaginary == 0.0F);
}

void TestPhasors::tinyMagnitudesDoNotLowerTheSmallest()
{
    AnalogChannel channel
        = channelOf(series(60, [](int i) { return 1e-7 * std::cos(2 * pi * i / 20); }));
    computePhasors(channel, 20);
    QVERIFY(isNear(channel.fftMagnitudes.at(29), 1e-7 / rootOfTwo, 1e-13));
    QVERIFY(channel.maxMagnitude == smallestMagnitude);
    QVERIFY(channel.maxReal > 7e-8F);
}

void TestPhasors::cyclesWithoutMeaningGiveZeros_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("one sample a cycle") << 1;
    QTest::newRow("no sample a cycle") << 0;
    QTest::newRow("a negative cycle") << -20;
    QTest::newRow("the most negative cycle") << std::numeric_limits<int>::min();
    QTest::newRow("beyond a million samples a cycle") << 1048577;
    QTest::newRow("a cycle without end") << std::numeric_limits<int>::max();
}

void TestPhasors::cyclesWithoutMeaningGiveZeros()
{
    QFETCH(int, size);
    AnalogChannel channel = channelOf(QVector<float>(60, 5.0F));
    computePhasors(channel, size);
    QCOMPARE(channel.fftMagnitudes, QVector<float>(60, 0.0F));
    QCOMPARE(channel.fftAngles, QVector<float>(60, 0.0F));
    QVERIFY(channel.maxMagnitude == smallestMagnitude);
}

void TestPhasors::aCycleLongerThanTheRecordingIsPadded()
{
    // One sample of 5 at place 2047 of a window of 4096.
    AnalogChannel channel = channelOf(QVector<float>{5});
    computePhasors(channel, 4096);
    QVERIFY(isNear(channel.fftMagnitudes.at(0), 5.0 / 2048 / rootOfTwo, 1e-9));
    QVERIFY(isSameAngle(channel.fftAngles.at(0), -2 * pi * 2047 / 4096, 1e-6));
}

void TestPhasors::aLongCycleThatIsNearlyFilledReadsTheRms_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("samples");
    QTest::newRow("one sample short of 5000") << 5000 << 4999;
    QTest::newRow("of 5000") << 5000 << 5000;
    QTest::newRow("one sample short of 4096") << 4096 << 4095;
    QTest::newRow("one sample short of 20000") << 20000 << 19999;
}

void TestPhasors::aLongCycleThatIsNearlyFilledReadsTheRms()
{
    QFETCH(int, size);
    QFETCH(int, samples);
    AnalogChannel channel
        = channelOf(series(samples, [size](int i) { return 10000 * std::sin(2 * pi * i / size); }));
    computePhasors(channel, size);
    // The cycle around this sample begins with the first one; what it lacks is nearly 0.
    const float magnitude = channel.fftMagnitudes.at(size / 2 - 1);
    QVERIFY2(isNear(magnitude, 7071.07, 0.01), qPrintable(shown(magnitude)));
    QVERIFY(isSameAngle(channel.fftAngles.at(size / 2 - 1), -pi / 2, 1e-5));
    QCOMPARE(channel.fftMagnitudes.size(), samples);
}

void TestPhasors::aLoneValueIsFoundInEveryCycleAroundIt_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("first"); // sample whose cycle holds it
    QTest::addColumn<int>("last");
    QTest::newRow("in the middle") << 64 << 300 << 100 << 68 << 131;
    QTest::newRow("at the beginning") << 64 << 300 << 0 << 0 << 31;
    QTest::newRow("at the end") << 64 << 300 << 299 << 267 << 299;
    QTest::newRow("in an odd cycle") << 65 << 300 << 100 << 68 << 131;
    QTest::newRow("in a short recording") << 1000 << 300 << 100 << 0 << 299;
    QTest::newRow("in the longest cycle") << 1048576 << 300 << 299 << 0 << 299;
}

void TestPhasors::aLoneValueIsFoundInEveryCycleAroundIt()
{
    QFETCH(int, size);
    QFETCH(int, samples);
    QFETCH(int, place);
    QFETCH(int, first);
    QFETCH(int, last);
    AnalogChannel channel
        = channelOf(series(samples, [place](int i) { return i == place ? 1000 : 0; }), -0.5F);
    computePhasors(channel, size);
    const int half = size / 2;
    for (int s = 0; s < samples; ++s) {
        const bool isInside = first <= s && s <= last;
        const double magnitude = isInside ? 500 / rootOfTwo / half : 0;
        QVERIFY2(
            isNear(channel.fftMagnitudes.at(s), magnitude, 1e-5), qPrintable(QString::number(s)));
        // The cycle of a sample begins half a cycle less one before it. -500 points the other way.
        const double angle = isInside ? pi - 2 * pi * (place - (s - half + 1)) / size : 0;
        QVERIFY2(isSameAngle(channel.fftAngles.at(s), angle, 1e-5), qPrintable(QString::number(s)));
    }
}

void TestPhasors::zerosHaveNoAngle()
{
    AnalogChannel channel
        = channelOf(series(200, [](int i) { return i < 100 ? 0.0 : -0.0; }), -0.5F);
    channel.rawValues[199] = 5;
    computePhasors(channel, 20);
    QCOMPARE(channel.fftAngles.mid(0, 189), QVector<float>(189, 0.0F));
    QCOMPARE(channel.fftMagnitudes.mid(0, 189), QVector<float>(189, 0.0F));
    QVERIFY(channel.fftMagnitudes.at(189) > 0);
}

void TestPhasors::valuesBeyondAllBoundsAreSurvived_data()
{
    QTest::addColumn<float>("value");
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity();
    QTest::newRow("infinite below") << -std::numeric_limits<float>::infinity();
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("the largest float") << std::numeric_limits<float>::max();
}

void TestPhasors::valuesBeyondAllBoundsAreSurvived()
{
    QFETCH(float, value);
    QVector<float> raw = series(80, [](int i) { return 100 * std::cos(2 * pi * i / 20); });
    raw[5] = value;
    AnalogChannel channel = channelOf(raw, 1e3F);
    computePhasors(channel, 20);
    QCOMPARE(channel.fftMagnitudes.size(), 80);
    // Windows that do not hold the value are as ever, and the extremes stay numbers.
    QVERIFY(isNear(channel.fftMagnitudes.at(49), 1e5 / rootOfTwo, 0.1));
    QVERIFY(channel.maxMagnitude >= 70710.0F);
    QVERIFY(channel.maxReal >= 70710.0F);
    QVERIFY(channel.maxImaginary >= 70710.0F);
}

void TestPhasors::anySeriesIsTheDefinitionWrittenOut_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("zeros"); // of a hundred values
    for (const int size : {2, 3, 4, 5, 7, 12, 16, 17, 20, 21, 33, 64, 97, 100, 151, 1000}) {
        for (const int zeros : {0, 50, 75, 95})
            QTest::addRow("%d samples a cycle, %d%% of them 0", size, zeros) << size << zeros;
    }
}

void TestPhasors::anySeriesIsTheDefinitionWrittenOut()
{
    QFETCH(int, size);
    QFETCH(int, zeros);
    std::mt19937 random(static_cast<unsigned>(size));
    const QVector<float> raw = series(150, [&](int /*i*/) {
        const double value = static_cast<double>(random() % 65536) - 32768.0;
        return static_cast<int>(random() % 100) < zeros ? 0.0 : value;
    });
    AnalogChannel channel = channelOf(raw, 0.125F);
    computePhasors(channel, size);
    const int half = size / 2;
    for (int s = 0; s < raw.size(); ++s) {
        std::complex<long double> sum;
        for (int i = 0; i < 2 * half; ++i) {
            const int j = s - half + 1 + i;
            if (j >= 0 && j < raw.size())
                sum += std::polar(0.125L, -2 * static_cast<long double>(pi) * i / size)
                    * static_cast<long double>(raw.at(j));
        }
        const double magnitude = static_cast<double>(std::abs(sum)) / half / rootOfTwo;
        QVERIFY2(isNear(channel.fftMagnitudes.at(s), magnitude, 1e-3),
            qPrintable(shown(channel.fftMagnitudes.at(s))));
        if (magnitude > 1)
            QVERIFY(isSameAngle(channel.fftAngles.at(s), static_cast<double>(std::arg(sum)), 1e-3));
    }
}

void TestPhasors::aLoadTransformsEveryChannel()
{
    const RecordingFolder folder;
    ConfigurationText text;
    text.analog = QByteArrayList{analogLine(1, "0.5", "1000"), analogLine(2, "2")};
    QByteArray data;
    // The sine of a square's corners, four samples a cycle.
    const QByteArrayList corners{"0", "100", "0", "-100"};
    text.rates = QByteArrayList{"200,40"};
    for (int i = 0; i < 40; ++i)
        data += QByteArray::number(i) + ",0," + corners.at(i % 4) + ',' + corners.at((i + 1) % 4)
            + '\n';
    CFGProperties recording;
    folder.load(recording, text.text(), data);
    QCOMPARE(recording.samplesPerCycle, 4);
    const AnalogChannel &sine = *recording.analogChannels.at(0);
    const AnalogChannel &cosine = *recording.analogChannels.at(1);
    QCOMPARE(sine.fftMagnitudes.size(), 40);
    QCOMPARE(cosine.fftAngles.size(), 40);
    // The window of sample 21 begins with sample 20. The offset adds nothing.
    QVERIFY(isNear(sine.fftMagnitudes.at(21), 50 / rootOfTwo, 1e-5));
    QVERIFY(isSameAngle(sine.fftAngles.at(21), -pi / 2, 1e-6));
    QVERIFY(isNear(cosine.fftMagnitudes.at(21), 200 / rootOfTwo, 1e-4));
    QVERIFY(isSameAngle(cosine.fftAngles.at(21), 0, 1e-6));
}

void TestPhasors::anotherTransformAppends()
{
    const RecordingFolder folder;
    ConfigurationText text;
    text.analog = QByteArrayList{analogLine(1)};
    CFGProperties recording;
    folder.load(recording, text.text(), "1,0,5\n2,1000,6\n");
    QCOMPARE(recording.analogChannels.at(0)->fftAngles.size(), 2);
    recording.fftTransform();
    QCOMPARE(recording.analogChannels.at(0)->fftAngles.size(), 4);
    QCOMPARE(recording.analogChannels.at(0)->fftMagnitudes.size(), 4);

    // A channel without samples is passed over.
    AnalogChannel empty;
    computePhasors(empty, 20);
    QVERIFY(empty.fftAngles.isEmpty());
}

QTEST_GUILESS_MAIN(TestPhasors)
#include "tst_phasors.moc"
