// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "configuration.h"

#include <string>

namespace convert {

// Has the values of all channels refer to one side of their instrument transformers, by their
// ratios. Why that cannot be, or an empty text; then nothing has changed.
std::string referTo(Side side, Configuration &configuration);

} // namespace convert
