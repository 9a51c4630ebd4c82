// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordregistry.h"

#include "cfgproperties.h"

#include <memory>
#include <mutex>
#include <vector>

namespace {

template <typename Record> Record *newRecord()
{
    static std::mutex mutex;
    static std::vector<std::unique_ptr<Record>> records;
    const std::lock_guard<std::mutex> lock(mutex);
    records.push_back(std::make_unique<Record>());
    return records.back().get();
}

} // namespace

AnalogChannel *newAnalogChannel(const CFGProperties &recording, int row)
{
    auto *channel = newRecord<AnalogChannel>();
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
    auto *channel = newRecord<DigitalChannel>();
    channel->index = recording.digitalIndexes.value(row);
    channel->id = recording.digitalIds.value(row);
    return channel;
}
