// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QScrollArea>
#include <QTimer>

// The scrolled column of the plots. The Tab key brings the plot that it reaches into view, but
// stays where it is for the column itself, whose middle would come into view, and for what lies
// outside. Where a plot comes to lie under a pointer that rests, the plot is told.
class PlotColumn : public QScrollArea {
    Q_OBJECT

public:
    explicit PlotColumn(QWidget *parent);

    // Tells the plot under the pointer of it again, soon, as what is seen there has changed.
    void pointAgain() { m_again.start(); }

protected:
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void followPointer(const QEvent &event);
    QPointF pointer() const;
    void repeatMove();
    bool isPlot(const QWidget *widget) const;
    bool concernsPlots(const QPointF &inWindow) const;

    QPointF m_pointer; // in the window, when that heard of it last
    QTimer m_again; // runs once the plots have their new places
};
