// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "archiveroutput.h"

#include <QDir>

namespace {

// The path as it looks where the archiver's output is taken as Latin-1. Which code page that output
// has is the system's affair: a letter beyond ASCII may be one to three bytes of any kind.
QString pathPattern(const QString &path)
{
    QString pattern;
    int others = 0; // letters beyond ASCII in a row
    const auto addOthers = [&] {
        if (others > 0)
            pattern += QStringLiteral("[^\\n]{%1,%2}").arg(others).arg(3 * others);
        others = 0;
    };
    for (const QChar letter : path) {
        if (letter.unicode() >= 0x80) {
            ++others;
            continue;
        }
        addOthers();
        pattern += QRegularExpression::escape(letter);
    }
    addOthers();
    return pattern;
}

} // namespace

ArchiverOutput::ArchiverOutput(const QString &package)
{
    QString pattern = QStringLiteral("Overwrite|password|error|Error|ERROR");
    if (!package.isEmpty()) {
        pattern = pathPattern(package) + QLatin1Char('|')
            + pathPattern(QDir::toNativeSeparators(package)) + QLatin1Char('|') + pattern;
    }
    m_words.setPattern(pattern);
}

ArchiverOutput::Reaction ArchiverOutput::read(const QByteArray &output)
{
    Reaction reaction;
    bool asksToOverwrite = false;
    bool asksForPassword = false;
    m_unread += QString::fromLatin1(output.constData(), output.size()); // past zero bytes, too
    int from = 0;
    for (;;) {
        const QRegularExpressionMatch match
            = m_words.match(m_unread, from, QRegularExpression::PartialPreferFirstMatch,
                // Latin-1 text is sound; checking all of it for each word takes quadratic time.
                QRegularExpression::DontCheckSubjectStringMatchOption);
        if (!match.hasMatch()) {
            from = match.hasPartialMatch() ? match.capturedStart() : m_unread.size();
            break;
        }
        from = match.capturedEnd();
        const QString word = match.captured();
        if (word == QLatin1String("Overwrite")) {
            asksToOverwrite = true;
        } else if (word == QLatin1String("password")) {
            asksForPassword = true;
        } else if (word.compare(QLatin1String("error"), Qt::CaseInsensitive) == 0 && !m_errorSeen) {
            m_errorSeen = true;
            reaction.error = true;
        }
    }
    m_unread.remove(0, from);
    if (asksToOverwrite)
        reaction.answer += "A\r\n"; // always
    if (asksForPassword)
        reaction.answer += '\n'; // none: the archiver ends with an error instead of waiting
    return reaction;
}
