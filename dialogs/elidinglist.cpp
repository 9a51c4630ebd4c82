// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "elidinglist.h"

#include <QAbstractItemView>
#include <QStyledItemDelegate>

namespace {

// A list makes its rows as wide as the widest, and elides what is wider than its row.
class NarrowRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return {1, QStyledItemDelegate::sizeHint(option, index).height()};
    }
};

} // namespace

void elideNames(QAbstractItemView &list)
{
    list.setItemDelegate(new NarrowRows(&list));
    list.setTextElideMode(Qt::ElideMiddle);
}
