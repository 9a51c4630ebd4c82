// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "analogchannel.h"
#include "digitalchannel.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

// One disturbance recording in memory: the header of the configuration file (IEEE C37.111-1999,
// clause 5), one entry per channel line in the definition lists, the sample times, and one record
// per channel. The lists of definitions are parallel within each of the two groups, except that
// toPrimary and toSecondary get no entry for a channel whose P/S flag is neither "P" nor "S".
class CFGProperties : public QObject {
    Q_OBJECT

public:
    explicit CFGProperties(QObject *parent = nullptr);
    ~CFGProperties() override;

    QString filePath; // file to load; names the ".dat" file after a COMTRADE load
    int loaded = 0; // result of the last init(): 1 loaded, 0 failed
    int cfgLineNumber = 0; // configuration lines consumed since clearConfig()
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
    double timeMultiplier = 1.0; // read, not applied; survives clearConfig()
    QList<AnalogChannel *> analogChannels; // the records outlive the recording, see below
    QList<DigitalChannel *> digitalChannels;
    float maxValue = 0; // result of the last updateMaxValue()
    float minValue = 0; // result of the last updateMinValue()

    // Reads the ASCII data file beside the configuration (clause 6) and makes the channel records.
    // False, with everything cleared, when there is no data line.
    bool readDatFile();

    // Record by 1-based number. A number above the count has the count subtracted once; any number
    // that still has no record gives null.
    AnalogChannel *analogChannel(int number) const;
    // Record by 1-based number, null when there is none.
    DigitalChannel *digitalChannel(int number) const;

    // The largest maxValue (smallest minValue) of all analog channels, not below (above) 0.
    float updateMaxValue();
    float updateMinValue();

signals:
    void initFinished(); // at the end of every init()
    void setChannelsPoints(); // never emitted

public slots:
    void readConfgFile();
    void readTxtFile();
    void init();
    void fftTransform();
    void clearConfig();
};
