// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

// What the bytes of the names in a file may stand for. The readers take each byte for the letter of
// Latin-1; other letters are for showing alone.
enum class Letters { AsRead, Utf8, Windows1251, Ibm866, Gbk, Windows1252 };

// In the order of the above.
constexpr int letterKinds = 6;

// The name of a character set, that of the toolkit's codec; empty for AsRead.
QString codecName(Letters letters);

// The name of letters as it is shown, the same in all languages; empty for AsRead.
QString lettersName(Letters letters);

// Whether a text is of ASCII alone, which reads the same in all letters.
bool isPlain(const QString &text);

// A text in other letters than it was read in. Where its bytes do not read in them, and where it
// was not read as Latin-1, it stays as it is. Of a text that is only the beginning of one, the last
// letter may be incomplete: it is left out.
QString inLetters(const QString &read, Letters letters, bool isBeginning = false);

// The letters that texts read as Latin-1 are meant in: UTF-8 where all of them are that, others
// where they make words of almost all bytes beyond ASCII of which Latin-1 makes none. Else AsRead.
Letters likelyLetters(const QStringList &texts);
