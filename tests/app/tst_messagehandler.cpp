// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "messagehandler.h"

#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Outcome {
    QByteArray standardError;
    int status = 0;
};

// Calls the handler in a process of its own. Where a debugger would go on after its break, so does
// this process.
Outcome outcomeOf(QtMsgType type, const char *message, bool debugged = false)
{
    int ends[2];
    if (pipe(ends) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        const rlimit noCore{0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        std::signal(SIGABRT, SIG_DFL);
        std::signal(SIGTRAP, debugged ? SIG_IGN : SIG_DFL);
        dup2(ends[1], STDERR_FILENO);
        messageOutput(type, message);
        _exit(0);
    }
    close(ends[1]);
    Outcome outcome;
    char buffer[256];
    for (ssize_t n = 0; (n = read(ends[0], buffer, sizeof buffer)) > 0;)
        outcome.standardError.append(buffer, int(n));
    close(ends[0]);
    waitpid(child, &outcome.status, 0);
    return outcome;
}

} // namespace

class TestMessageHandler : public QObject {
    Q_OBJECT

private slots:
    void writesToStandardError_data();
    void writesToStandardError();
    void fatalMessageEndsTheProcess_data();
    void fatalMessageEndsTheProcess();
};

void TestMessageHandler::writesToStandardError_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("debug") << int(QtDebugMsg) << QByteArray("Debug: 100 %s left\n");
    QTest::newRow("warning") << int(QtWarningMsg) << QByteArray("Warning: 100 %s left\n");
    QTest::newRow("critical") << int(QtCriticalMsg) << QByteArray("Critical: 100 %s left\n");
    QTest::newRow("information is dropped") << int(QtInfoMsg) << QByteArray();
}

void TestMessageHandler::writesToStandardError()
{
    QFETCH(int, type);
    const Outcome outcome = outcomeOf(QtMsgType(type), "100 %s left");
    QTEST(outcome.standardError, "output");
    QVERIFY(WIFEXITED(outcome.status));
    QCOMPARE(WEXITSTATUS(outcome.status), 0);
}

void TestMessageHandler::fatalMessageEndsTheProcess_data()
{
    QTest::addColumn<bool>("debugged");
    QTest::newRow("at the break where no debugger is") << false;
    QTest::newRow("by abort where a debugger goes on") << true;
}

void TestMessageHandler::fatalMessageEndsTheProcess()
{
    QFETCH(bool, debugged);
    const Outcome outcome = outcomeOf(QtFatalMsg, "no way on", debugged);
    QCOMPARE(outcome.standardError, QByteArray("Fatal: no way on\n"));
    QVERIFY(WIFSIGNALED(outcome.status));
    QCOMPARE(WTERMSIG(outcome.status), debugged ? SIGABRT : SIGTRAP);
}

QTEST_GUILESS_MAIN(TestMessageHandler)
#include "tst_messagehandler.moc"
