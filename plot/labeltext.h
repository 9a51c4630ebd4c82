#pragma once

#include <QString>

class QFontMetrics;

// A time or value in the general format, six significant digits.
QString generalText(double value);

// A value of the value axis: six decimals, of which trailing zeros and then a trailing point are
// dropped; never "-0".
QString valueAxisText(double value);

// The value axis text where it fits the width, else the general format: a number that is cut off
// would read as another number.
QString fittingValueText(double value, const QFontMetrics &metrics, int width);
