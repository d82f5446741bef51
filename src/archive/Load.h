// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tally::archive {

// The load that a recording shows, interval by interval, in tenths. A Min/Max/Avg recording gives the average
// of each triple, and its extremes beside it; an incomplete oldest triple is left out.
struct Load {
    ReadingTime start; // of the first interval
    int interval = 15; // minutes
    std::vector<std::int16_t> average;
    std::vector<std::int16_t> maximum; // Min/Max/Avg recordings only
    std::vector<std::int16_t> minimum;

    std::size_t points() const { return average.size(); }
    ReadingTime at(std::size_t point) const { return start + static_cast<std::int64_t>(point) * interval; }
    std::int16_t high(std::size_t point) const { return maximum.empty() ? average[point] : maximum[point]; }
    std::int16_t low(std::size_t point) const { return minimum.empty() ? average[point] : minimum[point]; }
};

// `readings` in tenths, oldest first, as a data file gives them. No point when there is no whole interval.
Load loadOf(const FileFacts& facts, const std::vector<std::int16_t>& readings);

} // namespace tally::archive
