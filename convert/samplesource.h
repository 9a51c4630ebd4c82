// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sampleblock.h"

namespace convert {

// Gives the samples of a recording, in its order.
class SampleSource {
public:
    SampleSource() = default;
    virtual ~SampleSource() = default;
    SampleSource(const SampleSource &) = delete;
    SampleSource &operator=(const SampleSource &) = delete;

    // Fills the block with the next samples; false where there are none left. What breaks the rules
    // throws a Failure.
    virtual bool read(SampleBlock &block) = 0;
};

} // namespace convert
