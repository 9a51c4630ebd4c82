// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QScrollArea>
#include <QTimer>

// The scrolled column of the plots. The Tab key brings the plot that it reaches into view, but
// stays where it is for the column itself, whose middle would come into view, and for what lies
// outside. Where a plot comes to lie under a pointer that rests, the plot is told.
class PlotColumn : public QScrollArea {
    Q_OBJECT

public:
    explicit PlotColumn(QWidget *parent);

protected:
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tellOfPointer();

    QTimer m_moved; // runs once the plots have their new places
};
