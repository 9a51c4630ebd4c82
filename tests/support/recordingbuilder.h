// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cfgproperties.h"

#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <functional>

// Writes a file; false where that fails.
inline bool writeTextFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

// The text of a configuration, put together from parts that a test may change. Counts that are not
// set are those of the lines.
struct ConfigurationText {
    QByteArray station = "Harju,Feeder J07,1999";
    QByteArray counts;
    QByteArrayList analog;
    QByteArrayList digital;
    QByteArray frequency = "50";
    QByteArrayList rates{"1000,40"};
    QByteArray start = "15/03/2024,10:00:00.000000";
    QByteArray trigger = "15/03/2024,10:00:00.020000";
    QByteArray fileType = "ASCII";
    QByteArray timeMultiplier = "1";

    // Appends a channel numbered in its turn, of whose line the rest is given.
    void addAnalog(const QByteArray &rest) { analog += numberAfter(analog) + ',' + rest; }
    void addDigital(const QByteArray &name)
    {
        digital += numberAfter(digital) + ',' + name + ",,,0";
    }

    // Lines joined by a line end, the last one with one too.
    QByteArray text(const QByteArray &lineEnd = "\n") const
    {
        QByteArrayList lines{station, counts.isEmpty() ? countedLines() : counts};
        lines += analog;
        lines += digital;
        lines += frequency;
        lines += QByteArray::number(rates.size());
        lines += rates;
        lines += start;
        lines += trigger;
        lines += fileType;
        lines += timeMultiplier;
        return lines.join(lineEnd) + lineEnd;
    }

private:
    static QByteArray numberAfter(const QByteArrayList &lines)
    {
        return QByteArray::number(lines.size() + 1);
    }
    QByteArray countedLines() const
    {
        return QByteArray::number(analog.size() + digital.size()) + ','
            + QByteArray::number(analog.size()) + "A," + QByteArray::number(digital.size()) + 'D';
    }
};

// The line of an analog channel IL<number> in A, on the secondary side of 400/1 unless told
// otherwise.
inline QByteArray analogLine(int number, const QByteArray &a = "1", const QByteArray &b = "0",
    const QByteArray &ratings = "400,1,S")
{
    const QByteArray text = QByteArray::number(number);
    return text + ",IL" + text + ",L" + text + ",Bay,A," + a + ',' + b + ",0,-32767,32767,"
        + ratings;
}

inline QByteArray digitalLine(int number)
{
    const QByteArray text = QByteArray::number(number);
    return text + ",DI" + text + ",,,0";
}

// The lines of data of count samples, rate of them in a second and the first at 0; each ends with
// the values that are given for the sample, counted from 0.
inline QByteArray dataLines(
    int count, double rate, const std::function<QByteArrayList(int)> &values)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i) {
        const QByteArrayList stamp{
            QByteArray::number(i + 1), QByteArray::number(qRound64(i * 1e6 / rate))};
        lines += (stamp + values(i)).join(',') + '\n';
    }
    return lines;
}

// Writes <base>.cfg and <base>.dat and returns the path of the former, empty where that fails.
inline QString writePair(
    const QString &base, const QByteArray &configuration, const QByteArray &data)
{
    const QString path = base + QLatin1String(".cfg");
    const bool isWritten
        = writeTextFile(path, configuration) && writeTextFile(base + QLatin1String(".dat"), data);
    return isWritten ? path : QString();
}

// Reads the pair at filePath as init() does, but for the phasors.
inline void readWithoutPhasors(CFGProperties &recording)
{
    recording.clearConfig();
    recording.readConfgFile();
    recording.loaded = recording.readDatFile() ? 1 : 0;
}

// A folder of its own, in which recordings are written and loaded; where the system has one for
// that, it may lie in memory.
class RecordingFolder {
public:
    RecordingFolder() = default;
    static RecordingFolder inMemory() { return RecordingFolder(QStringLiteral("/dev/shm")); }

    QString path(const char *name) const { return path(QString::fromUtf8(name)); }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    // Writes a file; false where that fails.
    bool write(const QString &name, const QByteArray &text) const
    {
        return writeTextFile(path(name), text);
    }

    // The result of init() is in loaded.
    void loadFile(CFGProperties &recording, const QString &name) const
    {
        recording.filePath = path(name);
        recording.init();
    }

    // Writes <name>.cfg and <name>.dat and loads them; the result of init() is in loaded.
    void load(CFGProperties &recording, const QByteArray &configuration, const QByteArray &data,
        const char *name = "rec") const
    {
        recording.loaded = -1;
        recording.filePath = writePair(path(name), configuration, data);
        if (!recording.filePath.isEmpty())
            recording.init();
    }

    // The same without the phasors, which take most of the time of a long recording.
    void read(
        CFGProperties &recording, const QByteArray &configuration, const QByteArray &data) const
    {
        recording.filePath = writePair(path("rec"), configuration, data);
        readWithoutPhasors(recording);
    }

private:
    explicit RecordingFolder(const QString &parent)
        : m_folder(QFileInfo(parent).isWritable()
                ? parent + QLatin1String("/wavorin-XXXXXX")
                : QDir::tempPath() + QLatin1String("/wavorin-XXXXXX"))
    {
    }

    QTemporaryDir m_folder;
};
