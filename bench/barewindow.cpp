// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QWidget>

// What any program of the toolkit costs to start: the measure of the viewer's start.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.show();
    return QApplication::exec();
}
