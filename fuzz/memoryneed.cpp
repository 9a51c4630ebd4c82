// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memoryneed.h"

#include <new>

// Trying, as the viewer does, would take most of the time of a small input.
void requireMemory(qint64 bytes)
{
    constexpr qint64 most = 1 << 30;
    if (bytes > most)
        throw std::bad_alloc();
}
