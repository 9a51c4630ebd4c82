// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "textrow.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

using Texts = QVector<RowText>;
using Row = QVector<int>; // numbers of texts, in their order from left to right
using Places = QVector<int>; // by the numbers of texts

constexpr int unlimited = std::numeric_limits<int>::max();

// Each text of a row goes right from its place as far as the one before it demands and its limit
// allows.
void pushRight(const Texts &texts, const Row &row, Places &places, const Places &limits)
{
    int free = -unlimited;
    for (const int i : row) {
        places[i] = std::min(std::max(places[i], free), limits[i]);
        free = places[i] + texts[i].width;
    }
}

// The same to the left.
void pushLeft(const Texts &texts, const Row &row, Places &places, const Places &limits)
{
    int free = unlimited;
    for (auto i = row.crbegin(); i != row.crend(); ++i) {
        places[*i] = std::max(std::min(places[*i], free - texts[*i].width), limits[*i]);
        free = places[*i];
    }
}

Places placesOf(const Texts &texts, int RowText::*member)
{
    Places places;
    for (const RowText &text : texts)
        places.append(text.*member);
    return places;
}

bool hasRoom(const Texts &texts, const Row &row)
{
    Places earliest = placesOf(texts, &RowText::lowest);
    pushRight(texts, row, earliest, Places(texts.size(), unlimited));
    return std::all_of(
        row.cbegin(), row.cend(), [&](int i) { return earliest[i] <= texts[i].highest; });
}

// The row with one text more, as near as possible to where its middle belongs; the row itself where
// there is no room.
Row extended(const Texts &texts, const Row &row, int number)
{
    const auto middle = [&](int i) { return texts[i].wanted + texts[i].width / 2; };
    const auto rank = static_cast<int>(std::count_if(
        row.cbegin(), row.cend(), [&](int other) { return middle(other) < middle(number); }));
    for (int distance = 0; distance <= row.size(); ++distance) {
        for (const int at : {rank - distance, rank + distance}) {
            if (at < 0 || at > row.size())
                continue;
            Row longer = row;
            longer.insert(at, number);
            if (hasRoom(texts, longer))
                return longer;
        }
    }
    return row;
}

} // namespace

QVector<std::optional<int>> placeTexts(const QVector<RowText> &texts)
{
    Row order(texts.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return texts[a].highest - texts[a].lowest < texts[b].highest - texts[b].lowest;
    });
    Row row;
    for (const int number : qAsConst(order))
        row = extended(texts, row, number);

    Places earliest = placesOf(texts, &RowText::lowest);
    Places latest = placesOf(texts, &RowText::highest);
    pushRight(texts, row, earliest, latest);
    pushLeft(texts, row, latest, earliest);
    // Half way between two rows without overlaps there is none either: those that would overlap
    // share the way that one of them would have to go.
    Places right = placesOf(texts, &RowText::wanted);
    Places left = right;
    pushRight(texts, row, right, latest);
    pushLeft(texts, row, left, earliest);
    QVector<std::optional<int>> places(texts.size());
    for (const int i : qAsConst(row))
        places[i] = right[i] - (right[i] - left[i]) / 2;
    return places;
}
