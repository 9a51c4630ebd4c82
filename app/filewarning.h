// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The text of a warning that ends in "%1:\n%2.", for the file of that path and the reason that the
// toolkit or the system gave, translated where it is the toolkit's. A point at the reason's own
// end, as systems put it, is left out.
QString fileWarning(const QString &text, const QString &path, const QString &reason);
