// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filewarning.h"

#include <QCoreApplication>

QString fileWarning(const QString &text, const QString &path, const QString &reason)
{
    // The toolkit gives its reasons in English alone.
    QString translated
        = QCoreApplication::translate("QIODevice", reason.toUtf8().constData()).trimmed();
    if (translated.endsWith(QLatin1Char('.')) || translated.endsWith(QChar(0x3002))) // ideographic
        translated.chop(1);
    return text.arg(path, translated);
}
