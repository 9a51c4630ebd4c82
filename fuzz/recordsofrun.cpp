// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordsofrun.h"

#include <utility>

namespace {

RecordsOfRun *latest = nullptr;

} // namespace

RecordsOfRun::RecordsOfRun()
{
    latest = this;
}

RecordsOfRun::~RecordsOfRun()
{
    if (latest == this)
        latest = nullptr;
}

AnalogChannel *keep(std::unique_ptr<AnalogChannel> record)
{
    latest->m_analog.push_back(std::move(record));
    return latest->m_analog.back().get();
}

DigitalChannel *keep(std::unique_ptr<DigitalChannel> record)
{
    latest->m_digital.push_back(std::move(record));
    return latest->m_digital.back().get();
}
