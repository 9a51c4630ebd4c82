// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "letters.h"

#include <QObject>
#include <QStringList>

class QFontMetrics;

// The letters that names are shown in, those of all windows. They change nothing but what is shown.
class NameLetters : public QObject {
    Q_OBJECT

public:
    static NameLetters &shared();

    Letters letters() const { return m_letters; }
    void choose(Letters letters);

signals:
    void changed(); // each name has to be shown anew

private:
    Letters m_letters = Letters::AsRead;
};

// A text of a file, such as the name of a channel, as it is shown: in the letters chosen, and not
// endless, without the line end that the last field of a short line has. The standard allows 64
// characters; millions would keep the window from its work. It must be called once for a text, for
// what it gives would read differently in the same letters.
QString shownName(const QString &name);
// The same without blanks at its ends, which may look like parts of letters as it was read.
QString trimmedName(const QString &name);
// A text that is to be shown as it stands, not endless.
QString cutText(const QString &text);

// A name as it is shown, and what follows it. Where both do not fit a width, the name is elided in
// the middle.
QString fittingName(
    const QString &shown, const QString &suffix, const QFontMetrics &metrics, int width);

// The position of a name: the expected one where the name stands there, else its first; -1 where it
// has none. So each of several channels of one name is found, as long as two lists agree.
int positionOf(const QString &name, const QStringList &names, int expected);
