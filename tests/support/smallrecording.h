// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

// Writes a file; false where that fails.
inline bool writeTextFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

// Two analog channels (IL1 on the secondary side of 400/1, UL1 of 20000/100) and one digital one
// (TRIP, from sample 20 on) at 50 Hz and 1 kHz, 40 samples, triggered 20 ms after the start. IL1 is
// a square wave of 100, UL1 counts up.
inline QByteArray smallConfiguration(const QByteArray &station = "Harju 110/20 kV",
    const QByteArray &startDate = "15/03/2024", const QByteArray &startTime = "10:00:00.000000")
{
    return station
        + ",Feeder J07,1999\n3,2A,1D\n1,IL1,A,,A,0.5,0,0,-32767,32767,400,1,S\n"
          "2,UL1,A,,V,2,0,0,-32767,32767,20000,100,S\n1,TRIP,,,0\n50\n1\n1000,40\n"
        + startDate + ',' + startTime + '\n' + startDate + ",10:00:00.020000\nASCII\n1\n";
}

inline QByteArray smallData()
{
    QByteArray lines;
    for (int i = 0; i < 40; ++i) {
        lines += QByteArray::number(i + 1) + ',' + QByteArray::number(i * 1000) + ','
            + (i % 20 < 10 ? "200" : "-200") + ',' + QByteArray::number(i) + ','
            + (i < 20 ? "0" : "1") + '\n';
    }
    return lines;
}

// Writes <folder>/<name>.cfg and .dat and returns the path of the former, empty where that fails.
inline QString writeSmallRecording(const QString &folder, const QString &name,
    const QByteArray &configuration = smallConfiguration())
{
    const QString base = folder + QLatin1Char('/') + name;
    const bool written = writeTextFile(base + QLatin1String(".cfg"), configuration)
        && writeTextFile(base + QLatin1String(".dat"), smallData());
    return written ? base + QLatin1String(".cfg") : QString();
}
