// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "playedarchiver.h"
#include "smallrecording.h"
#include "windowfixture.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStatusBar>
#include <QtTest>

#include <dirent.h>
#include <memory>

// For tests of packages in a window. They lie in its folder.
class PackagesWindow : public WindowFixture {
protected:
    std::unique_ptr<BoxReader> boxes;
    QByteArray searchPath;
    QString realArchiver; // one that makes ZIP files; empty where there is none

    static QString unpackingFolder(int number)
    {
        return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
            + QLatin1String("/tmp/files") + QString::number(number);
    }

    static bool pack(const QString &program, const QString &content, const QString &zip,
        const QStringList &arguments)
    {
        QProcess archiver;
        archiver.setWorkingDirectory(content);
        archiver.start(
            program, QStringList({QStringLiteral("a"), QStringLiteral("-tzip"), zip}) + arguments);
        return archiver.waitForFinished() && archiver.exitCode() == 0;
    }

    // Packs files of the folder "in" with the real archiver; empty where that fails.
    QString package(const char *name, const QStringList &arguments = {QStringLiteral(".")})
    {
        return pack(realArchiver, path("in"), path(name), arguments) ? path(name) : QString();
    }

    // Names ending in ".cfg" in the order in which the file system returns them.
    static QStringList configurationsIn(const QString &folder)
    {
        QStringList names;
        DIR *directory = opendir(QFile::encodeName(folder).constData());
        if (!directory)
            return names;
        while (const dirent *entry = readdir(directory)) {
            const QString name = QFile::decodeName(entry->d_name);
            if (name.endsWith(QLatin1String(".cfg")))
                names.append(name);
        }
        closedir(directory);
        return names;
    }

    QByteArray encodedPath(const char *name) const { return QFile::encodeName(path(name)); }

    void play(const QByteArray &lines) const { playArchiver(lines, searchPath); }

    // Any file will do as a package for it.
    QString anyPackage()
    {
        return writeTextFile(path("some.zip"), "PK") ? path("some.zip") : QString();
    }

    void expectNotValidBox()
    {
        QTRY_VERIFY(boxes->count() > 0);
        QTest::qWait(50);
        const QList<BoxReader::Box> seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].icon, QMessageBox::Critical);
        QCOMPARE(seen[0].title, QStringLiteral("Error"));
        QCOMPARE(seen[0].text,
            QStringLiteral("The zip file is not valid.\nPlease select another file."));
        QVERIFY(seen[0].details.startsWith(folder->path()));
        QCOMPARE(seen[0].buttons, QMessageBox::Close);
        QVERIFY(seen[0].modal);
    }

    void expectNothingLoaded(const QString &zip)
    {
        QVERIFY(!window->recording());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin"));
        QCOMPARE(window->windowFilePath(), zip);
        QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File loaded"));
    }

    void expectNextGoodFileOpens()
    {
        window->open(writeSmallRecording(folder->path(), QStringLiteral("next")));
        QVERIFY(window->recording());
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - next.cfg"));
    }
};
