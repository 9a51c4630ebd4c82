// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "archiveroutput.h"

#include <QDir>

namespace {

// The path as it looks where the archiver's output is taken as Latin-1.
QString pathPattern(const QString &path)
{
    return QRegularExpression::escape(QString::fromLatin1(path.toLocal8Bit()));
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
