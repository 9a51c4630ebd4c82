// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>
#include <unistd.h>

// Stands in for the archiver 7z.exe where programs have no such endings: becomes the first
// installed archiver of that family, with the same arguments, input and output.
int main(int /*argc*/, char **argv)
{
    static char names[][4] = {"7z", "7zz", "7za", "7zr"};
    for (char *name : names) {
        argv[0] = name;
        execvp(name, argv); // returns only where it failed
    }
    std::fputs("Error: no archiver is installed\n", stderr);
    return 2;
}
