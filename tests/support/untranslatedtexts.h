// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPair>
#include <QSet>
#include <QTranslator>

// Installed before every other translator, it is asked last, and keeps what none of them
// translates.
class UntranslatedTexts : public QTranslator {
public:
    using Text = QPair<QString, QString>; // context and source text

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        m_texts.insert({QLatin1String(context), QString::fromUtf8(text)});
        return QString();
    }
    QSet<Text> texts() const { return m_texts; }
    void clear() { m_texts.clear(); }

private:
    mutable QSet<Text> m_texts;
};
