// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#include <exception>

// Ends the work of a thread that is asked to end.
class Interruption : public std::exception { };

// Counts work of the calling thread, in steps of some nanoseconds, and throws an Interruption where
// the thread is asked to end or the load in it is cancelled. It looks once in so many steps,
// whoever counts them, so that a look costs nothing and none comes late: every loop over what a
// file holds counts its steps.
constexpr qint64 stepsBetweenLooks = 1 << 22;
void countWork(qint64 steps);
