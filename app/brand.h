// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVector>

struct LanguageEntry {
    QString text; // as the menu shows it, in the language itself
    QString fileName; // translation file without folder and suffix
    bool visible = true;
};

// All that differs between the maker's build and the four OEM builds.
struct Brand {
    QString aboutPrefix; // of the About box's last line, before the link
    QString webSite; // address that the link leads to
    QString linkText;
    QString defaultTranslation; // translation file of the start, without suffix
    QVector<LanguageEntry> languages; // English, Suomi, 中文, in this order
    QString companionTool; // application name of the companion tool's settings
};

// Brands: 0 the maker, 1 Vanta, 2 Orlo, 3 Quill, 4 Mervic. Any other number gives the maker's
// languages and About line, but no default translation and no companion tool.
Brand brandDetails(int brand);

// Rich text of the About box.
QString aboutText(const QString &applicationName, int brand);
