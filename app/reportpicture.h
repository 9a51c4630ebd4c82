// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QFont>
#include <QPixmap>
#include <QRect>
#include <QStringList>
#include <QVector>

class CFGProperties;
class QImage;

// The plots as a picture for a report on paper: what was recorded stands above them, the cursors
// below, and nothing is paler than paper allows.
struct ReportPicture {
    Q_DECLARE_TR_FUNCTIONS(ReportPicture)

public:
    // Lines of text, and rows of cells under a row of headers.
    QStringList heading;
    QVector<QStringList> table;
    // Names of cursors, to be written over the plots; the places are pixels of these.
    struct Name {
        QString text;
        QRect place;
        QFont font;
    };
    QVector<Name> names;

    // The side tells which values the plots show. The table has a row for each cursor, whose times
    // are ms, and is empty without one.
    ReportPicture(const CFGProperties &recording, const QString &fileName, const QString &side,
        const QList<double> &cursors);

    // The picture around one of the plots in light colours, as wide and as sharp as that one.
    QPixmap around(const QPixmap &plots, const QFont &font) const;
};

// Darkens every colour until its contrast to white is that of readable text, 4.5; white stays.
void darkenForPaper(QImage &image);

// Lightens what black letters could not be read on, as far as its contrast to white stays 4.5. The
// place is device pixels of an image that has been darkened for paper.
void lightenForName(QImage &image, const QRect &place);
