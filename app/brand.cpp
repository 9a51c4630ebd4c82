// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "brand.h"

#include <QCoreApplication>

#include <array>

namespace {

struct Row {
    const char *name;
    const char *webSite;
    const char *companionTool;
    const char *filePrefix; // of the brand's own translation files
    bool finnish;
    bool chinese;
};

constexpr std::array<Row, 5> rows = {{
    {"Norvale", "https://www.norvale.example", "Setterra", "drv_", true, true},
    {"Vanta", "https://www.vanta.example", "Tolvik", "drv_vanta_", false, true},
    {"Orlo", "https://www.orlo.example", "Kesto Utility Software", "drv_orlo_", false, true},
    {"Quill", "https://www.quill.example", "Quill Lab", "drv_quill_", false, false},
    {"Mervic", "https://www.mervic.example", "Ostrel", "drv_mervic_", false, false},
}};

constexpr char makerPrefix[] = QT_TRANSLATE_NOOP("MainWindow", "Created by ");

// A hidden entry carries the maker's file.
LanguageEntry entry(const Row &row, const QString &text, QLatin1String language, bool visible)
{
    const char *prefix = visible ? row.filePrefix : rows[0].filePrefix;
    return {text, QLatin1String(prefix) + language, visible};
}

} // namespace

Brand brandDetails(int brand)
{
    const bool known = brand >= 0 && brand < int(rows.size());
    const bool maker = !known || brand == 0;
    const Row &row = maker ? rows[0] : rows[size_t(brand)];
    const QString name = QLatin1String(row.name);

    Brand details;
    details.webSite = QLatin1String(row.webSite);
    details.aboutPrefix = maker ? QCoreApplication::translate("MainWindow", makerPrefix)
                                : name + QLatin1String(": ");
    details.linkText = maker ? name : details.webSite;
    details.languages = {
        entry(row, QStringLiteral("English"), QLatin1String("en"), true),
        entry(row, QStringLiteral("Suomi"), QLatin1String("fi"), row.finnish),
        entry(row, QStringLiteral("中文"), QLatin1String("zh"), row.chinese),
    };
    if (known) {
        details.defaultTranslation = details.languages.first().fileName;
        details.companionTool = QLatin1String(row.companionTool);
    }
    return details;
}

QString aboutText(const QString &applicationName, int brand)
{
    const Brand details = brandDetails(brand);
    return QStringLiteral("<font size=4>") + applicationName
        + QStringLiteral("</font> v1.5.4-1-g56f75d81<br/>")
        + details.aboutPrefix
        // The palette's link colour is too dark for the grey box.
        + QStringLiteral("<a style=\"color:#c4eeff\" href=\"%1\">%2</a>")
              .arg(details.webSite, details.linkText)
        + QStringLiteral("</font></p>"); // closes what was never opened; the renderer tolerates it
}
