// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The recordings before and after one in its folder; empty where there is none.
struct Neighbours {
    QString previous;
    QString next;
};

// They go by name, numbers in the names by their value, letters by English order. Recordings are
// packages, configurations with a data file beside them, and text files in which a line begins with
// the stamp of an export. A menu waits for it: of texts, the nearest hundred are looked at, and the
// first 256 KiB of each. The file itself may be any other, or be gone by now.
Neighbours neighboursOf(const QString &path);
