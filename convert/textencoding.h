// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"

class QTextCodec;

namespace convert {

// The texts of a configuration to UTF-8: from the encoding that is named or,
// without one, from Latin-1 where not all of them are UTF-8 already. False
// where the named encoding does not fit; then nothing has changed.
bool decodeTexts(Configuration &configuration, QTextCodec *encoding);

// The texts from UTF-8 to Latin-1, as which the viewer shows them, where all their letters fit.
void encodeTexts(Configuration &configuration);

// An encoding by its name, in which the letters of ASCII are what they are there; null for others.
QTextCodec *encodingNamed(const QString &name);

} // namespace convert
