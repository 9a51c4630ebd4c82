// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class CFGProperties;
class QIODevice;

// Reads a configuration (IEEE C37.111-1999, clause 5) line by line into the header fields and the
// definition lists of a recording, beginning with the line after cfgLineNumber. What a line holds
// follows from its number alone. Fields that are missing are empty, fields that do not convert are
// 0. Reading ends before a line of more than mostLineBytes. Throws a ReadError where the device
// fails.
void readConfiguration(QIODevice &device, CFGProperties &recording);

// Cuts both times of day to milliseconds and takes the trigger offset from them, 0 where one of
// them is no time.
void readTimeStamps(CFGProperties &recording);
