// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "program.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return convert::runProgram(QCoreApplication::arguments().mid(1), std::cout, std::cerr);
}
