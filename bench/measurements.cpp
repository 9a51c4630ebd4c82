// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The window of measurements while one of 20 cursors is dragged over 16 channels.

#include "fakeplothost.h"
#include "figures.h"
#include "measurementsdialog.h"
#include "plotter.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>

namespace {

constexpr int samples = 1000000;
constexpr int samplesPerCycle = 400;
constexpr int channels = 16;
constexpr int cursors = 20;
constexpr int rounds = 51;

// Has the dialog follow as the main window does.
class Host : public FakePlotHost {
public:
    void refreshVectors() override { dialog.refresh(); }

    MeasurementsDialog dialog;
};

void fill(Host &host)
{
    QVector<double> times(samples);
    QVector<float> values(samples);
    for (int i = 0; i < samples; ++i) {
        times[i] = i * 0.05;
        values[i] = static_cast<float>(i % samplesPerCycle) / 7;
    }
    host.setTimes(times);
    host.source->sampleRate = 20000;
    host.source->lineFrequency = 50;
    host.source->samplesPerCycle = samplesPerCycle;
    for (int k = 0; k < channels; ++k) {
        AnalogChannel *channel = host.addAnalog(QStringLiteral("I%1").arg(k), values);
        channel->fftMagnitudes.fill(static_cast<float>(50 + k), samples);
        for (int i = 0; i < samples; ++i)
            channel->fftAngles.append(static_cast<float>((i + 1000 * k) % 6283) / 1000);
    }
}

} // namespace

Ratio measuringAgainstFrame()
{
    Host host;
    fill(host);
    Plotter plot(nullptr);
    plot.setMainWindow(&host);
    plot.resize(1600, 400);
    for (int k = 0; k < channels; ++k)
        plot.addChannel(k);
    plot.setupPlot();
    for (int i = 0; i < cursors; ++i)
        plot.addCursorAt(2000.0 * i + 1000);
    host.dialog.setMainWindow(&host);
    host.dialog.showForPlotter(&plot);
    host.dialog.resize(1920, 1000);
    for (QCheckBox *box : host.dialog.findChildren<QCheckBox *>())
        box->setChecked(true);
    const auto follow = [] {
        for (int turn = 0; turn < 3; ++turn) // the call, the numbers, the painting
            QApplication::processEvents();
    };
    follow();

    const QPoint from = plot.findChild<QLabel *>(QStringLiteral("lineLabel"))->geometry().center();
    const auto send = [&plot](QEvent::Type type, const QPoint &at, Qt::MouseButton button) {
        QMouseEvent event(type, at, button, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&plot, &event);
    };
    send(QEvent::MouseButtonPress, from, Qt::LeftButton);
    std::vector<double> moves;
    for (int round = 1; round <= rounds; ++round) {
        moves.push_back(milliseconds([&] {
            send(QEvent::MouseMove, from + QPoint(8 * round, 0), Qt::NoButton);
            follow();
        }));
    }
    send(QEvent::MouseButtonRelease, from, Qt::LeftButton);
    const auto middle = moves.begin() + rounds / 2;
    std::nth_element(moves.begin(), middle, moves.end());
    return {*middle, 16, "ms"};
}
