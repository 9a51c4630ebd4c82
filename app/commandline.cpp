// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

QByteArray latin1Argument(const char *argument)
{
    return QString::fromLocal8Bit(argument).toLatin1();
}

QString pathArgument(int argc, const char *const *argv)
{
    if (argc < 2)
        return QString();
#ifdef Q_OS_WIN
    return QString::fromLatin1(argv[1]);
#else
    return QString::fromLatin1(latin1Argument(argv[1]));
#endif
}

bool isQuestion(int argc, const char *const *argv)
{
    constexpr std::array<std::string_view, 4> questions{"-h", "--help", "-v", "--version"};
    return argc > 1 && std::find(questions.begin(), questions.end(), argv[1]) != questions.end();
}

void answerQuestion(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("wavorin"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WAVORIN_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows disturbance recordings of protection relays."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("recording"),
        QStringLiteral("A file that ends with .cfg or .zip, to be opened at once."),
        QStringLiteral("[recording]"));
    parser.process(application);
    std::exit(EXIT_SUCCESS); // both options have ended the process
}
