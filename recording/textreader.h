// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class CFGProperties;
class QIODevice;

// Reads a text export: a header line that names the channels as name[unit], then one line per
// sample of a time stamp "dd/MM/yyyy-hh:mm:ss:zzz" and one value per channel. Times are
// milliseconds from the first stamp; a stamp that does not read is at time 0, a value that is
// missing is 0. A line is UTF-8 where it is valid UTF-8, otherwise Latin-1; a byte order mark tells
// UTF-16. Reading ends before a line that is too long or is not worth its samples
// (samplebudget.h). Throws a ReadError where the device fails.
void readTextExport(QIODevice &device, CFGProperties &recording);
