// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#include <algorithm>

constexpr int mostChannels = 999999; // of a recording, clause 5.3.2
constexpr int mostRows = 1 << 27; // of samples in a recording, which a list holds
constexpr int mostLineBytes = 1 << 26; // of a line; a longer one ends the reading of its file

// What a file may ask for is a matter of memory: so many values for each of its bytes. A full line
// has a byte or more for every value, so only values that stand in for missing fields come near.
constexpr qint64 valuesPerByte = 64;

// Whether a reading may take this many rows of samples after so many bytes. The first row is free,
// for its channels take more than it does.
constexpr bool isWithinBudget(qint64 rows, qint64 columns, qint64 bytes)
{
    constexpr qint64 valuesForNothing = 1 << 14;
    return (rows - 1) * columns <= valuesForNothing + valuesPerByte * bytes;
}

// The columns without a definition that are believed: each takes a byte of a line, and lines like
// the first one must stay within the budget.
constexpr qint64 mostBackedColumns(qint64 firstLineBytes, qint64 fileBytes)
{
    return std::min(fileBytes, valuesPerByte * firstLineBytes);
}
