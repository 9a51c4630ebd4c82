// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class CFGProperties;
class QIODevice;

// Reads the lines of an ASCII data file (IEEE C37.111-1999, clause 6) into the channel records of a
// recording whose configuration has been read: sample number, time stamp in microseconds, analog
// values, digital states. Records are made with the first line; where there are some already, the
// samples are appended to them. Reading ends with the file or with the first line of fewer than two
// fields or more than mostLineBytes. Missing fields read as 0. sampleCount becomes the number of
// lines read. Throws a ReadError where the device fails.
void readData(QIODevice &device, CFGProperties &recording);
