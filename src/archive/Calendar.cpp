// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Calendar.h"

#include "archive/Day.h"

#include <algorithm>

namespace tally::archive {

namespace {

std::string padded(int number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

int firstOf(int year, int month) {
    return *parseDay(padded(year, 4) + "-" + padded(month, 2) + "-01");
}

} // namespace

std::vector<CalendarYear> calendarOf(const Coverage& coverage) {
    std::vector<CalendarYear> years;
    if (coverage.covered.empty())
        return years;
    const int last = yearOf(coverage.covered.back().last);
    for (int year = yearOf(coverage.covered.front().first); year <= last; ++year) {
        const int first = firstOf(year, 1);
        const int count = *parseDay(padded(year, 4) + "-12-31") - first + 1;
        CalendarYear one{year, first, std::vector<bool>(static_cast<std::size_t>(count)), 0};
        for (const DaySpan& span : coverage.covered)
            for (int day = std::max(span.first, first); day <= std::min(span.last, first + count - 1); ++day)
                one.days[static_cast<std::size_t>(day - first)] = true;
        one.covered = static_cast<int>(std::count(one.days.begin(), one.days.end(), true));
        years.push_back(std::move(one));
    }
    return years;
}

std::vector<std::size_t> monthStarts(const CalendarYear& year) {
    constexpr int months = 12;
    std::vector<std::size_t> starts;
    for (int month = 1; month <= months; ++month)
        starts.push_back(static_cast<std::size_t>(firstOf(year.year, month) - year.firstDay));
    return starts;
}

std::string dayWords(const CalendarYear& year, std::size_t day) {
    return dayText(year.firstDay + static_cast<int>(day)) +
           (year.days.at(day) ? ": readings" : ": no reading");
}

} // namespace tally::archive
