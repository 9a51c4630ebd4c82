// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <unistd.h>

// While it lives, the superuser has the rights of a user who owns nothing yet, so that permissions
// count. For others nothing changes.
class OrdinaryUser {
public:
    OrdinaryUser() : m_isLowered(geteuid() == 0 && seteuid(nobody) == 0) { }
    ~OrdinaryUser()
    {
        if (m_isLowered)
            m_isLowered = seteuid(0) != 0;
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    static constexpr uid_t nobody = 65534;
    bool m_isLowered;
};
