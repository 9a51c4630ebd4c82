// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "textlines.h"

#include "interruption.h"
#include "readerror.h"
#include "samplebudget.h"

#include <QIODevice>

QByteArray nextLine(QIODevice &device, bool &isTooLong)
{
    constexpr int stepsOfALine = 200;
    constexpr int stepsOfALetter = 4; // until it stands in a text
    constexpr qint64 mostAtOnce = 1 << 14; // bytes
    QByteArray line;
    while (!line.endsWith('\n')) {
        const QByteArray part = device.readLine(mostAtOnce);
        if (part.isEmpty()) {
            requireEnd(device);
            break;
        }
        line += part;
        countWork(stepsOfALine + stepsOfALetter * part.size());
        if (line.size() > mostLineBytes) {
            isTooLong = true;
            return {};
        }
    }
    return line;
}

void requireEnd(QIODevice &device)
{
    char next = 0;
    if (device.peek(&next, 1) != 0)
        throw ReadError();
}

QVector<QStringRef> firstFields(const QString &line, int most)
{
    QVector<QStringRef> fields;
    for (int from = 0; fields.size() < most;) {
        const int comma = line.indexOf(QLatin1Char(','), from);
        fields.append(line.midRef(from, comma < 0 ? -1 : comma - from));
        if (comma < 0)
            break;
        from = comma + 1;
    }
    return fields;
}
