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

// What the report may add to the header.
struct ReportFacts {
    std::optional<RecoveredFacts> recovered = {};     // start time and number of readings
    std::optional<std::int64_t> clockDifference = {}; // minutes the instrument's clock is ahead
    std::int32_t memory = 0;                          // readings that the memory holds; 0 for unknown
};

// The download information report of a received text (bytes); the result is UTF-8. Where the text reads as a
// recording it says how many readings there are and what time they span. A mode letter outside "a" to "l" is
// shown as unknown.
std::string informationReport(std::string_view gText, const ReportFacts& facts = {});

} // namespace tally
