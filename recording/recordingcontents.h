// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "analogchannel.h"
#include "digitalchannel.h"
#include "readingnote.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

// All that a recording holds of its files: the header of the configuration file (IEEE C37.111-1999,
// clause 5), one entry per channel line in the definition lists, the sample times, and one record
// per channel. The lists of definitions are parallel within each of the two groups, except that
// toPrimary and toSecondary get no entry for a channel whose P/S flag is neither "P" nor "S".
struct RecordingContents {
    int cfgLineNumber = 0; // configuration lines consumed so far
    int sampleCount = 0; // data lines read
    QString stationName;
    QString recordingDeviceId;
    QString revisionYear;
    int totalChannelCount = 0; // TT, as promised by the file
    int analogChannelCount = 0; // ##A, as promised by the file
    int digitalChannelCount = 0; // ##D, as promised by the file
    QList<int> analogIndexes;
    QStringList analogIds;
    QStringList analogPhases;
    QStringList analogCircuits;
    QStringList analogUnits;
    QList<float> analogA;
    QList<float> analogB;
    QList<double> analogSkews;
    QList<int> analogMins;
    QList<int> analogMaxs;
    QList<double> toPrimary;
    QList<double> primaryValues;
    QList<double> toSecondary;
    QList<double> secondaryValues;
    QStringList psFlags;
    QVector<double> sampleTimes; // ms
    QList<int> digitalIndexes;
    QStringList digitalIds;
    QStringList digitalPhases;
    QStringList digitalCircuits;
    QStringList digitalNormalStates;
    double lineFrequency = 0; // Hz
    int rateCount = 0;
    double sampleRate = 0; // samples per second of the last rate line
    int lastSampleNumber = 0; // of the last rate line
    qint64 durationMs = 0;
    int samplesPerCycle = 0;
    QString startDate;
    QString startTime;
    QString triggerDate;
    QString triggerTime;
    int triggerOffsetMs = 0; // from startTime to triggerTime, time of day only
    QString fileType;
    QList<AnalogChannel *> analogChannels; // the records outlive the recording
    QList<DigitalChannel *> digitalChannels;
    QVector<ReadingNote> notes; // of what the readers noticed: configuration, then data

    // Kept for those who look for them; the program reads neither.
    float maxValue = 0; // result of the last updateMaxValue()
    float minValue = 0; // result of the last updateMinValue()
};
