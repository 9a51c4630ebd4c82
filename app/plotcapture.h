// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>

enum class CaptureTarget { File, Clipboard };

// The capture of the dark plots as a light, printable picture on white, with the caption drawn at
// its top left. Same size and device pixel ratio as the capture.
QPixmap printableCapture(const QPixmap &capture, CaptureTarget target, const QString &caption);

// The caption gives the start twice. Date as "dd/MM/yyyy", time as "hh:mm:ss.zzz"; a start that
// does not read so leaves both places empty.
QString captureCaption(const QString &startDate, const QString &startTime);

// Turns white and light grey black; for the clipboard what is then nearly transparent turns white.
// An image of the format Format_ARGB32_Premultiplied keeps it, others get Format_ARGB32.
void recolour(QImage &image, CaptureTarget target);
