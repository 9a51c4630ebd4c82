// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// An input, without a copy of it.
inline QByteArray inputOf(const uint8_t *bytes, size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), static_cast<int>(size));
}

// Ends the process where something does not hold, as a sanitizer does: the input is a finding.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "==ERROR: %s\n", what);
    std::abort();
}
