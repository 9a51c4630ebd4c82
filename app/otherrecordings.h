// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class OpenHint;
class QMenu;
class QWidget;

// What can be opened without a dialog: the recordings opened last and those beside the one on
// screen. They are offered in the context menus of the plots and, while there are none, in the
// plots' area and its context menu.
class OtherRecordings : public QObject {
    Q_OBJECT

public:
    OtherRecordings(QWidget *area, QObject *parent);

    // The area is left to the plots of a file, from which the others are beside; it stands empty
    // where that cannot be loaded.
    void leaveArea(const QString &path);
    void offerInArea();

    void remember(); // the file that the area was left to, for it is on screen
    void addTo(QMenu &menu);

signals:
    void chosen(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addEntry(QMenu &menu, const QString &text, const QString &path);
    void addStep(QMenu &menu, const QString &text, const QString &path);
    void addLatest(QMenu &menu);

    OpenHint *m_hint;
    QString m_path;
};
