// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

constexpr int mostChannels = 999999; // of a recording, clause 5.3.2
constexpr qint64 mostRows = 1 << 27; // of samples in a recording
constexpr int mostLineBytes = 1 << 26; // of a line; a longer one ends the reading of its file

// Whether a reader may take this many rows of samples after so many bytes. A full line has a byte
// for every sample, so only the samples that stand in for missing fields can use the budget up. The
// first row is free, for its channels take more than it does. No file makes more rows than a list
// holds.
constexpr bool isWithinBudget(qint64 rows, qint64 columns, qint64 bytes)
{
    constexpr qint64 samplesForNothing = 1 << 14;
    constexpr qint64 samplesPerByte = 8;
    return rows <= mostRows && (rows - 1) * columns <= samplesForNothing + samplesPerByte * bytes;
}
