// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "recordingcontents.h"

#include <QHash>

// Notes as short texts: kind, file and line, count; then, where they are not 0, the channel as
// "ch" and its number (from 0), the amount and the largest one; then the word.
inline QStringList noteTexts(const RecordingContents &recording)
{
    using Kind = ReadingNote::Kind;
    static const QHash<int, QString> names{
        {static_cast<int>(Kind::LaterRevision), QStringLiteral("revision")},
        {static_cast<int>(Kind::ChannelCounts), QStringLiteral("counts")},
        {static_cast<int>(Kind::NoRates), QStringLiteral("norates")},
        {static_cast<int>(Kind::SeveralRates), QStringLiteral("rates")},
        {static_cast<int>(Kind::TriggerOnOtherDay), QStringLiteral("day")},
        {static_cast<int>(Kind::NotAscii), QStringLiteral("type")},
        {static_cast<int>(Kind::OtherLetters), QStringLiteral("letters")},
        {static_cast<int>(Kind::FewerSamples), QStringLiteral("fewer")},
        {static_cast<int>(Kind::MoreSamples), QStringLiteral("more")},
        {static_cast<int>(Kind::EndedAtLine), QStringLiteral("ended")},
        {static_cast<int>(Kind::LimitReached), QStringLiteral("limit")},
        {static_cast<int>(Kind::FieldCounts), QStringLiteral("fields")},
        {static_cast<int>(Kind::EqualTimes), QStringLiteral("equal")},
        {static_cast<int>(Kind::TimeJumps), QStringLiteral("jumps")},
        {static_cast<int>(Kind::TimeSteppedBack), QStringLiteral("back")},
        {static_cast<int>(Kind::MissingValues), QStringLiteral("missing")},
    };
    QStringList texts;
    for (const ReadingNote &note : recording.notes) {
        const bool isData = note.file == ReadingNote::File::Data;
        QStringList parts{names.value(static_cast<int>(note.kind)),
            (isData ? QStringLiteral("dat:%1") : QStringLiteral("cfg:%1")).arg(note.line),
            QStringLiteral("x%1").arg(note.count)};
        if (note.channel >= 0)
            parts += QStringLiteral("ch%1").arg(note.channel);
        if (note.amount != 0 || note.largest != 0)
            parts += QStringLiteral("%1..%2")
                         .arg(note.amount, 0, 'g', 12)
                         .arg(note.largest, 0, 'g', 12);
        if (!note.word.isEmpty())
            parts += note.word;
        texts += parts.join(QLatin1Char(' '));
    }
    return texts;
}
