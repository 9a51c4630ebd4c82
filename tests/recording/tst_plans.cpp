// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analogchannel.h"
#include "phasors.h"

#include <fftw3.h>

#include <QtTest>

namespace {

int plans = 0;

} // namespace

// Stands in for the library's own, to be counted.
fftw_plan fftw_plan_dft_1d(int size, fftw_complex *in, fftw_complex *out, int sign, unsigned flags)
{
    ++plans;
    return fftw_plan_dft(1, &size, in, out, sign, flags);
}

class TestPlans : public QObject {
    Q_OBJECT

private slots:
    void everySampleHasAPlanOfItsOwn_data();
    void everySampleHasAPlanOfItsOwn();
};

void TestPlans::everySampleHasAPlanOfItsOwn_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("period"); // in samples, of values that are not 0; 0 for none at all
    QTest::addColumn<int>("made"); // one more stays around the loop
    QTest::newRow("no zeros") << 20 << 100 << 1 << 101;
    QTest::newRow("mostly zeros") << 20 << 100 << 10 << 101;
    QTest::newRow("fewer samples than a cycle") << 20 << 7 << 1 << 8;
    QTest::newRow("the longest ordinary cycle") << 128 << 30 << 1 << 31;
    QTest::newRow("a long cycle with hardly a value") << 129 << 30 << 1 << 0;
    QTest::newRow("the longest cycle of which every sample is worth one") << 512 << 512 << 1 << 512;
    QTest::newRow("a longer one") << 600 << 600 << 1 << 513;
    QTest::newRow("a lone value within many cycles") << 127 << 64 << 64 << 5;
    QTest::newRow("zeros alone") << 20 << 100 << 0 << 0;
}

void TestPlans::everySampleHasAPlanOfItsOwn()
{
    QFETCH(int, size);
    QFETCH(int, samples);
    QFETCH(int, period);
    QFETCH(int, made);
    AnalogChannel channel;
    channel.a = 1;
    for (int i = 0; i < samples; ++i)
        channel.rawValues.append(period != 0 && i % period == 0 ? 1000.0F : 0.0F);
    plans = 0;
    computePhasors(channel, size);
    QCOMPARE(plans, made);
}

QTEST_GUILESS_MAIN(TestPlans)
#include "tst_plans.moc"
