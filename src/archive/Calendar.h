// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Questions.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tally::archive {

// A year of the calendar that shows on which dates there is a reading.
struct CalendarYear {
    int year = 0;
    int firstDay = 0;       // the date of January 1
    std::vector<bool> days; // 365 or 366, from January 1
    int covered = 0;        // how many of them
};

// Every year from the first to the last that has a reading, those without one between them too.
std::vector<CalendarYear> calendarOf(const Coverage& coverage);

// The days before each month of a year begins: 0, 31, ...
std::vector<std::size_t> monthStarts(const CalendarYear& year);

// "2009-03-15: readings" or "2009-03-15: no reading".
std::string dayWords(const CalendarYear& year, std::size_t day);

} // namespace tally::archive
