// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"

#include "configurationreader.h"
#include "datareader.h"
#include "filekind.h"
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
    failure = Failure::None;
    try {
        load();
    } catch (const std::exception &error) { // out of memory, or no end of a file
        failure
            = dynamic_cast<const ReadError *>(&error) ? Failure::ReadError : Failure::LittleMemory;
        // Records are kept for those who hold them; these no one has seen yet.
        for (AnalogChannel *channel : qAsConst(analogChannels))
            *channel = AnalogChannel();
        for (DigitalChannel *channel : qAsConst(digitalChannels))
            *channel = DigitalChannel();
        clearConfig();
        loaded = 0;
    }
    emit initFinished();
}

void CFGProperties::load()
{
    if (isTextExport(filePath)) {
        readTxtFile();
        loaded = 1;
    } else {
        readConfgFile();
        loaded = readDatFile() ? 1 : 0;
        fftTransform();
    }
    requireMemory(0);
}

void CFGProperties::readConfgFile()
{
    QFile file(filePath);
    if (isPipeOrDevice(filePath) || !file.open(QIODevice::ReadOnly)) {
        qDebug("CANNOT OPEN CFG FILE");
        return;
    }
    readConfiguration(file, *this);
}

bool CFGProperties::readDatFile()
{
    filePath.replace(QLatin1String(".cfg"), QLatin1String(".dat"), Qt::CaseInsensitive);
    QFile file(existingPath(filePath));
    failure = Failure::NoDataFile;
    if (!isPipeOrDevice(file.fileName()) && file.open(QIODevice::ReadOnly)) {
        readData(file, *this);
        if (sampleCount > 0) {
            failure = Failure::None;
            return true;
        }
        const bool isAscii = fileType.contains(QLatin1String("ascii"), Qt::CaseInsensitive);
        failure = isAscii || fileType.isEmpty() ? Failure::NoDataLine : Failure::NotAscii;
    }
    clearConfig();
    return false;
}

void CFGProperties::readTxtFile()
{
    QFile file(filePath);
    if (!isPipeOrDevice(filePath) && file.open(QIODevice::ReadOnly))
        readTextExport(file, *this);
}

void CFGProperties::fftTransform()
{
    constexpr qint64 phasor = sizeof(float) + sizeof(float);
    requireMemory(analogChannels.size() * phasor * sampleTimes.size());
    for (AnalogChannel *channel : qAsConst(analogChannels))
        computePhasors(*channel, samplesPerCycle);
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
