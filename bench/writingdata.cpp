// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing 200,000 samples to a file.

#include "recordingwriter.h"

#include "cfgproperties.h"
#include "datareader.h"
#include "figures.h"
#include "recordingtext.h"

#include <QBuffer>
#include <QDir>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

constexpr int rounds = 11;
constexpr RecordingText text{200000, 20};

// The writer that suggests itself: a call of the toolkit for each field, and a text stream.
void writePlainly(const CFGProperties &recording, const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    QTextStream stream(&file);
    for (int i = 0; i < recording.sampleCount; ++i) {
        stream << QString::number(i + 1) << ','
               << QString::number(recording.sampleTimes.at(i) * 1000, 'f', 0);
        for (const AnalogChannel *channel : recording.analogChannels)
            stream << ',' << QString::number(double(channel->rawValues.at(i)), 'f', 0);
        for (const DigitalChannel *channel : recording.digitalChannels)
            stream << ',' << QString::number(channel->values.at(i));
        stream << '\n';
    }
    stream.flush();
    file.commit();
}

} // namespace

QString folderInMemory()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + QStringLiteral("/wavorin-XXXXXX");
}

Ratio writingPlainlyAgainstWriting()
{
    CFGProperties recording;
    configure(recording, text);
    QBuffer buffer;
    buffer.setData(text.data());
    buffer.open(QIODevice::ReadOnly);
    readData(buffer, recording);
    const QTemporaryDir folder(folderInMemory());
    const RecordingWriter writer(recording, {}, {});
    const Ratio ratio = timesInTurn(
        rounds, [&] { writePlainly(recording, folder.filePath(QStringLiteral("plain.dat"))); },
        [&] {
            const double end = recording.sampleTimes.constLast();
            if (writer.write(folder.filePath(QStringLiteral("writer.cfg")), 0, end).hasFailed())
                qFatal("cannot write to %s", qPrintable(folder.path()));
        });
    discardSeries(recording);
    return ratio;
}
