// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"

#include "configurationreader.h"
#include "datareader.h"
#include "filekind.h"
#include "interruption.h"
#include "loadprogress.h"
#include "memoryneed.h"
#include "phasors.h"
#include "readerror.h"
#include "textreader.h"

#include <QDebug>
#include <QFile>

#include <algorithm>
#include <exception>

CFGProperties::CFGProperties(QObject *parent) : QObject(parent) { }

CFGProperties::~CFGProperties() = default;

void CFGProperties::init()
{
    clearConfig();
    m_failure = Failure::None;
    try {
        load();
    } catch (const Interruption &) {
        fail(Failure::GivenUp);
    } catch (const ReadError &) {
        fail(Failure::ReadError);
    } catch (const std::exception &) { // out of memory
        fail(Failure::LittleMemory);
    }
    m_progress.end();
    emit initFinished();
}

void CFGProperties::fail(Failure reason)
{
    // Records are kept for those who hold them; these no one has seen yet.
    for (AnalogChannel *channel : qAsConst(analogChannels))
        *channel = AnalogChannel();
    for (DigitalChannel *channel : qAsConst(digitalChannels))
        *channel = DigitalChannel();
    clearConfig();
    loaded = 0;
    m_failure = reason;
}

void CFGProperties::load()
{
    m_progress.look();
    if (isTextExport(filePath)) {
        readTxtFile();
        loaded = 1;
    } else {
        readConfgFile();
        loaded = readDatFile() ? 1 : 0;
        fftTransform();
    }
    requireMemory(0);
    m_progress.look();
}

void CFGProperties::readConfgFile()
{
    QFile file(filePath);
    if (isPipeOrDevice(filePath) || !file.open(QIODevice::ReadOnly)) {
        qDebug("CANNOT OPEN CFG FILE");
        return;
    }
    const LoadStage stage = reading(file);
    readConfiguration(file, *this);
}

bool CFGProperties::readDatFile()
{
    filePath.replace(QLatin1String(".cfg"), QLatin1String(".dat"), Qt::CaseInsensitive);
    QFile file(existingPath(filePath));
    m_failure = file.exists() ? Failure::NoAccess : Failure::NoDataFile;
    if (!isPipeOrDevice(file.fileName()) && file.open(QIODevice::ReadOnly)) {
        const LoadStage stage = reading(file);
        readData(file, *this);
        if (sampleCount > 0) {
            m_failure = Failure::None;
            return true;
        }
        // Without a rate, the type most likely stands a line later.
        const bool isNoted = std::any_of(notes.cbegin(), notes.cend(), [](const ReadingNote &note) {
            return note.kind == ReadingNote::Kind::NotAscii
                || note.kind == ReadingNote::Kind::NoRates;
        });
        const bool isAscii = fileType.contains(QLatin1String("ascii"), Qt::CaseInsensitive);
        m_failure = isNoted && !isAscii ? Failure::NotAscii : Failure::NoDataLine;
    }
    clearConfig();
    return false;
}

void CFGProperties::readTxtFile()
{
    QFile file(filePath);
    if (!isPipeOrDevice(filePath) && file.open(QIODevice::ReadOnly)) {
        const LoadStage stage = reading(file);
        readTextExport(file, *this);
    }
}

LoadStage CFGProperties::reading(const QFile &file)
{
    return {m_progress, LoadProgress::Stage::Reading, file.size(), [&file] { return file.pos(); }};
}

void CFGProperties::fftTransform()
{
    constexpr qint64 phasor = sizeof(float) + sizeof(float);
    requireMemory(analogChannels.size() * phasor * sampleTimes.size());
    qint64 samples = 0;
    for (const AnalogChannel *channel : qAsConst(analogChannels))
        samples += channel->rawValues.size();
    qint64 before = 0; // of the channels that have their phasors
    for (AnalogChannel *channel : qAsConst(analogChannels)) {
        const LoadStage stage(m_progress, LoadProgress::Stage::Phasors, samples,
            [=] { return before + channel->fftMagnitudes.size(); });
        computePhasors(*channel, samplesPerCycle);
        before += channel->rawValues.size();
    }
}

void CFGProperties::clearConfig()
{
    static_cast<RecordingContents &>(*this) = {};
}

AnalogChannel *CFGProperties::analogChannel(int number) const
{
    if (number > analogChannels.size())
        number -= analogChannels.size();
    return analogChannels.value(number - 1, nullptr);
}

DigitalChannel *CFGProperties::digitalChannel(int number) const
{
    return digitalChannels.value(number - 1, nullptr);
}

float CFGProperties::updateMaxValue()
{
    maxValue = 0;
    for (const AnalogChannel *channel : qAsConst(analogChannels))
        maxValue = std::max(maxValue, channel->maxValue);
    return maxValue;
}

float CFGProperties::updateMinValue()
{
    minValue = 0;
    for (const AnalogChannel *channel : qAsConst(analogChannels))
        minValue = std::min(minValue, channel->minValue);
    return minValue;
}
