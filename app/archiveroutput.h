// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QRegularExpression>
#include <QString>

// Reads along with the archiver while it unpacks one package: finds its questions and its
// complaints. The package's own path, which the archiver repeats, may hold any word. Words may come
// in pieces.
class ArchiverOutput {
public:
    struct Reaction {
        QByteArray answer; // for the archiver's input, to each kind of question once; may be empty
        bool error = false; // true in one reaction at most
    };

    explicit ArchiverOutput(const QString &package);
    Reaction read(const QByteArray &output);

private:
    QRegularExpression m_words;
    QString m_unread; // what may be the beginning of a word
    bool m_errorSeen = false;
};
