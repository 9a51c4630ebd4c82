// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What this build is: process-wide values, set once at start-up before any window exists and only
// read afterwards, all on the main thread.
class ApplicationIdentity {
public:
    static int brand(); // a number of the table in brand.h
    static void setBrand(int brand);
    static QString organisationName();
    static void setOrganisationName(const QString &name);
    static QString applicationName();
    static void setApplicationName(const QString &name);
};
