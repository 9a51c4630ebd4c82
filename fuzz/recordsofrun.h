// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "recordkeeper.h"

#include <vector>

// Keeps the channel records that are made while it is the latest of its kind, and deletes them at
// its end: millions of executions would fill the memory.
class RecordsOfRun {
public:
    RecordsOfRun();
    ~RecordsOfRun();
    RecordsOfRun(const RecordsOfRun &) = delete;
    RecordsOfRun &operator=(const RecordsOfRun &) = delete;

private:
    friend AnalogChannel *keep(std::unique_ptr<AnalogChannel> record);
    friend DigitalChannel *keep(std::unique_ptr<DigitalChannel> record);

    std::vector<std::unique_ptr<AnalogChannel>> m_analog;
    std::vector<std::unique_ptr<DigitalChannel>> m_digital;
};
