// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "phasorlookup.h"

#include "analogchannel.h"

#include <QtTest>

#include <limits>

namespace {

const double infinite = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

using Times = QVector<double>;

int foundFromTheStart(const Times &times, double rate, double time)
{
    int from = 0;
    return sampleAt(times, rate, time, from);
}

} // namespace

class TestPhasorLookup : public QObject {
    Q_OBJECT

private slots:
    void theNearestSampleIsFound_data();
    void theNearestSampleIsFound();
    void aSearchResumesWhereItEnded();
    void theFoundSampleGivesItsPhasor_data();
    void theFoundSampleGivesItsPhasor();
    void aLongRecordingIsSearchedAtOnce();
};

void TestPhasorLookup::theNearestSampleIsFound_data()
{
    QTest::addColumn<Times>("times");
    QTest::addColumn<double>("rate");
    QTest::addColumn<double>("time");
    QTest::addColumn<int>("sample");
    const Times even{0, 1, 2, 3};
    const Times late{72.5, 73.5, 74.5};
    const Times early{-2, -1, 0, 1};
    const Times uneven{0, 0.833, 1.667, 2.5};
    const Times twice{0, 5, 5, 9};
    const Times back{0, 20, 10, 30};

    QTest::newRow("on a sample") << even << 1000.0 << 2.0 << 2;
    QTest::newRow("on the first") << even << 1000.0 << 0.0 << 0;
    QTest::newRow("on the last") << even << 1000.0 << 3.0 << 3;
    QTest::newRow("nearer to the earlier") << even << 1000.0 << 1.4 << 1;
    QTest::newRow("nearer to the later") << even << 1000.0 << 1.6 << 2;
    QTest::newRow("halfway goes to the later") << even << 1000.0 << 1.5 << 2;
    QTest::newRow("just behind the first") << even << 1000.0 << 0.1 << 0;
    QTest::newRow("just before the last") << even << 1000.0 << 2.9 << 3;
    QTest::newRow("before the first") << even << 1000.0 << -0.001 << -1;
    QTest::newRow("behind the last") << even << 1000.0 << 3.001 << -1;
    QTest::newRow("a late start, on the first") << late << 1000.0 << 72.5 << 0;
    QTest::newRow("a late start, on a sample") << late << 1000.0 << 73.5 << 1;
    QTest::newRow("a late start, at time 0") << late << 1000.0 << 0.0 << -1;
    QTest::newRow("an early start, on the first") << early << 1000.0 << -2.0 << 0;
    QTest::newRow("an early start, on a sample") << early << 1000.0 << -1.0 << 1;
    QTest::newRow("an early start, at time 0") << early << 1000.0 << 0.0 << 2;
    QTest::newRow("uneven steps, on a sample") << uneven << 1200.0 << 1.667 << 2;
    QTest::newRow("uneven steps, between") << uneven << 1200.0 << 1.2 << 1;
    QTest::newRow("a rate of another recording") << even << 16000.0 << 2.0 << 2;
    QTest::newRow("no rate") << even << 0.0 << 2.0 << 2;
    QTest::newRow("a negative rate") << even << -1000.0 << 2.0 << 2;
    QTest::newRow("a rate without end") << even << infinite << 2.0 << 2;
    QTest::newRow("a rate that is no number") << even << notANumber << 2.0 << 2;
    QTest::newRow("equal stamps: the first of them") << twice << 1000.0 << 5.0 << 1;
    QTest::newRow("between equal stamps and the next") << twice << 1000.0 << 6.0 << 2;
    QTest::newRow("stamps that run back: the first pair around it") << back << 1000.0 << 15.0 << 1;
    QTest::newRow("stamps that run back: in a pair, not on its own stamp")
        << back << 1000.0 << 10.0 << 1;
    QTest::newRow("stamps that run back: behind the jump") << back << 1000.0 << 21.0 << 3;
    QTest::newRow("the guess wins over an earlier pair")
        << Times{0, 9, 2, 10} << 1000.0 << 2.0 << 2;
    QTest::newRow("the last stamp counts as the end, not the largest")
        << Times{0, 20, 10} << 1000.0 << 15.0 << -1;
    QTest::newRow("stamps that are no numbers are passed over")
        << Times{0, notANumber, 2, 4} << 1000.0 << 3.5 << 3;
    QTest::newRow("no pair around it") << Times{0, notANumber, 2, 4} << 1000.0 << 1.0 << -1;
    QTest::newRow("a time that is no number") << even << 1000.0 << notANumber << -1;
    QTest::newRow("a time without end") << even << 1000.0 << infinite << -1;
    QTest::newRow("one sample, on it") << Times{5} << 1000.0 << 5.0 << 0;
    QTest::newRow("one sample, beside it") << Times{5} << 1000.0 << 4.9 << -1;
    QTest::newRow("no samples") << Times() << 1000.0 << 0.0 << -1;
    QTest::newRow("stamps all missing") << Times{0, 0, 0} << 1000.0 << 0.0 << 0;
}

void TestPhasorLookup::theNearestSampleIsFound()
{
    QFETCH(Times, times);
    QFETCH(double, rate);
    QFETCH(double, time);
    QFETCH(int, sample);
    QCOMPARE(foundFromTheStart(times, rate, time), sample);
}

void TestPhasorLookup::aSearchResumesWhereItEnded()
{
    const Times times{0, 10, 20, 30, 40};
    int from = 1;
    QCOMPARE(sampleAt(times, 1000, 12, from), 1);
    QCOMPARE(from, 2);
    QCOMPARE(sampleAt(times, 1000, 19, from), 2);
    QCOMPARE(from, 2);
    QCOMPARE(sampleAt(times, 1000, 31, from), 3);
    QCOMPARE(from, 4);
    // What lies behind is not found again; the search ends at the count and stays there.
    QCOMPARE(sampleAt(times, 1000, 12, from), -1);
    QCOMPARE(from, 5);
    QCOMPARE(sampleAt(times, 1000, 31, from), -1);
    QCOMPARE(from, 5);
    // A guess that fits needs no search.
    QCOMPARE(sampleAt(times, 100, 20, from), 2);
    QCOMPARE(from, 5);
    // Before the second sample there is nothing to search.
    from = -7;
    QCOMPARE(sampleAt(times, 1000, 12, from), 1);
    QCOMPARE(from, 2);
    // A stamp met exactly is taken, also behind a later one.
    from = 2;
    QCOMPARE(sampleAt({0, 20, 10, 30}, 1000, 10, from), 2);
}

void TestPhasorLookup::theFoundSampleGivesItsPhasor_data()
{
    QTest::addColumn<int>("angles");
    QTest::addColumn<int>("magnitudes");
    QTest::addColumn<double>("time");
    QTest::addColumn<float>("angle");
    QTest::addColumn<float>("magnitude");
    QTest::newRow("on a sample") << 4 << 4 << 2.0 << 0.5F << 20.0F;
    QTest::newRow("between samples") << 4 << 4 << 2.6 << 0.75F << 30.0F;
    QTest::newRow("outside") << 4 << 4 << 9.0 << 0.0F << 0.0F;
    QTest::newRow("without phasors") << 0 << 0 << 2.0 << 0.0F << 0.0F;
    QTest::newRow("with too few angles") << 2 << 4 << 2.0 << 0.0F << 0.0F;
    QTest::newRow("with too few magnitudes") << 4 << 2 << 2.0 << 0.0F << 0.0F;
}

void TestPhasorLookup::theFoundSampleGivesItsPhasor()
{
    QFETCH(int, angles);
    QFETCH(int, magnitudes);
    QFETCH(double, time);
    QFETCH(float, angle);
    QFETCH(float, magnitude);
    AnalogChannel channel;
    channel.sampleRate = 1000;
    channel.times = Times{0, 1, 2, 3};
    channel.fftAngles = QVector<float>{0, 0.25, 0.5, 0.75}.mid(0, angles);
    channel.fftMagnitudes = QVector<float>{0, 10, 20, 30}.mid(0, magnitudes);
    const int sample = foundFromTheStart(channel.times, channel.sampleRate, time);
    const Phasor phasor = phasorOf(channel, sample);
    QCOMPARE(phasor.angle, angle);
    QCOMPARE(phasor.magnitude, magnitude);
}

void TestPhasorLookup::aLongRecordingIsSearchedAtOnce()
{
    Times times;
    for (int i = 0; i < 1000000; ++i)
        times.append(i * 0.05);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 100; ++i)
        QCOMPARE(foundFromTheStart(times, 1000, 49999.91 - i * 0.05), 999998 - i);
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_APPLESS_MAIN(TestPhasorLookup)
#include "tst_phasorlookup.moc"
