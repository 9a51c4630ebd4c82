// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "moment.h"

#include "fields.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace convert {

namespace {

constexpr std::int64_t second = 1000000000; // in nanoseconds, as all durations here
constexpr std::int64_t day = 86400 * second;

// Takes a number of so many digits off a text, with the separator behind it where there is one.
std::optional<int> takeDigits(std::string_view &text, size_t least, size_t most, char separator)
{
    size_t count = 0;
    int number = 0;
    for (; count < text.size() && text[count] >= '0' && text[count] <= '9'; ++count) {
        if (count == most)
            return std::nullopt;
        number = number * 10 + (text[count] - '0');
    }
    if (count < least)
        return std::nullopt;
    text.remove_prefix(count);
    if (separator != '\0') {
        if (text.empty() || text.front() != separator)
            return std::nullopt;
        text.remove_prefix(1);
    }
    return number;
}

std::optional<QDate> toDate(std::string_view text, DateOrder order)
{
    const std::optional<int> first = takeDigits(text, 1, 2, '/');
    const std::optional<int> other = first ? takeDigits(text, 1, 2, '/') : std::nullopt;
    const size_t digits = text.size();
    const std::optional<int> written = other ? takeDigits(text, 2, 4, '\0') : std::nullopt;
    const bool isShort = digits == 2 && order == DateOrder::MonthFirst;
    if (!written || !text.empty() || (digits != 4 && !isShort))
        return std::nullopt;
    constexpr int firstShortYear = 70; // those before it are of the next century
    const int year = *written + (!isShort ? 0 : *written < firstShortYear ? 2000 : 1900);
    const bool isDayFirst = order == DateOrder::DayFirst;
    const QDate date(year, isDayFirst ? *other : *first, isDayFirst ? *first : *other);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

// Sets what a moment has but its date.
bool setTime(Moment &moment, std::string_view text)
{
    const std::optional<int> hour = takeDigits(text, 1, 2, ':');
    const std::optional<int> minute = hour ? takeDigits(text, 1, 2, ':') : std::nullopt;
    const std::optional<int> whole = minute ? takeDigits(text, 1, 2, '\0') : std::nullopt;
    constexpr int leapSecond = 60;
    if (!whole || *hour > 23 || *minute > 59 || *whole > leapSecond)
        return false;
    std::int64_t fraction = 0;
    if (!text.empty()) {
        constexpr size_t mostDecimals = 9;
        moment.decimals = static_cast<int>(text.size()) - 1;
        if (text.front() != '.')
            return false;
        text.remove_prefix(1);
        const std::optional<int> decimals = takeDigits(text, 1, mostDecimals, '\0');
        if (!decimals || !text.empty())
            return false;
        fraction = *decimals;
        for (int k = moment.decimals; k < static_cast<int>(mostDecimals); ++k)
            fraction *= 10;
    }
    moment.nanoseconds = ((*hour * 60 + *minute) * 60 + *whole) * second + fraction;
    return true;
}

} // namespace

Moment Moment::plus(std::int64_t duration) const
{
    const std::int64_t sum = nanoseconds % day + duration % day;
    const std::int64_t days = duration / day + nanoseconds / day + sum / day - (sum % day < 0);
    return {date.addDays(days), (sum % day + day) % day, decimals};
}

std::string Moment::text() const
{
    const Moment moment = plus(0);
    const auto seconds = static_cast<int>(moment.nanoseconds / second);
    const auto microseconds = static_cast<int>(moment.nanoseconds % second / 1000);
    std::array<char, 64> letters{};
    const int size = std::snprintf(letters.data(), letters.size(),
        "%02d/%02d/%04d,%02d:%02d:%02d.%06d", moment.date.day(), moment.date.month(),
        moment.date.year(), seconds / 3600, seconds / 60 % 60, seconds % 60, microseconds);
    return {letters.data(), static_cast<size_t>(size)};
}

std::optional<Moment> toMoment(std::string_view date, std::string_view time, DateOrder order)
{
    const std::optional<QDate> calendar = toDate(trimmed(date), order);
    Moment moment;
    if (!calendar || !setTime(moment, trimmed(time)))
        return std::nullopt;
    moment.date = *calendar;
    return moment;
}

} // namespace convert
