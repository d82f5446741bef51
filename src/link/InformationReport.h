// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tally {

// What a recover knows besides the header.
struct RecoveredFacts {
    std::string start;   // "hh:mm  MMM dd, yy"
    std::string stopped; // the same
    int readings = 0;
};

// The download information report of a received text (bytes); the result is UTF-8. With `recovered` the start
// time and the number of readings stand in it; with `clockDifference` the minutes by which the instrument's
// clock is ahead of the computer's. Throws Subscript for a mode letter outside the mode table.
std::string informationReport(std::string_view gText, const std::optional<RecoveredFacts>& recovered = {},
                              std::optional<std::int64_t> clockDifference = {});

} // namespace tally
