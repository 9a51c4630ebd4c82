// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Drawing four phasor panels of 16 channels at 20 cursors between the samples of a long recording.

#include "analogchannel.h"
#include "cfgproperties.h"
#include "fakedialoghost.h"
#include "fakeplothost.h"
#include "figures.h"
#include "plotter.h"
#include "vectordialog.h"
#include "vectorwidget.h"

#include <QApplication>
#include <QCheckBox>

namespace {

constexpr int samples = 1000000;
constexpr int channels = 16;
constexpr int cursors = 20;
constexpr int panels = 4;
constexpr int rounds = 51;

void fill(FakePlotHost &host)
{
    QVector<double> times(samples);
    for (int i = 0; i < samples; ++i)
        times[i] = i * 0.0009997; // never where the rate says
    host.setTimes(times);
    host.source->sampleRate = samples;
    for (int k = 0; k < channels; ++k) {
        AnalogChannel *channel = host.addAnalog(QStringLiteral("I%1").arg(k), {-100, 100});
        channel->sampleRate = samples;
        channel->fftMagnitudes.fill(static_cast<float>(50 + k), samples);
        for (int i = 0; i < samples; ++i)
            channel->fftAngles.append(static_cast<float>((i + 1000 * k) % 6283) / 1000);
        channel->maxReal = 70;
        channel->maxImaginary = 70;
    }
}

} // namespace

Ratio panelsAgainstFrame()
{
    FakePlotHost plotHost;
    fill(plotHost);
    Plotter plot(nullptr);
    plot.setMainWindow(&plotHost);
    plot.resize(1600, 400);
    plot.addChannel(0);
    plot.setupPlot();
    for (int i = 0; i < cursors; ++i)
        plot.addCursor(110 + 31 * i, 100);

    FakeDialogHost host;
    host.shown = plotHost.source.get();
    VectorDialog dialog(&host);
    dialog.setMainWindow(&host);
    while (dialog.findChildren<VectorWidget *>().size() < panels)
        dialog.on_toolButton_clicked();
    dialog.setPlotter(&plot);
    dialog.setChannelNames(host.shown->analogIds);
    dialog.show();
    QList<QCheckBox *> lasts;
    for (const VectorWidget *panel : dialog.findChildren<VectorWidget *>()) {
        const QList<QCheckBox *> boxes = panel->findChildren<QCheckBox *>();
        for (QCheckBox *box : boxes)
            box->setChecked(true);
        lasts.append(boxes.last());
    }

    // A check box that is toggled draws its panel without the wait that other drawings begin with.
    const auto toggleLasts = [&lasts] {
        for (QCheckBox *box : qAsConst(lasts))
            box->toggle();
        QApplication::processEvents();
    };
    std::vector<double> drawings;
    for (int round = 0; round < rounds; ++round) {
        toggleLasts(); // to 15 channels
        drawings.push_back(milliseconds(toggleLasts));
    }
    const auto middle = drawings.begin() + rounds / 2;
    std::nth_element(drawings.begin(), middle, drawings.end());
    return {*middle, 16, "ms"};
}
