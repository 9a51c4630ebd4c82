// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "notesign.h"

#include <QEvent>

NoteSign::NoteSign(QWidget *parent) : QToolButton(parent)
{
    setObjectName(QStringLiteral("noteSign"));
    setStyleSheet(QStringLiteral(
        "QToolButton{color: white; font-weight: normal; background: transparent; "
        "border: 1px solid #717074; border-radius: 4px; margin: 0px; padding: 0px 6px;}"
        "QToolButton:hover, QToolButton:focus{border-color: #79d7ff; background: #313034;}"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored); // the bar keeps its height
    setFocusPolicy(Qt::TabFocus);
    hide();
}

void NoteSign::showCount(int notes)
{
    m_count = notes;
    nameItself();
    setVisible(notes > 0);
}

void NoteSign::nameItself()
{
    setText(tr("Notes: %1").arg(m_count));
    const QString tip = tr("What was noticed while the recording was read. Notes: %1").arg(m_count);
    setToolTip(tip);
    setAccessibleName(tip);
}

QSize NoteSign::sizeHint() const
{
    return {QToolButton::sizeHint().width(), fontMetrics().height()};
}

void NoteSign::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        nameItself();
    QToolButton::changeEvent(event);
}
