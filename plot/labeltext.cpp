// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "labeltext.h"

#include "numbers.h"

#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QRegularExpression>
#include <QTextDocument>

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

QString breakableText(QString text)
{
    static const QRegularExpression unbroken(QStringLiteral("((?:[^\\s/-]|[/-](?=\\d)){40})"));
    return text.replace(unbroken, QStringLiteral("\\1\u200B")); // zero width space
}

QFont fittingFont(QFont font, const QString &text, int width, int smallest)
{
    font.setPixelSize(QFontInfo(font).pixelSize());
    while (font.pixelSize() > smallest && QFontMetrics(font).horizontalAdvance(text) > width)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

QString valueAxisText(double value)
{
    QString text = QString::number(value, 'f', 6);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString fittingValueText(double value, const QFontMetrics &metrics, int width)
{
    const QString text = valueAxisText(value);
    return metrics.horizontalAdvance(text) <= width ? text : generalText(value);
}
