// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotpair.h"

// What a plot shows after the factors of its channels have changed in different ways.
class TestPlotterFactors : public QObject {
    Q_OBJECT

private slots:
    void aWholeViewStaysWholeUnderFactorsThatDiffer();
    void aNegativeFactorKeepsASpectrumInView();
};

// A current from -250 to 125 A and a voltage of 80 V: it is the voltage that is high afterwards.
void TestPlotterFactors::aWholeViewStaysWholeUnderFactorsThatDiffer()
{
    PlotPair pair;
    AnalogChannel *current = pair.host.addAnalog(QStringLiteral("I"), {-250, 125, -250});
    AnalogChannel *voltage = pair.host.addAnalog(QStringLiteral("U"), {-80, 80, -80});
    current->toPrimary = 200;
    voltage->toPrimary = 1000;
    pair.plot->showChannels({2, 3});
    pair.host.mode = 1;
    pair.plot->setupPlot();
    pair.plot->customResetZoom();
    QCOMPARE(pair.plot->view().minY, -250.0);
    QCOMPARE(pair.plot->view().maxY, 150.0);
    pair.host.mode = 0;
    pair.plot->rescaleValues();
    QCOMPARE(pair.plot->view().minY, -90000.0);
    QCOMPARE(pair.plot->view().maxY, 90000.0);
    pair.host.mode = 1;
    pair.plot->rescaleValues();
    // Half of the full range, -125 to 75, is widened to -150 to 90 and set 20 lower, to the centre
    // of the view.
    pair.plot->customVZoomIn();
    QCOMPARE(pair.plot->view().minY, -170.0);
    QCOMPARE(pair.plot->view().maxY, 70.0);
    // Before widening -145 to 55, of -250 to 125; so -35200 to 50133 of -80000 to 80000, and then
    // to steps of 10000.
    pair.host.mode = 0;
    pair.plot->rescaleValues();
    QCOMPARE(pair.plot->view().minY, -40000.0);
    QCOMPARE(pair.plot->view().maxY, 60000.0);
}

void TestPlotterFactors::aNegativeFactorKeepsASpectrumInView()
{
    PlotPair pair;
    AnalogChannel *channel = pair.host.addAnalog(QStringLiteral("I"), {1, 2, 1});
    channel->fftMagnitudes = QVector<float>(3, 70);
    channel->maxMagnitude = 70;
    pair.host.mode = 1;
    pair.plot->showChannels({5}); // of three channels the last one's spectrum
    pair.plot->setupPlot();
    pair.plot->customResetZoom();
    QCOMPARE(pair.plot->view().minY, 0.0);
    channel->toSecondary = -100;
    pair.plot->rescaleValues();
    QVERIFY(pair.plot->view().minY <= -7000);
    QVERIFY(pair.plot->view().maxY >= 0);
}

QTEST_MAIN(TestPlotterFactors)
#include "tst_plotter_factors.moc"
