// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fillingtable.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

// Of the filling column.
constexpr int leastLetters = 16;
constexpr int mostLettersAskedFor = 80;

} // namespace

void FillingTable::setFillingColumn(int column)
{
    m_fillingColumn = column;
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setResizeContentsPrecision(100); // rows
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(column, QHeaderView::Fixed);
}

int FillingTable::letters(int count) const
{
    return count * fontMetrics().averageCharWidth();
}

int FillingTable::widthHint(int column) const
{
    return std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
}

QSize FillingTable::sizeHint() const
{
    int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < horizontalHeader()->count(); ++column) {
        width += column == m_fillingColumn
            ? std::clamp(widthHint(column), letters(leastLetters), letters(mostLettersAskedFor))
            : widthHint(column);
    }
    return {width, QTableView::sizeHint().height()};
}

void FillingTable::showEvent(QShowEvent *event)
{
    if (!std::exchange(m_wasShown, true)) {
        updateGeometry(); // its rows have come since the layout asked
        const QSize room = screen()->availableSize() * 9 / 10;
        window()->resize(window()->size().expandedTo(window()->sizeHint()).boundedTo(room));
    }
    QTableView::showEvent(event);
}

void FillingTable::updateGeometries()
{
    QHeaderView *columns = horizontalHeader();
    if (m_fillingColumn >= 0 && m_fillingColumn < columns->count()) {
        const int others = columns->length() - columns->sectionSize(m_fillingColumn);
        columns->resizeSection(
            m_fillingColumn, std::max(letters(leastLetters), viewport()->width() - others));
    }
    QTableView::updateGeometries();
}
