// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memoryneed.h"

#include <new>

void requireMemory(qint64 bytes)
{
    constexpr qint64 leftToOthers = 16 << 20;
    const auto size = static_cast<std::size_t>(bytes + leftToOthers);
    void *volatile block = ::operator new(size); // volatile: a compiler may not skip it
    ::operator delete(block);
}
