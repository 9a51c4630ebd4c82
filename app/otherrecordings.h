// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class OpenHint;
class QMenu;
class QWidget;

// What can be opened without a dialog: the recordings opened last and those beside the one on
// screen. They are offered in the context menus of the plots and, while there are none, in the
// plots' area.
class OtherRecordings : public QObject {
    Q_OBJECT

public:
    OtherRecordings(QWidget *area, QObject *parent);

    // The area stands empty, or is left to plots.
    void offerInArea();
    void leaveArea();

    // The recording of a file is on screen.
    void setShown(const QString &path);
    void addTo(QMenu &menu);

signals:
    void chosen(const QString &path);

private:
    void addEntry(QMenu &menu, const QString &text, const QString &path);
    void addLatest(QMenu &menu);

    OpenHint *m_hint;
    QString m_shown;
};
