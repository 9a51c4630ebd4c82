// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFile>
#include <QList>
#include <QXmlStreamReader>

struct TranslatedText {
    QString context;
    QString source;
    QString translation;
    QString type; // empty when finished
};

// All texts of a .ts file; none where it cannot be read.
inline QList<TranslatedText> readTranslations(const QString &path)
{
    QList<TranslatedText> texts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QString context;
    TranslatedText text;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement && xml.name() == QLatin1String("message"))
            texts.append(text);
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            text = TranslatedText{context, QString(), QString(), QString()};
        } else if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.type = xml.attributes().value(QLatin1String("type")).toString();
            text.translation = xml.readElementText();
        }
    }
    return xml.hasError() ? QList<TranslatedText>() : texts;
}

// The committed texts of a language: "en", "fi" or "zh".
inline QList<TranslatedText> translationsInto(const QString &language)
{
    return readTranslations(
        QStringLiteral(SOURCE_DIR "/resources/translations/drv_%1.ts").arg(language));
}
