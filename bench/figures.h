// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ratio.h"

#include <QString>

// What is measured, one source for each group. A call takes seconds to minutes.

// The resident memory of thirty plots of 1700 x 320 with two cursors, less that of one, against 250
// MB.
Ratio memoryOfThirtyPlots();
// Resident memory after a load less 60 MB, against the bytes of the series. No other may
// come before these two, as memory that was freed before would be taken again unnoticed.
Ratio memoryAgainstSeries();
Ratio readingPlainlyAgainstReading();
Ratio readingAgainstConverting();
Ratio phasorsAgainstTransforms(int samplesPerCycle);
// The drawing of four phasor panels against the 16 ms that a frame of the screen takes.
Ratio panelsAgainstFrame();
// The move of a cursor over a plot and in the window of measurements against such a frame.
Ratio measuringAgainstFrame();
// The window of events of 592 digital channels and 1,000,000 samples, until it is shown.
Ratio openingEventsAgainstGoal();
Ratio writingPlainlyAgainstWriting();
// The binary data that the converter reads in a second of the processor, against 200 MB.
Ratio convertingAgainstGoal();
Ratio recolouringAgainstAPass();
Ratio redrawingAgainstRedrawing(int samples, int fewerSamples);
// Of a recording in the middle of which the times step back once, by a millisecond of 1000.
Ratio redrawingWithAStepBackAgainstWithout();
// Zooms of thirty linked plots with two cursors, in and out, against those of one.
Ratio zoomingThirtyPlotsAgainstOne();
Ratio drawingInFullAgainstThinned();
// The time that a move of the pointer over one of eight linked plots takes, with the repaints.
Ratio redrawingAgainstPointing();

// The pattern of a folder in memory where the system has one: what a file system takes for many
// megabytes varies widely.
QString folderInMemory();
