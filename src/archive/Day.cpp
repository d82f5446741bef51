// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Day.h"

#include <algorithm>
#include <chrono>

namespace tally::archive {

namespace {

int numberAt(std::string_view text, std::size_t at, std::size_t length) {
    int number = 0;
    for (const char c : text.substr(at, length))
        number = number * 10 + (c - '0');
    return number;
}

} // namespace

int yearOf(int day) {
    return toCivil(startOf(day)).year;
}

std::optional<int> parseDay(std::string_view text) {
    constexpr std::string_view shape = "dddd-dd-dd";
    const auto fits = [](char c, char wanted) { return wanted == 'd' ? c >= '0' && c <= '9' : c == wanted; };
    if (text.size() != shape.size() || !std::equal(text.begin(), text.end(), shape.begin(), fits))
        return std::nullopt;
    const int year = numberAt(text, 0, 4);
    const auto month = static_cast<unsigned>(numberAt(text, 5, 2));
    const auto day = static_cast<unsigned>(numberAt(text, 8, 2));
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day)};
    if (!date.ok())
        return std::nullopt;
    return dayOf(toReadingTime({year, static_cast<int>(month), static_cast<int>(day)}));
}

std::string dayText(int day) {
    return formatTime(startOf(day), "%Y-%m-%d");
}

std::string timeText(ReadingTime time) {
    return formatTime(time, "%Y-%m-%dT%H:%M");
}

} // namespace tally::archive
