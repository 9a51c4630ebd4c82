// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What a reader noticed in a file of a recording. It reads on by its rules all the same: a note
// changes nothing. There is at most one of a kind, of the missing values one for each channel.
struct ReadingNote {
    enum class Kind { // with what count and amount tell beside what is said of them below
        LaterRevision, // amount: the year
        ChannelCounts, // the total of line 2 is not the sum; count: the total, amount: the sum
        NoRates, // announced, so that a line of one would be read as that of the start
        SeveralRates, // count: rate lines; amount: samples per second of the last one, which rules
        TriggerOnOtherDay, // amount: ms from the start to the trigger by the time of day alone
        NotAscii, // word: the type
        OtherLetters, // names seem to be in others than those of Latin-1; count: lines of names
                      // beyond ASCII; word: the letters, by lettersName()
        FewerSamples, // than the last rate line promises; count: samples read; amount: promised
        MoreSamples, // likewise
        EndedAtLine, // one that is blank or has no comma, while the file goes on
        LimitReached, // samplebudget.h; nothing from this line on was read
        FieldCounts, // count: lines with too few or too many fields; amount: by how many, below 0
                     // where there are too few
        EqualTimes, // count: samples, more than one; amount: their time, ms
        TimeJumps, // steps of more than twice the steps before and after; amounts in ms
        TimeSteppedBack, // amounts in ms, above 0
        MissingValues, // empty fields, 99999 and 999999; count: samples
    };
    enum class File { Configuration, Data }; // a text export counts as data

    Kind kind;
    File file = File::Data;
    qint64 line = 0; // where it was first met, counted from 1
    qint64 count = 1; // how often
    int channel = -1; // analog, counted from 0; -1 where it is about none
    double amount = 0; // where it was first met
    double largest = 0; // of all amounts
    QString word = {};
};
Q_DECLARE_TYPEINFO(ReadingNote, Q_MOVABLE_TYPE);
