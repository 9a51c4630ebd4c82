// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QFont;
class QFontMetrics;

// A text of a file as tool tip, shown as it stands whatever it looks like.
QString plainToolTip(const QString &text);

// A text with paths for a message, whose lines end at blanks alone, and at slashes and hyphens but
// before a digit: where none of these stands for long, an invisible sign lets them end, too.
QString breakableText(QString text);

// A font, made smaller, down to a pixel size, until a text fits a width.
QFont fittingFont(QFont font, const QString &text, int width, int smallest);

// A value of the value axis: six decimals, of which trailing zeros and then a trailing point are
// dropped; never "-0".
QString valueAxisText(double value);

// The value axis text where it fits the width, else the general format: a number that is cut off
// would read as another number.
QString fittingValueText(double value, const QFontMetrics &metrics, int width);
