// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QAbstractItemView;

// Has a list show both ends of names that are too long for it, instead of scrolling sideways.
void elideNames(QAbstractItemView &list);
