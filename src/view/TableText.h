// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tally {

// How the lines of a table are laid out.
struct TableLayout {
    std::string_view heading;
    int perLine;                  // values in a full line
    std::string_view valueFormat; // with one decimal
    std::string_view wholeFormat; // in the HIGH range
};

// The first line's time, and the minutes from one line to the next.
struct TableTimes {
    ReadingTime start;
    int minutesPerLine;
};

// The text of a table: each line is the time of its first value in a field of 22 and a blank, its values,
// each followed by two blanks, and CR LF. Fills `table`, whose memory is used again.
void tableText(std::string& table, std::span<const std::int16_t> tenths, const TableLayout& layout,
               bool wholeNumbers, const TableTimes& times);
void tableText(std::string& table, std::span<const float> values, const TableLayout& layout,
               bool wholeNumbers, const TableTimes& times);

} // namespace tally
