// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordkeeper.h"

#include <mutex>
#include <utility>
#include <vector>

namespace {

template <typename Record> Record *kept(std::unique_ptr<Record> record)
{
    static std::mutex mutex;
    static std::vector<std::unique_ptr<Record>> records;
    const std::lock_guard<std::mutex> lock(mutex);
    records.push_back(std::move(record));
    return records.back().get();
}

} // namespace

AnalogChannel *keep(std::unique_ptr<AnalogChannel> record)
{
    return kept(std::move(record));
}

DigitalChannel *keep(std::unique_ptr<DigitalChannel> record)
{
    return kept(std::move(record));
}
