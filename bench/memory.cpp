// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The memory that a recording of 1,000,000 samples and thirty plots stand in.

#include "cfgproperties.h"
#include "figures.h"
#include "noisyplot.h"
#include "recordingtext.h"

#include <QFile>
#include <QTemporaryDir>

#include <malloc.h>

#include <memory>

namespace {

constexpr RecordingText text{1000000, 20};
constexpr double megabyte = 1e6;
constexpr double allowance = 60; // MB that do not depend on the recording

// Resident memory of the process in MB, as Linux tells it.
double residentMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        const QByteArrayList lines = status.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("VmRSS:"))
                return line.simplified().split(' ').value(1).toDouble() * 1024 / megabyte;
        }
    }
    qFatal("resident memory is known on Linux only");
}

double seriesMemory(const CFGProperties &recording)
{
    constexpr int analogSeries = 4; // scaled and raw values, angles, magnitudes
    const double samples = recording.sampleCount;
    return samples
        * (sizeof(double) + analogSeries * sizeof(float) * RecordingText::analogCount
            + sizeof(int) * RecordingText::digitalCount)
        / megabyte;
}

} // namespace

Ratio memoryOfThirtyPlots()
{
    constexpr double goal = 250; // MB
    const auto memoryOf = [](int count) {
        const double before = residentMemory();
        const NoisyPlots plots(count, 20000, {1700, 320});
        plots.first().addCursorAt(300);
        plots.first().addCursorAt(700);
        plots.first().customZoomIn();
        return residentMemory() - before;
    };
    memoryOf(1); // what the first plot of a process loads
    malloc_trim(0);
    const double one = memoryOf(1);
    malloc_trim(0);
    const double thirty = memoryOf(30);
    malloc_trim(0); // so that the next figure does not take freed memory unnoticed
    return {thirty - one, goal, "MB"};
}

Ratio memoryAgainstSeries()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("recording"));
    QFile configuration(path + QStringLiteral(".cfg"));
    QFile data(path + QStringLiteral(".dat"));
    if (!configuration.open(QIODevice::WriteOnly) || !data.open(QIODevice::WriteOnly))
        qFatal("cannot write to %s", qPrintable(folder.path()));
    configuration.write(text.configuration());
    configuration.close();
    text.writeData(data);
    data.close();

    const double before = residentMemory();
    CFGProperties recording;
    recording.filePath = configuration.fileName();
    recording.init();
    if (recording.sampleCount != text.samples)
        qFatal("read %d of %d samples", recording.sampleCount, text.samples);
    const Ratio ratio{residentMemory() - before - allowance, seriesMemory(recording), "MB"};
    discardSeries(recording);
    return ratio;
}
