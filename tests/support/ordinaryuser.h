// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

// While it lives, the superuser has the rights of a user who owns nothing yet, so that permissions
// count. For others nothing changes, nor on Windows, where a file that is read-only is so for all.
class OrdinaryUser {
public:
#ifdef Q_OS_UNIX
    OrdinaryUser() : m_isLowered(geteuid() == 0 && seteuid(nobody) == 0) { }
    ~OrdinaryUser()
    {
        if (m_isLowered)
            m_isLowered = seteuid(0) != 0;
    }
#else
    OrdinaryUser() { }
    ~OrdinaryUser() { }
#endif
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

#ifdef Q_OS_UNIX
private:
    static constexpr uid_t nobody = 65534;
    bool m_isLowered;
#endif
};
