// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QToolButton>

// Tells in the status bar that there are notes on the recording, and how many; hidden where there
// are none.
class NoteSign : public QToolButton {
    Q_OBJECT

public:
    explicit NoteSign(QWidget *parent);

    void showCount(int notes);

    QSize sizeHint() const override; // not higher than the messages of the bar

protected:
    void changeEvent(QEvent *event) override;

private:
    void nameItself();

    int m_count = 0;
};
