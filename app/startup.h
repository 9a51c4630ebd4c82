// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class MainWindow;
class QString;

// Puts the application folder first in the search path of the child processes, where the archiver
// lies beside the program.
void preferApplicationFolder();

// Has the memory of each picture and series that is freed go back to the system at once. Else the
// allocator would keep more the larger they are: with thirty plots on a screen of a scale factor of
// 1.5, 90 MB. Where the C library is another one than GNU's, this does nothing.
void giveFreedPicturesBack();

// Has windows and dialogs use the font that the desktop's own dialogs have.
void useTheSystemsFont();

// Has Chinese characters shown in their simplified shapes: which ones a system falls back to goes
// by its own language. To be called before any text is laid out.
void preferSimplifiedCharacters();

// Opens the recording named on the command line. Without one that is opened at start-up, processes
// events for two seconds, so that the splash can be seen, and says on standard error and in the
// status bar what it left.
void openOrWait(MainWindow &window, const QString &path);
