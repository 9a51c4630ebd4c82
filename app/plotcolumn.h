// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QPointer>
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
    // What stands under the pointer: a plot and a point of it, or null.
    struct Place {
        QPointer<QWidget> plot;
        QPointF point;
    };

    void followPointer(const QEvent &event);
    QPointF pointer() const;
    Place placeOf(const QPointF &inWindow) const;
    void tellAgain();
    void repeatMove(const QPointF &inWindow) const;
    bool isPlot(const QWidget *widget) const;
    bool isUnderMouse(const QWidget *plot) const; // and no other one, as the toolkit takes it

    QPointF m_pointer; // in the window, when that heard of it last
    Place m_told; // what was there then
    QTimer m_again; // runs once the plots have their new places
};
