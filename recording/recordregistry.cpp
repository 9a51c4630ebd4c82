// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordregistry.h"

#include "cfgproperties.h"
#include "interruption.h"
#include "recordkeeper.h"

#include <memory>

namespace {

constexpr int stepsOfARecord = 500;

} // namespace

AnalogChannel *newAnalogChannel(const CFGProperties &recording, int row)
{
    countWork(stepsOfARecord);
    AnalogChannel *const channel = keep(std::make_unique<AnalogChannel>());
    channel->index = recording.analogIndexes.value(row);
    channel->id = recording.analogIds.value(row);
    channel->sampleRate = recording.sampleRate;
    channel->frequency = recording.lineFrequency;
    channel->toPrimary = recording.toPrimary.value(row, 1);
    channel->toSecondary = recording.toSecondary.value(row, 1);
    channel->ps = recording.psFlags.value(row);
    channel->primary = recording.primaryValues.value(row, 1);
    channel->secondary = recording.secondaryValues.value(row, 1);
    channel->a = recording.analogA.value(row, 1);
    return channel;
}

DigitalChannel *newDigitalChannel(const CFGProperties &recording, int row)
{
    countWork(stepsOfARecord);
    DigitalChannel *const channel = keep(std::make_unique<DigitalChannel>());
    channel->index = recording.digitalIndexes.value(row);
    channel->id = recording.digitalIds.value(row);
    return channel;
}
