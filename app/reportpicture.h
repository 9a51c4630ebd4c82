// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QPixmap>
#include <QStringList>
#include <QVector>

class CFGProperties;
class QFont;
class QImage;

// The plots as a picture for a report on paper: what was recorded stands above them, the cursors
// below, and nothing is paler than paper allows.
struct ReportPicture {
    Q_DECLARE_TR_FUNCTIONS(ReportPicture)

public:
    // Lines of text, and rows of cells under a row of headers.
    QStringList heading;
    QVector<QStringList> table;

    // The side tells which values the plots show. The table has a row for each cursor, whose times
    // are ms, and is empty without one.
    ReportPicture(const CFGProperties &recording, const QString &fileName, const QString &side,
        const QList<double> &cursors);

    // The picture around one of the plots in light colours, as wide and as sharp as that one.
    QPixmap around(const QPixmap &plots, const QFont &font) const;
};

// Darkens every colour until its contrast to white is that of readable text, 4.5; white stays, and
// so does what stands for it.
void darkenForPaper(QImage &image);
