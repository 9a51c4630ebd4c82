// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace convert {

enum class DateOrder { MonthFirst, DayFirst };

// A date and a time of day, without a zone.
struct Moment {
    QDate date;
    std::int64_t nanoseconds = 0; // of the day; a leap second counts to the next day
    int decimals = 0; // of its seconds, as they were written

    Moment plus(std::int64_t duration) const; // in nanoseconds
    // dd/mm/yyyy,hh:mm:ss.ssssss, which leaves out parts of microseconds.
    std::string text() const;
};

// A date of two, two, and four or, with the month first, two digits, from 1970 to 2069 then; a time
// hh:mm:ss with up to nine decimals. Nothing where they are none.
std::optional<Moment> toMoment(std::string_view date, std::string_view time, DateOrder order);

} // namespace convert
