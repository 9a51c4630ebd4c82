// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "outputpaths.h"

#include <QDir>
#include <QFileInfo>

namespace convert {

namespace {

QString withoutEnding(const QString &path, const QString &ending)
{
    return path.endsWith(ending, Qt::CaseInsensitive) ? path.chopped(ending.size()) : path;
}

} // namespace

QStringList outputPaths(const QString &input, const Options &options)
{
    constexpr int endingSize = 4; // of the input: .cfg or .cff
    const bool isTable = options.format == Format::Csv;
    const QFileInfo output(options.output);
    QString name = input.chopped(endingSize);
    if (output.isDir())
        name = QDir(options.output).filePath(QFileInfo(input).fileName().chopped(endingSize));
    else if (!options.output.isEmpty() && isTable && !output.suffix().isEmpty())
        return {options.output};
    else if (!options.output.isEmpty())
        name = withoutEnding(options.output, QStringLiteral(".cfg"));
    if (isTable)
        return {name + QLatin1String(".csv")};
    return {name + QLatin1String(".cfg"), name + QLatin1String(".dat")};
}

} // namespace convert
