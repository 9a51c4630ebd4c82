// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "accessiblechart.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr char isChart[] = "isChart";

QAccessibleInterface *newChart(const QString & /*className*/, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    return widget && widget->property(isChart).toBool()
        ? new QAccessibleWidget(widget, QAccessible::Chart)
        : nullptr;
}

} // namespace

void tellAsChart(QWidget &widget)
{
    QAccessible::installFactory(newChart); // a second time it has no effect
    widget.setProperty(isChart, true);
}
