// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recordingfolder.h"

#include "filekind.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace {

// A readme is no export. The letters of UTF-16 have a NUL beside them.
bool hasStamp(const QString &path)
{
    constexpr qint64 mostBytes = 1 << 20;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray beginning = file.read(mostBytes).replace('\0', QByteArray());
    static const QRegularExpression stamp(QStringLiteral("\n\\d\\d/\\d\\d/\\d{4}-\\d\\d:"));
    return stamp.match(QString::fromLatin1(beginning)).hasMatch();
}

class Listing {
public:
    explicit Listing(const QDir &folder)
        : m_folder(folder), m_names(folder.entryList(QDir::Files, QDir::Unsorted))
    {
        m_lowerNames.reserve(m_names.size());
        for (const QString &name : m_names)
            m_lowerNames.insert(name.toLower());
        m_order.setNumericMode(true);
    }

    // The nearest one on one side of a name. What costs more than a look at the name is asked of
    // few.
    QString nearest(const QString &name, bool isAfter) const
    {
        QString found;
        for (const QString &other : m_names) {
            if (isBetween(name, other, found, isAfter) && isRecordingHere(other))
                found = other;
        }
        return found.isEmpty() ? found : m_folder.filePath(found);
    }

private:
    // Names that the order takes for alike have an order all the same.
    bool isOrdered(const QString &first, const QString &second) const
    {
        const int order = m_order.compare(first, second);
        return order != 0 ? order < 0 : first < second;
    }

    // An empty end is none.
    bool isBetween(
        const QString &name, const QString &other, const QString &end, bool isAfter) const
    {
        const auto isNearer = [&](const QString &a, const QString &b) {
            return isAfter ? isOrdered(a, b) : isOrdered(b, a);
        };
        return isNearer(name, other) && (end.isEmpty() || isNearer(other, end));
    }

    bool isRecordingHere(const QString &name) const
    {
        QString lowerName = name.toLower();
        if (lowerName.endsWith(QLatin1String(".cfg")))
            return m_lowerNames.contains(
                lowerName.replace(QLatin1String(".cfg"), QLatin1String(".dat")));
        return lowerName.endsWith(QLatin1String(".zip"))
            || (isTextExport(name) && hasStamp(m_folder.filePath(name)));
    }

    QDir m_folder;
    QStringList m_names;
    QSet<QString> m_lowerNames;
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
