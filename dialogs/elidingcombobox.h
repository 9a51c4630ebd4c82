// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QComboBox>

// A combo box of texts that may be longer than itself: the current one is then elided in the middle
// and stands whole in the tool tip, and the list is as wide as its texts, within the screen.
class ElidingComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit ElidingComboBox(QWidget *parent = nullptr);

    // Replaces the items without a signal. Each has its whole text as data, however it is shown.
    void setTexts(const QStringList &texts, int current);
    // The same with names as the file has them, which are shown in the letters chosen.
    void setNames(const QStringList &names, int current);

    QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void set(const QStringList &texts, int current, bool areNames);
    QString elidedText() const;
};
