// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

// Throws std::bad_alloc where a load cannot have so much memory without taking the last of it. The
// window goes on meanwhile and shows the recording afterwards: what it paints with must not fail in
// its turn. Takes all of it for a moment, so it is asked for once, not for each piece.
void requireMemory(qint64 bytes);
