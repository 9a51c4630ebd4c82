// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "elidinglabel.h"

#include <QPoint>
#include <QPointer>

class PlotHost;
class Plotter;

// The field at the right of the status bar: the recording on screen, the side of its values, and
// what stands under the pointer in which plot; then a note on what was not opened. Without any of
// these it is hidden.
class StatusField : public ElidingLabel {
    Q_OBJECT

public:
    // The host must outlive the field.
    StatusField(const PlotHost &host, QWidget *parent);

    // Of the recording just shown; empty before another one is loaded.
    void showFile(const QString &name);
    const QString &file() const { return m_file; }
    QString sideText() const; // of the values shown; there is a recording
    // A path that was not opened; said until another recording is shown.
    void showNotOpened(const QString &path);
    // The pointer stands at a point of a plot, or, with null, over none.
    void pointAt(const Plotter *plot, const QPoint &point);
    // After any change of what stands under the pointer.
    void refresh();

    // The widest text so far, so that the field does not go to and fro with the pointer, but not so
    // much that no room is left for messages; not higher than they are.
    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void leaveRoomFor(const QString &message);
    int neededFor(const QString &shown) const; // pixels
    int mostWidth() const; // pixels
    QString shortened(const QString &name, int most) const;
    int pointedRow() const; // its channel, negative for none
    QString pointedText(int ofRow) const;
    QString notOpenedText(const QString &name) const;
    QString wholeText(int ofNames) const; // so many pixels of each name

    const PlotHost &m_host;
    QString m_file;
    QString m_notOpened;
    QPointer<const Plotter> m_plot;
    QPoint m_point;
    int m_widest = 0;
};
