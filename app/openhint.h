// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

class QPushButton;
class QVBoxLayout;

// Says in an area without plots how to open a recording, and offers recordings below. It covers the
// area, takes no mouse but for what it offers, and lies beside the plot column, so that no picture
// of that shows it.
class OpenHint : public QLabel {
    Q_OBJECT

public:
    explicit OpenHint(QWidget *area);

    // The files offered, by their paths. Those that are gone cannot be chosen; what the area has no
    // room for is not seen.
    void setRecordings(const QStringList &paths);

signals:
    void chosen(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void retranslate();
    void arrange();

    QWidget *m_list; // beside the hint, which lets the mouse through, with all in it
    QLabel *m_title;
    QVBoxLayout *m_layout; // of the list
    QList<QPushButton *> m_buttons; // one for each path
    QStringList m_paths;
};
