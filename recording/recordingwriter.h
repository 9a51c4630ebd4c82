// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

class CFGProperties;

// Writes a recording as a new pair of an ASCII 1999 configuration and data file. Each file replaces
// what was there only when both are complete, but where nothing may be replaced or the name leaves
// no room for a temporary file: such a file is written in place.
class RecordingWriter {
public:
    // What became of a pair. A file that could not be opened is passed over in silence; of one that
    // could be opened but not written in full, the path and the error are told.
    struct Outcome {
        QString failedFile;
        QString error;
        bool hasFailed() const { return !failedFile.isEmpty(); }
    };

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
