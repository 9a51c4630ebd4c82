// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "analogchannel.h"
#include "digitalchannel.h"

#include <memory>

// Keeps a channel record for the rest of the run and gives it back.
AnalogChannel *keep(std::unique_ptr<AnalogChannel> record);
DigitalChannel *keep(std::unique_ptr<DigitalChannel> record);
