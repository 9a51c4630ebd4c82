// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "archiveroutput.h"
#include "temporaryfolder.h"

#include <QObject>

#include <optional>

class ArchiverProcess;
class QProcess;

// Has the external archiver unpack packages, one after the other, into a temporary folder of this
// instance's own, and answers its questions. Whoever owns it forwards the signals of the process:
// readyRead() to readOutput(), finished() to end().
class PackageUnpacker : public QObject {
    Q_OBJECT

public:
    explicit PackageUnpacker(QObject *parent);

    QProcess *process() const; // a child of the parent

    // Empties the folder and starts the archiver, which puts all files of the package there,
    // without their folders. It may never start, nor end.
    void start(const QString &package);
    void readOutput();
    void end();
    void stop(); // kills the archiver and puts its folder away

    bool isBusy() const; // from start() until end() or stop()

    // The first "*.cfg" that was unpacked, in the order of the file system; empty for none.
    QString configuration() const;

signals:
    void packageInvalid(const QString &package); // once at most for each

private:
    ArchiverProcess *m_process;
    TemporaryFolder m_folder;
    QString m_package; // the latest
    std::optional<ArchiverOutput> m_output; // of it
    bool m_isBusy = false;
};
