// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cfgproperties.h"
#include "smallrecording.h"

#include <QByteArrayList>
#include <QFileInfo>
#include <QTemporaryDir>

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

// A folder of its own, in which recordings are written and loaded; where the system has one for
// that, it may lie in memory.
class RecordingFolder {
public:
    RecordingFolder() = default;
    static RecordingFolder inMemory() { return RecordingFolder(QStringLiteral("/dev/shm")); }

    QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    // Writes <name>.cfg and <name>.dat and loads them; the result of init() is in loaded.
    void load(CFGProperties &recording, const QByteArray &configuration, const QByteArray &data,
        const char *name = "rec") const
    {
        const QString base = path(name);
        recording.loaded = -1;
        if (!writeTextFile(base + QLatin1String(".cfg"), configuration)
            || !writeTextFile(base + QLatin1String(".dat"), data))
            return;
        recording.filePath = base + QLatin1String(".cfg");
        recording.init();
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
