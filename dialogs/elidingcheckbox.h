// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCheckBox>

// A check box with the name of a channel: one too long for it is elided in the middle and stands
// whole in the tool tip.
class ElidingCheckBox : public QCheckBox {
    Q_OBJECT

public:
    explicit ElidingCheckBox(QWidget *parent = nullptr);

    // The name of the file is shown in the letters chosen; an ampersand is no keyboard shortcut.
    void setName(const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_readName; // as the file has it
    QString m_name; // as it is shown
};
