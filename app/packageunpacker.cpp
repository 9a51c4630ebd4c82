// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packageunpacker.h"

#include <QDirIterator>
#include <QProcess>

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#include <sys/syscall.h>
#endif

namespace {

#ifdef Q_OS_LINUX
// Has the archiver, this process, end with the viewer, and the rest of its group end with it: a
// process beside it waits for its end. Being no ordinary child, that one is nobody's to wait for.
void dieTogether()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#ifdef SYS_close_range
    const pid_t archiver = getpid();
    if (syscall(SYS_clone, 0UL, nullptr, nullptr, nullptr, nullptr) != 0) // allowed between threads
        return;
    sigset_t end;
    sigemptyset(&end);
    sigaddset(&end, SIGTERM);
    sigprocmask(SIG_BLOCK, &end, nullptr);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (syscall(SYS_close_range, 0U, ~0U, 0U) != 0)
        _exit(0); // the viewer would wait for what is open here
    if (int received = 0; getppid() == archiver)
        sigwait(&end, &received);
    ::kill(-archiver, SIGKILL);
    _exit(0); // where it has no group of its own
#endif
}
#endif

} // namespace

// The archiver, which may be a script that calls another program: they live and die together.
class ArchiverProcess : public QProcess {
public:
    using QProcess::QProcess;

    void stop()
    {
        if (state() == NotRunning)
            return;
#ifdef Q_OS_UNIX
        if (const auto group = static_cast<pid_t>(processId()); group > 0)
            ::kill(-group, SIGKILL);
#endif
        kill(); // where it has no group of its own
        waitForFinished();
    }

protected:
    void setupChildProcess() override
    {
#ifdef Q_OS_UNIX
        setpgid(0, 0);
#endif
#ifdef Q_OS_LINUX
        dieTogether();
#endif
    }
};

namespace {

// The archiver takes an asterisk or a question mark for any letters, a hyphen at the beginning for
// an option and an at sign there for a list of packages.
bool isMisread(const QString &package)
{
    return package.contains(QLatin1Char('*')) || package.contains(QLatin1Char('?'))
        || package.startsWith(QLatin1Char('-')) || package.startsWith(QLatin1Char('@'));
}

} // namespace

PackageUnpacker::PackageUnpacker(QObject *parent)
    : QObject(parent), m_process(new ArchiverProcess(parent)), m_folder(temporaryFolderBase())
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
    m_package = package;
    m_folder.renew();
    const QString plain = isMisread(package) ? m_folder.plainPath(package) : package;
    m_output.emplace(plain);
    m_process->start(QStringLiteral("7z.exe"),
        {QStringLiteral("e"), plain, QStringLiteral("-aoa"),
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
        emit packageInvalid(m_package);
}

void PackageUnpacker::end()
{
    m_isBusy = false;
}

void PackageUnpacker::stop()
{
    m_isBusy = false;
    m_process->stop();
    m_folder.remove();
}

bool PackageUnpacker::isBusy() const
{
    return m_isBusy;
}

QString PackageUnpacker::configuration() const
{
    // Stops at the first one, however many files there are.
    QDirIterator found(m_folder.path(), {QStringLiteral("*.cfg")}, QDir::Files);
    return found.hasNext() ? found.next() : QString();
}
