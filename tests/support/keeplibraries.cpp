// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Linked into the viewer that the sanitizers watch: libraries stay loaded until the end, so that a
// leak is reported with the name of the library it came from.
extern "C" int dlclose(void *)
{
    return 0;
}
