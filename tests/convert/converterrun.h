// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "program.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <sstream>

inline bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

// A folder with what the converter reads and writes, and runs of it. Paths in messages are names in
// this folder.
class ConverterFolder {
public:
    struct Outcome {
        int status;
        QByteArray output;
        QByteArray errors;
    };

    QString path(const QString &name) const { return m_folder.filePath(name); }
    bool write(const char *name, const QByteArray &bytes) const
    {
        return writeBytes(path(QString::fromUtf8(name)), bytes);
    }
    QByteArray read(const char *name) const { return bytesOf(path(QString::fromUtf8(name))); }
    // All that is in the folder, hidden files as well.
    QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    // The words are separated by single blanks; an @ stands for the folder and a slash.
    Outcome run(const QString &words) const
    {
        QStringList arguments = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        arguments.replaceInStrings(QStringLiteral("@"), m_folder.path() + QLatin1Char('/'));
        std::ostringstream output;
        std::ostringstream errors;
        const int status = convert::runProgram(arguments, output, errors);
        return {status, QByteArray::fromStdString(output.str()),
            QByteArray::fromStdString(errors.str())
                .replace(QFile::encodeName(m_folder.path() + QLatin1Char('/')), "")};
    }

private:
    QTemporaryDir m_folder;
};
