// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "interruption.h"

#include "loadprogress.h"

#include <QThread>

void countWork(qint64 steps)
{
    thread_local qint64 sinceLook = 0;
    sinceLook += steps;
    if (sinceLook < stepsBetweenLooks)
        return;
    sinceLook = 0;
    if (QThread::currentThread()->isInterruptionRequested())
        throw Interruption();
    LoadStage::look();
}
