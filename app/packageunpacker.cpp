// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packageunpacker.h"

#include <QDir>
#include <QProcess>

PackageUnpacker::PackageUnpacker(QObject *parent)
    : QObject(parent), m_process(new QProcess(parent)), m_folder(temporaryFolderBase())
{
    m_process->setProcessChannelMode(QProcess::MergedChannels);
}

QProcess *PackageUnpacker::process() const
{
    return m_process;
}

void PackageUnpacker::start(const QString &package)
{
    m_isBusy = !package.isEmpty();
    if (!m_isBusy)
        return;
    m_folder.renew();
    m_output.emplace(package);
    m_process->start(QStringLiteral("7z.exe"),
        {QStringLiteral("e"), package, QStringLiteral("-aoa"),
            QStringLiteral("-o") + m_folder.path()});
}

void PackageUnpacker::readOutput()
{
    if (!m_isBusy)
        return; // stopped: nobody waits for the package any more
    const ArchiverOutput::Reaction reaction = m_output->read(m_process->readAll());
    if (!reaction.answer.isEmpty())
        m_process->write(reaction.answer);
    if (reaction.error)
        emit packageInvalid();
}

void PackageUnpacker::end()
{
    m_isBusy = false;
}

void PackageUnpacker::stop()
{
    m_isBusy = false;
    if (m_process->state() != QProcess::NotRunning) {
        m_process->kill();
        m_process->waitForFinished();
    }
    m_folder.remove();
}

bool PackageUnpacker::isBusy() const
{
    return m_isBusy;
}

bool PackageUnpacker::isUnableToStart() const
{
    return m_process->error() == QProcess::FailedToStart;
}

QString PackageUnpacker::configuration() const
{
    const QDir folder(m_folder.path());
    const QStringList names
        = folder.entryList({QStringLiteral("*.cfg")}, QDir::Files, QDir::Unsorted);
    return names.isEmpty() ? QString() : folder.absoluteFilePath(names.first());
}
