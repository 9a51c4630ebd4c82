// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTableView>

// A table without row headers, of which one column takes the room that the others leave: at least
// some letters, below which the table scrolls. When it is first shown, it widens its window until
// its columns have the room they ask for, as far as the screen has it.
class FillingTable : public QTableView {
    Q_OBJECT

public:
    using QTableView::QTableView;

    // Of the model, which is set before.
    void setFillingColumn(int column);

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;
    void updateGeometries() override;

private:
    int letters(int count) const; // their width
    int widthHint(int column) const;

    int m_fillingColumn = -1; // none
    bool m_wasShown = false;
};
