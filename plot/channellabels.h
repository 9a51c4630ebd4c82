// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QVector>

class ChannelLabel;
class QWidget;

// The labels of the channels in a row beside the title of a plot, children of the plot.
class ChannelLabels {
public:
    struct Entry {
        int channel; // number, kept by the label as its property "channel"
        QString text;
        QColor color;
        QString toolTip; // the text in full, and more
    };

    explicit ChannelLabels(QWidget *plot) : m_plot(plot) { }

    // Shows a label for each entry, in that order. Where they need more room than there is, each is
    // elided to an equal share. Labels are reused from one call to the next.
    void show(const QVector<Entry> &entries);

private:
    QWidget *m_plot;
    QList<ChannelLabel *> m_labels;
};
