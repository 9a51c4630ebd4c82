// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordingfolder.h"

#include "filekind.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

// The form of the stamp that begins a line; the data end with a NUL, which fits nowhere.
bool isStamp(const char *line)
{
    constexpr std::string_view form = "00/00/0000-00:";
    return std::equal(form.cbegin(), form.cend(), line, [](char expected, char letter) {
        return expected == '0' ? letter >= '0' && letter <= '9' : letter == expected;
    });
}

// A readme is no export. The letters of UTF-16 have a NUL beside them.
bool hasStamp(const QString &path)
{
    constexpr qint64 mostBytes = 1 << 18;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QByteArray beginning = file.read(mostBytes);
    const auto kept = std::remove(beginning.begin(), beginning.end(), '\0');
    beginning.truncate(static_cast<int>(kept - beginning.begin()));
    for (int end = beginning.indexOf('\n'); end >= 0; end = beginning.indexOf('\n', end + 1)) {
        if (isStamp(beginning.constData() + end + 1))
            return true;
    }
    return false;
}

class Listing {
public:
    explicit Listing(const QDir &folder) : m_folder(folder)
    {
        const QStringList names = folder.entryList(QDir::Files, QDir::Unsorted);
        QSet<QString> lowerNames;
        lowerNames.reserve(names.size());
        for (const QString &name : names)
            lowerNames.insert(name.toLower());
        for (const QString &name : names) {
            if (isPackageOrPair(name.toLower(), lowerNames))
                m_recordings.append(name);
            else if (isTextExport(name))
                m_texts.append(name);
        }
        m_order.setNumericMode(true);
    }

    // The nearest one on one side of a name. What costs more than a look at the name is asked of
    // few: a folder may be full of logs.
    QString nearest(const QString &name, bool isAfter) const
    {
        constexpr int mostTexts = 100;
        const auto isNearer = [&](const QString &first, const QString &second) {
            return isAfter ? isOrdered(first, second) : isOrdered(second, first);
        };
        QString found;
        const auto isBetween = [&](const QString &other) {
            return isNearer(name, other) && (found.isEmpty() || isNearer(other, found));
        };
        for (const QString &other : m_recordings) {
            if (isBetween(other))
                found = other;
        }
        QStringList texts;
        std::copy_if(m_texts.cbegin(), m_texts.cend(), std::back_inserter(texts), isBetween);
        const auto end = texts.begin() + std::min(mostTexts, texts.size());
        std::partial_sort(texts.begin(), end, texts.end(), isNearer);
        const auto text = std::find_if(texts.begin(), end,
            [&](const QString &other) { return hasStamp(m_folder.filePath(other)); });
        if (text != end)
            found = *text;
        return found.isEmpty() ? found : m_folder.filePath(found);
    }

private:
    static bool isPackageOrPair(QString lowerName, const QSet<QString> &lowerNames)
    {
        if (lowerName.endsWith(QLatin1String(".zip")))
            return true;
        return lowerName.endsWith(QLatin1String(".cfg"))
            && lowerNames.contains(lowerName.replace(QLatin1String(".cfg"), QLatin1String(".dat")));
    }

    // Names that the order takes for alike have an order all the same.
    bool isOrdered(const QString &first, const QString &second) const
    {
        const int order = m_order.compare(first, second);
        return order != 0 ? order < 0 : first < second;
    }

    QDir m_folder;
    QStringList m_recordings; // known by their names
    QStringList m_texts; // that may be recordings
    // The C locale knows no order of numbers.
    QCollator m_order{QLocale(QLocale::English)};
};

} // namespace

Neighbours neighboursOf(const QString &path)
{
    const QFileInfo file(path);
    const Listing listing(file.dir());
    return {listing.nearest(file.fileName(), false), listing.nearest(file.fileName(), true)};
}
