// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filepair.h"

#include <QString>
#include <QStringList>

class CFGProperties;

// Writes a recording as a new pair of an ASCII 1999 configuration and data file, which replaces a
// former pair as a whole (filepair.h).
class RecordingWriter {
public:
    using Outcome = WriteOutcome;

    // The ratings of the analog channels as texts, in channel order; where the lists are shorter,
    // the ratings that were read stand in. The recording must outlive the writer.
    RecordingWriter(const CFGProperties &recording, const QStringList &primaries,
        const QStringList &secondaries);

    // The configuration and the data file that are written for a path, which may end with ".cfg" or
    // not.
    static QStringList filesFor(const QString &path);

    // The samples from start to end (ms of recording time, both inclusive), with the numbers they
    // have in the recording and stamps that begin at 0.
    Outcome write(const QString &path, double start, double end) const;

    // The whole recording, every channel as one of primary values.
    Outcome writeAsPrimary(const QString &path) const;

private:
    enum class Side { AsRead, Primary };
    // The samples written. Without any, both times are -1.
    struct Span {
        int count = 0;
        double start = -1.0; // time of the first one, ms
        double elapsed = -1.0; // from the first to the last one, ms
    };

    Outcome writePair(const QString &path, double start, double end, Side side) const;
    template <typename Visitor>
    void visitSamples(double start, double end, const Visitor &visit) const;
    QString configuration(const Span &span, Side side) const;
    QString analogLine(int row, Side side) const;
    QString digitalLine(int row) const;
    QStringList timeStampLines(const Span &span) const;
    char *writeDataLine(char *at, int sample, double firstTime) const; // gives the end

    const CFGProperties &m_recording;
    QStringList m_primaries;
    QStringList m_secondaries;
};
