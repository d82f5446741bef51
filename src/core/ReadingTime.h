// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tally {

// A calendar date and time of day with minute resolution; no time zone, no daylight saving.
struct CivilTime {
    int year = 1970;
    int month = 1; // 1 to 12
    int day = 1;   // 1 to 31
    int hour = 0;
    int minute = 0;
};

// A moment as minutes since 1970-01-01 00:00 of the proleptic Gregorian calendar.
struct ReadingTime {
    std::int64_t minutes = 0;
    auto operator<=>(const ReadingTime&) const = default;
};

inline ReadingTime operator+(ReadingTime t, std::int64_t minutes) {
    return {t.minutes + minutes};
}
inline ReadingTime operator-(ReadingTime t, std::int64_t minutes) {
    return {t.minutes - minutes};
}

ReadingTime toReadingTime(const CivilTime& civil);
CivilTime toCivil(ReadingTime time);

// Reads "mm-dd-yy hh:mm" (exactly 14 characters; years 00 to 29 are 2000s, 30 to 99 1900s); nothing for no
// date.
std::optional<ReadingTime> parseHeaderTime(std::string_view text);

// A time through a pattern: %H hour, %M minute, %m month, %d day, %y year (two digits each), %Y year, %b
// month name in English ("Mar"); all else is copied.
std::string formatTime(ReadingTime time, std::string_view pattern);

std::string screenTime(ReadingTime time); // "hh:mm  MMM dd, yy", two blanks after the minutes
std::string headerTime(ReadingTime time); // "mm-dd-yy hh:mm"

} // namespace tally
