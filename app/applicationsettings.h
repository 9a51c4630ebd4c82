// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

class QTranslator;

// The window's place as kept between runs, in the program's own settings.
struct WindowPlace {
    QPoint position{300, 300};
    QSize size{400, 400};
    bool maximized = false;
};

WindowPlace readWindowPlace();

// The language is kept for other tools alone: every start begins with the brand's default.
void writeSettings(const WindowPlace &place, const QString &language);

// The folder in which the brand's companion tool stores recordings; empty where it names none.
QString companionRecordingsFolder();

// Folders in which a translation is looked for, in this order. The first is empty: the name as it
// stands, relative to the working directory.
QStringList translationFolders();

// Loads the translation of that name, without suffix. Where there is none, the translator is left
// empty and translates nothing.
void loadTranslation(QTranslator &translator, const QString &name);
