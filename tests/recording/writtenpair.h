// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "recordingwriter.h"

#include "recordingbuilder.h"

inline QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

// Two analog channels and one digital one, a sample each millisecond from 0 to last.
inline ConfigurationText configurationText()
{
    ConfigurationText text;
    text.analog = QByteArrayList{
        "1,IL1,A,Bay,A,0.5,-1,3.25,-32767,32767,400,1,S", "2,UL1,B,,V,2,0,0,-100,100,20000,100,P"};
    text.digital = QByteArrayList{"1,TRIP,x,y,0"};
    return text;
}

inline QByteArray dataUpTo(int last)
{
    return dataLines(last + 1, 1000, [](int i) {
        return QByteArrayList{
            QByteArray::number(i % 7), QByteArray::number(-i), QByteArray::number(i % 2)};
    });
}

// What a writer made.
struct Written {
    RecordingWriter::Outcome outcome;
    QByteArray configuration;
    QByteArray data;

    QByteArray line(int number) const // counted from 1
    {
        return configuration.split('\n').value(number - 1);
    }
};

inline Written written(const CFGProperties &recording, double start, double end,
    const QStringList &primaries = {}, const QStringList &secondaries = {})
{
    const RecordingFolder folder;
    const RecordingWriter writer(recording, primaries, secondaries);
    const RecordingWriter::Outcome outcome = writer.write(folder.path("out"), start, end);
    return {outcome, contents(folder.path("out.cfg")), contents(folder.path("out.dat"))};
}

inline Written writtenAsPrimary(const CFGProperties &recording, const QStringList &primaries = {},
    const QStringList &secondaries = {})
{
    const RecordingFolder folder;
    const RecordingWriter writer(recording, primaries, secondaries);
    const RecordingWriter::Outcome outcome = writer.writeAsPrimary(folder.path("out"));
    return {outcome, contents(folder.path("out.cfg")), contents(folder.path("out.dat"))};
}
