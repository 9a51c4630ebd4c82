// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readingnote.h"

#include <QStringList>

class AnalogChannel;
struct RecordingContents;

// Of something that occurs in many lines of a file, how often, where first and how much.
class Occurrences {
public:
    explicit Occurrences(ReadingNote::Kind kind, ReadingNote::File file = ReadingNote::File::Data)
        : m_note{kind, file}
    {
        m_note.count = 0;
    }

    // Lines come in their order. An amount that is not finite is none.
    void add(qint64 line, double amount = 0);
    void noteIn(RecordingContents &recording) const; // nothing where there was none

private:
    ReadingNote m_note;
};

// Where the values of a channel are missing; small, for there may be very many channels.
class MissingValues {
public:
    static bool isMark(float value) { return value == 99999 || value == 999999; }
    // Whether a channel of such an offset reaches as far as a mark of it would.
    static bool mayBeAmong(const AnalogChannel &channel, float offset);

    void add(qint64 line, qint64 count = 1);
    // Adds the marks among values that stand on consecutive lines.
    void addMarks(const float *values, int count, qint64 firstLine);
    void noteIn(RecordingContents &recording, int channel) const; // nothing where none is missing

private:
    qint64 m_count = 0;
    qint64 m_line = 0; // of the first one
};

// Of the lines that name station, device and channels, those that are not of ASCII alone.
class NameLines {
public:
    void add(qint64 line, const QString &text);
    // Nothing where the names are most likely what they read as.
    void noteIn(RecordingContents &recording, ReadingNote::File file) const;

private:
    QStringList m_texts; // as many as tell
    qint64 m_count = 0;
    qint64 m_line = 0; // of the first one
};

// Notes on the times of the samples from one (counted from 0) on, which stand on consecutive lines.
void noteTimes(RecordingContents &recording, int firstSample, qint64 firstLine);

// Notes that a data file holds other than the number of samples that the configuration promises.
void noteSampleCount(RecordingContents &recording);
