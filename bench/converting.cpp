// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Converting a recording with 16-bit data to a pair of files.

#include "conversion.h"
#include "figures.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>

namespace {

constexpr int rounds = 7;
constexpr int analogs = 16;
constexpr int states = 32;
constexpr int samples = 1000000;
constexpr double turn = 6.283185307179586;

void appendWord(QByteArray &bytes, int word)
{
    bytes += static_cast<char>(word & 0xff);
    bytes += static_cast<char>(word >> 8 & 0xff);
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray configuration()
{
    QByteArray text("Substation,Recorder,1999\n48,16A,32D\n");
    for (int k = 1; k <= analogs; ++k)
        text += QByteArray::number(k) + ",I,A,,A,0.01,0,0,-32767,32767,400,1,S\n";
    for (int j = 1; j <= states; ++j)
        text += QByteArray::number(j) + ",Trip,,,0\n";
    return text + "50\n1\n4000," + QByteArray::number(samples)
        + "\n15/03/2024,10:00:00.000000\n15/03/2024,10:00:00.100000\nBINARY\n1\n";
}

// Waves of one to five digits.
QByteArray data()
{
    QByteArray bytes;
    for (int i = 0; i < samples; ++i) {
        for (const int number : {i + 1, i * 250}) {
            appendWord(bytes, number & 0xffff);
            appendWord(bytes, number >> 16);
        }
        for (int k = 0; k < analogs; ++k)
            appendWord(bytes,
                static_cast<int>(std::lround(50 * std::pow(1.5, k) * std::sin(turn * i / 80 + k)))
                    & 0xffff);
        for (int word = 0; word < states / 16; ++word)
            appendWord(bytes, i >> 10 & 0xffff);
    }
    return bytes;
}

} // namespace

Ratio convertingAgainstGoal()
{
    const QTemporaryDir folder(folderInMemory());
    write(folder.filePath(QStringLiteral("r.cfg")), configuration());
    const QByteArray bytes = data();
    write(folder.filePath(QStringLiteral("r.dat")), bytes);
    convert::Options options;
    options.output = folder.filePath(QStringLiteral("copy"));
    options.mayReplace = true;
    const double shortest = shortestTime(rounds, [&] {
        convert::Conversion(options, [](const std::string &what) {
            qFatal("%s", what.c_str());
        }).convert(folder.filePath(QStringLiteral("r.cfg")));
    });
    constexpr double goal = 200;
    constexpr double bytesPerMillisecond = 1000; // in a MB/s
    return {bytes.size() / shortest / bytesPerMillisecond, goal, "MB/s"};
}
