// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "textencoding.h"

#include <QTextCodec>

#include <algorithm>
#include <utility>
#include <vector>

namespace convert {

namespace {

std::vector<std::string *> texts(Configuration &configuration)
{
    std::vector<std::string *> found{&configuration.station, &configuration.device};
    const auto addNames = [&found](auto &channels) {
        for (auto &channel : channels) {
            for (std::string *text : {&channel.name, &channel.phase, &channel.circuit})
                found.push_back(text);
        }
    };
    addNames(configuration.analogs);
    addNames(configuration.states);
    for (AnalogDefinition &channel : configuration.analogs)
        found.push_back(&channel.unit);
    return found;
}

QString decoded(const std::string &text, const QTextCodec &codec, bool &isValid)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString letters = codec.toUnicode(text.data(), static_cast<int>(text.size()), &state);
    isValid = isValid && state.invalidChars == 0 && state.remainingChars == 0
        && !letters.contains(QChar(QChar::ReplacementCharacter));
    return letters;
}

const QTextCodec &utf8()
{
    return *QTextCodec::codecForName("UTF-8");
}

} // namespace

bool decodeTexts(Configuration &configuration, QTextCodec *encoding)
{
    const std::vector<std::string *> all = texts(configuration);
    bool isValid = true;
    std::vector<QString> letters;
    letters.reserve(all.size());
    for (const std::string *text : all)
        letters.push_back(decoded(*text, encoding ? *encoding : utf8(), isValid));
    if (!isValid && encoding)
        return false;
    for (std::size_t k = 0; k < all.size(); ++k) {
        if (!isValid)
            letters[k] = QString::fromLatin1(all[k]->data(), static_cast<int>(all[k]->size()));
        *all[k] = letters[k].toStdString();
    }
    return true;
}

void encodeTexts(Configuration &configuration)
{
    const std::vector<std::string *> all = texts(configuration);
    constexpr ushort lastLatin1 = 0xff;
    const bool doFit = std::all_of(all.begin(), all.end(), [](const std::string *text) {
        const QString letters = QString::fromStdString(*text);
        return std::all_of(letters.begin(), letters.end(),
            [](QChar letter) { return letter.unicode() <= lastLatin1; });
    });
    for (std::string *text : all) {
        if (doFit)
            *text = QString::fromStdString(*text).toLatin1().toStdString();
    }
}

QTextCodec *encodingNamed(const QString &name)
{
    QTextCodec *const codec = QTextCodec::codecForName(name.toLatin1());
    const QString ascii = QStringLiteral("A,1 z");
    return codec && codec->fromUnicode(ascii) == ascii.toLatin1() ? codec : nullptr;
}

} // namespace convert
