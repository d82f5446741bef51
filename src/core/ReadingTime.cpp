// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ReadingTime.h"

#include <array>
#include <chrono>

namespace tally {

namespace {

constexpr std::int64_t minutesPerDay = 24 * 60;

constexpr std::array<const char*, 12> monthNames = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string twoDigits(int value) {
    value %= 100;
    return {static_cast<char>('0' + value / 10), static_cast<char>('0' + value % 10)};
}

// Two digits at a position, or -1.
int pairAt(std::string_view text, std::size_t at) {
    const char high = text[at];
    const char low = text[at + 1];
    if (high < '0' || high > '9' || low < '0' || low > '9')
        return -1;
    return (high - '0') * 10 + (low - '0');
}

} // namespace

ReadingTime toReadingTime(const CivilTime& civil) {
    const std::chrono::year_month_day date{std::chrono::year(civil.year),
                                           std::chrono::month(static_cast<unsigned>(civil.month)),
                                           std::chrono::day(static_cast<unsigned>(civil.day))};
    const auto days = std::chrono::sys_days(date).time_since_epoch().count();
    return {days * minutesPerDay + civil.hour * 60 + civil.minute};
}

CivilTime toCivil(ReadingTime time) {
    auto days = time.minutes / minutesPerDay;
    auto rest = time.minutes % minutesPerDay;
    if (rest < 0) {
        rest += minutesPerDay;
        --days;
    }
    const std::chrono::year_month_day date{std::chrono::sys_days(std::chrono::days(days))};
    return {int(date.year()), static_cast<int>(unsigned(date.month())),
            static_cast<int>(unsigned(date.day())), static_cast<int>(rest / 60), static_cast<int>(rest % 60)};
}

std::optional<ReadingTime> parseHeaderTime(std::string_view text) {
    if (text.size() != 14 || text[2] != '-' || text[5] != '-' || text[8] != ' ' || text[11] != ':')
        return std::nullopt;
    const int month = pairAt(text, 0);
    const int day = pairAt(text, 3);
    const int year = pairAt(text, 6);
    const int hour = pairAt(text, 9);
    const int minute = pairAt(text, 12);
    if (month < 1 || day < 1 || year < 0 || hour < 0 || hour > 23 || minute < 0 || minute > 59)
        return std::nullopt;
    const int fullYear = year < 30 ? 2000 + year : 1900 + year;
    const std::chrono::year_month_day date{std::chrono::year(fullYear),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok())
        return std::nullopt;
    return toReadingTime({fullYear, month, day, hour, minute});
}

std::string formatTime(ReadingTime time, std::string_view pattern) {
    const CivilTime civil = toCivil(time);
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != '%' || i + 1 == pattern.size()) {
            text += pattern[i];
            continue;
        }
        switch (pattern[++i]) {
        case 'H':
            text += twoDigits(civil.hour);
            break;
        case 'M':
            text += twoDigits(civil.minute);
            break;
        case 'm':
            text += twoDigits(civil.month);
            break;
        case 'd':
            text += twoDigits(civil.day);
            break;
        case 'y':
            text += twoDigits(civil.year);
            break;
        case 'Y':
            text += std::to_string(civil.year);
            break;
        case 'b':
            text += monthNames[static_cast<std::size_t>(civil.month - 1)];
            break;
        default:
            text += pattern[i];
        }
    }
    return text;
}

std::string screenTime(ReadingTime time) {
    return formatTime(time, "%H:%M  %b %d, %y");
}

std::string headerTime(ReadingTime time) {
    return formatTime(time, "%m-%d-%y %H:%M");
}

} // namespace tally
