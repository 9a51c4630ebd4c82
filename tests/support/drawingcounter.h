// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QLabel>
#include <QPixmap>
#include <QPointer>

// Counts the drawings of a panel: at each event, whether its picture is another than before. A
// drawing handles events before it ends, so that none is missed.
class DrawingCounter : public QObject {
public:
    explicit DrawingCounter(const QWidget *panel)
        : m_label(panel->findChild<QLabel *>(QStringLiteral("labelVector"))), m_last(picture())
    {
        qApp->installEventFilter(this);
    }

    int count()
    {
        const qint64 now = picture();
        m_count += now == m_last ? 0 : 1;
        m_last = now;
        return m_count;
    }

    bool eventFilter(QObject * /*watched*/, QEvent * /*event*/) override
    {
        count();
        return false;
    }

private:
    qint64 picture() const
    {
        return m_label ? m_label->pixmap(Qt::ReturnByValue).cacheKey() : m_last;
    }

    QPointer<QLabel> m_label;
    qint64 m_last = 0;
    int m_count = 0;
};
