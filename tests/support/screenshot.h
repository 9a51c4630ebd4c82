// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QBackingStore>
#include <QCoreApplication>
#include <QEvent>
#include <QImage>
#include <QWidget>

// What the window has put on the screen, in device pixels, after all that is to be repainted.
inline QImage screenshot(QWidget &window)
{
    QCoreApplication::processEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &update);
    const auto *image = dynamic_cast<const QImage *>(window.backingStore()->paintDevice());
    return image ? image->convertToFormat(QImage::Format_RGB32).copy() : QImage();
}
