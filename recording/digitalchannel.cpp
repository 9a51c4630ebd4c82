// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "digitalchannel.h"

#include <algorithm>

void DigitalChannel::appendValue(int state)
{
    appendValues(&state, 1);
}

void DigitalChannel::appendValues(const int *states, int count)
{
    allZero = allZero && std::all_of(states, states + count, [](int state) { return state == 0; });
    values.resize(values.size() + count);
    std::copy_n(states, count, values.end() - count);
}

void DigitalChannel::appendTime(double time)
{
    times.append(time);
}
