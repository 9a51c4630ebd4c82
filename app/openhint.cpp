// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "openhint.h"

#include <QEvent>

OpenHint::OpenHint(QWidget *area) : QLabel(area)
{
    constexpr int margin = 20;
    setObjectName(QStringLiteral("openHint"));
    setStyleSheet(QStringLiteral("QLabel{color: white;}"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(margin);
    setTextFormat(Qt::PlainText);
    retranslate();
    area->installEventFilter(this);
}

void OpenHint::retranslate()
{
    setText(
        tr("Open a recording: File > Open... (Ctrl+O), or drop a .cfg, .zip or .txt file here."));
}

bool OpenHint::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        resize(parentWidget()->size());
    return QLabel::eventFilter(watched, event);
}

void OpenHint::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QLabel::changeEvent(event);
}
