// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFile>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <sys/resource.h>
#include <unistd.h>

// While it lives, this process gets no more than so many bytes of memory beyond what it has.
class AddressSpaceLimit {
public:
    explicit AddressSpaceLimit(qint64 bytes)
    {
        QFile sizes(QStringLiteral("/proc/self/statm"));
        if (!sizes.open(QIODevice::ReadOnly) || getrlimit(RLIMIT_AS, &m_before) != 0)
            return;
        const qint64 pages = sizes.readAll().split(' ').constFirst().toLongLong();
        const rlimit limit{
            static_cast<rlim_t>(pages * sysconf(_SC_PAGESIZE) + bytes), m_before.rlim_max};
        m_isSet = setrlimit(RLIMIT_AS, &limit) == 0;
    }
    ~AddressSpaceLimit()
    {
        if (m_isSet)
            setrlimit(RLIMIT_AS, &m_before);
    }
    AddressSpaceLimit(const AddressSpaceLimit &) = delete;
    AddressSpaceLimit &operator=(const AddressSpaceLimit &) = delete;

    bool isSet() const { return m_isSet; }

private:
#ifdef __GLIBC__
    // Larger blocks, once freed, go back to the system instead of waiting for the next.
    static inline const int s_isGivenBack = mallopt(M_MMAP_THRESHOLD, 1 << 14);
#endif
    rlimit m_before{};
    bool m_isSet = false;
};
