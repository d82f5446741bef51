// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/Channel.h"
#include "study/Decimal.h"

#include <optional>
#include <vector>

namespace tally::study {

// An unbroken stretch of readings beyond a limit.
struct Run {
    ReadingTime start;
    ReadingTime end; // when the interval of its last reading is over
    std::int64_t minutes = 0;
    LoadAt peak; // its extreme reading, the earliest of equal ones
};

struct Limits {
    std::vector<Run> above;
    std::vector<Run> below;
    std::int64_t minutesAbove = 0;
    std::int64_t minutesBelow = 0;
};

// The runs strictly above `high` and strictly below `low` (in the channel's unit; averages, of a Min/Max/Avg
// recording its maxima against the high limit and its minima against the low one). None without a limit, and
// none of power: the limits are those of what was recorded.
Limits limitsOf(const Channel& channel, const Axis& axis, const std::optional<Decimal>& high,
                const std::optional<Decimal>& low);

} // namespace tally::study
