// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "analogchannel.h"
#include "cfgproperties.h"
#include "digitalchannel.h"
#include "plothost.h"

#include <QObject>
#include <QScrollBar>

#include <memory>
#include <vector>

// Stands in for the window that holds the plots, with a recording that a test fills.
class FakePlotHost : public QObject, public PlotHost {
    Q_OBJECT
    Q_INTERFACES(PlotHost)

public:
    CFGProperties *recording() const override { return hasRecording ? source.get() : nullptr; }
    QScrollBar *horizontalScrollBar() const override { return bar.get(); }
    int valueMode() const override { return mode; }
    int referenceIndex() const override { return reference; }
    bool showsAngles() const override { return angles; }
    void refreshVectors() override { ++vectorRefreshes; }

    void setTimes(const QVector<double> &times) { source->sampleTimes = times; }

    // A channel with factors and ratings 1 whose extremes are those of its values.
    AnalogChannel *addAnalog(
        const QString &id, const QVector<float> &values, const QString &unit = QStringLiteral("A"))
    {
        auto channel = std::make_unique<AnalogChannel>();
        channel->id = id;
        channel->times = source->sampleTimes;
        channel->toPrimary = 1;
        channel->toSecondary = 1;
        channel->primary = 1;
        channel->secondary = 1;
        for (const float value : values)
            channel->appendValue(value, 1, 0);
        source->analogIds.append(id);
        source->analogUnits.append(unit);
        source->analogPhases.append(QStringLiteral("A"));
        source->analogCircuits.append(QStringLiteral("line"));
        source->analogChannels.append(channel.get());
        analog.push_back(std::move(channel));
        return source->analogChannels.constLast();
    }

    DigitalChannel *addDigital(const QString &id, const QVector<int> &states)
    {
        auto channel = std::make_unique<DigitalChannel>();
        channel->id = id;
        channel->times = source->sampleTimes;
        for (const int state : states)
            channel->appendValue(state);
        source->digitalChannels.append(channel.get());
        digital.push_back(std::move(channel));
        return source->digitalChannels.constLast();
    }

    std::unique_ptr<CFGProperties> source = std::make_unique<CFGProperties>();
    std::unique_ptr<QScrollBar> bar = std::make_unique<QScrollBar>(Qt::Horizontal);
    bool hasRecording = true;
    int mode = 0;
    int reference = 0;
    bool angles = false;
    int vectorRefreshes = 0;

private:
    std::vector<std::unique_ptr<AnalogChannel>> analog;
    std::vector<std::unique_ptr<DigitalChannel>> digital;
};
