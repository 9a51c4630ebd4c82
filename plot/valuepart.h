// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The extremes of all that a plot shows, before an axis widens them to whole steps.
struct ValueExtremes {
    double lowest = 0; // at most 0
    double highest = 0; // at least 0
    double angles = 0; // where the axis of the angle traces ends; 0 where none are drawn

    double height() const { return highest - lowest; }
    bool operator==(const ValueExtremes &other) const
    {
        return lowest == other.lowest && highest == other.highest && angles == other.angles;
    }
};

// A range of values as an axis shows it.
struct ValueRange {
    double min = 0;
    double max = 0;
    double ticks = 4; // grid intervals

    // Widened to whole steps.
    static ValueRange adjusted(double min, double max);
};

// How much of the values is shown: the whole, or a part of it. It is kept as it was chosen, with
// the extremes of that moment and before its widening. What is shown under other extremes is always
// made from that, so that there and back gives the very same range.
class ValuePart {
public:
    ValuePart() = default;
    // The whole.
    explicit ValuePart(const ValueExtremes &extremes);
    // The part from one value to another.
    ValuePart(const ValueExtremes &extremes, double from, double to);

    // The range under extremes. Where all have grown or shrunk by one factor, the range does too,
    // and a trace keeps its place. Else the whole is fitted anew, and a part keeps its share of it.
    ValueRange at(const ValueExtremes &extremes) const;
    // Moves the part that is shown under extremes by a distance; false, and nothing is moved, where
    // it could not be shown there.
    bool move(const ValueExtremes &extremes, double distance);

private:
    double shared(double value, const ValueExtremes &extremes) const;

    ValueExtremes m_extremes;
    bool m_isWhole = true;
    double m_from = 0; // before widening
    double m_to = 0;
    ValueRange m_shown;
};
