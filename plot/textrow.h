// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVector>

#include <optional>

// A text that is to stand on a row with others. Places along the row are those of left ends, in
// pixels.
struct RowText {
    int width;
    int wanted; // from lowest to highest
    int lowest;
    int highest;
};

// Finds places at which texts do not overlap: the wanted one for each text that touches no other,
// while those that would overlap move apart. A text is without a place where none is left for it.
// The less a text may move the sooner it gets its place; of two alike the first does.
QVector<std::optional<int>> placeTexts(const QVector<RowText> &texts);
