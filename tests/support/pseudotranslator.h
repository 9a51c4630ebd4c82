// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTranslator>

// Translates "text" of any context to "<context>text", so that a test sees what is translated, and
// in which context.
class PseudoTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QStringLiteral("<%1>%2").arg(QLatin1String(context), QString::fromUtf8(text));
    }
};
