// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class AnalogChannel;
class CFGProperties;
class DigitalChannel;

// New records for channel number row (counted from 0) of a recording, filled from its definition
// lists. A missing definition gives empty texts, a = 1 and factors of 1. Records are never deleted:
// whoever holds one may keep it over the next load. They stay reachable here for the rest of the
// run.
AnalogChannel *newAnalogChannel(const CFGProperties &recording, int row);
DigitalChannel *newDigitalChannel(const CFGProperties &recording, int row);
