// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The window of events of a recording of very many digital channels.

#include "cfgproperties.h"
#include "eventsdialog.h"
#include "figures.h"

#include <QApplication>

#include <memory>
#include <vector>

namespace {

constexpr int samples = 1000000;
constexpr int channels = 592;
constexpr int runLength = 1000; // samples
constexpr int rounds = 5;

} // namespace

Ratio openingEventsAgainstGoal()
{
    CFGProperties recording;
    recording.sampleCount = samples;
    for (int i = 0; i < samples; ++i)
        recording.sampleTimes.append(i * 0.05);
    std::vector<std::unique_ptr<DigitalChannel>> owned;
    for (int k = 0; k < channels; ++k) {
        auto channel = std::make_unique<DigitalChannel>();
        channel->id = QStringLiteral("S%1").arg(k);
        channel->times = recording.sampleTimes;
        channel->values.reserve(samples);
        for (int i = 0; i < samples; ++i)
            channel->values.append((i + k) / runLength % 2);
        channel->allZero = false;
        recording.digitalChannels.append(channel.get());
        owned.push_back(std::move(channel));
    }
    std::vector<double> openings;
    for (int round = 0; round < rounds; ++round) {
        openings.push_back(milliseconds([&] {
            EventsDialog dialog;
            dialog.setRecording(&recording);
            dialog.show();
            QApplication::processEvents();
        }));
    }
    const auto middle = openings.begin() + rounds / 2;
    std::nth_element(openings.begin(), middle, openings.end());
    recording.digitalChannels.clear();
    return {*middle, 1000, "ms"};
}
