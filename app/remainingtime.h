// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

// The time that work still takes, as it can be said to a person: none before it can be told, in
// coarse steps, and not to and fro, though the work goes now faster, now slower.
class RemainingTime {
public:
    // So many ms after the work has begun this part of it, 0 to 1, is done.
    void update(qint64 elapsed, double done);

    // 1 to 10, from there in fives to 60, from there in minutes; 0 while nothing can be said.
    int seconds() const { return m_seconds; }

private:
    int m_seconds = 0;
};
