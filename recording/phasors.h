// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class AnalogChannel;

// Gives every sample of a channel the phasor of the fundamental over the cycle of samplesPerCycle
// samples that is centred on it (one more sample after it than before), zeros standing in beyond
// both ends. Magnitudes are RMS in the scaled unit without the offset, angles are radians against a
// cosine. Where no transform of that size is meaningful, both are 0.
// The work is bounded by the values that are not 0, for each of which a byte of a file stands: the
// transforms that they are not worth give way to sums, with the same result.
void computePhasors(AnalogChannel &channel, int samplesPerCycle);
