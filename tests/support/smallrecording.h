// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "recordingbuilder.h"

// Two analog channels (IL1 on the secondary side of 400/1, UL1 of 20000/100) and one digital one
// (TRIP, from sample 20 on) at 50 Hz and 1 kHz, 40 samples, triggered 20 ms after the start. IL1 is
// a square wave of 100, UL1 counts up.
inline QByteArray smallConfiguration(const QByteArray &station = "Harju 110/20 kV",
    const QByteArray &startDate = "15/03/2024", const QByteArray &startTime = "10:00:00.000000")
{
    ConfigurationText text;
    text.station = station + ",Feeder J07,1999";
    text.addAnalog("IL1,A,,A,0.5,0,0,-32767,32767,400,1,S");
    text.addAnalog("UL1,A,,V,2,0,0,-32767,32767,20000,100,S");
    text.addDigital("TRIP");
    text.start = startDate + ',' + startTime;
    text.trigger = startDate + ",10:00:00.020000";
    return text.text();
}

inline QByteArray smallData()
{
    return dataLines(40, 1000, [](int i) {
        return QByteArrayList{
            i % 20 < 10 ? "200" : "-200", QByteArray::number(i), i < 20 ? "0" : "1"};
    });
}

// Writes <folder>/<name>.cfg and .dat and returns the path of the former, empty where that fails.
inline QString writeSmallRecording(const QString &folder, const QString &name,
    const QByteArray &configuration = smallConfiguration())
{
    return writePair(folder + QLatin1Char('/') + name, configuration, smallData());
}
