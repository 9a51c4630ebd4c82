// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMap>
#include <QRegularExpression>
#include <QString>

// The declarations of a style sheet, by selector and property; later ones replace earlier ones, as
// in the toolkit. White space in values is simplified.
class StyleRules {
public:
    explicit StyleRules(QString sheet)
    {
        static const QRegularExpression comment(
            QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^{}]*)\\}"));
        auto rules = rule.globalMatch(sheet.remove(comment));
        while (rules.hasNext()) {
            const QRegularExpressionMatch match = rules.next();
            for (const QString &selector : match.captured(1).split(QLatin1Char(','))) {
                for (const QString &line : match.captured(2).split(QLatin1Char(';'))) {
                    const int colon = line.indexOf(QLatin1Char(':'));
                    if (colon > 0)
                        m_values[selector.simplified()].insert(
                            line.left(colon).trimmed(), line.mid(colon + 1).simplified());
                }
            }
        }
    }

    // Empty where there is none.
    QString value(const QString &selector, const QString &property) const
    {
        return m_values.value(selector).value(property);
    }

private:
    QMap<QString, QMap<QString, QString>> m_values;
};
