#pragma once

#include "ratio.h"

// What is measured, one source for each group. A call takes seconds to minutes.

Ratio readingPlainlyAgainstReading();
Ratio readingAgainstConverting();
Ratio phasorsAgainstTransforms(int samplesPerCycle);
Ratio writingPlainlyAgainstWriting();
